#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

#include "forms/FreeSpace.h"
#include "rom/RomImage.h"
#include "support/FixtureRom.h"

namespace tessarine {
namespace {

constexpr std::size_t k32MiB = std::size_t{32} << 20;
constexpr std::int64_t kBlock = 160;  // the game-ready give-Pokemon block, the longest piece of a builder
constexpr std::size_t kRoom = 164;    // the block and an FF, from a multiple of 4

// 32 MiB with room for the block (and the FF behind it) only at its very end, so that the finder
// crosses it all. Argument 0: data as a game holds it, bytes of every value (an FF one in 256);
// 1: the worst case, runs of FF one byte too short for the block, each ended by a 00.
Bytes RoomOnlyAtTheEnd(std::int64_t kind) {
  Bytes rom(k32MiB, 0xFF);
  if (kind == 0) {
    std::mt19937 rng(23);
    std::generate(rom.begin(), rom.end(), [&] { return static_cast<std::uint8_t>(rng()); });
  } else {
    for (std::size_t at = kBlock; at < rom.size(); at += kBlock + 1) rom[at] = 0x00;
  }
  std::fill(rom.end() - kRoom, rom.end(), 0xFF);
  rom[rom.size() - kRoom - 1] = 0x00;
  return rom;
}

// FindFreeSpace over the bytes of a 32 MiB ROM.
void BM_FindFreeSpaceOver32MiB(benchmark::State& state) {
  const Bytes rom = RoomOnlyAtTheEnd(state.range(0));
  const auto last = static_cast<RomOffset>(rom.size() - kRoom);
  for (auto _ : state) {
    const std::optional<RomOffset> found = FindFreeSpace(rom, 0, kBlock);
    if (found != last) state.SkipWithError("the block's place was not found");
    benchmark::DoNotOptimize(found);
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(k32MiB));
}
BENCHMARK(BM_FindFreeSpaceOver32MiB)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

// The same in a 32 MiB ROM file, as a "Find Free Space" button searches it: read a MiB at a time.
void BM_FindFreeSpaceIn32MiBFile(benchmark::State& state) {
  test::FixtureRom fixture("AXPE", k32MiB);
  fixture.PutBytes(0, RoomOnlyAtTheEnd(state.range(0)));
  RomImage rom;
  rom.Open(fixture.path());
  for (auto _ : state) benchmark::DoNotOptimize(FindFreeSpace(rom, 0, kBlock));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(k32MiB));
}
BENCHMARK(BM_FindFreeSpaceIn32MiBFile)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessarine
