#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "rom/Bytes.h"
#include "rom/GbaPointer.h"

namespace tessarine {

class RomImage;

// The scripts that the builders write, as bytes. Pure functions of the values; a pointer
// that leaves 32 bits throws Failure. The command names in the comments are the lister's.

// lock, faceplayer, wildpkmnbattle: species (word) level (byte) item (word), cry &HA1
// species (word), end: 13 bytes.
Bytes BuildWildBattleScript(std::int16_t species, std::uint8_t level, std::int16_t item, std::int16_t cry);

// lock, faceplayer, msgbox with the pointer to the message right behind 0x0F, boxset 6,
// then the battle, the cry and end as above: 20 bytes.
Bytes BuildWildBattleMessageScript(std::int16_t species, std::uint8_t level, std::int16_t item, std::int16_t cry,
                                   RomOffset textOffset);

// The give-Pokemon block. A body of 76 bytes at the script offset S asks the question at
// T, branches on the answer, and gives the Pokemon; two branches and two fixed texts lie
// behind it, each at a fixed distance from S.
inline constexpr int kGivePokemonBodyLength = 76;
inline constexpr int kDeclinedBranchAt = 74;  // the body's last two bytes are its first two
inline constexpr int kNoRoomBranchAt = 93;
inline constexpr int kDeclinedTextAt = 103;   // 35 bytes: the no-room text overwrites it from byte 10 on
inline constexpr int kNoRoomTextAt = 113;

inline constexpr std::string_view kDeclinedText = "\\v\\h01 left the POK\xC3\xA9 BALL where\\nit was.";
inline constexpr std::string_view kNoRoomText = "There is no space for another POK\xC3\xA9MON.";

Bytes BuildGivePokemonBody(std::int16_t species, std::uint8_t level, std::int16_t item, RomOffset scriptOffset,
                           RomOffset textOffset);
// msgbox to its text, boxset 4, 0x6B, end: 9 bytes each.
Bytes BuildDeclinedBranch(RomOffset scriptOffset);
Bytes BuildNoRoomBranch(RomOffset scriptOffset);

// Bytes to write at an offset, and what they are ("the body").
struct ScriptPiece {
  std::string_view name;
  RomOffset at;
  Bytes bytes;
};

// The whole block in the order it is written: body, declined branch, no-room branch,
// declined text, no-room text. Where two meet, the later one stands. The two texts carry
// no end byte: each runs on to the first 0xFF already in the ROM behind it.
std::vector<ScriptPiece> GivePokemonPieces(std::int16_t species, std::uint8_t level, std::int16_t item,
                                           RomOffset scriptOffset, RomOffset textOffset);

// A message text as stored: EncodeMessageText of what the person typed, then FF 00.
Bytes MessageTextBytes(std::string_view message);
void WriteMessageText(RomImage& rom, RomOffset textOffset, std::string_view message);

}  // namespace tessarine
