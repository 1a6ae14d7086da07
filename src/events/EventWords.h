#pragma once

namespace tessarine {

struct Form1;
class RomImage;
class Dialogs;
class RomWrite;

// Reads the two event words of the selected event at their distances from the script
// offset, shows them and moves the species list to the one it follows. In Ruby, Sapphire and
// Emerald it then puts back the flag of the last person load or save. It tells the person
// nothing: an event without words says so when it is picked (SelectEvent).
void LoadEventWords(Form1& form, RomImage& rom, Dialogs& dialogs);

// Writes hoobla and hoobla2 as the event's two words, after SavePerson has written the
// record, by the rule of events/SaveRule.h. A word is written only where the ROM holds a
// species number at that place now; any other value there is part of the script (a cry
// kept behind the expected place leaves opcodes there), so it is left as it is and the
// person is told after the save. The words are pieces of the save's `write`, after the
// person record: a Failure here says what the save wrote before it.
void SaveEventWords(Form1& form, RomImage& rom, Dialogs& dialogs, RomWrite& write);

// The places of the event's two words, as pieces the save's `write` expects: the rule checks
// them with the person record before anything is written.
void ExpectEventWords(const Form1& form, RomWrite& write);

}  // namespace tessarine
