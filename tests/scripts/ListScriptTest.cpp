#include "scripts/ListScript.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <vector>

#include "rom/Failure.h"
#include "rom/HexField.h"
#include "support/Failures.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

using test::FixtureRom;
using test::ScriptedDialogs;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// Free space of the 16 MiB fixture, where the cases put their bytes, 0x100 apart.
constexpr std::size_t kFree = 0x200000;

struct Case {
  const char* name;
  Bytes bytes;
  std::string listing;
};

std::string HexOffset(std::size_t offset) { return ToHexText(static_cast<std::int32_t>(offset)); }

std::string Repeat(std::string_view text, std::size_t times) {
  std::string out;
  for (std::size_t i = 0; i < times; ++i) out += text;
  return out;
}

using test::FailureOf;

// Puts each case's bytes 0x100 apart into free space and lists each in the given mode.
void ExpectListings(const std::vector<Case>& cases, bool braille) {
  FixtureRom fixture = FixtureRom::Sapphire();
  for (std::size_t i = 0; i < cases.size(); ++i) fixture.PutBytes(kFree + 0x100 * i, cases[i].bytes);
  RomImage rom;
  rom.Open(fixture.path());
  for (std::size_t i = 0; i < cases.size(); ++i) {
    ScriptedDialogs ui;
    EXPECT_EQ(ListScript(rom, ui, HexOffset(kFree + 0x100 * i), braille), cases[i].listing) << cases[i].name;
    EXPECT_THAT(ui.messages, IsEmpty()) << cases[i].name;
  }
}

const std::string kZeroHeader =
    "Postion.Left: 0\r\nPostion.Top: 0\r\nMsgbox.Left: 0\r\nMsgbox.Top: 0\r\n"
    "Braille.Left: 0\r\nBraille.Top: 0\r\n"
    "-------Braille-------\r\n";

TEST(ListScriptTest, CommandsListWithTheirOperandTexts) {
  Bytes givePokemon = {0x79, 0x19, 0x00, 0x05, 0x00, 0x00};  // species, level, item, then 17 zeros
  givePokemon.insert(givePokemon.end(), 17, 0x00);
  givePokemon.push_back(0x02);

  ExpectListings(
      {
          {"the 13-byte script",
           {0x6A, 0x5A, 0xB6, 0x19, 0x00, 0x05, 0x00, 0x00, 0x30, 0xA1, 0x19, 0x00, 0x02},
           "lock \r\nfaceplayer \r\nwildpkmnbattle: &H19 &H5 &H0\r\ncry  &H19\r\nend \r\n"},
          {"msgbox: two blanks, the pointer, no blank behind", {0x0F, 0x64, 0x55, 0x3C, 0x08, 0x02},
           "msgbox  &H83C5564\r\nend \r\n"},
          {"call shows the low half only", {0x04, 0x16, 0xF3, 0x15, 0x08, 0x02}, "call &HF316\r\nend \r\n"},
          {"goto shows both halves", {0x05, 0x16, 0xF3, 0x15, 0x08, 0x02}, "goto &H815F316\r\nend \r\n"},
          {"a low half below &H1000 is not padded", {0x05, 0x16, 0x00, 0x15, 0x08, 0x02},
           "goto &H81516\r\nend \r\n"},
          {"braille command", {0x78, 0x00, 0x10, 0x16, 0x08, 0x02}, "braille  &H8161000\r\nend \r\n"},
          {"three opcodes are nop", {0x00, 0x01, 0xC6, 0x02}, "nop \r\nnop \r\nnop \r\nend \r\n"},
          {"unknown bytes list alone and the scan goes on", {0x03, 0x07, 0xFF, 0x02},
           "Byte: &H3 \r\nByte: &H7 \r\nByte: &HFF \r\nend \r\n"},
          {"if passes over five bytes, 0x02 among them", {0x06, 0x02, 0x02, 0x02, 0x02, 0x02, 0x02},
           "if \r\nend \r\n"},
          {"0x02 as an operand ends nothing", {0x16, 0x02, 0x00, 0x02, 0x00, 0x02},
           "setvar  &H2 &H2\r\nend \r\n"},
          {"compare", {0x21, 0x34, 0x12, 0x00, 0x80, 0x02}, "compare  &H1234 &H8000\r\nend \r\n"},
          {"boxset, checkflag, jingle", {0x09, 0x02, 0x2B, 0x00, 0x08, 0x69, 0x02},
           "boxset &H2\r\ncheckflag &H800\r\njingle \r\nend \r\n"},
          {"cry passes over byte 1", {0x30, 0x02, 0x19, 0x01, 0x02}, "cry  &H119\r\nend \r\n"},
          {"wildpkmnbattle with an item: word, word, byte", {0xB6, 0x19, 0x00, 0x05, 0x8B, 0x01, 0x02},
           "wildpkmnbattle: &H19 &H8B05 &H1\r\nend \r\n"},
          {"givepokemon takes the first of its 17 zeros, the rest are nop", givePokemon,
           "givepokemon: &H19 &H5 &H0\r\n" + Repeat("nop \r\n", 16) + "end \r\n"},
          {"a braille record's header is commands like any others",
           {0x02, 0x02, 0x02, 0x02, 0x02, 0x02, 0x01, 0xFF}, "end \r\n"},
      },
      false);
}

