#include "support/MainSession.h"

#include "events/EventSelection.h"
#include "events/PersonRecord.h"
#include "shell/OpenRom.h"
#include "support/Failures.h"

namespace tessarine::test {

void MainSession::Open(const std::string& path) {
  dialogs.openFileAnswers.push_back(path);
  OpenRom(form, rom, dialogs);
}

void MainSession::PickEvent(int index) {
  if (form.cowmoo == "rs") {
    SetCombo3Selection(form, rom, dialogs, index);
  } else {
    SetCombo4Selection(form, rom, dialogs, index);
  }
}

void MainSession::Save() { SavePerson(form, rom, dialogs); }

std::string MainSession::SaveFailure() {
  return FailureOf([this] { Save(); });
}

}  // namespace tessarine::test
