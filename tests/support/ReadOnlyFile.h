#pragma once

#include <string>

namespace tessarine::test {

// Makes a file impossible to open for writing while this lives, also for root: first by
// its permission bits, and where those do not stop the process, by the immutable flag
// of the file system. works() tells whether either took hold.
class ReadOnlyFile {
 public:
  explicit ReadOnlyFile(std::string path);
  ~ReadOnlyFile();
  ReadOnlyFile(const ReadOnlyFile&) = delete;
  ReadOnlyFile& operator=(const ReadOnlyFile&) = delete;

  bool works() const;

 private:
  std::string path_;
  bool immutable_ = false;
};

}  // namespace tessarine::test
