#include "text/mdlTextSapp.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <vector>

#include "HexBytes.h"

namespace tessarine {
namespace {

using test::FromHex;

std::string Decode(std::string_view hex, bool japanese = false) {
  return DecodeGameText(FromHex(hex), japanese);
}

// A table written out by rows of consecutive bytes: each byte of a row decodes to its
// form, and each of the `unmapped` bytes outside the rows to "&H" and two digits.
struct Row {
  std::uint8_t first;
  std::vector<const char*> forms;
};

void ExpectEveryByte(bool japanese, const std::vector<Row>& rows, int unmapped) {
  std::array<const char*, 256> forms{};
  for (const Row& row : rows) {
    for (std::size_t i = 0; i < row.forms.size(); ++i) forms[row.first + i] = row.forms[i];
  }
  ASSERT_EQ(std::ranges::count(forms, nullptr), unmapped);
  for (int b = 0; b < 256; ++b) {
    const Bytes byte = {static_cast<std::uint8_t>(b)};
    const std::string expected = forms[b] ? forms[b] : "&H" + test::ToHex(byte);
    EXPECT_EQ(DecodeGameText(byte, japanese), expected) << "byte " << b;
  }
}

TEST(GameTextDecodeTest, EveryWesternByte) {
  const std::vector<Row> rows = {
      {0x00, {" ", "À", "Á", "Â", "Ç", "È", "É", "Ê", "Ë", "Ì"}},
      {0x0B, {"Î", "Ï", "Ò", "Ó", "Ô", "Œ", "Ù", "Ú", "Û"}},
      {0x15, {"ß", "à", "á"}},
      {0x19, {"ç", "è", "é", "ê", "ë", "ì"}},
      {0x20, {"î", "ï", "ò", "ó", "œ", "ù", "ú"}},
      {0x28, {"°", "ª"}},
      {0x2B, {"&", "+", "&"}},
      {0x34, {"[Lv]", "="}},
      {0x51, {"¿", "¡", "PK", "MN", "PO", "Ke", "BL", "OC", "K", "Í", "%", "(", ")"}},
      {0x68, {"â"}},
      {0x6F, {"í"}},
      {0x79, {"[U]", "[D]", "[L]", "[R]"}},
      {0xA1, {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9", "!", "?", ".", "-", "·"}},
      {0xB0, {"[.]", "[\"]", "\"", "[']", "'", "[m]", "[f]", "[p]", ",", "[x]", "/"}},
      {0xBB, {"A", "B", "C", "D", "E", "F", "G", "H", "I", "J", "K", "L", "M",
              "N", "O", "P", "Q", "R", "S", "T", "U", "V", "W", "X", "Y", "Z"}},
      {0xD5, {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", "m",
              "n", "o", "p", "q", "r", "s", "t", "u", "v", "w", "x", "y", "z"}},
      {0xEF, {"[>]", ":", "Ä", "Ö", "Ü", "ä", "ö", "ü", "[u]", "[d]", "[l]"}},
      {0xFA, {"\\l", "\\p", "\\c", "\\v", "\\n", "\\x"}},
  };
  ExpectEveryByte(false, rows, 100);
}

TEST(GameTextDecodeTest, EveryJapaneseByte) {
  const std::vector<Row> rows = {
      {0x00, {" ", "a", "i", "u", "e", "o", "ka", "ki", "ku", "ke", "ko", "sa", "shi", "su", "se", "so",
              "ta", "chi", "tsu", "te", "to", "na", "ni", "nu", "ne", "no", "ha", "hi", "fu", "he", "ho",
              "ma", "mi", "mu", "me", "mo"}},
      {0x27, {"ra", "ri", "ru", "re", "ro"}},
      {0x2E, {"n"}},
      {0x34, {"ya", "yu", "yo", "ga", "gi", "gu", "ge", "go", "za", "ji", "zu", "ze", "zo",
              "da", "dji", "zu", "de", "do", "ba", "be", "bo", "pa", "pi", "pu", "pe", "po"}},
      {0x51, {"A", "I", "U", "E", "O", "KA", "KI", "KU", "KE", "KO", "SA", "SHI", "SU", "SE", "SO",
              "TA", "CHI", "TSU", "TE", "TO", "NA", "NI", "NU", "NE", "NO", "HA", "HI", "FU", "HE", "HO",
              "MA", "MI", "MU", "ME", "MO"}},
      {0x77, {"RA", "RI", "RU", "RE", "RO", " "}},
      {0x7E, {"N"}},
      {0x80, {""}},
      {0x84, {"YA", "YU", "YO", "GA", "GI", "GU", "GE", "GO", "ZA", "JI", "ZU", "ZE", "ZO",
              "DA", "DJI", "DU", "DE", "DO", "BA", "BI", "BU", "BE", "BO", "PA", "PI", "PU", "PE", "PO"}},
      {0xA0, {"_", "0", "1", "2", "3", "4", "5", "6", "7", "8", "9"}},
      {0xAC, {"?"}},
      {0xAE, {"-"}},
      {0xFA, {"\\l", "\\p", "\\c", "\\v", "\\n", "\\x"}},
  };
  ExpectEveryByte(true, rows, 98);
}

// Runs of bytes: no terminator, and the parameter after 0xFC and 0xFD.
TEST(GameTextDecodeTest, DecodesRunsOfBytes) {
  const struct {
    const char* bytes;
    bool japanese;
    const char* text;
  } cases[] = {
      {"", false, ""},
      {"FF C1", false, "\\xG"},                     // 0xFF does not stop decoding
      {"BB 00 BC 20", false, "A Bî"},               // 0x00 is a blank, 0x20 is no space
      {"60 61", false, "&H60&H61"},                 // no separator between hexadecimal forms
      {"FC 01", false, "\\c&H01"},
      {"FD 01", false, "\\v&H01"},
      {"FD FF", false, "\\v&HFF"},                  // a parameter is never a form, 0xFF included
      {"FC", false, "\\c"},                         // no parameter left: nothing more
      {"FC FC BB", false, "\\c&HFCA"},              // a parameter 0xFC takes no parameter itself
      {"FD FD FD BB", false, "\\v&HFD\\v&HBB"},
      {"FD 80", true, "\\v&H80"},                   // the Japanese 0x80 would add nothing
      {"CA C9 C5 1B 00 BC BB C6 C6", false, "POKé BALL"},
  };
  for (const auto& c : cases) EXPECT_EQ(Decode(c.bytes, c.japanese), c.text) << c.bytes;

  // The flag dies with the call.
  EXPECT_EQ(Decode("FC"), "\\c");
  EXPECT_EQ(Decode("BB"), "A");
}

TEST(GameTextDecodeTest, CutsDecodedNames) {
  const struct {
    const char* bytes;
    const char* name;
  } cases[] = {
      {"BB BC FF", "AB"},
      {"BB BC FF BD FF", "AB"},                     // cut at the first terminator
      {"BB BB BB BB BB BB BB BB BB BB BB", "AAAAAAAAAA"},  // a full field loses its last letter
      {"FF BB BC", ""},
      {"BB 1B", "A"},                               // "é" goes whole, not one UTF-8 byte of it
      {"BB FE", "A\\"},                             // "\n" is no terminator
      {"BB FC FF", "A\\c&HF"},                      // a parameter 0xFF is no terminator either
      {"", ""},
  };
  for (const auto& c : cases) EXPECT_EQ(CutDecodedName(Decode(c.bytes)), c.name) << c.bytes;

  // Any text: a byte that is no UTF-8 is one character.
  EXPECT_EQ(CutDecodedName("AB\xE2\x82"), "AB\xE2");
  EXPECT_EQ(CutDecodedName("\xF0\x9F\x98\x80"), "");
}

}  // namespace
}  // namespace tessarine
