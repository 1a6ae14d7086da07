#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "events/EventSelection.h"
#include "events/EventWords.h"
#include "rom/HexField.h"
#include "support/ByteOracle.h"
#include "support/EventFixtures.h"
#include "support/Failures.h"
#include "support/MainSession.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::FixtureRom;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using Ranges = std::vector<test::ByteRange>;

struct Session : test::MainSession {
  FixtureRom fixture;
  explicit Session(FixtureRom rom_) : fixture(std::move(rom_)) { Open(fixture.path()); }
};

std::string Hex(std::uint32_t value) { return ToHexText(static_cast<std::int32_t>(value)); }

// Refused before the first write: the sentence names the field, and nothing changes, also
// the sprite that each save here would write.
TEST(EventSaveGuardTest, ASaveThatCannotRunIsRefusedBeforeAnyWrite) {
  struct Row {
    const char* code;
    void (*edit)(Session&);
    const char* says;
  };
  const Row rows[] = {
      {"BPRE", [](Session& s) { s.form.behavtxt = "&H100"; }, "Behavior: \"&H100\""},
      {"BPRE", [](Session& s) { s.form.flagtxt.text = "&H10000"; }, "Flag: \"&H10000\""},
      {"BPRE", [](Session& s) { s.form.spritetxt.text = "sprite"; }, "Sprite: \"sprite\""},
      {"AXVE", [](Session& s) { s.Open(s.fixture.path()); }, "Pick an event"},  // the fields are not this open's
      {"AXVE", [](Session& s) { s.form.scriptpointxt.text = "abc"; }, "Script: \"abc\""},
      {"AXVE", [](Session& s) { s.form.scriptpointxt.text = "&H7FFFFFFF"; }, "Script: \"&H7FFFFFFF\""},
      {"AXVE", [](Session& s) { s.form.scriptpointxt.text = "-5"; }, "Script: \"-5\""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.says);
    Session s(test::EventFixtureRom(row.code));
    s.PickEvent(1);
    s.form.spritetxt.text = "&H1F2";
    row.edit(s);
    const ByteOracle oracle(s.fixture.path());
    const std::string failure = s.SaveFailure();
    EXPECT_THAT(failure, HasSubstr(row.says));
    EXPECT_THAT(failure, HasSubstr("Nothing was saved."));
    EXPECT_THAT(oracle.Changes(), IsEmpty());
  }
}

TEST(EventSaveGuardTest, AFirstWordWithNoSpeciesLeavesTheFieldsAndRefusesTheSave) {
  FixtureRom fixture = test::EventFixtureRom("AXVE");
  const test::FixtureEvent rayquaza = test::FixtureEvents("AXVE")[1];
  fixture.PutWord(rayquaza.script + 3, 412);
  Session s(std::move(fixture));
  SetCombo1Selection(s.form, 7);
  s.PickEvent(1);
  EXPECT_THAT(s.dialogs.messages, IsEmpty());
  EXPECT_EQ(s.form.Combo1.selected, 7);
  EXPECT_EQ(s.form.Text1.text, "&H19C");
  EXPECT_EQ(s.form.Text2.text, ToHexText(static_cast<std::int16_t>(rayquaza.second)));
  EXPECT_EQ(s.form.hoobla.text, "&H0000");

  const ByteOracle oracle(s.fixture.path());
  const std::string failure = s.SaveFailure();
  EXPECT_THAT(failure, HasSubstr("Pokemon word at " + Hex(rayquaza.script + 3) + " holds &H19C"));
  EXPECT_THAT(failure, HasSubstr("Nothing was saved."));
  EXPECT_THAT(oracle.Changes(), IsEmpty());

  SetCombo1Selection(s.form, 0x20);  // picking a species makes the save possible
  s.Save();
  EXPECT_EQ(oracle.Changes(), (Ranges{{rayquaza.script + 8, 2}}));  // the first word is no species: left alone
}

// A script pointer of 0 fails the word load after the person fields are filled; the word
// fields then hold no species of the event, whatever the list still shows, until its words
// are loaded.
TEST(EventSaveGuardTest, AFailedWordLoadLeavesNothingToSaveUntilTheWordsAreLoaded) {
  FixtureRom fixture = test::EventFixtureRom("AXVE");
  const test::FixtureEvent rayquaza = test::FixtureEvents("AXVE")[1];
  fixture.PutLong(rayquaza.person + 16, 0);
  Session s(std::move(fixture));
  s.PickEvent(4);  // Regiice: its species stays in the list
  EXPECT_THAT(test::FailureOf([&] { s.PickEvent(1); }), HasSubstr("&HF8000003"));
  EXPECT_EQ(s.form.scriptpointxt.text, "&HF8000000");
  EXPECT_EQ(s.form.Text3.text, "&HF8000000");
  EXPECT_EQ(s.form.spritetxt.text, "&H51");

  s.form.scriptpointxt.text = Hex(rayquaza.script);
  const ByteOracle oracle(s.fixture.path());
  const std::string failure = s.SaveFailure();
  EXPECT_THAT(failure, HasSubstr("were not loaded"));
  EXPECT_THAT(failure, HasSubstr("Nothing was saved."));
  EXPECT_THAT(oracle.Changes(), IsEmpty());

  LoadEventWords(s.form, s.rom, s.dialogs);  // the Load button beside Script
  s.Save();
  EXPECT_EQ(oracle.Changes(), (Ranges{{rayquaza.script + 8, 1}}));  // the cry becomes the species
}

