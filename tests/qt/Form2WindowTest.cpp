#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QComboBox>
#include <QPushButton>
#include <QTest>

#include "qt/QtShell.h"
#include "shell/OpenRom.h"
#include "support/ByteOracle.h"
#include "support/EventFixtures.h"
#include "support/ScriptedDialogs.h"
#include "support/WidgetDriver.h"

namespace tessarine {
namespace {

TEST(Form2WindowTest, TheListsSaveWhatIsPickedAndDoneClosesWithoutWriting) {
  test::FixtureRom ruby = test::EventFixtureRom("AXVE");
  ruby.PutWord(0x3F76C4, 0x115).PutWord(0x3F76C6, 0x118).PutWord(0x3F76C8, 0x11B);
  test::ScriptedDialogs dialogs;
  dialogs.openFileAnswers.push_back(ruby.path());
  QtShell shell(dialogs);
  shell.Run([&] {
    OpenRom(shell.form1(), shell.rom(), shell.dialogs());
    RunMenuEntry(MenuEntry::mnustart, shell.session(), shell.dialogs());
  });
  QWidget* form = shell.Window(WindowName::Form2);
  ASSERT_NE(form, nullptr);
  auto* ball1 = form->findChild<QComboBox*>("Combo1");
  EXPECT_EQ(ball1->currentText().toStdString(), shell.form1().Combo1.rows[277]);

  test::Pick(form->findChild<QComboBox*>("Combo2"), 0x19);
  const test::ByteOracle oracle(ruby.path());
  QTest::mouseClick(form->findChild<QPushButton*>("Command1"), Qt::LeftButton);
  QTest::keyClick(ball1, Qt::Key_Return);  // Enter in a closed list presses Save again
  test::Pick(ball1, 0);
  QTest::mouseClick(form->findChild<QPushButton*>("Command3"), Qt::LeftButton);  // Reload: the stored row again
  EXPECT_EQ(ball1->currentIndex(), 277);
  test::Pick(ball1, 0);
  QTest::mouseClick(form->findChild<QPushButton*>("Command2"), Qt::LeftButton);
  QTest::qWait(0);
  EXPECT_EQ(shell.Window(WindowName::Form2), nullptr);
  EXPECT_EQ(oracle.Changes(), (std::vector<test::ByteRange>{{0x3F76C6, 2}}));  // Save's only change; Done wrote none
  EXPECT_EQ(oracle.Now()[0x3F76C6], 0x19);
  EXPECT_EQ(dialogs.MessageTexts(), (std::vector<std::string>{"Saved", "Saved"}));
}

}  // namespace
}  // namespace tessarine
