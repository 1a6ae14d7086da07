#include <regex>
#include <tuple>

#include "editors/NameEditors.h"
#include "rom/HexField.h"
#include "shell/ScriptForms.h"
#include "support/Tests.h"

namespace tessarine {
namespace {

using Window = test::ScriptedDialogs::WindowEvent;

// What an open leaves of the main window, in one line: the "RomCode:" line, rom, cowmoo, Label20, Label1, [grou], then
// each control that an open switches, shown (+) or hidden (-), and "x" when disabled.
std::string OpenState(const Form1& f) {
  std::string line = f.hdtxt.caption + " " + f.rom + " " + f.cowmoo + " " + f.Label20 + " " + f.Label1 + " [" +
                     f.grou + "]";
  const std::tuple<const char*, bool, bool> controls[] = {
      {"Command6", f.Command6.visible, f.Command6.enabled}, {"frlgl", f.frlgl.visible, f.frlgl.enabled},
      {"Combo3", f.Combo3.visible, f.Combo3.enabled},       {"Combo4", f.Combo4.visible, f.Combo4.enabled},
      {"Combo5", f.Combo5.visible, f.Combo5.enabled},       {"Command2", f.Command2.visible, f.Command2.enabled},
      {"Command9", f.Command9.visible, f.Command9.enabled}, {"Command10", f.Command10.visible, f.Command10.enabled}};
  for (const auto& [name, visible, enabled] : controls) {
    line += std::string(" ") + name + (visible ? "+" : "-") + (enabled ? "" : "x");
  }
  return line;
}

// One session opens each game and revision in turn. FireRed and LeafGreen keep the grou of the
// game before, which nothing of theirs reads; Emerald empties the persons of the other families.
TEST(OpenRomTest, AKnownGameSetsTheWindowUpForItsFamilyAndRevision) {
  const std::string rs = " Command6+ frlgl- Combo3+ Combo4- Combo5- Command2+ Command9+ Command10+";
  const std::string frlg = " Command6- frlgl+ Combo3-x Combo4+ Combo5- Command2+ Command9+ Command10+";
  const std::string e = " Command6+ frlgl- Combo3-x Combo4- Combo5+ Command2+ Command9+ Command10+";
  const std::pair<GameIdentity, std::string> opens[] = {
      {{"AXVE", 0}, "AXVE Loaded rs &H1F716C &H38EE50 [&H38D880]" + rs},
      {{"AXPE", 0}, "AXPE Loaded rs &H1F70FC &H38EDE0 [&H38D810]" + rs},
      {{"BPRE", 0}, "BPRE Loaded frlg &H245EE0 &H3B27D4 [&H38D810]" + frlg},
      {{"BPGE", 0}, "BPGE Loaded frlg &H245EBC &H3B27B4 [&H38D810]" + frlg},
      {{"AXVE", 1}, "AXVE 1.1 Loaded rs &H1F7184 &H38EE68 [&H38D898]" + rs},
      {{"AXVE", 2}, "AXVE 1.2 Loaded rs &H1F7184 &H38EE68 [&H38D898]" + rs},
      {{"AXPE", 1}, "AXPE 1.1 Loaded rs &H1F7114 &H38EDF8 [&H38D828]" + rs},
      {{"BPEE", 0}, "BPEE Loaded e &H3185C8  []" + e},
      {{"BPRE", 1}, "BPRE 1.1 Loaded frlg &H245F50 &H3B2844 []" + frlg},
      {{"BPGE", 1}, "BPGE 1.1 Loaded frlg &H245F2C &H3B2824 []" + frlg},
      {{"AXPE", 2}, "AXPE 1.2 Loaded rs &H1F7114 &H38EDF8 [&H38D828]" + rs},
      {{"AXVE", 0}, "AXVE Loaded rs &H1F716C &H38EE50 [&H38D880]" + rs},
  };
  test::MainSession s;
  for (const auto& [game, state] : opens) {
    FixtureRom fixture = test::EventFixtureRom(game);
    s.Open(fixture.path());
    const Form1& f = s.form;
    EXPECT_EQ(OpenState(f), state);
    ASSERT_EQ(f.Combo1.rows.size(), 412u);  // the names at the revision's own offset in the fixture
    EXPECT_EQ(f.Combo1.rows[0], "000 - " + test::FixtureSpeciesName(0));
    EXPECT_EQ(f.Combo1.rows[411], "19B - " + test::FixtureSpeciesName(411));
    EXPECT_EQ(f.Combo1.selected, 0);
    s.rom.Close();  // before the fixture goes: Windows deletes no file that is open
  }
  EXPECT_THAT(s.dialogs.messages, IsEmpty());
}

// After Ruby, a file of no known game or of a revision with no known tables, then Ruby again:
// that enables all but Command6.
TEST(OpenRomTest, AnUnknownGameHidesTheMainWindowAndAsksForItsTables) {
  for (const GameIdentity& game : std::initializer_list<GameIdentity>{
           {"axve", 0}, {"AXV", 0}, {"AXVEE", 0}, {"", 0}, {" AXVE", 0}, {"AXVE", 3}, {"BPRE", 2}, {"BPEE", 1}, {"AXVE", -1}}) {
    EXPECT_EQ(FindGameProfile(game), nullptr) << '"' << game.code << "\" " << game.revision;  // the exact code only
  }
  EXPECT_FALSE(FindGameProfile({"BPEJ", 0})->Opens());  // known to the starter editor and Wingfall only
  FixtureRom ruby = test::EventFixtureRom("AXVE");
  FixtureRom emerald = FixtureRom::JapaneseEmerald(), tooShort = FixtureRom::TooShort();
  FixtureRom ruby13 = test::FixtureRom("AXVE", FixtureRom::kSize, 3), noRevision("AXVE", 0xBC);
  const std::tuple<std::string, std::string, std::vector<std::string>> rows[] = {  // path, code, messages
      {emerald.path(), "BPEJ", {"Unsupported ROM"}},
      {ruby13.path(), "AXVE 1.3",
       {"Unsupported ROM\n\nThis ROM's game code is AXVE, and its revision byte holds 3. Tessarine does not know the "
        "tables of that revision, so it takes those of no other revision for it."}},
      {noRevision.path(), "AXVE",
       {"Unsupported ROM\n\nThis ROM's game code is AXVE, and its header ends before its revision byte. Tessarine "
        "does not know the tables of that revision, so it takes those of no other revision for it."}},
      {tooShort.path(), "",
       {"\"" + tooShort.path() + "\" is too short to be a ROM: it ends before the game code of its header.",
        "Unsupported ROM"}},
      {"/nonexistent/rom.gba", "",
       {"Could not open \"/nonexistent/rom.gba\": No such file or directory.", "Unsupported ROM"}},
  };
  const std::string rubyState = " Loaded rs &H1F716C &H38EE50 [&H38D880] Command6+x frlgl- Combo3+";
  for (const auto& [path, code, messages] : rows) {
    SCOPED_TRACE(path);
    test::MainSession s;
    s.Open(ruby.path());
    s.dialogs.messages.clear();
    s.Open(path);
    EXPECT_EQ(s.dialogs.MessageTexts(), messages);
    EXPECT_THAT(s.dialogs.windowEvents, ElementsAre(Window{WindowName::Form1, false}, Window{WindowName::Form9, true}));
    EXPECT_THAT(s.form.Combo1.rows, IsEmpty());
    EXPECT_EQ(OpenState(s.form), code + std::regex_replace(rubyState, std::regex("frlgl-"), "frlgl-x") +
                                 "x Combo4-x Combo5-x Command2+ Command9+x Command10+x");
    s.dialogs.windowEvents.clear();  // Quit, like Continue, brings the main window back
    PressQuit(s.session.form9, s.dialogs);
    EXPECT_THAT(s.dialogs.windowEvents, ElementsAre(Window{WindowName::Form9, false}, Window{WindowName::Form1, true}));
    s.Open(ruby.path());
    EXPECT_EQ(OpenState(s.form), "AXVE" + rubyState + " Combo4- Combo5- Command2+ Command9+ Command10+");
  }
}

TEST(ToolsMenuTest, EachEntryOpensItsWindowOnceItsGuardLetsIt) {
  const auto run = [](MenuEntry entry, bool loaded, MessageAnswer answer = MessageAnswer::No) {
    test::MainSession s;
    if (loaded) s.form.rom = "Loaded";
    s.dialogs.messageAnswers = {answer};
    s.Menu(entry);
    return s.dialogs;
  };
  // The tools of the open ROM want one loaded first; the wild battle asks about a message.
  for (const auto& [entry, window] : {std::pair{MenuEntry::mnugps, WindowName::Form5}, {MenuEntry::mnuib, WindowName::Form6},
                                      {MenuEntry::mnuflin, WindowName::Form8}, {MenuEntry::mnuwbs, WindowName::Form3}}) {
    const test::ScriptedDialogs refused = run(entry, false);
    EXPECT_THAT(refused.MessageTexts(), ElementsAre("Load a Rom First"));
    EXPECT_THAT(refused.windowEvents, IsEmpty());
    EXPECT_THAT(run(entry, true).windowEvents, ElementsAre(Window{window, true}));
  }
  const test::ScriptedDialogs asked = run(MenuEntry::mnuwbs, true, MessageAnswer::Yes);
  EXPECT_EQ(asked.messages.at(0).title, "Ok.");
  EXPECT_EQ(asked.messages[0].buttons, MessageButtons::YesNo);
  EXPECT_THAT(asked.windowEvents, ElementsAre(Window{WindowName::Form4, true}));
  EXPECT_THAT(run(MenuEntry::mnustart, false).windowEvents, ElementsAre(Window{WindowName::Form2, true}));  // no ROM
}

// Each game and revision, through the menu: a Pokemon renamed writes its name in the game's own
// table and the species list shows it; an item renamed writes its 14 bytes in the game's item
// records, and the builders' item list, read there, shows it (a full field loses its last letter).
TEST(NameEditorMenuTest, EachGameRenamesInItsOwnTablesAndItsListsShowTheNames) {
  for (const GameIdentity& game : test::AllGames()) {
    SCOPED_TRACE(ShownIdentity(game));
    const test::GameOffsets& at = test::OffsetsOf(game);
    test::MainSession s(FixtureRom(game.code, FixtureRom::kSize, game.revision));
    const test::ByteOracle oracle(s.fixture->path());
    s.Menu(MenuEntry::mnuedipmon, {"&H19", "PIKA"});
    s.Menu(MenuEntry::mnuediten, {"2", "Abcdefghijklmno"});
    EXPECT_EQ(oracle.Written(), (test::WrittenRuns{{at.speciesNames + 0x19 * 11, "CA C3 C5 BB 00 00 00 00 00 00 00"},
                                                   {at.items + 2 * 44, "BB D6 D7 D8 D9 DA DB DC DD DE DF E0 E1 E2"}}));
    EXPECT_EQ(s.form.Combo1.rows.at(0x19) + "|" + std::to_string(s.form.Combo1.selected), "019 - PIKA      |0");
    EXPECT_EQ(RequireForm5Loaded(s.session).at(2), "002 - Abcdefghijklm");
    EXPECT_EQ(s.session.form5.Label7.caption, ToHexText(static_cast<std::int32_t>(at.items)));
    EXPECT_EQ(s.session.form5.Combo1.rows, s.form.Combo1.rows);
  }
  test::MainSession s(FixtureRom::Sapphire());  // cancelled in the Open dialog: no ROM open, no list
  s.Open("");
  EXPECT_THAT(RequireForm5Loaded(s.session), IsEmpty());
  test::MainSession emerald(FixtureRom::JapaneseEmerald());  // a game with no tables known: an empty list, and why
  emerald.Show(WindowName::Form5);
  EXPECT_THAT(emerald.session.form5.Combo2.rows, IsEmpty());
  EXPECT_THAT(emerald.dialogs.MessageTexts(), ElementsAre("Unsupported ROM", HasSubstr("are not known")));
}

// On a fixture of 0xFF with no names, through the menu: names cut or filled, answers cancelled,
// and an unknown game that passes the "Unsupported ROM" dialog with the two offsets typed.
TEST(NameEditorMenuTest, TheTwoAnswersWriteTheEncodedNameAndNothingElse) {
  using Answer = std::optional<std::string>;
  // The game, the menu entry and the two answers; what is written; the entry's row of Combo1 after a Pokemon rename, or
  // a cancel; part of the sentence that ends the action; the offsets typed in the "Unsupported ROM" dialog.
  using Case = std::tuple<const char*, MenuEntry, Answer, Answer, test::WrittenRuns, std::string, std::string,
                          std::array<const char*, 2>>;
  const Case cases[] = {
      {"AXVE", MenuEntry::mnuedipmon, "&H19", "AB[PK]CDEFGHIJ", {{0x1F727F, "BB BC 53 BD BE BF C0 C1"}},
       "019 - ABPKCDEFG", "", {}},
      {"BPRE", MenuEntry::mnuedipmon, "", "", {{0x245EE0, "00 00 00 00 00 00 00 00 00 00 00"}},
       "000 - " + std::string(10, ' '), "", {}},
      {"AXVE", MenuEntry::mnuedipmon, std::nullopt, "PIKA", {}, "000 - ", "", {}},
      {"AXVE", MenuEntry::mnuedipmon, "&H19", std::nullopt, {}, "019 - ", "", {}},
      {"BPEJ", MenuEntry::mnuedipmon, "&H19", "PIKA", {{0x245FF3, "CA C3 C5 BB 00 00 00 00 00 00 00"}}, "019 - PIKA      ",
       "", {"&H245EE0", "&H000000"}},
      {"BPEJ", MenuEntry::mnuedipmon, "-1", "A", {}, "", "Pokemon: \"&HFFFFFFFF\": its name in the table at &HCA, 11 bytes from "
       "&HBF, would lie inside the cartridge header", {"&HCA", "&H000000"}},
      {"BPRE", MenuEntry::mnuediten, "&H2", "ééééééééééééééé", {{0x3DB080, "1B 1B 1B 1B 1B 1B 1B 1B 1B 1B 1B 1B 1B 1B"}},
       "", "", {}},  // cut in characters, not in bytes
      {"BPEJ", MenuEntry::mnuediten, "&H2", "A", {}, "", "Item Names: \"&H24SEE0\" is not", {"&H245EE0", "&H24SEE0"}},
  };
  for (const auto& [code, entry, number, name, written, row, says, typedInForm9] : cases) {
    SCOPED_TRACE(std::string(code) + " " + number.value_or("(cancel)") + " " + name.value_or("(cancel)"));
    test::MainSession s(FixtureRom{code});
    if (typedInForm9[0] != nullptr) {
      std::tie(s.session.form9.Text1.text, s.session.form9.Text2.text) = std::pair(typedInForm9[0], typedInForm9[1]);
      PressContinue(s.session.form9, s.form, s.dialogs);
    }
    const test::ByteOracle oracle(s.fixture->path());
    const std::string failure = test::FailureOf([&] { s.Menu(entry, {number, name}); });
    EXPECT_EQ(oracle.Written(), written);
    EXPECT_THAT(failure, HasSubstr(says));
    EXPECT_EQ(failure.empty(), says.empty()) << failure;
    EXPECT_EQ(s.dialogs.inputs.size(), number ? 2u : 1u);
    EXPECT_EQ(s.dialogs.inputs[0].prompt, entry == MenuEntry::mnuediten ? kItemEntryPrompt : kPokemonEntryPrompt);
    if (row.empty()) continue;
    ASSERT_EQ(s.form.Combo1.rows.size(), 412u);  // a cancel keeps the list of the open
    EXPECT_EQ(s.form.Combo1.rows[std::size_t(ParseLenient(number.value_or("")))], row);
  }
}

TEST(NameEditorMenuTest, APlaceBeyondTheLastOffsetIsRefusedOnADeviceToo) {
  RomImage rom;
  rom.Open(test::EndlessDevice());  // every place lies inside it
  Form1 main;
  const GameIdentity device = ReadGameIdentity(rom);  // what its header holds, if anything
  std::tie(main.headtxt, main.revision) = std::pair(device.code, device.revision);
  main.tables.Fill(main);
  main.Label20 = "&HC0";
  EXPECT_EQ(test::FailureOf([&] { EditPokemonName(rom, main, 0x1745D174, "A"); }),  // wraps to &HBC in 32 bits
            "Pokemon: \"&H1745D174\": its name in the table at &HC0, 11 bytes from 4294967484, would lie beyond "
            "&H7FFFFFFF, the last offset of a ROM. Nothing was written.");
}

}  // namespace
}  // namespace tessarine
