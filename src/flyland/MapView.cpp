#include "flyland/MapView.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "rom/Failure.h"
#include "rom/HexField.h"

namespace tessarine {
namespace {

// A size field read strictly; none for a text that is no number. The size rule skips the
// step then, with no message, since the field changes at every key the person types.
std::optional<std::int32_t> TileCount(const std::string& text) {
  try {
    return ParseOffset(text);
  } catch (const Failure&) {
    return std::nullopt;
  }
}

// A marker's place for a tile number. A tile beyond any surface puts the marker out of
// sight, held to a distance that every widget can take.
int MarkerPixel(std::int64_t tile) {
  constexpr std::int64_t kOutOfSight = std::int64_t{kMaxSurfaceSide} * 2;
  return static_cast<int>(std::clamp<std::int64_t>(tile * kTilePixels, -kOutOfSight, kOutOfSight));
}

// Whether a pointer position lies on the surface. While a button is held the toolkit hands
// the surface every move and press, also those beyond its edges, and those name no tile.
bool OnSurface(const Form8& form, int px, int py) {
  return px >= 0 && py >= 0 && px < form.Picture2.Width && py < form.Picture2.Height;
}

ScrollBar& Bar(Form8& form, ScrollBarName bar) {
  return bar == ScrollBarName::HScroll1 ? form.HScroll1 : form.VScroll1;
}

void SetScrollMax(Form8& form, ScrollBarName bar, std::int32_t tiles) {
  const std::int64_t half = RoundHalfEven(tiles, 2);
  if (half > std::numeric_limits<std::int16_t>::max()) return;  // does not fit the bar
  ScrollBar& scroll = Bar(form, bar);
  scroll.Max = static_cast<int>(std::max<std::int64_t>(half, 0));
  if (scroll.Value > scroll.Max) {
    scroll.Value = scroll.Max;
    ScrollMap(form, bar);
  }
}

}  // namespace

std::int64_t RoundHalfEven(std::int64_t numerator, std::int64_t denominator) {
  std::int64_t quotient = numerator / denominator;
  std::int64_t remainder = numerator % denominator;
  if (remainder < 0) {  // towards minus infinity, so the remainder is 0 or more
    quotient -= 1;
    remainder += denominator;
  }
  if (2 * remainder > denominator || (2 * remainder == denominator && quotient % 2 != 0)) ++quotient;
  return quotient;
}

void SetMapSizeText(Form8& form, MapSizeField field, std::string text) {
  (field == MapSizeField::Text1 ? form.Text1 : form.Text2).text = std::move(text);
  ApplyMapSize(form, field);
}

void ApplyMapSize(Form8& form, MapSizeField field) {
  const bool width = field == MapSizeField::Text1;
  if (const auto tiles = TileCount((width ? form.Text1 : form.Text2).text);
      tiles && *tiles >= 0 && *tiles <= kMaxSurfaceTiles) {
    (width ? form.Picture2.Width : form.Picture2.Height) = *tiles * kTilePixels;
  }
  const std::int32_t across = ParseLenient(form.Text1.text);
  const std::int32_t down = ParseLenient(form.Text2.text);
  form.op = std::to_string(across);
  form.op2 = std::to_string(down);
  SetScrollMax(form, ScrollBarName::VScroll1, down);
  SetScrollMax(form, ScrollBarName::HScroll1, across);
}

void PressTxtchange(Form8& form) {
  ApplyMapSize(form, MapSizeField::Text1);
  ApplyMapSize(form, MapSizeField::Text2);
}

void SetScrollValue(Form8& form, ScrollBarName bar, int value) {
  ScrollBar& scroll = Bar(form, bar);
  scroll.Value = std::clamp(value, 0, scroll.Max);
  ScrollMap(form, bar);
}

void ScrollMap(Form8& form, ScrollBarName bar) {
  const int offset = Bar(form, bar).Value * kTilePixels;
  if (offset > std::numeric_limits<std::int16_t>::max()) return;
  (bar == ScrollBarName::HScroll1 ? form.Picture2.Left : form.Picture2.Top) = -offset;
}

void PointerMoved(Form8& form, int px, int py) {
  if (!OnSurface(form, px, py)) return;
  form.Shape1.Left = px / kTilePixels * kTilePixels;
  form.Shape1.Top = py / kTilePixels * kTilePixels;
  form.Shape1.visible = true;
}

void PointerPressed(Form8& form, int px, int py) {
  if (!OnSurface(form, px, py)) return;
  PointerMoved(form, px, py);
  form.XXt.text = ToHexText(std::int32_t{px / kTilePixels});
  form.YYt.text = ToHexText(std::int32_t{py / kTilePixels});
  form.Image1.visible = true;
  for (Marker* landing : {&form.Shape2, &form.Image1}) {
    landing->Left = form.Shape1.Left;
    landing->Top = form.Shape1.Top;
  }
}

void PlaceSpotMarkers(Form8& form) {
  const std::int32_t y = ParseOffset(form.YYt.text, "Y");
  const std::int32_t x = ParseOffset(form.XXt.text, "X");
  for (Marker* landing : {&form.Shape2, &form.Image1}) {
    landing->Top = MarkerPixel(y);
    landing->Left = MarkerPixel(x);
  }
}

}  // namespace tessarine
