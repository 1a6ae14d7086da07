#include "braille/BraillePreview.h"

#include <algorithm>
#include <limits>

#include "rom/Bytes.h"
#include "rom/HexField.h"
#include "text/Braille2Text.h"

namespace tessarine {
namespace {

constexpr int kUnit = 8;  // pixels in a unit of the position and braille fields
constexpr std::string_view kLineBreak = "\r\n";

std::optional<int> Long(std::int64_t value) {
  if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max()) {
    return std::nullopt;
  }
  return static_cast<int>(value);
}

// A frame side that is a long and not below 0.
std::optional<int> Side(std::int64_t value) { return value < 0 ? std::nullopt : Long(value); }

void AppendUtf8(std::string& text, char32_t code) {
  // Braille patterns lie in U+2800 to U+28FF: three bytes each.
  text += static_cast<char>(0xE0 | (code >> 12));
  text += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
  text += static_cast<char>(0x80 | (code & 0x3F));
}

}  // namespace

std::optional<int> EightPixelUnits(std::string_view field) { return Long(std::int64_t{ParseLenient(field)} * kUnit); }

PreviewPlacement PreviewLayout(std::string_view postionleft, std::string_view postiontop,
                               std::string_view msgboxleft, std::string_view msgboxtop,
                               std::string_view brailleleft, std::string_view brailletop) {
  PreviewPlacement placed;
  const std::optional<int> left = EightPixelUnits(postionleft);
  if (!left) return placed;
  const std::optional<int> width = Side(std::int64_t{kFrameWidth} - *left);
  if (!width) return placed;
  placed.frameWidth = width;
  placed.frameLeft = left;

  const std::optional<int> top = EightPixelUnits(postiontop);
  if (!top) return placed;
  const std::optional<int> height = Side(std::int64_t{kFrameHeight} - *top);
  if (!height) return placed;
  placed.frameHeight = height;
  placed.frameTop = top;

  const std::optional<int> narrower = Side(std::int64_t{*width} - ParseLenient(msgboxleft));
  if (!narrower) return placed;
  placed.frameWidth = narrower;
  const std::optional<int> lower = Side(std::int64_t{*height} - ParseLenient(msgboxtop));
  if (!lower) return placed;
  placed.frameHeight = lower;

  placed.textLeft = EightPixelUnits(brailleleft);
  if (!placed.textLeft) return placed;
  placed.textTop = EightPixelUnits(brailletop);
  return placed;
}

char32_t BrailleGlyph(std::uint8_t cell) {
  // Unicode's bit for each of the cell's bits, from bit 0 up: dots 1, 4, 2, 5, 3, 6.
  constexpr int kUnicodeBit[] = {0, 3, 1, 4, 2, 5};
  char32_t pattern = 0;
  if ((cell & 0xC0) == 0) {
    for (int bit = 0; bit < 6; ++bit) {
      if ((cell >> bit) & 1) pattern |= char32_t{1} << kUnicodeBit[bit];
    }
  }
  return U'\u2800' + pattern;
}

std::string BrailleGlyphText(std::string_view text, std::size_t maxLines, std::size_t maxCells) {
  // Only what can be seen is encoded, line by line: a cell takes at most five characters of
  // the text, of at most four bytes each. A line break is never part of another token, so
  // the text's lines are the encoder's lines.
  constexpr std::size_t kMostBytesPerCell = 5 * 4;
  const std::size_t cellBytes = std::min(maxCells, text.size()) * kMostBytesPerCell;
  std::string_view rest = text.substr(0, FindBrailleStop(text));
  std::string glyphs;
  for (std::size_t line = 0; line < maxLines; ++line) {
    const std::size_t end = rest.find(kLineBreak);
    const Bytes cells = EncodeBrailleText(rest.substr(0, std::min(end, cellBytes)));
    for (std::size_t i = 0; i < std::min(cells.size(), maxCells); ++i) AppendUtf8(glyphs, BrailleGlyph(cells[i]));
    if (end == std::string_view::npos || line + 1 == maxLines) break;
    glyphs += '\n';
    rest.remove_prefix(end + kLineBreak.size());
  }
  return glyphs;
}

}  // namespace tessarine
