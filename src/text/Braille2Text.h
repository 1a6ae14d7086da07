#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "rom/Bytes.h"

namespace tessarine {

// Capital letters, "." , "'" and blanks as braille cells; "[End]" is 0xFF, a line break
// (CR LF) is 0xFE, "\h" and two digits any byte. Everything else is 0x00.
Bytes EncodeBrailleText(std::string_view text);

// The way back, one cell at a time: the letter of a cell, "End" for 0x02, nothing for
// 0xFF, CR LF for 0xFE, "[&H..]" for a byte with no letter.
std::string BrailleCellText(std::uint8_t cell);

// 0x02 and 0xFF end a braille text.
constexpr bool IsBrailleStop(std::uint8_t cell) { return cell == 0x02 || cell == 0xFF; }

// Where in the text the first stop cell of EncodeBrailleText(text) comes from ("[End]", or
// "\h" and the digits of 0x02 or 0xFF), found without encoding the text; npos when none.
std::size_t FindBrailleStop(std::string_view text);

// A braille record: six header bytes, then its cells.
inline constexpr std::int64_t kBrailleHeaderSize = 6;

// Whether the reading of a record's cells ends behind the cell just read, `nextPosition` being
// the file position behind that cell. It ends behind a stop cell, and once the cells read
// outnumber the bytes of the file from the record's start on: so a record at the end of the
// file, or behind it, still reads one cell, and cells past the end read as 0.
constexpr bool EndsBrailleText(std::uint8_t cell, std::int64_t nextPosition, std::int64_t fileLength) {
  return IsBrailleStop(cell) || nextPosition - kBrailleHeaderSize > fileLength;
}

}  // namespace tessarine
