#pragma once

#include <string>
#include <vector>

namespace tessarine {

class Dialogs;
struct Session;

// The loads of the script builder forms, and the item list that Form5 owns for every tool.

// Form5 as another tool needs it: its item list and the state field itemRecords.
//
// When Form5 is not loaded, or its lists were read before the last Open ROM, this loads
// it without showing it: itemRecords from the profile of the open game (an unknown game
// keeps what the Unsupported ROM dialog gave), the species list copied from the main
// window, the item list read from the ROM. A Form5 that is loaded and current is left
// alone, also while it is on the screen; one that is on the screen but stale takes the new
// lists and keeps what was typed into it, and its Insert refuses it as filled before the last
// Open ROM until the person opens the form again.
//
// Afterwards session.form1.itemRecords and the returned rows (session.form5.Combo2) belong
// to the ROM that is open. Never throws and never asks: with no ROM open, or an
// itemRecords that is no offset, the item list is empty. Reads the ROM and moves its
// position; writes nothing.
const std::vector<std::string>& RequireForm5Loaded(Session& session);

// Each form's load, when it is shown and no window of it stands: its controls take their
// initial values, then its lists are filled. Form3 and Form4 ask RequireForm5Loaded for
// the item list; Form5 counts as filled after this Open ROM only here, at the person's
// opening. On a ROM whose name tables are not known (Form1::tables), the item list is empty
// and kNoTablesOfThisRom is told once.
void LoadForm3(Session& session, Dialogs& dialogs);
void LoadForm4(Session& session, Dialogs& dialogs);
void LoadForm5(Session& session, Dialogs& dialogs);

// Form5 closed: no longer loaded, so the next need reads its lists again.
void UnloadForm5(Session& session);

// An item was renamed: the item list is read again the next time a form needs it, so that
// every form that shows it next shows the new name.
void ItemNamesChanged(Session& session);

}  // namespace tessarine
