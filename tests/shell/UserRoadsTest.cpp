#include <algorithm>
#include <cstring>
#include <fstream>
#include <functional>
#include <map>
#include <random>
#include <regex>

#include "editors/NameEditors.h"
#include "rom/FilePath.h"
#include "rom/HexField.h"
#include "scripts/ListScript.h"
#include "shell/ScriptForms.h"
#include "support/ReadOnlyFile.h"
#include "support/Tests.h"
#include "support/WriteLimit.h"
#include "text/Braille2Text.h"
#include "text/Table2Text.h"
#include "text/mdlTextSapp.h"

#ifndef _WIN32
#include <sys/stat.h>
#endif

namespace tessarine {
namespace {

using Ranges = std::vector<ByteRange>;

// Every table of the six games lies below 6 MiB; the fixtures' event scripts in free space move down to 5 MiB.
constexpr std::int64_t kRomSize = 0x600000;

test::FixtureRom RoadRom(const GameIdentity& game) {
  test::FixtureRom rom(game.code, kRomSize, game.revision);
  if (!FindGameProfile(game) || !FindGameProfile(game)->Opens()) return rom;  // a game that Open ROM does not take
  test::PutSpeciesNames(rom, test::OffsetsOf(game).speciesNames);
  std::vector<test::FixtureEvent> events = test::FixtureEvents(game);
  for (test::FixtureEvent& e : events) {
    if (e.record.scriptPointer >= 0x08A00000) e.record.scriptPointer -= 0x500000;
    if (e.script >= 0xA00000) e.script -= 0x500000;
  }
  test::PutEvents(rom, events);
  return rom;
}

// A person at the keyboard with a die, in a session with no windows. Each action first names
// the bytes it may write, then picks rows, types into fields and presses the button. A careful
// person types good texts only (numbers in range, offsets of free space); a careless one also
// bad numbers and offsets at the end of the file, in its header or before its start.
struct User : test::MainSession {
  User(std::uint32_t seed, bool careful) : rng(seed), careful(careful) {}
  std::mt19937 rng;
  bool careful;

