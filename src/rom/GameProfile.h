#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "rom/GbaPointer.h"

namespace tessarine {

class RomImage;

// The four characters of the cartridge header that name the game, compared exactly.
using GameCode = std::string;
inline constexpr int kGameCodeOffset = 0xAC;
// The header byte that tells the revision of the game: 0 for 1.0, 1 for 1.1, 2 for 1.2.
inline constexpr int kRevisionOffset = 0xBC;
// A header too short to hold the revision byte.
inline constexpr int kNoRevision = -1;
// A profile known by its code alone, whatever the revision byte holds.
inline constexpr int kAnyRevision = -2;

// A game as the header names it: its code and its revision together. Every revision of a
// game keeps its data at offsets of its own, so the code alone names no offset.
struct GameIdentity {
  GameCode code;
  int revision = kNoRevision;
  bool operator==(const GameIdentity&) const = default;
};

// The code and revision in the header of the open file; what the file does not hold stays
// empty (no code) or kNoRevision.
GameIdentity ReadGameIdentity(RomImage& rom);

// "AXVE", or "BPRE 1.1" for a later revision: the identity as the "RomCode:" line shows it.
// Each header byte of the code is one character (Latin-1), shown in UTF-8.
std::string ShownIdentity(const GameIdentity& identity);

// "rs" (Ruby, Sapphire), "frlg" (FireRed, LeafGreen) or "e" (Emerald): which event list the
// main window offers and which load and save of event words runs.
using GameFamily = std::string;
inline constexpr std::string_view kFamilyRs = "rs";
inline constexpr std::string_view kFamilyFrlg = "frlg";
inline constexpr std::string_view kFamilyE = "e";

// Wherever the families rs and frlg take two roads (the main window's buttons and lists, the
// Flag that a load of the words puts back, the fanfare of a gift), family e takes the road of
// rs: Emerald is a game of Ruby and Sapphire's kind.
constexpr bool FollowsRs(std::string_view family) { return family == kFamilyRs || family == kFamilyE; }

// The fly locations a game's fly table holds, record by record: Emerald's are those of Ruby
// and Sapphire but for its last two records.
enum class FlyList { kanto, hoenn, emerald };

// Where one legendary event of Emerald lies: its person record and, for an event whose words
// are not in the script that the person points at, the script that holds them. "&H" and six
// digits, as the main window's offsets; no script, for an event whose script is the person's.
struct EventPlace {
  std::string_view person;
  std::string_view script;
};

// Every fixed offset of one revision of one game: the one place where any tool finds where
// that game keeps its data. Nothing is searched for in the ROM.
//
// The main window's offsets are "&H" and six digits and carry the names of the state fields
// they are copied into; the same field serves different events in the families rs and frlg.
// Family e has more events than those fields: its events' places stand in `eventPlaces`, and
// the fields stay empty. A game that Open ROM does not take (Japanese Emerald) has no family
// and no such offsets: only the starter editor and Wingfall know it.
struct GameProfile {
  std::string_view code;
  int revision;
  std::string_view cowmoo;   // the family; empty for a game that Open ROM does not take
  std::string_view Label20;  // species name table
  std::string_view Label1;   // person: Rayquaza (rs), Zapdos (frlg)
  std::string_view raytxt;   // person: Latias/Latios (rs), Deoxys (frlg)
  std::string_view grou;     // person: Groudon/Kyogre (rs); empty in frlg, never copied
  std::string_view regi1;    // person: Regiice (rs), Moltres (frlg)
  std::string_view regi2;    // person: Registeel (rs), Articuno (frlg)
  std::string_view regi3;    // person: Regirock (rs), Mewtwo (frlg)
  std::string_view latiScript;     // script of Latias/Latios (rs only)
  std::string_view groudonScript;  // script of Groudon/Kyogre (rs only)
  std::string_view itemRecords;    // item table, 44-byte records
  // The three starters, one species word each: side by side in Ruby, Sapphire and
  // Emerald, apart (at odd offsets) in FireRed and LeafGreen.
  std::array<RomOffset, 3> starters;
  RomOffset flyTable;  // record 0 of the 20 fly records
  FlyList flyList;
  // Family e: the place of each event of its list, in the list's order from row 1.
  std::span<const EventPlace> eventPlaces;

  // Whether Open ROM takes the game: it has a family, and the main window's offsets.
  bool Opens() const { return !cowmoo.empty(); }
};

// The profile of this exact code (case included) and revision, or none. Japanese Emerald's,
// which only the starter editor and Wingfall know, is known by its code alone.
const GameProfile* FindGameProfile(const GameIdentity& identity);

// Whether some revision of the code has a profile: a ROM of a known game whose revision
// has none is told so, not taken for another revision.
bool IsKnownCode(std::string_view code);

}  // namespace tessarine
