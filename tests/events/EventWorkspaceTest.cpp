#include "events/EventSelection.h"
#include "events/EventWords.h"
#include "events/PersonRecord.h"
#include "rom/HexField.h"
#include "support/Tests.h"

namespace tessarine {
namespace {

MainSession On(const GameIdentity& game, void (*prepare)(FixtureRom&) = nullptr) {
  FixtureRom fixture = test::EventFixtureRom(game);
  if (prepare) prepare(fixture);
  return MainSession(std::move(fixture));
}

std::string Hex(std::uint32_t value) { return ToHexText(static_cast<std::int32_t>(value)); }

// What a person sees of an event, in the window's order.
std::vector<std::string> Fields(const Form1& f) {
  return {f.spritetxt.text, f.behavtxt,   std::to_string(f.Combo2.selected), f.scriptpointxt.text, f.Text3.text,
          f.flagtxt.text,   f.whee,       std::to_string(f.Combo1.selected), f.Text1.text,         f.Text2.text,
          f.hoobla.text,    f.hoobla2.text};
}

// Every event of every game: the fields after the pick; a load of the words, which puts the
// Flag back in Ruby, Sapphire and Emerald only; a save of a new sprite, movement, flag and species
// that changes exactly the record's three fields and the two words; a second pick reads them back.
TEST(EventWorkspaceTest, EachEventOfEachGameLoadsAndSavesItsOwnBytes) {
  for (const GameIdentity& game : test::AllGames()) {
    for (const test::FixtureEvent& e : test::FixtureEvents(game)) {
      SCOPED_TRACE(ShownIdentity(game) + " " + std::string(e.name));
      MainSession s = On(game);
      s.PickEvent(e.index);
      const bool hasWords = e.firstAt >= 0;
      const int followed = !hasWords ? 0 : e.listFollowsSecond ? e.second : e.first;  // no words: as the open left it
      const std::string word = hasWords ? Hex(static_cast<std::uint32_t>(followed)) : "&H0000";
      const Form1& f = s.form;
      EXPECT_EQ(Fields(f), (std::vector<std::string>{Hex(e.record.sprite), ToHexText(e.record.behaviour),
                                                     std::to_string(e.record.behaviour), Hex(e.script), Hex(e.script),
                                                     Hex(e.record.flag), std::to_string(e.index),
                                                     std::to_string(followed), word, word, word, word}));
      EXPECT_EQ(f.personOffset, Hex(e.person));
      EXPECT_EQ(f.scripteh, Hex(e.record.scriptPointer - 0x08000000));  // the constant, where there is one, is not
      EXPECT_EQ((std::array{f.hoobla.visible, f.hoobla2.visible, f.Text1.visible, f.Text2.visible}),
                (std::array{e.showsHoobla, e.showsHoobla, !e.showsHoobla, !e.showsHoobla}));
      const std::string deoxys = "Sorry But script Loading for this Pokemon is not yet supported.";
      EXPECT_EQ(s.dialogs.MessageTexts(), std::vector<std::string>(e.index > 0 && !hasWords ? 1 : 0, deoxys));
      s.form.flagtxt.text = "&H1";
      LoadEventWords(s.form, s.rom, s.dialogs);
      EXPECT_EQ(s.form.flagtxt.text, test::OffsetsOf(game).family != "frlg" ? Hex(e.record.flag) : "&H1");

      s.dialogs.messages.clear();
      const ByteOracle oracle(s.fixture->path());
      s.form.spritetxt.text = "&H1F2";
      SetCombo2Selection(s.form, 11);
      s.form.flagtxt.text = "&HABCD";
      SetCombo1Selection(s.form, 0xFF);  // both bytes differ from every fixture word
      s.Save();
      test::WrittenRuns written = {{e.person + 1, "F2 01"}, {e.person + 9, "0B"}, {e.person + 20, "CD AB"}};
      for (const int at : {e.firstAt, e.secondAt}) {
        if (at >= 0) written.emplace_back(e.script + static_cast<std::uint32_t>(at), "FF 00");
      }
      std::ranges::sort(written);
      EXPECT_EQ(oracle.Written(), written);
      EXPECT_THAT(s.dialogs.messages, IsEmpty());
      s.form.spritetxt.text = "&H7";
      s.PickEvent(e.index);
      EXPECT_EQ(Fields(s.form)[0] + Fields(s.form)[7], "&H1F2255");
    }
  }
}

// Refused before the first write: the sentence names the field, and nothing changes, also
// not the sprite that each save here would write. Where the word fields hold no species of
// the event, a pick of a species or a load of the words lets the save run again.
TEST(EventWorkspaceTest, ASaveThatCannotRunIsRefusedBeforeAnyWrite) {
  struct Row {
    const char* says;
    void (*edit)(MainSession&);
    void (*prepare)(FixtureRom&) = nullptr;
    const char* loadFails = "";
    void (*allow)(MainSession&) = nullptr;
    test::WrittenRuns then = {};  // what the allowed save writes: the sprite, and the words
  };
  const Row rows[] = {
      {"Behavior: \"&H100\"", [](MainSession& s) { s.form.behavtxt = "&H100"; }},
      {"Flag: \"&H10000\"", [](MainSession& s) { s.form.flagtxt.text = "&H10000"; }},
      {"Sprite: \"sprite\"", [](MainSession& s) { s.form.spritetxt.text = "sprite"; }},
      {"no event was picked since the ROM now open was opened",  // the fields are not this open's, loaded or not
       [](MainSession& s) {
         s.Open(s.fixture->path());
         EXPECT_EQ(test::FailureOf([&] { LoadPerson(s.form, s.rom, s.dialogs); }),
                   "Pick an event in the list before loading: no event was picked since the ROM now open was opened, "
                   "and the event fields may hold offsets that do not belong to it.");
       }},
      {"Script: \"abc\"", [](MainSession& s) { s.form.scriptpointxt.text = "abc"; }},
      {"Script: \"&H7FFFFFFF\"", [](MainSession& s) { s.form.scriptpointxt.text = "&H7FFFFFFF"; }},
      {"Script: \"-5\"", [](MainSession& s) { s.form.scriptpointxt.text = "-5"; }},
      {"The Pokemon word at &HA00103 holds &H19C, which is no species number, so the Pokemon list was not moved",
       [](MainSession& s) {  // Regiice's species stays listed
         EXPECT_EQ(Fields(s.form)[7] + Fields(s.form)[8] + Fields(s.form)[10], "388&H19C&H0000");
       },
       [](FixtureRom& f) { f.PutWord(0xA00103, 412); }, "", [](MainSession& s) { SetCombo1Selection(s.form, 0x20); },
       {{0x38EE51, "F2 01"}, {0xA00108, "20 00"}}},  // the first word is no species: left alone
      {"The words of this event were not loaded",  // a null script pointer fails the load after the person fields
       [](MainSession& s) {
         EXPECT_EQ(Fields(s.form)[1] + Fields(s.form)[3] + Fields(s.form)[4], "&H2&HF8000000&HF8000000");
         s.form.scriptpointxt.text = "&HA00100";
       },
       [](FixtureRom& f) { f.PutLong(0x38EE50 + 16, 0); }, "&HF8000003",
       [](MainSession& s) { LoadEventWords(s.form, s.rom, s.dialogs); },  // the Load beside Script
       {{0x38EE51, "F2 01"}, {0xA00108, "01"}}},
      {"its last load stopped before it reached the Flag",  // a picked species frees the words, not the Flag
       [](MainSession& s) { SetCombo1Selection(s.form, 0x20); },
       [](FixtureRom& f) { f.PutLong(0x38EE50 + 16, 0x80000000); }, "does not lead into the ROM"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.says);
    MainSession s = On({"AXVE", 0}, row.prepare);
    s.PickEvent(4);  // Regiice, then Rayquaza
    EXPECT_THAT(test::FailureOf([&] { s.PickEvent(1); }), HasSubstr(row.loadFails));
    s.form.spritetxt.text = "&H1F2";
    row.edit(s);
    const ByteOracle oracle(s.fixture->path());
    EXPECT_THAT(s.SaveFailure(), AllOf(HasSubstr(row.says), HasSubstr("Nothing was written.")));
    EXPECT_THAT(oracle.Changes(), IsEmpty());
    if (row.allow == nullptr) continue;
    row.allow(s);
    s.Save();
    EXPECT_EQ(oracle.Written(), row.then);
  }
}

const Bytes kBattle{0x6A, 0x5A, 0xB6, 0x96, 0x01, 0x46, 0x00, 0x00, 0x30, 0xA1, 0x96, 0x01, 0x02};
constexpr std::uint32_t kScript = 0xB00000;

void Lay(FixtureRom& f, std::uint32_t person, std::uint32_t at, const Bytes& script) {
  f.PutLong(person + 16, at + 0x08000000).PutBytes(at, script);
}

// What a save writes, and what it says. A word field that is no word or no species number stops the save at that word;
// a word whose place in the ROM holds no species number now is left as it is (a cry kept a byte or two behind its place
// leaves opcodes there, and a word may run past the end of the file).
TEST(EventWorkspaceTest, ASaveWritesWhatTheFieldsSayAndNothingElseAndSaysWhatItLeft) {
  using Row = std::tuple<const char*, int, void (*)(FixtureRom&), void (*)(MainSession&), test::WrittenRuns,
                         std::vector<std::string>>;
  const auto pick = [](MainSession& s) { SetCombo1Selection(s.form, 0xAB); };
  const std::string tail = ", and writing a species there would break the event's script. ";
  const Row rows[] = {
      {"AXVE", 1, [](FixtureRom& f) { f.PutWord(0x1003, 0x0196).PutWord(0x1008, 0x0199); },
       [](MainSession& s) {  // another script offset moves the words, never the person's pointer
         s.form.scriptpointxt.text = "&H1000";
         LoadEventWords(s.form, s.rom, s.dialogs);  // the Load button of the words
         EXPECT_EQ(Fields(s.form)[8] + Fields(s.form)[9] + Fields(s.form)[11], "&H196&H196&H196");
       },
       {{0x1008, "96"}}, {}},  // the cry becomes the species
      {"AXVE", 3, [](FixtureRom&) {}, [](MainSession& s) { s.form.hoobla2.text = "&HXYZ"; }, {{0x15DE26, "33 00"}},
       {"Cry: \"&HXYZ\" is no species number. Type one from &H0 to &H19B",
        "Written before it stopped: 22 bytes at &H38D880 (the person record) and 2 bytes at &H15DE26 (the Pokemon "
        "word). Not written: the Cry word at &H15DE2D."}},
      {"AXVE", 3, [](FixtureRom&) {}, [](MainSession& s) { s.form.hoobla2.text = "&HFFFF"; }, {{0x15DE26, "33 00"}},
       {"Cry: \"&HFFFF\" is no species number", "(the Pokemon word). Not written: the Cry word at &H15DE2D."}},
      {"AXVE", 2, [](FixtureRom& f) { f.PutWord(0x160BF4, 0x7FFF); },
       [](MainSession& s) { s.form.hoobla2.text = "&HZZ"; },
       {},  // a word left alone, then a bad one: both are named as not written, and why the first
       {"Not written: the Pokemon word at &H160BF4 and the Cry word at &H160BCE. The Pokemon word was left as it is: at "
        "&H160BF4 stands &H7FFF"}},
      {"AXVE", 2, [](FixtureRom&) {}, [](MainSession& s) { s.form.hoobla.text = "&H19C"; }, {},
       {"Pokemon: \"&H19C\" is no species number",
        "Written before it stopped: 22 bytes at &H391E78 (the person record). Not written: the Pokemon word at "
        "&H160BF4 and the Cry word at &H160BCE."}},
      {"AXVE", 1, [](FixtureRom& f) { Lay(f, 0x38EE50, kScript, kBattle); }, pick, {{kScript + 3, "AB 00"}},
       {"The Cry word was left as it is: at &HB00008 stands &HA130, which is no species number (&H0 to &H19B)" + tail +
        "The person record and the Pokemon word were saved."}},
      {"BPRE", 4,  // Mewtwo: 0xA1 at distance 20, the species at 21 and at 41
       [](FixtureRom& f) {
         Bytes mewtwo(43, 0x00);
         mewtwo[20] = 0xA1, mewtwo[21] = 0x96, mewtwo[41] = 0x96;
         Lay(f, 0x3B177C, kScript, mewtwo);
       },
       pick, {{kScript + 41, "AB"}},
       {"The Cry word was left as it is: at &HB00014 stands &H96A1, which is no species number (&H0 to &H19B)" + tail +
        "The person record and the Pokemon word were saved."}},
      {"AXPE", 1,  // species numbers at both places: written as always, with no message
       [](FixtureRom& f) { Lay(f, 0x38EDE0, kScript, {0xFF, 0xFF, 0xFF, 0x19, 0x00, 0xFF, 0xFF, 0xFF, 0x9B, 0x01}); },
       pick, {{kScript + 3, "AB"}, {kScript + 8, "AB 00"}}, {}},
      {"AXVE", 1, [](FixtureRom& f) { Lay(f, 0x38EE50, kScript, kBattle); },
       [](MainSession& s) { s.form.scriptpointxt.text = "&HB00100"; }, {},  // nothing but 0xFF there
       {"The Pokemon and Cry words were left as they are: at &HB00103 stands &HFFFF and at &HB00108 stands &HFFFF, "
        "which are no species numbers (&H0 to &H19B)" + tail + "The person record was saved."}},
      {"AXVE", 1,  // the file ends inside the Cry word: nothing is written, the person record neither
       [](FixtureRom& f) { Lay(f, 0x38EE50, FixtureRom::kSize - 9, Bytes(kBattle.begin(), kBattle.begin() + 9)); }, pick,
       {},
       {"Script: \"&HFFFFF7\": the Cry word, 2 bytes from &HFFFFFF, would run past the end of the ROM, which is "
        "&H1000000 bytes long. Nothing was written."}},
  };
  for (const auto& [code, event, prepare, edit, written, says] : rows) {
    SCOPED_TRACE(std::string(code) + " " + std::to_string(event) + (says.empty() ? "" : says[0]));
    MainSession s = On({code, 0}, prepare);
    s.PickEvent(event);
    SetCombo1Selection(s.form, 0x33);
    const ByteOracle oracle(s.fixture->path());
    edit(s);
    std::string said = s.SaveFailure();
    for (const std::string& message : s.dialogs.MessageTexts()) said += message;
    for (const std::string& part : says) EXPECT_THAT(said, HasSubstr(part));
    EXPECT_EQ(said.empty(), says.empty()) << said;
    EXPECT_EQ(oracle.Written(), written);
  }
}

// The list row follows the movement byte (a byte with no row leaves the list where it was), and a
// save keeps the byte as it was read.
TEST(EventWorkspaceTest, MovementTypesFollowTheBehaviourByteAndASaveKeepsIt) {
  for (const auto& [behaviour, listRow] : {std::pair{0x00, 0}, {0x0A, 10}, {0x0B, 11}, {0x0C, 3}, {0x51, 3}}) {
    MainSession s(std::move(test::EventFixtureRom("AXVE").PutByte(0x38EE50 + 9, static_cast<std::uint8_t>(behaviour))));
    SetCombo2Selection(s.form, 3);
    s.PickEvent(1);
    EXPECT_EQ(Fields(s.form)[1] + Fields(s.form)[2], ToHexText(std::uint8_t(behaviour)) + std::to_string(listRow));
    const ByteOracle oracle(s.fixture->path());
    s.Save();
    EXPECT_EQ(oracle.Written(), (test::WrittenRuns{{0xA00108, "01"}}));  // the cry takes the species; the byte stays
  }
}

TEST(EventWorkspaceTest, AnIndexThatNamesNoRowChangesNothing) {
  MainSession s = On({"AXVE", 0});
  s.PickEvent(2);
  const Form1 before = s.form;
  for (const int index : {-1, 412, INT32_MIN, INT32_MAX}) {
    SetCombo1Selection(s.form, index);
    SetCombo2Selection(s.form, index);
    SetCombo3Selection(s.form, s.rom, s.dialogs, index);
    SetCombo4Selection(s.form, s.rom, s.dialogs, index);
    SetCombo5Selection(s.form, s.rom, s.dialogs, index);
  }
  EXPECT_EQ(Fields(s.form), Fields(before));
  EXPECT_EQ(s.form.Combo1.text + s.form.Combo2.text + s.form.Combo3.text,
            before.Combo1.text + before.Combo2.text + before.Combo3.text);
}

}  // namespace
}  // namespace tessarine