  int Die(std::int64_t sides) { return static_cast<int>(rng() % static_cast<std::uint32_t>(sides)); }
  static std::string Hex(std::int64_t value) { return ToHexText(static_cast<std::int32_t>(value)); }
  std::string Number(int top) {
    static const char* const kBad[] = {"", "&H", "abc", "12x", "-1", "&H123456789", "&HFFFF", "0x10"};
    return careful || Die(10) > 0 ? Hex(Die(top)) : kBad[Die(std::size(kBad))];
  }
  std::string Offset() {
    if (careful) return Hex(0x400000 + Die(0xF0000));  // free space in every game
    const std::string kinds[] = {Hex(kRomSize - Die(48)), Hex(Die(0xC0)), "&HF8000000", std::to_string(Die(kRomSize))};
    return Die(2) ? Number(kRomSize) : kinds[Die(4)];
  }
  std::string Text(std::string_view letters) {
    std::string text;
    for (int n = Die(25); n > 0; --n) text += letters[Die(std::ssize(letters))];
    return text;
  }
  // `length` bytes at `distance` from the offset in `text`; none when it is no offset.
  static ByteRange From(const std::string& text, std::int64_t distance, std::int64_t length) {
    std::int64_t at = -1;
    test::FailureOf([&] { at = ParseOffset(text) + distance; });
    return at < 0 ? ByteRange{0, 0} : ByteRange{static_cast<std::size_t>(at), static_cast<std::size_t>(length)};
  }
  template <typename Form>
  void Pick(Form& form, const ComboBox& list, void (*set)(Form&, int)) {
    if (!list.rows.empty()) set(form, Die(std::ssize(list.rows)));
  }
  void Type(std::initializer_list<TextBox*> fields, int top) {  // a Number into each field
    for (TextBox* field : fields) field->text = Number(top);
  }
  // A builder's fields, filled for all three forms at once; then the form's button.
  void Insert(WindowName window, Ranges& may) {
    if (careful || Die(4) > 0) Show(window);  // else the form on show, maybe of the ROM before
    Form3& f3 = session.form3;
    Form4& f4 = session.form4;
    Form5& f5 = session.form5;
    Type({&f3.pkmntxt, &f4.pkmntxt, &f5.pkmntxt, &f3.crytxt, &f4.crytxt, &f3.Text2, &f4.Text2}, 412);
    Type({&f5.Text2}, 347);
    Pick(f3, f3.Combo3, SetCombo3Selection);
    Pick(f4, f4.Combo3, SetCombo3Selection);
    Pick(f5, f5.Combo3, SetCombo3Selection);
    f3.Text3.text = f4.Text3.text = f5.Text3.text = Offset();
    f4.Text12.text = f5.Text12.text = Offset();
    const bool ready = Die(2);  // "Game-ready script" ticked
    f3.Check1.checked = f4.Check1.checked = f5.Check1.checked = ready;
    const std::string message = Text("ABC xyz[N]\\p&");
    dialogs.inputAnswers = {message};
    if (Die(2)) {  // Find Free Space beside each offset field first; the text's asks for the message
      test::FailureOf([&] {
        if (window == WindowName::Form3) PressFindScriptSpace(f3, rom, dialogs);
        if (window == WindowName::Form4) PressFindTextSpace(f4, rom, dialogs), PressFindScriptSpace(f4, rom, dialogs);
        if (window == WindowName::Form5) PressFindTextSpace(f5, rom, dialogs), PressFindScriptSpace(f5, rom, dialogs);
      });
      dialogs.inputAnswers = {message};
    }
    // The free-space questions, answered either way (an "Inserted" takes an answer that is left).
    dialogs.messageAnswers = {Die(2) ? MessageAnswer::Yes : MessageAnswer::No, Die(2) ? MessageAnswer::Yes : MessageAnswer::No};
    const std::string at = window == WindowName::Form3 ? f3.Text3.text : window == WindowName::Form4 ? f4.Text3.text : f5.Text3.text;
    const ByteRange text = From(window == WindowName::Form4 ? f4.Text12.text : f5.Text12.text, 0,
                                std::ssize(EncodeMessageText(message)) + (ready ? 1 : 2));
    if (window == WindowName::Form3) {
      may = {From(at, 0, ready ? 18 : 13)};
      InsertWildBattle(f3, form, rom, dialogs);
    } else if (window == WindowName::Form4) {
      may = {From(at, 0, ready ? 26 : 20), text};
      InsertWildBattle(f4, form, rom, dialogs);
    } else {  // the body and the declined branch over its last two bytes, the no-room branch, the two texts
      may = ready ? Ranges{From(at, 0, 160), text} : Ranges{From(at, 0, 83), From(at, 93, 9), From(at, 103, 48), text};
      InsertGivePokemon(f5, form, rom, dialogs);
    }
  }
  // Only the bytes the encoder gives for the name as cut or filled: "[PK]" is four characters and one byte.
  void Rename(bool item, Ranges& may) {
    const std::string entry = Number(item ? 347 : 412), name = Text("ABCxyz 019[PK]\\h");
    dialogs.inputAnswers = {entry, name};
    if (item) RequireForm5Loaded(session);  // where the action finds the item table
    may = {From(item ? form.itemRecords : form.Label20, ParseLenient(entry) * (item ? 44 : 11),
                std::ssize(EncodeGameText(FitName(name, item ? 14 : 11))))};
    RunMenuEntry(item ? MenuEntry::mnuediten : MenuEntry::mnuedipmon, session, dialogs);
  }

