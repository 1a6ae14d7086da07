#include "flyland/FlyRecords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rom/RomImage.h"
#include "support/ByteOracle.h"
#include "support/Failures.h"
#include "support/FixtureRom.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::ByteRange;
using test::FailureOf;
using test::FixtureRom;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

// Each game's record at its own place: bank at +2, level at +3, X at +4, Y at +6. The
// records beside it hold other bytes, so a record taken from the wrong place shows.
TEST(FlyRecordsTest, EachGameReadsItsRecordFromItsOwnTable) {
  const std::tuple<const char*, int, std::size_t> cases[] = {{"AXPE", 0, 0x3E5A86},  {"AXPE", 19, 0x3E5B1E},
                                                             {"AXVE", 17, 0x3E5AB6}, {"BPRE", 8, 0x3EEC36},
                                                             {"BPGE", 0, 0x3EEA32},  {"BPEJ", 3, 0x57B132}};
  for (const auto& [code, index, offset] : cases) {
    SCOPED_TRACE(std::string(code) + " " + std::to_string(index));
    FixtureRom fixture(code);
    fixture.PutBytes(offset - 8, Bytes(24, 0x99)).PutBytes(offset, {0, 0, 0x1A, 0, 0x2B, 0, 0x3C, 0});
    RomImage rom;
    rom.Open(fixture.path());
    const auto record = ReadFlyRecord(rom, code, index);
    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(BankText(record->bank) + LevelText(record->level), "B:1AL:0");
    EXPECT_EQ(record->X, 0x2B);
    EXPECT_EQ(record->Y, 0x3C);
  }
}

// A save parses X and then Y before it writes, and changes bytes 4 and 6 at most.
TEST(FlyRecordsTest, ASaveChangesOnlyXAndYAndNothingWhenEitherTextIsNoByte) {
  constexpr std::size_t kAt = 0x3EEBF6 + 8 * 11;  // FireRed, "Route 4"
  const Bytes kRecord = {0x11, 0x22, 0x03, 0x04, 0x05, 0x66, 0x07, 0x88};
  struct Case {
    const char *x, *y;
    std::vector<ByteRange> changed;
    std::uint8_t newX, newY;
    const char* failure;  // part of the sentence, "" for none
  };
  const Case cases[] = {
      {"&H1F", "&H20", {{kAt + 4, 1}, {kAt + 6, 1}}, 0x1F, 0x20, ""}, {"31", "7", {{kAt + 4, 1}}, 0x1F, 0x07, ""},
      {"&HFF", " &h7 ", {{kAt + 4, 1}}, 0xFF, 0x07, ""},               {"&H05", "&H0007", {}, 0x05, 0x07, ""},
      {"&H100", "&H20", {}, 0x05, 0x07, "X: \"&H100\" is not a byte."},
      {"-1", "0", {}, 0x05, 0x07, "X: \"-1\" is not a byte."},
      {"&H1F", "abc", {}, 0x05, 0x07, "Y: \"abc\" is not a byte."},
      {"&H1F", "", {}, 0x05, 0x07, "Y: \"\" is not a byte."},
  };
  FixtureRom fixture = FixtureRom::FireRed();
  RomImage rom;
  rom.Open(fixture.path());
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.x) + " / " + c.y);
    rom.WriteBytes(kAt, kRecord);
    const ByteOracle oracle(fixture.path());
    std::optional<FlyRecord> saved;
    const std::string failure = FailureOf([&] { saved = WriteFlyPosition(rom, "BPRE", 11, c.x, c.y); });
    if (*c.failure != '\0') {
      EXPECT_THAT(failure, HasSubstr(std::string(c.failure) + " Type a number"));
      EXPECT_THAT(failure, HasSubstr("Nothing was saved."));
    } else {
      ASSERT_EQ(failure, "");
      EXPECT_EQ(std::vector<int>({saved->bank, saved->level, saved->X, saved->Y}),
                std::vector<int>({0x03, 0x04, c.newX, c.newY}));
    }
    EXPECT_EQ(oracle.Changes(), c.changed);
    const Bytes now = oracle.Now();
    EXPECT_EQ(Bytes(now.begin() + kAt, now.begin() + kAt + 8), Bytes({0x11, 0x22, 0x03, 0x04, c.newX, 0x66, c.newY, 0x88}));
  }
}

TEST(FlyRecordsTest, ARecordOutsideTheFileOrTheTableIsNeitherReadNorSaved) {
  FixtureRom fixture("AXPE", 0x3E5A86 + 8 + 5);  // record 1 ends 3 bytes behind the file
  RomImage rom;
  EXPECT_FALSE(ReadFlyRecord(rom, "axpe", 0).has_value());  // no table: not even a closed file is asked
  rom.Open(fixture.path());
  const ByteOracle oracle(fixture.path());
  EXPECT_TRUE(ReadFlyRecord(rom, "AXPE", 0).has_value());
  EXPECT_EQ(FailureOf([&] { ReadFlyRecord(rom, "AXPE", 1); }),
            "The fly record 1 at &H3E5A8E does not lie wholly inside the ROM, so it was not read.");
  EXPECT_THAT(FailureOf([&] { WriteFlyPosition(rom, "AXPE", 1, "&H1", "&H1"); }), HasSubstr("not saved"));
  EXPECT_THAT(FailureOf([&] { ReadFlyRecord(rom, "AXPE", 20); }), HasSubstr("no fly record 20"));
  EXPECT_THAT(oracle.Changes(), IsEmpty());
}

}  // namespace
}  // namespace tessarine
