// A fuzz target as a plain program: runs each input file named, or found in a folder named,
// through the target's entry point once. A crash or a broken property ends it as under the fuzzer.
#include <algorithm>
#include <cstdio>
#include <filesystem>

#include "support/ByteOracle.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  std::vector<std::filesystem::path> inputs;
  for (int i = 1; i < argc; ++i) {
    if (!std::filesystem::is_directory(argv[i])) {
      inputs.emplace_back(argv[i]);
    } else {
      for (const auto& entry : std::filesystem::directory_iterator(argv[i])) inputs.push_back(entry.path());
    }
  }
  std::ranges::sort(inputs);
  for (const auto& input : inputs) {
    std::printf("%s\n", input.filename().string().c_str());
    const tessarine::Bytes bytes = tessarine::test::ReadWholeFile(input.string());
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
  }
  std::printf("%zu inputs replayed\n", inputs.size());
}
