#pragma once

#include <string>

#include "events/EventSelection.h"
#include "events/PersonRecord.h"
#include "forms/Form1.h"
#include "rom/RomImage.h"
#include "shell/OpenRom.h"
#include "shell/Session.h"
#include "support/Failures.h"
#include "support/ScriptedDialogs.h"

namespace tessarine::test {

// A person's session with the main window, without the window: its record, the one ROM
// file and dialogs that answer from a script.
struct MainSession {
  MainSession() { LoadForm1(form); }

  Form1 form;
  RomImage rom;
  ScriptedDialogs dialogs;

  // The Open button, with `path` chosen in the file dialog ("" cancels it).
  void Open(const std::string& path) {
    dialogs.openFileAnswers.push_back(path);
    OpenRom(form, rom, dialogs);
  }
  // Picks an event in the list that the open ROM's family shows.
  void PickEvent(int index) {
    if (form.cowmoo == "rs") return SetCombo3Selection(form, rom, dialogs, index);
    if (form.cowmoo == "e") return SetCombo5Selection(form, rom, dialogs, index);
    SetCombo4Selection(form, rom, dialogs, index);
  }
  // The Save button.
  void Save() { SavePerson(form, rom, dialogs); }
  // The sentence of the failure that ends a save, or "" when the save runs through.
  std::string SaveFailure() { return FailureOf([this] { Save(); }); }
};

}  // namespace tessarine::test
