#include "editors/NameEditors.h"

#include "forms/Form1.h"
#include "forms/WriteRule.h"
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
  std::string Form1::*offset;
  std::int64_t recordLength;
  int nameLength;
};

constexpr NameTable kSpeciesNames{"Pokemon", "Monster Names", &Form1::Label20, kSpeciesNameLength, kSpeciesNameLength};
constexpr NameTable kItemNames{"Item", "Item Names", &Form1::itemRecords, kItemRecordLength, kItemNameLength};

void WriteName(RomImage& rom, const Form1& main, const NameTable& table, std::int32_t entry, std::string_view name) {
  RomWrite write(rom, main);
  write.From(main.tables, kNoTablesOfThisRom).Check();  // the table offset is this ROM's before it is read
  try {
    // A table may not start in the cartridge header, by the rule of every insert offset.
    const RomOffset start =
        ParseInsertOffset(main.*table.offset, table.offsetField, "A table of names cannot start there.");
    write.Add({"its name in the table at " + ToHexText(start), start + entry * table.recordLength,
               EncodeGameText(FitName(name, table.nameLength)), std::string(table.entryField), ToHexText(entry)});
  } catch (const Failure& failure) {
    throw write.Stopped(failure);
  }
  write.CheckAndWrite();
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

void RequireNameTables(const Form1& main, RomImage& rom) {
  RomWrite(rom, main).From(main.tables, kNoTablesOfThisRom).Check();
}

void EditPokemonName(RomImage& rom, const Form1& main, std::int32_t entry, std::string_view name) {
  WriteName(rom, main, kSpeciesNames, entry, name);
}

void EditItemName(RomImage& rom, const Form1& main, std::int32_t entry, std::string_view name) {
  WriteName(rom, main, kItemNames, entry, name);
}

}  // namespace tessarine
