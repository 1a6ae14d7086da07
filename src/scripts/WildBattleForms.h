#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/Controls.h"
#include "forms/Form1.h"
#include "scripts/BuilderForms.h"

namespace tessarine {

struct Form1;
class RomImage;
class Dialogs;

// "Insert Wild Battle Script", in two forms: Form3 writes the battle alone, Form4 puts a
// message in front of it and asks for the message's text.

// The controls that both forms have.
struct WildBattleForm {
  std::string title = "Insert Wild Battle Script";
  Label Label1{"Pokemon:"};
  ComboBox Combo1{.text = "Select a Pokemon"};  // the species list, copied from the main window's
  TextBox pkmntxt{"&H0000"};
  Label Label2{"PKMN Cry:"};
  TextBox crytxt{"&H0000"};
  Label Label3{"Level"};
  ComboBox Combo3{.rows = LevelRows()};
  Label Label4{"Held Item: "};
  ComboBox Combo2;  // the item list, copied from Form5's
  TextBox Text2{.text = "&H0000", .visible = false};  // held item, set by Combo2
  Label Label5{"Offset:"};
  TextBox Text3{"&H000000"};
  Button Command1{"Insert Teh Script"};
  Button Command2{.visible = false};  // holds the copy of the species list
  Button Command3{.visible = false};  // holds the copy of the item list
  CheckBox Check1{kGameReadyCaption};  // unticked at each opening
  Button Command4{kFindFreeSpaceCaption};  // beside Text3

  // The Open ROM after which the lists were copied: an insert takes its numbers from rows
  // of the ROM that is open.
  FilledAt filled;
};

inline constexpr std::string_view kScriptOffsetTip =
    "Type an offset of Freespace(Refered a place with lots of FFs)  to insert this Script.";

struct Form3 : WildBattleForm {
  TextBox Text1{.text = "&H00", .visible = false};  // level, set by Combo3
};

struct Form4 : WildBattleForm {
  Form4() {
    Label3.caption = "Level:";
    Text3.toolTip = kScriptOffsetTip;
  }
  TextBox Text14{.text = "&H00", .visible = false};  // level, set by Combo3
  Label Label6{"Text Offset:"};
  TextBox Text12{.text = "&H000000", .toolTip = "Type an offset to insert your new text for this event."};
  Label Label7{"Note: You will be prompted to type your custom message after you Click Insert."};
  Button Command5{kFindFreeSpaceCaption};  // beside Text12
  std::string keptMessage;  // hidden: the message last typed, the next input box's text
};

// The load: Command2 copies the species rows, Command3 empties Combo2 and copies the item
// rows. Nothing is selected, so every field keeps its initial text until a row is chosen.
void LoadWildBattleLists(WildBattleForm& form, const Form1& main, const std::vector<std::string>& itemRows);

// Choosing a row puts its number into the fields behind the list: a species goes into both
// pkmntxt and crytxt, a level into the hidden level field, an item into Text2.
void SetCombo1Selection(WildBattleForm& form, int index);
void SetCombo2Selection(WildBattleForm& form, int index);
void SetCombo3Selection(Form3& form, int index);
void SetCombo3Selection(Form4& form, int index);

// Enter in Combo1, whose box takes typing: picks the row whose name (the text behind
// "096 - ") or whole text is the typed text, in any case and without blanks at the end, as
// SetCombo1Selection does; or says that no row is. Inserts nothing.
void PickTypedSpecies(WildBattleForm& form, Dialogs& dialogs);

// "Insert Teh Script". Form3 parses pkmntxt, Text1, crytxt, Text2, Text3; Form4 pkmntxt,
// Text14, crytxt, Text2, Text12, Text3. Every parse, and the write rule (forms/WriteRule.h)
// for each piece with its free-space question, comes before the first write, so a failure
// there, or No, writes nothing and leaves the form as it was. Then the script goes to Text3;
// Form4 asks for the message, puts it to the free-space question and writes it at Text12.
// "Inserted", and the form closes.
//
// With Check1 ticked the script is game-ready (scripts/ScriptBuilders.h) and all or
// nothing: Form4 asks for the message first (Cancel stops it), then parses, checks the
// script and the message, which may not overlap, asks the one free-space question, and
// writes both.
void InsertWildBattle(Form3& form, const Form1& main, RomImage& rom, Dialogs& dialogs);
void InsertWildBattle(Form4& form, const Form1& main, RomImage& rom, Dialogs& dialogs);

// "Find Free Space" beside Text3: free space for the script of the mode Check1 selects,
// kept clear of Form4's message at Text12 (asked for first while none is kept). Beside
// Text12 (Form4): asks for the message in the insert's input box (Cancel stops), keeps it
// for the insert, and finds free space for its bytes, kept clear of the script at Text3. The
// button's own field is parsed before any question (MessageForFreeSpace). See
// PressFindFreeSpace (forms/FreeSpace.h).
void PressFindScriptSpace(Form3& form, RomImage& rom, Dialogs& dialogs);
void PressFindScriptSpace(Form4& form, RomImage& rom, Dialogs& dialogs);
void PressFindTextSpace(Form4& form, RomImage& rom, Dialogs& dialogs);

}  // namespace tessarine
