#include "shell/modLinedTextBox.h"

#include <algorithm>

namespace tessarine {
namespace {

// Each row stands this far in from the gutter's sides: left 2, right TrayWidth - 3.
constexpr int kRowLeft = 2;
constexpr int kRowRightInset = 3;
// Where a frame side is put when its selection runs out of view: well outside the strip.
constexpr int kOutOfView = 100;

std::uint8_t BlendChannel(std::uint8_t channel1, std::uint8_t channel2, int percent) {
  // In hundredths, so that the rounding is exact: halves go up.
  const int hundredths = channel1 * percent + channel2 * (100 - percent);
  return static_cast<std::uint8_t>((hundredths + 50) / 100);
}

}  // namespace

Rgb BlendColors(Rgb color1, Rgb color2, int percent) {
  percent = std::clamp(percent, 0, 100);
  return {BlendChannel(color1.red, color2.red, percent), BlendChannel(color1.green, color2.green, percent),
          BlendChannel(color1.blue, color2.blue, percent)};
}

int EffectiveNumDigits(int numDigits) { return numDigits > 0 ? numDigits : 4; }

int TrayWidth(int digitsWidth) { return digitsWidth + 20; }

std::string LineNumberText(int line, int numDigits) {
  const auto digits = static_cast<std::size_t>(EffectiveNumDigits(numDigits));
  std::string text = std::to_string(line);
  if (text.size() < digits) text.insert(0, digits - text.size(), '0');
  text.resize(digits);
  return text;
}

GutterPaint PlanGutterPaint(const GutterInput& in) {
  const GutterSystemColors& c = in.colors;
  GutterPaint paint;
  paint.trayWidth = TrayWidth(in.digitsWidth);
  paint.height = in.boxHeight - 2 * in.edge;
  paint.face = c.buttonFace;
  paint.numberColor = c.windowText;
  paint.lineColor = c.buttonShadow;
  paint.tint = in.focus ? BlendColors(c.highlight, kWhite, 50) : BlendColors(c.buttonFace, kWhite, 75);
  paint.frameColor = in.focus ? c.highlight : c.buttonShadow;

  const int lineH = std::max(in.lineHeight, 1);
  const int firstLine = in.firstLine;
  int lastLine = firstLine + in.boxHeight / lineH;
  if (lastLine > in.lineCount || lastLine == 0) lastLine = in.lineCount;
  paint.firstLine = firstLine;
  paint.lastLine = lastLine;

  const int right = paint.trayWidth - kRowRightInset;
  int frameTop = 0;
  int frameBottom = 0;
  for (int n = firstLine; n <= lastLine; ++n) {
    GutterRow row;
    row.line = n;
    row.rect.left = kRowLeft;
    row.rect.right = right;
    row.rect.top = in.firstLineTop + (n - firstLine) * lineH + 1;
    row.rect.bottom = row.rect.top + lineH;
    row.number = LineNumberText(n, in.numDigits);
    row.tinted = in.selFirst <= n && n <= in.selLast;
    if (n == in.selFirst) frameTop = row.rect.top;
    if (n == in.selLast) frameBottom = row.rect.bottom;
    paint.rows.push_back(std::move(row));
  }

  if (in.selLast > lastLine) frameBottom = in.boxHeight + kOutOfView;
  if (in.selFirst < firstLine) frameTop = -kOutOfView;
  const auto inView = [&](int line) { return firstLine <= line && line <= lastLine; };
  const bool spansView = in.selFirst <= firstLine && in.selLast >= lastLine;
  if (inView(in.selFirst) || inView(in.selLast) || spansView) {
    paint.frame = PixelRect{kRowLeft, frameTop, right, frameBottom};
  }

  if (in.edge > 0) paint.line = VerticalLine{paint.trayWidth - 1, 0, in.boxHeight - 2 * in.edge};
  return paint;
}

}  // namespace tessarine
