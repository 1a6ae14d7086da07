#pragma once

#include <string>
#include <vector>

namespace tessarine {

struct Form1;
class RomImage;
class Dialogs;

// The "Open" button: closes the file, asks for another, reads its game code, and for a
// known game fills the state fields from its profile, sets the window up for the game's
// family and fills the species list. An unknown code hides the main window and shows the
// Unsupported ROM dialog. A step that fails is told to the person and the next one runs.
void OpenRom(Form1& form, RomImage& rom, Dialogs& dialogs);

// The same open with the file already chosen (a file dropped on the window): the list is
// cleared and the file closed, then the steps after the dialog run on `path`.
void OpenRomAt(Form1& form, RomImage& rom, Dialogs& dialogs, const std::string& path);

// What a person dropped on the main window: the files and folders of this computer by their
// paths (UTF-8), and anything else (an address on another computer, a piece of text) as text.
struct Dropped {
  std::vector<std::string> paths;
  std::vector<std::string> others;
};

// Whether OpenDropped opens what was dropped (one .gba file) rather than refusing it. The window
// answers the program that the drop came from with this while the drop lasts (a copy, or a
// refusal, so that the source deletes nothing it gave); the open itself runs after the drop.
bool TakesDrop(const Dropped& dropped);

// A drop on the main window. One .gba file opens by OpenRomAt, as if the Open dialog had
// given it. Anything else (several things, a folder, a file of another name, no file) throws a
// Failure that names what was dropped, before the ROM that is open is touched.
void OpenDropped(Form1& form, RomImage& rom, Dialogs& dialogs, const Dropped& dropped);

}  // namespace tessarine
