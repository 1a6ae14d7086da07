#include "shell/ToolsMenu.h"

#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "shell/NameEditorMenu.h"
#include "shell/Session.h"

namespace tessarine {
namespace {

bool NeedsLoadedRom(MenuEntry entry) {
  switch (entry) {
    case MenuEntry::mnuwbs:
    case MenuEntry::mnugps:
    case MenuEntry::mnuib:
    case MenuEntry::mnuflin:
      return true;
    default:
      return false;
  }
}

}  // namespace

void RunMenuEntry(MenuEntry entry, Session& session, Dialogs& dialogs) {
  if (NeedsLoadedRom(entry) && session.form1.rom != "Loaded") {
    dialogs.Message("Load a Rom First");
    return;
  }
  switch (entry) {
    case MenuEntry::mnuwbs: {
      const MessageAnswer answer =
          dialogs.Message("You wan't a Message in your event script?", MessageButtons::YesNo, "Ok.");
      dialogs.Show(answer == MessageAnswer::Yes ? WindowName::Form4 : WindowName::Form3);
      break;
    }
    case MenuEntry::mnugps: dialogs.Show(WindowName::Form5); break;
    case MenuEntry::mnuib: dialogs.Show(WindowName::Form6); break;
    case MenuEntry::mnustart: dialogs.Show(WindowName::Form2); break;
    case MenuEntry::mnuflin: dialogs.Show(WindowName::Form8); break;
    case MenuEntry::mnufrst: dialogs.StartProgram(kKindlewick); break;  // a failure passes in silence
    case MenuEntry::mnuedipmon: RunEditPokemonName(session.form1, session.rom, dialogs); break;
    case MenuEntry::mnuediten: RunEditItemName(session, dialogs); break;
    case MenuEntry::nfdn:
    case MenuEntry::fhn:
      break;
  }
}

}  // namespace tessarine
