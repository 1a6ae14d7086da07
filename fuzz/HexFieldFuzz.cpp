// The five number conversions on any text: a strict parse gives a number or a Failure, the
// number it gives reads back the same from its own text, and the lenient parse agrees.
#include "FuzzInput.h"
#include "rom/Failure.h"
#include "rom/HexField.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarine;
  const std::string text(reinterpret_cast<const char*>(data), size);
  const std::int32_t lenient = ParseLenient(text);
  const auto readsBack = [&](auto parse, const char* property) {
    decltype(parse(text, "Field")) value;
    try {
      value = parse(text, "Field");
    } catch (const Failure&) {
      return;
    }
    fuzz::Require(parse(ToHexText(value), {}) == value, property);  // a Failure here ends the run too
    fuzz::Require(lenient == value || sizeof(value) < 4, "the lenient parse agrees with the strict one");
  };
  readsBack(ParseOffset, "an offset reads back");
  readsBack(ParseWord, "a word reads back");
  readsBack(ParseByte, "a byte reads back");
  return 0;
}
