#include "rom/FilePath.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rom/RomImage.h"
#include "support/ByteOracle.h"
#include "support/Failures.h"
#include "support/FixtureRom.h"

namespace tessarine {
namespace {

using test::FailureOf;
using ::testing::HasSubstr;

// A ROM path is UTF-8 text with '/' between names, as the file dialog gives it. The folder
// is read back in UTF-16, apart from our own conversions: a name made in the ANSI code page
// on Windows shows there as the wrong letters.
TEST(FilePathTest, ARomUnderANameOutsideAsciiOpensReadsAndWrites) {
  const struct {
    std::string folder, file;
    std::u16string fileInUtf16;
  } rows[] = {{"plain", "rom.gba", u"rom.gba"},
              {"Pokémon hacks", "ポケモン rom.gba", u"ポケモン rom.gba"},
              {"Ærø  two blanks", "ß é.GBA", u"ß é.GBA"}};
  test::FixtureRom fixture("AXPE", 0x200);
  const std::filesystem::path root = test::TemporaryPath("names");
  for (const auto& row : rows) {
    const std::string folder = ToPathText(root) + "/" + row.folder, path = folder + "/" + row.file;
    std::filesystem::create_directories(ToFilePath(folder));
    std::filesystem::copy_file(ToFilePath(fixture.path()), ToFilePath(path));
    const auto listed = std::filesystem::directory_iterator(ToFilePath(folder))->path().filename();
    EXPECT_EQ(listed.u16string(), row.fileInUtf16) << row.file;

    RomImage rom;
    rom.Open(path);
    EXPECT_FALSE(rom.IsReadOnly()) << row.file;
    EXPECT_EQ(rom.romPath(), path);
    EXPECT_EQ(rom.ReadLong(0xAC), 0x45505841) << row.file;  // "AXPE"
    const test::ByteOracle oracle(path);
    rom.WriteWord(0x100, 0x1234);
    EXPECT_THAT(FailureOf([&] { rom.WriteWord(0x1FF, 1); }), HasSubstr("past the end")) << row.file;
    EXPECT_EQ(oracle.Changes(), (std::vector<test::ByteRange>{{0x100, 2}})) << row.file;
    EXPECT_EQ(oracle.Now()[0x100] | oracle.Now()[0x101] << 8, 0x1234) << row.file;
  }
  std::filesystem::remove_all(root);
}

// On Windows a text that is not UTF-8 has no wide form at all.
TEST(FilePathTest, ANameThatCannotBeOpenedIsShownAsItWasGiven) {
  const std::string root = ToPathText(test::TemporaryPath("missing"));
  for (const std::string name : {"/ポケモン rom.gba", "/\xFF\xFE.gba"}) {
    RomImage rom;
    EXPECT_THAT(FailureOf([&] { rom.Open(root + name); }), HasSubstr("Could not open \"" + root + name + "\""));
  }
}

}  // namespace
}  // namespace tessarine
