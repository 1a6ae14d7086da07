#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "forms/Controls.h"
#include "forms/Form1.h"
#include "rom/GbaPointer.h"

namespace tessarine {

struct Form1;
class RomImage;
class Dialogs;

// The three starters: the species the player chooses from at the start of the game, one
// word each at the places the game's profile gives (GameProfile::starters). Ruby, Sapphire
// and Emerald keep the three side by side in one table; FireRed and LeafGreen keep them
// apart, at odd offsets, in the game's code. Japanese Emerald (BPEJ) is known here although
// Open ROM does not take it.
using Starters = std::array<std::int16_t, 3>;

// The three stored species numbers, or none for a game with no profile. A Failure, with
// nothing read, where the file ends before the three words do.
std::optional<Starters> ReadStarters(RomImage& rom, const GameIdentity& game);

// "Tessarine Starter Editor". In each list row i is species i, copied from the main
// window's species list. Text1 to Text3 hold the values read, balltxt to balltxt3 the
// values to save; both follow a choice in the list.
struct Form2 {
  std::string title = "Tessarine Starter Editor";
  Label Label1{"Ball 1"};
  ComboBox Combo1{.rows = {"FRAG!"}, .selected = 0, .text = "FRAG!"};
  Label Label2{"Ball 2"};
  ComboBox Combo2{.rows = {"FRAG!"}, .selected = 0, .text = "FRAG!"};
  Label Label3{"Ball 3"};
  ComboBox Combo3{.rows = {"FRAG!"}, .selected = 0, .text = "FRAG!"};
  TextBox Text1{.text = "&H0", .visible = false};
  TextBox Text2{.text = "&H0", .visible = false};
  TextBox Text3{.text = "&H0", .visible = false};
  TextBox balltxt{.text = "&H0000", .visible = false};
  TextBox balltxt2{.text = "&H0000", .visible = false};
  TextBox balltxt3{.text = "&H0000", .visible = false};
  Button Command1{"Save"};
  Button Command2{"Done"};
  Button Command3{"Reload"};
  Button Command4{.caption = "Command4", .visible = false};  // fills the three lists

  // The Open ROM after which the values on show were read.
  FilledAt filled;
};

// The form's load, and "Reload": for a game with starter offsets, reads the three words,
// fills the three lists with the 412 rows of the main window's species list (blank where
// it has none) and chooses the rows of the words. A stored number with no row is told in
// one message, naming the ball and the number; its list then shows no choice and "Save"
// writes the stored number back. A read that fails (no ROM open) leaves the form as it
// stood. A ROM too short to hold the three words is told so, and the lists show no value.
// For another game the form stays as it is.
void LoadForm2(Form2& form, const Form1& main, RomImage& rom, Dialogs& dialogs);

// A row chosen in Ball 1, 2 or 3: its number goes into the list's Text and balltxt.
void SetCombo1Selection(Form2& form, int index);
void SetCombo2Selection(Form2& form, int index);
void SetCombo3Selection(Form2& form, int index);

// "Save": writes the three values of the open game's starters and says "Saved". Does
// nothing, and says nothing, for a game with no starter offsets. The write rule
// (forms/WriteRule.h) refuses lists that were filled before the last Open ROM, no open ROM,
// and a ROM too short to hold the starters, before any write.
void PressSave(Form2& form, const Form1& main, RomImage& rom, Dialogs& dialogs);

// "Done": closes the form; writes nothing.
void PressDone(Dialogs& dialogs);

}  // namespace tessarine
