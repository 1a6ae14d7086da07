#include "text/mdlTextSapp.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>

#include "HexBytes.h"

namespace tessarine {
namespace {

using test::ToHex;

struct EncodeCase {
  std::string_view text;
  const char* bytes;
};

TEST(GameTextEncodeTest, EncodesTypedText) {
  const EncodeCase cases[] = {
      {"", ""},
      {"AB", "BB BC"},                          // no terminator added
      {"AB\\x", "BB BC FF"},
      {"A\\xB", "BB FF BC"},                    // 0xFF is data like any other
      {" ", "00"},                              // the blank is 0x00, never 0x20
      {"[PK]", "53"},
      {"PK", "CA C5"},                          // as decoded from 0x53: two letters
      {"[pk]", "00 E4 DF 00"},                  // forms are case-sensitive
      {"[Lv]5", "34 A6"},
      {"[L]v", "7B EA"},
      {"[Ke]", "56"},
      {"[K]e", "59 D9"},
      {"K&", "C5 2D"},
      {"[u][U][d][D][l][L]", "F7 79 F8 7A F9 7B"},
      {"[\"]\"[']'", "B1 B2 B3 B4"},
      {"\\hFD\\h01", "FD 01"},
      {"\\v\\h01", "FD 01"},
      {"\\hfc\\hFc", "FC FC"},
      {"\\h0", "00 DC A1"},                     // too short for the escape at the end of the text
      {"\\hGG", "00 DC C1 C1"},
      {"\\HFF", "00 C2 C0 C0"},                 // only the lower-case "h" escapes
      {"&H0A", "2D C2 A1 BB"},                  // the decoder's hexadecimal form is not read back
      {"[U", "00 CF"},                          // a form cut short by the end never matches
      {"\\\\n", "00 FE"},
      {"#$*;<>@[\\]^_`{|}~\r\n\t", "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"},
      // Characters, not UTF-8 bytes: "é" is C3 A9 on the way in.
      {"POK\xC3\xA9 BALL", "CA C9 C5 1B 00 BC BB C6 C6"},
      {"ÀœŒ·ßü¿ª°", "01 24 10 AF 15 F6 51 29 28"},
      {"e\xCC\x81", "D9 00"},                   // a combining accent is a character of its own
      {"\xF0\x9F\x98\x80[U]", "00 79"},         // beyond the Latin range: one unknown character
      // A byte that begins no UTF-8 sequence is one unknown character.
      {"\xC3", "00"},
      {"\xE9t\xE9", "00 E8 00"},                // Latin-1, not UTF-8
      {"\xE2\x82" "A", "00 00 BB"},             // cut short
      {"\xC0\xAF", "00 00"},                    // overlong "/"
      {"\xED\xA0\x80", "00 00 00"},             // a surrogate
      {"\xF4\x90\x80\x80", "00 00 00 00"},      // past U+10FFFF
      {"[P\xFFK]", "00 CA 00 C5 00"},
      {std::string_view("A\0B", 3), "BB 00 BC"},
  };
  for (const auto& c : cases) EXPECT_EQ(ToHex(EncodeGameText(c.text)), c.bytes) << c.text;
}

// The rows where typing and printing differ.
struct Difference {
  int byte;
  const char* typed;           // nullptr: the byte has no typed form
  const char* decodedEncodes;  // what typing the printed form gives instead
};
constexpr Difference kDifferences[] = {
    {0x2B, nullptr, "2D"},   {0x2D, "&", "2D"},       {0x53, "[PK]", "CA C5"}, {0x54, "[MN]", "C7 C8"},
    {0x55, "[PO]", "CA C9"}, {0x56, "[Ke]", "C5 D9"}, {0x57, "[BL]", "BC C6"}, {0x58, "[OC]", "C9 BD"},
    {0x59, "[K]", "C5"},
};

// Every other form the decoder prints is typed back to its byte.
TEST(GameTextEncodeTest, TypedFormsAgreeWithPrintedOnesOutsideTheDifferences) {
  int forms = 0;
  for (int b = 0; b < 256; ++b) {
    const Bytes byte = {static_cast<std::uint8_t>(b)};
    const std::string printed = DecodeGameText(byte, false);
    if (printed.starts_with("&H")) continue;  // no form
    ++forms;
    const auto difference = std::ranges::find(kDifferences, b, &Difference::byte);
    if (difference == std::end(kDifferences)) {
      EXPECT_EQ(ToHex(EncodeGameText(printed)), ToHex(byte)) << printed;
      continue;
    }
    EXPECT_EQ(ToHex(EncodeGameText(printed)), difference->decodedEncodes) << printed;
    if (difference->typed) {
      EXPECT_EQ(ToHex(EncodeGameText(difference->typed)), ToHex(byte)) << b;
    }
  }
  EXPECT_EQ(forms, 156);
}

TEST(GameTextEncodeTest, RecognisesHexText) {
  const std::pair<std::string_view, bool> cases[] = {
      {"", true},    {"09", true},  {"AF", true},   {"af", true},  {"0123456789abcdefABCDEF", true},
      {"G", false},  {"0x", false}, {" 1", false},  {"g0", false}, {"\xC3\xA9", false},
  };
  for (const auto& [text, hex] : cases) EXPECT_EQ(IsHexText(text), hex) << text;
}

}  // namespace
}  // namespace tessarine
