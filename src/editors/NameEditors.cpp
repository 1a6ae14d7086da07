#include "editors/NameEditors.h"

#include "forms/InsertPlace.h"
#include "forms/ListRows.h"
#include "rom/Failure.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"
#include "text/Utf8.h"
#include "text/mdlTextSapp.h"

namespace tessarine {
namespace {

struct NameTable {
  std::string_view entryField;  // names the entry in a sentence: "Pokemon", "Item"
  std::string_view offsetField;
  std::int64_t recordLength;
  int nameLength;
};

constexpr NameTable kSpeciesNames{"Pokemon", "Species names offset", kSpeciesNameLength, kSpeciesNameLength};
constexpr NameTable kItemNames{"Item", "Item records offset", kItemRecordLength, kItemNameLength};

void WriteName(RomImage& rom, const NameTable& table, std::string_view tableOffset, std::int32_t entry,
               std::string_view name) {
  std::int64_t place = 0;
  try {
    const RomOffset start = ParseOffset(tableOffset, table.offsetField);
    place = start + entry * table.recordLength;
    RequireInsideRom(rom, place, table.nameLength, "its name in the table at " + ToHexText(start),
                     table.entryField, ToHexText(entry));
  } catch (const Failure& failure) {
    throw failure.Then("Nothing was written.");
  }
  rom.WriteBytes(static_cast<RomOffset>(place), EncodeGameText(FitName(name, table.nameLength)));
}

}  // namespace

std::string FitName(std::string_view typed, int characters) {
  std::size_t end = 0;
  int count = 0;
  for (; end < typed.size() && count < characters; ++count) end += ReadUtf8Character(typed, end).length;
  std::string fitted(typed.substr(0, end));
  fitted.append(static_cast<std::size_t>(characters - count), ' ');
  return fitted;
}

void EditPokemonName(RomImage& rom, std::string_view Label20, std::int32_t entry, std::string_view name) {
  WriteName(rom, kSpeciesNames, Label20, entry, name);
}

void EditItemName(RomImage& rom, std::string_view itemRecords, std::int32_t entry, std::string_view name) {
  WriteName(rom, kItemNames, itemRecords, entry, name);
}

}  // namespace tessarine
