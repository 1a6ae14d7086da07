#pragma once

#include <cstdint>
#include <string>

#include "shell/Controls.h"

namespace tessarine {

// The main window's record: its controls and the state of the open ROM that every tool
// reads. The window shows these fields and nothing else.
struct Form1 {
  std::string title = "Tessarine Load Test";
  bool visible = true;

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

  // The three image buttons along the top, with their labels.
  Label Label15{"Open"};
  Label Label16{"Tools"};
  Label Label17{"About"};

  // Event workspace.
  ComboBox Combo3{{}, -1, "Select a Event", false, true};  // family rs events
  ComboBox Combo4{{}, -1, "Select a Event", true, false};  // family frlg events
  Button Command10{"load", false};
  Button Command9{"Save", false};
  Label Label6{"Sprite:"};
  TextBox spritetxt{"&H0000"};
  Label Label8{"Script:"};
  TextBox scriptpointxt{"&H000000"};
  Button Command6{"Load"};
  Button frlgl{"Load"};
  Label Label9{"Flag:"};
  TextBox flagtxt{"&H0000"};
  Label Label7{"Behavior:"};
  ComboBox Combo2;  // movement types
  Label Label13{"Pokemon:"};
  ComboBox Combo1;  // species, row i is species i
  TextBox Text1{"&H0000"};
  TextBox hoobla{"&H0000", true, false};
  Label Label12{"Cry:"};
  TextBox Text2{"&H0000"};
  TextBox hoobla2{"&H0000", true, false};
  Label Label11{"RomCode:"};
  Label hdtxt{"None"};  // the game code as shown

  // Hidden fields of the workspace.
  std::string whee = "0";      // selected event, decimal
  std::string personOffset;    // person record of the selected event
  std::string behavtxt = "&H00";
  std::string tehe = "0";      // Combo2's row, decimal
  std::string scripteh = "Label20";
  std::int16_t personFlag = 0;  // the flag that the last person load read or save wrote

  // Script lister.
  Label Label18{"Offset: "};
  TextBox Text3{"&H15F316"};
  Button Command2{"Load", false};
  CheckBox Check1{"Braille"};
  Button Command8{"Save"};  // has no action
  TextBox Text4;
};

}  // namespace tessarine
