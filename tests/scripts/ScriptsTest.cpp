#include "scripts/ListScript.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <functional>

#include "rom/HexField.h"
#include "scripts/Form5.h"
#include "scripts/WildBattleForms.h"
#include "support/ByteOracle.h"
#include "support/Failures.h"
#include "support/FixtureRom.h"
#include "support/MainSession.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::ByteRange;
using test::FailureOf;
using test::FixtureRom;
using test::ScriptedDialogs;
using ::testing::ElementsAre;
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
      {"0F 64 55 3C 08 02", "msgbox  &H83C5564\r\nend \r\n"},  // two blanks, the pointer, no blank behind
      {"04 16 F3 15 08 02", "call &HF316\r\nend \r\n"},        // the low half only
      {"05 16 00 15 08 02", "goto &H81516\r\nend \r\n"},       // a low half below &H1000 is not padded
      {"78 00 10 16 08 02", "braille  &H8161000\r\nend \r\n"}, {"00 01 C6 02", "nop \r\nnop \r\nnop \r\nend \r\n"},
      {"03 07 FF 02", "Byte: &H3 \r\nByte: &H7 \r\nByte: &HFF \r\nend \r\n"},  // each alone, and the scan goes on
      {"06 02 02 02 02 02 5A 02", "if \r\nfaceplayer \r\nend \r\n"},            // 0x02 as an operand ends nothing
      {"09 02 2B 00 08 69 02", "boxset &H2\r\ncheckflag &H800\r\njingle \r\nend \r\n"},
      {"B6 19 00 05 8B 01 02", "wildpkmnbattle: &H19 &H8B05 &H1\r\nend \r\n"},  // word, word, byte
      {"79 19 00 05 00 00 " + Repeat("00 ", 17) + "02",  // givepokemon takes the first of its 17 zeros
       "givepokemon: &H19 &H5 &H0\r\n" + Repeat("nop \r\n", 16) + "end \r\n"},
      {"02 02 02 02 02 02 01 FF", "end \r\n"},  // a braille record's header is commands like any others
      {"05 06 07 08 09 0A 0D 09 15 15 19 FF", header56789A + "HELLO", true},
      {"05 06 07 08 09 0A 01 02 01 FF", header56789A + "AEnd", true},  // 0x02 prints End and stops
      {"00 00 00 00 00 00 08 FE 00 01 2D FF", kZeroHeader + "[&H8]\r\n A[&H2D]", true},
      {"02 FF 02 FF 02 FF 01 FF", Header({"2", "FF", "2", "FF", "2", "FF"}) + "A", true},  // no stop in the header
      // Script mode reads the longest number at the start of the text, or lists from 0; braille mode a strict one.
      {"6A 02", "lock \r\nend \r\n", false, 0, "abc"}, {"5A 02", "faceplayer \r\nend \r\n", false, 0x10, "&H10zz"},
      {"00 00 00 00 00 00 01 FF", kZeroHeader + "A", true, 0x20, " &H20 "},
      // At the end of the file: a command or cell is listed while it starts at or before the end.
      {"FF", "Byte: &HFF \r\nnop \r\n", false, 0xFF}, {"", "nop \r\n", false, 0, "&H7FFFFFFF"},
      {"05", "goto &H00\r\n", false, 0xFF},  // bytes past the end are 0
      {"0F 64 55", "msgbox  &H05564\r\n", false, 0xFD},
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
      // The refusal compares the text exactly; the same number written otherwise lies before the start.
      {"&hF8000000", false, "Nothing was listed."},
      {"-1", false,
       "The offset &HFFFFFFFF lies before the start of the ROM, so nothing was read or written there. "
       "Nothing was listed."},
  };
  for (const auto& [text, braille, failure] : rows) {
    EXPECT_THAT(FailureOf([&] { EXPECT_FALSE(press(text, braille)); }), HasSubstr(failure)) << text;
    EXPECT_EQ(form.Text4.text, "what was there");
    EXPECT_EQ(ui.MessageTexts(), *failure ? std::vector<std::string>{} : std::vector<std::string>{"Offset Bad"});
  }
}

