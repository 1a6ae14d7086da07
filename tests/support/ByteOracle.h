#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "rom/Bytes.h"

namespace tessarine::test {

// A run of bytes in a file: where it starts and how many bytes it holds.
struct ByteRange {
  std::size_t offset;
  std::size_t length;
  bool operator==(const ByteRange&) const = default;
};
std::ostream& operator<<(std::ostream& out, const ByteRange& range);

// Proves what an action wrote: take a snapshot of the whole file before it, then ask
// which bytes differ after it. Changes() joins neighbouring changed bytes into ranges,
// so a test states the exact set of ranges it expects and nothing else may differ.
class ByteOracle {
 public:
  explicit ByteOracle(std::string path);

  std::vector<ByteRange> Changes() const;
  // The file's bytes as they are now.
  Bytes Now() const;
  const Bytes& before() const { return before_; }

 private:
  std::string path_;
  Bytes before_;
};

Bytes ReadWholeFile(const std::string& path);

}  // namespace tessarine::test
