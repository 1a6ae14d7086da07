#include "rom/HexField.h"

#include <gtest/gtest.h>

#include <optional>

#include "rom/Failure.h"

namespace tessarine {
namespace {

TEST(HexFieldTest, ToHexTextShowsNegativesByTheWidthOfTheValue) {
  EXPECT_EQ(ToHexText(std::uint8_t{8}), "&H8");
  EXPECT_EQ(ToHexText(std::uint8_t{255}), "&HFF");
  EXPECT_EQ(ToHexText(std::int16_t{-1}), "&HFFFF");
  EXPECT_EQ(ToHexText(std::int16_t{0x196}), "&H196");
  EXPECT_EQ(ToHexText(std::int16_t{-32768}), "&H8000");
  EXPECT_EQ(ToHexText(std::int32_t{-134217728}), "&HF8000000");
  EXPECT_EQ(ToHexText(std::int32_t{-1}), "&HFFFFFFFF");
  EXPECT_EQ(ToHexText(0), "&H0");
  EXPECT_EQ(ToHexText(0x19A), "&H19A");
  EXPECT_EQ(ToHexText(5), "&H5");
}

template <typename Parse>
std::optional<std::int32_t> Attempt(Parse parse, const char* text) {
  try {
    return static_cast<std::int32_t>(parse(text, "Field"));
  } catch (const Failure&) {
    return std::nullopt;
  }
}

TEST(HexFieldTest, StrictParsesReadOrFailByTheWidthOfTheField) {
  constexpr std::nullopt_t no = std::nullopt;
  struct Row {
    const char* text;
    std::optional<std::int32_t> offset, word, byte;  // nullopt: the parse fails
  };
  const Row rows[] = {
      // text                     ParseOffset    ParseWord  ParseByte
      {"&H28", 40, 40, 40},
      {"40", 40, 40, 40},
      {"31", 31, 31, 31},
      {"&HFF", 255, 255, 255},
      {"&hff", 255, 255, 255},
      {"&H100", 256, 256, no},
      {"&HFFFF", 65535, -1, no},
      {"&H8000", 32768, -32768, no},
      {"&H10000", 65536, no, no},
      {"&HF8000000", -134217728, no, no},
      {"&HFFFFFFFF", -1, -1, no},
      {"&HFFFF8000", -32768, -32768, no},
      {"&H0000001F", 31, 31, 31},  // leading zeros are not significant
      {"&H000000000001", 1, 1, 1},
      {"&H100000000", no, no, no},  // nine significant digits
      {"  &H1F  ", 31, 31, 31},
      {"\t7", no, no, no},  // a blank is a space, nothing else
      {"+5", 5, 5, 5},
      {"-1", -1, -1, no},
      {"-32768", -32768, -32768, no},
      {"32768", 32768, no, no},
      {"2147483647", 2147483647, no, no},
      {"-2147483648", INT32_MIN, no, no},
      {"2147483648", no, no, no},
      {"99999999999999999999", no, no, no},
      {"&H0", 0, 0, 0},
      {"", no, no, no},
      {"   ", no, no, no},
      {"&H", no, no, no},
      {"abc", no, no, no},
      {"12x", no, no, no},
      {"&HXYZ", no, no, no},
      {"0x10", no, no, no},
      {"1.5", no, no, no},
      {"1e3", no, no, no},
      {"&O17", no, no, no},
      {"&H1 2", no, no, no},
      {"-", no, no, no},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Attempt(ParseOffset, row.text), row.offset) << "ParseOffset(\"" << row.text << "\")";
    EXPECT_EQ(Attempt(ParseWord, row.text), row.word) << "ParseWord(\"" << row.text << "\")";
    EXPECT_EQ(Attempt(ParseByte, row.text), row.byte) << "ParseByte(\"" << row.text << "\")";
  }
}

TEST(HexFieldTest, ParseLenientReadsTheLongestNumberAtTheStart) {
  const std::pair<const char*, std::int32_t> cases[] = {
      {"&H", 0},          {"&H115", 277},        {"&HF8000000", -134217728}, {"&HFFFF", 65535},
      {"&h1fzz", 31},     {"&H123456789", 0},    {"&H000000001", 1},         {"12x", 12},
      {"-3", -3},         {"abc", 0},            {"", 0},                    {"  42 apples", 42},
      {"+", 0},           {"2147483648", 0},     {"-2147483648", INT32_MIN}, {"0x10", 0},
      {"&O17", 0},        {"&HG", 0},
  };
  for (const auto& [text, expected] : cases) EXPECT_EQ(ParseLenient(text), expected) << text;
}

TEST(HexFieldTest, AFailedParseNamesTheFieldAndTheText) {
  try {
    ParseWord("&H10000", "Flag");
    FAIL() << "expected a failure";
  } catch (const Failure& failure) {
    const std::string sentence = failure.what();
    EXPECT_NE(sentence.find("Flag"), std::string::npos) << sentence;
    EXPECT_NE(sentence.find("\"&H10000\""), std::string::npos) << sentence;
    EXPECT_NE(sentence.find("not a word"), std::string::npos) << sentence;
  }
}

TEST(HexFieldTest, AWordRoundTripsThroughItsText) {
  for (int value = INT16_MIN; value <= INT16_MAX; value += 97) {
    const auto word = static_cast<std::int16_t>(value);
    EXPECT_EQ(ParseWord(ToHexText(word)), word);
  }
  EXPECT_EQ(ParseWord(ToHexText(std::int16_t{-1})), -1);
}

}  // namespace
}  // namespace tessarine
