#include "shell/OpenRom.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/Form1.h"
#include "rom/RomImage.h"
#include "support/EventFixtures.h"
#include "support/MainSession.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

using test::EventFixtureRom;
using test::FixtureRom;
using test::FixtureSpeciesName;
using test::ScriptedDialogs;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Window = ScriptedDialogs::WindowEvent;

using Session = test::MainSession;

TEST(OpenRomTest, AKnownGameSetsTheWindowUpForItsFamily) {
  struct Row {
    const char* code;
    bool rs;
    const char* Label20;
    const char* Label1;
    const char* grou;  // frlg leaves the start value, empty
  };
  const Row rows[] = {{"AXVE", true, "&H1F716C", "&H38EE50", "&H38D880"},
                      {"AXPE", true, "&H1F70FC", "&H38EDE0", "&H38D810"},
                      {"BPRE", false, "&H245EE0", "&H3B27D4", ""},
                      {"BPGE", false, "&H245EBC", "&H3B27B4", ""}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.code);
    FixtureRom fixture = EventFixtureRom(row.code);
    Session s;
    s.Open(fixture.path());
    const Form1& f = s.form;

    ASSERT_EQ(s.dialogs.fileDialogs.size(), 1u);
    EXPECT_EQ(s.dialogs.fileDialogs[0].title, "Open");
    EXPECT_EQ(s.dialogs.fileDialogs[0].filter, "Pokemon Advance rom|*.gba");
    EXPECT_THAT(s.dialogs.messages, IsEmpty());
    EXPECT_TRUE(s.rom.IsOpen());
    EXPECT_EQ(s.rom.romPath(), fixture.path());
    EXPECT_EQ(f.headtxt, row.code);
    EXPECT_EQ(f.hdtxt.caption, row.code);
    EXPECT_EQ(f.rom, "Loaded");
    EXPECT_EQ(f.cowmoo, row.rs ? "rs" : "frlg");
    EXPECT_EQ(f.Label20, row.Label20);
    EXPECT_EQ(f.Label1, row.Label1);
    EXPECT_EQ(f.grou, row.grou);
    EXPECT_EQ(f.Command6.visible, row.rs);
    EXPECT_EQ(f.frlgl.visible, !row.rs);
    EXPECT_EQ(f.Combo3.enabled, row.rs);
    EXPECT_EQ(f.Combo3.visible, row.rs);
    EXPECT_EQ(f.Combo4.visible, !row.rs);
    EXPECT_TRUE(f.Command2.enabled);
    EXPECT_TRUE(f.Command9.enabled);
    EXPECT_TRUE(f.Command10.enabled);

    ASSERT_EQ(f.Combo1.rows.size(), 412u);
    EXPECT_EQ(f.Combo1.rows[0], "000 - " + FixtureSpeciesName(0));
    EXPECT_EQ(f.Combo1.rows[26], "01A - " + FixtureSpeciesName(26));
    EXPECT_EQ(f.Combo1.rows[411], "19B - " + FixtureSpeciesName(411));
    EXPECT_EQ(f.Combo1.selected, 0);
    for (const TextBox* word : {&f.Text1, &f.Text2, &f.hoobla, &f.hoobla2}) EXPECT_EQ(word->text, "&H0");
  }
}

TEST(OpenRomTest, NamesAreCutAtTheirEndByteOrLoseTheirLastCharacter) {
  FixtureRom fixture = EventFixtureRom("AXVE");
  const std::uint32_t table = test::SpeciesTableOffset("AXVE");
  fixture.PutName(table + 1 * 11, "Ninelettr", 9).PutBytes(table + 1 * 11 + 9, {0xFF, 0xBB});
  fixture.PutName(table + 2 * 11, "Elevenchars", 11);  // no end byte in the field
  fixture.PutBytes(table + 3 * 11, {0xFF, 0xBB, 0xBC});  // an empty name
  Session s;
  s.Open(fixture.path());
  EXPECT_EQ(s.form.Combo1.rows[1], "001 - Ninelettr");
  EXPECT_EQ(s.form.Combo1.rows[2], "002 - Elevenchar");
  EXPECT_EQ(s.form.Combo1.rows[3], "003 - ");
}

