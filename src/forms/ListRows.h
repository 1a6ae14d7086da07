#pragma once

#include <string>
#include <string_view>

namespace tessarine {

// The species name table: 412 records of 11 bytes, back to back, index 0 to 411. Row i of
// every species list is species i.
inline constexpr int kSpeciesCount = 412;
inline constexpr int kSpeciesNameLength = 11;

// A species number: 0 to 411, a row of the species list. The one bound of a species.
constexpr bool IsSpeciesNumber(int value) { return value >= 0 && value < kSpeciesCount; }

// The item records: 347 of 44 bytes each, back to back from itemRecords, numbered from 0.
// The first 14 bytes of a record are the item's name in game text.
inline constexpr int kItemCount = 347;
inline constexpr int kItemRecordLength = 44;
inline constexpr int kItemNameLength = 14;

// A row of a list whose row number is the value: three upper-case hexadecimal digits,
// " - " and the name ("01A - " for row 26).
std::string NumberedRow(int index, std::string_view name);

}  // namespace tessarine
