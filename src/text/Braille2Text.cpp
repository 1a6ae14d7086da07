#include "text/Braille2Text.h"

#include "rom/HexField.h"
#include "text/TextTokenizer.h"

namespace tessarine {
namespace {

using tokenizer::Forms;
using tokenizer::Single;
using tokenizer::Stage;
using tokenizer::Token;

constexpr Token kEnd[] = {{"[End]", 0xFF}};
constexpr Token kLineBreak[] = {{"\r\n", 0xFE}};  // a carriage return or line feed alone is no form

constexpr Stage kStages[] = {Forms(kEnd), tokenizer::kHexEscape, Forms(kLineBreak)};
static_assert(tokenizer::AreWellFormed(kStages));

// Capital letters only. "'" is 0x04, the cell that reads back as ",", which has no form here.
constexpr Single kAlphabet[] = {
    {U' ', 0x00}, {U'\'', 0x04}, {U'.', 0x2C}, {U'A', 0x01}, {U'B', 0x05}, {U'C', 0x03}, {U'D', 0x0B},
    {U'E', 0x09}, {U'F', 0x07},  {U'G', 0x0F}, {U'H', 0x0D}, {U'I', 0x06}, {U'J', 0x0E}, {U'K', 0x11},
    {U'L', 0x15}, {U'M', 0x13},  {U'N', 0x1B}, {U'O', 0x19}, {U'P', 0x17}, {U'Q', 0x1F}, {U'R', 0x1D},
    {U'S', 0x16}, {U'T', 0x1E},  {U'U', 0x31}, {U'V', 0x35}, {U'W', 0x2E}, {U'X', 0x33}, {U'Y', 0x3B},
    {U'Z', 0x39},
};
static_assert(tokenizer::IsLookupTable(kAlphabet));

}  // namespace

Bytes EncodeBrailleText(std::string_view text) {
  return tokenizer::Tokenize(text, {kStages, {}, kAlphabet});
}

std::size_t FindBrailleStop(std::string_view text) {
  // "[End]" and the escape are the only tokens that hold a "[" or a backslash, each as its
  // first character, and neither holds the other's first character: so wherever one of them
  // stands in the text, the encoder takes it whole.
  const std::size_t end = text.find("[End]");
  for (std::size_t at = text.find("\\h"); at < end && at + 4 <= text.size(); at = text.find("\\h", at + 1)) {
    const int high = HexDigitValue(static_cast<unsigned char>(text[at + 2]));
    const int low = HexDigitValue(static_cast<unsigned char>(text[at + 3]));
    if (high >= 0 && low >= 0 && IsBrailleStop(static_cast<std::uint8_t>(high * 16 + low))) return at;
  }
  return end;
}

}  // namespace tessarine
