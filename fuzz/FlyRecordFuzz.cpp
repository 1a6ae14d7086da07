// The fly record reader and the landing save on a ROM that ends anywhere near the record, with
// the record's bytes and the typed X and Y from the input: a save changes bytes 4 and 6 of
// the record at most, and a save that fails changes nothing.
#include "FuzzInput.h"
#include "flyland/FlyRecords.h"
#include "rom/Failure.h"
#include "rom/RomImage.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarine;
  fuzz::Input in{{data, size}};
  const FlyTable& table = kFlyTables[in.Number(1) % kFlyTables.size()];
  const int index = static_cast<int>(in.Number(1) % (kFlyRecordCount + 2));  // two that are no record
  const std::int64_t at = table.base + std::int64_t{kFlyRecordSize} * index;
  const std::int64_t length = at + static_cast<std::int8_t>(in.Number(1));  // ends before, in or behind it
  const Bytes record = in.Block(kFlyRecordSize);
  const std::string x = in.Text(in.Number(1) % 12);
  const std::string y = in.Text(12);

  RomImage rom;
  rom.Open(fuzz::ScratchRom(length, at, record));
  const auto inFile = [&] { return at < length ? rom.ReadBytes(static_cast<RomOffset>(at), kFlyRecordSize) : Bytes{}; };
  const Bytes before = inFile();
  try {
    ReadFlyRecord(rom, table.code, index);
    WriteFlyPosition(rom, table.code, index, x, y);
    Bytes after = inFile();
    fuzz::Require(after.size() == kFlyRecordSize, "a save is of a whole record");
    after[4] = before[4];
    after[6] = before[6];
    fuzz::Require(after == before, "a save changes only bytes 4 and 6");
  } catch (const Failure&) {
    fuzz::Require(inFile() == before, "a failed save changes nothing");
  }
  fuzz::Require(rom.Length() == length, "the file keeps its length");
  return 0;
}
