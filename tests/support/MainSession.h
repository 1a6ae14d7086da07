#pragma once

#include <string>

#include "forms/Form1.h"
#include "rom/RomImage.h"
#include "shell/Session.h"
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
  void Open(const std::string& path);
  // Picks an event in the list that the open ROM's family shows.
  void PickEvent(int index);
  // The Save button.
  void Save();
  // The sentence of the failure that ends a save, or "" when the save runs through.
  std::string SaveFailure();
};

}  // namespace tessarine::test
