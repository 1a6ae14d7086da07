#pragma once

#include <functional>
#include <string>

namespace tessarine::test {

// Makes a file impossible to open for writing while this lives, also for root: first by
// its permission bits (on Windows, the read-only attribute), and where those do not stop
// the process, by a hold of the system's own: the immutable flag of a Linux file system,
// or on Windows a handle that lets others only read. works() tells whether either took hold.
class ReadOnlyFile {
 public:
  explicit ReadOnlyFile(std::string path);
  ~ReadOnlyFile();
  ReadOnlyFile(const ReadOnlyFile&) = delete;
  ReadOnlyFile& operator=(const ReadOnlyFile&) = delete;

  bool works() const;

 private:
  std::string path_;
  std::function<void()> release_;  // lets go of the hold, where one was needed
};

}  // namespace tessarine::test
