// The five number conversions on any text: the strict parses give a number or a Failure, a
// number they give reads back the same from its own hexadecimal text, and the lenient parse
// agrees with the strict one wherever that one gives a number.
#include <optional>

#include "FuzzInput.h"
#include "rom/Failure.h"
#include "rom/HexField.h"

namespace tessarine {
namespace {

template <typename Parse>
auto Parsed(Parse parse, const std::string& text) -> std::optional<decltype(parse(text, {}))> {
  try {
    return parse(text, "Field");
  } catch (const Failure&) {
    return std::nullopt;
  }
}

}  // namespace
}  // namespace tessarine

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarine;
  const std::string text(reinterpret_cast<const char*>(data), size);
  const std::int32_t lenient = ParseLenient(text);
  if (const auto offset = Parsed(ParseOffset, text)) {
    fuzz::Require(ParseOffset(ToHexText(*offset)) == *offset, "an offset reads back from its text");
    fuzz::Require(lenient == *offset, "the lenient parse agrees with the strict one");
  }
  if (const auto word = Parsed(ParseWord, text)) fuzz::Require(ParseWord(ToHexText(*word)) == *word, "word");
  if (const auto byte = Parsed(ParseByte, text)) fuzz::Require(ParseByte(ToHexText(*byte)) == *byte, "byte");
  return 0;
}
