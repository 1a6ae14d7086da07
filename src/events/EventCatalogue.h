#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

struct Form1;

// Where an event's script offset comes from: the person record's pointer, or a constant
// of the game's profile (two events of Ruby and Sapphire; in Emerald, the script of the
// event's place, GameProfile::eventPlaces).
enum class ScriptSource { PersonRecord, LatiScript, GroudonScript, PlaceScript };

// The two 16-bit words of an event's script that hold the species and the cry, as
// distances from the script's start, and how the main window shows them.
struct EventWordLayout {
  std::string_view name;  // "rs 1" ..., "e 2" ...: the family and the first row it serves
  ScriptSource scriptSource;
  int firstWordAt;   // the word shown as "Pokemon:"
  int secondWordAt;  // the word shown as "Cry:"
  bool showsHoobla;  // hoobla/hoobla2 on show, else Text1/Text2
  bool listFollowsSecond;  // the species list follows the second word, else the first
};

// One row of a family's event list. `personField` is the state field of the main window
// that holds the person record's offset; in family e, whose events outnumber those fields,
// `place` is the event's place in the game's profile instead (GameProfile::eventPlaces).
struct EventEntry {
  std::string_view text;
  std::string Form1::*personField;
  const EventWordLayout* layout;  // none for "Select a Event", Deoxys (frlg) and Latias/Latios (e)
  int place = -1;
};

// The events of a family ("rs", "frlg" or "e"); empty for any other family.
std::span<const EventEntry> EventCatalogue(std::string_view family);

// The entry texts of a family's list, in order.
std::vector<std::string> EventEntryTexts(std::string_view family);

// The event of the family at a list index, or none.
const EventEntry* FindEvent(std::string_view family, int index);

// The event selected in the main window (whee, in the family cowmoo), or none.
const EventEntry* SelectedEvent(const Form1& form);

// The word layout of the event selected in the main window; none for an event with no words.
const EventWordLayout* SelectedWordLayout(const Form1& form);

// Where the event's person record lies in the ROM opened last: its state field, or its place
// in the open game's profile; empty where the open game's profile places no such event.
std::string PersonOffsetOf(const Form1& form, const EventEntry& event);

// The script offset that the event's words are read from in place of the person's script:
// the constant of the open game's profile; empty for an event that takes the person's script.
std::string_view FixedScriptOf(const Form1& form, const EventEntry& event);

}  // namespace tessarine
