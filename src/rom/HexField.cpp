#include "rom/HexField.h"

#include <optional>

#include "rom/Failure.h"

namespace tessarine {
namespace {

bool IsBlank(char c) { return c == ' '; }

bool IsHexPrefix(std::string_view s) {
  return s.size() >= 2 && s[0] == '&' && (s[1] == 'H' || s[1] == 'h');
}

// A run of hexadecimal digits, read as far as it goes.
struct HexRun {
  std::uint32_t value = 0;  // the low 32 bits of the digits
  int significant = 0;      // digits after the leading zeros
  std::size_t length = 0;   // characters taken
};

HexRun ReadHexRun(std::string_view s) {
  HexRun run;
  for (; run.length < s.size(); ++run.length) {
    const int digit = HexDigitValue(static_cast<unsigned char>(s[run.length]));
    if (digit < 0) break;
    if (run.significant > 0 || digit != 0) ++run.significant;
    run.value = (run.value << 4) | static_cast<std::uint32_t>(digit);
  }
  return run;
}

// A run of decimal digits with an optional sign, as far as it goes. The value is held
// wide enough that every number beyond 32 bits is seen as such.
struct DecimalRun {
  std::int64_t value = 0;
  bool hasDigits = false;
  bool beyond32Bits = false;
  std::size_t length = 0;
};

DecimalRun ReadDecimalRun(std::string_view s) {
  DecimalRun run;
  bool negative = false;
  if (!s.empty() && (s[0] == '+' || s[0] == '-')) {
    negative = s[0] == '-';
    run.length = 1;
  }
  std::int64_t magnitude = 0;
  while (run.length < s.size() && s[run.length] >= '0' && s[run.length] <= '9') {
    run.hasDigits = true;
    if (magnitude <= (std::int64_t{1} << 32)) magnitude = magnitude * 10 + (s[run.length] - '0');
    ++run.length;
  }
  run.value = negative ? -magnitude : magnitude;
  run.beyond32Bits = run.value < INT32_MIN || run.value > INT32_MAX;
  return run;
}

std::string_view TrimBlanks(std::string_view s) {
  while (!s.empty() && IsBlank(s.front())) s.remove_prefix(1);
  while (!s.empty() && IsBlank(s.back())) s.remove_suffix(1);
  return s;
}

// The width rules of the strict parses, in bits: a hexadecimal text of one to four
// significant digits is read as a pattern of `shortPattern` bits, one of five to eight
// as a 32-bit pattern. The result is then tested against [low, high].
struct Width {
  const char* noun;
  const char* hint;
  int shortPattern;
  std::int64_t low;
  std::int64_t high;
};

constexpr Width kOffsetWidth{
    "an offset", "Type &H and up to 8 hexadecimal digits, or a whole number from -2147483648 to 2147483647.",
    32, INT32_MIN, INT32_MAX};
constexpr Width kWordWidth{"a word", "Type a number from &H0 to &HFFFF, or from -32768 to 32767.", 16,
                           INT16_MIN, INT16_MAX};
constexpr Width kByteWidth{"a byte", "Type a number from &H0 to &HFF, or from 0 to 255.", 16, 0, 255};

std::optional<std::int64_t> ParseStrict(std::string_view text, const Width& width) {
  const std::string_view s = TrimBlanks(text);
  if (IsHexPrefix(s)) {
    const HexRun run = ReadHexRun(s.substr(2));
    if (run.length == 0 || run.length != s.size() - 2 || run.significant > 8) return std::nullopt;
    std::int64_t value;
    if (run.significant <= 4 && width.shortPattern == 16) {
      value = static_cast<std::int16_t>(static_cast<std::uint16_t>(run.value));
    } else {
      value = static_cast<std::int32_t>(run.value);
    }
    if (value < width.low || value > width.high) return std::nullopt;
    return value;
  }
  const DecimalRun run = ReadDecimalRun(s);
  if (!run.hasDigits || run.length != s.size() || run.beyond32Bits) return std::nullopt;
  if (run.value < width.low || run.value > width.high) return std::nullopt;
  return run.value;
}

std::int64_t ParseOrFail(std::string_view text, std::string_view field, const Width& width) {
  if (const auto value = ParseStrict(text, width)) return *value;
  std::string sentence;
  if (!field.empty()) sentence = std::string(field) + ": ";
  sentence += "\"" + std::string(text) + "\" is not " + width.noun + ". " + width.hint;
  throw Failure(sentence);
}

}  // namespace

std::string_view WriteHexDigits(std::uint32_t value, HexDigitBuffer& buffer, int minDigits) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  std::size_t first = buffer.size();
  do {
    buffer[--first] = kDigits[value & 0xF];
    value >>= 4;
  } while (first > 0 && (value != 0 || static_cast<int>(buffer.size() - first) < minDigits));
  return std::string_view(buffer.data() + first, buffer.size() - first);
}

std::string HexDigits(std::uint32_t value, int minDigits) {
  HexDigitBuffer buffer;
  return std::string(WriteHexDigits(value, buffer, minDigits));
}

std::string ToHexText(std::uint8_t byte) { return "&H" + HexDigits(byte); }
std::string ToHexText(std::int16_t word) { return "&H" + HexDigits(static_cast<std::uint16_t>(word)); }
std::string ToHexText(std::int32_t value) { return "&H" + HexDigits(static_cast<std::uint32_t>(value)); }

std::string PlaceText(std::int64_t place) {
  return place >= 0 && place <= INT32_MAX ? ToHexText(static_cast<std::int32_t>(place)) : std::to_string(place);
}

std::int32_t ParseOffset(std::string_view text, std::string_view field) {
  return static_cast<std::int32_t>(ParseOrFail(text, field, kOffsetWidth));
}

std::int16_t ParseWord(std::string_view text, std::string_view field) {
  return static_cast<std::int16_t>(ParseOrFail(text, field, kWordWidth));
}

std::uint8_t ParseByte(std::string_view text, std::string_view field) {
  return static_cast<std::uint8_t>(ParseOrFail(text, field, kByteWidth));
}

std::int32_t ParseLenient(std::string_view text) {
  std::string_view s = text;
  while (!s.empty() && IsBlank(s.front())) s.remove_prefix(1);
  if (IsHexPrefix(s)) {
    const HexRun run = ReadHexRun(s.substr(2));
    return run.significant <= 8 ? static_cast<std::int32_t>(run.value) : 0;
  }
  const DecimalRun run = ReadDecimalRun(s);
  return run.beyond32Bits ? 0 : static_cast<std::int32_t>(run.value);
}

}  // namespace tessarine