// A word field that is no word, or whose word is no species number, stops the save at that
// word: what was written before stays, and the sentence says what was and what was not.
TEST(EventSaveGuardTest, ABadWordStopsTheSaveThereAndSaysWhatWasWritten) {
  struct Row {
    int event;  // of Ruby
    TextBox Form1::*field;
    const char* text;
    Ranges written;
    std::vector<const char*> says;
  };
  const Row rows[] = {
      {3, &Form1::hoobla2, "&HXYZ", {{0x15DE26, 2}},
       {"Cry: \"&HXYZ\" is not a word.", "The person record and the Pokemon word were saved. The Cry word was not."}},
      {3, &Form1::hoobla2, "&HFFFF", {{0x15DE26, 2}},
       {"Cry: \"&HFFFF\" is no species number", "The person record and the Pokemon word were saved. The Cry word was not."}},
      {2, &Form1::hoobla, "&H19C", {},
       {"Pokemon: \"&H19C\" is no species number", "The person record was saved. The Pokemon and Cry words were not."}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    Session s(test::EventFixtureRom("AXVE"));
    s.PickEvent(row.event);
    SetCombo1Selection(s.form, 0x33);
    (s.form.*row.field).text = row.text;
    const ByteOracle oracle(s.fixture.path());
    const std::string failure = s.SaveFailure();
    for (const char* part : row.says) EXPECT_THAT(failure, HasSubstr(part));
    EXPECT_EQ(oracle.Changes(), row.written);
  }
}

// A word is written only where the ROM holds a species number now: a cry kept a byte or two
// behind its place leaves opcodes there, and a word may run past the end of the file.
TEST(EventSaveGuardTest, AWordWhoseRomWordIsNoSpeciesIsLeftAsItIsAndTheSaveSaysSo) {
  // Lock, faceplayer, battle (species, level, item), cry (30 A1 and the species), end: the
  // shape the builders write, with the cry's species two bytes behind distance 8.
  const Bytes battle{0x6A, 0x5A, 0xB6, 0x96, 0x01, 0x46, 0x00, 0x00, 0x30, 0xA1, 0x96, 0x01, 0x02};
  Bytes mewtwo(43, 0x00);  // FireRed: 0xA1 at distance 20, the species at 21 and at 41
  mewtwo[20] = 0xA1, mewtwo[21] = 0x96, mewtwo[41] = 0x96;
  Bytes bothSpecies(13, 0xFF);
  bothSpecies[3] = 0x19, bothSpecies[4] = 0x00, bothSpecies[8] = 0x9B, bothSpecies[9] = 0x01;
  constexpr std::uint32_t kScript = 0xB00000;
  constexpr std::uint32_t kNearEnd = FixtureRom::kSize - 9;
  const std::string tail = ", and writing a species there would break the event's script. ";
  struct Row {
    const char* code;
    std::uint32_t person;
    int event;
    std::uint32_t at;
    Bytes script;
    const char* scriptText;  // typed over the loaded one; null: as loaded
    Ranges written;
    std::vector<std::string> says;
  };
  const Row rows[] = {
      {"AXVE", 0x38EE50, 1, kScript, battle, nullptr, {{kScript + 3, 2}},
       {"The Cry word was left as it is: at &HB00008 stands &HA130, which is no species number (&H0 to &H19B)" + tail +
        "The person record and the Pokemon word were saved."}},
      {"BPRE", 0x3B177C, 4, kScript, mewtwo, nullptr, {{kScript + 41, 1}},
       {"The Cry word was left as it is: at &HB00014 stands &H96A1, which is no species number (&H0 to &H19B)" + tail +
        "The person record and the Pokemon word were saved."}},
      {"AXPE", 0x38EDE0, 1, kScript, bothSpecies, nullptr, {{kScript + 3, 1}, {kScript + 8, 2}}, {}},
      {"AXVE", 0x38EE50, 1, kScript, battle, "&HB00100", {},
       {"The Pokemon and Cry words were left as they are: at &HB00103 stands &HFFFF and at &HB00108 stands &HFFFF, "
        "which are no species numbers (&H0 to &H19B)" + tail + "The person record was saved."}},
      {"AXVE", 0x38EE50, 1, kNearEnd, Bytes(battle.begin(), battle.begin() + 9), nullptr, {{kNearEnd + 3, 2}},
       {"The Cry word was left as it is: at &HFFFFFF stands the end of the ROM, which is no species number (&H0 to "
        "&H19B)" + tail + "The person record and the Pokemon word were saved."}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(std::string(row.code) + " " + std::to_string(row.at + row.script.size()));
    FixtureRom fixture = test::EventFixtureRom(row.code);
    fixture.PutLong(row.person + 16, row.at + 0x08000000).PutBytes(row.at, row.script);
    Session s(std::move(fixture));
    s.PickEvent(row.event);
    EXPECT_EQ(s.form.Combo1.selected, row.script[row.event == 4 ? 41 : 3] | (row.script[row.event == 4 ? 42 : 4] << 8));
    if (row.scriptText != nullptr) {
      s.form.scriptpointxt.text = row.scriptText;
    } else {
      SetCombo1Selection(s.form, 0xAB);
    }
    const ByteOracle oracle(s.fixture.path());
    s.Save();
    EXPECT_EQ(oracle.Changes(), row.written);  // the file keeps its size
    for (const auto& range : row.written) EXPECT_EQ(oracle.Now()[range.offset], 0xAB);
    EXPECT_EQ(s.dialogs.MessageTexts(), row.says);
  }
}

}  // namespace
}  // namespace tessarine
