// A fuzz target as a plain program: runs each input file in the folders named, in the order of
// their names, through the target's entry point once. A crash or a broken property ends it as
// under the fuzzer. (The fuzzer's own build replays a single input file.)
#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "support/ByteOracle.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  std::vector<std::filesystem::path> inputs;
  for (int i = 1; i < argc; ++i) {
    for (const auto& entry : std::filesystem::directory_iterator(argv[i])) inputs.push_back(entry.path());
  }
  std::ranges::sort(inputs);
  for (const auto& input : inputs) {
    std::printf("%s\n", input.filename().string().c_str());
    const tessarine::Bytes bytes = tessarine::test::ReadWholeFile(input.string());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
  }
  std::printf("%zu inputs replayed\n", inputs.size());
}
