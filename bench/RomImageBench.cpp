#include <benchmark/benchmark.h>

#include "rom/RomImage.h"
#include "support/FixtureRom.h"

namespace tessarine {
namespace {

// One word read at a fixed place: the cost of a single positioned read on the open file.
void BM_ReadWord(benchmark::State& state) {
  test::FixtureRom fixture = test::FixtureRom::Sapphire();
  RomImage rom;
  rom.Open(fixture.path());
  for (auto _ : state) benchmark::DoNotOptimize(rom.ReadWord(0x1000));
}
BENCHMARK(BM_ReadWord);

}  // namespace
}  // namespace tessarine
