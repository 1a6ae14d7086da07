#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "rom/GameProfile.h"
#include "support/FixtureRom.h"

namespace tessarine::test {

// Every game and revision that Open ROM takes, in a fixed order: each test of a tool runs
// over these by a table of cases.
const std::vector<GameIdentity>& AllGames();

// Where a game and revision keep what the tools read and write, stated here on their own so
// that the tests compare the system's tables against an independent copy.
struct GameOffsets {
  GameIdentity game;
  std::string_view family;
  std::uint32_t speciesNames;
  std::uint32_t label1, raytxt, grou, regi1, regi2, regi3;  // 0 in Emerald: its events are in FixtureEvents
  std::uint32_t latiScript, groudonScript, items;
  std::array<std::uint32_t, 3> starters;
  std::uint32_t flyTable;
};
const GameOffsets& OffsetsOf(const GameIdentity& game);

// An invented species name for index 0 to 411: letters only, at most ten of them.
std::string FixtureSpeciesName(int index);

// The 22 bytes of a person record as the fixtures write it.
struct FixturePerson {
  std::uint16_t sprite;
  std::uint8_t behaviour;
  std::uint16_t flag;
  std::uint32_t scriptPointer;  // as stored: offset + 0x08000000
  Bytes Encode() const;         // every kept byte has a value of its own
};

// One legendary event of a fixture ROM, with the values the fixture put there.
struct FixtureEvent {
  int index;              // row of the family's event list
  std::string_view name;  // its text in the list
  std::uint32_t person;   // offset of the person record
  FixturePerson record;
  std::uint32_t script;             // where the event words are read (a constant for two events)
  int firstAt = -1, secondAt = -1;  // distances of the words; -1 for events with no words
  std::uint16_t first = 0, second = 0;
  bool listFollowsSecond = false;
  bool showsHoobla = false;
};

// The events of a game's list, entry 0 included, laid out by the fixtures: person records
// at the game's offsets, each pointing at a script that holds two distinct species numbers at
// the words' distances: in free space, or in Emerald at the script's own offset in the game.
std::vector<FixtureEvent> FixtureEvents(const GameIdentity& game);

// A fixture ROM of the game and revision (its code and revision byte in the header) with
// the species name table (`PutSpeciesNames`) and all its events. A code alone is revision 0.
FixtureRom EventFixtureRom(const GameIdentity& game);
inline FixtureRom EventFixtureRom(std::string_view code) { return EventFixtureRom(GameIdentity{std::string(code), 0}); }
void PutSpeciesNames(FixtureRom& rom, std::uint32_t tableOffset);
void PutEvents(FixtureRom& rom, const std::vector<FixtureEvent>& events);

}  // namespace tessarine::test
