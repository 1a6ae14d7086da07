#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "events/EventSelection.h"
#include "events/EventWords.h"
#include "events/PersonRecord.h"
#include "forms/Form1.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"
#include "shell/OpenRom.h"
#include "support/ByteOracle.h"
#include "support/EventFixtures.h"
#include "support/Failures.h"
#include "support/MainSession.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::ByteRange;
using test::EventFixtureRom;
using test::FixtureEvent;
using test::FixtureEvents;
using test::FixtureRom;
using test::ScriptedDialogs;
using ::testing::_;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using Ranges = std::vector<ByteRange>;

// A session on a fixture ROM of its own, opened as the Open button does.
struct Session : test::MainSession {
  FixtureRom fixture;
  explicit Session(FixtureRom rom_) : fixture(std::move(rom_)) { Open(); }
  ~Session() { rom.Close(); }  // before the fixture goes: Windows deletes no file that is open
  void Open() { MainSession::Open(fixture.path()); }
};

Session Opened(std::string_view code) { return Session(EventFixtureRom(code)); }

std::string Hex(int value) { return ToHexText(value); }
std::size_t At(std::uint32_t base, int distance) { return base + static_cast<std::uint32_t>(distance); }

// Every event of every game: the fields after the pick, then a save with a new sprite,
// movement, flag and species that changes exactly the record's three fields and the words.
TEST(EventWorkspaceTest, EachEventOfEachGameLoadsAndSavesItsOwnBytes) {
  for (const char* code : {"AXVE", "AXPE", "BPRE", "BPGE"}) {
    for (const FixtureEvent& e : FixtureEvents(code)) {
      SCOPED_TRACE(std::string(code) + " " + std::string(e.name));
      Session s = Opened(code);
      s.PickEvent(e.index);
      const Form1& f = s.form;

      EXPECT_EQ(f.whee, std::to_string(e.index));
      EXPECT_EQ(f.personOffset, Hex(static_cast<int>(e.person)));
      EXPECT_EQ(f.spritetxt.text, Hex(e.record.sprite));
      EXPECT_EQ(f.behavtxt, Hex(e.record.behaviour));
      EXPECT_EQ(f.Combo2.selected, e.record.behaviour);
      EXPECT_EQ(f.tehe, std::to_string(e.record.behaviour));
      EXPECT_EQ(f.flagtxt.text, Hex(e.record.flag));
      EXPECT_EQ(f.scriptpointxt.text, Hex(static_cast<int>(e.script)));  // the constant, where there is one
      EXPECT_EQ(f.Text3.text, f.scriptpointxt.text);
      EXPECT_EQ(f.scripteh, Hex(static_cast<int>(e.record.scriptPointer - 0x08000000)));

      const bool hasWords = e.firstAt >= 0;
      const bool isDeoxys = e.name == "Deoxys";
      EXPECT_EQ(s.dialogs.MessageTexts(),
                isDeoxys ? std::vector<std::string>{"Sorry But script Loading for this Pokemon is not yet supported."}
                         : std::vector<std::string>{});
      if (hasWords) {
        const int followed = e.listFollowsSecond ? e.second : e.first;
        EXPECT_EQ(f.Combo1.selected, followed);
        for (const TextBox* word : {&f.Text1, &f.Text2, &f.hoobla, &f.hoobla2}) EXPECT_EQ(word->text, Hex(followed));
        EXPECT_EQ(f.hoobla.visible, e.showsHoobla);
        EXPECT_EQ(f.hoobla2.visible, e.showsHoobla);
        EXPECT_EQ(f.Text1.visible, !e.showsHoobla);
        EXPECT_EQ(f.Text2.visible, !e.showsHoobla);
      } else {
        EXPECT_EQ(f.Combo1.selected, 0);  // as the open left it
        EXPECT_EQ(f.Text1.text, "&H0000");
        EXPECT_EQ(f.Text2.text, "&H0000");
      }

      s.dialogs.messages.clear();
      const ByteOracle oracle(s.fixture.path());
      s.form.spritetxt.text = "&H1F2";
      SetCombo2Selection(s.form, 11);
      s.form.flagtxt.text = "&HABCD";
      SetCombo1Selection(s.form, 0xFF);  // both bytes differ from every fixture word
      s.Save();

      Ranges expected = {{e.person + 1, 2}, {e.person + 9, 1}, {e.person + 20, 2}};
      if (hasWords) {
        expected.push_back({At(e.script, std::min(e.firstAt, e.secondAt)), 2});
        expected.push_back({At(e.script, std::max(e.firstAt, e.secondAt)), 2});
      }
      std::sort(expected.begin(), expected.end(), [](auto a, auto b) { return a.offset < b.offset; });
      EXPECT_EQ(oracle.Changes(), expected);
      const Bytes now = oracle.Now();
      EXPECT_THAT(Bytes(now.begin() + e.person, now.begin() + e.person + 22),
                  ElementsAre(0x01, 0xF2, 0x01, 0x07, 0x0A, 0x00, 0x0B, 0x00, 0x03, 0x0B, 0x11, 0x09, 0x00, 0x0D,
                              0x04, 0x00, _, _, _, 0x08, 0xCD, 0xAB));
      if (hasWords) {
        EXPECT_THAT(Bytes(now.begin() + At(e.script, e.firstAt), now.begin() + At(e.script, e.firstAt) + 2),
                    ElementsAre(0xFF, 0x00));
        EXPECT_THAT(Bytes(now.begin() + At(e.script, e.secondAt), now.begin() + At(e.script, e.secondAt) + 2),
                    ElementsAre(0xFF, 0x00));
      }
      EXPECT_THAT(s.dialogs.messages, IsEmpty());
    }
  }
}

