#include "shell/NameEditorMenu.h"

#include "editors/NameEditors.h"
#include "events/EventSelection.h"
#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "rom/HexField.h"
#include "shell/ScriptForms.h"
#include "shell/Session.h"
#include "shell/SpeciesList.h"

namespace tessarine {

void RunEditPokemonName(Form1& form, RomImage& rom, Dialogs& dialogs) {
  const auto entry = dialogs.Input(kPokemonEntryPrompt);
  if (!entry) return;
  const auto name = dialogs.Input(kPokemonNamePrompt);
  if (!name) return;
  EditPokemonName(rom, form, ParseLenient(*entry), *name);
  form.Combo1.Clear();
  FillSpeciesList(form, rom);
  SetCombo1Selection(form, 0);
}

void RunEditItemName(Session& session, Dialogs& dialogs) {
  const auto entry = dialogs.Input(kItemEntryPrompt);
  if (!entry) return;
  const auto name = dialogs.Input(kItemNamePrompt);
  if (!name) return;
  RequireForm5Loaded(session);  // sets itemRecords
  EditItemName(session.rom, session.form1, ParseLenient(*entry), *name);
}

}  // namespace tessarine
