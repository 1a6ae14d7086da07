#include "flyland/Form8.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "rom/RomImage.h"
#include "support/ByteOracle.h"
#include "support/Failures.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

using test::ByteOracle;
using test::ByteRange;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

TEST(Form8Test, TheWindowOpensByTheGameCode) {
  const std::tuple<const char*, bool, MapPicture, const char*, bool> cases[] = {
      // code, kanto on show, picture, Text1 and HScroll1.Max, controls of a record enabled
      {"AXVE", false, MapPicture::Picture2, "&H14 10", true}, {"AXPE", false, MapPicture::Picture2, "&H14 10", true},
      {"BPEJ", false, MapPicture::Picture3, "&H14 10", true}, {"BPRE", true, MapPicture::Picture4, "&H18 12", true},
      {"BPGE", true, MapPicture::Picture4, "&H18 12", true},  {"bpre", false, MapPicture::Picture2, "&H14 10", false},
      {"", false, MapPicture::Picture2, "&H14 10", false}};
  for (const auto& [code, kanto, picture, across, enabled] : cases) {
    SCOPED_TRACE(code);
    Form8 form;
    test::ScriptedDialogs dialogs;
    LoadForm8(form, code, dialogs);
    EXPECT_EQ(form.kanto.visible, kanto);
    EXPECT_EQ(form.hoenn.visible, !kanto);
    EXPECT_EQ(form.Picture2.picture, picture);
    EXPECT_EQ(form.Text1.text + " " + std::to_string(form.HScroll1.Max), across);
    EXPECT_EQ(form.Text2.text + " " + std::to_string(form.VScroll1.Max), "&H14 10");
    for (const bool control : {form.hoenn.enabled, form.loadbutton.enabled, form.savebutton.enabled,
                               form.XXt.enabled, form.YYt.enabled}) {
      EXPECT_EQ(control, enabled);
    }
    EXPECT_FALSE(form.Image1.visible || form.Shape2.visible);
    EXPECT_EQ(dialogs.MessageTexts(), enabled ? std::vector<std::string>{}
                                              : std::vector<std::string>{"Unsupported Rom. Please Load a Different Rom."});
  }
}

// Wingfall open on a Ruby fixture whose record 0 and second "Ever Grande City" hold landings.
struct Wingfall : ::testing::Test {
  static constexpr std::size_t kFirst = 0x3E5A2E;
  test::FixtureRom fixture = test::FixtureRom::Ruby();
  RomImage rom;
  test::ScriptedDialogs dialogs;
  Form8 form;
  std::string headtxt = "AXVE";

  void SetUp() override {
    fixture.PutBytes(kFirst, {0x11, 0x22, 0x1A, 0x00, 0x05, 0x66, 0x07, 0x88});
    fixture.PutBytes(0x3E5AB6, {0, 0, 0x02, 0x0C, 0x21, 0, 0x13, 0});
    rom.Open(fixture.path());
    LoadForm8(form, headtxt, dialogs);
  }
  void Save() { PressSavebutton(form, rom, headtxt, dialogs); }
  // The fields and the landing markers, as "B:1A L:0 &H5 &H7 at 80,112".
  std::string Landing() const {
    EXPECT_TRUE(form.Shape2.visible && form.Image1.visible);
    EXPECT_EQ(std::pair(form.Shape2.Left, form.Shape2.Top), std::pair(form.Image1.Left, form.Image1.Top));
    return form.BL.caption + " " + form.LB.caption + " " + form.XXt.text + " " + form.YYt.text + " at " +
           std::to_string(form.Image1.Left) + "," + std::to_string(form.Image1.Top);
  }
};

TEST_F(Wingfall, LoadRightAfterOpeningTakesRecord0AndAPickLoadsAtOnce) {
  PressLoadbutton(form, rom, headtxt);
  EXPECT_EQ(Landing(), "B:1A L:0 &H5 &H7 at 80,112");
  SelectLocation(form, rom, headtxt, LocationListName::hoenn, 17);
  EXPECT_EQ(form.hoenn.text, "Ever Grande City");
  EXPECT_EQ(form.mapnumber, "17");
  EXPECT_EQ(Landing(), "B:2 L:C &H21 &H13 at 528,304");
}

TEST_F(Wingfall, SaveWritesTheTypedTileAndShowsWhatTheRomNowHolds) {
  const std::tuple<const char*, const char*, std::vector<ByteRange>, const char*> cases[] = {
      {"&H00", "&H00", {{kFirst + 4, 1}, {kFirst + 6, 1}}, "B:1A L:0 &H0 &H0 at 0,0"},  // the start texts
      {"&H05", "&H7", {}, "B:1A L:0 &H5 &H7 at 80,112"},
      {"10", "&H7", {{kFirst + 4, 1}}, "B:1A L:0 &HA &H7 at 160,112"}};
  for (const auto& [x, y, changed, shown] : cases) {
    SCOPED_TRACE(std::string(x) + " / " + y);
    rom.WriteBytes(kFirst + 4, Bytes{0x05, 0x66, 0x07});
    const ByteOracle oracle(fixture.path());
    dialogs.messages.clear();
    form.XXt.text = x;
    form.YYt.text = y;
    Save();
    EXPECT_EQ(oracle.Changes(), changed);
    EXPECT_THAT(dialogs.MessageTexts(), ElementsAre("Saved"));
    EXPECT_EQ(Landing(), shown);
  }
}

// A refused text, and a code of the moment without a fly table (the main window opened
// another ROM): nothing written, no "Saved"; the first keeps what was typed and loads nothing.
TEST_F(Wingfall, ASaveThatCannotWriteSaysNoSaved) {
  const ByteOracle oracle(fixture.path());
  form.XXt.text = "&H1F";
  form.YYt.text = "&H100";
  EXPECT_THAT(test::FailureOf([&] { Save(); }), HasSubstr("Y: \"&H100\" is not a byte."));
  EXPECT_EQ(form.XXt.text + form.YYt.text, "&H1F&H100");
  EXPECT_FALSE(form.Shape2.visible);
  headtxt = "BPEE";
  Save();
  EXPECT_EQ(form.XXt.text + form.YYt.text, "&H1F&H100");
  EXPECT_TRUE(form.Shape2.visible && form.Image1.visible);
  EXPECT_THAT(dialogs.messages, IsEmpty());
  EXPECT_THAT(oracle.Changes(), IsEmpty());
}

}  // namespace
}  // namespace tessarine
