#pragma once

#include <optional>
#include <string>

#include "events/EventSelection.h"
#include "events/PersonRecord.h"
#include "shell/OpenRom.h"
#include "shell/Session.h"
#include "support/Failures.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"

namespace tessarine::test {

// A person's session with the program, without its windows: the records of the main window and of the tools, the one
// ROM file, and dialogs that answer from a script; on a fixture of its own, opened as the Open button does, or on none.
struct MainSession {
  MainSession() = default;
  explicit MainSession(FixtureRom made) { Open(fixture.emplace(std::move(made)).path()); }
  ~MainSession() { rom.Close(); }  // before the fixture goes: Windows deletes no file that is open
  MainSession(const MainSession&) = delete;
  MainSession& operator=(const MainSession&) = delete;

  std::optional<FixtureRom> fixture;
  Session session;
  Form1& form = session.form1;
  RomImage& rom = session.rom;
  ScriptedDialogs dialogs;

  // The Open button, with `path` chosen in the file dialog ("" cancels it).
  void Open(const std::string& path) {
    dialogs.openFileAnswers = {path};
    OpenRom(form, rom, dialogs);
  }
  // A tool window made afresh and loaded, as the program shows it.
  void Show(WindowName window) {
    ResetWindow(session, window);
    LoadWindow(session, dialogs, window);
  }
  // An entry of the Tools menu, with the answers to its input boxes.
  void Menu(MenuEntry entry, std::initializer_list<std::optional<std::string>> answers = {}) {
    dialogs.inputAnswers.assign(answers.begin(), answers.end());
    RunMenuEntry(entry, session, dialogs);
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
