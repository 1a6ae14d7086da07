#pragma once

#include <cstdint>
#include <string>

#include "flyland/Form8.h"

namespace tessarine {

// The map view: the arithmetic between pixels, tiles and scroll positions. A tile is 16
// by 16 pixels; tile (x, y) covers the pixels 16x to 16x + 15 across and 16y to 16y + 15
// down. Pointer positions are measured from the surface's own top left corner, so the
// scroll position never enters the tile arithmetic.

enum class MapSizeField { Text1, Text2 };
enum class ScrollBarName { HScroll1, VScroll1 };

// The nearest whole number to numerator / denominator (denominator above 0), a half
// going to the even neighbour: 21 / 2 gives 10, 23 / 2 gives 12.
std::int64_t RoundHalfEven(std::int64_t numerator, std::int64_t denominator);

// A new text in a size field; the size rule runs for it, whatever the text.
void SetMapSizeText(Form8& form, MapSizeField field, std::string text);

// The size rule. Each step stands by itself:
// 1. The changed field read as a number of tiles sets the surface's width (Text1) or
//    height (Text2) to it x 16; a text that is no number, or a count below 0 or above
//    kMaxSurfaceTiles, leaves that measure alone.
// 2. op and op2 take the leading numbers of Text1 and Text2 in decimal, 0 where none.
// 3. Each bar's Max becomes half its count, rounded half to even (a negative count gives
//    0, a half above 32767 keeps the old Max), and a Value above it comes back to it.
void ApplyMapSize(Form8& form, MapSizeField field);

// txtchange: the size rule for Text1 and then for Text2.
void PressTxtchange(Form8& form);

// A bar moved to `value`, held to 0..Max; the surface follows.
void SetScrollValue(Form8& form, ScrollBarName bar, int value);

// The surface's corner at -(Value x 16), worked out in 16 bits: beyond a Value of 2047
// the product does not fit and the surface stays where it stood.
void ScrollMap(Form8& form, ScrollBarName bar);

// The pointer over surface pixel (px, py): Shape1 goes to the tile's corner and shows. A
// pixel off the surface (px or py below 0, or beyond Width or Height) names no tile, here
// and in a press.
void PointerMoved(Form8& form, int px, int py);

// A press at surface pixel (px, py), any button: the tile becomes XXt and YYt (nothing
// goes to the ROM), and the bird icon and the landing box stand on it. The icon shows;
// the box keeps its visibility.
void PointerPressed(Form8& form, int px, int py);

// Shape2 and Image1 to the tile that XXt and YYt name.
void PlaceSpotMarkers(Form8& form);

}  // namespace tessarine
