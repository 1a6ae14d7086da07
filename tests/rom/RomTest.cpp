#include <optional>

#include "rom/FilePath.h"
#include "rom/GbaPointer.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"
#include "support/Tests.h"

namespace tessarine {
namespace {

template <typename Parse>
std::optional<std::int32_t> Attempt(Parse parse, const char* text) {
  std::optional<std::int32_t> value;  // stays empty when the parse fails
  FailureOf([&] { value = parse(text, "Field"); });
  return value;
}

TEST(HexFieldTest, StrictParsesReadOrFailByTheWidthOfTheField) {
  constexpr std::nullopt_t no = std::nullopt;
  using Parsed = std::optional<std::int32_t>;  // nullopt: the parse fails
  const std::tuple<const char*, Parsed, Parsed, Parsed> rows[] = {  // text; ParseOffset, ParseWord, ParseByte
      {"&H28", 40, 40, 40}, {"40", 40, 40, 40}, {"31", 31, 31, 31}, {"&HFF", 255, 255, 255}, {"&hff", 255, 255, 255},
      {"&H100", 256, 256, no}, {"&HFFFF", 65535, -1, no}, {"&H8000", 32768, -32768, no}, {"&H10000", 65536, no, no},
      {"&HF8000000", -134217728, no, no}, {"&HFFFFFFFF", -1, -1, no}, {"&HFFFF8000", -32768, -32768, no},
      {"&H0000001F", 31, 31, 31}, {"&H000000000001", 1, 1, 1},  // leading zeros are not significant
      {"&H100000000", no, no, no},                               // nine significant digits
      {"  &H1F  ", 31, 31, 31}, {"\t7", no, no, no},             // a blank is a space, nothing else
      {"+5", 5, 5, 5}, {"-1", -1, -1, no}, {"-32768", -32768, -32768, no}, {"32768", 32768, no, no},
      {"2147483647", 2147483647, no, no}, {"-2147483648", INT32_MIN, no, no}, {"2147483648", no, no, no},
      {"99999999999999999999", no, no, no}, {"&H0", 0, 0, 0}, {"", no, no, no}, {"   ", no, no, no},
      {"&H", no, no, no}, {"abc", no, no, no}, {"12x", no, no, no}, {"&HXYZ", no, no, no}, {"0x10", no, no, no},
      {"1.5", no, no, no}, {"1e3", no, no, no}, {"&O17", no, no, no}, {"&H1 2", no, no, no}, {"-", no, no, no},
  };
  for (const auto& [text, offset, word, byte] : rows) {
    EXPECT_EQ(Attempt(ParseOffset, text), offset) << "ParseOffset(\"" << text << "\")";
    EXPECT_EQ(Attempt(ParseWord, text), word) << "ParseWord(\"" << text << "\")";
    EXPECT_EQ(Attempt(ParseByte, text), byte) << "ParseByte(\"" << text << "\")";
  }
  EXPECT_THAT(FailureOf([] { ParseWord("&H10000", "Flag"); }),
              AllOf(HasSubstr("Flag"), HasSubstr("\"&H10000\""), HasSubstr("not a word")));
}

TEST(HexFieldTest, ParseLenientReadsTheLongestNumberAtTheStart) {
  const std::pair<const char*, std::int32_t> cases[] = {
      {"&H", 0},  {"&H115", 277}, {"&HF8000000", -134217728}, {"&HFFFF", 65535}, {"&h1fzz", 31}, {"&H123456789", 0},
      {"&H000000001", 1}, {"12x", 12}, {"-3", -3}, {"abc", 0}, {"", 0}, {"  42 apples", 42}, {"+", 0},
      {"2147483648", 0}, {"-2147483648", INT32_MIN}, {"0x10", 0}, {"&O17", 0}, {"&HG", 0},
  };
  for (const auto& [text, expected] : cases) EXPECT_EQ(ParseLenient(text), expected) << text;
}

TEST(GbaPointerTest, ConvertsBetweenPointerAndOffsetWithin32Bits) {
  for (const auto& [pointer, offset] : {std::pair<std::int32_t, RomOffset>{0x08160B9B, 0x160B9B}, {0, -0x08000000},
                                        {INT32_MIN + 0x08000000, INT32_MIN}, {INT32_MAX, 0x77FFFFFF}}) {
    EXPECT_EQ(ToRomOffset(pointer), offset);
    EXPECT_EQ(ToGbaPointer(offset), pointer);
  }
  EXPECT_EQ(ToHexText(ToRomOffset(0)), "&HF8000000");  // a null pointer as a person sees it
  for (const std::int32_t pointer : {INT32_MIN, static_cast<std::int32_t>(0x87FFFFFF)}) {
    EXPECT_THAT(FailureOf([&] { ToRomOffset(pointer); }), HasSubstr("does not lead into the ROM"));
  }
  for (const RomOffset offset : {0x78000000, INT32_MAX}) {
    EXPECT_THAT(FailureOf([&] { ToGbaPointer(offset); }), HasSubstr("cannot be a pointer"));
  }
  EXPECT_EQ(OffsetPlus(0x160B2B, 89), 0x160B84);
  EXPECT_EQ(FailureOf([] { OffsetPlus(INT32_MAX, 1); }), "The offset &H7FFFFFFF plus 1 goes beyond 32 bits.");
}

// A ROM path is UTF-8 text with '/' between names, as the file dialog gives it. The folder
// is read back in UTF-16, apart from our own conversions: a name made in the ANSI code page
// on Windows shows there as the wrong letters. (The walk of user roads writes in such a folder.)
TEST(FilePathTest, ARomUnderANameOutsideAsciiOpensUnderThatName) {
  test::FixtureRom fixture("AXPE", 0x200);
  const std::filesystem::path root = test::TemporaryPath("names");
  const std::string folder = ToPathText(root) + "/Pokémon Ærø  two blanks", path = folder + "/ポケモン ß é.GBA";
  std::filesystem::create_directories(ToFilePath(folder));
  std::filesystem::copy_file(ToFilePath(fixture.path()), ToFilePath(path));
  EXPECT_EQ(std::filesystem::directory_iterator(ToFilePath(folder))->path().filename().u16string(), u"ポケモン ß é.GBA");

  RomImage rom;
  rom.Open(path);
  EXPECT_EQ(std::tuple(rom.IsReadOnly(), rom.romPath(), rom.ReadLong(0xAC)), std::tuple(false, path, 0x45505841));
  rom.Close();
  std::filesystem::remove_all(root);
}

}  // namespace
}  // namespace tessarine
