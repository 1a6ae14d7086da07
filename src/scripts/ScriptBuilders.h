#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "rom/Bytes.h"
#include "rom/GbaPointer.h"

namespace tessarine {


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

// Game-ready scripts: the same fields, laid out as the games' script engine reads them
// (0x0F takes a text bank byte before its pointer, 0xA1 a cry mode word behind the cry, 0xB6
// only sets up the battle that 0xB7 starts), so that the script runs in Ruby, Sapphire,
// Emerald, FireRed and LeafGreen. Their texts end in one 0xFF.

// lock, faceplayer, set up the wild battle, wait for sound, cry in mode 2, wait for the cry,
// start the battle, release, end: 18 bytes.
inline constexpr int kGameReadyWildBattleLength = 18;
Bytes BuildGameReadyWildBattleScript(std::int16_t species, std::uint8_t level, std::int16_t item, std::int16_t cry);
// lock, faceplayer, the message at textOffset in the default box, then the battle as above:
// 26 bytes.
inline constexpr int kGameReadyWildBattleMessageLength = 26;
Bytes BuildGameReadyWildBattleMessageScript(std::int16_t species, std::uint8_t level, std::int16_t item,
                                            std::int16_t cry, RomOffset textOffset);

// The fanfare of a gift, by the game family: &H172 in Ruby, Sapphire and Emerald, &H101 in
// FireRed and LeafGreen. Another family (a game without one) is a Failure that says so.
std::int16_t GameReadyGiveFanfare(std::string_view family);

// The game-ready give-Pokemon script: one block of 160 bytes at the script offset, its
// pieces apart (the body, the declined branch, the no-room branch, the declined text, the
// no-room text), and the question at the text offset.
inline constexpr int kGameReadyGiveBlockLength = 160;
std::vector<ScriptPiece> GameReadyGivePokemonPieces(std::string_view family, std::int16_t species, std::uint8_t level,
                                                    std::int16_t item, RomOffset scriptOffset, RomOffset textOffset,
                                                    std::string_view question);

// A message as a game-ready script shows it: EncodeMessageText, then one 0xFF.
Bytes GameReadyMessageBytes(std::string_view message);

// A message text as stored: EncodeMessageText of what the person typed, then FF 00.
Bytes MessageTextBytes(std::string_view message);

}  // namespace tessarine
