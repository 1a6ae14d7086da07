#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "rom/GbaPointer.h"

namespace tessarine {

class RomImage;

// Where the player comes down after flying: one 8-byte record per fly location, 20 of
// them in a table of fixed place. Bytes 2 and 3 name the map (bank and level), bytes 4
// and 6 the landing tile (X and Y); bytes 0, 1, 5 and 7 are carried through untouched.
struct FlyRecord {
  std::uint8_t bank = 0;
  std::uint8_t level = 0;
  std::uint8_t X = 0;
  std::uint8_t Y = 0;
};

inline constexpr int kFlyRecordSize = 8;
inline constexpr int kFlyRecordCount = 20;

using LocationList = std::array<std::string_view, kFlyRecordCount>;

// The entries of the two location lists, in the order of the records: entry i names
// record i. The lists are not sorted ("Seven Island" before "Six Island"), "Ever Grande
// City" stands twice in hoenn for two records, and Littleroot Town has one record for
// each player character.
extern const LocationList kKantoLocations;
extern const LocationList kHoennLocations;

// Which list a game shows: kanto for FireRed and LeafGreen, hoenn for the others.
enum class LocationListName { kanto, hoenn };

// One game's fly table: chosen by the game code alone, nothing searched for or checked.
// Emerald (BPEJ) has no game profile; this table is all that is known of it.
struct FlyTable {
  std::string_view code;
  LocationListName list;
  RomOffset base;  // record 0
};

inline constexpr std::array<FlyTable, 5> kFlyTables{{
    {"AXVE", LocationListName::hoenn, 0x3E5A2E},
    {"AXPE", LocationListName::hoenn, 0x3E5A86},
    {"BPRE", LocationListName::kanto, 0x3EEBF6},
    {"BPGE", LocationListName::kanto, 0x3EEA32},
    {"BPEJ", LocationListName::hoenn, 0x57B11A},
}};

// The table of the game with this exact code, or none.
const FlyTable* FindFlyTable(std::string_view gameCode);

// Where record `index` (0 to 19) of a table begins.
RomOffset FlyRecordOffset(const FlyTable& table, int index);

// The texts in which the window shows a record: "B:1A", "L:0" (hexadecimal, no prefix).
std::string BankText(std::uint8_t bank);
std::string LevelText(std::uint8_t level);

// Reads record `index` of the table of `gameCode`. None, and nothing read, when the code
// has no fly table. Fails when the record does not lie wholly inside the file.
std::optional<FlyRecord> ReadFlyRecord(RomImage& rom, std::string_view gameCode, int index);

// Writes a new landing tile into record `index`: parses `xText` and then `yText` as
// bytes before anything is written, then writes the record back with only bytes 4 and 6
// replaced. Gives the record as it now stands; none, and nothing read or written, when
// the code has no fly table.
std::optional<FlyRecord> WriteFlyPosition(RomImage& rom, std::string_view gameCode, int index,
                                          std::string_view xText, std::string_view yText);

}  // namespace tessarine
