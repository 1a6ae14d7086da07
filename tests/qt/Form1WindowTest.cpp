#include "qt/Form1Window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "qt/LinedTextBoxWidget.h"
#include "qt/QtShell.h"
#include "support/ByteOracle.h"
#include "support/EventFixtures.h"
#include "support/ScriptedDialogs.h"
#include "support/WidgetDriver.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::ByteRange;
using test::EventFixtureRom;
using test::FixtureRom;
using test::Pick;
using test::ScriptedDialogs;
using test::Type;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class Form1WindowTest : public ::testing::Test {
 protected:
  ScriptedDialogs dialogs;
  QtShell shell{dialogs};
  Form1Window& window = shell.mainWindow();

  void SetUp() override {
    shell.ShowWindow(WindowName::Form1);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
  }
  template <typename W>
  W* Find(const char* name) {
    W* widget = window.findChild<W*>(name);
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }
  // A click on the picture of Open, beside its caption.
  void ClickOpen(const std::string& path) {
    dialogs.openFileAnswers.push_back(path);
    QTest::mouseClick(Find<ImageButton>("Image3"), Qt::LeftButton, {}, QPoint(6, 6));
  }
};

TEST_F(Form1WindowTest, StartsWithTheControlsOfTheMainWindow) {
  EXPECT_EQ(window.windowTitle(), "Tessarine Load Test");
  EXPECT_EQ(Find<QLabel>("Label15")->text(), "Open");
  EXPECT_EQ(Find<QLabel>("Label16")->text(), "Tools");
  EXPECT_EQ(Find<QLabel>("Label17")->text(), "About");
  EXPECT_EQ(Find<QComboBox>("Combo3")->currentText(), "Select a Event");
  EXPECT_FALSE(Find<QComboBox>("Combo3")->isEnabled());
  EXPECT_FALSE(Find<QComboBox>("Combo4")->isVisible());
  EXPECT_EQ(Find<QPushButton>("Command10")->text(), "load");
  EXPECT_FALSE(Find<QPushButton>("Command10")->isEnabled());
  EXPECT_FALSE(Find<QPushButton>("Command9")->isEnabled());
  EXPECT_FALSE(Find<QPushButton>("Command2")->isEnabled());
  EXPECT_EQ(Find<QLineEdit>("spritetxt")->text(), "&H0000");
  EXPECT_EQ(Find<QLineEdit>("scriptpointxt")->text(), "&H000000");
  EXPECT_EQ(Find<QLineEdit>("Text3")->text(), "&H15F316");
  EXPECT_EQ(Find<QLabel>("Label18")->text(), "Offset: ");
  EXPECT_EQ(Find<QLabel>("hdtxt")->text(), "None");
  EXPECT_EQ(Find<QComboBox>("Combo2")->count(), 12);
  EXPECT_TRUE(Find<QPushButton>("Command6")->isVisible());
  EXPECT_TRUE(Find<QPushButton>("frlgl")->isVisible());
  EXPECT_FALSE(Find<QLineEdit>("hoobla2")->isVisible());
}

TEST_F(Form1WindowTest, TheCaptionOpenTakesItsClicksAndTheOthersPassThemOn) {
  QTest::mouseClick(Find<QLabel>("Label15"), Qt::LeftButton);
  EXPECT_THAT(dialogs.fileDialogs, IsEmpty());
  QTest::mouseClick(Find<QLabel>("Label17"), Qt::LeftButton);
  EXPECT_NE(shell.Window(WindowName::frmAbout), nullptr);
  ClickOpen("");
  EXPECT_EQ(dialogs.fileDialogs.size(), 1u);
  QTest::keyClick(Find<ImageButton>("Image3"), Qt::Key_Return);  // the keyboard reaches it too
  QTest::qWait(300);  // animateClick's press
  EXPECT_EQ(dialogs.fileDialogs.size(), 2u);
}

