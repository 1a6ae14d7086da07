// The main window on FireRed, English Emerald and Sapphire, a listing, the Tools menu, the About box and
// the Unsupported ROM dialog.
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "Screenshots.h"
#include "qt/Form1Window.h"
#include "qt/LinedTextBoxWidget.h"
#include "qt/QtShell.h"
#include "support/EventFixtures.h"
#include "support/ScriptedDialogs.h"
#include "support/WidgetDriver.h"

namespace tessarine::screenshots {
namespace {

// Opens a fixture of the game and picks one of its events.
void OpenAndPick(QtShell& shell, test::ScriptedDialogs& dialogs, test::FixtureRom& fixture, const char* list,
                 int event) {
  Form1Window& window = shell.mainWindow();
  dialogs.openFileAnswers.push_back(fixture.path());
  QTest::mouseClick(window.findChild<QWidget*>("Image3"), Qt::LeftButton, {}, QPoint(6, 6));
  test::Pick(window.findChild<QComboBox*>(list), event);
}

}  // namespace

bool ShootMainWindow(const QDir& dir) {
  bool ok = true;

  test::FixtureRom fireRed = test::EventFixtureRom("BPRE");
  test::FixtureRom sapphire = test::EventFixtureRom("AXPE");
  // A script to list: lock, faceplayer, checkflag, msgbox, boxset, a wild battle, its cry,
  // setvar and end.
  sapphire.PutBytes(0xA00200, {0x6A, 0x5A, 0x2B, 0x34, 0x08, 0x0F, 0x00, 0x50, 0x20, 0x08, 0x09, 0x02, 0xB6, 0x96,
                               0x01, 0x46, 0x00, 0x00, 0x30, 0xA1, 0x96, 0x01, 0x16, 0x0D, 0x80, 0x01, 0x00, 0x02});
  test::FixtureRom emeraldUs = test::EventFixtureRom("BPEE");
  test::FixtureRom emerald = test::FixtureRom::JapaneseEmerald();  // Japanese: a game that Open ROM does not take

  {
    test::ScriptedDialogs dialogs;
    QtShell shell(dialogs);
    shell.ShowWindow(WindowName::Form1);
    Form1Window& window = shell.mainWindow();
    ok &= Save(&window, dir, "main-window-start.png");

    OpenAndPick(shell, dialogs, fireRed, "Combo4", 4);  // Mewtwo
    ok &= Save(&window, dir, "main-window-firered.png");

    OpenAndPick(shell, dialogs, emeraldUs, "Combo5", 2);  // Kyogre
    ok &= Save(&window, dir, "main-window-emerald.png");

    OpenAndPick(shell, dialogs, sapphire, "Combo3", 2);  // Latias/Latios
    auto* listOffset = window.findChild<QLineEdit*>("Text3");
    auto* listButton = window.findChild<QPushButton*>("Command2");
    if (listButton->isEnabled()) {
      test::Type(listOffset, "&HA00200");
      QTest::mouseClick(listButton, Qt::LeftButton);
      // Lines 4 to 6 selected, the focus in the listing.
      auto* listing = window.findChild<QPlainTextEdit*>("Text4");
      QTextCursor selection(listing->document()->findBlockByNumber(3));
      selection.setPosition(listing->document()->findBlockByNumber(5).position() + 4, QTextCursor::KeepAnchor);
      listing->setFocus();
      listing->setTextCursor(selection);
    }
    ok &= Save(&window, dir, "main-window-sapphire.png");

    // A listing of the last MiB of the ROM, free space: a line a byte, more lines than the box
    // takes on its own. The line under the text says how many are still to come.
    if (listButton->isEnabled()) {
      test::Type(listOffset, "&HF00000");
      QTest::mouseClick(listButton, Qt::LeftButton);
      auto* listing = window.findChild<LinedTextBoxWidget*>("Text4");
      while (listing->Filling()) QApplication::processEvents();
      ok &= Save(&window, dir, "main-window-long-listing.png");
    }

    QTimer::singleShot(300, [&] {
      if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
        ok &= Save(menu, dir, "tools-menu.png");
        menu->close();
      }
    });
    window.PopUpToolsMenu(window.mapToGlobal(QPoint(90, 40)));

    QTest::mouseClick(window.findChild<QWidget*>("Image5"), Qt::LeftButton);
    ok &= Save(shell.Window(WindowName::frmAbout), dir, "about.png");

    dialogs.openFileAnswers.push_back(emerald.path());
    QTest::mouseClick(window.findChild<QWidget*>("Image3"), Qt::LeftButton, {}, QPoint(6, 6));
    ok &= Save(shell.Window(WindowName::Form9), dir, "unsupported-rom.png");
  }
  return ok;
}

}  // namespace tessarine::screenshots
