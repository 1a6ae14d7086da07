#pragma once

#include <optional>

#include "braille/Form6.h"
#include "editors/Form2.h"
#include "editors/Form9.h"
#include "flyland/Form8.h"
#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "rom/RomImage.h"
#include "scripts/Form5.h"
#include "scripts/WildBattleForms.h"
#include "shell/ToolsMenu.h"
#include "shell/frmAbout.h"

namespace tessarine {

// The main window's load: the event lists and the movement list take their rows from the
// event tools, so the window shows them from its first paint on.
void LoadForm1(Form1& form);

// The running program without its windows: the one ROM file, the main window's record and
// the records of the other windows. The Qt shell shows them; tests drive them with no window.
struct Session {
  Session() { LoadForm1(form1); }

  RomImage rom;
  Form1 form1;
  Form2 form2;
  Form3 form3;
  Form4 form4;
  Form5 form5;
  Form6 form6;
  Form7 form7;
  Form8 form8;
  Form9 form9;
  frmAbout about;
  // While Form5 is loaded, shown or not: the Open ROM (Form1::romOpenings) after which its
  // lists were read. See RequireForm5Loaded (shell/ScriptForms.h).
  std::optional<int> form5LoadedAt;
};

// A window other than the main one is loaded afresh each time it is made. First its record
// takes its start values (ResetWindow, which cannot fail); then, with the window on show,
// its load runs (LoadWindow: lists copied, the ROM read, the game code asked). A load that
// fails leaves the window standing with what it has.
void ResetWindow(Session& session, WindowName window);
void LoadWindow(Session& session, Dialogs& dialogs, WindowName window);

}  // namespace tessarine
