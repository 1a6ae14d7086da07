#pragma once

#include "braille/Form6.h"
#include "editors/Form9.h"
#include "forms/Form1.h"
#include "rom/RomImage.h"
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
  Form6 form6;
  Form7 form7;
  Form9 form9;
  frmAbout about;
};

}  // namespace tessarine
