#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "rom/HexField.h"
#include "scripts/Form5.h"
#include "scripts/ListScript.h"
#include "scripts/WildBattleForms.h"
#include "support/ByteOracle.h"
#include "support/Failures.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"
#include "support/FixtureRom.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::ByteRange;
using test::ScriptedDialogs;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

constexpr std::size_t kS = 0x700000;  // script offset of the cases
constexpr std::size_t kT = 0x7A0000;  // text offset

// A ROM whose free space at kS and kT holds 0x11, so that every byte a builder writes
// there shows as a change, and forms filled in as a person would.
struct Builder {
  test::FixtureRom fixture = test::FixtureRom::Sapphire();
  RomImage rom;
  ScriptedDialogs dialogs;
  Form3 form3;
  Form4 form4;
  Form5 form5;

  Builder() {
    fixture.PutBytes(kS, Bytes(0x100, 0x11)).PutBytes(kT, Bytes(0x10, 0x11));
    rom.Open(fixture.path());
    for (WildBattleForm* f : {static_cast<WildBattleForm*>(&form3), static_cast<WildBattleForm*>(&form4)}) {
      f->Combo1.rows.resize(412);
      f->Combo2.rows.resize(347);
      SetCombo1Selection(*f, 0x19);
      f->Text3.text = "&H700000";
    }
    SetCombo3Selection(form3, 5);
    SetCombo3Selection(form4, 5);
    SetCombo2Selection(form4, 0x8B);
    form4.Text12.text = "&H7A0000";
    form5.Combo1.rows.resize(412);
    form5.Combo2.rows.resize(347);
    SetCombo1Selection(form5, 0x176);
    SetCombo3Selection(form5, 5);
    SetCombo2Selection(form5, 0);
    form5.Text3.text = "&H700000";
    form5.Text12.text = "&H7A0000";
  }
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
  InsertWildBattle(b.form3, b.rom, b.dialogs);
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
    InsertWildBattle(b.form4, b.rom, b.dialogs);
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
  InsertGivePokemon(b.form5, b.rom, b.dialogs);
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
  std::string nops;
  for (int i = 0; i < 16; ++i) nops += "nop \r\n";
  EXPECT_EQ(b.List(kS + 46), "givepokemon: &H176 &H5 &H0\r\n" + nops + "Byte: &H7D \r\nByte: &H76 \r\nnop \r\nnop \r\n"
                             "msgbox  &H7000670F\r\nByte: &H8 \r\n" + branch);
  EXPECT_EQ(b.List(kS + 74), "msgbox  &H87067\r\n" + branch);  // where the first "if" leads
  EXPECT_EQ(b.List(kS + 93), "msgbox  &H87071\r\n" + branch);  // where the second leads
}

// One case of an insert that must write nothing: what is wrong, which form, what is said.
struct Refusal {
  const char* field;
  std::function<void(Builder&)> set;
  int form;
  const char* says;
};

TEST(ScriptBuildersTest, ABadFieldOrAPlaceOutsideTheFileWritesNothingAndAsksNothing) {
  const Refusal refusals[] = {
      {"species", [](Builder& b) { b.form3.pkmntxt.text = "&H10000"; }, 3, "Pokemon: \"&H10000\" is not a word."},
      {"species before offset", [](Builder& b) { b.form3.crytxt.text = "x"; b.form3.Text3.text = "?"; }, 3,
       "PKMN Cry: \"x\""},
      {"initial offset", [](Builder& b) { b.form3.Text3.text = "&H000000"; }, 3,
       "Offset: \"&H000000\" lies inside the cartridge header, &H0 to &HBF,"},
      {"offset 0", [](Builder& b) { b.form4.Text3.text = "0"; }, 4, "Offset: \"0\" lies inside the cartridge header"},
      {"last header byte", [](Builder& b) { b.form5.Text3.text = "&HBF"; }, 5,
       "Offset To insert Script: \"&HBF\" lies inside"},
      {"negative", [](Builder& b) { b.form3.Text3.text = "&HF8000000"; }, 3, "lies before the start of the ROM"},
      {"text in header", [](Builder& b) { b.form4.Text12.text = "&H0"; }, 4, "Text Offset: \"&H0\" lies inside"},
      {"text before script", [](Builder& b) { b.form5.Text12.text = "&H0"; b.form5.pkmntxt.text = "?"; }, 5,
       "Offset to insert new text: \"&H0\""},
      {"script past the end", [](Builder& b) { b.form3.Text3.text = "&HFFFFF4"; }, 3,
       "the script, 13 bytes from &HFFFFF4, would run past the end of the ROM, which is &H1000000 bytes long"},
      {"block past the end", [](Builder& b) { b.form5.Text3.text = "&HFFFF6A"; }, 5, "the script, 151 bytes from"},
      {"no room for FF 00", [](Builder& b) { b.form4.Text12.text = "&HFFFFFF"; }, 4,
       "Text Offset: \"&HFFFFFF\": the message, 2 bytes"},
      {"question past the end", [](Builder& b) { b.form5.Text12.text = "&HFFFFFF"; }, 5, "the question, 2 bytes"},
  };
  for (const Refusal& r : refusals) {
    Builder b;
    r.set(b);
    const ByteOracle oracle(b.fixture.path());
    const std::string said = test::FailureOf([&] {
      if (r.form == 3) InsertWildBattle(b.form3, b.rom, b.dialogs);
      if (r.form == 4) InsertWildBattle(b.form4, b.rom, b.dialogs);
      if (r.form == 5) InsertGivePokemon(b.form5, b.rom, b.dialogs);
    });
    EXPECT_THAT(said, HasSubstr(r.says)) << r.field;
    EXPECT_THAT(said, HasSubstr("Nothing was written.")) << r.field;
    EXPECT_THAT(oracle.Changes(), IsEmpty()) << r.field;
    EXPECT_THAT(b.dialogs.inputs, IsEmpty()) << r.field;
    EXPECT_THAT(b.dialogs.windowEvents, IsEmpty()) << r.field;
  }
  Builder b;  // the first offset behind the header is free to use
  b.form3.Text3.text = "&HC0";
  InsertWildBattle(b.form3, b.rom, b.dialogs);
  EXPECT_EQ(b.dialogs.windowEvents.size(), 1u);
}

TEST(ScriptBuildersTest, WhatTheFileTakesTheInsertDoesNotRefuse) {
  Builder b;
  b.rom.Open(test::EndlessDevice());  // every write there is taken
  InsertWildBattle(b.form3, b.rom, b.dialogs);
  EXPECT_THAT(b.dialogs.MessageTexts(), ElementsAre("Inserted"));
}

TEST(ScriptBuildersTest, AMessageThatDoesNotFitIsRefusedAfterTheScriptAndSaysSo) {
  Builder b;
  b.form4.Text12.text = "&HFFFFFD";  // room for FF 00, not for "AB" and FF 00
  b.dialogs.inputAnswers = {"AB"};
  const ByteOracle oracle(b.fixture.path());
  EXPECT_EQ(test::FailureOf([&] { InsertWildBattle(b.form4, b.rom, b.dialogs); }),
            "The wild battle script was written at &H700000. Its message was not written: Text Offset: "
            "\"&HFFFFFD\": the message, 4 bytes from &HFFFFFD, would run past the end of the ROM, which is "
            "&H1000000 bytes long.");
  EXPECT_EQ(oracle.Changes(), (std::vector<ByteRange>{{kS, 20}}));
  EXPECT_THAT(b.dialogs.windowEvents, IsEmpty());  // the form stays open
}

}  // namespace
}  // namespace tessarine
