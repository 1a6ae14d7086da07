#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "forms/Controls.h"
#include "rom/GameProfile.h"
#include "rom/GbaPointer.h"

namespace tessarine {

struct Form1;

// The Open ROM after which a form's contents were read from the ROM or filled: a form filled
// before the last Open ROM may hold what belongs to the ROM opened before, and no tool writes
// from it (forms/WriteRule.h).
struct FilledAt {
  std::optional<int> opening;  // Form1::romOpenings then; none before the first fill

  void Fill(const Form1& main);
  bool Current(const Form1& main) const;
};

// What hoobla and hoobla2, the fields that a save writes into the selected event's two
// words, hold for that event. The rule of the save (events/SaveRule.h) reads it.
struct WordsToSave {
  enum class State {
    Loaded,     // the event's words as its load read them, or a species picked since
    NotLoaded,  // emptied by the pick of the event, and no load has read its words since
    NoSpecies,  // the load found no species number in the word that the Pokemon list follows
  };
  State state = State::Loaded;
  // With NoSpecies: that word, by the name of its field, where it lies and what it holds.
  std::string word;
  RomOffset at = 0;
  std::int16_t holds = 0;
};

// The main window's record: its controls and the state of the open ROM that every tool
// reads. The window shows these fields and nothing else. The rows of the event lists and
// of the movement list come from the tools that own them, when the window loads
// (LoadForm1).
struct Form1 {
  std::string title = "Tessarine Load Test";

  // State of the open ROM, filled by OpenRom from the game's profile.
  std::string rom = "crap";  // "Loaded" once a ROM of a known game is open
  std::string headtxt;       // the game code read at the last open, for all logic
  int revision = kNoRevision;  // the revision byte read with it
  std::string cowmoo;        // the game family, "rs", "frlg" or "e"
  std::string Label20 = "&H1F716C";
  // Label1 to regi3: the persons of the events of rs and frlg. An open of family e empties them: its
  // events take their places from the profile (GameProfile::eventPlaces).
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
  // When Label20 and itemRecords were last given the tables of the ROM then open: at the Open
  // of a known game, or by the Unsupported ROM dialog. After any other Open they belong to
  // another ROM, or to none.
  FilledAt tables;

  // The three image buttons along the top, with their labels.
  Label Label15{"Open"};
  Label Label16{"Tools"};
  Label Label17{"About"};

  // Event workspace.
  ComboBox Combo3{.text = "Select a Event", .enabled = false};
  ComboBox Combo4{.text = "Select a Event", .visible = false};
  ComboBox Combo5{.text = "Select a Event", .visible = false};  // family e, in the same place
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

  // What a save may rely on (events/SaveRule.h): the event fields describe the ROM opened
  // before until an event is picked again; the person fields are the record's only after a
  // load that read it whole, Flag included; and the word fields hold what WordsToSave says.
  FilledAt eventFields;
  bool personLoaded = false;
  WordsToSave wordsToSave;

  // Script lister.
  Label Label18{"Offset: "};
  TextBox Text3{"&H15F316"};
  Button Command2{.caption = "Load", .enabled = false};
  CheckBox Check1{"Braille"};
  Button Command8{"Save"};  // has no action
  TextArea Text4;           // the listing; the record keeps the one copy of it in the core
};

inline void FilledAt::Fill(const Form1& main) { opening = main.romOpenings; }
inline bool FilledAt::Current(const Form1& main) const { return opening == main.romOpenings; }

// The game of the ROM opened last, as its header named it, and its profile (none for a game
// whose code and revision have none).
inline GameIdentity IdentityOf(const Form1& main) { return {main.headtxt, main.revision}; }
inline const GameProfile* ProfileOf(const Form1& main) { return FindGameProfile(IdentityOf(main)); }

}  // namespace tessarine
