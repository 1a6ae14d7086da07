#include "flyland/MapView.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

#include "flyland/MapImages.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

using test::ScriptedDialogs;

constexpr MapSizeField T1 = MapSizeField::Text1, T2 = MapSizeField::Text2;

// A map of 20 by 20 tiles on a surface of 320 by 320, as the window opens on it.
Form8 TwentyByTwenty() {
  Form8 form;
  SetMapSizeText(form, T1, "&H14");
  SetMapSizeText(form, MapSizeField::Text2, "&H14");
  return form;
}

TEST(MapViewTest, ASizeFieldSetsItsSideWhenItIsANumberAndTheScrollRangesAlways) {
  struct Case {
    MapSizeField field;
    const char* text;
    int width, height;
    const char* ops;  // op and op2
    int hMax, vMax;
  };
  const Case cases[] = {
      {T1, "&H28", 640, 320, "40/20", 20, 10}, {T1, "40", 640, 320, "40/20", 20, 10},
      {T1, "21", 336, 320, "21/20", 10, 10}, {T1, "23", 368, 320, "23/20", 12, 10},
      {T1, "abc", 320, 320, "0/20", 0, 10}, {T1, "12x", 320, 320, "12/20", 6, 10},
      {T1, "&H", 320, 320, "0/20", 0, 10}, {T1, "0", 0, 320, "0/20", 0, 10}, {T1, "-4", 320, 320, "-4/20", 0, 10},
      {T1, "4094", 65504, 320, "4094/20", 2047, 10}, {T1, "4095", 320, 320, "4095/20", 2048, 10},
      {T1, "65534", 320, 320, "65534/20", 32767, 10},
      {T1, "65535", 320, 320, "65535/20", 10, 10},  // a half beyond 16 bits: Max stays
      {T2, "&H1E", 320, 480, "20/30", 10, 15}, {T2, "&H7", 320, 112, "20/7", 10, 4},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    Form8 form = TwentyByTwenty();
    SetMapSizeText(form, c.field, c.text);
    EXPECT_EQ(form.Picture2.Width, c.width);
    EXPECT_EQ(form.Picture2.Height, c.height);
    EXPECT_EQ(form.op + "/" + form.op2, c.ops);
    EXPECT_EQ(form.HScroll1.Max, c.hMax);
    EXPECT_EQ(form.VScroll1.Max, c.vMax);
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
    EXPECT_EQ(form.Picture2.Left, left);
    EXPECT_EQ(form.Picture2.Top, top);
  }
  SetMapSizeText(form, T1, "8");  // Max 4: the bar comes back, and the surface with it
  EXPECT_EQ(form.HScroll1.Value, 4);
  EXPECT_EQ(form.Picture2.Left, -64);
}

TEST(MapViewTest, APressNamesTheTileUnderItAndPutsTheMarkersOnItsCorner) {
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
}

// While a button is held the surface is handed every move and press, also those beyond its
// edges: they name no tile and move no marker.
TEST(MapViewTest, APointerOffTheSurfaceNamesNoTile) {
  const std::pair<int, int> off[] = {{-1, 5}, {5, -20}, {320, 5}, {5, 320}};
  for (const auto& [px, py] : off) {
    SCOPED_TRACE(std::to_string(px) + "," + std::to_string(py));
    Form8 form = TwentyByTwenty();
    PointerPressed(form, 40, 40);
    PointerMoved(form, px, py);
    PointerPressed(form, px, py);
    EXPECT_EQ(form.XXt.text + form.YYt.text, "&H2&H2");
    for (const Marker* m : {&form.Shape1, &form.Shape2, &form.Image1}) {
      EXPECT_EQ(std::pair(m->Left, m->Top), std::pair(32, 32));
    }
  }
}

// Pictures from files and the clipboard: `next` is taken once, and then there is none.
struct ScriptedPictures : MapPictures {
  std::optional<PictureSize> next;
  int asked = 0;
  std::optional<PictureSize> Take() { return ++asked, std::exchange(next, std::nullopt); }
  std::optional<PictureSize> TakeFile(const std::string&) override { return Take(); }
  std::optional<PictureSize> TakeClipboard() override { return Take(); }
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
    form.Picture2.Width = surface.width;
    form.Picture2.Height = surface.height;
    for (int time = 1; time <= 2; ++time) {
      ScriptedDialogs dialogs;
      dialogs.openFileAnswers.push_back("map.bmp");
      ScriptedPictures pictures;
      pictures.next = image;
      LoadMapImageFile(form, dialogs, pictures);
      EXPECT_EQ(form.Text1.text + form.Text2.text, texts);
      EXPECT_EQ(std::pair(form.Picture2.Width, form.Picture2.Height), std::pair(width, height));
      EXPECT_EQ(form.Picture2.picture, MapPicture::Brought);
      EXPECT_EQ(form.Picture2.pictureNumber, time);
    }
  }
}

TEST(MapViewTest, NoPictureKeepsThePictureAndStillResetsTheSizeFields) {
  Form8 form = TwentyByTwenty();
  PointerPressed(form, 40, 40);
  ScriptedDialogs dialogs;
  ScriptedPictures pictures;
  SetMapSizeText(form, T1, "abc");
  LoadMapImageFile(form, dialogs, pictures);  // the dialog cancelled: nothing at all
  EXPECT_EQ(form.Text1.text, "abc");
  EXPECT_EQ(pictures.asked, 0);

  dialogs.openFileAnswers.push_back("notes.txt");  // no picture: the texts come back in &H form
  LoadMapImageFile(form, dialogs, pictures);
  EXPECT_EQ(dialogs.fileDialogs.at(1).title + " " + dialogs.fileDialogs[1].filter,
            "Open Bitmap|*.bmp|Gif|*.gif|Jpeg|*.jpg");
  EXPECT_EQ(form.Text1.text, "&H14");
  SetMapSizeText(form, T2, "7");
  PasteMapImage(form, pictures);  // an empty clipboard likewise
  EXPECT_EQ(form.Text1.text + form.Text2.text, "&H14&H7");
  EXPECT_EQ(form.Picture2.pictureNumber, 0);
  EXPECT_TRUE(dialogs.messages.empty());

  SetScrollValue(form, ScrollBarName::HScroll1, 9);
  pictures.next = PictureSize{384, 320};
  PasteMapImage(form, pictures);  // a picture: the landing and the bar stay
  EXPECT_EQ(form.Text1.text, "&H18");
  EXPECT_EQ(form.XXt.text, "&H2");
  EXPECT_EQ(form.Image1.Left, 32);
  EXPECT_EQ(form.Picture2.Left, -144);
}

}  // namespace
}  // namespace tessarine