  struct Action {
    std::string_view name;
    bool writes;
    std::function<void(Ranges&)> act;
  };
  const std::vector<Action> actions = {
      {"pick an event", false, [this](Ranges&) {
         if (form.cowmoo == "rs" && form.Combo3.enabled) SetCombo3Selection(form, rom, dialogs, Die(7));
         if (form.cowmoo == "frlg" && form.Combo4.visible) SetCombo4Selection(form, rom, dialogs, Die(6));
         if (form.cowmoo == "e" && form.Combo5.enabled) SetCombo5Selection(form, rom, dialogs, Die(13));
       }},
      {"pick and type in the event fields", false, [this](Ranges&) {
         Pick(form, form.Combo1, SetCombo1Selection);
         TextBox* fields[] = {&form.spritetxt, &form.flagtxt, &form.hoobla, &form.hoobla2, &form.Text1};
         fields[Die(std::size(fields))]->text = Number(Die(2) ? 412 : 0x10000);
         if (!careful && Die(4) == 0) form.scriptpointxt.text = Offset();
         Die(2) ? Pick(form, form.Combo2, SetCombo2Selection) : SetBehavtxt(form, Number(12));
       }},
      {"leave Unsupported ROM", false, [this](Ranges&) {  // whether or not it stands
         if (Die(2)) return PressQuit(session.form9, dialogs);
         session.form9.Text1.text = Offset();
         session.form9.Text2.text = Offset();
         PressContinue(session.form9, form, dialogs);
       }},
      {"list a script", false, [this](Ranges&) {
         form.Text3.text = Offset();
         form.Check1.checked = Die(2);
         int reports = 0;  // a listing through megabytes of FF is cancelled at its second report
         ListIntoText4(form, rom, dialogs, [&](double) { return ++reports < 2; });
       }},
      {"save the event", true, [this](Ranges& may) {
         const std::string& family = form.cowmoo;  // a game of the family: the distances are the family's
         const auto events = test::FixtureEvents({family == "rs" ? "AXVE" : family == "e" ? "BPEE" : "BPRE", 0});
         const auto& event = events[std::min<std::size_t>(std::stoul(form.whee), events.size() - 1)];
         const std::string& script = form.scriptpointxt.text;
         may = {From(form.personOffset, 0, PersonRecord::kSize), From(script, event.firstAt, event.firstAt < 0 ? 0 : 2),
                From(script, event.secondAt, event.firstAt < 0 ? 0 : 2)};
         if (form.Command9.enabled) SavePerson(form, rom, dialogs);
       }},
      {"insert a wild battle", true, [this](Ranges& may) { Insert(WindowName::Form3, may); }},
      {"insert a wild battle with a message", true, [this](Ranges& may) { Insert(WindowName::Form4, may); }},
      {"insert a gift", true, [this](Ranges& may) { Insert(WindowName::Form5, may); }},
      {"save the starters", true, [this](Ranges& may) {
         // Else the form on show, maybe of the ROM before. A load that fails leaves the window standing.
         if (careful || Die(4) > 0) test::FailureOf([this] { Show(WindowName::Form2); });
         Pick(session.form2, session.form2.Combo1, SetCombo1Selection);
         session.form2.balltxt3.text = Number(0x10000);
         if (const GameProfile* game = ProfileOf(form)) {
           for (const RomOffset ball : game->starters) may.push_back(From(Hex(ball), 0, 2));
         }
         PressSave(session.form2, form, rom, dialogs);
       }},
      {"rename a Pokemon", true, [this](Ranges& may) { Rename(false, may); }},
      {"rename an item", true, [this](Ranges& may) { Rename(true, may); }},
      {"save a landing tile", true, [this](Ranges& may) {
         const auto table = FindFlyTable(IdentityOf(form));
         const int index = Die(kFlyRecordCount);
         test::FailureOf([&] {  // the window stands also where its load fails
           Show(WindowName::Form8);
           SelectLocation(session.form8, rom, form, table ? table->list : FlyList::hoenn, index);
         });
         Type({&session.form8.XXt, &session.form8.YYt}, 0x100);
         const std::string record = table ? Hex(FlyRecordOffset(*table, index)) : "";
         may = {From(record, 4, 1), From(record, 6, 1)};  // bytes 4 and 6 only
         if (session.form8.savebutton.enabled) PressSavebutton(session.form8, rom, form, dialogs);
       }},
      {"insert braille", true, [this](Ranges& may) {
         if (careful || Die(4) > 0) Show(WindowName::Form6);  // else the window on show, maybe of the ROM before
         Form6& f = session.form6;
         Type({&f.postionleft, &f.postiontop, &f.msgboxleft, &f.msgboxtop, &f.brailleleft, &f.brailletop}, 0x100);
         SetText1(f, Text("HELLO. WORLD'\r\n[End]\\h02x"));
         f.Text2.text = Offset();
         f.Text3.text = Offset();
         if (Die(2)) test::FailureOf([&] { PressFindRecordSpace(f, rom, dialogs), PressFindScriptSpace(f, rom, dialogs); });
         dialogs.messageAnswers = {careful || Die(4) ? MessageAnswer::Yes : MessageAnswer::No,
                                   careful || Die(2) ? MessageAnswer::Yes : MessageAnswer::No};  // and over what is not free
         // the header, the cells, FF 00; the script of 8 bytes
         may = {From(f.Text2.text, 0, std::ssize(EncodeBrailleText(f.Text1.text)) + 8), From(f.Text3.text, 0, 8)};
         PressInsert(f, form, rom, dialogs);
         PressLoad(f, form, rom);
       }},
  };
  // Runs an action as its button does: a Failure ends it with its sentence.
  std::string Do(std::string_view name, Ranges* may = nullptr) {
    Ranges unused;
    const Action& action = *std::ranges::find(actions, name, &Action::name);
    return test::FailureOf([&] { action.act(may ? *may : unused); });
  }
};

// Thousands of actions, and opens, on ROMs of every game in a folder named with blanks and letters outside ASCII. After
// each action every byte of the file it worked on is compared with that file before it.
TEST(UserRoadsTest, NoActionWritesOutsideTheBytesItNames) {
  constexpr std::uint32_t kSeed = 20240611;
  constexpr int kSteps = 2000;
  const std::filesystem::path root = test::TemporaryPath("roads");
  const std::string folder = ToPathText(root) + "/Pokémon hacks/";
  std::filesystem::create_directories(ToFilePath(folder));
  std::map<std::string, Bytes> last;  // each file as the last check saw it
  std::vector<GameIdentity> games = test::AllGames();
  games.push_back({"BPEJ", 0});  // known to the starter editor and Wingfall only
  games.push_back({"AXVE", 3});  // a revision whose tables are not known
  for (const GameIdentity& game : games) {
    test::FixtureRom rom = RoadRom(game);
    const std::string path = folder + "ポケモン " + ShownIdentity(game) + ".gba";
    std::filesystem::copy_file(ToFilePath(rom.path()), ToFilePath(path));
    last[path] = rom.image();
  }
  User user(kSeed, false);
  Bytes now(kRomSize);
  int writes = 0;
  for (int step = 0; step < kSteps; ++step) {
    const std::string path = user.rom.romPath();
    const std::size_t pick = user.Die(std::ssize(user.actions) + 2);
    const std::string name = pick < user.actions.size() ? std::string(user.actions[pick].name)
                             : pick == user.actions.size() ? "open" : "replace";
    const std::string where = "seed " + std::to_string(kSeed) + ", step " + std::to_string(step) + ": " + name;
    Ranges may;
    if (name == "replace") {  // another program puts another ROM at a path, by a rename over it or in place
      const std::string& target = std::next(last.begin(), user.Die(std::ssize(last)))->first;
      const Bytes content = std::next(last.begin(), user.Die(std::ssize(last)))->second;
      const bool renamed = user.Die(2);
      std::ofstream(ToFilePath(renamed ? target + ".new" : target), std::ios::binary | std::ios::in | std::ios::out |
                                                                      std::ios::trunc)
          .write(reinterpret_cast<const char*>(content.data()), kRomSize);
      if (!renamed || test::RenameOver(target + ".new", target)) last[target] = content;
      continue;
    }
    // A write to a file that is no longer at its path is no write a person can see: never "Saved".
    const bool away = user.rom.IsOpen() && !user.rom.StillAtItsPath();
    const std::size_t told = user.dialogs.messages.size();
    name == "open" ? user.Open(user.Die(8) ? std::next(last.begin(), user.Die(std::ssize(last)))->first : "")
                   : (void)user.Do(name, &may);
    for (std::size_t m = told; away && m < user.dialogs.messages.size(); ++m) {
      ASSERT_TRUE(user.dialogs.messages[m].text != "Saved" && user.dialogs.messages[m].text != "Inserted") << where;
    }
    if (path.empty()) continue;
    std::ifstream file(ToFilePath(path), std::ios::binary);
    ASSERT_TRUE(file.read(reinterpret_cast<char*>(now.data()), kRomSize) && file.peek() == EOF) << where << " resized";
    Bytes& before = last[path];
    for (std::size_t block = 0; block < kRomSize; block += 0x1000) {
      if (std::memcmp(&now[block], &before[block], 0x1000) == 0) continue;
      ++writes;
      for (std::size_t i = block; i < block + 0x1000; ++i) {
        ASSERT_TRUE(now[i] == before[i] || std::ranges::any_of(may, [i](ByteRange r) { return i - r.offset < r.length; }))
            << where << " wrote at " << User::Hex(i);
      }
    }
    before.swap(now);
  }
  EXPECT_GT(writes, kSteps / 20);
  user.rom.Close();
  std::filesystem::remove_all(root);
}

// Every button that writes, pressed with good fields on a ROM that something is wrong with,
// ends with a sentence that says what is wrong and writes nothing; the program then opens a
// good ROM and saves on it. On Ruby, and on Emerald, whose events the profile places.
class BrokenRomTest : public testing::TestWithParam<GameIdentity> {
 public:
  // What is wrong with the ROM, what makes it so (none: the file is read-only), a pattern of what each button says.
  using Row = std::tuple<const char*, std::function<void(User&)>, const char*>;
  void PressEveryButton(std::initializer_list<Row> rows);

