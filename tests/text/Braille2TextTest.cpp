#include "text/Braille2Text.h"

#include <gtest/gtest.h>

#include "HexBytes.h"

namespace tessarine {
namespace {

using test::ToHex;

TEST(Braille2TextTest, EncodesBrailleText) {
  const struct {
    std::string_view text;
    const char* bytes;
  } cases[] = {
      {"", ""},
      {"HI", "0D 06"},
      {"Hi", "0D 00"},                          // no lower case in braille
      {"A.B", "01 2C 05"},
      {"A B'", "01 00 05 04"},
      {"HELLO[End]", "0D 09 15 15 19 FF"},
      {"[END]", "00 09 1B 0B 00"},
      {"End", "09 00 00"},
      {",", "00"},
      {"\r\n", "FE"},
      {"\r\n\r\n", "FE FE"},
      {"\r", "00"},
      {"A\nB\n\r", "01 00 05 00 00"},           // only CR LF together is a line break
      {"\\h2E\\h02", "2E 02"},
      {"\\hZZ", "00 00 39 39"},
      {"\\h0", "00 00 00"},
      {"\xC3\xA9\xFF", "00 00"},
  };
  for (const auto& c : cases) EXPECT_EQ(ToHex(EncodeBrailleText(c.text)), c.bytes) << c.text;
}

// Each letter, and ".", is the cell of its dots in standard English braille.
TEST(Braille2TextTest, LettersAreTheirBrailleDots) {
  const std::string_view dots[] = {
      "1",   "12", "14",  "145",  "15",   "124",  "1245",  "125",  "24",   // A to I
      "245", "13", "123", "134",  "1345", "135",  "1234",  "12345", "1235", // J to R
      "234", "2345", "136", "1236", "2456", "1346", "13456", "1356", "256", // S to Z, "."
  };
  constexpr std::uint8_t kWeight[] = {0, 0x01, 0x04, 0x10, 0x02, 0x08, 0x20};  // by dot number
  Bytes cells;
  for (const std::string_view cell : dots) {
    cells.push_back(0);
    for (const char dot : cell) cells.back() |= kWeight[dot - '0'];
  }
  EXPECT_EQ(ToHex(EncodeBrailleText("ABCDEFGHIJKLMNOPQRSTUVWXYZ.")), ToHex(cells));
}

// Letters, "." and the blank go to their cell and back; the other cells read back as listed.
TEST(Braille2TextTest, CellsReadBackAndEncodeAgain) {
  int letters = 0;
  for (int cell = 0; cell < 256; ++cell) {
    const std::string text = BrailleCellText(static_cast<std::uint8_t>(cell));
    if (text.size() != 1 || text == ",") continue;
    ++letters;
    EXPECT_EQ(ToHex(EncodeBrailleText(text)), ToHex({static_cast<std::uint8_t>(cell)})) << text;
  }
  EXPECT_EQ(letters, 28);

  const struct {
    std::uint8_t cell;
    const char* text;
    const char* encoded;
  } others[] = {
      {0x04, ",", "00"},                        // typed as "'"
      {0x02, "End", "09 00 00"},                // and the reading stops
      {0xFE, "\r\n", "FE"},
      {0xFF, "", ""},                           // typed as "[End]"; the reading stops
      {0x08, "[&H8]", "00 00 0D 00 00"},        // typed as "\h08"
      {0xFD, "[&HFD]", "00 00 0D 07 0B 00"},
  };
  for (const auto& other : others) {
    EXPECT_EQ(BrailleCellText(other.cell), other.text);
    EXPECT_EQ(ToHex(EncodeBrailleText(other.text)), other.encoded) << other.text;
  }
  EXPECT_TRUE(IsBrailleStop(0x02));
  EXPECT_TRUE(IsBrailleStop(0xFF));
  EXPECT_FALSE(IsBrailleStop(0xFE));
}

}  // namespace
}  // namespace tessarine
