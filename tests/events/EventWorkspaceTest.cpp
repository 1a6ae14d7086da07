#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "events/EventSelection.h"
#include "events/EventWords.h"
#include "events/PersonRecord.h"
#include "rom/HexField.h"
#include "support/ByteOracle.h"
#include "support/EventFixtures.h"
#include "support/MainSession.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::FixtureEvent;
using test::FixtureRom;
using ::testing::_;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A session on a fixture ROM of its own, opened as the Open button does.
struct Session : test::MainSession {
  FixtureRom fixture;
  explicit Session(FixtureRom rom_) : fixture(std::move(rom_)) { Open(fixture.path()); }
};

std::string Hex(std::uint32_t value) { return ToHexText(static_cast<std::int32_t>(value)); }
Bytes BytesAt(const Bytes& file, std::size_t at, std::size_t count) { return Bytes(file.begin() + at, file.begin() + at + count); }

// Every event of every game: the fields after the pick; a save of a new sprite, movement,
// flag and species that changes exactly the record's three fields and the two words; and a
// second pick of the same event, which reads back what the save wrote.
TEST(EventWorkspaceTest, EachEventOfEachGameLoadsAndSavesItsOwnBytes) {
  for (const char* code : {"AXVE", "AXPE", "BPRE", "BPGE"}) {
    for (const FixtureEvent& e : test::FixtureEvents(code)) {
      SCOPED_TRACE(std::string(code) + " " + std::string(e.name));
      Session s(test::EventFixtureRom(code));
      s.PickEvent(e.index);
      const Form1& f = s.form;
      EXPECT_EQ(f.whee, std::to_string(e.index));
      EXPECT_EQ(f.personOffset, Hex(e.person));
      EXPECT_EQ(f.spritetxt.text, ToHexText(static_cast<std::int16_t>(e.record.sprite)));
      EXPECT_EQ(f.behavtxt, ToHexText(e.record.behaviour));
      EXPECT_EQ(f.Combo2.selected, e.record.behaviour);
      EXPECT_EQ(f.tehe, std::to_string(e.record.behaviour));
      EXPECT_EQ(f.flagtxt.text, ToHexText(static_cast<std::int16_t>(e.record.flag)));
      EXPECT_EQ(f.scriptpointxt.text, Hex(e.script));  // the constant, where there is one
      EXPECT_EQ(f.Text3.text, f.scriptpointxt.text);
      EXPECT_EQ(f.scripteh, Hex(e.record.scriptPointer - 0x08000000));
      const bool hasWords = e.firstAt >= 0;
      EXPECT_EQ(s.dialogs.MessageTexts(),
                e.name == "Deoxys" ? std::vector<std::string>{"Sorry But script Loading for this Pokemon is not yet supported."}
                                   : std::vector<std::string>{});
      const int followed = !hasWords ? 0 : e.listFollowsSecond ? e.second : e.first;
      EXPECT_EQ(f.Combo1.selected, followed);  // no words: as the open left it
      for (const TextBox* word : {&f.Text1, &f.Text2}) EXPECT_EQ(word->text, hasWords ? Hex(followed) : "&H0000");
      if (hasWords) {
        for (const TextBox* word : {&f.hoobla, &f.hoobla2}) EXPECT_EQ(word->text, Hex(followed));
        EXPECT_EQ((std::array{f.hoobla.visible, f.hoobla2.visible, f.Text1.visible, f.Text2.visible}),
                  (std::array{e.showsHoobla, e.showsHoobla, !e.showsHoobla, !e.showsHoobla}));
      }

      s.dialogs.messages.clear();
      const ByteOracle oracle(s.fixture.path());
      s.form.spritetxt.text = "&H1F2";
      SetCombo2Selection(s.form, 11);
      s.form.flagtxt.text = "&HABCD";
      SetCombo1Selection(s.form, 0xFF);  // both bytes differ from every fixture word
      s.Save();
      std::vector<test::ByteRange> expected = {{e.person + 1, 2}, {e.person + 9, 1}, {e.person + 20, 2}};
      if (hasWords) {
        for (const int at : {std::min(e.firstAt, e.secondAt), std::max(e.firstAt, e.secondAt)}) {
          expected.push_back({e.script + static_cast<std::uint32_t>(at), 2});
        }
      }
      std::sort(expected.begin(), expected.end(), [](auto a, auto b) { return a.offset < b.offset; });
      EXPECT_EQ(oracle.Changes(), expected);
      const Bytes now = oracle.Now();
      EXPECT_THAT(BytesAt(now, e.person, 22), ElementsAre(0x01, 0xF2, 0x01, 0x07, 0x0A, 0x00, 0x0B, 0x00, 0x03, 0x0B, 0x11,
                                                          0x09, 0x00, 0x0D, 0x04, 0x00, _, _, _, 0x08, 0xCD, 0xAB));
      for (const int at : {e.firstAt, e.secondAt}) {
        if (at >= 0) {
          EXPECT_THAT(BytesAt(now, e.script + static_cast<std::uint32_t>(at), 2), ElementsAre(0xFF, 0x00));
        }
      }
      EXPECT_THAT(s.dialogs.messages, IsEmpty());

      s.form.spritetxt.text = "&H7";
      s.PickEvent(e.index);
      EXPECT_EQ(s.form.spritetxt.text, "&H1F2");
      EXPECT_EQ(s.form.flagtxt.text, "&HABCD");
      EXPECT_EQ(s.form.Combo2.selected, 11);
      EXPECT_EQ(s.form.Combo1.selected, 0xFF);  // read back where there are words
    }
  }
}

