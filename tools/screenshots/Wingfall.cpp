// Wingfall on FireRed: "Pallet Town" loaded, its landing marked on the built-in town map,
// and the pointer's red box on another tile.
#include <QComboBox>
#include <QTest>

#include "Screenshots.h"
#include "qt/QtShell.h"
#include "shell/OpenRom.h"
#include "shell/ToolsMenu.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"
#include "support/WidgetDriver.h"

namespace tessarine::screenshots {

bool ShootWingfall(const QDir& dir) {
  test::FixtureRom fireRed = test::FixtureRom::FireRed();
  fireRed.PutBytes(0x3EEBF6, {0x00, 0x00, 0x03, 0x00, 0x0D, 0x00, 0x05, 0x00});
  test::ScriptedDialogs dialogs;
  QtShell shell(dialogs);
  dialogs.openFileAnswers.push_back(fireRed.path());
  shell.Run([&] { OpenRom(shell.form1(), shell.rom(), shell.dialogs()); });
  shell.Run([&] { RunMenuEntry(MenuEntry::mnuflin, shell.session(), shell.dialogs()); });
  QWidget* window = shell.Window(WindowName::Form8);
  if (window == nullptr) return false;
  if (!QTest::qWaitForWindowExposed(window)) return false;
  test::Pick(window->findChild<QComboBox*>("kanto"), 0);
  QWidget* viewport = window->findChild<QWidget*>("Picture1Inside");
  QTest::mouseMove(window->windowHandle(), viewport->mapTo(window, QPoint(104, 150)));
  return Save(window, dir, "wingfall-firered.png");
}

}  // namespace tessarine::screenshots
