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

// Letters, "." and the blank go to their cell and back; the cells where the two directions differ
// are the ones listed.
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
  } differences[] = {
      {0x04, ",", "00"},                        // typed as "'"
      {0x02, "End", "09 00 00"},
      {0xFE, "\r\n", "FE"},
      {0xFF, "", ""},                           // typed as "[End]"
      {0x2D, "[&H2D]", "00 00 0D 00 0B 00"},    // typed as "\h2D"
  };
  for (const auto& d : differences) {
    EXPECT_EQ(BrailleCellText(d.cell), d.text);
    EXPECT_EQ(ToHex(EncodeBrailleText(d.text)), d.encoded) << d.text;
  }
}

}  // namespace
}  // namespace tessarine
