// The three script builders on a Sapphire fixture: a wild battle, the same with a message,
// and the give-Pokemon script, each with rows chosen and offsets typed; then the give-Pokemon
// script game-ready, its offsets found by the Find Free Space buttons.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "Screenshots.h"
#include "qt/QtShell.h"
#include "shell/OpenRom.h"
#include "support/EventFixtures.h"
#include "support/ScriptedDialogs.h"
#include "support/WidgetDriver.h"

namespace tessarine::screenshots {

bool ShootScriptBuilders(const QDir& dir) {
  test::FixtureRom sapphire = test::EventFixtureRom("AXPE");
  const char* const items[] = {"Nothing", "Brass Ring", "Tin Whistle", "Glow Stone", "Moss Cake"};
  for (std::size_t i = 0; i < std::size(items); ++i) sapphire.PutName(0x3C55BC + 44 * i, items[i], 14);
  sapphire.PutBytes(0x800000, Bytes(0x123, 0x11));  // no free space there

  test::ScriptedDialogs dialogs;
  dialogs.openFileAnswers.push_back(sapphire.path());
  dialogs.messageAnswers = {MessageAnswer::No, MessageAnswer::Yes};
  QtShell shell(dialogs);
  shell.Run([&] { OpenRom(shell.form1(), shell.rom(), shell.dialogs()); });

  struct Shot {
    MenuEntry entry;
    WindowName window;
    const char* file;
  };
  const Shot shots[] = {{MenuEntry::mnuwbs, WindowName::Form3, "wild-battle.png"},
                        {MenuEntry::mnuwbs, WindowName::Form4, "wild-battle-message.png"},
                        {MenuEntry::mnugps, WindowName::Form5, "give-pokemon.png"}};
  bool ok = true;
  for (const Shot& shot : shots) {
    shell.Run([&] { RunMenuEntry(shot.entry, shell.session(), shell.dialogs()); });
    QWidget* form = shell.Window(shot.window);
    if (form == nullptr) return false;
    test::Pick(form->findChild<QComboBox*>("Combo1"), 0x19);
    test::Pick(form->findChild<QComboBox*>("Combo3"), 25);
    test::Pick(form->findChild<QComboBox*>("Combo2"), 3);
    test::Type(form->findChild<QLineEdit*>("Text3"), "&H800000");
    if (auto* text = form->findChild<QLineEdit*>("Text12")) test::Type(text, "&H800200");
    ok &= Save(form, dir, shot.file);
  }

  QWidget* give = shell.Window(WindowName::Form5);
  if (give == nullptr) return false;
  give->findChild<QCheckBox*>("Check1")->click();
  test::Type(give->findChild<QLineEdit*>("Text12"), "&H800000");
  dialogs.inputAnswers = {"\\v\\h01 found a POK\xC3\xA9 BALL.\\pTake it?"};
  give->findChild<QPushButton*>("Command2")->click();  // the block behind what is not free space
  give->findChild<QPushButton*>("Command3")->click();  // the question behind the block
  return ok && Save(give, dir, "give-pokemon-game-ready.png");
}

}  // namespace tessarine::screenshots