TEST(OpenRomTest, AnotherFamilySwapsTheListsAndKeepsGroudonsOffset) {
  FixtureRom ruby = EventFixtureRom("AXVE");
  FixtureRom fireRed = EventFixtureRom("BPRE");
  Session s;
  s.Open(ruby.path());
  s.Open(fireRed.path());
  EXPECT_EQ(s.form.cowmoo, "frlg");
  EXPECT_EQ(s.form.grou, "&H38D880");  // Ruby's, which nothing of FireRed reads
  EXPECT_FALSE(s.form.Combo3.visible);
  EXPECT_FALSE(s.form.Combo3.enabled);
  EXPECT_TRUE(s.form.Combo4.visible);
  EXPECT_FALSE(s.form.Command6.visible);
  EXPECT_TRUE(s.form.frlgl.visible);
  s.Open(ruby.path());
  EXPECT_TRUE(s.form.Combo3.visible);
  EXPECT_TRUE(s.form.Combo3.enabled);
  EXPECT_FALSE(s.form.Combo4.visible);
}

TEST(OpenRomTest, ACancelledDialogLeavesNoFileAndAnEmptyList) {
  FixtureRom fixture = EventFixtureRom("AXPE");
  Session s;
  s.Open(fixture.path());
  s.Open("");  // the person cancels
  EXPECT_FALSE(s.rom.IsOpen());
  EXPECT_THAT(s.form.Combo1.rows, IsEmpty());
  EXPECT_EQ(s.form.rom, "Loaded");  // as before: tools then fail for want of an open file
  EXPECT_EQ(s.form.headtxt, "AXPE");
  EXPECT_THAT(s.dialogs.messages, IsEmpty());
}

TEST(OpenRomTest, AnUnknownGameHidesTheMainWindowAndAsksForItsTables) {
  FixtureRom emerald = FixtureRom::Emerald();
  FixtureRom unknown("ZZZZ");
  FixtureRom tooShort = FixtureRom::TooShort();
  FixtureRom ruby = EventFixtureRom("AXVE");
  struct Row {
    std::string path;
    std::string code;
    std::vector<std::string> messages;
  };
  const std::vector<Row> rows = {
      {emerald.path(), "BPEJ", {"Unsupported ROM"}},
      {unknown.path(), "ZZZZ", {"Unsupported ROM"}},
      {tooShort.path(), "",
       {"\"" + tooShort.path() + "\" is too short to be a ROM: it ends before the game code of its header.",
        "Unsupported ROM"}},
      {"/nonexistent/rom.gba", "",
       {"Could not open \"/nonexistent/rom.gba\": No such file or directory.", "Unsupported ROM"}},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.path);
    Session s;
    s.Open(ruby.path());
    s.dialogs.messages.clear();
    s.Open(row.path);
    const Form1& f = s.form;
    EXPECT_EQ(s.dialogs.MessageTexts(), row.messages);
    EXPECT_THAT(s.dialogs.windowEvents, ElementsAre(Window{WindowName::Form1, false}, Window{WindowName::Form9, true}));
    EXPECT_EQ(f.headtxt, row.code);
    EXPECT_THAT(f.Combo1.rows, IsEmpty());
    EXPECT_FALSE(f.Combo3.enabled);
    EXPECT_FALSE(f.Command10.enabled);
    EXPECT_FALSE(f.Command9.enabled);
    EXPECT_FALSE(f.Command6.enabled);
    // What the known game set stays: the state of Ruby, with its family.
    EXPECT_EQ(f.rom, "Loaded");
    EXPECT_EQ(f.cowmoo, "rs");
    EXPECT_EQ(f.Label20, "&H1F716C");
  }
}

TEST(OpenRomTest, NoLaterOpenEnablesCommand6Again) {
  FixtureRom emerald = FixtureRom::Emerald();
  FixtureRom ruby = EventFixtureRom("AXVE");
  Session s;
  s.Open(emerald.path());
  s.Open(ruby.path());
  EXPECT_TRUE(s.form.Command9.enabled);
  EXPECT_TRUE(s.form.Combo3.enabled);
  EXPECT_FALSE(s.form.Command6.enabled);
  EXPECT_TRUE(s.form.Command6.visible);
}

}  // namespace
}  // namespace tessarine
