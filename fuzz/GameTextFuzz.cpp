// The decoder and the three encoders on any bytes and any text (well-formed UTF-8 or not): each encoder gives at most
// one byte a character, and the braille text's stop is found without encoding exactly where encoding gives a stop cell.
#include <algorithm>

#include "FuzzInput.h"
#include "text/Braille2Text.h"
#include "text/Table2Text.h"
#include "text/Utf8.h"
#include "text/mdlTextSapp.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace tessarine;
  const std::span<const std::uint8_t> bytes(data, size);
  for (const bool japanese : {false, true}) CutDecodedName(DecodeGameText(bytes, japanese));

  const std::string text(reinterpret_cast<const char*>(data), size);
  const std::size_t characters = DecodeUtf8(text).size();
  fuzz::Require(EncodeGameText(text).size() <= characters, "game text: a byte a character at most");
  fuzz::Require(EncodeMessageText(text).size() <= characters, "message: a byte a character at most");
  const Bytes cells = EncodeBrailleText(text);
  fuzz::Require(cells.size() <= characters, "braille: a cell a character at most");
  fuzz::Require((FindBrailleStop(text) != std::string::npos) == std::ranges::any_of(cells, IsBrailleStop),
                "the braille stop is found where encoding gives one");
  return 0;
}