// Saves whose bytes are fixed by the ROM and the fields: `prepare` lays out the fixture,
// `edit` changes the fields after the pick, and the save changes exactly `written`.
TEST(EventWorkspaceTest, ASaveWritesWhatTheFieldsSayAndNothingElse) {
  struct Row {
    const char* name;
    const char* code;
    int event;
    void (*prepare)(FixtureRom&);
    void (*edit)(Session&);
    std::vector<std::pair<std::size_t, Bytes>> written;
  };
  const Row rows[] = {
      {"a cry of its own beside the species, Latias/Latios on Sapphire", "AXPE", 2, [](FixtureRom&) {},
       [](Session& s) {
         EXPECT_EQ(s.form.scriptpointxt.text, "&H160B2B");  // whatever the person record says
         SetCombo1Selection(s.form, 0xAA);
         s.form.hoobla2.text = "&HC0";
       },
       {{0x160B5E, {0xC0, 0x00}}, {0x160B84, {0xAA, 0x00}}}},
      {"another script offset moves the words but never the person's pointer", "AXVE", 1,
       [](FixtureRom& f) { f.PutWord(0x1003, 0x0196).PutWord(0x1008, 0x0199); },
       [](Session& s) {
         s.form.scriptpointxt.text = "&H1000";
         LoadEventWords(s.form, s.rom, s.dialogs);  // the Load button of the words
         for (const TextBox* word : {&s.form.Text1, &s.form.Text2, &s.form.hoobla, &s.form.hoobla2}) {
           EXPECT_EQ(word->text, "&H196");
         }
         EXPECT_EQ(s.form.Combo1.selected, 0x196);
       },
       {{0x1008, {0x96}}}},  // the cry becomes the species
      {"a record saved with no edits keeps all its 22 bytes", "AXVE", 0,
       [](FixtureRom& f) {
         f.PutBytes(0x38EE50, {0x01, 0x2C, 0x00, 0x07, 0x0A, 0x00, 0x0B, 0x00, 0x03, 0x08, 0x11, 0x09, 0x00, 0x0D, 0x04,
                               0x00, 0x9B, 0x0B, 0x16, 0x08, 0x34, 0x12});
       },
       [](Session& s) {  // "Select a Event": Rayquaza's person, no words
         EXPECT_EQ(s.form.spritetxt.text, "&H2C");
         EXPECT_EQ(s.form.behavtxt, "&H8");
         EXPECT_EQ(s.form.Combo2.selected, 8);
         EXPECT_EQ(s.form.scriptpointxt.text, "&H160B9B");
         EXPECT_EQ(s.form.flagtxt.text, "&H1234");
         EXPECT_EQ(s.form.Text1.text, "&H0000");
       },
       {}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.name);
    FixtureRom fixture = test::EventFixtureRom(row.code);
    row.prepare(fixture);
    Session s(std::move(fixture));
    s.PickEvent(row.event);
    const ByteOracle oracle(s.fixture.path());
    row.edit(s);
    s.Save();
    std::vector<test::ByteRange> ranges;
    for (const auto& [at, bytes] : row.written) ranges.push_back({at, bytes.size()});
    EXPECT_EQ(oracle.Changes(), ranges);
    for (const auto& [at, bytes] : row.written) EXPECT_EQ(BytesAt(oracle.Now(), at, bytes.size()), bytes);
  }
}

