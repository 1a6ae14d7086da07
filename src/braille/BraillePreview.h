#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessarine {

// The preview of a braille record: a screen of 240 by 160 pixels, on which the box's frame
// starts at 240 by 159.
inline constexpr int kScreenWidth = 240;
inline constexpr int kScreenHeight = 160;
inline constexpr int kFrameWidth = 240;
inline constexpr int kFrameHeight = 159;

// What Apply sets, in pixels; none for what it does not reach. frameWidth and frameHeight are
// the last values set.
struct PreviewPlacement {
  std::optional<int> frameWidth;
  std::optional<int> frameLeft;
  std::optional<int> frameHeight;
  std::optional<int> frameTop;
  std::optional<int> textLeft;
  std::optional<int> textTop;
  bool operator==(const PreviewPlacement&) const = default;
};

// The six header fields, each read with ParseLenient (a bare "&H" is 0), laid out step by step:
// frame Width = 240 - postionleft * 8, Left = postionleft * 8, Height = 159 - postiontop * 8,
// Top = postiontop * 8, then Width less msgboxleft and Height less msgboxtop (single pixels),
// then the text at brailleleft * 8, brailletop * 8. A step that gives a width or height
// below 0, or a number beyond 32 bits, ends the layout there.
PreviewPlacement PreviewLayout(std::string_view postionleft, std::string_view postiontop,
                               std::string_view msgboxleft, std::string_view msgboxtop,
                               std::string_view brailleleft, std::string_view brailletop);

// A field that counts in units of 8 pixels (ParseLenient), in pixels; none beyond 32 bits.
std::optional<int> EightPixelUnits(std::string_view field);

// The Unicode braille pattern with the dots of a cell. A cell weighs dot 1 as 0x01, dot 4 as
// 0x02, dot 2 as 0x04, dot 5 as 0x08, dot 3 as 0x10 and dot 6 as 0x20; Unicode counts dots 1
// to 6 as bits 0 to 5 above U+2800. A byte with bit 6 or 7 set is no cell: a blank pattern.
char32_t BrailleGlyph(std::uint8_t cell);

// How the preview draws a text: its cells (EncodeBrailleText) as braille patterns in UTF-8,
// a line break starting a new line ("\n"), up to the first stop cell. Only the first
// `maxLines` lines and the first `maxCells` cells of each are kept: what can be seen.
std::string BrailleGlyphText(std::string_view text, std::size_t maxLines, std::size_t maxCells);

}  // namespace tessarine