TEST_F(Form1WindowTest, TextTypedIntoTheEventListSelectsNoEvent) {
  FixtureRom fixture = EventFixtureRom("AXVE");
  ClickOpen(fixture.path());
  auto* events = Find<QComboBox>("Combo3");
  events->setFocus();
  events->lineEdit()->selectAll();
  QTest::keyClicks(events, "Rayq");
  QTest::keyClick(events, Qt::Key_Return);
  EXPECT_EQ(events->currentText(), "Rayq");
  EXPECT_EQ(shell.form1().Combo3.text, "Rayq");
  EXPECT_EQ(shell.form1().whee, "0");
  EXPECT_EQ(shell.form1().spritetxt.text, "&H0000");
  Pick(events, 1);
  EXPECT_EQ(shell.form1().whee, "1");
}

TEST_F(Form1WindowTest, AnEventEditFromOpenToSaveThroughTheWidgets) {
  FixtureRom fixture = EventFixtureRom("AXPE");
  ClickOpen(fixture.path());
  EXPECT_EQ(Find<QLabel>("hdtxt")->text(), "AXPE");
  EXPECT_EQ(Find<QComboBox>("Combo1")->count(), 412);

  Pick(Find<QComboBox>("Combo3"), 2);  // Latias/Latios
  EXPECT_EQ(Find<QLineEdit>("scriptpointxt")->text(), "&H160B2B");
  ASSERT_TRUE(Find<QLineEdit>("hoobla2")->isVisible());

  const ByteOracle oracle(fixture.path());
  Pick(Find<QComboBox>("Combo1"), 0xAA);
  EXPECT_EQ(Find<QLineEdit>("hoobla2")->text(), "&HAA");
  Type(Find<QLineEdit>("hoobla2"), "&HC0");
  Type(Find<QLineEdit>("flagtxt"), "&H4321");
  QTest::mouseClick(Find<QPushButton>("Command9"), Qt::LeftButton);

  EXPECT_THAT(dialogs.messages, IsEmpty());
  EXPECT_EQ(oracle.Changes(), (std::vector<ByteRange>{{0x160B5E, 2}, {0x160B84, 2}, {0x391E08 + 20, 2}}));
  const Bytes now = oracle.Now();
  EXPECT_THAT(Bytes(now.begin() + 0x391E08 + 20, now.begin() + 0x391E08 + 22), ElementsAre(0x21, 0x43));
  EXPECT_THAT(Bytes(now.begin() + 0x160B84, now.begin() + 0x160B86), ElementsAre(0xAA, 0x00));
  EXPECT_THAT(Bytes(now.begin() + 0x160B5E, now.begin() + 0x160B60), ElementsAre(0xC0, 0x00));
}

TEST_F(Form1WindowTest, TheListerShowsAScriptWithLineNumbers) {
  FixtureRom fixture = EventFixtureRom("BPGE");
  fixture.PutBytes(0xA00200, {0x6A, 0x5A, 0xB6, 0x19, 0x00, 0x05, 0x00, 0x00, 0x30, 0xA1, 0x19, 0x00, 0x02});
  ClickOpen(fixture.path());
  auto* text4 = Find<LinedTextBoxWidget>("Text4");
  EXPECT_TRUE(text4->LineNumbersOn());
  EXPECT_EQ(text4->NumDigits(), 4);

  Type(Find<QLineEdit>("Text3"), "&HA00200");
  QTest::mouseClick(Find<QPushButton>("Command2"), Qt::LeftButton);
  EXPECT_EQ(text4->toPlainText(), "lock \nfaceplayer \nwildpkmnbattle: &H19 &H5 &H0\ncry  &H19\nend \n");
  QTest::qWait(50);  // the paints that the new text asks for
  ASSERT_TRUE(text4->LastGutterPaint().has_value());
  EXPECT_EQ(text4->LastGutterPaint()->rows.size(), 6u);

  Type(Find<QLineEdit>("Text3"), "&HF8000000");  // what a null script pointer leaves there
  QTest::mouseClick(Find<QPushButton>("Command2"), Qt::LeftButton);
  EXPECT_THAT(dialogs.MessageTexts(), ElementsAre("Offset Bad"));
  EXPECT_EQ(text4->blockCount(), 6);  // the listing stays
}

