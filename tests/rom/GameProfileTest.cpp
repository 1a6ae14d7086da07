#include "rom/GameProfile.h"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

TEST(GameProfileTest, EachGameHasTheOffsetsOfItsColumn) {
  struct Row {
    const char* code;
    GameProfile expected;
  };
  const Row rows[] = {
      {"AXVE", {"AXVE", "rs", "&H1F716C", "&H38EE50", "&H391E78", "&H38D880", "&H38E674", "&H38E6DC",
                "&H38BEBC", "&H160B9B", "&H15DDD7", "&H3C5564"}},
      {"AXPE", {"AXPE", "rs", "&H1F70FC", "&H38EDE0", "&H391E08", "&H38D810", "&H38E604", "&H38E66C",
                "&H38BE4C", "&H160B2B", "&H15DD67", "&H3C55BC"}},
      {"BPRE", {"BPRE", "frlg", "&H245EE0", "&H3B27D4", "&H3B4BFC", "", "&H3B2D7C", "&H3B2120", "&H3B177C",
                "", "", "&H3DB028"}},
      {"BPGE", {"BPGE", "frlg", "&H245EBC", "&H3B27B4", "&H3B4BDC", "", "&H3B2D5C", "&H3B2100", "&H3B175C",
                "", "", "&H3DAE64"}},
  };
  for (const Row& row : rows) {
    const auto found = FindGameProfile(row.code);
    ASSERT_TRUE(found.has_value()) << row.code;
    const GameProfile& p = *found;
    const GameProfile& e = row.expected;
    EXPECT_EQ(p.code, e.code);
    EXPECT_EQ(p.cowmoo, e.cowmoo) << row.code;
    EXPECT_EQ(p.Label20, e.Label20) << row.code;
    EXPECT_EQ(p.Label1, e.Label1) << row.code;
    EXPECT_EQ(p.raytxt, e.raytxt) << row.code;
    EXPECT_EQ(p.grou, e.grou) << row.code;
    EXPECT_EQ(p.regi1, e.regi1) << row.code;
    EXPECT_EQ(p.regi2, e.regi2) << row.code;
    EXPECT_EQ(p.regi3, e.regi3) << row.code;
    EXPECT_EQ(p.latiScript, e.latiScript) << row.code;
    EXPECT_EQ(p.groudonScript, e.groudonScript) << row.code;
    EXPECT_EQ(p.itemRecords, e.itemRecords) << row.code;
  }
}

TEST(GameProfileTest, OnlyTheExactCodeFindsAProfile) {
  for (const char* code : {"axve", "Axve", "AXV", "AXVEE", "BPEJ", "", "ZZZZ", " AXVE"}) {
    EXPECT_FALSE(FindGameProfile(code).has_value()) << '"' << code << '"';
  }
}

}  // namespace
}  // namespace tessarine
