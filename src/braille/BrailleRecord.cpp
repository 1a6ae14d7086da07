#include "braille/BrailleRecord.h"

#include <algorithm>
#include <array>
#include <limits>

#include "text/Braille2Text.h"

namespace tessarine {
namespace {

// A record's cells are read from the file a block at a time.
constexpr std::int64_t kBlockSize = 64 * 1024;

// The script's commands: lock, faceplayer, braille (with a 4-byte pointer), end.
constexpr std::uint8_t kLock = 0x6A;
constexpr std::uint8_t kFacePlayer = 0x5A;
constexpr std::uint8_t kBraille = 0x78;
constexpr std::uint8_t kEnd = 0x02;

constexpr std::uint8_t kRecordEnd[] = {0xFF, 0x00};

}  // namespace

BrailleRecord ReadBrailleRecord(RomImage& rom, RomOffset offset) {
  static const std::array<std::string, 256> kCellTexts = [] {
    std::array<std::string, 256> texts;
    for (std::size_t cell = 0; cell < texts.size(); ++cell) texts[cell] = BrailleCellText(static_cast<std::uint8_t>(cell));
    return texts;
  }();
  const std::int64_t length = rom.Length();
  BrailleRecord record;
  const Bytes header = rom.ReadBytes(offset, record.header.size());  // short past the end of the file
  std::copy(header.begin(), header.end(), record.header.begin());

  // No offset reaches beyond 32 bits; what lies there reads as 0 like the bytes past the end.
  const std::int64_t readable = std::min<std::int64_t>(length, kLastRomOffset + 1);
  std::int64_t position = std::int64_t{offset} + kBrailleHeaderSize;
  for (;;) {
    Bytes block;
    if (position < readable) {
      block = rom.ReadBytes(static_cast<RomOffset>(position),
                            static_cast<std::size_t>(std::min(kBlockSize, readable - position)));
    }
    if (block.empty()) block.push_back(0x00);
    for (const std::uint8_t cell : block) {
      record.text += kCellTexts[cell];
      ++position;
      if (EndsBrailleText(cell, position, length)) return record;
    }
  }
}

Bytes BrailleRecordBytes(const BrailleHeader& header, std::string_view text) {
  Bytes bytes(header.begin(), header.end());
  const Bytes cells = EncodeBrailleText(text);
  bytes.insert(bytes.end(), cells.begin(), cells.end());
  bytes.insert(bytes.end(), std::begin(kRecordEnd), std::end(kRecordEnd));
  return bytes;
}

Bytes BrailleScriptBytes(RomOffset brailleOffset) {
  Bytes script{kLock, kFacePlayer, kBraille};
  AppendLittleEndian(script, static_cast<std::uint32_t>(ToGbaPointer(brailleOffset)), 4);
  script.push_back(kEnd);
  return script;
}

}  // namespace tessarine
