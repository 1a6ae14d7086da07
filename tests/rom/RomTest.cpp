#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <optional>

#include "rom/GbaPointer.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"
#include "support/ByteOracle.h"
#include "support/Failures.h"
#include "support/FixtureRom.h"
#include "support/ReadOnlyFile.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::FailureOf;
using test::FixtureRom;
using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using Ranges = std::vector<test::ByteRange>;

TEST(HexFieldTest, ToHexTextShowsNegativesByTheWidthOfTheValue) {
  const std::pair<std::string, const char*> shown[] = {
      {ToHexText(std::uint8_t{8}), "&H8"},         {ToHexText(std::uint8_t{255}), "&HFF"},
      {ToHexText(std::int16_t{-1}), "&HFFFF"},     {ToHexText(std::int16_t{0x196}), "&H196"},
      {ToHexText(std::int16_t{-32768}), "&H8000"}, {ToHexText(std::int32_t{-134217728}), "&HF8000000"},
      {ToHexText(std::int32_t{-1}), "&HFFFFFFFF"}, {ToHexText(0), "&H0"},
      {ToHexText(0x19A), "&H19A"},                 {ToHexText(5), "&H5"},
  };
  for (const auto& [text, expected] : shown) EXPECT_EQ(text, expected);
}

template <typename Parse>
std::optional<std::int32_t> Attempt(Parse parse, const char* text) {
  std::optional<std::int32_t> value;  // stays empty when the parse fails
  FailureOf([&] { value = parse(text, "Field"); });
  return value;
}

