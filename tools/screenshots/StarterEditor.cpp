// The starter editor on a Ruby fixture, its three starters read from the ROM.
#include "Screenshots.h"
#include "qt/QtShell.h"
#include "shell/OpenRom.h"
#include "support/EventFixtures.h"
#include "support/ScriptedDialogs.h"

namespace tessarine::screenshots {

bool ShootStarterEditor(const QDir& dir) {
  test::FixtureRom ruby = test::EventFixtureRom("AXVE");
  ruby.PutWord(0x3F76C4, 0x115).PutWord(0x3F76C6, 0x118).PutWord(0x3F76C8, 0x11B);
  test::ScriptedDialogs dialogs;
  dialogs.openFileAnswers.push_back(ruby.path());
  QtShell shell(dialogs);
  shell.Run([&] {
    OpenRom(shell.form1(), shell.rom(), shell.dialogs());
    RunMenuEntry(MenuEntry::mnustart, shell.session(), shell.dialogs());
  });
  return Save(shell.Window(WindowName::Form2), dir, "starter-editor.png");
}

}  // namespace tessarine::screenshots