// 10 bytes whose commands straddle any block edge of a power of two, repeated over 2.5 MiB after two
// nops (so that the first edge of a MiB cuts a msgbox): a listing told along the way, from 0 to 1.
// (The listing dialog's test shows a cancel stop it.)
TEST(ListScriptTest, ALongListingIsTheSameAcrossBlocks) {
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
  EXPECT_EQ(told.back(), 1.0);
  EXPECT_TRUE(std::is_sorted(told.begin(), told.end()));
}

constexpr std::size_t kS = 0x700000;  // script offset of the cases
constexpr std::size_t kT = 0x7A0000;  // text offset

// A ROM whose free space at kS and kT holds 0x11, so that every byte a builder writes
// there shows as a change, and forms filled in as a person would.
struct Builder : test::MainSession {
  test::FixtureRom fixture = test::FixtureRom::Sapphire();
  Form3 form3;
  Form4 form4;
  Form5 form5;

  Builder() {
    fixture.PutBytes(kS, Bytes(0x100, 0x11)).PutBytes(kT, Bytes(0x10, 0x11));
    Open(fixture.path());
    const auto fill = [this](auto& form, int species, int item) {
      form.filled.Fill(this->form);
      form.Combo1.rows.resize(412);
      form.Combo2.rows.resize(347);
      SetCombo1Selection(form, species);
      SetCombo2Selection(form, item);
      SetCombo3Selection(form, 5);
      form.Text3.text = "&H700000";
    };
    fill(form3, 0x19, 0);
    fill(form4, 0x19, 0x8B);
    fill(form5, 0x176, 0);
    form4.Text12.text = form5.Text12.text = "&H7A0000";
  }
  ~Builder() { rom.Close(); }
  void Insert(Form3& f) { InsertWildBattle(f, form, rom, dialogs); }
  void Insert(Form4& f) { InsertWildBattle(f, form, rom, dialogs); }
  void Insert(Form5& f) { InsertGivePokemon(f, form, rom, dialogs); }
  std::string At(const ByteOracle& oracle, std::size_t at, std::size_t count) const {
    const Bytes now = oracle.Now();
    return test::ToHex(Bytes(now.begin() + static_cast<long>(at), now.begin() + static_cast<long>(at + count)));
  }
  std::string List(std::size_t at) {
    return ListScript(rom, dialogs, ToHexText(static_cast<std::int32_t>(at)), false).value_or("");
  }
};

TEST(ScriptBuildersTest, AWildBattleIsThirteenBytesAndListsAsFiveLines) {
  Builder b;
  const ByteOracle oracle(b.fixture.path());
  b.Insert(b.form3);
  EXPECT_EQ(oracle.Changes(), (std::vector<ByteRange>{{kS, 13}}));
  EXPECT_EQ(b.At(oracle, kS, 13), "6A 5A B6 19 00 05 00 00 30 A1 19 00 02");
  EXPECT_THAT(b.dialogs.MessageTexts(), ElementsAre("Inserted"));
  EXPECT_THAT(b.dialogs.windowEvents, ElementsAre(ScriptedDialogs::WindowEvent{WindowName::Form3, false}));
  EXPECT_EQ(b.List(kS), "lock \r\nfaceplayer \r\nwildpkmnbattle: &H19 &H5 &H0\r\ncry  &H19\r\nend \r\n");
}

