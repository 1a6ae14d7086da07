#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "qt/QtShell.h"
#include "shell/OpenRom.h"
#include "support/ByteOracle.h"
#include "support/EventFixtures.h"
#include "support/ScriptedDialogs.h"
#include "support/WidgetDriver.h"
#include "support/FixtureRom.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::ByteRange;
using test::Pick;
using test::Type;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::size_t kS = 0x700000;
constexpr std::size_t kT = 0x7A0000;

// A Sapphire ROM with its species and two item names, open in the shell, and a builder
// opened from the Tools menu.
class BuilderWindowsTest : public ::testing::Test {
 protected:
  test::ScriptedDialogs dialogs;
  QtShell shell{dialogs};
  test::FixtureRom fixture = test::EventFixtureRom("AXPE");
  QWidget* form = nullptr;

  QWidget* Open(MenuEntry entry, WindowName window) {
    fixture.PutName(0x3C55BC + 44, "Potion", 14).PutName(0x3C55BC + 2 * 44, "Ether", 14);
    dialogs.openFileAnswers.push_back(fixture.path());
    shell.Run([this, entry] {
      OpenRom(shell.form1(), shell.rom(), shell.dialogs());
      RunMenuEntry(entry, shell.session(), shell.dialogs());
    });
    form = shell.Window(window);
    return form;
  }
  template <typename W>
  W* Find(const char* name) {
    W* widget = form->findChild<W*>(name);
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }
  std::string At(const ByteOracle& oracle, std::size_t at, std::size_t count) {
    const Bytes now = oracle.Now();
    return test::ToHex(Bytes(now.begin() + static_cast<long>(at), now.begin() + static_cast<long>(at + count)));
  }
  // Picks species 0x19, level 5 and item 2 in the lists, as a person does.
  void PickBattle() {
    Pick(Find<QComboBox>("Combo1"), 0x19);
    Pick(Find<QComboBox>("Combo3"), 5);
    EXPECT_EQ(Find<QComboBox>("Combo2")->itemText(2), "002 - Ether");
    Pick(Find<QComboBox>("Combo2"), 2);
  }
};

TEST_F(BuilderWindowsTest, Form3WritesTheBattlePickedInItsListsOnEnter) {
  dialogs.messageAnswers = {MessageAnswer::No};  // no message in the script
  ASSERT_NE(Open(MenuEntry::mnuwbs, WindowName::Form3), nullptr);
  EXPECT_EQ(form->windowTitle(), "Insert Wild Battle Script");
  PickBattle();
  EXPECT_EQ(Find<QLineEdit>("crytxt")->text(), "&H19");
  Type(Find<QLineEdit>("Text3"), "&H700000");
  const ByteOracle oracle(fixture.path());
  QTest::keyClick(Find<QComboBox>("Combo3"), Qt::Key_Return);  // Enter in a list presses Insert

  EXPECT_EQ(oracle.Changes(), (std::vector<ByteRange>{{kS, 13}}));
  EXPECT_EQ(At(oracle, kS, 13), "6A 5A B6 19 00 05 02 00 30 A1 19 00 02");
  EXPECT_THAT(dialogs.MessageTexts(), ElementsAre("You wan't a Message in your event script?", "Inserted"));
  QTest::qWait(0);  // the closed form is dropped
  EXPECT_EQ(shell.Window(WindowName::Form3), nullptr);
}

TEST_F(BuilderWindowsTest, Form4WritesTheScriptAndThenTheMessageTypedIntoTheBox) {
  dialogs.messageAnswers = {MessageAnswer::Yes};
  dialogs.inputAnswers = {"AB"};
  ASSERT_NE(Open(MenuEntry::mnuwbs, WindowName::Form4), nullptr);
  PickBattle();
  Type(Find<QLineEdit>("pkmntxt"), "&H1A");  // typed over the list's number
  Type(Find<QLineEdit>("Text3"), "&H700000");
  Type(Find<QLineEdit>("Text12"), "&H7A0000");
  const ByteOracle oracle(fixture.path());
  QTest::mouseClick(Find<QPushButton>("Command1"), Qt::LeftButton);

  EXPECT_EQ(At(oracle, kS, 20), "6A 5A 0F 00 00 7A 08 09 06 B6 1A 00 05 02 00 30 A1 19 00 02");
  EXPECT_EQ(At(oracle, kT, 4), "BB BC FF 00");
  EXPECT_EQ(oracle.Changes(), (std::vector<ByteRange>{{kS, 20}, {kT, 2}, {kT + 3, 1}}));
  ASSERT_EQ(dialogs.inputs.size(), 1u);
  EXPECT_EQ(dialogs.inputs[0].title, "Wild Pokemon Message");
  EXPECT_EQ(dialogs.MessageTexts().back(), "Inserted");
}

TEST_F(BuilderWindowsTest, Form5WritesTheBlockOnEnterAndClosesWithNoMessage) {
  dialogs.inputAnswers = {"AB"};
  ASSERT_NE(Open(MenuEntry::mnugps, WindowName::Form5), nullptr);
  EXPECT_EQ(form->windowTitle(), "Insert Give Pokemon Script");
  PickBattle();
  Type(Find<QLineEdit>("Text12"), "&H7A0000");
  Type(Find<QLineEdit>("Text3"), "&H700000");
  const ByteOracle oracle(fixture.path());
  QTest::keyClick(Find<QLineEdit>("Text3"), Qt::Key_Return);

  EXPECT_EQ(oracle.Changes(),
            (std::vector<ByteRange>{{kS, 83}, {kS + 93, 9}, {kS + 103, 48}, {kT, 2}, {kT + 3, 1}}));
  EXPECT_EQ(At(oracle, kS + 46, 6), "79 19 00 05 02 00");
  EXPECT_EQ(At(oracle, kS + 2, 4), "00 00 7A 08");
  EXPECT_THAT(dialogs.messages, IsEmpty());
  QTest::qWait(0);
  EXPECT_EQ(shell.Window(WindowName::Form5), nullptr);
}

}  // namespace
}  // namespace tessarine
