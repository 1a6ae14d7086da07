#pragma once

#include <string>

#include "forms/Controls.h"

namespace tessarine {

struct Form1;
class Dialogs;

// "Unsupported ROM": shown instead of the main window when Open ROM meets a game code it
// has no profile for. It asks where the species name table and the item records lie, so
// that the name editors can work on that game.
struct Form9 {
  std::string title = "Unsupported ROM";
  Label Label1{"Monster Names:"};
  TextBox Text1{"&H000000"};
  Label Label2{"Item Names:"};
  TextBox Text2{"&H000000"};
  Button Command1{"Continue"};
  Button Command2{"Quit"};
};

// "Continue": keeps both texts as they stand, unparsed, as the species name table and
// item record offsets, and brings the main window back.
void PressContinue(Form9& form, Form1& main, Dialogs& dialogs);

// "Quit", or closing the dialog: leaves it, keeps nothing, brings the main window back.
void PressQuit(Form9& form, Dialogs& dialogs);

}  // namespace tessarine
