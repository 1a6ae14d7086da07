#include "rom/RomImage.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>

#include "rom/Failure.h"
#include "rom/FilePath.h"
#include "support/ByteOracle.h"
#include "support/Failures.h"
#include "support/FixtureRom.h"
#include "support/ReadOnlyFile.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::ByteRange;
using test::FixtureRom;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

using test::FailureOf;

TEST(RomImageTest, ReadsRunOnFromTheSharedPosition) {
  FixtureRom fixture = FixtureRom::Sapphire();
  fixture.PutBytes(0x100, {0x01, 0x2C, 0x00, 0x9B, 0x0B, 0x16, 0x08, 0xFF, 0xFF, 0x41, 0x42});
  RomImage rom;
  rom.Open(fixture.path());

  rom.Seek(0x100);
  EXPECT_EQ(rom.ReadByte(), 0x01);
  EXPECT_EQ(rom.ReadWord(), 0x2C);
  EXPECT_EQ(rom.ReadLong(), 0x08160B9B);
  EXPECT_EQ(rom.ReadWord(), -1);  // words are signed
  EXPECT_THAT(rom.ReadBytes(2), ElementsAre(0x41, 0x42));
  EXPECT_EQ(rom.Position(), 0x10B);

  EXPECT_EQ(rom.ReadWord(0x101), 0x2C);  // positioned form: seek, read, leave the position behind
  EXPECT_EQ(rom.Position(), 0x103);
  EXPECT_EQ(rom.ReadLong(), 0x08160B9B);
  EXPECT_THAT(rom.ReadBytes(0xAC, 4), ElementsAre('A', 'X', 'P', 'E'));
}

TEST(RomImageTest, EachWriteIsInTheFileBeforeTheCallReturns) {
  FixtureRom fixture = FixtureRom::Ruby();
  const std::string path = fixture.path();
  const ByteOracle oracle(path);
  RomImage rom;
  rom.Open(path);
  std::ifstream other(ToFilePath(path), std::ios::binary);  // a second handle on the same file
  const auto peek = [&](std::size_t offset, std::size_t count) {
    Bytes bytes(count);
    other.clear();
    other.seekg(static_cast<std::streamoff>(offset));
    other.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(count));
    return bytes;
  };

  rom.Seek(0x1000);
  rom.WriteByte(0x12);
  EXPECT_THAT(peek(0x1000, 1), ElementsAre(0x12));
  rom.WriteWord(-0x1235);
  EXPECT_THAT(peek(0x1001, 2), ElementsAre(0xCB, 0xED));
  rom.WriteLong(0x08160B9B);
  EXPECT_THAT(peek(0x1003, 4), ElementsAre(0x9B, 0x0B, 0x16, 0x08));
  rom.WriteBytes(0x2000, Bytes{0xAA, 0xBB});
  EXPECT_THAT(peek(0x2000, 2), ElementsAre(0xAA, 0xBB));
  EXPECT_EQ(rom.ReadWord(0x1001), -0x1235);  // and the next read of this handle sees it too

  EXPECT_EQ(oracle.Changes(), (std::vector<ByteRange>{{0x1000, 7}, {0x2000, 2}}));
}

TEST(RomImageTest, ReadsAtAndPastTheEndGiveNothingFromOutsideTheFile) {
  FixtureRom fixture("AXVE", 0x200);
  fixture.PutBytes(0x1FE, {0x34, 0x12});
  const std::string path = fixture.path();
  RomImage rom;
  rom.Open(path);

  EXPECT_THAT(rom.ReadBytes(0x1FE, 4), ElementsAre(0x34, 0x12));  // only the two that are there
  EXPECT_EQ(rom.Position(), 0x202);
  EXPECT_EQ(rom.ReadLong(0x1FE), 0x1234);  // missing bytes count as 0
  EXPECT_EQ(rom.ReadByte(0x200), 0);
  EXPECT_THAT(rom.ReadBytes(0x7FFFFFFF, 32), IsEmpty());
  EXPECT_EQ(rom.Length(), 0x200);
  EXPECT_EQ(std::filesystem::file_size(path), 0x200u);  // never extended by a read
}

TEST(RomImageTest, AWriteThatWouldRunPastTheEndIsRefusedWhole) {
  FixtureRom fixture("AXVE", 0x200);
  const std::string path = fixture.path();
  const ByteOracle oracle(path);
  RomImage rom;
  rom.Open(path);
  for (const RomOffset at : {0x1FF, 0x200, 0x7FFFFFF0}) {
    EXPECT_THAT(FailureOf([&] { rom.WriteWord(at, 0x0201); }), HasSubstr("past the end")) << at;
  }
  EXPECT_THAT(oracle.Changes(), IsEmpty());
  rom.WriteWord(0x1FE, 0x0201);  // the last two bytes
  EXPECT_EQ(oracle.Changes(), (std::vector<ByteRange>{{0x1FE, 2}}));
}

TEST(RomImageTest, FailuresSaySoAndChangeNothing) {
  FixtureRom fixture = FixtureRom::FireRed();
  const std::string path = fixture.path();
  const ByteOracle oracle(path);
  RomImage rom;

  EXPECT_THAT(FailureOf([&] { rom.ReadByte(); }), HasSubstr("No ROM is open"));
  EXPECT_THAT(FailureOf([&] { rom.WriteWord(0x10, 1); }), HasSubstr("No ROM is open"));
  EXPECT_THAT(FailureOf([&] { rom.Length(); }), HasSubstr("No ROM is open"));
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

TEST(RomImageTest, AFileThatCannotBeWrittenOpensReadOnlyAndRefusesWrites) {
  FixtureRom fixture = FixtureRom::LeafGreen();
  const std::string path = fixture.path();
  const ByteOracle oracle(path);
  const test::ReadOnlyFile guard(path);
  if (!guard.works()) GTEST_SKIP() << "this machine lets the tests write to any file";

  RomImage rom;
  rom.Open(path);
  EXPECT_TRUE(rom.IsReadOnly());
  EXPECT_THAT(rom.ReadBytes(0xAC, 4), ElementsAre('B', 'P', 'G', 'E'));
  const std::string sentence = FailureOf([&] { rom.WriteWord(0x1000, 0x1234); });
  EXPECT_THAT(sentence, HasSubstr("read-only"));
  EXPECT_THAT(sentence, HasSubstr("&H1000"));
  EXPECT_THAT(oracle.Changes(), IsEmpty());
}

// Lengths and positions have 64 bits on every system (a long has 32 on Windows). The file
// is sparse: it takes a few blocks of the disk, not 4 GiB.
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
    std::ifstream other(big, std::ios::binary);
    Bytes bytes(6);
    other.seekg(INT32_MAX).read(reinterpret_cast<char*>(bytes.data()), 6);
    EXPECT_THAT(bytes, ElementsAre(0, 0x78, 0x56, 0x34, 0x12, 0));
  }
  std::filesystem::remove(big);
  if (error) GTEST_SKIP() << "the file system here holds no file of 4 GiB: " << error.message();
}

TEST(RomImageTest, AWriteTheSystemRefusesIsAFailure) {
#ifdef _WIN32
  GTEST_SKIP() << "Windows has no device that refuses every write, as /dev/full does";
#endif
  RomImage rom;
  rom.Open("/dev/full");  // every write to it fails: no space left on the device
  const std::string sentence = FailureOf([&] { rom.WriteLong(0, 0x08000000); });
  EXPECT_THAT(sentence, HasSubstr("refused"));
  EXPECT_THAT(sentence, HasSubstr("No space left"));
}

}  // namespace
}  // namespace tessarine
