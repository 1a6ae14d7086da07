#include <gtest/gtest.h>

#include <array>
#include <map>
#include <random>
#include <vector>

#include "HexBytes.h"
#include "text/Braille2Text.h"
#include "text/Table2Text.h"
#include "text/Utf8.h"
#include "text/mdlTextSapp.h"

namespace tessarine {
namespace {

using test::ToHex;

// The bytes whose printed form types back to them whatever stands around it: a form no other
// byte prints, that keeps its brackets (not 0x53 to 0x58), and that takes no parameter (0xFC and
// 0xFD print the byte after them in hexadecimal).
std::vector<std::uint8_t> RoundTripBytes() {
  std::array<std::string, 256> printed;
  std::map<std::string, int> printers;
  for (int b = 0; b < 256; ++b) ++printers[printed[b] = DecodeGameText(Bytes{std::uint8_t(b)}, false)];
  std::vector<std::uint8_t> bytes;
  for (int b = 0; b < 256; ++b) {
    const bool unique = !printed[b].starts_with("&H") && printers[printed[b]] == 1;
    if (unique && !(b >= 0x53 && b <= 0x58) && b != 0xFC && b != 0xFD) bytes.push_back(std::uint8_t(b));
  }
  return bytes;
}

TEST(TextPropertyTest, PrintedTextTypesBackToItsBytes) {
  const std::vector<std::uint8_t> alphabet = RoundTripBytes();
  ASSERT_EQ(alphabet.size(), 144u);  // 156 forms less "&" and "K" twice, 0x53 to 0x58, 0xFC, 0xFD

  std::mt19937 random(20261123);
  std::uniform_int_distribution<std::size_t> pick(0, alphabet.size() - 1);
  std::uniform_int_distribution<int> length(0, 40);
  for (int i = 0; i < 2000; ++i) {
    Bytes bytes(static_cast<std::size_t>(length(random)));
    for (std::uint8_t& byte : bytes) byte = alphabet[pick(random)];
    const std::string text = DecodeGameText(bytes, false);
    ASSERT_EQ(ToHex(EncodeGameText(text)), ToHex(bytes)) << text;
  }
}

// Any bytes, any text, malformed UTF-8 included: every codec gives an answer, and the sanitizers
// see no read out of bounds. An encoder takes one to five characters per byte.
TEST(TextPropertyTest, AnyInputIsHandled) {
  const std::string_view pieces[] = {
      "[", "]", "\\", "h", "\\h", "F", "0", "g", "[End]", "[Lv]", "[N]", "[PK]", "[u]", "\\x", "\r", "\n", "&",
      "A", " ", "\xC3\xA9", "\xC5\x93", "\xC3", "\xE2\x82", "\xF0\x9F\x98\x80", "\xFF",
      std::string_view("\0", 1),
  };
  std::mt19937 random(7);
  std::uniform_int_distribution<int> byte(0, 255);
  std::uniform_int_distribution<std::size_t> piece(0, std::size(pieces) - 1);
  std::uniform_int_distribution<int> length(0, 32);

  const auto expectEncodes = [](const std::string& text) {
    const std::size_t characters = DecodeUtf8(text).size();
    for (const Bytes& bytes : {EncodeGameText(text), EncodeMessageText(text), EncodeBrailleText(text)}) {
      ASSERT_LE(bytes.size(), characters) << text;
      ASSERT_GE(bytes.size() * 5, characters) << text;
    }
  };
  const auto isWellFormed = [](const std::string& text) {
    return DecodeUtf8(text).find(kUndecodable) == std::u32string::npos;
  };

  for (int i = 0; i < 600; ++i) {
    const int n = length(random);
    Bytes bytes;
    std::string pieced;
    for (int k = 0; k < n; ++k) {
      bytes.push_back(static_cast<std::uint8_t>(byte(random)));
      pieced += pieces[piece(random)];
    }
    const std::string raw(bytes.begin(), bytes.end());
    for (const bool japanese : {false, true}) {
      const std::string decoded = DecodeGameText(bytes, japanese);
      ASSERT_TRUE(isWellFormed(decoded)) << ToHex(bytes);
      ASSERT_TRUE(isWellFormed(CutDecodedName(decoded))) << ToHex(bytes);  // no character cut in two
      expectEncodes(decoded);
    }
    ASSERT_TRUE(raw.starts_with(CutDecodedName(raw)));
    expectEncodes(raw);
    expectEncodes(pieced);
  }
}

}  // namespace
}  // namespace tessarine
