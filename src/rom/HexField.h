#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tessarine {

// Every number a person sees or types is text: "&H" and hexadecimal digits, or a
// decimal number. These five conversions are the only way numbers cross that line.
//
// ToHexText: "&H" and upper-case digits, no padding. The width of the value decides how
// a negative number shows: a word as four digits, a long as eight, two's complement.
// List rows, tile numbers and other counts are longs.
std::string ToHexText(std::uint8_t byte);
std::string ToHexText(std::int16_t word);
std::string ToHexText(std::int32_t value);
template <typename T>
std::string ToHexText(T) = delete;  // no silent widening from other integer types
// A place in a file or a length, as sentences give it: ToHexText where a RomOffset holds it,
// in decimal where none does (below 0, or past &H7FFFFFFF in a file that long).
std::string PlaceText(std::int64_t place);

// The one reader and the one writer of hexadecimal digits.
//
// The value of a hexadecimal digit, either case; -1 for any other character.
constexpr int HexDigitValue(char32_t c) {
  if (c >= U'0' && c <= U'9') return static_cast<int>(c - U'0');
  if (c >= U'A' && c <= U'F') return static_cast<int>(c - U'A') + 10;
  if (c >= U'a' && c <= U'f') return static_cast<int>(c - U'a') + 10;
  return -1;
}

// Room for the digits of any 32-bit value.
using HexDigitBuffer = std::array<char, 8>;

// Upper-case hexadecimal digits with no prefix, padded with zeros to `minDigits` (at most 8),
// written into the end of `buffer`: WriteHexDigits(0x1A, buffer, 3) is "01A". For long texts
// built a piece at a time, with nothing allocated.
std::string_view WriteHexDigits(std::uint32_t value, HexDigitBuffer& buffer, int minDigits = 1);

// The same digits as a string. The digits of ToHexText are HexDigits(value).
std::string HexDigits(std::uint32_t value, int minDigits = 1);

// Strict parses. Each throws Failure for a text that is no number or a number out of
// range; `field` names the field in the sentence ("Flag", "Offset").
std::int32_t ParseOffset(std::string_view text, std::string_view field = {});
std::int16_t ParseWord(std::string_view text, std::string_view field = {});
std::uint8_t ParseByte(std::string_view text, std::string_view field = {});

// Never fails: the longest number at the start of the text, 0 where there is none.
std::int32_t ParseLenient(std::string_view text);

}  // namespace tessarine
