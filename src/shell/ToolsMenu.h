#pragma once

#include <array>
#include <string>

namespace tessarine {

struct Form1;
struct Session;
class RomImage;
class Dialogs;

// The entries of the popup menu mnuptro, in order.
enum class MenuEntry { nfdn, mnuwbs, mnugps, mnuib, mnustart, mnuflin, mnuedipmon, mnuediten, fhn, mnufrst };

struct MenuItem {
  MenuEntry entry;
  std::string caption;
  bool enabled = true;
};

// Form7: the window that is never shown and holds the menu. An entry is enabled when
// the tool it opens exists; the two headings are never enabled.
struct Form7 {
  std::string mnuptroCaption = "Tessarine";
  std::array<MenuItem, 10> mnuptro{{
      {MenuEntry::nfdn, "~Tools~", false},
      {MenuEntry::mnuwbs, "Insert Wild Battle Script", true},
      {MenuEntry::mnugps, "Insert Give Pokemon Script", true},
      {MenuEntry::mnuib, "Insert Braille", true},
      {MenuEntry::mnustart, "Starter Editor", true},
      {MenuEntry::mnuflin, "Wingfall", true},
      {MenuEntry::mnuedipmon, "Edit Pokemon Name", true},
      {MenuEntry::mnuediten, "Edit Item Name", true},
      {MenuEntry::fhn, "~Programs~", false},
      {MenuEntry::mnufrst, "Kindlewick", true},
  }};
};

// The sibling program that the last entry starts, by name alone.
inline constexpr const char* kKindlewick = "Kindlewick";

// Runs a menu entry, as a click on it does. The entries that work on the open ROM first
// test that one is loaded and otherwise say "Load a Rom First" and do nothing.
void RunMenuEntry(MenuEntry entry, Session& session, Dialogs& dialogs);

}  // namespace tessarine
