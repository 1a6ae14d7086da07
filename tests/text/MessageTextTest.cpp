#include "text/Table2Text.h"

#include <gtest/gtest.h>

#include "HexBytes.h"
#include "text/mdlTextSapp.h"

namespace tessarine {
namespace {

using test::ToHex;

TEST(MessageTextTest, EncodesMessages) {
  const struct {
    std::string_view text;
    const char* bytes;
  } cases[] = {
      {"", ""},
      {"[N]", "FE"},
      {"A[N]B", "BB FE BC"},
      {"[N", "00 C8"},
      {"[End]", "FF"},
      {"[End", "00 BF E2 D8"},
      {"[N][End]", "FE FF"},
      {"\\v\\h01 left", "FD 01 00 E0 D9 DA E8"},
      {"where\\nit", "EB DC D9 E6 D9 FE DD E8"},
      {"A&B", "BB 2B BC"},                      // "&" is 0x2B in a message
      {"[PK][MN][BL][OC]", "53 54 57 58"},
      {"\\l\\p\\c", "FA FB FC"},
      {"\\hFF\\h0", "FF 00 DC A1"},
      {"\\HFF", "00 C2 C0 C0"},
      // Tokens of game text that a message does not know.
      {"\\x", "00 EC"},
      {"[Lv]", "00 C6 EA 00"},
      {"[PO]", "00 CA C9 00"},
      {"[Ke]", "00 C5 D9 00"},
      {"[K][U][.]", "00 C5 00 00 CF 00 00 AD 00"},
      {"A\r\nB", "BB 00 00 BC"},                // a typed line break is no token; "[N]" or "\n" is
      {"POK\xC3\xA9", "CA C9 C5 1B"},
      {"\xC3[N]", "00 FE"},
  };
  for (const auto& c : cases) EXPECT_EQ(ToHex(EncodeMessageText(c.text)), c.bytes) << c.text;
  // The same text, two codecs: only the byte for "&" tells them apart.
  EXPECT_EQ(ToHex(EncodeGameText("A&B")), "BB 2D BC");
}

}  // namespace
}  // namespace tessarine
