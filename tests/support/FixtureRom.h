#pragma once

#include <atomic>
#include <cctype>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "rom/Bytes.h"
#include "rom/FilePath.h"

namespace tessarine::test {

// Bytes written as in a hex dump, "6A 5A 02", both ways, so that a failing comparison of bytes reads like a dump.
inline Bytes FromHex(std::string_view hex) {
  Bytes bytes;
  for (std::size_t at = 0; at + 1 < hex.size(); at += 3) {
    bytes.push_back(static_cast<std::uint8_t>(std::stoi(std::string(hex.substr(at, 2)), nullptr, 16)));
  }
  return bytes;
}
inline std::string ToHex(const Bytes& bytes) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::string hex;
  for (const std::uint8_t byte : bytes) {
    hex += (hex.empty() ? "" : " ") + std::string{kDigits[byte >> 4], kDigits[byte & 0xF]};
  }
  return hex;
}

// The game-text bytes of a name made of letters, digits and blanks. Only these of the cartridge's Western table are
// known here, on purpose: the tests do not use the system's own encoder to make what its decoder reads.
inline Bytes GameTextOf(std::string_view ascii) {
  Bytes bytes;
  for (const char c : ascii) {
    if (c != ' ' && !std::isalnum(static_cast<unsigned char>(c))) throw std::invalid_argument("not a letter or digit");
    const int byte = c == ' ' ? 0x00 : c <= '9' ? 0xA1 + (c - '0') : c <= 'Z' ? 0xBB + (c - 'A') : 0xD5 + (c - 'a');
    bytes.push_back(static_cast<std::uint8_t>(byte));
  }
  return bytes;
}

// A device that has no end and takes every write: a ROM of which every place lies inside.
// (Wine would also open "/dev/zero", as a path of the Linux around it; Windows reads it as \dev\zero.)
inline const char* EndlessDevice() {
#ifdef _WIN32
  return "NUL";
#else
  return "/dev/zero";
#endif
}

// A path for a temporary file of the test's own, unique in this run.
inline std::filesystem::path TemporaryPath(std::string_view stem) {
  static std::atomic<int> counter{0};
  static const std::string run = std::to_string(std::random_device{}());  // apart from other test processes
  return std::filesystem::temp_directory_path() /
         ("tessarine-" + run + "-" + std::to_string(counter++) + "-" + std::string(stem));
}

// Puts the file `from` at the name `to`, as a program that saves a new file does: by a rename over it, or where the
// system renames nothing over a file that is open (Windows), as a Windows program does it: the open file renamed out of
// the way (its opener shares deleting), the new one renamed in, and the old one deleted, which the system does once it
// is closed. False where the system refuses even that: the file at `to` stays, and `from` goes.
inline bool RenameOver(const std::string& from, const std::string& to) {
  std::error_code refused, ignored;
  std::filesystem::rename(ToFilePath(from), ToFilePath(to), refused);
  if (refused) {
    const std::string aside = to + ".old";
    std::error_code moved;
    std::filesystem::rename(ToFilePath(to), ToFilePath(aside), moved);
    if (!moved) std::filesystem::rename(ToFilePath(from), ToFilePath(to), refused);
    if (!moved && refused) std::filesystem::rename(ToFilePath(aside), ToFilePath(to), ignored);
    std::filesystem::remove(ToFilePath(refused ? from : aside), ignored);
  }
  return !refused;
}

// A ROM image made by the tests: 16 MiB of 0xFF with a chosen game code and revision in the header, and whatever a test
// puts at its offsets. Nothing in it comes from a real game. The image lives in memory until path() writes it to a
// temporary file of its own, which is removed with the fixture; puts after that reach the file at the next path().
class FixtureRom {
 public:
  static constexpr std::size_t kSize = 16 * 1024 * 1024;

  explicit FixtureRom(std::string_view gameCode, std::size_t size = kSize, int revision = 0)
      : image_(size, 0xFF), path_(TemporaryPath("fixture.gba")) {
    for (std::size_t i = 0; i < gameCode.size() && 0xAC + i < size; ++i) image_[0xAC + i] = std::uint8_t(gameCode[i]);
    if (0xBC < size) image_[0xBC] = static_cast<std::uint8_t>(revision);
  }
  ~FixtureRom() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove(path_, ignored);
  }
  FixtureRom(FixtureRom&& other) noexcept
      : image_(std::move(other.image_)), path_(std::exchange(other.path_, {})), dirty_(other.dirty_) {}
  FixtureRom& operator=(FixtureRom&&) = delete;

  static FixtureRom Ruby() { return FixtureRom("AXVE"); }
  static FixtureRom Sapphire() { return FixtureRom("AXPE"); }
  static FixtureRom FireRed() { return FixtureRom("BPRE"); }
  static FixtureRom JapaneseEmerald() { return FixtureRom("BPEJ"); }
  static FixtureRom TooShort() { return FixtureRom("", 0xAE); }  // it ends before the header's game code is whole

  FixtureRom& PutBytes(std::size_t offset, const Bytes& bytes) {
    if (offset + bytes.size() > image_.size()) throw std::out_of_range("fixture put past the end of the image");
    std::copy(bytes.begin(), bytes.end(), image_.begin() + static_cast<std::ptrdiff_t>(offset));
    dirty_ = true;
    return *this;
  }
  FixtureRom& PutByte(std::size_t offset, std::uint8_t value) { return PutBytes(offset, {value}); }
  FixtureRom& PutWord(std::size_t offset, std::uint16_t value) { return PutBytes(offset, LittleEndian(value, 2)); }
  FixtureRom& PutLong(std::size_t offset, std::uint32_t value) { return PutBytes(offset, LittleEndian(value, 4)); }
  // A name in game text (GameTextOf), padded with `pad` to `fieldLength` bytes.
  FixtureRom& PutName(std::size_t offset, std::string_view ascii, std::size_t fieldLength, std::uint8_t pad = 0xFF) {
    Bytes field = GameTextOf(ascii);
    if (field.size() > fieldLength) throw std::invalid_argument("fixture name longer than its field");
    field.resize(fieldLength, pad);
    return PutBytes(offset, field);
  }

  const Bytes& image() const { return image_; }
  // The file, written anew when the image has changed since the last call.
  std::string path() {
    if (dirty_) {
      std::ofstream out(path_, std::ios::binary | std::ios::trunc);
      out.write(reinterpret_cast<const char*>(image_.data()), static_cast<std::streamsize>(image_.size()));
      if (!out) throw std::runtime_error("could not write the fixture ROM " + ToPathText(path_));
      dirty_ = false;
    }
    return ToPathText(path_);
  }

 private:
  static Bytes LittleEndian(std::uint32_t value, std::size_t width) {
    Bytes bytes(width);
    for (std::size_t i = 0; i < width; ++i) bytes[i] = static_cast<std::uint8_t>(value >> (8 * i));
    return bytes;
  }

  Bytes image_;
  std::filesystem::path path_;
  bool dirty_ = true;
};

}  // namespace tessarine::test
