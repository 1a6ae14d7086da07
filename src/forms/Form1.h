#pragma once

#include <cstdint>
#include <string>

#include "forms/Controls.h"

namespace tessarine {

// The main window's record: its controls and the state of the open ROM that every tool
// reads. The window shows these fields and nothing else. The rows of the event lists and
// of the movement list come from the tools that own them, when the window loads
// (LoadForm1).
struct Form1 {
  std::string title = "Tessarine Load Test";

  // State of the open ROM, filled by OpenRom from the game's profile.
  std::string rom = "crap";  // "Loaded" once a ROM of a known game is open
  std::string headtxt;       // the game code read at the last open, for all logic
  std::string cowmoo;        // the game family, "rs" or "frlg"
  std::string Label20 = "&H1F716C";
  std::string Label1 = "&H38EE50";
  std::string raytxt;
  std::string grou;
  std::string regi1;
  std::string regi2;
  std::string regi3;
  std::string itemRecords;  // set when the give-Pokemon builder loads, or by Form9
  // How many times Open ROM has run. What a tool read from the ROM remembers this count,
  // so that it knows whether it still belongs to the ROM that is open.
  int romOpenings = 0;

  // The three image buttons along the top, with their labels.
  Label Label15{"Open"};
  Label Label16{"Tools"};
  Label Label17{"About"};

  // Event workspace.
  ComboBox Combo3{.text = "Select a Event", .enabled = false};
  ComboBox Combo4{.text = "Select a Event", .visible = false};
  Button Command10{.caption = "load", .enabled = false};
  Button Command9{.caption = "Save", .enabled = false};
  Label Label6{"Sprite:"};
  TextBox spritetxt{"&H0000"};
  Label Label8{"Script:"};
  TextBox scriptpointxt{"&H000000"};
  Button Command6{"Load"};
  Button frlgl{"Load"};
  Label Label9{"Flag:"};
  TextBox flagtxt{"&H0000"};
  Label Label7{"Behavior:"};
  ComboBox Combo2;
  Label Label13{"Pokemon:"};
  ComboBox Combo1;  // species, row i is species i
  TextBox Text1{"&H0000"};
  TextBox hoobla{.text = "&H0000", .visible = false};
  Label Label12{"Cry:"};
  TextBox Text2{"&H0000"};
  TextBox hoobla2{.text = "&H0000", .visible = false};
  Label Label11{"RomCode:"};
  Label hdtxt{"None"};  // the game code as shown

  // Hidden fields of the workspace.
  std::string whee = "0";      // selected event, decimal
  std::string personOffset;    // person record of the selected event
  std::string behavtxt = "&H00";
  std::string tehe = "0";      // Combo2's row, decimal
  std::string scripteh = "Label20";
  std::int16_t personFlag = 0;  // the flag that the last person load read or save wrote

  // Guards of the save. The event fields describe the ROM opened before until an event is
  // picked again. And where the last load found no species number in the word that the
  // species list follows, the words to save hold none until one is picked: then this
  // says which word held what, for the message that refuses the save.
  bool eventFieldsMatchRom = true;
  std::string speciesMissing;

  // Script lister.
  Label Label18{"Offset: "};
  TextBox Text3{"&H15F316"};
  Button Command2{.caption = "Load", .enabled = false};
  CheckBox Check1{"Braille"};
  Button Command8{"Save"};  // has no action
  TextBox Text4;
};

}  // namespace tessarine
