#include "text/mdlTextSapp.h"

#include <algorithm>

#include "rom/HexField.h"
#include "text/GameTextTables.h"
#include "text/TextTokenizer.h"
#include "text/Utf8.h"

namespace tessarine {
namespace {

// "&H" and two upper-case digits: how a byte with no form, or a parameter byte, prints.
void AppendHexForm(std::string& text, std::uint8_t byte) { text += "&H" + HexDigits(byte, 2); }

// 0xFC and 0xFD take the byte after them as a parameter, whatever its value.
constexpr bool TakesParameter(std::uint8_t byte) { return byte == 0xFC || byte == 0xFD; }

}  // namespace

std::string DecodeGameText(std::span<const std::uint8_t> bytes, bool japanese) {
  const DecodeTable& table = japanese ? JapaneseDecodeTable() : WesternDecodeTable();
  std::string text;
  text.reserve(bytes.size() * 2);
  bool parameterNext = false;
  for (const std::uint8_t byte : bytes) {
    if (parameterNext) {
      AppendHexForm(text, byte);
      parameterNext = false;
      continue;
    }
    if (const char* form = table[byte]) {
      text += form;
    } else {
      AppendHexForm(text, byte);
    }
    parameterNext = TakesParameter(byte);
  }
  return text;
}

std::string CutDecodedName(std::string_view decoded) {
  // A name is cut one last character at a time while "\x" stands anywhere in it, then once more.
  // The cutting stops with the backslash of the first "\x" as the last character, and the last
  // cut takes it: what remains is the text before the first "\x".
  if (const std::size_t end = decoded.find("\\x"); end != std::string_view::npos) {
    return std::string(decoded.substr(0, end));
  }
  // No terminator in the field: the last character goes all the same, and a character may be
  // several UTF-8 bytes.
  return std::string(decoded.substr(0, LastCharacterStart(decoded)));
}

Bytes EncodeGameText(std::string_view text) {
  const WesternEncodeTable& table = WesternEncode();
  // Longest forms first; the "\h" escape comes between the forms of four characters and those
  // of three.
  const tokenizer::Stage stages[] = {tokenizer::Forms(table.four), tokenizer::kHexEscape,
                                     tokenizer::Forms(table.three), tokenizer::Forms(table.two)};
  return tokenizer::Tokenize(text, {stages, {}, table.one});
}

bool IsHexText(std::string_view text) {
  return std::ranges::all_of(text, [](char c) {
    return HexDigitValue(static_cast<unsigned char>(c)) >= 0;
  });
}

}  // namespace tessarine