// Opening Sapphire, picking Latias/Latios, another species and another cry, and saving.
TEST(EventWorkspaceTest, TheRoadOfOneEventEditOnSapphire) {
  Session s = Opened("AXPE");
  ASSERT_EQ(s.form.Combo1.rows.size(), 412u);
  s.PickEvent(2);
  EXPECT_EQ(s.form.personOffset, "&H391E08");
  EXPECT_EQ(s.form.scriptpointxt.text, "&H160B2B");  // whatever the person record says
  EXPECT_EQ(s.form.Text3.text, "&H160B2B");
  EXPECT_TRUE(s.form.hoobla2.visible);

  const ByteOracle oracle(s.fixture.path());
  SetCombo1Selection(s.form, 0xAA);
  s.form.hoobla2.text = "&HC0";  // a cry of its own
  s.Save();

  EXPECT_EQ(oracle.Changes(), (Ranges{{0x160B5E, 2}, {0x160B84, 2}}));
  const Bytes now = oracle.Now();
  EXPECT_THAT(Bytes(now.begin() + 0x160B84, now.begin() + 0x160B86), ElementsAre(0xAA, 0x00));
  EXPECT_THAT(Bytes(now.begin() + 0x160B5E, now.begin() + 0x160B60), ElementsAre(0xC0, 0x00));
}

TEST(EventWorkspaceTest, APersonRecordRoundTripsUnchanged) {
  FixtureRom fixture = EventFixtureRom("AXVE");
  const Bytes record{0x01, 0x2C, 0x00, 0x07, 0x0A, 0x00, 0x0B, 0x00, 0x03, 0x08, 0x11,
                     0x09, 0x00, 0x0D, 0x04, 0x00, 0x9B, 0x0B, 0x16, 0x08, 0x34, 0x12};
  fixture.PutBytes(0x38EE50, record);
  Session s(std::move(fixture));
  s.PickEvent(0);  // "Select a Event": Rayquaza's person, no words
  EXPECT_EQ(s.form.spritetxt.text, "&H2C");
  EXPECT_EQ(s.form.behavtxt, "&H8");
  EXPECT_EQ(s.form.Combo2.selected, 8);
  EXPECT_EQ(s.form.scriptpointxt.text, "&H160B9B");
  EXPECT_EQ(s.form.flagtxt.text, "&H1234");
  EXPECT_EQ(s.form.Text1.text, "&H0000");

  const ByteOracle oracle(s.fixture.path());
  s.Save();
  EXPECT_THAT(oracle.Changes(), IsEmpty());
}

TEST(EventWorkspaceTest, MovementTypesFollowTheBehaviourByte) {
  struct Row {
    std::uint8_t behaviour;
    int listRow;  // -1: the list keeps the row it had
  };
  for (const Row row : {Row{0x00, 0}, Row{0x0A, 10}, Row{0x0B, 11}, Row{0x0C, -1}, Row{0x51, -1}}) {
    SCOPED_TRACE(int{row.behaviour});
    FixtureRom fixture = EventFixtureRom("AXVE");
    fixture.PutByte(0x38EE50 + 9, row.behaviour);
    Session s(std::move(fixture));
    SetCombo2Selection(s.form, 3);
    s.PickEvent(1);
    EXPECT_EQ(s.form.behavtxt, Hex(row.behaviour));
    EXPECT_EQ(s.form.Combo2.selected, row.listRow >= 0 ? row.listRow : 3);

    const ByteOracle oracle(s.fixture.path());
    s.Save();  // the byte goes back as it was, also where no row names it
    EXPECT_EQ(oracle.Now()[0x38EE50 + 9], row.behaviour);
  }
}

