#include "scripts/ListScript.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>

#include "rom/HexField.h"
#include "support/Failures.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

using test::FailureOf;
using test::FixtureRom;
using test::ScriptedDialogs;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::string Repeat(std::string_view text, std::size_t times) {
  std::string out;
  for (std::size_t i = 0; i < times; ++i) out += text;
  return out;
}

// The six header lines of a braille record, with these values, and the rule below them.
std::string Header(std::array<const char*, 6> values) {
  const char* labels[] = {"Postion.Left: ", "Postion.Top: ", "Msgbox.Left: ", "Msgbox.Top: ", "Braille.Left: ",
                          "Braille.Top: "};
  std::string text;
  for (std::size_t i = 0; i < values.size(); ++i) text += labels[i] + std::string(values[i]) + "\r\n";
  return text + "-------Braille-------\r\n";
}
const std::string kZeroHeader = Header({"0", "0", "0", "0", "0", "0"});

// Each case in a file of its own of 0x100 bytes of 0xFF, so that the last ones meet its end.
TEST(ListScriptTest, ListsEachCommandAndBrailleCellByItsRules) {
  const std::string header56789A = Header({"5", "6", "7", "8", "9", "A"});
  struct Case {
    std::string bytes;
    std::string listing;
    bool braille = false;
    std::size_t at = 0;            // where the bytes go
    const char* offset = nullptr;  // the text typed; else `at` in hexadecimal
  };
  const Case cases[] = {
      {"6A 5A B6 19 00 05 00 00 30 A1 19 00 02",  // the wild battle script
       "lock \r\nfaceplayer \r\nwildpkmnbattle: &H19 &H5 &H0\r\ncry  &H19\r\nend \r\n"},
      {"0F 64 55 3C 08 02", "msgbox  &H83C5564\r\nend \r\n"},  // two blanks, the pointer, no blank behind
      {"04 16 F3 15 08 02", "call &HF316\r\nend \r\n"},        // the low half only
      {"05 16 F3 15 08 02", "goto &H815F316\r\nend \r\n"},
      {"05 16 00 15 08 02", "goto &H81516\r\nend \r\n"},  // a low half below &H1000 is not padded
      {"78 00 10 16 08 02", "braille  &H8161000\r\nend \r\n"}, {"00 01 C6 02", "nop \r\nnop \r\nnop \r\nend \r\n"},
      {"03 07 FF 02", "Byte: &H3 \r\nByte: &H7 \r\nByte: &HFF \r\nend \r\n"},  // each alone, and the scan goes on
      {"06 02 02 02 02 02 02", "if \r\nend \r\n"},                // 0x02 as an operand ends nothing
      {"06 02 02 02 02 02 5A 02", "if \r\nfaceplayer \r\nend \r\n"},  // the command after all five
      {"16 02 00 02 00 02", "setvar  &H2 &H2\r\nend \r\n"}, {"21 34 12 00 80 02", "compare  &H1234 &H8000\r\nend \r\n"},
      {"09 02 2B 00 08 69 02", "boxset &H2\r\ncheckflag &H800\r\njingle \r\nend \r\n"},
      {"30 02 19 01 02", "cry  &H119\r\nend \r\n"},                              // byte 1 is passed over
      {"B6 19 00 05 8B 01 02", "wildpkmnbattle: &H19 &H8B05 &H1\r\nend \r\n"},  // word, word, byte
      {"79 19 00 05 00 00 " + Repeat("00 ", 17) + "02",  // givepokemon takes the first of its 17 zeros
       "givepokemon: &H19 &H5 &H0\r\n" + Repeat("nop \r\n", 16) + "end \r\n"},
      {"02 02 02 02 02 02 01 FF", "end \r\n"},  // a braille record's header is commands like any others
      {"05 06 07 08 09 0A 0D 09 15 15 19 FF", header56789A + "HELLO", true},
      {"05 06 07 08 09 0A 01 02 01 FF", header56789A + "AEnd", true},  // 0x02 prints End and stops
      {"00 00 00 00 00 00 08 FE 00 01 2D FF", kZeroHeader + "[&H8]\r\n A[&H2D]", true},
      {"02 FF 02 FF 02 FF 01 FF", Header({"2", "FF", "2", "FF", "2", "FF"}) + "A", true},  // no stop in the header
      // Script mode reads the longest number at the start of the text, or lists from 0; braille mode a strict one.
      {"6A 02", "lock \r\nend \r\n", false, 0, "abc"}, {"6A 02", "lock \r\nend \r\n", false, 0, ""},
      {"5A 02", "faceplayer \r\nend \r\n", false, 0x10, "&H10zz"},
      {"5A 02", "faceplayer \r\nend \r\n", false, 0x10, " 16"},
      {"00 00 00 00 00 00 01 FF", kZeroHeader + "A", true, 0x20, " &H20 "},
      {"00 00 00 00 00 00 01 FF", kZeroHeader + "A", true, 0x20, "32"},
      // At the end of the file: a command or cell is listed while it starts at or before the end.
      {"FF", "Byte: &HFF \r\nnop \r\n", false, 0xFF},
      {"", "nop \r\n", false, 0, "&H100"}, {"", "nop \r\n", false, 0, "&H7FFFFFFF"},
      {"02", "end \r\n", false, 0xFF, "255"}, {"05", "goto &H00\r\n", false, 0xFF},  // bytes past the end are 0
      {"0F 64 55", "msgbox  &H05564\r\n", false, 0xFD}, {"04 16 F3 15 08", "call &HF316\r\nnop \r\n", false, 0xFB},
      {"", kZeroHeader + " ", true, 0, "&H100"},
      {"00 00 00 00 00 00 01 01", kZeroHeader + "AA" + std::string(7, ' '), true, 0xF8},
  };
  for (const Case& c : cases) {
    FixtureRom fixture("AXPE", 0x100);
    fixture.PutBytes(c.at, test::FromHex(c.bytes));
    RomImage rom;
    rom.Open(fixture.path());
    ScriptedDialogs ui;
    const std::string offset = c.offset ? c.offset : ToHexText(static_cast<std::int32_t>(c.at));
    EXPECT_EQ(ListScript(rom, ui, offset, c.braille), c.listing) << c.bytes << " from " << offset;
    EXPECT_THAT(ui.messages, IsEmpty()) << c.bytes;
    EXPECT_EQ(std::filesystem::file_size(fixture.path()), 0x100u) << c.bytes;
  }
}