TEST(ScriptBuildersTest, AWildBattleWithAMessageWritesTheScriptThenAsksThenWritesTheText) {
  for (const std::optional<std::string>& answer : {std::optional<std::string>("AB"), std::optional<std::string>()}) {
    Builder b;
    b.form4.crytxt.text = "&HFFFF";  // typed over the list's number
    b.dialogs.inputAnswers = {answer};
    const ByteOracle oracle(b.fixture.path());
    b.Insert(b.form4);
    EXPECT_EQ(b.At(oracle, kS, 20), "6A 5A 0F 00 00 7A 08 09 06 B6 19 00 05 8B 00 30 A1 FF FF 02");
    EXPECT_EQ(b.At(oracle, kT, 5), answer ? "BB BC FF 00 11" : "FF 00 11 11 11");  // closed box: FF 00 only
    EXPECT_EQ(oracle.Changes(), (std::vector<ByteRange>{{kS, 20}, {kT, answer ? 4u : 2u}}));
    ASSERT_EQ(b.dialogs.inputs.size(), 1u);
    EXPECT_EQ(b.dialogs.inputs[0].title, "Wild Pokemon Message");
    EXPECT_EQ(b.dialogs.inputs[0].prompt, "Type the Message you would like your Event to have. [N] = Next Line");
    EXPECT_THAT(b.dialogs.MessageTexts(), ElementsAre("Inserted"));
    EXPECT_EQ(b.List(kS), "lock \r\nfaceplayer \r\nmsgbox  &H87A0\r\nboxset &H6\r\nwildpkmnbattle: &H19 &H8B05 &H0\r\n"
                          "cry  &HFFFF\r\nend \r\n");
  }
}

TEST(ScriptBuildersTest, AGivePokemonBlockOverlapsAsLaidOutAndEachPointerHoldsItsPiece) {
  Builder b;
  b.dialogs.inputAnswers = {"AB"};
  const ByteOracle oracle(b.fixture.path());
  b.Insert(b.form5);
  // The body's last two bytes are the declined branch's first two; the gaps keep their bytes;
  // the declined text shows ten bytes and then the no-room text.
  EXPECT_EQ(oracle.Changes(), (std::vector<ByteRange>{{kS, 83}, {kS + 93, 9}, {kS + 103, 48}, {kT, 4}}));
  EXPECT_EQ(b.At(oracle, kS, 8), "69 0F 00 00 7A 08 09 05");
  EXPECT_EQ(b.At(oracle, kS + 15, 4), "4A 00 70 08");
  EXPECT_EQ(b.At(oracle, kS + 27, 4), "5D 00 70 08");
  EXPECT_EQ(b.At(oracle, kS + 46, 6), "79 76 01 05 00 00");
  EXPECT_EQ(b.At(oracle, kS + 69, 14), "7D 76 01 01 0F 0F 67 00 70 08 09 04 6B 02");
  EXPECT_EQ(b.At(oracle, kS + 93, 9), "0F 71 00 70 08 09 04 6B 02");
  EXPECT_EQ(b.At(oracle, kS + 103, 15), "FD 01 00 E0 D9 DA E8 00 E8 DC CE DC D9 E6 D9");
  EXPECT_EQ(b.At(oracle, kS + 149, 3), "C8 AD 11");  // "N." and no end byte of its own
  EXPECT_EQ(b.At(oracle, kT, 4), "BB BC FF 00");
  EXPECT_THAT(b.dialogs.messages, IsEmpty());
  EXPECT_THAT(b.dialogs.windowEvents, ElementsAre(ScriptedDialogs::WindowEvent{WindowName::Form5, false}));
  ASSERT_EQ(b.dialogs.inputs.size(), 1u);
  EXPECT_EQ(b.dialogs.inputs[0].title, "Give Pokemon Message");
  EXPECT_THAT(b.dialogs.inputs[0].prompt, HasSubstr("Line| Example: \\v\\h01 checked the POK\xC3\xA9 BALL.\\pIt"));

  const std::string branch = "boxset &H4\r\nByte: &H6B \r\nend \r\n";
  EXPECT_EQ(b.List(kS), "jingle \r\nmsgbox  &H87A0\r\nboxset &H5\r\ncompare  &H800D &H0\r\nif \r\nByte: &H43 \r\n"
                        "compare  &H800D &H6\r\nif \r\nByte: &H19 \r\ncall &HD80\r\nend \r\n");
  EXPECT_EQ(b.List(kS + 74), "msgbox  &H87067\r\n" + branch);  // where the first "if" leads
  EXPECT_EQ(b.List(kS + 93), "msgbox  &H87071\r\n" + branch);  // where the second leads
}

