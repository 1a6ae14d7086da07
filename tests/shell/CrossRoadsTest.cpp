// Roads that cross windows and files: what one tool, an Open ROM or another program does
// between a form's load and its action. Each road ends with the sentence it must say (or
// none) and the exact bytes the file may have changed, by the whole-file byte oracle.

#include <filesystem>
#include <fstream>
#include <span>

#include "events/EventWords.h"
#include "rom/FilePath.h"
#include "support/ReadOnlyFile.h"
#include "support/Tests.h"
#include "support/WriteLimit.h"

namespace tessarine {
namespace {

// The program with no windows, on one file whose bytes the roads change as other programs do.
struct Desk : test::MainSession {
  FixtureRom ruby = Fixture({"AXVE", 0}), fireRed = Fixture({"BPRE", 0}), unknown{"ZZZZ"};
  const std::string path = ToPathText(test::TemporaryPath("rom.gba"));
  bool runs = true;  // false where this system cannot make the road: a file renamed over the open one, or read-only

  // A game's events and names, with item names and a fly record of its own.
  static FixtureRom Fixture(const GameIdentity& game) {
    FixtureRom rom = test::EventFixtureRom(game);
    const test::GameOffsets& at = test::OffsetsOf(game);
    rom.PutName(at.items + 13 * 44, "Tinsel", 14).PutBytes(at.flyTable + 8 * 8, {1, 2, 3, 4, 5, 6, 7, 8});
    return rom;
  }
  Desk() { Put(ruby); }
  ~Desk() {
    rom.Close();
    std::filesystem::remove(ToFilePath(path));
  }
  // The file at the path takes the fixture's bytes: written in place, as by a program that
  // overwrites, or renamed over it from a new file, as by one that saves a copy and renames.
  void Put(FixtureRom& from, bool renamed = false) {
    const std::string written = renamed ? path + ".new" : path;
    std::ofstream(ToFilePath(written), std::ios::binary | std::ios::in | std::ios::out | std::ios::trunc)
        .write(reinterpret_cast<const char*>(from.image().data()), static_cast<std::streamsize>(from.image().size()));
    if (renamed) runs = runs && test::RenameOver(written, path);
  }
  void Open(FixtureRom& from, std::optional<WindowName> window = {}) {
    Put(from);
    MainSession::Open(path);
    if (window) Show(*window);
  }
};

// Each road: its name, what it does (the last step, `act`, is the action whose writes are checked), the bytes of the
// file at the path that may change, counted from the state before that last step, and what it says (a part of the
// sentence that ends it, or of the last message; "" for none).
using Road = std::tuple<const char*, std::function<void(Desk&)>, std::function<void(Desk&)>, std::vector<ByteRange>,
                        const char*>;

void GiftOnFireRed(Desk& d) {
  d.Open(d.fireRed, WindowName::Form5);
  SetCombo1Selection(d.session.form5, 0x19);
  SetCombo3Selection(d.session.form5, 5);
  SetCombo2Selection(d.session.form5, 13);
  std::tie(d.session.form5.Text3.text, d.session.form5.Text12.text) = std::pair("&H700000", "&H7A0000");
}

// `save`, with the system refusing every write from `limit` bytes into a file on.
std::function<void(Desk&)> RefusedFrom(std::uint64_t limit, void (*save)(Desk&)) {
  return [=](Desk& d) {
#ifndef _WIN32
    const test::WriteLimit refused(limit);
    save(d);
#else
    static_cast<void>(d), static_cast<void>(limit), static_cast<void>(save);
#endif
  };
}
void Gift(Desk& d) {
  d.dialogs.inputAnswers = {"AB"};
  InsertGivePokemon(d.session.form5, d.form, d.rom, d.dialogs);
}
void StartersOnFireRed(Desk& d) {
  d.Open(d.fireRed, WindowName::Form2);
  SetCombo1Selection(d.session.form2, 0x19);
}
void SaveStarters(Desk& d) { PressSave(d.session.form2, d.form, d.rom, d.dialogs); }
void SaveLanding(Desk& d) { PressSavebutton(d.session.form8, d.rom, d.form, d.dialogs); }
void EventOnRuby(Desk& d) {
  d.Open(d.ruby);
  d.PickEvent(1);
  d.form.spritetxt.text = "&H50";
}

// Form4's script written at &H700000, its message typed for &H38EE50, over data; while the
// free-space question that follows stands (answered No), another program does `meanwhile`.
std::function<void(Desk&)> ScriptThen(void (*meanwhile)(Desk&)) {
  return [=](Desk& d) {
    d.Open(d.ruby, WindowName::Form4);
    SetCombo3Selection(d.session.form4, 5);
    d.session.form4.Text3.text = "&H700000", d.session.form4.Text12.text = "&H38EE50";
    d.dialogs.whileAsked = [&d, meanwhile] { d.dialogs.whileAsked = [&d, meanwhile] { meanwhile(d); }; };
  };
}
void InsertMessage(Desk& d) { InsertWildBattle(d.session.form4, d.form, d.rom, d.dialogs); }

const Road kRoads[] = {
    {"a rename keeps the words of the event picked before it",
     [](Desk& d) {
       EventOnRuby(d);
       d.form.hoobla2.text = "&H19";  // a typed cry survives the rename
       d.Menu(MenuEntry::mnuedipmon, {"&H19", "PIKA"});
     },
     [](Desk& d) { d.form.Text1.text = "&H0", d.Save(); },
     {{0x38EE51, 1}, {0xA00108, 2}},  // sprite &H50; the cry typed (&H19 over &H181); the species kept
     ""},
    {"a list refilled for another window shows its item and writes nothing until the form is opened",
     [](Desk& d) {
       GiftOnFireRed(d);
       d.Open(d.ruby, WindowName::Form3);  // takes the item list from the give-Pokemon form on show
       EXPECT_EQ(d.session.form5.Text2.text, "&H0000");
     },
     [](Desk& d) { InsertGivePokemon(d.session.form5, d.form, d.rom, d.dialogs); }, {},
     "This window was filled before the last Open ROM"},
    {"after Quit the builders' item list is empty, and says why once",
     [](Desk& d) {
       GiftOnFireRed(d);
       d.Open(d.unknown);
       PressQuit(d.session.form9, d.dialogs);
     },
     [](Desk& d) {
       d.Show(WindowName::Form4);
       EXPECT_TRUE(d.session.form4.Combo2.rows.empty() && d.session.form5.Combo2.rows.empty());
       EXPECT_EQ(d.dialogs.messages.size(), 1u);
     },
     {}, "The name tables of the ROM that is open are not known"},
    {"after an unknown game the event Load reads nothing at the offsets of the game before",
     [](Desk& d) {
       d.Open(d.fireRed);
       d.PickEvent(1);
       d.Open(d.unknown);
       PressContinue(d.session.form9, d.form, d.dialogs);
       EXPECT_FALSE(d.form.frlgl.enabled || d.form.Combo4.enabled);
     },
     [](Desk& d) { LoadEventWords(d.form, d.rom, d.dialogs); }, {}, "Pick an event in the list before loading"},
    {"a gift from a window of the ROM before writes nothing", GiftOnFireRed,
     [](Desk& d) {
       d.MainSession::Open(d.path);  // the same file, opened again
       InsertGivePokemon(d.session.form5, d.form, d.rom, d.dialogs);
     },
     {}, "This window was filled before the last Open ROM"},
    {"a landing picked on FireRed is not saved into Ruby",
     [](Desk& d) {
       d.Open(d.fireRed, WindowName::Form8);
       SelectLocation(d.session.form8, d.rom, d.form, FlyList::kanto, 8);
       std::tie(d.session.form8.XXt.text, d.session.form8.YYt.text) = std::pair("&H15", "&H22");
       d.Open(d.ruby);
     },
     SaveLanding, {}, "Pick a location, or press \"Load\""},
    {"after Quit the name editors write no table of the game before",
     [](Desk& d) {
       d.Open(d.fireRed);
       d.Menu(MenuEntry::mnuediten, {"&H1", "AB"});  // the item table of FireRed is known
       d.Open(d.unknown);
       PressQuit(d.session.form9, d.dialogs);
     },
     [](Desk& d) {
       EXPECT_THAT(test::FailureOf([&] { d.Menu(MenuEntry::mnuediten, {"&H1", "AB"}); }), HasSubstr("not known"));
       d.Menu(MenuEntry::mnuedipmon, {"&H1", "AB"});
     },
     {}, "The name tables of the ROM that is open are not known"},
    {"a table the dialog put in the header takes no name",
     [](Desk& d) {
       d.Open(d.unknown);
       PressContinue(d.session.form9, d.form, d.dialogs);  // both fields at their "&H000000"
       EXPECT_THAT(d.dialogs.MessageTexts().back(), HasSubstr("Item Names: \"&H000000\" lies inside the cartridge header"));
     },
     [](Desk& d) { d.Menu(MenuEntry::mnuediten, {"&H0", "TONIC"}); }, {},
     "Item Names: \"&H000000\" lies inside the cartridge header"},
    {"no ROM opened yet: both editors say so and ask nothing", [](Desk&) {},
     [](Desk& d) {
       EXPECT_EQ(test::FailureOf([&] { d.Menu(MenuEntry::mnuediten); }),
                 test::FailureOf([&] { d.Menu(MenuEntry::mnuedipmon); }));
       EXPECT_TRUE(d.dialogs.inputs.empty());
       d.Menu(MenuEntry::mnuediten);
     },
     {}, "No ROM is open. Open a ROM first."},
    {"a renamed item shows in the next form that lists it", [](Desk& d) { d.Open(d.fireRed, WindowName::Form3); },
     [](Desk& d) {
       d.Menu(MenuEntry::mnuediten, {"&HD", "Amber"});
       d.Show(WindowName::Form4);
       EXPECT_EQ(d.session.form4.Combo2.rows.at(13), "00D - Amber" + std::string(8, ' '));
     },
     {{0x3DB028 + 13 * 44, 14}}, ""},
    {"a file renamed over the open one takes no save",
     [](Desk& d) {
       d.Open(d.ruby, WindowName::Form2);
       d.Put(d.ruby, true);  // another program saved a copy and renamed it over the file
     },
     SaveStarters, {}, "is no longer the file that was opened"},
    {"a script written before a file was renamed over the open one is said to be in the file as it was opened",
     ScriptThen([](Desk& d) { d.Put(d.ruby, true); }), InsertMessage, {},
     "Written before it stopped, into the file as it was opened: 20 bytes at &H700000 (the script); the file now at "
     "that path holds none of them. Not written: 2 bytes at &H38EE50 (the message)."},
    {"a script written before the open file was cut short is said to be in the file as it was opened",
     ScriptThen([](Desk& d) { std::filesystem::resize_file(ToFilePath(d.path), 0x600000); }), InsertMessage,
     {{0x600000, 0xA00000}}, "20 bytes at &H700000 (the script); the file at that path now ends at &H600000"},
    {"a read-only ROM is refused before any question",
     [](Desk& d) {
       const test::ReadOnlyFile readOnly(d.path);
       d.runs = readOnly.works();
       d.MainSession::Open(d.path);
     },
     [](Desk& d) {
       d.Menu(MenuEntry::mnuedipmon);
       EXPECT_TRUE(d.dialogs.inputs.empty());
     },
     {}, "open read-only"},
    {"a file overwritten in place by another game takes no name",
     [](Desk& d) {
       d.Open(d.ruby);
       d.Put(d.fireRed);
     },
     [](Desk& d) { d.Menu(MenuEntry::mnuedipmon, {"&H1", "AB"}); }, {},
     "no longer names the game that was opened (AXVE): it now reads \"BPRE\""},
    {"a landing whose load failed is saved only once a load reads it",
     [](Desk& d) {
       d.Open(d.ruby, WindowName::Form8);
       SelectLocation(d.session.form8, d.rom, d.form, FlyList::hoenn, 8);
       std::filesystem::resize_file(ToFilePath(d.path), 0x300000);
       EXPECT_THAT(test::FailureOf([&] { SelectLocation(d.session.form8, d.rom, d.form, FlyList::hoenn, 9); }),
                   HasSubstr("does not lie wholly inside the ROM"));
       EXPECT_EQ(d.session.form8.BL.caption + d.session.form8.XXt.text, "B:0&H00");
       EXPECT_FALSE(d.session.form8.Image1.visible || d.session.form8.Shape2.visible);
       d.Put(d.ruby);  // the whole ROM again, in place
     },
     SaveLanding, {}, "its last read failed. Pick a location, or press \"Load\""},
    {"starters past the end of a short ROM show no value, and are saved only once read",
     [](Desk& d) {
       d.Open(d.ruby);
       std::filesystem::resize_file(ToFilePath(d.path), 0x300000);
       EXPECT_THAT(test::FailureOf([&] { d.Show(WindowName::Form2); }), HasSubstr("past the end of the file"));
       EXPECT_EQ(d.session.form2.Combo1.selected, -1);
       EXPECT_EQ(d.session.form2.Combo1.text, "");
       d.Put(d.ruby);  // the whole ROM again, in place: the same file and game
     },
     SaveStarters, {}, "its last read failed. Press \"Reload\""},
};

// Actions that write in steps, stopped by the system part way through: after a piece, or inside one.
const Road kStoppedRoads[] = {
    {"a gift stopped at its third write says what it wrote", GiftOnFireRed, RefusedFrom(0x70005D, Gift),
     {{0x700000, 83}},
     "Written before it stopped: 83 bytes at &H700000 (the body and the declined branch). Not written: 9 bytes at "
     "&H70005D (the no-room branch), 48 bytes at &H700067 (the declined text and the no-room text) and the question "
     "at &H7A0000."},
    {"a gift stopped inside its body says which of its bytes it wrote", GiftOnFireRed, RefusedFrom(0x70004A, Gift),
     {{0x700000, 74}}, "Written before it stopped: the first 74 of the 76 bytes at &H700000 (the body). Not written: "
     "the last 2 of the 76 bytes at &H700000 (the body), 9 bytes at &H70004A (the declined branch), 9 bytes"},
    {"a gift stopped inside its declined text", GiftOnFireRed, RefusedFrom(0x700070, Gift),
     {{0x700000, 83}, {0x70005D, 9}, {0x700067, 9}}, "&H70005D (the no-room branch) and the first 9 of the 35 bytes at "
     "&H700067 (the declined text). Not written: the last 26 of the 35 bytes at &H700067 (the declined text), 38 bytes "
     "at &H700071 (the no-room text) and the question at &H7A0000."},
    {"starters stopped at their second write say what they wrote", StartersOnFireRed, RefusedFrom(0x169D82, SaveStarters),
     {{0x169BB5, 2}}, "Written before it stopped: 2 bytes at &H169BB5 (Ball 1). Not written: 2 bytes at &H169D82 "
                      "(Ball 2) and 2 bytes at &H169DB8 (Ball 3)."},
    {"a starter word stopped half way", StartersOnFireRed, RefusedFrom(0x169BB6, SaveStarters), {{0x169BB5, 1}},
     "Written before it stopped: the first byte of the 2 bytes at &H169BB5 (Ball 1). Not written: the last byte of "
     "the 2 bytes at &H169BB5 (Ball 1), 2 bytes at &H169D82 (Ball 2) and 2 bytes at &H169DB8 (Ball 3)."},
    {"a braille insert stopped before its script says what it wrote",
     [](Desk& d) {
       d.Open(d.ruby, WindowName::Form6);
       Form6& f = d.session.form6;
       for (TextBox* field : {&f.postionleft, &f.postiontop, &f.msgboxleft, &f.msgboxtop, &f.brailleleft, &f.brailletop}) {
         field->text = "0";
       }
       SetText1(f, "A");
       std::tie(f.Text2.text, f.Text3.text) = std::pair("&H700000", "&H800000");
     },
     RefusedFrom(0x800000, [](Desk& d) {
       d.dialogs.messageAnswers = {MessageAnswer::Yes};
       PressInsert(d.session.form6, d.form, d.rom, d.dialogs);
     }),
     {{0x700000, 7}, {0x700008, 1}},  // the 0xFF end byte stood there already
     "Written before it stopped: 9 bytes at &H700000 (the braille record). Not written: 8 bytes at &H800000 (its "
     "script)."},
    {"an event save stopped at its words says what it wrote", EventOnRuby, RefusedFrom(0xA00000, [](Desk& d) { d.Save(); }),
     {{0x38EE51, 1}},
     "Written before it stopped: 22 bytes at &H38EE50 (the person record). Not written: 2 bytes at &HA00103 (the "
     "Pokemon word) and the Cry word at &HA00108."},
    {"an event save stopped inside its person record", EventOnRuby, RefusedFrom(0x38EE52, [](Desk& d) { d.Save(); }),
     {{0x38EE51, 1}},
     "Written before it stopped: the first 2 of the 22 bytes at &H38EE50 (the person record). Not written: the last "
     "20 of the 22 bytes at &H38EE50 (the person record), the Pokemon word at &HA00103 and the Cry word at &HA00108."},
};

void Walk(std::span<const Road> roads) {
  for (const auto& [name, before, act, changes, says] : roads) {
    SCOPED_TRACE(name);
    Desk d;
    before(d);
    d.dialogs.messages.clear();
    const test::ByteOracle oracle(d.path);
    std::string said = test::FailureOf([&] { act(d); });
    if (!d.runs) {  // nothing to refuse where no other program can replace the open file, say
      ::testing::Test::RecordProperty("cannot run here", name);
      continue;
    }
    if (said.empty() && !d.dialogs.messages.empty()) said = d.dialogs.messages.back().text;
    EXPECT_THAT(said, HasSubstr(says));
    EXPECT_EQ(*says == '\0', said.empty()) << said;
    EXPECT_EQ(oracle.Changes(), changes);
  }
}

TEST(CrossRoadsTest, EachRoadWritesOnlyItsBytesAndSaysWhatHappened) { Walk(kRoads); }

TEST(CrossRoadsTest, AnActionStoppedPartWaySaysWhatItWroteAndWhatNot) {
#ifdef _WIN32
  GTEST_SKIP() << "Windows has no limit on the size of a file a process writes";
#endif
  Walk(kStoppedRoads);
}

// A person may take their time over the question before a write: a game written over the file
// meanwhile takes none of the bytes meant for the ROM opened.
TEST(CrossRoadsTest, AFileChangedWhileAQuestionStandsTakesNoByte) {
  Desk d;
  d.Open(d.ruby, WindowName::Form3);
  d.session.form3.Text3.text = "&H38EE50";  // a person record: no free space
  d.dialogs.messageAnswers = {MessageAnswer::Yes};
  d.dialogs.whileAsked = [&] { d.Put(d.fireRed); };
  EXPECT_THAT(test::FailureOf([&] { InsertWildBattle(d.session.form3, d.form, d.rom, d.dialogs); }),
              HasSubstr("no longer names the game that was opened (AXVE)"));
  EXPECT_EQ(test::ReadWholeFile(d.path), d.fireRed.image());
}

}  // namespace
}  // namespace tessarine
