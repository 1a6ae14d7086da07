#include "support/ReadOnlyFile.h"

#include <cstdio>
#include <filesystem>

#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#ifdef __linux__
#include <linux/fs.h>
#endif

namespace tessarine::test {
namespace {

bool OpensForWriting(const std::string& path) {
  std::FILE* file = std::fopen(path.c_str(), "r+b");
  if (file == nullptr) return false;
  std::fclose(file);
  return true;
}

#ifdef __linux__
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
#else
bool SetImmutable(const std::string&, bool) { return false; }
#endif

}  // namespace

ReadOnlyFile::ReadOnlyFile(std::string path) : path_(std::move(path)) {
  namespace fs = std::filesystem;
  fs::permissions(path_, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
  if (OpensForWriting(path_)) immutable_ = SetImmutable(path_, true);
}

ReadOnlyFile::~ReadOnlyFile() {
  if (immutable_) SetImmutable(path_, false);
  std::error_code ignored;
  std::filesystem::permissions(path_, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write,
                               ignored);
}

bool ReadOnlyFile::works() const { return !OpensForWriting(path_); }

}  // namespace tessarine::test