TEST(ListScriptTest, BrailleRecordsListTheirHeaderAndCells) {
  const std::string header56789A =
      "Postion.Left: 5\r\nPostion.Top: 6\r\nMsgbox.Left: 7\r\nMsgbox.Top: 8\r\nBraille.Left: 9\r\n"
      "Braille.Top: A\r\n-------Braille-------\r\n";
  ExpectListings(
      {
          {"HELLO", {0x05, 0x06, 0x07, 0x08, 0x09, 0x0A, 0x0D, 0x09, 0x15, 0x15, 0x19, 0xFF},
           header56789A + "HELLO"},
          {"0x02 prints End and stops", {0x05, 0x06, 0x07, 0x08, 0x09, 0x0A, 0x01, 0x02, 0x01, 0xFF},
           header56789A + "AEnd"},
          {"escapes, line breaks and blanks", {0, 0, 0, 0, 0, 0, 0x08, 0xFE, 0x00, 0x01, 0x2D, 0xFF},
           kZeroHeader + "[&H8]\r\n A[&H2D]"},
          {"the header is never a stop, nor a command",
           {0x02, 0xFF, 0x02, 0xFF, 0x02, 0xFF, 0x01, 0xFF},
           "Postion.Left: 2\r\nPostion.Top: FF\r\nMsgbox.Left: 2\r\nMsgbox.Top: FF\r\nBraille.Left: 2\r\n"
           "Braille.Top: FF\r\n-------Braille-------\r\nA"},
      },
      true);
}

// A file of 0x100 bytes, so that the cases meet its end.
TEST(ListScriptTest, ListingsEndByTheirRulesAtTheEndOfTheFile) {
  struct EndCase {
    const char* name;
    std::size_t at;  // where the bytes go
    Bytes bytes;
    std::string offsetText;
    bool braille;
    std::string listing;
  };
  const std::vector<EndCase> cases = {
      {"the last byte, then the position equal to the length lists once more", 0xFF, {0xFF}, "&HFF", false,
       "Byte: &HFF \r\nnop \r\n"},
      {"an offset at the end still lists one command", 0, {}, "&H100", false, "nop \r\n"},
      {"an offset far behind the end too", 0, {}, "&H7FFFFFFF", false, "nop \r\n"},
      {"an end at the end", 0xFF, {0x02}, "255", false, "end \r\n"},
      {"operands past the end count as 0", 0xFF, {0x05}, "&HFF", false, "goto &H00\r\n"},
      {"half an operand past the end", 0xFD, {0x0F, 0x64, 0x55}, "&HFD", false, "msgbox  &H05564\r\n"},
      {"a command that ends at the end", 0xFB, {0x04, 0x16, 0xF3, 0x15, 0x08}, "&HFB", false,
       "call &HF316\r\nnop \r\n"},
      {"a braille record at the end: zero header, one blank cell", 0, {}, "&H100", true, kZeroHeader + " "},
      {"braille cells run six bytes past the end as blanks", 0xF8, {0, 0, 0, 0, 0, 0, 0x01, 0x01}, "&HF8",
       true,
       kZeroHeader + "AA" + std::string(7, ' ')},
  };
  for (const EndCase& c : cases) {
    FixtureRom fixture("AXPE", 0x100);
    fixture.PutBytes(c.at, c.bytes);
    const std::string path = fixture.path();
    RomImage rom;
    rom.Open(path);
    ScriptedDialogs ui;
    EXPECT_EQ(ListScript(rom, ui, c.offsetText, c.braille), c.listing) << c.name;
    EXPECT_EQ(std::filesystem::file_size(path), 0x100u) << c.name;
  }
}

