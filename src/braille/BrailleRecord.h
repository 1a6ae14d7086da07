#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "rom/Bytes.h"
#include "rom/RomImage.h"

namespace tessarine {

// The six header bytes of a braille record, in their order in the file: where the box stands
// (position left and top, in units of 8 pixels), how many pixels narrower and lower the
// message box is (msgbox left and top), and where the braille text starts (braille left and
// top, in units of 8 pixels).
using BrailleHeader = std::array<std::uint8_t, 6>;

struct BrailleRecord {
  BrailleHeader header{};
  std::string text;  // the cells as the cell table reads them: letters, CR LF, "End", "[&H2D]"
};

// The record at `offset`: its header, then its cells up to a stop cell or the end of the file
// (EndsBrailleText). Bytes past the end of the file read as 0. An offset before the start of
// the file is a Failure.
BrailleRecord ReadBrailleRecord(RomImage& rom, RomOffset offset);

// The header, the cells of `text` (EncodeBrailleText), then 0xFF 0x00.
Bytes BrailleRecordBytes(const BrailleHeader& header, std::string_view text);

// The script that shows the record at `brailleOffset`: lock, faceplayer, braille with the
// record's pointer, end. An offset that can be no pointer (&H78000000 or more) is a Failure.
Bytes BrailleScriptBytes(RomOffset brailleOffset);

}  // namespace tessarine
