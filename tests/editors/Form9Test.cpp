#include "editors/Form9.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/Form1.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

using Window = test::ScriptedDialogs::WindowEvent;

// Continue keeps both texts as typed (their use is what parses them); Quit keeps nothing.
// Both bring the main window back.
TEST(Form9Test, ContinueKeepsBothTextsAndQuitNothing) {
  for (const bool keep : {true, false}) {
    Form1 main;
    Form9 form;
    test::ScriptedDialogs dialogs;
    form.Text1.text = "&H245EE0";
    form.Text2.text = "not a number";
    keep ? PressContinue(form, main, dialogs) : PressQuit(form, dialogs);
    EXPECT_EQ(main.Label20, keep ? "&H245EE0" : "&H1F716C");
    EXPECT_EQ(main.itemRecords, keep ? "not a number" : "");
    EXPECT_EQ(main.rom, "crap");
    EXPECT_THAT(dialogs.windowEvents,
                testing::ElementsAre(Window{WindowName::Form9, false}, Window{WindowName::Form1, true}));
  }
}

}  // namespace
}  // namespace tessarine
