#include <benchmark/benchmark.h>
#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>

#include "rom/RomImage.h"
#include "scripts/ListScript.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"

// The memory a listing takes is measured by counting what the program allocates: this file
// replaces the global operator new and delete of the benchmark program with counting ones.
// The counts cost one atomic add per allocation, for every benchmark of the program.
namespace {

std::atomic<std::size_t> gLiveBytes{0};
std::atomic<std::size_t> gPeakBytes{0};

void* Counted(void* block) {
  if (block == nullptr) throw std::bad_alloc();
  const std::size_t live = gLiveBytes.fetch_add(malloc_usable_size(block), std::memory_order_relaxed) +
                           malloc_usable_size(block);
  std::size_t peak = gPeakBytes.load(std::memory_order_relaxed);
  while (live > peak && !gPeakBytes.compare_exchange_weak(peak, live, std::memory_order_relaxed)) {
  }
  return block;
}

void Uncounted(void* block) noexcept {
  if (block == nullptr) return;
  gLiveBytes.fetch_sub(malloc_usable_size(block), std::memory_order_relaxed);
  std::free(block);
}

}  // namespace

void* operator new(std::size_t size) { return Counted(std::malloc(size == 0 ? 1 : size)); }
void* operator new[](std::size_t size) { return Counted(std::malloc(size == 0 ? 1 : size)); }
void operator delete(void* block) noexcept { Uncounted(block); }
void operator delete[](void* block) noexcept { Uncounted(block); }
void operator delete(void* block, std::size_t) noexcept { Uncounted(block); }
void operator delete[](void* block, std::size_t) noexcept { Uncounted(block); }

namespace tessarine {
namespace {

// A listing from the middle of a 16 MiB ROM of free space: 8 MiB of 0xFF, no end byte, so
// it runs to the end of the file, one "Byte: &HFF " line a byte. Reports the listing's size
// and the most memory allocated at once while it was made, as a multiple of that size.
void BM_ListScriptEightMegabytesOfFreeSpace(benchmark::State& state) {
  test::FixtureRom fixture = test::FixtureRom::Sapphire();
  RomImage rom;
  rom.Open(fixture.path());
  test::ScriptedDialogs ui;
  std::size_t textBytes = 0;
  std::size_t peakBytes = 0;
  std::ptrdiff_t lines = 0;
  for (auto _ : state) {
    const std::size_t before = gLiveBytes.load();
    gPeakBytes.store(before);
    std::optional<std::string> listing = ListScript(rom, ui, "&H800000", false);
    peakBytes = gPeakBytes.load() - before;
    textBytes = listing->size();
    state.PauseTiming();
    lines = std::count(listing->begin(), listing->end(), '\n');
    listing.reset();
    state.ResumeTiming();
  }
  state.counters["listing_MB"] = static_cast<double>(textBytes) / 1e6;
  state.counters["lines"] = static_cast<double>(lines);
  state.counters["peak_MB"] = static_cast<double>(peakBytes) / 1e6;
  state.counters["peak_per_text"] = static_cast<double>(peakBytes) / static_cast<double>(textBytes);
}
BENCHMARK(BM_ListScriptEightMegabytesOfFreeSpace)->Unit(benchmark::kMillisecond)->Iterations(5);

// A script of a few commands: the cost of one press for an ordinary script.
void BM_ListScriptShortScript(benchmark::State& state) {
  test::FixtureRom fixture = test::FixtureRom::Sapphire();
  fixture.PutBytes(0x200000, {0x6A, 0x5A, 0xB6, 0x19, 0x00, 0x05, 0x00, 0x00, 0x30, 0xA1, 0x19, 0x00, 0x02});
  RomImage rom;
  rom.Open(fixture.path());
  test::ScriptedDialogs ui;
  for (auto _ : state) benchmark::DoNotOptimize(ListScript(rom, ui, "&H200000", false));
}
BENCHMARK(BM_ListScriptShortScript)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tessarine
