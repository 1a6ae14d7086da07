#include "events/EventSelection.h"

#include "events/EventCatalogue.h"
#include "events/PersonRecord.h"
#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "rom/GameProfile.h"
#include "rom/HexField.h"

namespace tessarine {

void ResetEventFields(Form1& form) {
  form.spritetxt.text = "&H0000";
  form.scriptpointxt.text = "&H000000";
  form.flagtxt.text = "&H0000";
  form.hoobla2.text = "&H0000";
  form.hoobla.text = "&H0000";
  form.Text2.text = "&H0000";
  form.Text1.text = "&H0000";
  form.wordsToSave.state = WordsToSave::State::NotLoaded;  // the empty words are no species of any event
}

void SelectEvent(Form1& form, RomImage& rom, Dialogs& dialogs, int index) {
  const EventEntry* event = FindEvent(form.cowmoo, index);
  // No event of the open ROM's list, or one that the open game's profile does not place (a
  // game opened since that has none): nothing to select.
  const std::string person = event != nullptr ? PersonOffsetOf(form, *event) : std::string();
  if (person.empty()) return;
  form.whee = std::to_string(index);
  ResetEventFields(form);
  form.personOffset = person;
  form.eventFields.Fill(form);
  if (FollowsRs(form.cowmoo)) {
    form.Combo1.enabled = true;
    if (index > 0) form.Command9.enabled = true;
  }
  if (event->layout == nullptr && index > 0) {  // Deoxys (frlg), Latias/Latios (e): no words to load
    dialogs.Message("Sorry But script Loading for this Pokemon is not yet supported.");
  }
  LoadPerson(form, rom, dialogs);
}

void SelectSpecies(Form1& form, int index) {
  const std::string text = ToHexText(index);
  form.Text1.text = text;
  form.Text2.text = text;
  form.hoobla.text = text;
  form.hoobla2.text = text;
  form.wordsToSave = {};
}

void SetCombo1Selection(Form1& form, int index) {
  if (form.Combo1.Show(index)) SelectSpecies(form, index);
}

void SetCombo3Selection(Form1& form, RomImage& rom, Dialogs& dialogs, int index) {
  if (form.Combo3.Show(index)) SelectEvent(form, rom, dialogs, index);
}

void SetCombo4Selection(Form1& form, RomImage& rom, Dialogs& dialogs, int index) {
  if (form.Combo4.Show(index)) SelectEvent(form, rom, dialogs, index);
}

void SetCombo5Selection(Form1& form, RomImage& rom, Dialogs& dialogs, int index) {
  if (form.Combo5.Show(index)) SelectEvent(form, rom, dialogs, index);
}

}  // namespace tessarine
