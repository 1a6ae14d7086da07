#pragma once

namespace tessarine {

struct Form1;
class RomImage;
class Dialogs;

// Sets the empty texts of the person and word fields.
void ResetEventFields(Form1& form);

// An event of the family's list was picked: the workspace takes its person record, and
// through it the event words, from the ROM.
void SelectEvent(Form1& form, RomImage& rom, Dialogs& dialogs, int index);

// A species was chosen in Combo1: its number goes into all four word fields.
void SelectSpecies(Form1& form, int index);

// Setters that run the control's action, as picking a row does. An index that names no row
// of the list changes nothing and runs nothing (ComboBox::Show).
void SetCombo1Selection(Form1& form, int index);                                 // runs SelectSpecies
void SetCombo3Selection(Form1& form, RomImage& rom, Dialogs& dialogs, int index);  // runs SelectEvent
void SetCombo4Selection(Form1& form, RomImage& rom, Dialogs& dialogs, int index);  // runs SelectEvent
void SetCombo5Selection(Form1& form, RomImage& rom, Dialogs& dialogs, int index);  // runs SelectEvent

}  // namespace tessarine
