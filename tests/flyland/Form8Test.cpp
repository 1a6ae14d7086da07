#include "flyland/Form8.h"

#include <utility>

#include "flyland/FlyRecords.h"
#include "flyland/MapImages.h"
#include "flyland/MapView.h"
#include "rom/RomImage.h"
#include "support/Tests.h"

namespace tessarine {
namespace {

// Each game's record at its own place: bank at +2, level at +3, X at +4, Y at +6. The
// records beside it hold other bytes, so a record taken from the wrong place shows.
TEST(FlyRecordsTest, EachGameReadsItsRecordFromItsOwnTable) {
  std::vector<std::tuple<GameIdentity, int, std::size_t>> cases = {{{"BPEJ", 1}, 3, 0x57B132}};  // any revision
  for (const GameIdentity& game : test::AllGames()) {
    for (const int index : {0, 19}) cases.emplace_back(game, index, test::OffsetsOf(game).flyTable + 8 * index);
  }
  for (const auto& [game, index, offset] : cases) {
    SCOPED_TRACE(ShownIdentity(game) + " " + std::to_string(index));
    FixtureRom fixture(game.code, FixtureRom::kSize, std::max(game.revision, 0));
    fixture.PutBytes(offset - 8, Bytes(24, 0x99)).PutBytes(offset, {0, 0, 0x1A, 0, 0x2B, 0, 0x3C, 0});
    RomImage rom;
    rom.Open(fixture.path());
    const auto record = ReadFlyRecord(rom, game, index);
    ASSERT_TRUE(record.has_value());
    EXPECT_EQ(BankText(record->bank) + LevelText(record->level), "B:1AL:0");
    EXPECT_EQ(record->X * 0x100 + record->Y, 0x2B3C);
    Form1 main;  // and a save writes X and Y of that record, and nothing else
    std::tie(main.headtxt, main.revision) = std::pair(game.code, game.revision);
    const test::ByteOracle oracle(fixture.path());
    WriteFlyPosition(rom, main, FilledAt{0}, index, "&H1F", "&H20");
    EXPECT_EQ(oracle.Written(), (test::WrittenRuns{{offset + 4, "1F"}, {offset + 6, "20"}}));
  }
  RomImage closed;  // an unknown game has no table: not even a closed file is asked
  EXPECT_FALSE(ReadFlyRecord(closed, {"axpe", 0}, 0).has_value());
  EXPECT_FALSE(ReadFlyRecord(closed, {"BPRE", 2}, 0).has_value());
  EXPECT_THAT(FailureOf([&] { ReadFlyRecord(closed, {"BPRE", 0}, 20); }), HasSubstr("no fly record 20"));
}

TEST(Form8Test, TheWindowOpensByTheGameCode) {
  const std::string hoenn = "Battle Tower, Southern Island";
  const std::tuple<GameIdentity, bool, MapPicture, const char*, bool, std::string> cases[] = {
      // game, kanto on show, picture, Text1 and HScroll1.Max, controls of a record enabled, its records 18 and 19
      {{"AXVE", 0}, false, MapPicture::Picture2, "&H14 10", true, hoenn},
      {{"BPEJ", 0}, false, MapPicture::Picture3, "&H14 10", true, hoenn},
      {{"BPEE", 0}, false, MapPicture::Picture3, "&H14 10", true, "Southern Island, Battle Frontier"},
      {{"BPGE", 0}, true, MapPicture::Picture4, "&H18 12", true, "Seven Island, Six Island"},
      {{"bpre", 0}, false, MapPicture::Picture2, "&H14 10", false, hoenn},
      {{"AXVE", 3}, false, MapPicture::Picture2, "&H14 10", false, hoenn}};  // a revision of no known table
  for (const auto& [game, kanto, picture, across, enabled, last] : cases) {
    SCOPED_TRACE(ShownIdentity(game));
    Form8 form;
    ScriptedDialogs dialogs;
    Form1 main;
    std::tie(main.headtxt, main.revision) = std::pair(game.code, game.revision);
    LoadForm8(form, main, dialogs);
    EXPECT_EQ(std::pair(form.kanto.visible, form.hoenn.visible), std::pair(kanto, !kanto));
    const std::vector<std::string>& rows = (kanto ? form.kanto : form.hoenn).rows;
    EXPECT_EQ(rows.at(18) + ", " + rows.at(19), last);
    EXPECT_EQ(form.Picture2.picture, picture);
    EXPECT_EQ(form.Text1.text + " " + std::to_string(form.HScroll1.Max), across);
    EXPECT_EQ(form.Text2.text + " " + std::to_string(form.VScroll1.Max), "&H14 10");
    EXPECT_THAT((std::array{form.hoenn.enabled, form.loadbutton.enabled, form.savebutton.enabled, form.XXt.enabled,
                            form.YYt.enabled}),
                ::testing::Each(enabled));
    EXPECT_FALSE(form.Image1.visible || form.Shape2.visible);
    const std::vector<std::string> refused = {"Unsupported Rom. Please Load a Different Rom."};
    EXPECT_EQ(dialogs.MessageTexts(), enabled ? std::vector<std::string>{} : refused);
  }
}

// Wingfall open on a Ruby fixture whose record 0 and second "Ever Grande City" hold landings.
struct Wingfall : ::testing::Test {
  static constexpr std::size_t kFirst = 0x3E5A2E;
  test::MainSession s{std::move(FixtureRom::Ruby()
                                    .PutBytes(kFirst, {0x11, 0x22, 0x1A, 0x00, 0x05, 0x66, 0x07, 0x88})
                                    .PutBytes(0x3E5AB6, {0, 0, 0x02, 0x0C, 0x21, 0, 0x13, 0}))};
  Form8& form = s.session.form8;
  void SetUp() override { LoadForm8(form, s.form, s.dialogs); }
  // The fields and the landing markers, as "B:1A L:0 &H5 &H7 at 80,112".
  std::string Landing() const {
    EXPECT_TRUE(form.Shape2.visible && form.Image1.visible);
    EXPECT_EQ(std::pair(form.Shape2.Left, form.Shape2.Top), std::pair(form.Image1.Left, form.Image1.Top));
    return form.BL.caption + " " + form.LB.caption + " " + form.XXt.text + " " + form.YYt.text + " at " +
           std::to_string(form.Image1.Left) + "," + std::to_string(form.Image1.Top);
  }
};

TEST_F(Wingfall, LoadRightAfterOpeningTakesRecord0AndAPickLoadsAtOnce) {
  PressLoadbutton(form, s.rom, s.form);
  EXPECT_EQ(Landing(), "B:1A L:0 &H5 &H7 at 80,112");
  SelectLocation(form, s.rom, s.form, FlyList::hoenn, 17);
  EXPECT_EQ(form.hoenn.text + " " + form.mapnumber, "Ever Grande City 17");
  EXPECT_EQ(Landing(), "B:2 L:C &H21 &H13 at 528,304");
}

// A save parses X and then Y before it writes, changes bytes 4 and 6 at most and shows what the
// ROM now holds; a text that is no byte writes nothing, says no "Saved" and keeps what was typed.
TEST_F(Wingfall, SaveWritesTheTypedTileAndShowsWhatTheRomNowHoldsOrNothing) {
  // X, Y; what the save wrote; the landing after the save, or when nothing changed, part of the sentence
  const std::tuple<const char*, const char*, test::WrittenRuns, const char*> rows[] = {
      {"&H00", "&H00", {{kFirst + 4, "00"}, {kFirst + 6, "00"}}, "B:1A L:0 &H0 &H0 at 0,0"},  // the start texts
      {"&H1F", "&H20", {{kFirst + 4, "1F"}, {kFirst + 6, "20"}}, "B:1A L:0 &H1F &H20 at 496,512"},
      {"31", "7", {{kFirst + 4, "1F"}}, "B:1A L:0 &H1F &H7 at 496,112"},
      {"&HFF", " &h7 ", {{kFirst + 4, "FF"}}, "B:1A L:0 &HFF &H7 at 4080,112"},
      {"&H100", "&H20", {}, "X: \"&H100\" is not a byte. Type a number"},
      {"&H1F", "abc", {}, "Y: \"abc\" is not a byte. Type a number"},
  };
  for (const auto& [x, y, written, shown] : rows) {
    SCOPED_TRACE(std::string(x) + " / " + y);
    s.rom.WriteBytes(kFirst + 4, Bytes{0x05, 0x66, 0x07});
    const ByteOracle oracle(s.fixture->path());
    s.dialogs.messages.clear();
    std::tie(form.XXt.text, form.YYt.text) = std::pair(x, y);
    const std::string failure = FailureOf([&] { PressSavebutton(form, s.rom, s.form, s.dialogs); });
    EXPECT_EQ(oracle.Written(), written);
    if (written.empty()) {
      EXPECT_THAT(failure, AllOf(HasSubstr(shown), HasSubstr("Nothing was written.")));
      EXPECT_EQ(form.XXt.text + form.YYt.text, std::string(x) + y);
      EXPECT_THAT(s.dialogs.messages, IsEmpty());
    } else {
      EXPECT_EQ(failure, "");
      EXPECT_THAT(s.dialogs.MessageTexts(), ElementsAre("Saved"));
      EXPECT_EQ(Landing(), shown);
    }
  }
}

constexpr MapSizeField T1 = MapSizeField::Text1, T2 = MapSizeField::Text2;

// A map of 20 by 20 tiles on a surface of 320 by 320, as the window opens on it.
Form8 TwentyByTwenty() {
  Form8 form;
  SetMapSizeText(form, T1, "&H14");
  SetMapSizeText(form, T2, "&H14");
  return form;
}

// The surface, the tile counts (op, op2) and the scroll ranges, as "640x320 40/20 20,10".
std::string Sizes(const Form8& f) {
  return std::to_string(f.Picture2.Width) + "x" + std::to_string(f.Picture2.Height) + " " + f.op + "/" + f.op2 + " " +
         std::to_string(f.HScroll1.Max) + "," + std::to_string(f.VScroll1.Max);
}

TEST(MapViewTest, ASizeFieldSetsItsSideWhenItIsANumberAndTheScrollRangesAlways) {
  const std::tuple<MapSizeField, const char*, const char*> cases[] = {
      {T1, "&H28", "640x320 40/20 20,10"},   {T1, "21", "336x320 21/20 10,10"},  {T1, "23", "368x320 23/20 12,10"},
      {T1, "abc", "320x320 0/20 0,10"},      {T1, "12x", "320x320 12/20 6,10"},  {T1, "0", "0x320 0/20 0,10"},
      {T1, "4094", "65504x320 4094/20 2047,10"}, {T1, "4095", "320x320 4095/20 2048,10"},
      {T1, "65534", "320x320 65534/20 32767,10"},
      {T1, "65535", "320x320 65535/20 10,10"},  // a half beyond 16 bits: Max stays
      {T2, "&H1E", "320x480 20/30 10,15"},   {T2, "&H7", "320x112 20/7 10,4"},
  };
  for (const auto& [field, text, sizes] : cases) {
    Form8 form = TwentyByTwenty();
    SetMapSizeText(form, field, text);
    EXPECT_EQ(Sizes(form), sizes) << text;
  }
}

TEST(MapViewTest, ABarMovesTheSurfaceSixteenPixelsAStepAndComesBackToALowerMax) {
  Form8 form = TwentyByTwenty();
  SetMapSizeText(form, T1, "5000");  // Max 2500, beyond what 16 bits reach
  constexpr ScrollBarName H = ScrollBarName::HScroll1, V = ScrollBarName::VScroll1;
  const std::tuple<ScrollBarName, int, int, int, int> steps[] = {  // bar, value; Value, Left, Top
      {H, 3, 3, -48, 0},        {V, 4, 4, -48, -64},           {V, 99, 10, -48, -160},
      {H, -1, 0, 0, -160},      {H, 2047, 2047, -32752, -160}, {H, 2048, 2048, -32752, -160}};
  for (const auto& [bar, value, expected, left, top] : steps) {
    SCOPED_TRACE(value);
    SetScrollValue(form, bar, value);
    EXPECT_EQ((bar == H ? form.HScroll1 : form.VScroll1).Value, expected);
    EXPECT_EQ(std::pair(form.Picture2.Left, form.Picture2.Top), std::pair(left, top));
  }
  SetMapSizeText(form, T1, "8");  // Max 4: the bar comes back, and the surface with it
  EXPECT_EQ(form.HScroll1.Value, 4);
  EXPECT_EQ(form.Picture2.Left, -64);
}

TEST(MapViewTest, APressNamesTheTileUnderItAndPutsTheMarkersOnItsCornerAndOneOffTheSurfaceDoesNot) {
  const std::tuple<int, int, const char*, const char*, int, int> cases[] = {
      {15, 15, "&H0", "&H0", 0, 0},   {16, 16, "&H1", "&H1", 16, 16},       {37, 20, "&H2", "&H1", 32, 16},
      {85, 20, "&H5", "&H1", 80, 16}, {4111, 0, "&H100", "&H0", 4096, 0}};
  for (const auto& [px, py, x, y, left, top] : cases) {
    SCOPED_TRACE(std::to_string(px) + "," + std::to_string(py));
    Form8 form = TwentyByTwenty();
    SetMapSizeText(form, T1, "300");  // 4800 pixels: room for a tile beyond 255
    PointerMoved(form, px, py);
    EXPECT_EQ(form.XXt.text, "&H00");  // a move names no landing
    PointerPressed(form, px, py);
    EXPECT_EQ(form.XXt.text + form.YYt.text, std::string(x) + y);
    for (const Marker* m : {&form.Shape1, &form.Shape2, &form.Image1}) {
      EXPECT_EQ(std::pair(m->Left, m->Top), std::pair(left, top));
    }
    EXPECT_TRUE(form.Image1.visible);
    EXPECT_FALSE(form.Shape2.visible);  // shown only by a load
  }
  // While a button is held the surface is handed every move and press, also those beyond its
  // edges: they name no tile and move no marker.
  Form8 form = TwentyByTwenty();
  PointerPressed(form, 40, 40);
  for (const auto& [px, py] : {std::pair(-1, 5), std::pair(5, -20), std::pair(320, 5), std::pair(5, 320)}) {
    PointerMoved(form, px, py);
    PointerPressed(form, px, py);
  }
  EXPECT_EQ(form.XXt.text + form.YYt.text, "&H2&H2");
  for (const Marker* m : {&form.Shape1, &form.Shape2, &form.Image1}) {
    EXPECT_EQ(std::pair(m->Left, m->Top), std::pair(32, 32));
  }
}

// Pictures from files and the clipboard: `next` is taken once, and then there is none.
struct ScriptedPictures : MapPictures {
  std::optional<PictureSize> next;
  TakenPicture Take() { return {std::exchange(next, std::nullopt), "It is no picture."}; }
  TakenPicture TakeFile(const std::string&) override { return Take(); }
  TakenPicture TakeClipboard() override { return Take(); }
};

TEST(MapViewTest, ANewPictureSetsTheMapSizeByTheFitRuleTheSameEachTime) {
  const std::tuple<PictureSize, PictureSize, const char*, int, int> cases[] = {  // surface, image; texts, size
      {{320, 320}, {320, 320}, "&H14&H14", 320, 320},     {{320, 320}, {384, 320}, "&H18&H14", 384, 320},
      {{320, 320}, {640, 480}, "&H28&H1E", 640, 480},     {{320, 320}, {100, 100}, "&H7&H7", 112, 112},
      {{320, 320}, {1024, 1024}, "&H3F&H3F", 1008, 1008}, {{320, 320}, {12, 12}, "&H14&H14", 320, 320},
      {{320, 320}, {13, 13}, "&H1&H1", 16, 16},           {{320, 320}, {640, 12}, "&H28&H14", 640, 320},
      {{640, 480}, {320, 320}, "&H14&H14", 320, 320},     {{320, 320}, {8192, 8192}, "&H1F6&H1F6", 8032, 8032}};
  for (const auto& [surface, image, texts, width, height] : cases) {
    SCOPED_TRACE(std::to_string(image.width) + "x" + std::to_string(image.height));
    Form8 form = TwentyByTwenty();
    std::tie(form.Picture2.Width, form.Picture2.Height) = std::pair(surface.width, surface.height);
    for (int time = 1; time <= 2; ++time) {
      ScriptedDialogs dialogs;
      dialogs.openFileAnswers.push_back("map.bmp");
      ScriptedPictures pictures;
      pictures.next = image;
      LoadMapImageFile(form, dialogs, pictures);
      EXPECT_EQ(form.Text1.text + form.Text2.text, texts);
      EXPECT_EQ(std::tuple(form.Picture2.Width, form.Picture2.Height, form.Picture2.picture, form.Picture2.pictureNumber),
                std::tuple(width, height, MapPicture::Brought, time));
    }
  }
  // A file refused says why; the picture stays and the size fields come back from the surface.
  Form8 form = TwentyByTwenty();
  form.Text1.text = "abc";
  ScriptedDialogs dialogs;
  dialogs.openFileAnswers.push_back("notes.bmp");
  ScriptedPictures none;
  EXPECT_EQ(FailureOf([&] { LoadMapImageFile(form, dialogs, none); }), "It is no picture. The map keeps its picture.");
  EXPECT_EQ(form.Text1.text + " " + std::to_string(form.Picture2.pictureNumber), "&H14 0");
}

}  // namespace
}  // namespace tessarine
