#pragma once

namespace tessarine {

struct Form1;
struct Session;
class RomImage;
class Dialogs;

// The two name editors of the Tools menu. Each asks for the entry (read by ParseLenient:
// no number is entry 0) and the new name, then writes at once and says nothing. Cancel in
// either box writes nothing; OK with an empty answer means entry 0, or a name of blanks.

// "Edit Pokemon Name": afterwards the species list Combo1 is read afresh from the ROM and
// entry 0 is chosen, as after an Open ROM.
void RunEditPokemonName(Form1& form, RomImage& rom, Dialogs& dialogs);

// "Edit Item Name": the item table is where Form5 finds it (loading Form5 unseen when it is
// not loaded); Form5's item list is not read again.
void RunEditItemName(Session& session, Dialogs& dialogs);

}  // namespace tessarine
