#pragma once

#include <string>
#include <string_view>

#include "forms/Controls.h"
#include "forms/Form1.h"
#include "scripts/BuilderForms.h"

namespace tessarine {

struct Form1;
class RomImage;
class Dialogs;

// "Insert Give Pokemon Script": writes a script that asks a question, and on yes gives
// the player a Pokemon of the chosen species, level and held item. The form also owns
// the item list that the wild battle forms copy.
struct Form5 {
  std::string title = "Insert Give Pokemon Script";
  Label Label1{"Pokemon: "};
  ComboBox Combo1;  // the species list, copied from the main window's
  TextBox pkmntxt{"&H0000"};
  Label Label2{"Level: "};
  ComboBox Combo3{.rows = LevelRows()};
  TextBox Text1{.text = "&H0000", .visible = false};  // level, set by Combo3
  Label Label3{"Held Item: "};
  ComboBox Combo2;  // the item list
  TextBox Text2{.text = "&H0000", .visible = false};  // held item, set by Combo2
  Label Label4{"Offset To insert Script: "};
  TextBox Text3{"&H000000"};
  Label Label5{"Offset to insert new text: "};
  TextBox Text12{"&H000000"};
  Button Command1{"Insert Teh Script"};
  Label Label7{.visible = false};  // itemRecords of the open ROM, as the list was read from it

  // The Open ROM after which the lists were read.
  FilledAt filled;
};

inline constexpr std::string_view kGiveMessageTitle = "Give Pokemon Message";
inline constexpr std::string_view kGiveMessagePrompt =
    "Type the Message you would like your Event to have. [N] = Next Line| Example: \\v\\h01 checked the "
    "POK\xC3\xA9 BALL.\\pIt contained the POK\xC3\xA9MON\\nBELDUM.\\pTake the POK\xC3\xA9 BALL?";

// The form's load: itemRecords from the profile of the open game (a game with none keeps
// what the Unsupported ROM dialog gave), the species list copied from the main window, the
// item list read from the ROM. With no ROM open, an itemRecords that is no offset or that
// belongs to no table of this ROM (Form1::tables), the item list is empty and nothing is
// said. Clears both lists' selections, puts the held item back to its initial text, and
// leaves every other field as it stands.
void LoadForm5Lists(Form5& form, Form1& main, RomImage& rom);

// Choosing a row puts its number into the field behind the list.
void SetCombo1Selection(Form5& form, int index);  // pkmntxt
void SetCombo3Selection(Form5& form, int index);  // Text1
void SetCombo2Selection(Form5& form, int index);  // Text2

// "Insert Teh Script": parses Text12, Text2, Text1, pkmntxt and Text3 and asks the write
// rule (forms/WriteRule.h) for the block and the question's place, before anything is
// written. Then writes the block, asks for the question, writes it at Text12 and closes
// the form, with no message. A failure before the first write leaves the ROM and the form
// as they were; one after it says what was written.
void InsertGivePokemon(Form5& form, const Form1& main, RomImage& rom, Dialogs& dialogs);

}  // namespace tessarine
