#include "support/ReadOnlyFile.h"

#include <filesystem>
#include <fstream>

#include "rom/FilePath.h"

#if defined(__linux__)
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>
#elif defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#endif

namespace tessarine::test {
namespace fs = std::filesystem;
namespace {

bool OpensForWriting(const std::string& path) {
  return std::fstream(ToFilePath(path), std::ios::in | std::ios::out | std::ios::binary).is_open();
}

#if defined(__linux__)
bool SetImmutable(const std::string& path, bool on) {
  const int fd = ::open(path.c_str(), O_RDONLY);
  if (fd < 0) return false;
  int flags = 0;
  bool done = ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
  if (done) {
    flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
    done = ::ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
  }
  ::close(fd);
  return done;
}

// The immutable flag of the file system, which binds root too.
std::function<void()> Hold(const std::string& path) {
  if (!SetImmutable(path, true)) return {};
  return [path] { SetImmutable(path, false); };
}
#elif defined(_WIN32)
// A handle that shares the file for reading only: while it is open, every other open
// for writing fails, whoever asks (wine run by root ignores the read-only attribute).
std::function<void()> Hold(const std::string& path) {
  const HANDLE handle = ::CreateFileW(ToFilePath(path).c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
  if (handle == INVALID_HANDLE_VALUE) return {};
  return [handle] { ::CloseHandle(handle); };
}
#else
std::function<void()> Hold(const std::string&) { return {}; }
#endif

}  // namespace

ReadOnlyFile::ReadOnlyFile(std::string path) : path_(std::move(path)) {
  fs::permissions(ToFilePath(path_), fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  if (OpensForWriting(path_)) release_ = Hold(path_);
}

ReadOnlyFile::~ReadOnlyFile() {
  if (release_) release_();
  std::error_code ignored;
  fs::permissions(ToFilePath(path_), fs::perms::owner_read | fs::perms::owner_write, ignored);
}

bool ReadOnlyFile::works() const { return !OpensForWriting(path_); }

}  // namespace tessarine::test