// The press of Load: Text4 takes a whole listing, and keeps its text when the offset is refused.
TEST(ListScriptTest, ThePressReplacesText4OnlyWithAWholeListing) {
  FixtureRom fixture("AXPE", 0x100);
  fixture.PutBytes(0x40, {0x6A, 0x02});
  RomImage rom;
  rom.Open(fixture.path());
  Form1 form;
  ScriptedDialogs ui;
  const auto press = [&](const char* offset, bool braille) {
    form.Text3.text = offset;
    form.Check1.checked = braille;
    form.Text4.text = "what was there";
    ui.messages.clear();
    return ListIntoText4(form, rom, ui);
  };
  EXPECT_TRUE(press("&H40", false));
  EXPECT_EQ(form.Text4.text, "lock \r\nend \r\n");
  const struct {
    const char* text;
    bool braille;
    const char* failure;  // "": the person is told "Offset Bad"
  } rows[] = {
      {"&HF8000000", false, ""}, {"&HF8000000", true, ""},
      {"&H20zz", true,
       "Offset: \"&H20zz\" is not an offset. Type &H and up to 8 hexadecimal digits, or a whole number from "
       "-2147483648 to 2147483647. Nothing was listed."},
      {"", true, "Nothing was listed."},
      // The refusal compares the text exactly; the same number written otherwise lies before the start.
      {"&hF8000000", false, "Nothing was listed."},
      {"-1", false,
       "The offset &HFFFFFFFF lies before the start of the ROM, so nothing was read or written there. "
       "Nothing was listed."},
      {"-1", true, "Nothing was listed."},
  };
  for (const auto& [text, braille, failure] : rows) {
    EXPECT_THAT(FailureOf([&] { EXPECT_FALSE(press(text, braille)); }), HasSubstr(failure)) << text;
    EXPECT_EQ(form.Text4.text, "what was there");
    EXPECT_EQ(ui.MessageTexts(), *failure ? std::vector<std::string>{} : std::vector<std::string>{"Offset Bad"});
    if (!*failure) {
      EXPECT_EQ(ui.messages.at(0).buttons, MessageButtons::Ok);
    }
  }
  RomImage closed;
  EXPECT_THAT(FailureOf([&] { ListScript(closed, ui, "&H0", false); }), HasSubstr("Open a ROM first"));
}

// 10 bytes whose commands straddle any block edge of a power of two, repeated over 2.5 MiB after two
// nops (so that the first edge of a MiB cuts a msgbox): a listing told along the way, from 0 to 1,
// that a cancel stops in either mode.
TEST(ListScriptTest, ALongListingIsTheSameAcrossBlocksAndACancelStopsIt) {
  const std::string unitListing = "lock \r\nmsgbox  &H83C5564\r\ncry  &H19\r\n";
  constexpr std::size_t kRepeats = 262144;
  FixtureRom fixture = FixtureRom::Ruby();
  fixture.PutBytes(0x100003, test::FromHex("00 00 " + Repeat("6A 0F 64 55 3C 08 30 A1 19 00 ", kRepeats) + "02"));
  RomImage rom;
  rom.Open(fixture.path());
  ScriptedDialogs ui;
  std::vector<double> told;
  const std::optional<std::string> listing = ListScript(rom, ui, "&H100003", false, [&](double done) {
    told.push_back(done);
    return true;
  });
  ASSERT_TRUE(listing.has_value());
  ASSERT_EQ(listing->size(), 12 + unitListing.size() * kRepeats + 6);  // and no diff of megabytes
  EXPECT_EQ(*listing, "nop \r\nnop \r\n" + Repeat(unitListing, kRepeats) + "end \r\n");
  ASSERT_GE(told.size(), 10u);  // told along the way, not only at the end
  EXPECT_EQ(told.front(), 0.0);
  EXPECT_EQ(told.back(), 1.0);
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
  for (const bool braille : {true, false}) {
    Form1 form;
    form.Text3.text = "&H100003";
    form.Check1.checked = braille;
    int calls = 0;
    EXPECT_FALSE(ListIntoText4(form, rom, ui, [&](double) { return ++calls < 3; }));
    EXPECT_EQ(calls, 3);  // not asked again once cancelled
    EXPECT_EQ(form.Text4.text, "");
  }
}

}  // namespace
}  // namespace tessarine
