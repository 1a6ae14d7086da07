#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessarine {

// The four characters of the cartridge header that name the game, compared exactly.
using GameCode = std::string;
inline constexpr int kGameCodeOffset = 0xAC;

// "rs" (Ruby, Sapphire) or "frlg" (FireRed, LeafGreen): which event list the main window
// offers and which load and save of event words runs.
using GameFamily = std::string;
inline constexpr std::string_view kFamilyRs = "rs";
inline constexpr std::string_view kFamilyFrlg = "frlg";

// The fixed offsets of one supported game, as "&H" and six digits. The fields carry the
// names of the main window's state fields they are copied into; the same field serves
// different events in the two families. Nothing is searched for in the ROM.
struct GameProfile {
  std::string_view code;
  std::string_view cowmoo;   // the family
  std::string_view Label20;  // species name table
  std::string_view Label1;   // person: Rayquaza (rs), Zapdos (frlg)
  std::string_view raytxt;   // person: Latias/Latios (rs), Deoxys (frlg)
  std::string_view grou;     // person: Groudon/Kyogre (rs); empty in frlg, never copied
  std::string_view regi1;    // person: Regiice (rs), Moltres (frlg)
  std::string_view regi2;    // person: Registeel (rs), Articuno (frlg)
  std::string_view regi3;    // person: Regirock (rs), Mewtwo (frlg)
  std::string_view latiScript;     // script of Latias/Latios (rs only)
  std::string_view groudonScript;  // script of Groudon/Kyogre (rs only)
  std::string_view itemRecords;    // item table, 44-byte records
};

// The profile of the game with this exact code (case included), or none. Emerald
// (BPEJ) has none: only the tools that list it in their own tables know it.
std::optional<GameProfile> FindGameProfile(std::string_view gameCode);

}  // namespace tessarine
