#include "shell/ToolsMenu.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/Form1.h"
#include "rom/RomImage.h"
#include "shell/Session.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

using test::ScriptedDialogs;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Window = ScriptedDialogs::WindowEvent;

TEST(ToolsMenuTest, TheEntriesStandInOrderWithTheirCaptions) {
  const Form7 menu;
  EXPECT_EQ(menu.mnuptroCaption, "Tessarine");
  std::vector<std::string> captions;
  for (const MenuItem& item : menu.mnuptro) captions.push_back(item.caption);
  EXPECT_THAT(captions, ElementsAre("~Tools~", "Insert Wild Battle Script", "Insert Give Pokemon Script",
                                    "Insert Braille", "Starter Editor", "Wingfall", "Edit Pokemon Name",
                                    "Edit Item Name", "~Programs~", "Kindlewick"));
  EXPECT_FALSE(menu.mnuptro[0].enabled);  // the headings
  EXPECT_FALSE(menu.mnuptro[8].enabled);
}

TEST(ToolsMenuTest, ToolsOfTheOpenRomWantOneLoadedFirst) {
  const std::pair<MenuEntry, WindowName> guarded[] = {{MenuEntry::mnugps, WindowName::Form5},
                                                      {MenuEntry::mnuib, WindowName::Form6},
                                                      {MenuEntry::mnuflin, WindowName::Form8},
                                                      {MenuEntry::mnuwbs, WindowName::Form3}};
  for (const auto& [entry, window] : guarded) {
    Session session;
    ScriptedDialogs dialogs;
    RunMenuEntry(entry, session, dialogs);
    EXPECT_THAT(dialogs.MessageTexts(), ElementsAre("Load a Rom First"));
    EXPECT_THAT(dialogs.windowEvents, IsEmpty());

    session.form1.rom = "Loaded";
    dialogs.messages.clear();
    RunMenuEntry(entry, session, dialogs);
    EXPECT_THAT(dialogs.windowEvents, ElementsAre(Window{window, true}));
  }
}

TEST(ToolsMenuTest, TheWildBattleEntryAsksWhetherTheScriptHasAMessage) {
  Session session;
  session.form1.rom = "Loaded";
  ScriptedDialogs dialogs;
  dialogs.messageAnswers = {MessageAnswer::Yes, MessageAnswer::No};
  RunMenuEntry(MenuEntry::mnuwbs, session, dialogs);
  RunMenuEntry(MenuEntry::mnuwbs, session, dialogs);
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_EQ(dialogs.messages[0].text, "You wan't a Message in your event script?");
  EXPECT_EQ(dialogs.messages[0].title, "Ok.");
  EXPECT_EQ(dialogs.messages[0].buttons, MessageButtons::YesNo);
  EXPECT_THAT(dialogs.windowEvents, ElementsAre(Window{WindowName::Form4, true}, Window{WindowName::Form3, true}));
}

TEST(ToolsMenuTest, KindlewickStartsByNameAndFailsInSilence) {
  Session session;  // no ROM needed
  ScriptedDialogs dialogs;
  dialogs.programsStart = false;
  RunMenuEntry(MenuEntry::mnufrst, session, dialogs);
  RunMenuEntry(MenuEntry::mnustart, session, dialogs);  // no guard either
  EXPECT_THAT(dialogs.programsStarted, ElementsAre("Kindlewick"));
  EXPECT_THAT(dialogs.messages, IsEmpty());
  EXPECT_THAT(dialogs.windowEvents, ElementsAre(Window{WindowName::Form2, true}));
}

}  // namespace
}  // namespace tessarine
