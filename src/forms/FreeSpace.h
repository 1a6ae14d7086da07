#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string_view>

#include "rom/GbaPointer.h"

namespace tessarine {

class Dialogs;
class RomImage;
struct TextBox;

// Free space is where a ROM holds 0xFF bytes and nothing else: what the builders and the
// braille inserter write new data into.

// The first offset at or after `from` (and never inside the cartridge header), a multiple
// of 4, where `length` bytes of 0xFF lie with one more 0xFF behind them; none when the ROM
// holds no such place. `rom` is the whole ROM, from offset 0.
std::optional<RomOffset> FindFreeSpace(std::span<const std::uint8_t> rom, std::int64_t from, std::int64_t length);
// The same in the open ROM file, read in one block from the first place it can be.
std::optional<RomOffset> FindFreeSpace(RomImage& rom, std::int64_t from, std::int64_t length);

// The place that an offset field names for a piece of the form: its offset where the text is
// one and lies out of the cartridge header; none where no piece could be written there yet.
std::optional<RomOffset> PlaceIn(const TextBox& field);

// A "Find Free Space" button beside an offset field: the search starts at the offset in
// `field` (a text that is no offset is a Failure that names `fieldName`), for `length` bytes
// of `what` ("the script"). A place of the form's other piece, whose offset stands in
// `otherField` and which holds `otherLength` bytes, is kept clear of it, when that field
// holds an offset. Found: the field shows it. Not found: a message says so and the field
// keeps its text.
void PressFindFreeSpace(TextBox& field, std::string_view fieldName, std::string_view what, std::int64_t length,
                        const TextBox* otherField, std::int64_t otherLength, RomImage& rom, Dialogs& dialogs);

}  // namespace tessarine
