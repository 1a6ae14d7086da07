#include "editors/Form9.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/Form1.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

using test::ScriptedDialogs;
using ::testing::ElementsAre;

using Window = ScriptedDialogs::WindowEvent;

TEST(Form9Test, ContinueKeepsBothTextsAsTypedAndBringsTheMainWindowBack) {
  Form1 main;
  Form9 form;
  ScriptedDialogs dialogs;
  form.Text1.text = "&H245EE0";
  form.Text2.text = "not a number";  // kept as it stands: its use is what parses it
  PressContinue(form, main, dialogs);
  EXPECT_EQ(main.Label20, "&H245EE0");
  EXPECT_EQ(main.itemRecords, "not a number");
  EXPECT_EQ(main.rom, "crap");
  EXPECT_THAT(dialogs.windowEvents, ElementsAre(Window{WindowName::Form9, false}, Window{WindowName::Form1, true}));
}

TEST(Form9Test, QuitKeepsNothingAndBringsTheMainWindowBack) {
  Form1 main;
  Form9 form;
  ScriptedDialogs dialogs;
  form.Text1.text = "&H1";
  PressQuit(form, dialogs);
  EXPECT_EQ(main.Label20, "&H1F716C");
  EXPECT_THAT(dialogs.windowEvents, ElementsAre(Window{WindowName::Form9, false}, Window{WindowName::Form1, true}));
}

}  // namespace
}  // namespace tessarine
