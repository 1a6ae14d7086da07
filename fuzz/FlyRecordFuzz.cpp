// The fly record reader and the landing save on a ROM that ends anywhere near the record, with
// the record's bytes and the typed X and Y from the input: a save changes bytes 4 and 6 of
// the record at most, and a save that fails changes nothing.
#include "FuzzInput.h"
#include "flyland/FlyRecords.h"
#include "forms/Form1.h"
#include "rom/Failure.h"
#include "rom/RomImage.h"
#include "support/EventFixtures.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarine;
  static const std::vector<GameIdentity> games = [] {
    std::vector<GameIdentity> all = test::AllGames();
    all.push_back({"BPEJ", 0});
    return all;
  }();
  fuzz::Input in{{data, size}};
  Form1 main;
  main.headtxt = games[in.Number(1) % games.size()].code;
  main.revision = games[in.Number(1) % games.size()].revision;  // maybe of another game: no table
  const FlyTable table = FindFlyTable(IdentityOf(main)).value_or(FlyTable{FlyList::hoenn, 0x3E5A2E});
  const int index = static_cast<int>(in.Number(1) % (kFlyRecordCount + 2));  // two that are no record
  const std::int64_t at = table.base + std::int64_t{kFlyRecordSize} * index;
  const std::int64_t length = at + static_cast<std::int8_t>(in.Number(1));  // ends before, in or behind it
  const Bytes record = in.Block(kFlyRecordSize);
  const std::string x = in.Text(in.Number(1) % 12);
  const std::string y = in.Text(12);

  RomImage rom;
  rom.Open(fuzz::ScratchRom(length, at, record));
  if (length > kRevisionOffset) {  // the header names the game, as far as the file holds it
    rom.WriteBytes(kGameCodeOffset, Bytes(main.headtxt.begin(), main.headtxt.end()));
    rom.WriteByte(kRevisionOffset, static_cast<std::uint8_t>(main.revision));
  }
  FilledAt filled;
  filled.Fill(main);
  const auto inFile = [&] { return at < length ? rom.ReadBytes(static_cast<RomOffset>(at), kFlyRecordSize) : Bytes{}; };
  const Bytes before = inFile();
  try {
    ReadFlyRecord(rom, IdentityOf(main), index);
    WriteFlyPosition(rom, main, filled, index, x, y);
    Bytes after = inFile();
    fuzz::Require(after.size() == kFlyRecordSize, "a save is of a whole record");
    std::tie(after[4], after[6]) = std::tie(before[4], before[6]);
    fuzz::Require(after == before, "a save changes only bytes 4 and 6");
  } catch (const Failure&) {
    fuzz::Require(inFile() == before, "a failed save changes nothing");
  }
  fuzz::Require(rom.Length() == length, "the file keeps its length");
  return 0;
}