TEST_F(Form1WindowTest, AFailureIsShownAndTheWindowStaysUsable) {
  FixtureRom fixture = EventFixtureRom("BPRE");
  ClickOpen(fixture.path());
  Pick(Find<QComboBox>("Combo4"), 1);
  Type(Find<QLineEdit>("flagtxt"), "&H10000");
  QTest::mouseClick(Find<QPushButton>("Command9"), Qt::LeftButton);
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_THAT(dialogs.messages[0].text, HasSubstr("Flag: \"&H10000\" is not a word."));

  Type(Find<QLineEdit>("flagtxt"), "&H10");
  QTest::mouseClick(Find<QPushButton>("Command9"), Qt::LeftButton);
  EXPECT_EQ(dialogs.messages.size(), 1u);
}

TEST_F(Form1WindowTest, AnUnknownGameShowsTheUnsupportedRomDialogInsteadOfTheMainWindow) {
  FixtureRom emerald = FixtureRom::Emerald();
  ClickOpen(emerald.path());
  EXPECT_THAT(dialogs.MessageTexts(), ElementsAre("Unsupported ROM"));
  EXPECT_FALSE(window.isVisible());
  QWidget* form9 = shell.Window(WindowName::Form9);
  ASSERT_NE(form9, nullptr);
  EXPECT_TRUE(form9->isVisible());
  EXPECT_EQ(form9->windowTitle(), "Unsupported ROM");

  auto* text1 = form9->findChild<QLineEdit*>("Text1");
  EXPECT_EQ(text1->text(), "&H000000");
  Type(text1, "&H245EE0");
  QTest::mouseClick(form9->findChild<QPushButton*>("Command1"), Qt::LeftButton);
  EXPECT_TRUE(window.isVisible());
  QTest::qWait(0);  // the closed dialog is dropped
  EXPECT_EQ(shell.Window(WindowName::Form9), nullptr);
  EXPECT_EQ(shell.form1().Label20, "&H245EE0");
}

TEST_F(Form1WindowTest, TheRightButtonOnTheBackgroundOpensTheToolsMenuWithNoRomOpen) {
  QStringList entries;
  QTimer::singleShot(0, [&] {
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
      for (const QAction* action : menu->actions()) entries << action->text();
      const QList<QAction*> actions = menu->actions();
      menu->setActiveAction(actions.last());  // Kindlewick, started by name
      QTest::keyClick(menu, Qt::Key_Return);
    }
  });
  QTest::mouseClick(&window, Qt::RightButton, {}, QPoint(300, 250));
  EXPECT_EQ(entries.size(), 10);
  EXPECT_EQ(entries.value(1), "Insert Wild Battle Script");
  EXPECT_THAT(dialogs.programsStarted, ElementsAre("Kindlewick"));
  EXPECT_THAT(dialogs.messages, IsEmpty());  // not being able to start it passes in silence
}

TEST_F(Form1WindowTest, TheAboutBoxIsOneModelessWindow) {
  QTest::mouseClick(Find<ImageButton>("Image5"), Qt::LeftButton);
  QWidget* about = shell.Window(WindowName::frmAbout);
  ASSERT_NE(about, nullptr);
  EXPECT_EQ(about->windowTitle(), "About Tessarine");
  EXPECT_EQ(about->findChild<QLabel*>("lblVersion")->text(), "Version 0.5.112");
  EXPECT_EQ(about->findChild<QLabel*>("lblTitle")->text(), "Tessarine");
  EXPECT_FALSE(about->isModal());
  QTest::mouseClick(Find<ImageButton>("Image5"), Qt::LeftButton);
  EXPECT_EQ(shell.Window(WindowName::frmAbout), about);
  QTest::mouseClick(about->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
  QTest::qWait(0);
  EXPECT_EQ(shell.Window(WindowName::frmAbout), nullptr);
}

}  // namespace
}  // namespace tessarine
