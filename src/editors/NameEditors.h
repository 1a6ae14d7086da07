#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarine {

struct Form1;
class RomImage;

// "Edit Pokemon Name" and "Edit Item Name" overwrite one name in the ROM. Each asks for
// the entry's number and the new name; these are their questions.
inline constexpr std::string_view kPokemonEntryPrompt = "Enter &H and the Hex of the Pokemon you would like to edit.";
inline constexpr std::string_view kPokemonNamePrompt =
    "Enter a new name. Max Length 11, Any more and you will screw up.";
inline constexpr std::string_view kItemEntryPrompt = "Enter &H and the Hex of the Item you would like to edit.";
inline constexpr std::string_view kItemNamePrompt = "Enter a new name. Max Length 14, Any more and you will screw up.";

// Why no tool reads or writes the name tables (main.Label20, main.itemRecords) of a ROM that
// is open while they belong to no ROM open (Form1::tables): an unknown game whose Unsupported
// ROM dialog was left without "Continue".
inline constexpr std::string_view kNoTablesOfThisRom =
    "The name tables of the ROM that is open are not known: Tessarine does not know the tables of its game or "
    "revision, and the Unsupported ROM dialog was left without \"Continue\". Open the ROM again and give its tables "
    "there, or open a ROM of a known game.";

// The typed name cut to its first `characters` characters, or filled up to them with
// blanks. Counts characters, not bytes, and does it before encoding, so a form of several
// characters such as "[PK]" counts as all of them and may be cut in two.
std::string FitName(std::string_view typed, int characters);

// Writes the name of species `entry` in the table at main.Label20 (11 bytes a record): the
// name fitted to 11 characters and encoded as game text, and only the bytes the encoder
// gives, so a name with forms of several characters keeps the field's last bytes. No end
// byte is added. The write rule (forms/WriteRule.h) refuses it, before any write, where
// Label20 is no table of the ROM open (Form1::tables: another ROM's, or none), is no offset
// or starts in the cartridge header, or the field does not lie inside the open file.
void EditPokemonName(RomImage& rom, const Form1& main, std::int32_t entry, std::string_view name);

// The same for item `entry` in the records at main.itemRecords (44 bytes a record, the name
// in the first 14), the name fitted to 14 characters.
void EditItemName(RomImage& rom, const Form1& main, std::int32_t entry, std::string_view name);

// Throws the Failure of the write rule when the name editors may not write at all: no ROM
// open, a file changed at its path, or name tables that belong to no ROM open
// (Form1::tables: another ROM's, or none).
void RequireNameTables(const Form1& main, RomImage& rom);

}  // namespace tessarine
