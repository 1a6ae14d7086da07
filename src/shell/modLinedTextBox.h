#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tessarine {

// The gutter of line numbers beside a text box: every decision of its geometry and colour,
// made from plain numbers, so that the box's widget only measures, asks and draws.

struct Rgb {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Rgb&) const = default;
};

inline constexpr Rgb kWhite{255, 255, 255};

// Channel by channel, color1 times percent/100 plus color2 times (1 - percent/100), rounded
// to the nearest whole number, halves up. At 75 percent color1 counts three times as much as
// color2. `percent` runs from 0 to 100.
Rgb BlendColors(Rgb color1, Rgb color2, int percent);

// The four system colours that the gutter is painted in, by their roles.
struct GutterSystemColors {
  Rgb buttonFace;
  Rgb windowText;
  Rgb highlight;
  Rgb buttonShadow;
};

// NumDigits as the gutter uses it: 0 means 4, and so does a count below 0, which has no
// meaning of its own.
int EffectiveNumDigits(int numDigits);

// The gutter's width: a string of EffectiveNumDigits "0"s, `digitsWidth` pixels wide in the
// box's font, and 20 pixels.
int TrayWidth(int digitsWidth);

// `line` zero-padded to NumDigits digits and cut to that many characters: with 4 digits,
// line 7 shows "0007" and line 12345 shows "1234".
std::string LineNumberText(int line, int numDigits);

// Rectangles of pixels are half-open, as the box's platform draws them: x runs from left
// to right - 1, y from top to bottom - 1.
struct PixelRect {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;
  bool operator==(const PixelRect&) const = default;
};

// What one paint of the gutter is made from. Lines are counted from 1.
struct GutterInput {
  int numDigits = 0;     // as stored with the box; 0 means 4
  int digitsWidth = 0;   // width of EffectiveNumDigits(numDigits) "0"s in the box's font
  int boxHeight = 0;     // outer height of the box, frame included
  int edge = 0;          // thickness of the box's frame
  int lineHeight = 1;    // height of one text line in the box's font
  int firstLineTop = 0;  // where the first visible line's text begins, in the gutter's pixels
  int firstLine = 1;     // first visible line
  int lineCount = 1;     // lines of the text; an empty box has 1
  int selFirst = 1;      // line of the selection's start; with no selection, the caret's line
  int selLast = 1;       // line of the selection's end; with no selection, the caret's line
  bool focus = false;    // the box has the keyboard focus
  GutterSystemColors colors;
};

struct GutterRow {
  int line = 0;
  PixelRect rect;      // filled with the tint when tinted; the number is centred in it
  std::string number;  // exactly NumDigits characters
  bool tinted = false;
  bool operator==(const GutterRow&) const = default;
};

// A vertical line one pixel wide at x, from y = top to y = bottom - 1.
struct VerticalLine {
  int x = 0;
  int top = 0;
  int bottom = 0;
  bool operator==(const VerticalLine&) const = default;
};

// One paint of the gutter, in its own pixels: (0, 0) is its top left corner, which stands
// at (edge, edge) of the box. Drawn in this order: the face, the rows' tints, their numbers,
// the frame, the vertical line.
struct GutterPaint {
  int trayWidth = 0;
  int height = 0;  // what is shown of the strip: the box's height less its frame
  int firstLine = 1;
  int lastLine = 1;
  Rgb face;
  Rgb numberColor;
  Rgb tint;
  Rgb frameColor;
  Rgb lineColor;
  std::vector<GutterRow> rows;       // firstLine to lastLine, top to bottom
  std::optional<PixelRect> frame;    // outline one pixel wide, unfilled; a side may lie outside
  std::optional<VerticalLine> line;  // the shadow line at the gutter's right edge
};

// The selected lines (the caret's line counts as selected) are tinted and framed; a frame
// whose selection runs out of view above or below has that side outside the strip, so it
// shows open. A selection wholly above or below the view marks nothing.
GutterPaint PlanGutterPaint(const GutterInput& input);

}  // namespace tessarine
