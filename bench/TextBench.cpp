#include <benchmark/benchmark.h>

#include <string>

#include "rom/Bytes.h"
#include "text/Braille2Text.h"
#include "text/Table2Text.h"
#include "text/mdlTextSapp.h"

namespace tessarine {
namespace {

// The species list at Open ROM: 412 fields of 11 bytes, each decoded and cut to its name.
void BM_DecodeSpeciesList(benchmark::State& state) {
  Bytes field = {0xCA, 0xC3, 0xC5, 0xBB, 0xBD, 0xC2, 0xE9, 0xFF, 0x00, 0x00, 0x00};
  for (auto _ : state) {
    for (int species = 0; species < 412; ++species) {
      field[8] = static_cast<std::uint8_t>(species);
      benchmark::DoNotOptimize(CutDecodedName(DecodeGameText(field, false)));
    }
  }
}
BENCHMARK(BM_DecodeSpeciesList);

// A name as the editor hands it over: eleven characters, one of them beyond ASCII.
void BM_EncodeName(benchmark::State& state) {
  const std::string name = "POK\xC3\xA9[PK]  ";
  for (auto _ : state) benchmark::DoNotOptimize(EncodeGameText(name));
}
BENCHMARK(BM_EncodeName);

// A script message of a few lines, with tokens and escapes.
void BM_EncodeMessage(benchmark::State& state) {
  const std::string message =
      "The wind rustles the grass...\\nSomething is watching[N]from the shadows!\\p"
      "\\v\\h01 stepped forward.\\nIt's a [PK][MN]![End]";
  for (auto _ : state) benchmark::DoNotOptimize(EncodeMessageText(message));
}
BENCHMARK(BM_EncodeMessage);

void BM_EncodeBraille(benchmark::State& state) {
  const std::string text = "THE DOOR OPENS\r\nWHEN ALL THREE STAND HERE.[End]";
  for (auto _ : state) benchmark::DoNotOptimize(EncodeBrailleText(text));
}
BENCHMARK(BM_EncodeBraille);

}  // namespace
}  // namespace tessarine
