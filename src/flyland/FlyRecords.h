#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "rom/GameProfile.h"
#include "rom/GbaPointer.h"

namespace tessarine {

struct FilledAt;
struct Form1;
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

// The entries of the location lists, in the order of the records: entry i names
// record i. The lists are not sorted ("Seven Island" before "Six Island"), "Ever Grande
// City" stands twice in hoenn for two records, and Littleroot Town has one record for
// each player character.
extern const LocationList kKantoLocations;
extern const LocationList kHoennLocations;
extern const LocationList kEmeraldLocations;  // hoenn, but 18 "Southern Island", 19 "Battle Frontier"

// One game's fly table: where record 0 lies and which location list names its records, as
// the game's profile gives them. Nothing is searched for or checked.
struct FlyTable {
  FlyList list;
  RomOffset base;  // record 0
};

// The table of the game with this exact code and revision, or none.
std::optional<FlyTable> FindFlyTable(const GameIdentity& game);

// Where record `index` (0 to 19) of a table begins.
RomOffset FlyRecordOffset(const FlyTable& table, int index);

// The texts in which the window shows a record: "B:1A", "L:0" (hexadecimal, no prefix).
std::string BankText(std::uint8_t bank);
std::string LevelText(std::uint8_t level);

// Reads record `index` of the table of `game`. None, and nothing read, when the game has no
// fly table. Fails when the record does not lie wholly inside the file.
std::optional<FlyRecord> ReadFlyRecord(RomImage& rom, const GameIdentity& game, int index);

// Writes a new landing tile into record `index` of the table of the game open in `main`:
// parses `xText` and then `yText` as bytes before anything is written, then writes the
// record back with only bytes 4 and 6 replaced, by the write rule (forms/WriteRule.h) for
// values of a window filled at `filled`. Gives the record as it now stands; none, and
// nothing read or written, when the game has no fly table.
std::optional<FlyRecord> WriteFlyPosition(RomImage& rom, const Form1& main, const FilledAt& filled, int index,
                                          std::string_view xText, std::string_view yText);

}  // namespace tessarine
