#include "support/ByteOracle.h"

#include <fstream>
#include <stdexcept>

#include "rom/FilePath.h"

namespace tessarine::test {

std::ostream& operator<<(std::ostream& out, const ByteRange& range) {
  return out << "{0x" << std::hex << range.offset << std::dec << ", " << range.length << "}";
}

Bytes ReadWholeFile(const std::string& path) {
  std::ifstream in(ToFilePath(path), std::ios::binary | std::ios::ate);
  if (!in) throw std::runtime_error("cannot read " + path);
  Bytes bytes(static_cast<std::size_t>(in.tellg()));
  in.seekg(0);
  in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
  if (!in) throw std::runtime_error("cannot read " + path);
  return bytes;
}

ByteOracle::ByteOracle(std::string path) : path_(std::move(path)), before_(ReadWholeFile(path_)) {}

Bytes ByteOracle::Now() const { return ReadWholeFile(path_); }

std::vector<ByteRange> ByteOracle::Changes() const {
  const Bytes after = Now();
  std::vector<ByteRange> ranges;
  const std::size_t common = std::min(before_.size(), after.size());
  for (std::size_t i = 0; i < common; ++i) {
    if (before_[i] == after[i]) continue;
    if (!ranges.empty() && ranges.back().offset + ranges.back().length == i) {
      ++ranges.back().length;
    } else {
      ranges.push_back({i, 1});
    }
  }
  // A file that grew or shrank differs in every byte beyond the shorter length.
  const std::size_t longer = std::max(before_.size(), after.size());
  if (longer > common) ranges.push_back({common, longer - common});
  return ranges;
}

}  // namespace tessarine::test