TEST(HexFieldTest, StrictParsesReadOrFailByTheWidthOfTheField) {
  constexpr std::nullopt_t no = std::nullopt;
  const struct {
    const char* text;
    std::optional<std::int32_t> offset, word, byte;  // ParseOffset, ParseWord, ParseByte; nullopt: it fails
  } rows[] = {
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
  for (const auto& row : rows) {
    EXPECT_EQ(Attempt(ParseOffset, row.text), row.offset) << "ParseOffset(\"" << row.text << "\")";
    EXPECT_EQ(Attempt(ParseWord, row.text), row.word) << "ParseWord(\"" << row.text << "\")";
    EXPECT_EQ(Attempt(ParseByte, row.text), row.byte) << "ParseByte(\"" << row.text << "\")";
  }
  EXPECT_THAT(FailureOf([] { ParseWord("&H10000", "Flag"); }),
              AllOf(HasSubstr("Flag"), HasSubstr("\"&H10000\""), HasSubstr("not a word")));
  EXPECT_THAT(FailureOf([] { ParseByte("&H100", "Behaviour"); }), HasSubstr("Behaviour: \"&H100\" is not a byte."));
  EXPECT_THAT(FailureOf([] { ParseOffset("12x", "Offset"); }), HasSubstr("Offset: \"12x\" is not an offset."));
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
  const std::pair<std::int32_t, RomOffset> pairs[] = {
      {0x08160B9B, 0x160B9B}, {0, -0x08000000}, {INT32_MIN + 0x08000000, INT32_MIN}, {INT32_MAX, 0x77FFFFFF}};
  for (const auto& [pointer, offset] : pairs) {
    EXPECT_EQ(ToRomOffset(pointer), offset);
    EXPECT_EQ(ToGbaPointer(offset), pointer);
  }
  EXPECT_EQ(ToHexText(ToRomOffset(0x08160B9B)), "&H160B9B");
  EXPECT_EQ(ToHexText(ToRomOffset(0)), "&HF8000000");  // a null pointer as a person sees it
  for (const std::int32_t pointer : {INT32_MIN, static_cast<std::int32_t>(0x87FFFFFF)}) {
    EXPECT_THAT(FailureOf([&] { ToRomOffset(pointer); }), HasSubstr("does not lead into the ROM"));
  }
  for (const RomOffset offset : {0x78000000, INT32_MAX}) {
    EXPECT_THAT(FailureOf([&] { ToGbaPointer(offset); }), HasSubstr("cannot be a pointer"));
  }
  EXPECT_EQ(OffsetPlus(0x160B2B, 89), 0x160B84);
  EXPECT_THAT(FailureOf([] { OffsetPlus(INT32_MAX, 1); }),
              HasSubstr("The offset &H7FFFFFFF plus 1 goes beyond 32 bits."));
}

TEST(RomImageTest, ReadsRunOnFromTheSharedPosition) {
  FixtureRom fixture = FixtureRom::Sapphire();
  fixture.PutBytes(0x100, test::FromHex("01 2C 00 9B 0B 16 08 FF FF 41 42"));
  RomImage rom;
  rom.Open(fixture.path());
  rom.Seek(0x100);
  const std::vector<std::int32_t> fields = {rom.ReadByte(), rom.ReadWord(), rom.ReadLong(), rom.ReadWord()};
  EXPECT_THAT(fields, ElementsAre(0x01, 0x2C, 0x08160B9B, -1));  // words are signed
  EXPECT_THAT(rom.ReadBytes(2), ElementsAre(0x41, 0x42));
  EXPECT_EQ(rom.Position(), 0x10B);
  EXPECT_EQ(rom.ReadWord(0x101), 0x2C);  // positioned form: seek, read, leave the position behind
  EXPECT_EQ(rom.Position(), 0x103);
  EXPECT_EQ(rom.ReadLong(), 0x08160B9B);
  EXPECT_THAT(rom.ReadBytes(0xAC, 4), ElementsAre('A', 'X', 'P', 'E'));
}

TEST(RomImageTest, EachWriteIsInTheFileBeforeTheCallReturns) {
  FixtureRom fixture = FixtureRom::Ruby();
  const ByteOracle oracle(fixture.path());  // it reads the file through a handle of its own
  RomImage rom;
  rom.Open(fixture.path());
  rom.Seek(0x1000);
  rom.WriteByte(0x12);
  EXPECT_EQ(oracle.Changes(), (Ranges{{0x1000, 1}}));
  rom.WriteWord(-0x1235);
  rom.WriteLong(0x08160B9B);
  EXPECT_EQ(oracle.Changes(), (Ranges{{0x1000, 7}}));
  rom.WriteBytes(0x2000, Bytes{0xAA, 0xBB});
  EXPECT_EQ(oracle.Changes(), (Ranges{{0x1000, 7}, {0x2000, 2}}));
  const Bytes now = oracle.Now();
  EXPECT_EQ(Bytes(now.begin() + 0x1000, now.begin() + 0x1007), test::FromHex("12 CB ED 9B 0B 16 08"));
  EXPECT_EQ(Bytes(now.begin() + 0x2000, now.begin() + 0x2002), test::FromHex("AA BB"));
  EXPECT_EQ(rom.ReadWord(0x1001), -0x1235);  // and the next read of this handle sees it too
}

// Reads past the end give nothing from outside the file, and a write that would run past it is
// refused whole: nothing extends the file.
TEST(RomImageTest, NothingReachesPastTheEndOfTheFile) {
  FixtureRom fixture("AXVE", 0x200);
  fixture.PutBytes(0x1FE, {0x34, 0x12});
  const ByteOracle oracle(fixture.path());
  RomImage rom;
  rom.Open(fixture.path());
  EXPECT_THAT(rom.ReadBytes(0x1FE, 4), ElementsAre(0x34, 0x12));  // only the two that are there
  EXPECT_EQ(rom.Position(), 0x202);
  EXPECT_EQ(rom.ReadLong(0x1FE), 0x1234);  // missing bytes count as 0
  EXPECT_EQ(rom.ReadByte(0x200), 0);
  EXPECT_THAT(rom.ReadBytes(0x7FFFFFFF, 32), IsEmpty());
  EXPECT_EQ(rom.Length(), 0x200);
  for (const RomOffset at : {0x1FF, 0x200, 0x7FFFFFF0}) {
    EXPECT_THAT(FailureOf([&] { rom.WriteWord(at, 0x0201); }), HasSubstr("past the end")) << at;
  }
  EXPECT_THAT(oracle.Changes(), IsEmpty());
  rom.WriteWord(0x1FE, 0x0201);  // the last two bytes
  EXPECT_EQ(oracle.Changes(), (Ranges{{0x1FE, 2}}));
}

// Lengths and positions have 64 bits on every system (a long has 32 on Windows). The file is
// sparse: it takes a few blocks of the disk, not 4 GiB.
TEST(RomImageTest, AFileOfMoreThanFourGibibytesIsMeasuredAndWrittenPastTwo) {
  const std::filesystem::path big = test::TemporaryPath("big.gba");
  std::ofstream(big, std::ios::binary).put(0);
  std::error_code error;
  std::filesystem::resize_file(big, 0x1'0000'0010, error);
  if (!error) {
    RomImage rom;
    rom.Open(ToPathText(big));
    EXPECT_EQ(rom.Length(), 0x1'0000'0010);
    EXPECT_TRUE(rom.Holds(0xFFFF'FFFF, 0x11));
    EXPECT_FALSE(rom.Holds(0xFFFF'FFFF, 0x12));
    rom.ReadByte(INT32_MAX);  // the position runs on to 2 GiB
    rom.WriteLong(0x12345678);
    EXPECT_EQ(rom.ReadLong(INT32_MAX), 0x34567800);  // 00 at 2 GiB, then the long
  }
  std::filesystem::remove(big);
  if (error) GTEST_SKIP() << "the file system here holds no file of 4 GiB: " << error.message();
}

TEST(RomImageTest, FailuresSaySoAndChangeNothing) {
  FixtureRom fixture = FixtureRom::FireRed();
  const std::string path = fixture.path();
  const ByteOracle oracle(path);
  RomImage rom;
  for (const auto& action : std::vector<std::function<void()>>{
           [&] { rom.ReadByte(); }, [&] { rom.WriteWord(0x10, 1); }, [&] { rom.Length(); }}) {
    EXPECT_THAT(FailureOf(action), HasSubstr("No ROM is open"));
  }
  EXPECT_THAT(FailureOf([&] { rom.Open(path + ".missing"); }), HasSubstr(".missing"));
  EXPECT_FALSE(rom.IsOpen());
  rom.Open(path);
  EXPECT_THAT(FailureOf([&] { rom.Seek(ToRomOffset(0) + 0x10); }), HasSubstr("&HF8000010"));
  EXPECT_THAT(FailureOf([&] { rom.Seek(-1); }), HasSubstr("before the start"));
  rom.Close();
  rom.Close();  // twice is harmless
  EXPECT_FALSE(rom.IsOpen());
  EXPECT_THAT(FailureOf([&] { rom.WriteByte(0x10, 1); }), HasSubstr("No ROM is open"));
  EXPECT_THAT(oracle.Changes(), IsEmpty());
}

TEST(RomImageTest, AWriteTheSystemRefusesIsAFailure) {
#ifdef _WIN32
  GTEST_SKIP() << "Windows has no device that refuses every write, as /dev/full does";
#endif
  RomImage full;
  full.Open("/dev/full");  // every write to it fails: no space left on the device
  EXPECT_THAT(FailureOf([&] { full.WriteLong(0, 0x08000000); }),
              AllOf(HasSubstr("refused"), HasSubstr("No space left")));
}

TEST(RomImageTest, AFileThatCannotBeWrittenOpensReadOnlyAndRefusesWrites) {
  FixtureRom fixture = FixtureRom::LeafGreen();
  const ByteOracle oracle(fixture.path());
  const test::ReadOnlyFile guard(fixture.path());
  if (!guard.works()) GTEST_SKIP() << "this machine lets the tests write to any file";
  RomImage rom;
  rom.Open(fixture.path());
  EXPECT_TRUE(rom.IsReadOnly());
  EXPECT_THAT(rom.ReadBytes(0xAC, 4), ElementsAre('B', 'P', 'G', 'E'));
  EXPECT_THAT(FailureOf([&] { rom.WriteWord(0x1000, 0x1234); }), AllOf(HasSubstr("read-only"), HasSubstr("&H1000")));
  EXPECT_THAT(oracle.Changes(), IsEmpty());
}

}  // namespace
}  // namespace tessarine