// Each case an insert that must write nothing: what is wrong, which form, what is said.
TEST(ScriptBuildersTest, ABadFieldOrAPlaceOutsideTheFileWritesNothingAndAsksNothing) {
  const struct {
    const char* field;
    std::function<void(Builder&)> set;
    int form;
    const char* says;
  } refusals[] = {
      {"species before offset", [](Builder& b) { b.form3.crytxt.text = "x"; b.form3.Text3.text = "?"; }, 3,
       "PKMN Cry: \"x\""},
      {"initial offset", [](Builder& b) { b.form3.Text3.text = "&H000000"; }, 3,
       "Offset: \"&H000000\" lies inside the cartridge header, &H0 to &HBF,"},
      {"last header byte", [](Builder& b) { b.form5.Text3.text = "&HBF"; }, 5,
       "Offset To insert Script: \"&HBF\" lies inside"},
      {"negative", [](Builder& b) { b.form3.Text3.text = "&HF8000000"; }, 3, "lies before the start of the ROM"},
      {"text before script", [](Builder& b) { b.form5.Text12.text = "&H0"; b.form5.pkmntxt.text = "?"; }, 5,
       "Offset to insert new text: \"&H0\""},
      {"script past the end", [](Builder& b) { b.form3.Text3.text = "&HFFFFF4"; }, 3,
       "the script, 13 bytes from &HFFFFF4, would run past the end of the ROM, which is &H1000000 bytes long"},
      {"block past the end", [](Builder& b) { b.form5.Text3.text = "&HFFFF6A"; }, 5,
       "the no-room text, 38 bytes from &HFFFFDB, would run past the end"},
      {"window of the ROM opened before", [](Builder& b) { b.Open(b.fixture.path()); }, 5,
       "This window was filled before the last Open ROM"},
      {"no room for FF 00", [](Builder& b) { b.form4.Text12.text = "&HFFFFFF"; }, 4,
       "Text Offset: \"&HFFFFFF\": the message, 2 bytes"},
      {"question past the end", [](Builder& b) { b.form5.Text12.text = "&HFFFFFF"; }, 5, "the question, 2 bytes"},
  };
  for (const auto& r : refusals) {
    Builder b;
    r.set(b);
    const ByteOracle oracle(b.fixture.path());
    const std::string said = FailureOf([&] {
      if (r.form == 3) b.Insert(b.form3);
      if (r.form == 4) b.Insert(b.form4);
      if (r.form == 5) b.Insert(b.form5);
    });
    EXPECT_THAT(said, HasSubstr(r.says)) << r.field;
    EXPECT_THAT(said, HasSubstr("Nothing was written.")) << r.field;
    EXPECT_THAT(oracle.Changes(), IsEmpty()) << r.field;
    EXPECT_THAT(b.dialogs.inputs, IsEmpty()) << r.field;
    EXPECT_THAT(b.dialogs.windowEvents, IsEmpty()) << r.field;
  }
  Builder b;  // the first offset behind the header is free to use
  b.form3.Text3.text = "&HC0";
  b.Insert(b.form3);
  EXPECT_EQ(b.dialogs.windowEvents.size(), 1u);
}

TEST(ScriptBuildersTest, AMessageThatDoesNotFitIsRefusedAfterTheScriptAndSaysSo) {
  Builder b;
  b.form4.Text12.text = "&HFFFFFD";  // room for FF 00, not for "AB" and FF 00
  b.dialogs.inputAnswers = {"AB"};
  const ByteOracle oracle(b.fixture.path());
  EXPECT_EQ(FailureOf([&] { b.Insert(b.form4); }),
            "Text Offset: \"&HFFFFFD\": the message, 4 bytes from &HFFFFFD, would run past the end of the ROM, "
            "which is &H1000000 bytes long. Written before it stopped: 20 bytes at &H700000 (the script). Not "
            "written: 4 bytes at &HFFFFFD (the message).");
  EXPECT_EQ(oracle.Changes(), (std::vector<ByteRange>{{kS, 20}}));
  EXPECT_THAT(b.dialogs.windowEvents, IsEmpty());  // the form stays open
}

}  // namespace
}  // namespace tessarine