TEST(ListScriptTest, CommandsListTheSameAcrossTheBlocksOfALongRead) {
  // 10 bytes whose commands straddle any block edge of a power of two, repeated over 2.5 MiB.
  const Bytes unit = {0x6A, 0x0F, 0x64, 0x55, 0x3C, 0x08, 0x30, 0xA1, 0x19, 0x00};
  const std::string unitListing = "lock \r\nmsgbox  &H83C5564\r\ncry  &H19\r\n";
  constexpr std::size_t kRepeats = 262144;
  FixtureRom fixture = FixtureRom::Ruby();
  Bytes run;
  for (std::size_t i = 0; i < kRepeats; ++i) run.insert(run.end(), unit.begin(), unit.end());
  run.push_back(0x02);
  fixture.PutBytes(0x100003, run);
  RomImage rom;
  rom.Open(fixture.path());
  ScriptedDialogs ui;

  const std::optional<std::string> listing = ListScript(rom, ui, "&H100003", false);
  ASSERT_TRUE(listing.has_value());
  EXPECT_EQ(listing->size(), unitListing.size() * kRepeats + 6);
  EXPECT_EQ(*listing, Repeat(unitListing, kRepeats) + "end \r\n");
}

TEST(ListScriptTest, OffsetTextsAreCheckedAndParsedByMode) {
  FixtureRom fixture("AXPE", 0x100);
  fixture.PutBytes(0x00, {0x6A, 0x02}).PutBytes(0x10, {0x5A, 0x02});
  fixture.PutBytes(0x20, {0, 0, 0, 0, 0, 0, 0x01, 0xFF});
  RomImage rom;
  rom.Open(fixture.path());

  for (const bool braille : {false, true}) {
    ScriptedDialogs ui;
    EXPECT_EQ(ListScript(rom, ui, "&HF8000000", braille), std::nullopt);
    ASSERT_EQ(ui.messages.size(), 1u);
    EXPECT_EQ(ui.messages[0].text, "Offset Bad");
    EXPECT_EQ(ui.messages[0].buttons, MessageButtons::Ok);
  }

  ScriptedDialogs ui;
  // Script mode reads the longest number at the start, or lists from 0.
  EXPECT_EQ(ListScript(rom, ui, "abc", false), "lock \r\nend \r\n");
  EXPECT_EQ(ListScript(rom, ui, "", false), "lock \r\nend \r\n");
  EXPECT_EQ(ListScript(rom, ui, "&H10zz", false), "faceplayer \r\nend \r\n");
  EXPECT_EQ(ListScript(rom, ui, " 16", false), "faceplayer \r\nend \r\n");
  // Braille mode takes a strict offset.
  EXPECT_EQ(ListScript(rom, ui, " &H20 ", true), kZeroHeader + "A");
  EXPECT_EQ(ListScript(rom, ui, "32", true), kZeroHeader + "A");
  EXPECT_THAT(FailureOf([&] { ListScript(rom, ui, "&H20zz", true); }),
              AllOf(HasSubstr("Offset"), HasSubstr("&H20zz"), HasSubstr("Nothing was listed.")));
  EXPECT_THAT(FailureOf([&] { ListScript(rom, ui, "", true); }), HasSubstr("Nothing was listed."));
  // The refusal compares the text exactly; the same number written otherwise lies before
  // the start of the ROM.
  EXPECT_THAT(FailureOf([&] { ListScript(rom, ui, "&hF8000000", false); }), HasSubstr("Nothing was listed."));
  EXPECT_THAT(FailureOf([&] { ListScript(rom, ui, "-1", false); }), HasSubstr("Nothing was listed."));
  EXPECT_THAT(FailureOf([&] { ListScript(rom, ui, "-1", true); }), HasSubstr("Nothing was listed."));
  EXPECT_THAT(ui.messages, IsEmpty());

  RomImage closed;
  EXPECT_THAT(FailureOf([&] { ListScript(closed, ui, "&H0", false); }), HasSubstr("Open a ROM first"));
}

