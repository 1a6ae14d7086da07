#pragma once

#ifndef _WIN32
#include <signal.h>
#include <sys/resource.h>

#include <cstdint>

namespace tessarine::test {

// While it stands, the system refuses every write of this process at or past `limit` bytes
// into a file ("File too large"), as a device refuses a write that it has no room for; the
// bytes before the limit take writes as always. Reads are not touched.
class WriteLimit {
 public:
  explicit WriteLimit(std::uint64_t limit) {
    getrlimit(RLIMIT_FSIZE, &before_);
    signalBefore_ = signal(SIGXFSZ, SIG_IGN);  // the refusal, not the end of the process
    rlimit limited = before_;
    limited.rlim_cur = static_cast<rlim_t>(limit);
    setrlimit(RLIMIT_FSIZE, &limited);
  }
  ~WriteLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    signal(SIGXFSZ, signalBefore_);
  }
  WriteLimit(const WriteLimit&) = delete;
  WriteLimit& operator=(const WriteLimit&) = delete;

 private:
  rlimit before_{};
  void (*signalBefore_)(int) = nullptr;
};

}  // namespace tessarine::test
#endif
