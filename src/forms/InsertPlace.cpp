#include "forms/InsertPlace.h"

#include <string>

#include "rom/Failure.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"

namespace tessarine {
namespace {

constexpr RomOffset kLastRomOffset = INT32_MAX;

std::string FieldAndText(std::string_view field, std::string_view text) {
  return std::string(field) + ": \"" + std::string(text) + "\"";
}

// A place or a length as hexadecimal text; a negative one, or one past a long, in decimal.
std::string HexNumber(std::int64_t number) {
  return number >= 0 && number <= INT32_MAX ? ToHexText(static_cast<std::int32_t>(number)) : std::to_string(number);
}

}  // namespace

RomOffset ParseInsertOffset(std::string_view text, std::string_view field) {
  const RomOffset offset = ParseOffset(text, field);
  if (offset >= kCartridgeHeaderEnd) return offset;
  const std::string where =
      offset < 0 ? " lies before the start of the ROM."
                 : " lies inside the cartridge header, " + ToHexText(RomOffset{0}) + " to " +
                       ToHexText(kCartridgeHeaderEnd - 1) + ", and would write over it.";
  throw Failure(FieldAndText(field, text) + where + " Type the offset of free space (a place with lots of FFs).");
}

void RequireInsideRom(RomImage& rom, std::int64_t at, std::int64_t length, std::string_view what,
                      std::string_view field, std::string_view text) {
  if (!rom.IsOpen()) throw Failure("No ROM is open. Open a ROM first.");
  const auto refuse = [&](const std::string& where) {
    return Failure(FieldAndText(field, text) + ": " + std::string(what) + ", " + std::to_string(length) +
                   " bytes from " + HexNumber(at) + where);
  };
  if (rom.Holds(at, length)) {
    // A device has no end; the place must still be one that an offset names, or the write
    // would land where the offset wraps to.
    if (at + length - 1 <= kLastRomOffset) return;
    throw refuse(", would lie beyond " + ToHexText(kLastRomOffset) + ", the last offset of a ROM.");
  }
  throw refuse(at < 0 ? ", would lie before the start of the ROM."
                      : ", would run past the end of the ROM, which is " + HexNumber(rom.Length()) + " bytes long.");
}

}  // namespace tessarine
