// The braille inserter with a record loaded: its box and its text over the drawn screenshot.
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "Screenshots.h"
#include "qt/QtShell.h"
#include "shell/ToolsMenu.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"
#include "support/WidgetDriver.h"

namespace tessarine::screenshots {

bool ShootBrailleInserter(const QDir& dir) {
  test::FixtureRom fixture = test::FixtureRom::Ruby();
  // A box from 8 pixels in and 96 down, 8 narrower and 7 lower; the text at 16, 104:
  // "OPEN THE DOOR." [End].
  fixture.PutBytes(0x700000, {0x01, 0x0C, 0x08, 0x07, 0x02, 0x0D, 0x19, 0x17, 0x09, 0x1B, 0x00, 0x1E, 0x0D,
                              0x09, 0x00, 0x0B, 0x19, 0x19, 0x1D, 0x2C, 0xFF, 0x00});
  test::ScriptedDialogs dialogs;
  QtShell shell(dialogs);
  shell.rom().Open(fixture.path());
  shell.form1().rom = "Loaded";
  shell.Run([&] { RunMenuEntry(MenuEntry::mnuib, shell.session(), shell.dialogs()); });
  QWidget* window = shell.Window(WindowName::Form6);
  if (window == nullptr) return false;
  test::Type(window->findChild<QLineEdit*>("Text2"), "&H700000");
  test::Type(window->findChild<QLineEdit*>("Text3"), "&H700100");
  QTest::mouseClick(window->findChild<QPushButton*>("Command2"), Qt::LeftButton);
  return Save(window, dir, "braille-inserter.png");
}

}  // namespace tessarine::screenshots
