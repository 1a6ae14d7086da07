#include "shell/modLinedTextBox.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <vector>

namespace tessarine {
namespace {

using ::testing::ElementsAre;

// The classic desktop scheme: face, window text, highlight, shadow.
constexpr GutterSystemColors kColors{{212, 208, 200}, {0, 0, 0}, {10, 36, 106}, {128, 128, 128}};

// A box 104 pixels high with a frame of 2, lines of 10 pixels, and four digits 24 pixels
// wide: TrayWidth 44, rows from x = 2 to 40, the shadow line at x = 43.
GutterInput Box() {
  GutterInput in;
  in.numDigits = 4;
  in.digitsWidth = 24;
  in.boxHeight = 104;
  in.edge = 2;
  in.lineHeight = 10;
  in.focus = true;
  in.colors = kColors;
  return in;
}

std::vector<int> TintedLines(const GutterPaint& paint) {
  std::vector<int> lines;
  for (const GutterRow& row : paint.rows) {
    if (row.tinted) lines.push_back(row.line);
  }
  return lines;
}

TEST(modLinedTextBoxTest, AnEmptyBoxShowsLineOneTintedAndFramed) {
  const GutterPaint paint = PlanGutterPaint(Box());
  EXPECT_EQ(paint.trayWidth, 44);
  EXPECT_EQ(paint.height, 100);
  EXPECT_THAT(paint.rows, ElementsAre(GutterRow{1, {2, 1, 41, 11}, "0001", true}));
  EXPECT_EQ(paint.frame, (PixelRect{2, 1, 41, 11}));
  EXPECT_EQ(paint.line, (VerticalLine{43, 0, 100}));
  EXPECT_EQ(paint.face, kColors.buttonFace);
  EXPECT_EQ(paint.numberColor, kColors.windowText);
  EXPECT_EQ(paint.lineColor, kColors.buttonShadow);
}

TEST(modLinedTextBoxTest, TheSelectionIsTintedAndFramedOpenWhereItLeavesTheView) {
  // Lines 20 to 30 are in view (10 lines fit in 104 pixels, and one more is begun).
  struct Case {
    const char* name;
    int selFirst;
    int selLast;
    std::vector<int> tinted;
    std::optional<PixelRect> frame;
  };
  const std::vector<Case> cases = {
      {"the caret's line alone", 25, 25, {25}, PixelRect{2, 51, 41, 61}},
      {"wholly above the view", 3, 19, {}, std::nullopt},
      {"wholly below the view", 31, 50, {}, std::nullopt},
      {"from above into the view: no top side", 10, 22, {20, 21, 22}, PixelRect{2, -100, 41, 31}},
      {"from the view on below: no bottom side", 28, 40, {28, 29, 30}, PixelRect{2, 81, 41, 204}},
      {"across the whole view: neither side", 5, 90, {20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30},
       PixelRect{2, -100, 41, 204}},
      {"exactly the view: both sides", 20, 30, {20, 21, 22, 23, 24, 25, 26, 27, 28, 29, 30},
       PixelRect{2, 1, 41, 111}},
      {"one line into the view from above", 19, 20, {20}, PixelRect{2, -100, 41, 11}},
      {"one line past the last line of the view", 30, 31, {30}, PixelRect{2, 101, 41, 204}},
  };
  for (const Case& c : cases) {
    GutterInput in = Box();
    in.firstLine = 20;
    in.lineCount = 100;
    in.selFirst = c.selFirst;
    in.selLast = c.selLast;
    const GutterPaint paint = PlanGutterPaint(in);
    EXPECT_EQ(paint.lastLine, 30) << c.name;
    EXPECT_EQ(TintedLines(paint), c.tinted) << c.name;
    EXPECT_EQ(paint.frame, c.frame) << c.name;
  }
}

TEST(modLinedTextBoxTest, NumbersArePaddedAndCutToNumDigits) {
  struct Case {
    int numDigits;
    int firstLine;
    std::vector<std::string> numbers;
  };
  const std::vector<Case> cases = {
      {4, 9998, {"9998", "9999", "1000", "1000"}},
      {4, 12345, {"1234", "1234", "1234", "1234"}},
      {0, 7, {"0007", "0008", "0009", "0010"}},  // 0 behaves as 4
      {6, 99, {"000099", "000100", "000101", "000102"}},
      {2, 99, {"99", "10", "10", "10"}},
  };
  for (const Case& c : cases) {
    GutterInput in = Box();
    in.numDigits = c.numDigits;
    in.boxHeight = 34;  // three lines fit, a fourth is begun
    in.firstLine = c.firstLine;
    in.lineCount = c.firstLine + 50;
    std::vector<std::string> numbers;
    for (const GutterRow& row : PlanGutterPaint(in).rows) numbers.push_back(row.number);
    EXPECT_EQ(numbers, c.numbers) << c.numDigits << " digits from line " << c.firstLine;
  }
  EXPECT_EQ(EffectiveNumDigits(0), 4);
  EXPECT_EQ(EffectiveNumDigits(6), 6);
  EXPECT_EQ(TrayWidth(24), 44);  // four digits of a font with digits of 6 pixels
}

TEST(modLinedTextBoxTest, RowsFollowTheTextAndStopAtTheLastLine) {
  GutterInput in = Box();
  in.firstLineTop = 4;  // a text that begins 4 pixels down
  in.firstLine = 20;
  in.lineCount = 22;
  in.selFirst = in.selLast = 21;
  const GutterPaint paint = PlanGutterPaint(in);
  EXPECT_EQ(paint.lastLine, 22);
  EXPECT_THAT(paint.rows, ElementsAre(GutterRow{20, {2, 5, 41, 15}, "0020", false},
                                      GutterRow{21, {2, 15, 41, 25}, "0021", true},
                                      GutterRow{22, {2, 25, 41, 35}, "0022", false}));
  EXPECT_EQ(paint.frame, (PixelRect{2, 15, 41, 25}));
}

TEST(modLinedTextBoxTest, FocusDecidesTintAndFrameColours) {
  GutterInput in = Box();
  in.focus = true;
  const GutterPaint focused = PlanGutterPaint(in);
  EXPECT_EQ(focused.tint, (Rgb{133, 146, 181}));  // the highlight half and half with white
  EXPECT_EQ(focused.frameColor, kColors.highlight);

  in.focus = false;
  const GutterPaint unfocused = PlanGutterPaint(in);
  EXPECT_EQ(unfocused.tint, (Rgb{223, 220, 214}));  // the face three parts to one of white
  EXPECT_EQ(unfocused.frameColor, kColors.buttonShadow);
  EXPECT_EQ(unfocused.face, focused.face);
  EXPECT_EQ(unfocused.numberColor, focused.numberColor);
  EXPECT_EQ(unfocused.lineColor, focused.lineColor);
}

TEST(modLinedTextBoxTest, BlendColorsRoundsToTheNearestWholeNumber) {
  struct Case {
    Rgb color1;
    Rgb color2;
    int percent;
    Rgb blend;
  };
  const std::vector<Case> cases = {
      {{0, 0, 0}, kWhite, 50, {128, 128, 128}},  // 127.5: halves go up
      {{0, 0, 0}, kWhite, 75, {64, 64, 64}},     // 63.75
      {{1, 2, 3}, {2, 4, 6}, 50, {2, 3, 5}},     // 1.5, 3, 4.5
      {{200, 100, 0}, {100, 0, 201}, 75, {175, 75, 50}},
      {{9, 8, 7}, {1, 2, 3}, 100, {9, 8, 7}},
      {{9, 8, 7}, {1, 2, 3}, 0, {1, 2, 3}},
  };
  for (const Case& c : cases) EXPECT_EQ(BlendColors(c.color1, c.color2, c.percent), c.blend) << c.percent;
}

TEST(modLinedTextBoxTest, ABoxWithNoFrameHasNoShadowLine) {
  GutterInput in = Box();
  in.edge = 0;
  const GutterPaint paint = PlanGutterPaint(in);
  EXPECT_EQ(paint.line, std::nullopt);
  EXPECT_EQ(paint.height, 104);
}

}  // namespace
}  // namespace tessarine
