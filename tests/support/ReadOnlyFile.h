#pragma once

#include <cstdio>
#include <filesystem>
#include <string>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace tessarine::test {

// Makes a file impossible to open for writing while this lives, also for root: first by its
// permission bits, and where those do not stop the process, by the immutable flag of the file
// system. works() tells whether either took hold.
class ReadOnlyFile {
 public:
  explicit ReadOnlyFile(std::string path) : path_(std::move(path)) {
    namespace fs = std::filesystem;
    fs::permissions(path_, fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    if (!works()) immutable_ = SetImmutable(true);
  }
  ~ReadOnlyFile() {
    if (immutable_) SetImmutable(false);
    std::error_code ignored;
    std::filesystem::permissions(path_, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write,
                                 ignored);
  }
  ReadOnlyFile(const ReadOnlyFile&) = delete;
  ReadOnlyFile& operator=(const ReadOnlyFile&) = delete;

  bool works() const {
    std::FILE* file = std::fopen(path_.c_str(), "r+b");
    if (file != nullptr) std::fclose(file);
    return file == nullptr;
  }

 private:
  bool SetImmutable(bool on) const {
    const int fd = ::open(path_.c_str(), O_RDONLY);
    int flags = 0;
    bool done = fd >= 0 && ::ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
    flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
    done = done && ::ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
    if (fd >= 0) ::close(fd);
    return done;
  }

  std::string path_;
  bool immutable_ = false;
};

}  // namespace tessarine::test