  test::FixtureRom fixture = RoadRom(GetParam()), tooShort = test::FixtureRom::TooShort();
  const std::string path = fixture.path();
#ifndef _WIN32
  std::optional<test::WriteLimit> limit;
#endif
};

INSTANTIATE_TEST_SUITE_P(Games, BrokenRomTest, testing::Values(GameIdentity{"AXVE", 0}, GameIdentity{"BPEE", 0}),
                         [](const testing::TestParamInfo<GameIdentity>& game) { return game.param.code; });

void BrokenRomTest::PressEveryButton(std::initializer_list<Row> rows) {
  for (const auto& [broken, breakIt, pattern] : rows) {
    SCOPED_TRACE(broken);
    std::ofstream(ToFilePath(path), std::ios::binary).write(reinterpret_cast<const char*>(fixture.image().data()), kRomSize);
    std::optional<test::ReadOnlyFile> readOnly;
    if (!breakIt && !readOnly.emplace(path).works()) continue;  // this machine lets the tests write any file
    User user(1, true);
    user.Open(path);
    EXPECT_EQ(user.form.hdtxt.caption.ends_with(" (read-only)"), !breakIt);  // said at once, not at a write
    for (const User::Action& action : user.actions) {
      EXPECT_TRUE(action.writes || user.Do(action.name).empty()) << action.name;
    }
    if (breakIt) breakIt(user);
    for (const User::Action& action : user.actions) {  // one that only reads may also run through
      const std::string sentence = user.Do(action.name);
      EXPECT_TRUE((!action.writes && sentence.empty()) || std::regex_search(sentence, std::regex(pattern)))
          << action.name << ": " << sentence;
    }
#ifndef _WIN32
    limit.reset();
#endif
    readOnly.reset();
    const Bytes now = test::ReadWholeFile(path);  // every byte as it was, the cut ones cut
    EXPECT_TRUE(now.size() >= 0x100000 && std::equal(now.begin(), now.end(), fixture.image().begin()));
    EXPECT_EQ(test::ReadWholeFile(tooShort.path()), tooShort.image());
    std::ofstream(ToFilePath(path), std::ios::binary).write(reinterpret_cast<const char*>(fixture.image().data()), kRomSize);
    user.Open(path);
    EXPECT_EQ(user.Do("pick an event") + user.Do("save the starters"), "");
    EXPECT_NE(test::ReadWholeFile(path), fixture.image());
  }
}

TEST_P(BrokenRomTest, EveryButtonSaysWhyAndWritesNothing) {
  const std::string folder = ToPathText(test::TemporaryPath("a folder.gba"));
  std::filesystem::create_directories(ToFilePath(folder));
  PressEveryButton({
      {"read-only", {}, "read-only"},
      {"cut short below its tables while open", [&](User&) { std::filesystem::resize_file(ToFilePath(path), 0x100000); },
       "end of the ROM|wholly inside the ROM|not loaded whole|last read failed"},
      // An unknown game: the starter editor and Wingfall do nothing for it, and a gift has no fanfare.
      {"shorter than its header", [&](User& u) { u.Open(tooShort.path()); },
       "^$|end of the ROM|are not known|none of these games"},
      {"a folder", [&](User& u) { u.Open(folder); }, "^$|No ROM is open"},
      {"cancelled in the Open dialog", [&](User& u) { u.Open(""); }, "No ROM is open"},
  });
  std::filesystem::remove(ToFilePath(folder));
}

TEST_P(BrokenRomTest, OnAPipeOrWhereTheSystemRefusesWritesEveryButtonSaysWhyAndWritesNothing) {
#ifdef _WIN32
  GTEST_SKIP() << "Windows has no named pipe among its files and no limit on the size of a file a process writes";
#else
  const std::string pipe = ToPathText(test::TemporaryPath("a pipe.gba"));
  PressEveryButton({
      {"a pipe", [&](User& u) { mkfifo(pipe.c_str(), 0600), u.Open(pipe), std::filesystem::remove(pipe); },
       "^$|No ROM is open"},
      {"the system refuses every write", [&](User&) { limit.emplace(0); }, "File too large"},
  });
#endif
}

}  // namespace
}  // namespace tessarine
