#pragma once

#include <string>
#include <string_view>

namespace tessarine {

struct Form1;
class RomImage;

// The species name table: 412 records of 11 bytes, back to back, index 0 to 411.
inline constexpr int kSpeciesCount = 412;
inline constexpr int kSpeciesNameLength = 11;

// A row of a list whose row number is the value: three upper-case hexadecimal digits,
// " - " and the name ("01A - " for row 26).
std::string NumberedRow(int index, std::string_view name);

// Appends the 412 species names to Combo1 (the caller clears it first): one Seek to
// Label20, then the records in order.
void FillSpeciesList(Form1& form, RomImage& rom);

}  // namespace tessarine
