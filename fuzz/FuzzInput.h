#pragma once

// What the fuzz targets share: an input taken apart from the front (what is missing reads as
// 0), a scratch ROM file made of its bytes, and a property that stops the run when broken.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <span>
#include <string>

#include "rom/FilePath.h"
#include "support/FixtureRom.h"

namespace tessarine::fuzz {

inline void Require(bool holds, const char* property) {
  if (holds) return;
  std::fprintf(stderr, "broken: %s\n", property);
  std::abort();
}

struct Input {
  std::span<const std::uint8_t> rest;
  std::string Text(std::size_t most = SIZE_MAX) {
    const auto taken = rest.first(std::min(most, rest.size()));
    rest = rest.subspan(taken.size());
    return {taken.begin(), taken.end()};
  }
  Bytes Block(std::size_t most = SIZE_MAX) {
    const std::string taken = Text(most);
    return {taken.begin(), taken.end()};
  }
  std::uint32_t Number(std::size_t bytes) {
    const Bytes taken = Block(bytes);
    std::uint32_t value = 0;
    for (auto byte = taken.rbegin(); byte != taken.rend(); ++byte) value = value << 8 | *byte;
    return value;
  }
};

// The one scratch file of the run: `length` bytes of 0 (sparse, so megabytes cost nothing),
// with `bytes` at `at` as far as they fit. In memory where the system has a folder for that.
inline std::string ScratchRom(std::int64_t length, std::int64_t at, const Bytes& bytes) {
  static const struct Scratch {
    std::filesystem::path path =
        (std::filesystem::is_directory("/dev/shm") ? "/dev/shm" : std::filesystem::temp_directory_path()) /
        test::TemporaryPath("fuzz.gba").filename();
    ~Scratch() { std::filesystem::remove(path); }
  } scratch;
  std::ofstream{scratch.path, std::ios::trunc};
  std::filesystem::resize_file(scratch.path, static_cast<std::uintmax_t>(length));
  std::fstream file(scratch.path, std::ios::in | std::ios::out | std::ios::binary);
  const auto fits = std::clamp<std::int64_t>(length - at, 0, std::ssize(bytes));
  file.seekp(at).write(reinterpret_cast<const char*>(bytes.data()), fits);
  return ToPathText(scratch.path);
}

}  // namespace tessarine::fuzz
