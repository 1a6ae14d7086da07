#include "editors/Form9.h"

#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "forms/WriteRule.h"
#include "rom/Failure.h"

namespace tessarine {
namespace {

constexpr std::string_view kNoTableThere =
    "The name editors write into no table there; open the ROM again to give another offset.";

}  // namespace

void PressContinue(Form9& form, Form1& main, Dialogs& dialogs) {
  main.Label20 = form.Text1.text;
  main.itemRecords = form.Text2.text;
  main.tables.Fill(main);
  // Kept as typed; a table that no name can be written into is told now, not at the edit.
  std::string refused;
  for (const auto& [label, box] : {std::pair{&form.Label1, &form.Text1}, {&form.Label2, &form.Text2}}) {
    try {
      ParseInsertOffset(box->text, label->caption.substr(0, label->caption.size() - 1), kNoTableThere);
    } catch (const Failure& failure) {
      refused += std::string(refused.empty() ? "" : "\n") + failure.what();
    }
  }
  if (!refused.empty()) dialogs.Message(refused);
  dialogs.Hide(WindowName::Form9);
  dialogs.Show(WindowName::Form1);
}

void PressQuit(Form9& /*form*/, Dialogs& dialogs) {
  dialogs.Hide(WindowName::Form9);
  dialogs.Show(WindowName::Form1);
}

}  // namespace tessarine