TEST(EventWorkspaceTest, ABadFieldStopsTheSaveBeforeAnyWrite) {
  struct Row {
    TextBox Form1::*field;  // null: behavtxt
    const char* text;
    const char* names;
  };
  const Row rows[] = {{nullptr, "&H100", "Behavior"},
                      {&Form1::flagtxt, "&H10000", "Flag"},
                      {&Form1::spritetxt, "sprite", "Sprite"}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.text);
    Session s = Opened("BPRE");
    s.PickEvent(1);
    if (row.field != nullptr) {
      (s.form.*(row.field)).text = row.text;
    } else {
      s.form.behavtxt = row.text;
    }
    const ByteOracle oracle(s.fixture.path());
    const std::string failure = s.SaveFailure();
    EXPECT_THAT(failure, HasSubstr(row.names));
    EXPECT_THAT(failure, HasSubstr(std::string("\"") + row.text + "\""));
    EXPECT_THAT(failure, HasSubstr("Nothing was saved."));
    EXPECT_THAT(oracle.Changes(), IsEmpty());
  }
}

TEST(EventWorkspaceTest, AnotherScriptOffsetMovesTheWordsButNeverThePointer) {
  Session s = Opened("AXVE");
  s.PickEvent(1);
  s.fixture.PutWord(0x1003, 0x0196).PutWord(0x1008, 0x0199);
  s.rom.Close();
  s.rom.Open(s.fixture.path());
  s.form.scriptpointxt.text = "&H1000";
  LoadEventWords(s.form, s.rom, s.dialogs);  // the Load button of the words
  for (const TextBox* word : {&s.form.Text1, &s.form.Text2, &s.form.hoobla, &s.form.hoobla2}) {
    EXPECT_EQ(word->text, "&H196");
  }
  EXPECT_EQ(s.form.Combo1.selected, 0x196);

  const ByteOracle oracle(s.fixture.path());
  s.Save();  // the cry becomes the species; the record keeps its own pointer
  EXPECT_EQ(oracle.Changes(), (Ranges{{0x1008, 1}}));
  EXPECT_EQ(oracle.Now()[0x1008], 0x96);
}

TEST(EventWorkspaceTest, RegisFollowTheSecondWordAndFrlgDistancesServeBothRows) {
  Session ruby = Opened("AXVE");
  ruby.PickEvent(4);  // Regiice: the list follows the word at distance 4
  EXPECT_EQ(ruby.form.Combo1.selected, 0x180 + 4);

  Session fireRed = Opened("BPRE");
  const FixtureEvent mewtwo = FixtureEvents("BPRE")[4];
  fireRed.PickEvent(4);
  EXPECT_EQ(fireRed.form.Combo1.selected, mewtwo.first);  // distance 41
  EXPECT_EQ(mewtwo.firstAt, 41);
}

TEST(EventWorkspaceTest, AFirstWordWithNoSpeciesLeavesTheFieldsAndRefusesTheSave) {
  FixtureRom fixture = EventFixtureRom("AXVE");
  const FixtureEvent rayquaza = FixtureEvents("AXVE")[1];
  fixture.PutWord(rayquaza.script + 3, 412);
  Session s(std::move(fixture));
  SetCombo1Selection(s.form, 7);
  s.PickEvent(1);
  EXPECT_THAT(s.dialogs.messages, IsEmpty());
  EXPECT_EQ(s.form.Combo1.selected, 7);
  EXPECT_EQ(s.form.Text1.text, "&H19C");
  EXPECT_EQ(s.form.Text2.text, Hex(rayquaza.second));
  EXPECT_EQ(s.form.hoobla.text, "&H0000");

  const ByteOracle oracle(s.fixture.path());
  const std::string failure = s.SaveFailure();
  EXPECT_THAT(failure, HasSubstr("Pokemon word at " + Hex(static_cast<int>(rayquaza.script + 3)) + " holds &H19C"));
  EXPECT_THAT(failure, HasSubstr("Nothing was saved."));
  EXPECT_THAT(oracle.Changes(), IsEmpty());

  SetCombo1Selection(s.form, 0x20);  // picking a species makes the save possible
  s.Save();
  EXPECT_EQ(oracle.Changes(), (Ranges{{rayquaza.script + 8, 2}}));  // the first word is no species: left alone
}

