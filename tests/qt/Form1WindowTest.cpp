#include "qt/Form1Window.h"

#include <QApplication>
#include <QDir>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QThread>
#include <QTimer>

#include "qt/LinedTextBoxWidget.h"
#include "qt/QtListingProgress.h"
#include "rom/Failure.h"
#include "support/ShellTest.h"
#include "support/Tests.h"

namespace tessarine {
namespace {

using test::Pick;
using test::Type;
using ::testing::MatchesRegex;

class Form1WindowTest : public test::ShellTest {
 public:
  void SetUp() override {
    shell.ShowWindow(WindowName::Form1);
    window = &shell.mainWindow();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
  }
  void ClickOpen(const std::string& path) {  // on the picture of Open, beside its caption
    dialogs.openFileAnswers.push_back(path);
    QTest::mouseClick(Find<ImageButton>("Image3"), Qt::LeftButton, {}, QPoint(6, 6));
  }
};

// A person's road through the window: each control on it reaches the core and shows its field,
// and the bytes in the file prove it. Each press of Load puts the whole listing into Text4, also
// over what a person typed there; a refused offset leaves what the box holds.
TEST_F(Form1WindowTest, AnEventEditAndTwoListingsReachTheRomThroughTheWidgets) {
  test::FixtureRom fixture = test::EventFixtureRom("AXPE");
  fixture.PutBytes(0xA00200, {0x6A, 0x5A, 0xB6, 0x19, 0x00, 0x05, 0x00, 0x00, 0x30, 0xA1, 0x19, 0x00, 0x02});
  ClickOpen(fixture.path());
  EXPECT_EQ(Find<QLabel>("hdtxt")->text() + QString::number(Find<QComboBox>("Combo1")->count()), "AXPE412");
  auto* events = Find<QComboBox>("Combo3");  // typed text selects no event, not even with Enter
  Type(events->lineEdit(), "Rayq");
  QTest::keyClick(events, Qt::Key_Return);
  EXPECT_EQ(events->currentText() + QString::fromStdString(shell.form1().whee), "Rayq0");
  Pick(events, 2);  // Latias/Latios
  EXPECT_EQ(Find("scriptpointxt")->text(), "&H160B2B");
  ASSERT_TRUE(Find("hoobla2")->isVisible());
  const test::ByteOracle oracle(fixture.path());
  Pick(Find<QComboBox>("Combo1"), 0xAA);
  EXPECT_EQ(Find("hoobla2")->text(), "&HAA");
  Type(Find("hoobla2"), "&HC0");
  Type(Find("flagtxt"), "&H4321");
  Click("Command9");
  EXPECT_THAT(dialogs.messages, IsEmpty());
  EXPECT_EQ(oracle.Written(), (test::WrittenRuns{{0x160B5E, "C0 00"}, {0x160B84, "AA 00"}, {0x391E1C, "21 43"}}));

  auto* text4 = Find<LinedTextBoxWidget>("Text4");
  const std::string listing = "lock \nfaceplayer \nwildpkmnbattle: &H19 &H5 &H0\ncry  &H19\nend \n";
  Type(Find("Text3"), "&HA00200");
  QTest::keyClicks(text4, "typed");
  Click("Command2");
  EXPECT_EQ(text4->toPlainText().toStdString(), listing);
  QTest::keyClicks(text4, "typed");
  Type(Find("Text3"), "&HF8000000");  // what a null script pointer leaves there
  Click("Command2");
  EXPECT_EQ(dialogs.MessageTexts().back() + text4->toPlainText().toStdString(), "Offset Bad" "typed" + listing);
}

// English Emerald's events stand in Combo5, in the place of the other two lists, and a pick
// there reaches the core.
TEST_F(Form1WindowTest, EmeraldsEventListStandsWhereTheOthersStandAndAPickLoadsTheEvent) {
  test::FixtureRom fixture = test::EventFixtureRom("BPEE");
  ClickOpen(fixture.path());
  auto* events = Find<QComboBox>("Combo5");
  auto* rs = Find<QComboBox>("Combo3");
  EXPECT_EQ(std::tuple(rs->isVisible(), Find<QComboBox>("Combo4")->isVisible(), events->isVisible(), events->count()),
            std::tuple(false, false, true, 13));
  EXPECT_EQ(events->parentWidget(), rs->parentWidget());
  Pick(events, 2);  // Kyogre
  EXPECT_EQ(Find("scriptpointxt")->text() + Find("hoobla")->text(), "&H23B01B&H102");
  EXPECT_TRUE(Find("hoobla2")->isVisible() && Find<QPushButton>("Command6")->isVisible());
}

// Whatever ends an action ends it with a sentence, also in an action that starts while
// another one keeps the events running (as the listing's progress dialog does).
TEST_F(Form1WindowTest, EveryActionEndsInASentenceAlsoOneStartedInsideAnother) {
  const std::tuple<bool, void (*)(), const char*> rows[] = {
      {true, [] { throw Failure("Flag: \"x\" is not a word."); }, "Flag: \"x\" is not a word."},
      {true, [] { throw std::bad_alloc(); }, "more memory than the system could give"},
      {false, [] { throw std::length_error("basic_string::_M_create"); }, "more memory than the system could give"}};
  for (const auto& [nested, fail, says] : rows) {
    dialogs.messages.clear();
    bool outerEnded = false;
    shell.Run([&] {
      if (!nested) fail();
      QTimer::singleShot(0, [&] { shell.Run(fail); });
      QTest::qWait(20);
      outerEnded = true;
    });
    EXPECT_EQ(outerEnded, nested) << says;
    EXPECT_THAT(dialogs.MessageTexts(), ElementsAre(HasSubstr(says)));
  }
}

// The keyboard reaches Open (Enter on its picture, Ctrl+O) and the Tools menu (Alt+T); the caption
// of Open does nothing; the About box, opened by its caption, is one modeless window with the
// version and commit of the build, closed by Esc as by OK.
TEST_F(Form1WindowTest, TheKeysReachOpenAndToolsAndTheAboutBoxIsOneModelessWindow) {
  QTest::mouseClick(Find<QLabel>("Label15"), Qt::LeftButton);
  EXPECT_THAT(dialogs.fileDialogs, IsEmpty());
  QTest::keyClick(Find<ImageButton>("Image3"), Qt::Key_Return);
  QTest::qWait(300);  // animateClick's press
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  QTest::keyClick(window, Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(dialogs.fileDialogs.size(), 2u);
  QString popUp;
  QTimer::singleShot(0, [&] {
    if (QWidget* menu = QApplication::activePopupWidget()) popUp = menu->objectName(), menu->close();
  });
  QTest::keyClick(window, Qt::Key_T, Qt::AltModifier);
  EXPECT_EQ(popUp, "mnuptro");
  QTest::mouseClick(Find<QLabel>("Label17"), Qt::LeftButton);
  QWidget* about = shell.Window(WindowName::frmAbout);
  ASSERT_NE(about, nullptr);
  EXPECT_EQ(about->findChild<QLabel*>("lblVersion")->text(), "Version 0.5.112");
  EXPECT_THAT(about->findChild<QLabel*>("lblCommit")->text().toStdString(),
              MatchesRegex("Commit ([0-9a-f]{12}(-dirty)?|unknown)"));
  EXPECT_FALSE(about->isModal());
  QTest::mouseClick(Find<ImageButton>("Image5"), Qt::LeftButton);
  EXPECT_EQ(shell.Window(WindowName::frmAbout), about);
  QTest::keyClick(about, Qt::Key_Escape);
  QTest::qWait(0);
  EXPECT_EQ(shell.Window(WindowName::frmAbout), nullptr);
  QTest::mouseClick(Find<ImageButton>("Image5"), Qt::LeftButton);
  QTest::mouseClick(shell.Window(WindowName::frmAbout)->findChild<QPushButton*>("cmdOK"), Qt::LeftButton);
  QTest::qWait(0);
  EXPECT_EQ(shell.Window(WindowName::frmAbout), nullptr);
}

// What is dropped on the window, files also over a field: one .gba file opens as Open does,
// anything else is refused by a sentence that names it, and the ROM that was open stays open. A
// drag that offers only a move is refused as it enters, with nothing said.
TEST_F(Form1WindowTest, AGbaFileDroppedOnTheWindowOpensAndAnythingElseIsRefusedByName) {
  test::FixtureRom ruby = test::EventFixtureRom("AXVE"), fixture = test::EventFixtureRom("AXPE");
  ClickOpen(ruby.path());
  const QString rom = QString::fromStdString(fixture.path()), folder = QDir::tempPath();
  const QUrl file = QUrl::fromLocalFile(rom), notes = QUrl::fromLocalFile(rom + ".txt");
  const QString deep = folder + "/" + QString(70, 'd') + "/Pokemon (Rev 1).zip";  // its name shows whole
  const std::string path = rom.toStdString(), notesPath = path + ".txt";
  const struct {
    QList<QUrl> urls;
    QString text;
    std::string refusal;  // "" where it opens
    Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction;  // a source that offers a move (Shift held)
  } rows[] = {
      {{notes}, notes.toLocalFile(), "\"" + notesPath + "\" is not a .gba file."},
      {{QUrl::fromLocalFile(deep)}, {}, "\"" + deep.left(41).toStdString() + ".../Pokemon (Rev 1).zip\" is not a .gba file."},
      {{QUrl::fromLocalFile(folder)}, {}, "\"" + folder.toStdString() + "\" is a folder."},
      {{file, file, notes, notes}, {},
       "4 things were dropped: \"" + path + "\", \"" + path + "\", \"" + notesPath + "\" and 1 more."},
      {{QUrl("https://example.org/rom.gba")}, {}, "\"https://example.org/rom.gba\" is not a file on this computer."},
      {{}, "Rayquaza\nat the top of Sky Pillar", "\"Rayquaza...\" is not a file on this computer."},
      {{}, {}, "What was dropped is no file."},
      {{file}, rom, "", Qt::MoveAction},
      {{file}, rom, ""},
  };
  for (const auto& row : rows) {
    dialogs.messages.clear();
    QMimeData data;
    data.setUrls(row.urls);
    if (!row.text.isEmpty()) data.setText(row.text);  // as file managers give it too, which a field would take
    // Files over a field, which leaves them to the window; text on the window, since a field takes text.
    QWidget* target = row.urls.isEmpty() ? window : Find("spritetxt");
    // The window copies, and a refused drop is ignored, so that the source deletes nothing it gave.
    QDragEnterEvent enter(QPoint(4, 4), row.offered, &data, Qt::LeftButton, Qt::ShiftModifier);
    QCoreApplication::sendEvent(target, &enter);
    QDropEvent drop(QPointF(4, 4), row.offered, &data, Qt::LeftButton, Qt::ShiftModifier);
    QCoreApplication::sendEvent(target, &drop);
    const bool copy = row.offered.testFlag(Qt::CopyAction), opens = copy && row.refusal.empty();
    const auto answer = [](const QDropEvent& e) { return e.isAccepted() ? e.dropAction() : Qt::IgnoreAction; };
    EXPECT_EQ(std::pair(answer(enter), answer(drop)),
              std::pair(copy ? Qt::CopyAction : Qt::IgnoreAction, opens ? Qt::CopyAction : Qt::IgnoreAction));
    QTest::qWait(0);
    const std::string told = row.refusal + " Drop one .gba file on the window to open it; nothing was opened.";
    EXPECT_EQ(dialogs.MessageTexts(), row.refusal.empty() ? std::vector<std::string>{} : std::vector{told});
    EXPECT_EQ(Find<QLabel>("hdtxt")->text() + QString::number(Find<QComboBox>("Combo1")->count()),
              opens ? "AXPE412" : "AXVE412");
  }
}

TEST_F(Form1WindowTest, AnUnknownGameShowsTheUnsupportedRomDialogInsteadOfTheMainWindow) {
  test::FixtureRom emerald = test::FixtureRom::JapaneseEmerald();
  ClickOpen(emerald.path());
  EXPECT_THAT(dialogs.MessageTexts(), ElementsAre("Unsupported ROM"));
  QWidget* form9 = shell.Window(WindowName::Form9);
  ASSERT_NE(form9, nullptr);
  EXPECT_EQ(std::pair(window->isVisible(), form9->isVisible()), std::pair(false, true));
  Type(form9->findChild<QLineEdit*>("Text1"), "&H245EE0");
  QTest::keyClick(form9->findChild<QLineEdit*>("Text1"), Qt::Key_Return);  // moves on to the next offset
  EXPECT_EQ(form9->focusWidget(), form9->findChild<QLineEdit*>("Text2"));
  QTest::mouseClick(form9->findChild<QPushButton*>("Command1"), Qt::LeftButton);
  QTest::qWait(0);  // the closed dialog is dropped
  EXPECT_EQ(std::pair(window->isVisible(), shell.Window(WindowName::Form9)), std::pair(true, (QWidget*)nullptr));
  EXPECT_EQ(shell.form1().Label20, "&H245EE0");
}

// The Tools menu also opens from the background, with no ROM open; its last entry starts a program
// by name, and not being able to start it passes in silence.
TEST_F(Form1WindowTest, TheRightButtonOnTheBackgroundOpensTheToolsMenuWithNoRomOpen) {
  QStringList entries;
  QTimer::singleShot(0, [&] {
    if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
      for (const QAction* action : menu->actions()) entries << action->text();
      menu->setActiveAction(menu->actions().last());
      QTest::keyClick(menu, Qt::Key_Return);
    }
  });
  QTest::mouseClick(window, Qt::RightButton, {}, QPoint(300, 250));
  EXPECT_EQ(entries.size(), 10);
  EXPECT_EQ(entries.value(1), "Insert Wild Battle Script");
  EXPECT_THAT(dialogs.programsStarted, ElementsAre("Kindlewick"));
  EXPECT_THAT(dialogs.messages, IsEmpty());
}

// The dialog that a slow listing shows, and its Cancel.
TEST(QtListingProgressTest, ASlowListingShowsTheDialogAndItsCancelKeepsText4) {
  test::FixtureRom fixture("BPRE", 0x80000);  // 512 KiB of free space, a short script in its last two bytes
  fixture.PutBytes(0x7FFFE, {0x6A, 0x02});
  RomImage rom;
  rom.Open(fixture.path());
  test::ScriptedDialogs ui;
  Form1 form;
  form.Text3.text = "&H100";  // through all the free space
  form.Text4.text = "what was there";
  QWidget window;
  QtListingProgress progress(&window);
  const ListingProgress shown = progress.Callback();
  int steps = 0;
  bool sawDialog = false;
  const bool replaced = ListIntoText4(form, rom, ui, [&](double done) {
    if (++steps <= 6) QThread::msleep(100);  // slow enough for the half second to pass
    const bool goOn = shown(done);
    sawDialog = sawDialog || progress.dialog().isVisible();
    if (steps == 8) progress.dialog().cancel();  // as a press of Cancel does
    return goOn;
  });
  EXPECT_TRUE(sawDialog);
  EXPECT_FALSE(replaced);
  EXPECT_EQ(steps, 9);  // the first step after the cancel stops the listing
  EXPECT_EQ(form.Text4.text, "what was there");
}

}  // namespace
}  // namespace tessarine
