#pragma once

#include <cstdint>

namespace tessarine {

// A 0-based byte position in the ROM file. Signed, like every long of the system.
using RomOffset = std::int32_t;
// The last offset a ROM can have: no RomOffset, and no pointer of the game, reaches further.
inline constexpr std::int64_t kLastRomOffset = INT32_MAX;

// A pointer as game data stores it: the ROM offset plus the cartridge's base address.
inline constexpr std::int32_t kGbaRomBase = 0x08000000;

// pointer - 0x08000000 and offset + 0x08000000, in signed 32 bits. No test of the
// result (a stored 0 gives -0x08000000); a result beyond 32 bits throws Failure.
RomOffset ToRomOffset(std::int32_t pointer);

// An offset a distance behind another; throws Failure where the sum leaves 32 bits.
RomOffset OffsetPlus(RomOffset base, std::int32_t distance);
std::int32_t ToGbaPointer(RomOffset offset);

}  // namespace tessarine
