#include "flyland/FlyRecords.h"

#include "forms/Form1.h"
#include "forms/WriteRule.h"
#include "rom/Failure.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"

namespace tessarine {
namespace {

constexpr int kBankByte = 2;
constexpr int kLevelByte = 3;
constexpr int kXByte = 4;
constexpr int kYByte = 6;

FlyRecord FieldsOf(const Bytes& bytes) {
  return {bytes[kBankByte], bytes[kLevelByte], bytes[kXByte], bytes[kYByte]};
}

// The record's 8 bytes, or a failure when the file ends before them: a table read past
// the end would show numbers that are not in the file, and a save there could not
// complete.
Bytes ReadWholeRecord(RomImage& rom, RomOffset offset, int index, std::string_view notDone) {
  Bytes bytes = rom.ReadBytes(offset, kFlyRecordSize);
  if (bytes.size() != kFlyRecordSize) {
    throw Failure("The fly record " + std::to_string(index) + " at " + ToHexText(offset) +
                  " does not lie wholly inside the ROM, so it was not " + std::string(notDone) + ".");
  }
  return bytes;
}

}  // namespace

const LocationList kKantoLocations = {
    "Pallet Town",   "Viridian City",  "Pewter City", "Cerulean City", "Lavender Town",
    "Vermilion City", "Celadon City",  "Fuchsia City", "Cinnabar Island", "Indigo Plateau",
    "Saffron City",  "Route 4",        "Route 10",    "One Island",    "Two Island",
    "Three Island",  "Four Island",    "Five Island", "Seven Island",  "Six Island",
};

const LocationList kHoennLocations = {
    "Petalburg City",        "Slateport City",         "Mauville City",    "Rustboro City",
    "Fortree City",          "Lilycove City",          "Mossdeep City",    "Sootopolis City",
    "Ever Grande City",      "Littleroot Town [Boy]",  "Littleroot Town [Girl]", "Oldale Town",
    "Dewford Town",          "Lavaridge Town",         "Fallarbor Town",   "Verdanturf Town",
    "Pacifidlog Town",       "Ever Grande City",       "Battle Tower",     "Southern Island",
};

const LocationList kEmeraldLocations = [] {
  LocationList entries = kHoennLocations;
  entries[18] = "Southern Island";
  entries[19] = "Battle Frontier";
  return entries;
}();

std::optional<FlyTable> FindFlyTable(const GameIdentity& game) {
  const GameProfile* profile = FindGameProfile(game);
  if (profile == nullptr) return std::nullopt;
  return FlyTable{profile->flyList, profile->flyTable};
}

RomOffset FlyRecordOffset(const FlyTable& table, int index) {
  if (index < 0 || index >= kFlyRecordCount) {
    throw Failure("Location: there is no fly record " + std::to_string(index) + "; the table holds records 0 to " +
                  std::to_string(kFlyRecordCount - 1) + ". Nothing was read or written.");
  }
  return table.base + kFlyRecordSize * index;
}

std::string BankText(std::uint8_t bank) { return "B:" + HexDigits(bank); }
std::string LevelText(std::uint8_t level) { return "L:" + HexDigits(level); }

std::optional<FlyRecord> ReadFlyRecord(RomImage& rom, const GameIdentity& game, int index) {
  const auto table = FindFlyTable(game);
  if (!table) return std::nullopt;
  return FieldsOf(ReadWholeRecord(rom, FlyRecordOffset(*table, index), index, "read"));
}

std::optional<FlyRecord> WriteFlyPosition(RomImage& rom, const Form1& main, const FilledAt& filled, int index,
                                          std::string_view xText, std::string_view yText) {
  const auto table = FindFlyTable(IdentityOf(main));
  if (!table) return std::nullopt;
  const RomOffset offset = FlyRecordOffset(*table, index);
  RomWrite write(rom, main);
  write.FromWindow(filled, "Pick a location, or press \"Load\", to read its record from the ROM that is open now.");
  Bytes bytes;
  try {
    bytes = ReadWholeRecord(rom, offset, index, "saved");
    bytes[kXByte] = ParseByte(xText, "X");
    bytes[kYByte] = ParseByte(yText, "Y");
  } catch (const Failure& failure) {
    throw write.Stopped(failure);
  }
  write.Add({"fly record " + std::to_string(index), offset, bytes}).CheckAndWrite();
  return FieldsOf(bytes);
}

}  // namespace tessarine
