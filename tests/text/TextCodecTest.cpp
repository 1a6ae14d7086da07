#include <gtest/gtest.h>

#include <map>
#include <tuple>

#include "support/FixtureRom.h"
#include "text/Braille2Text.h"
#include "text/Table2Text.h"
#include "text/mdlTextSapp.h"

namespace tessarine {
namespace {

using test::ToHex;

std::string Decode(std::string_view hex, bool japanese = false) { return DecodeGameText(test::FromHex(hex), japanese); }

// Every form that the decoder prints is typed back to its byte, but in the rows where printing and
// typing differ: "&" at 0x2B (typed at 0x2D), and 0x53 to 0x59, printed without their brackets.
TEST(GameTextDecodeTest, PrintedFormsTypeBackToTheirBytes) {
  const std::map<int, const char*> differences = {{0x2B, "2D"},    {0x53, "CA C5"}, {0x54, "C7 C8"}, {0x55, "CA C9"},
                                                  {0x56, "C5 D9"}, {0x57, "BC C6"}, {0x58, "C9 BD"}, {0x59, "C5"}};
  int forms = 0, japaneseForms = 0;  // the Japanese table, which no encoder reads: its forms are counted
  for (int b = 0; b < 256; ++b) {
    const Bytes byte = {static_cast<std::uint8_t>(b)};
    japaneseForms += !DecodeGameText(byte, true).starts_with("&H");
    const std::string printed = DecodeGameText(byte, false);
    if (printed.starts_with("&H")) continue;  // no form
    ++forms;
    const auto difference = differences.find(b);
    EXPECT_EQ(ToHex(EncodeGameText(printed)), difference == differences.end() ? ToHex(byte) : difference->second)
        << printed;
  }
  EXPECT_EQ(std::pair(forms, japaneseForms), std::pair(156, 158));
}

// Runs of bytes: no terminator, and the parameter after 0xFC and 0xFD.
TEST(GameTextDecodeTest, DecodesRunsOfBytes) {
  const std::tuple<const char*, bool, const char*> cases[] = {  // bytes, Japanese, text
      {"", false, ""}, {"FF C1", false, "\\xG"},  // 0xFF does not stop decoding
      {"BB 00 BC 20", false, "A Bî"},             // 0x00 is a blank, 0x20 is no space
      {"60 61", false, "&H60&H61"},               // no separator between hexadecimal forms
      {"FC 01", false, "\\c&H01"}, {"FD 01", false, "\\v&H01"},
      {"FD FF", false, "\\v&HFF"},                // a parameter is never a form, 0xFF included
      {"FC", false, "\\c"},                       // no parameter left: nothing more
      {"FC FC BB", false, "\\c&HFCA"},            // a parameter 0xFC takes no parameter itself
      {"FD FD FD BB", false, "\\v&HFD\\v&HBB"}, {"FD 80", true, "\\v&H80"},  // the Japanese 0x80 adds nothing
      {"CA C9 C5 1B 00 BC BB C6 C6", false, "POKé BALL"},
      {"0A A0 2B 2D 59 C5 B1 B2 B3 B4", false, "&H0A&HA0&&KK[\"]\"[']'"},
      {"80 7C 2C A0 42 43 92 93 47", true, " &H2C_djizuDJIDUbe"},  // the two halves are no shift of each other
  };
  for (const auto& [bytes, japanese, text] : cases) EXPECT_EQ(Decode(bytes, japanese), text) << bytes;
}

TEST(GameTextDecodeTest, CutsDecodedNames) {
  const std::pair<const char*, const char*> cases[] = {
      {"BB BC FF", "AB"}, {"BB BC FF BD FF", "AB"},  // cut at the first terminator
      {"BB BB BB BB BB BB BB BB BB BB BB", "AAAAAAAAAA"},  // a full field loses its last letter
      {"FF BB BC", ""}, {"BB 1B", "A"},  // "é" goes whole, not one UTF-8 byte of it
      {"BB FE", "A\\"},                  // "\n" is no terminator, nor a parameter 0xFF
      {"BB FC FF", "A\\c&HF"}, {"", ""},
  };
  for (const auto& [bytes, name] : cases) EXPECT_EQ(CutDecodedName(Decode(bytes)), name) << bytes;
}

// The three encoders side by side. Typed text crosses as UTF-8; the encoders count characters.
TEST(TextEncodeTest, EncodesTypedText) {
  enum Codec { G, M, B };  // game text, a script message, braille
  const std::tuple<Codec, std::string_view, const char*> cases[] = {
      {G, "", ""}, {G, "AB", "BB BC"}, {G, "AB\\x", "BB BC FF"}, {G, "A\\xB", "BB FF BC"},  // no terminator; FF is data
      {G, " ", "00"}, {G, "[PK]", "53"}, {G, "PK", "CA C5"}, {G, "[pk]", "00 E4 DF 00"},  // forms are case-sensitive
      {G, "[Lv]5", "34 A6"}, {G, "[L]v", "7B EA"}, {G, "[Ke]", "56"}, {G, "[K]e", "59 D9"}, {G, "K&", "C5 2D"},
      {G, "A&B", "BB 2D BC"}, {G, "[u][U][d][D][l][L]", "F7 79 F8 7A F9 7B"}, {G, "\\hfc\\hFc", "FC FC"},
      {G, "\\h0", "00 DC A1"}, {G, "\\hGG", "00 DC C1 C1"}, {G, "\\HFF", "00 C2 C0 C0"},  // "\h" and two digits only
      {G, "&H0A", "2D C2 A1 BB"}, {G, "[U", "00 CF"}, {G, "\\\\n", "00 FE"},  // no form cut short by the end
      {G, "POK\xC3\xA9 BALL", "CA C9 C5 1B 00 BC BB C6 C6"},
      // A combining accent, a character beyond the Latin range, and each byte that begins no UTF-8
      // sequence (Latin-1, cut short, overlong, a surrogate) are one unknown character.
      {G, "e\xCC\x81", "D9 00"}, {G, "\xF0\x9F\x98\x80[U]", "00 79"}, {G, "\xC3", "00"}, {G, "\xE9t\xE9", "00 E8 00"},
      {G, "\xE2\x82" "A", "00 00 BB"}, {G, "\xC0\xAF", "00 00"}, {G, "\xED\xA0\x80", "00 00 00"},
      {G, std::string_view("A\0B", 3), "BB 00 BC"},
      {G, "[PK][MN][PO][Ke][BL][OC][K]", "53 54 55 56 57 58 59"},
      {M, "", ""}, {M, "[N]", "FE"}, {M, "A[N]B", "BB FE BC"}, {M, "[N", "00 C8"}, {M, "[End]", "FF"},
      {M, "[End", "00 BF E2 D8"}, {M, "[N][End]", "FE FF"}, {M, "\\v\\h01 left", "FD 01 00 E0 D9 DA E8"},
      {M, "where\\nit", "EB DC D9 E6 D9 FE DD E8"}, {M, "A&B", "BB 2B BC"}, {M, "[PK][MN][BL][OC]", "53 54 57 58"},
      {M, "\\l\\p\\c", "FA FB FC"}, {M, "\\hFF\\h0", "FF 00 DC A1"}, {M, "\\HFF", "00 C2 C0 C0"},
      {M, "\\x", "00 EC"}, {M, "[Lv]", "00 C6 EA 00"}, {M, "[PO]", "00 CA C9 00"}, {M, "[Ke]", "00 C5 D9 00"},
      {M, "[K][U][.]", "00 C5 00 00 CF 00 00 AD 00"}, {M, "A\r\nB", "BB 00 00 BC"},  // a typed line break is no token
      {B, "", ""}, {B, "Hi", "0D 00"}, {B, "A B'", "01 00 05 04"}, {B, "HELLO[End]", "0D 09 15 15 19 FF"},
      {B, "\r\n\r\n", "FE FE"}, {B, "\r", "00"}, {B, "A\nB\n\r", "01 00 05 00 00"},  // CR LF only
      {B, "[END]", "00 09 1B 0B 00"}, {B, "\\hZZ", "00 00 39 39"}, {B, "\xC3\xA9\xFF", "00 00"},
  };
  for (const auto& [codec, text, bytes] : cases) {
    const Bytes encoded = codec == G   ? EncodeGameText(text)
                          : codec == M ? EncodeMessageText(text)
                                       : EncodeBrailleText(text);
    EXPECT_EQ(ToHex(encoded), bytes) << "GMB"[codec] << ": " << text;
  }
}

// The braille alphabet both ways: the letters, "." and the blank are the cells that read as one
// character other than "," (the cell typed "'"), and each of those characters types its cell.
TEST(Braille2TextTest, CellsReadAndTypeAsTheirLetters) {
  EXPECT_EQ(ToHex(EncodeBrailleText("ABCDEFGHIJKLMNOPQRSTUVWXYZ. ")),
            "01 05 03 0B 09 07 0F 0D 06 0E 11 15 13 1B 19 17 1F 1D 16 1E 31 35 2E 33 3B 39 2C 00");
  int readBack = 0;
  for (int cell = 0; cell < 256; ++cell) {
    const std::string text = BrailleCellText(static_cast<std::uint8_t>(cell));
    if (text.size() != 1 || text == ",") continue;
    ++readBack;
    EXPECT_EQ(ToHex(EncodeBrailleText(text)), ToHex({static_cast<std::uint8_t>(cell)})) << text;
  }
  EXPECT_EQ(readBack, 28);
  const std::tuple<std::uint8_t, const char*, const char*, bool> others[] = {  // cell, text, typed, a stop
      {0x04, ",", "00", false}, {0x02, "End", "09 00 00", true}, {0xFE, "\r\n", "FE", false},
      {0xFF, "", "", true},  // typed as "[End]"; "\h08" is typed for 0x08
      {0x08, "[&H8]", "00 00 0D 00 00", false}, {0xFD, "[&HFD]", "00 00 0D 07 0B 00", false},
  };
  for (const auto& [cell, text, encoded, stops] : others) {
    EXPECT_EQ(BrailleCellText(cell), text);
    EXPECT_EQ(ToHex(EncodeBrailleText(text)), encoded) << text;
    EXPECT_EQ(IsBrailleStop(cell), stops) << ToHex({cell});
  }
}

}  // namespace
}  // namespace tessarine
