#include "shell/NameEditorMenu.h"

#include "editors/NameEditors.h"
#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "rom/HexField.h"
#include "shell/ScriptForms.h"
#include "shell/Session.h"
#include "shell/SpeciesList.h"

namespace tessarine {

void RunEditPokemonName(Form1& form, RomImage& rom, Dialogs& dialogs) {
  RequireNameTables(form, rom);  // before the questions: an editor that cannot write asks nothing
  const auto entry = dialogs.Input(kPokemonEntryPrompt);
  if (!entry) return;
  const auto name = dialogs.Input(kPokemonNamePrompt);
  if (!name) return;
  EditPokemonName(rom, form, ParseLenient(*entry), *name);
  // The list is read again and shows the row it showed. A selection that the program makes
  // is no pick of a person: the word fields keep the species loaded or picked before, and a
  // typed cry, so that a Save writes what it would have written before the rename.
  const int shown = form.Combo1.selected;
  form.Combo1.Clear();
  FillSpeciesList(form, rom);
  if (!form.Combo1.Show(shown)) static_cast<void>(form.Combo1.Show(0));
}

void RunEditItemName(Session& session, Dialogs& dialogs) {
  RequireNameTables(session.form1, session.rom);
  const auto entry = dialogs.Input(kItemEntryPrompt);
  if (!entry) return;
  const auto name = dialogs.Input(kItemNamePrompt);
  if (!name) return;
  RequireForm5Loaded(session);  // sets itemRecords
  EditItemName(session.rom, session.form1, ParseLenient(*entry), *name);
  ItemNamesChanged(session);
}

}  // namespace tessarine
