#pragma once

#include <algorithm>
#include <ostream>
#include <utility>
#include <vector>

#include "support/FixtureRom.h"

namespace tessarine::test {

// A run of bytes in a file: where it starts and how many bytes it holds.
struct ByteRange {
  std::size_t offset, length;
  bool operator==(const ByteRange&) const = default;
};
inline std::ostream& operator<<(std::ostream& out, const ByteRange& range) {
  return out << "{0x" << std::hex << range.offset << std::dec << ", " << range.length << "}";
}

// A whole file's bytes, read through a handle of the caller's own.
inline Bytes ReadWholeFile(const std::string& path) {
  std::ifstream in(ToFilePath(path), std::ios::binary | std::ios::ate);
  Bytes bytes(in ? static_cast<std::size_t>(in.tellg()) : 0);
  in.seekg(0);
  in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (!in) throw std::runtime_error("cannot read " + path);
  return bytes;
}

// Each changed run of bytes, where it starts and its bytes now in hex ("6A 5A").
using WrittenRuns = std::vector<std::pair<std::size_t, std::string>>;

// Proves what an action wrote: a snapshot of the whole file before it, compared after it.
// Changes() joins neighbouring changed bytes into ranges, so a test states the exact set of
// ranges it expects and nothing else may differ; Written() gives each range with its bytes.
class ByteOracle {
 public:
  explicit ByteOracle(std::string path) : path_(std::move(path)), before_(Now()) {}

  std::vector<ByteRange> Changes() const {
    const Bytes after = Now();
    std::vector<ByteRange> ranges;
    const std::size_t common = std::min(before_.size(), after.size());
    for (std::size_t i = 0; i < common; ++i) {
      if (before_[i] == after[i]) continue;
      if (ranges.empty() || ranges.back().offset + ranges.back().length != i) ranges.push_back({i, 0});
      ++ranges.back().length;
    }
    // A file that grew or shrank differs in every byte beyond the shorter length.
    const std::size_t longer = std::max(before_.size(), after.size());
    if (longer > common) ranges.push_back({common, longer - common});
    return ranges;
  }
  WrittenRuns Written() const {
    const Bytes now = Now();
    WrittenRuns written;
    for (const ByteRange& r : Changes()) written.emplace_back(r.offset, HexOf(now, r.offset, r.length));
    return written;
  }
  // `count` bytes of the file from `at` as they are now, in hex.
  std::string Hex(std::size_t at, std::size_t count) const { return HexOf(Now(), at, count); }
  Bytes Now() const { return ReadWholeFile(path_); }

 private:
  static std::string HexOf(const Bytes& bytes, std::size_t at, std::size_t count) {
    const auto from = bytes.begin() + static_cast<long>(std::min(at, bytes.size()));
    return ToHex(Bytes(from, bytes.begin() + static_cast<long>(std::min(at + count, bytes.size()))));
  }
  std::string path_;
  Bytes before_;
};

}  // namespace tessarine::test
