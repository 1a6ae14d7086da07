#pragma once

#include <cstdint>
#include <string_view>

#include "rom/GbaPointer.h"

namespace tessarine {

class RomImage;

// Where a tool may put what it inserts (a script, a message text). The person types the
// offset; the ROM is theirs, so nothing tests whether the place is free. Two places are
// refused all the same: the cartridge header, and anything that does not lie wholly
// inside the file.

// The cartridge header runs from 0 to &HBF: entry code, logo, title and game code. An
// offset field that still holds its initial "&H000000" would write over it.
inline constexpr RomOffset kCartridgeHeaderEnd = 0xC0;

// ParseOffset of the field's text, and the one rule for every insert offset: it must not
// lie before kCartridgeHeaderEnd ("&H000000", "0" and "&H0" alike, and every negative
// offset). Throws Failure naming the field and its text.
RomOffset ParseInsertOffset(std::string_view text, std::string_view field);

// Throws Failure unless the open file holds `length` bytes from `at`, by the test that
// every write meets (RomImage::Holds), so that no write behind it is refused. The sentence
// names the field and its text, and says what would have gone there (`what`, as "the
// script"). Also when no ROM is open. `at` is wide, so that a place worked out from a
// table and an entry number (which may lie anywhere) is tested as it is, never wrapped; a
// place that runs beyond the last offset a ROM can have is refused, on a device too.
void RequireInsideRom(RomImage& rom, std::int64_t at, std::int64_t length, std::string_view what,
                      std::string_view field, std::string_view text);

}  // namespace tessarine
