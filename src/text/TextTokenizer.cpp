#include "text/TextTokenizer.h"

#include <string>

#include "rom/HexField.h"

namespace tessarine::tokenizer {
namespace {

struct Match {
  std::uint8_t byte = 0;
  std::size_t length = 0;  // characters taken; 0 when nothing matched
};

// Forms are ASCII, so each of their chars is compared with one whole character of the text.
// The caller has made sure that enough characters remain.
bool StartsWith(std::u32string_view rest, std::string_view form) {
  for (std::size_t i = 0; i < form.size(); ++i) {
    if (rest[i] != static_cast<unsigned char>(form[i])) return false;
  }
  return true;
}

Match MatchStage(std::u32string_view rest, const Stage& stage) {
  if (rest.size() < stage.length) return {};
  switch (stage.kind) {
    case Stage::Kind::kForms:
      for (const Token& token : stage.forms) {
        if (StartsWith(rest, token.form)) return Match{token.byte, stage.length};
      }
      return {};
    case Stage::Kind::kHexEscape: {
      // Only the lower-case "h" escapes; "\H" is three ordinary characters after a backslash.
      if (rest[0] != U'\\' || rest[1] != U'h') return {};
      const int high = HexDigitValue(rest[2]);
      const int low = HexDigitValue(rest[3]);
      if (high < 0 || low < 0) return {};
      return Match{static_cast<std::uint8_t>(high * 16 + low), 4};
    }
  }
  return {};
}

std::uint8_t SingleByte(char32_t c, const TokenSet& tokens) {
  for (const Single& single : tokens.overrides) {
    if (single.character == c) return single.byte;
  }
  const auto found = std::ranges::lower_bound(tokens.singles, c, {}, &Single::character);
  if (found != tokens.singles.end() && found->character == c) return found->byte;
  return 0x00;  // no form: the blank's byte
}

}  // namespace

Bytes Tokenize(std::string_view text, const TokenSet& tokens) {
  const std::u32string characters = DecodeUtf8(text);
  const std::u32string_view all = characters;
  Bytes bytes;
  bytes.reserve(characters.size());
  for (std::size_t at = 0; at < all.size();) {
    const std::u32string_view rest = all.substr(at);
    Match match;
    for (const Stage& stage : tokens.stages) {
      match = MatchStage(rest, stage);
      if (match.length > 0) break;
    }
    if (match.length == 0) match = {SingleByte(rest.front(), tokens), 1};
    bytes.push_back(match.byte);
    at += match.length;
  }
  return bytes;
}

}  // namespace tessarine::tokenizer
