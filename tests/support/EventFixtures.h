#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "support/FixtureRom.h"

namespace tessarine::test {

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
  std::uint32_t script;   // where the event words are read (a constant for two events)
  int firstAt = -1;       // distances of the words; -1 for events with no words
  int secondAt = -1;
  std::uint16_t first = 0;
  std::uint16_t second = 0;
  bool listFollowsSecond = false;
  bool showsHoobla = false;
};

// The events of a game's list, entry 0 included, laid out by the fixtures: person records
// at the game's offsets, each pointing at a script in free space that holds two distinct
// species numbers at the words' distances.
std::vector<FixtureEvent> FixtureEvents(std::string_view gameCode);

// The species name table of the game (`PutSpeciesNames`) and all its events.
FixtureRom EventFixtureRom(std::string_view gameCode);
void PutSpeciesNames(FixtureRom& rom, std::uint32_t tableOffset);
void PutEvents(FixtureRom& rom, const std::vector<FixtureEvent>& events);

// Where each game keeps its species names.
std::uint32_t SpeciesTableOffset(std::string_view gameCode);

}  // namespace tessarine::test
