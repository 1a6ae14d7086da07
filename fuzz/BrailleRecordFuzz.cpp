// The braille record reader over a ROM made of the input's bytes, at any offset or at one
// near the file: the header is the file's six bytes there, 0 past the end.
#include "FuzzInput.h"
#include "braille/BrailleRecord.h"
#include "rom/Failure.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarine;
  fuzz::Input in{{data, size}};
  const bool anywhere = in.Number(1) & 1;
  const auto number = static_cast<std::int32_t>(in.Number(4));
  const Bytes bytes = in.Block();
  const auto length = static_cast<std::int64_t>(bytes.size());
  const RomOffset offset = anywhere ? number : static_cast<RomOffset>(number % (length + 8));

  RomImage rom;
  rom.Open(fuzz::ScratchRom(length, 0, bytes));
  try {
    const BrailleRecord record = ReadBrailleRecord(rom, offset);
    for (std::int64_t i = 0; i < 6; ++i) {
      const std::uint8_t inFile = offset + i < length ? bytes[static_cast<std::size_t>(offset + i)] : 0;
      fuzz::Require(record.header[static_cast<std::size_t>(i)] == inFile, "the header is the file's bytes");
    }
  } catch (const Failure&) {
    fuzz::Require(offset < 0, "only an offset before the start fails");
  }
  return 0;
}
