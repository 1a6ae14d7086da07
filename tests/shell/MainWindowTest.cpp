#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rom/GameProfile.h"
#include "shell/OpenRom.h"
#include "shell/Session.h"
#include "shell/ToolsMenu.h"
#include "shell/modLinedTextBox.h"
#include "support/EventFixtures.h"
#include "support/MainSession.h"

namespace tessarine {
namespace {

using test::EventFixtureRom;
using test::FixtureRom;
using test::FixtureSpeciesName;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Window = test::ScriptedDialogs::WindowEvent;

// What an open leaves of the main window, in one line: headtxt, rom, cowmoo, Label20, Label1, [grou],
// then each control that an open switches, shown (+) or hidden (-), and "x" when disabled.
std::string OpenState(const Form1& f) {
  std::string line = f.headtxt + " " + f.rom + " " + f.cowmoo + " " + f.Label20 + " " + f.Label1 + " [" + f.grou + "]";
  const auto put = [&](const char* name, const auto& control) {
    line += std::string(" ") + name + (control.visible ? "+" : "-") + (control.enabled ? "" : "x");
  };
  put("Command6", f.Command6); put("frlgl", f.frlgl); put("Combo3", f.Combo3); put("Combo4", f.Combo4);
  put("Command2", f.Command2); put("Command9", f.Command9); put("Command10", f.Command10);
  return line;
}

// One session opens each game in turn, then cancels the dialog. FireRed and LeafGreen keep the
// grou of the game before, which nothing of theirs reads.
TEST(OpenRomTest, AKnownGameSetsTheWindowUpForItsFamily) {
  const char* states[] = {
      "AXVE Loaded rs &H1F716C &H38EE50 [&H38D880] Command6+ frlgl- Combo3+ Combo4- Command2+ Command9+ Command10+",
      "AXPE Loaded rs &H1F70FC &H38EDE0 [&H38D810] Command6+ frlgl- Combo3+ Combo4- Command2+ Command9+ Command10+",
      "BPRE Loaded frlg &H245EE0 &H3B27D4 [&H38D810] Command6- frlgl+ Combo3-x Combo4+ Command2+ Command9+ Command10+",
      "BPGE Loaded frlg &H245EBC &H3B27B4 [&H38D810] Command6- frlgl+ Combo3-x Combo4+ Command2+ Command9+ Command10+",
      "AXVE Loaded rs &H1F716C &H38EE50 [&H38D880] Command6+ frlgl- Combo3+ Combo4- Command2+ Command9+ Command10+",
  };
  test::MainSession s;
  for (const std::string state : states) {
    FixtureRom fixture = EventFixtureRom(state.substr(0, 4));
    s.Open(fixture.path());
    const Form1& f = s.form;
    EXPECT_EQ(OpenState(f), state);
    EXPECT_EQ(f.hdtxt.caption, f.headtxt);
    EXPECT_EQ(s.dialogs.fileDialogs.back().title + " " + s.dialogs.fileDialogs.back().filter,
              "Open Pokemon Advance rom|*.gba");
    EXPECT_TRUE(s.rom.IsOpen());
    EXPECT_EQ(s.rom.romPath(), fixture.path());
    ASSERT_EQ(f.Combo1.rows.size(), 412u);  // the names at the game's own offset in the fixture
    EXPECT_EQ(f.Combo1.rows[0], "000 - " + FixtureSpeciesName(0));
    EXPECT_EQ(f.Combo1.rows[26], "01A - " + FixtureSpeciesName(26));
    EXPECT_EQ(f.Combo1.rows[411], "19B - " + FixtureSpeciesName(411));
    EXPECT_EQ(f.Combo1.selected, 0);
    for (const TextBox* word : {&f.Text1, &f.Text2, &f.hoobla, &f.hoobla2}) EXPECT_EQ(word->text, "&H0");
    s.rom.Close();  // before the fixture goes: Windows deletes no file that is open
  }
  s.Open("");  // the person cancels: no file and no names, and the rest as it was
  EXPECT_FALSE(s.rom.IsOpen());
  EXPECT_THAT(s.form.Combo1.rows, IsEmpty());
  EXPECT_EQ(OpenState(s.form), states[4]);
  EXPECT_THAT(s.dialogs.messages, IsEmpty());
}

TEST(OpenRomTest, NamesAreCutAtTheirEndByteOrLoseTheirLastCharacter) {
  FixtureRom fixture = EventFixtureRom("AXVE");
  const std::uint32_t table = test::SpeciesTableOffset("AXVE");
  fixture.PutName(table + 1 * 11, "Ninelettr", 9).PutBytes(table + 1 * 11 + 9, {0xFF, 0xBB});
  fixture.PutName(table + 2 * 11, "Elevenchars", 11);    // no end byte in the field
  fixture.PutBytes(table + 3 * 11, {0xFF, 0xBB, 0xBC});  // an empty name
  test::MainSession s;
  s.Open(fixture.path());
  EXPECT_THAT(std::vector(s.form.Combo1.rows.begin() + 1, s.form.Combo1.rows.begin() + 5),
              ElementsAre("001 - Ninelettr", "002 - Elevenchar", "003 - ", "004 - " + FixtureSpeciesName(4)));
}

// After Ruby, a file of no known game, then Ruby again: that enables all but Command6.
TEST(OpenRomTest, AnUnknownGameHidesTheMainWindowAndAsksForItsTables) {
  for (const char* code : {"axve", "Axve", "AXV", "AXVEE", "BPEJ", "", "ZZZZ", " AXVE"}) {
    EXPECT_FALSE(FindGameProfile(code).has_value()) << '"' << code << '"';  // the exact code only
  }
  FixtureRom ruby = EventFixtureRom("AXVE");
  FixtureRom emerald = FixtureRom::Emerald(), lowerCase("axve"), unknown("ZZZZ"), tooShort = FixtureRom::TooShort();
  const struct {
    std::string path;
    std::string code;
    std::vector<std::string> messages;
  } rows[] = {
      {emerald.path(), "BPEJ", {"Unsupported ROM"}},
      {lowerCase.path(), "axve", {"Unsupported ROM"}},
      {unknown.path(), "ZZZZ", {"Unsupported ROM"}},
      {tooShort.path(), "",
       {"\"" + tooShort.path() + "\" is too short to be a ROM: it ends before the game code of its header.",
        "Unsupported ROM"}},
      {"/nonexistent/rom.gba", "",
       {"Could not open \"/nonexistent/rom.gba\": No such file or directory.", "Unsupported ROM"}},
  };
  const std::string rubyState = " Loaded rs &H1F716C &H38EE50 [&H38D880] Command6+x frlgl- Combo3+";
  for (const auto& row : rows) {
    SCOPED_TRACE(row.path);
    test::MainSession s;
    s.Open(ruby.path());
    s.dialogs.messages.clear();
    s.Open(row.path);
    EXPECT_EQ(s.dialogs.MessageTexts(), row.messages);
    EXPECT_THAT(s.dialogs.windowEvents, ElementsAre(Window{WindowName::Form1, false}, Window{WindowName::Form9, true}));
    EXPECT_THAT(s.form.Combo1.rows, IsEmpty());
    EXPECT_EQ(OpenState(s.form), row.code + rubyState + "x Combo4- Command2+ Command9+x Command10+x");
    EXPECT_EQ(s.form.hdtxt.caption, row.code);
    s.Open(ruby.path());
    EXPECT_EQ(OpenState(s.form), "AXVE" + rubyState + " Combo4- Command2+ Command9+ Command10+");
  }
}

TEST(ToolsMenuTest, EachEntryOpensItsWindowOnceItsGuardLetsIt) {
  const auto run = [](MenuEntry entry, bool loaded, MessageAnswer answer = MessageAnswer::No) {
    Session session;
    session.form1.rom = loaded ? "Loaded" : session.form1.rom;
    test::ScriptedDialogs dialogs;
    dialogs.messageAnswers = {answer};
    RunMenuEntry(entry, session, dialogs);
    return dialogs;
  };
  // The tools of the open ROM want one loaded first.
  const std::pair<MenuEntry, WindowName> guarded[] = {{MenuEntry::mnugps, WindowName::Form5},
                                                      {MenuEntry::mnuib, WindowName::Form6},
                                                      {MenuEntry::mnuflin, WindowName::Form8},
                                                      {MenuEntry::mnuwbs, WindowName::Form3}};  // answered No
  for (const auto& [entry, window] : guarded) {
    const test::ScriptedDialogs refused = run(entry, false);
    EXPECT_THAT(refused.MessageTexts(), ElementsAre("Load a Rom First"));
    EXPECT_THAT(refused.windowEvents, IsEmpty());
    EXPECT_THAT(run(entry, true).windowEvents, ElementsAre(Window{window, true}));
  }
  const test::ScriptedDialogs asked = run(MenuEntry::mnuwbs, true, MessageAnswer::Yes);
  ASSERT_EQ(asked.messages.size(), 1u);
  EXPECT_EQ(asked.messages[0].text, "You wan't a Message in your event script?");
  EXPECT_EQ(asked.messages[0].title, "Ok.");
  EXPECT_EQ(asked.messages[0].buttons, MessageButtons::YesNo);
  EXPECT_THAT(asked.windowEvents, ElementsAre(Window{WindowName::Form4, true}));
  // The starters and Kindlewick need no ROM; Kindlewick fails to start in silence.
  EXPECT_THAT(run(MenuEntry::mnustart, false).windowEvents, ElementsAre(Window{WindowName::Form2, true}));
  const test::ScriptedDialogs started = run(MenuEntry::mnufrst, false);
  EXPECT_THAT(started.programsStarted, ElementsAre("Kindlewick"));
  EXPECT_THAT(started.messages, IsEmpty());
  EXPECT_THAT(started.windowEvents, IsEmpty());
}

// The classic desktop scheme: face, window text, highlight, shadow.
constexpr GutterSystemColors kColors{{212, 208, 200}, {0, 0, 0}, {10, 36, 106}, {128, 128, 128}};

// A box 104 pixels high with a frame of 2, lines of 10 pixels, and four digits 24 pixels
// wide: TrayWidth 44, rows from x = 2 to 40, the shadow line at x = 43.
GutterInput Box(int firstLine = 1, int lineCount = 1, int selFirst = 1, int selLast = 1) {
  return {.numDigits = 4, .digitsWidth = 24, .boxHeight = 104, .edge = 2, .lineHeight = 10, .firstLine = firstLine,
          .lineCount = lineCount, .selFirst = selFirst, .selLast = selLast, .focus = true, .colors = kColors};
}

TEST(modLinedTextBoxTest, AnEmptyBoxShowsLineOneTintedAndFramedInTheColoursOfTheFocus) {
  GutterInput in = Box();
  const GutterPaint paint = PlanGutterPaint(in);
  EXPECT_EQ(paint.trayWidth, 44);
  EXPECT_EQ(paint.height, 100);
  EXPECT_THAT(paint.rows, ElementsAre(GutterRow{1, {2, 1, 41, 11}, "0001", true}));
  EXPECT_EQ(paint.frame, (PixelRect{2, 1, 41, 11}));
  EXPECT_EQ(paint.line, (VerticalLine{43, 0, 100}));
  EXPECT_EQ(paint.frameColor, kColors.highlight);
  EXPECT_EQ(paint.tint, (Rgb{133, 146, 181}));  // the highlight half and half with white
  in.focus = false;
  EXPECT_EQ(PlanGutterPaint(in).tint, (Rgb{223, 220, 214}));  // the face three parts to one of white
  EXPECT_EQ(PlanGutterPaint(in).frameColor, kColors.buttonShadow);
  in.edge = 0;  // a box with no frame has no shadow line
  EXPECT_EQ(PlanGutterPaint(in).line, std::nullopt);
  EXPECT_EQ(PlanGutterPaint(in).height, 104);
}

TEST(modLinedTextBoxTest, TheSelectionIsTintedAndFramedOpenWhereItLeavesTheView) {
  // Lines 20 to 30 are in view (10 lines fit in 104 pixels, and one more is begun).
  const struct {
    int selFirst, selLast;
    std::vector<int> tinted;
    std::optional<PixelRect> frame;
  } cases[] = {
      {25, 25, {25}, PixelRect{2, 51, 41, 61}},                                            // the caret's line alone
      {3, 19, {}, std::nullopt}, {31, 50, {}, std::nullopt},                               // wholly above or below
      {10, 22, {20, 21, 22}, PixelRect{2, -100, 41, 31}},                                  // from above: no top side
      {28, 40, {28, 29, 30}, PixelRect{2, 81, 41, 204}},                                   // on below: no bottom side
      {5, 90, {20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30}, PixelRect{2, -100, 41, 204}},  // across: neither side
      {20, 30, {20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30}, PixelRect{2, 1, 41, 111}},    // exactly the view
      {19, 20, {20}, PixelRect{2, -100, 41, 11}}, {30, 31, {30}, PixelRect{2, 101, 41, 204}},  // one line in or out
  };
  for (const auto& c : cases) {
    const GutterPaint paint = PlanGutterPaint(Box(20, 100, c.selFirst, c.selLast));
    std::vector<int> tinted;
    for (const GutterRow& row : paint.rows) {
      if (row.tinted) tinted.push_back(row.line);
    }
    EXPECT_EQ(paint.lastLine, 30);
    EXPECT_EQ(tinted, c.tinted) << c.selFirst << " to " << c.selLast;
    EXPECT_EQ(paint.frame, c.frame) << c.selFirst << " to " << c.selLast;
  }
  GutterInput in = Box(20, 22, 21, 21);  // the rows follow a text that begins 4 pixels down, to its last line
  in.firstLineTop = 4;
  const GutterPaint paint = PlanGutterPaint(in);
  EXPECT_EQ(paint.lastLine, 22);
  EXPECT_THAT(paint.rows, ElementsAre(GutterRow{20, {2, 5, 41, 15}, "0020", false},
                                      GutterRow{21, {2, 15, 41, 25}, "0021", true},
                                      GutterRow{22, {2, 25, 41, 35}, "0022", false}));
  EXPECT_EQ(paint.frame, (PixelRect{2, 15, 41, 25}));
}

TEST(modLinedTextBoxTest, NumbersArePaddedAndCutAndBlendsRoundHalvesUp) {
  const struct {
    int numDigits, firstLine;
    std::vector<std::string> numbers;
  } cases[] = {
      {4, 9998, {"9998", "9999", "1000", "1000"}}, {4, 12345, {"1234", "1234", "1234", "1234"}},
      {0, 7, {"0007", "0008", "0009", "0010"}},  // 0 behaves as 4
      {6, 99, {"000099", "000100", "000101", "000102"}}, {2, 99, {"99", "10", "10", "10"}},
  };
  for (const auto& c : cases) {
    GutterInput in = Box(c.firstLine, c.firstLine + 50);
    in.numDigits = c.numDigits;
    in.boxHeight = 34;  // three lines fit, a fourth is begun
    std::vector<std::string> numbers;
    for (const GutterRow& row : PlanGutterPaint(in).rows) numbers.push_back(row.number);
    EXPECT_EQ(numbers, c.numbers) << c.numDigits << " digits from line " << c.firstLine;
  }
  const struct {
    Rgb color1, color2;
    int percent;
    Rgb blend;
  } blends[] = {
      {{0, 0, 0}, kWhite, 50, {128, 128, 128}}, {{0, 0, 0}, kWhite, 75, {64, 64, 64}},  // 127.5 and 63.75: halves go up
      {{1, 2, 3}, {2, 4, 6}, 50, {2, 3, 5}}, {{200, 100, 0}, {100, 0, 201}, 75, {175, 75, 50}},
      {{9, 8, 7}, {1, 2, 3}, 100, {9, 8, 7}}, {{9, 8, 7}, {1, 2, 3}, 0, {1, 2, 3}},
  };
  for (const auto& c : blends) EXPECT_EQ(BlendColors(c.color1, c.color2, c.percent), c.blend) << c.percent;
}

}  // namespace
}  // namespace tessarine
