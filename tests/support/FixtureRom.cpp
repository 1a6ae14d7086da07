#include "support/FixtureRom.h"

#include <atomic>
#include <fstream>
#include <stdexcept>

#include <unistd.h>

namespace tessarine::test {

Bytes FromHex(std::string_view hex) {
  Bytes bytes;
  for (std::size_t at = 0; at + 1 < hex.size(); at += 3) {
    bytes.push_back(static_cast<std::uint8_t>(std::stoi(std::string(hex.substr(at, 2)), nullptr, 16)));
  }
  return bytes;
}

Bytes GameTextOf(std::string_view ascii) {
  Bytes bytes;
  for (const char c : ascii) {
    if (c >= 'A' && c <= 'Z') {
      bytes.push_back(static_cast<std::uint8_t>(0xBB + (c - 'A')));
    } else if (c >= 'a' && c <= 'z') {
      bytes.push_back(static_cast<std::uint8_t>(0xD5 + (c - 'a')));
    } else if (c >= '0' && c <= '9') {
      bytes.push_back(static_cast<std::uint8_t>(0xA1 + (c - '0')));
    } else if (c == ' ') {
      bytes.push_back(0x00);
    } else {
      throw std::invalid_argument("GameTextOf knows letters, digits and blanks only");
    }
  }
  return bytes;
}

std::filesystem::path TemporaryPath(std::string_view stem) {
  static std::atomic<int> counter{0};
  return std::filesystem::temp_directory_path() /
         ("tessarine-" + std::to_string(::getpid()) + "-" + std::to_string(counter++) + "-" + std::string(stem));
}

FixtureRom::FixtureRom(std::string_view gameCode, std::size_t size)
    : image_(size, 0xFF), path_(TemporaryPath("fixture.gba")) {
  for (std::size_t i = 0; i < gameCode.size() && 0xAC + i < size; ++i) {
    image_[0xAC + i] = static_cast<std::uint8_t>(gameCode[i]);
  }
}

FixtureRom::FixtureRom(FixtureRom&& other) noexcept
    : image_(std::move(other.image_)), path_(std::move(other.path_)), dirty_(other.dirty_) {
  other.path_.clear();
}

FixtureRom::~FixtureRom() {
  if (!path_.empty()) {
    std::error_code ignored;
    std::filesystem::remove(path_, ignored);
  }
}

FixtureRom& FixtureRom::PutBytes(std::size_t offset, const Bytes& bytes) {
  if (offset + bytes.size() > image_.size()) throw std::out_of_range("fixture put past the end of the image");
  std::copy(bytes.begin(), bytes.end(), image_.begin() + static_cast<std::ptrdiff_t>(offset));
  dirty_ = true;
  return *this;
}

FixtureRom& FixtureRom::PutByte(std::size_t offset, std::uint8_t value) { return PutBytes(offset, {value}); }

FixtureRom& FixtureRom::PutWord(std::size_t offset, std::uint16_t value) {
  return PutBytes(offset, {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8)});
}

FixtureRom& FixtureRom::PutLong(std::size_t offset, std::uint32_t value) {
  return PutBytes(offset, {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8),
                           static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 24)});
}

FixtureRom& FixtureRom::PutName(std::size_t offset, std::string_view ascii, std::size_t fieldLength,
                                std::uint8_t pad) {
  Bytes field = GameTextOf(ascii);
  if (field.size() > fieldLength) throw std::invalid_argument("fixture name longer than its field");
  field.resize(fieldLength, pad);
  return PutBytes(offset, field);
}

std::string FixtureRom::path() {
  if (dirty_) {
    std::ofstream out(path_, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(image_.data()), static_cast<std::streamsize>(image_.size()));
    if (!out) throw std::runtime_error("could not write the fixture ROM " + path_.string());
    dirty_ = false;
  }
  return path_.string();
}

}  // namespace tessarine::test