TEST(EventWorkspaceTest, MovementTypesFollowTheBehaviourByteAndASaveKeepsIt) {
  for (const auto& [behaviour, listRow] : {std::pair{0x00, 0}, {0x0A, 10}, {0x0B, 11}, {0x0C, 3}, {0x51, 3}}) {
    SCOPED_TRACE(behaviour);
    FixtureRom fixture = test::EventFixtureRom("AXVE");
    fixture.PutByte(0x38EE50 + 9, static_cast<std::uint8_t>(behaviour));
    Session s(std::move(fixture));
    SetCombo2Selection(s.form, 3);  // a byte with no row leaves the list here
    s.PickEvent(1);
    EXPECT_EQ(s.form.behavtxt, ToHexText(static_cast<std::uint8_t>(behaviour)));
    EXPECT_EQ(s.form.Combo2.selected, listRow);
    const ByteOracle oracle(s.fixture.path());
    s.Save();
    EXPECT_EQ(oracle.Now()[0x38EE50 + 9], behaviour);
  }
}

TEST(EventWorkspaceTest, AnIndexThatNamesNoRowOfAListChangesNothing) {
  Session s(test::EventFixtureRom("AXVE"));
  s.PickEvent(2);
  const Form1 before = s.form;
  for (const int index : {-1, 412, INT32_MIN, INT32_MAX}) {
    SetCombo1Selection(s.form, index);
    SetCombo2Selection(s.form, index);
    SetCombo3Selection(s.form, s.rom, s.dialogs, index);
    SetCombo4Selection(s.form, s.rom, s.dialogs, index);
  }
  const auto shown = [](const Form1& f) {
    return std::vector<std::string>{f.Combo1.text, f.Combo2.text, f.Combo3.text, f.Combo4.text, f.whee,
                                    f.hoobla.text, f.behavtxt, f.spritetxt.text, std::to_string(f.Combo1.selected)};
  };
  EXPECT_EQ(shown(s.form), shown(before));
  EXPECT_THAT(s.dialogs.messages, IsEmpty());
}

TEST(EventWorkspaceTest, TheWordLoadOfRubyAndSapphirePutsTheFlagBack) {
  for (const auto& [code, event, flag] : {std::tuple{"AXPE", 5, "&H805"}, {"BPRE", 1, "&H1"}}) {
    Session s(test::EventFixtureRom(code));
    s.PickEvent(event);
    s.form.flagtxt.text = "&H1";
    LoadEventWords(s.form, s.rom, s.dialogs);
    EXPECT_EQ(s.form.flagtxt.text, flag) << code;
  }
}

TEST(EventWorkspaceTest, AFamilyOfNoGameAnswersThatItHasNoWords) {
  Session s(test::EventFixtureRom("AXVE"));
  s.PickEvent(1);
  s.form.cowmoo = "e";
  LoadEventWords(s.form, s.rom, s.dialogs);
  SaveEventWords(s.form, s.rom, s.dialogs);
  EXPECT_THAT(s.dialogs.MessageTexts(), ElementsAre("Load not supported", "Save not supported"));
}

}  // namespace
}  // namespace tessarine
