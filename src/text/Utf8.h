#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Reading the UTF-8 that text arrives in, one character (code point) at a time.
//
// Text from the windows is always well-formed, but the codecs accept any std::string, so
// malformed input must still read as something: each byte that begins no well-formed sequence
// is one character of its own, kUndecodable, and reading goes on at the next byte.
namespace tessarine {

// Lies outside Unicode, so no form of any table is ever equal to it.
inline constexpr char32_t kUndecodable = 0x110000;

struct Utf8Character {
  char32_t code;
  std::size_t length;  // bytes taken, 1 to 4
};

// The character that starts at text[at], where at < text.size(). Overlong forms, surrogates,
// values past U+10FFFF, stray continuation bytes and sequences cut short by the end of the text
// are not well-formed.
constexpr Utf8Character ReadUtf8Character(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[at + i]); };
  const unsigned char lead = byte(0);
  if (lead < 0x80) return {lead, 1};

  std::size_t length = 0;
  char32_t code = 0;
  // The range of the first continuation byte; it is narrower after a few leads, which is what
  // rules out overlong forms, surrogates and values past U+10FFFF.
  unsigned char low = 0x80;
  unsigned char high = 0xBF;
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
    code = lead & 0x1F;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    code = lead & 0x0F;
    if (lead == 0xE0) low = 0xA0;
    if (lead == 0xED) high = 0x9F;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    code = lead & 0x07;
    if (lead == 0xF0) low = 0x90;
    if (lead == 0xF4) high = 0x8F;
  } else {
    return {kUndecodable, 1};
  }
  if (text.size() - at < length) return {kUndecodable, 1};
  for (std::size_t i = 1; i < length; ++i) {
    const unsigned char next = byte(i);
    if (next < low || next > high) return {kUndecodable, 1};
    code = (code << 6) | (next & 0x3F);
    low = 0x80;
    high = 0xBF;
  }
  return {code, length};
}

// Every character of the text, in order.
constexpr std::u32string DecodeUtf8(std::string_view text) {
  std::u32string characters;
  characters.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Utf8Character c = ReadUtf8Character(text, at);
    characters.push_back(c.code);
    at += c.length;
  }
  return characters;
}

// Where the last character of the text begins; 0 for the empty text.
constexpr std::size_t LastCharacterStart(std::string_view text) {
  std::size_t start = 0;
  for (std::size_t at = 0; at < text.size(); at += ReadUtf8Character(text, at).length) start = at;
  return start;
}

}  // namespace tessarine
