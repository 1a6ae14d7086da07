#include <gtest/gtest.h>

#include "text/Braille2Text.h"

namespace tessarine {
namespace {

TEST(BrailleCellsTest, EachCellReadsBackAsItsText) {
  const std::pair<std::uint8_t, const char*> cells[] = {
      {0x00, " "},   {0x01, "A"},      {0x04, ","},      {0x0D, "H"},      {0x2C, "."},
      {0x3B, "Y"},   {0x02, "End"},    {0xFE, "\r\n"},   {0xFF, ""},       {0x08, "[&H8]"},
      {0x2D, "[&H2D]"}, {0x40, "[&H40]"}, {0xFD, "[&HFD]"},
  };
  for (const auto& [cell, text] : cells) EXPECT_EQ(BrailleCellText(cell), text) << int{cell};
  EXPECT_TRUE(IsBrailleStop(0x02));
  EXPECT_TRUE(IsBrailleStop(0xFF));
  EXPECT_FALSE(IsBrailleStop(0xFE));
}

}  // namespace
}  // namespace tessarine
