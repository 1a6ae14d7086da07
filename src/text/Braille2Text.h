#pragma once

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

}  // namespace tessarine
