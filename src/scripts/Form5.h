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
  CheckBox Check1{kGameReadyCaption};  // unticked at each opening
  Button Command2{kFindFreeSpaceCaption};  // beside Text3
  Button Command3{kFindFreeSpaceCaption};  // beside Text12
  std::string keptMessage;  // hidden: the question last typed, the next input box's text

  // The Open ROM after which the person opened the form. Lists refilled for another window
  // (LoadForm5Lists) leave it: what was typed in may belong to the ROM opened before.
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
// leaves every other field as it stands, `filled` too: a refill is no opening of the form.
void LoadForm5Lists(Form5& form, Form1& main, RomImage& rom);

// Choosing a row puts its number into the field behind the list.
void SetCombo1Selection(Form5& form, int index);  // pkmntxt
void SetCombo3Selection(Form5& form, int index);  // Text1
void SetCombo2Selection(Form5& form, int index);  // Text2

// "Insert Teh Script": parses Text12, Text2, Text1, pkmntxt and Text3 and asks the write
// rule (forms/WriteRule.h) for the block and the question's place, and the free-space
// question for the block, before anything is written. Then writes the block, asks for the
// question, puts it to the free-space question, writes it at Text12 and closes the form,
// with no message. A failure or No before the first write leaves the ROM and the form as
// they were; one after it says what was written.
//
// With Check1 ticked the block is game-ready (GameReadyGivePokemonPieces) and all or
// nothing: a game without a family is refused first; then the question is asked (Cancel
// stops), the fields parsed, every piece checked (none may overlap another), the one
// free-space question asked, and all written.
void InsertGivePokemon(Form5& form, const Form1& main, RomImage& rom, Dialogs& dialogs);

// "Find Free Space" beside Text3: free space for the whole block of the mode Check1 selects,
// kept clear of the question at Text12 (asked for first while none is kept). Beside Text12:
// asks for the question in the insert's input box (Cancel stops), keeps it for the insert,
// and finds free space for its bytes, kept clear of the block at Text3. The button's own
// field is parsed before any question (MessageForFreeSpace).
void PressFindScriptSpace(Form5& form, RomImage& rom, Dialogs& dialogs);
void PressFindTextSpace(Form5& form, RomImage& rom, Dialogs& dialogs);

}  // namespace tessarine
