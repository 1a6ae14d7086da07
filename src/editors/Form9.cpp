#include "editors/Form9.h"

#include "forms/Dialogs.h"
#include "forms/Form1.h"

namespace tessarine {

void PressContinue(Form9& form, Form1& main, Dialogs& dialogs) {
  main.Label20 = form.Text1.text;
  main.itemRecords = form.Text2.text;
  dialogs.Hide(WindowName::Form9);
  dialogs.Show(WindowName::Form1);
}

void PressQuit(Form9& /*form*/, Dialogs& dialogs) {
  dialogs.Hide(WindowName::Form9);
  dialogs.Show(WindowName::Form1);
}

}  // namespace tessarine