TEST(EventWorkspaceTest, ASaveBeforeAnEventIsPickedOnANewRomIsRefused) {
  Session s = Opened("AXVE");
  s.PickEvent(1);
  s.Open();  // the same file again: the event fields are not yet this open's
  const ByteOracle oracle(s.fixture.path());
  EXPECT_THAT(s.SaveFailure(), HasSubstr("Pick an event"));
  EXPECT_THAT(oracle.Changes(), IsEmpty());
  s.PickEvent(1);
  EXPECT_EQ(s.SaveFailure(), "");
}

TEST(EventWorkspaceTest, PickingTheSameEventTwiceReadsTheRomAgain) {
  Session s = Opened("BPGE");
  s.PickEvent(3);
  const Form1 first = s.form;
  s.form.spritetxt.text = "&H7";
  s.PickEvent(3);
  EXPECT_EQ(s.form.spritetxt.text, first.spritetxt.text);
  EXPECT_EQ(s.form.flagtxt.text, first.flagtxt.text);
  EXPECT_EQ(s.form.Text1.text, first.Text1.text);
}

TEST(EventWorkspaceTest, TheWordLoadOfRubyAndSapphirePutsTheFlagBack) {
  Session s = Opened("AXPE");
  s.PickEvent(5);
  const std::string flag = s.form.flagtxt.text;
  s.form.flagtxt.text = "&H1";
  LoadEventWords(s.form, s.rom, s.dialogs);
  EXPECT_EQ(s.form.flagtxt.text, flag);

  Session f = Opened("BPRE");
  f.PickEvent(1);
  f.form.flagtxt.text = "&H1";
  LoadEventWords(f.form, f.rom, f.dialogs);
  EXPECT_EQ(f.form.flagtxt.text, "&H1");
}

TEST(EventWorkspaceTest, ABadCryStopsTheSaveAfterTheFirstWord) {
  Session s = Opened("AXVE");
  const FixtureEvent groudon = FixtureEvents("AXVE")[3];
  s.PickEvent(3);
  SetCombo1Selection(s.form, 0x33);
  s.form.hoobla2.text = "&HXYZ";
  const ByteOracle oracle(s.fixture.path());
  const std::string failure = s.SaveFailure();
  EXPECT_THAT(failure, HasSubstr("Cry: \"&HXYZ\" is not a word."));
  EXPECT_THAT(failure, HasSubstr("The person record and the Pokemon word were saved. The Cry word was not."));
  EXPECT_EQ(oracle.Changes(), (Ranges{{0x15DE26, 2}}));
  EXPECT_EQ(groudon.script + 79, 0x15DE26u);
}

TEST(EventWorkspaceTest, ANullScriptPointerFailsTheWordLoadAfterThePersonFields) {
  FixtureRom fixture = EventFixtureRom("BPRE");
  fixture.PutLong(0x3B27D4 + 16, 0);
  Session s(std::move(fixture));
  EXPECT_THAT(test::FailureOf([&] { s.PickEvent(1); }), HasSubstr("&HF8000014"));
  EXPECT_EQ(s.form.scriptpointxt.text, "&HF8000000");
  EXPECT_EQ(s.form.Text3.text, "&HF8000000");
  EXPECT_EQ(s.form.spritetxt.text, "&H51");
}

TEST(EventWorkspaceTest, AFamilyOfNoGameAnswersThatItHasNoWords) {
  Session s = Opened("AXVE");
  s.PickEvent(1);
  s.form.cowmoo = "e";
  LoadEventWords(s.form, s.rom, s.dialogs);
  SaveEventWords(s.form, s.rom, s.dialogs);
  EXPECT_THAT(s.dialogs.MessageTexts(), ElementsAre("Load not supported", "Save not supported"));
}

TEST(EventWorkspaceTest, SelectSpeciesPutsItsNumberIntoAllFourWords) {
  Form1 form;
  SelectSpecies(form, 0x19A);
  for (const TextBox* word : {&form.Text1, &form.Text2, &form.hoobla, &form.hoobla2}) EXPECT_EQ(word->text, "&H19A");
}

}  // namespace
}  // namespace tessarine
