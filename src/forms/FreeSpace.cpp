#include "forms/FreeSpace.h"

#include <algorithm>

#include "forms/Controls.h"
#include "forms/Dialogs.h"
#include "forms/WriteRule.h"
#include "rom/Failure.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"

namespace tessarine {
namespace {

// How much of the file one read takes: enough that the reads cost little next to the scan.
constexpr std::int64_t kBlock = std::int64_t{1} << 20;

std::int64_t AlignUp(std::int64_t offset) { return (offset + 3) / 4 * 4; }

// Where the search may start: at or after `from`, out of the header, on a multiple of 4.
std::int64_t FirstPlace(std::int64_t from) { return AlignUp(std::max(from, std::int64_t{kCartridgeHeaderEnd})); }

// What a scan of one block learnt: the place found, or the next place to try.
struct Scanned {
  bool found;
  std::int64_t at;
};

// Tries the places from `at` on whose `need` bytes lie in `block` (which starts at offset
// `base`). A place's bytes are read from its last one backwards: a byte that is not 0xFF
// rules out every place up to it, so the next place tried lies behind it, and most bytes of
// a ROM full of data are never read.
Scanned Scan(std::span<const std::uint8_t> block, std::int64_t base, std::int64_t at, std::int64_t need) {
  const std::int64_t end = base + std::ssize(block);
  while (at + need <= end) {
    std::int64_t last = at + need - 1;
    while (last >= at && block[static_cast<std::size_t>(last - base)] == 0xFF) --last;
    if (last < at) return {true, at};
    at = AlignUp(last + 1);
  }
  return {false, at};
}

std::optional<RomOffset> AsOffset(const Scanned& scanned) {
  if (!scanned.found || scanned.at > kLastRomOffset) return std::nullopt;
  return static_cast<RomOffset>(scanned.at);
}

// No ROM holds a place from beyond its last offset, nor one longer than that: the search
// ends before any sum with such a number.
bool BeyondAnyRom(std::int64_t from, std::int64_t length) { return from > kLastRomOffset || length > kLastRomOffset; }

}  // namespace

std::optional<RomOffset> FindFreeSpace(std::span<const std::uint8_t> rom, std::int64_t from, std::int64_t length) {
  if (BeyondAnyRom(from, length)) return std::nullopt;
  return AsOffset(Scan(rom, 0, FirstPlace(from), std::max<std::int64_t>(length, 0) + 1));
}

std::optional<RomOffset> FindFreeSpace(RomImage& rom, std::int64_t from, std::int64_t length) {
  if (BeyondAnyRom(from, length)) return std::nullopt;
  const std::int64_t need = std::max<std::int64_t>(length, 0) + 1;
  const std::int64_t size = std::min(rom.Length(), kLastRomOffset + 1);
  std::int64_t at = FirstPlace(from);
  while (at + need <= size) {
    // Each block starts at the next place to try and holds at least one whole place.
    const std::int64_t count = std::min(std::max(kBlock, need), size - at);
    const Bytes block = rom.ReadBytes(static_cast<RomOffset>(at), static_cast<std::size_t>(count));
    if (std::ssize(block) < count) break;  // the file shrank under the read
    const Scanned scanned = Scan(block, at, at, need);
    if (scanned.found) return AsOffset(scanned);
    at = scanned.at;
  }
  return std::nullopt;
}

std::optional<RomOffset> PlaceIn(const TextBox& field) {
  try {
    return ParseInsertOffset(field.text, {});
  } catch (const Failure&) {
    return std::nullopt;
  }
}

void PressFindFreeSpace(TextBox& field, std::string_view fieldName, std::string_view what, std::int64_t length,
                        const TextBox* otherField, std::int64_t otherLength, RomImage& rom, Dialogs& dialogs) {
  const std::int64_t from = ParseOffset(field.text, fieldName);
  const std::optional<std::int64_t> other = otherField != nullptr ? PlaceIn(*otherField) : std::nullopt;
  std::optional<RomOffset> found = FindFreeSpace(rom, from, length);
  // A place whose bytes, or the 0xFF behind them, meet the other piece's: on behind that piece.
  while (found && other && *found < *other + otherLength + 1 && *other < *found + length + 1) {
    found = FindFreeSpace(rom, *other + otherLength + 1, length);
  }
  if (found) {
    field.text = ToHexText(*found);
    return;
  }
  dialogs.Message(std::string(fieldName) + ": no free space at or after " + ToHexText(static_cast<RomOffset>(
                      std::max<std::int64_t>(from, kCartridgeHeaderEnd))) + " holds " + std::string(what) + " (" +
                  std::to_string(length) + " bytes of FF and one more behind them). The field keeps its text.");
}

}  // namespace tessarine
