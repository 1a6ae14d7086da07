#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "rom/Bytes.h"

namespace tessarine::test {

// A ROM image made by the tests: 16 MiB of 0xFF with a chosen game code in the header,
// and whatever a test puts at its offsets. Nothing in it comes from a real game. The
// image lives in memory until path() writes it to a temporary file of its own, which is
// removed with the fixture; puts after that reach the file at the next path().
class FixtureRom {
 public:
  static constexpr std::size_t kSize = 16 * 1024 * 1024;

  explicit FixtureRom(std::string_view gameCode, std::size_t size = kSize);
  ~FixtureRom();
  FixtureRom(FixtureRom&& other) noexcept;
  FixtureRom(const FixtureRom&) = delete;
  FixtureRom& operator=(const FixtureRom&) = delete;
  FixtureRom& operator=(FixtureRom&&) = delete;

  static FixtureRom Ruby() { return FixtureRom("AXVE"); }
  static FixtureRom Sapphire() { return FixtureRom("AXPE"); }
  static FixtureRom FireRed() { return FixtureRom("BPRE"); }
  static FixtureRom LeafGreen() { return FixtureRom("BPGE"); }
  static FixtureRom Emerald() { return FixtureRom("BPEJ"); }
  // A file that ends before the header's game code is complete.
  static FixtureRom TooShort() { return FixtureRom("", 0xAE); }

  FixtureRom& PutBytes(std::size_t offset, const Bytes& bytes);
  FixtureRom& PutByte(std::size_t offset, std::uint8_t value);
  FixtureRom& PutWord(std::size_t offset, std::uint16_t value);
  FixtureRom& PutLong(std::size_t offset, std::uint32_t value);
  // A name in game text, padded with `pad` to `fieldLength` bytes. Only the letters,
  // digits and blank of the cartridge's Western table are known here, on purpose: the
  // tests do not use the system's own encoder to make what its decoder reads.
  FixtureRom& PutName(std::size_t offset, std::string_view ascii, std::size_t fieldLength,
                      std::uint8_t pad = 0xFF);

  const Bytes& image() const { return image_; }
  // The file, written anew when the image has changed since the last call.
  std::string path();

 private:
  Bytes image_;
  std::filesystem::path path_;
  bool dirty_ = true;
};

// Bytes written as in a hex dump: "6A 5A 02".
Bytes FromHex(std::string_view hex);

// The game-text bytes of a name made of letters, digits and blanks.
Bytes GameTextOf(std::string_view ascii);

// A path for a temporary file of the test's own, unique in this run.
std::filesystem::path TemporaryPath(std::string_view stem);

}  // namespace tessarine::test