TEST(ListScriptTest, ThePressReplacesText4OnlyWithAWholeListing) {
  FixtureRom fixture("AXPE", 0x100);
  fixture.PutBytes(0x40, {0x6A, 0x02});
  RomImage rom;
  rom.Open(fixture.path());
  ScriptedDialogs ui;
  Form1 form;
  const auto pressWith = [&](std::string offset, bool braille, const ListingProgress& progress = {}) {
    form.Text3.text = std::move(offset);
    form.Check1.checked = braille;
    form.Text4.text = "what was there";
    return ListIntoText4(form, rom, ui, progress);
  };

  EXPECT_TRUE(pressWith("&H40", false));
  EXPECT_EQ(form.Text4.text, "lock \r\nend \r\n");

  EXPECT_FALSE(pressWith("&HF8000000", false));
  EXPECT_EQ(form.Text4.text, "what was there");
  EXPECT_THAT(ui.MessageTexts(), ElementsAre("Offset Bad"));

  EXPECT_THAT(FailureOf([&] { pressWith("&H4O", true); }), HasSubstr("&H4O"));
  EXPECT_EQ(form.Text4.text, "what was there");

  EXPECT_FALSE(pressWith("&H40", false, [](double) { return false; }));
  EXPECT_EQ(form.Text4.text, "what was there");
}

TEST(ListScriptTest, ProgressRisesToTheEndAndACancelStopsTheListing) {
  FixtureRom fixture("BPRE", 0x80000);  // 512 KiB of 0xFF: a listing of as many lines
  RomImage rom;
  rom.Open(fixture.path());
  ScriptedDialogs ui;

  std::vector<double> told;
  const std::optional<std::string> listing = ListScript(rom, ui, "&H100", false, [&](double done) {
    told.push_back(done);
    return true;
  });
  ASSERT_TRUE(listing.has_value());
  EXPECT_EQ(listing->size(), (0x80000 - 0x100) * std::string_view("Byte: &HFF \r\n").size() + 6);
  ASSERT_GE(told.size(), 10u);  // told along the way, not only at the end
  EXPECT_EQ(told.front(), 0.0);
  EXPECT_EQ(told.back(), 1.0);
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));

  int calls = 0;
  fixture.PutBytes(0x100, Bytes(0x80000 - 0x100, 0x01));  // a braille text of "A" to the end
  rom.Open(fixture.path());
  EXPECT_EQ(ListScript(rom, ui, "&H100", true, [&](double) { return ++calls < 3; }), std::nullopt);
  EXPECT_EQ(calls, 3);  // not asked again once cancelled
  calls = 0;
  EXPECT_EQ(ListScript(rom, ui, "&H100", false, [&](double) { return ++calls < 3; }), std::nullopt);
  EXPECT_EQ(calls, 3);
}

}  // namespace
}  // namespace tessarine
