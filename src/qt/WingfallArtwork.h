#pragma once

#include <QColor>
#include <QImage>
#include <QPixmap>

#include "flyland/Form8.h"

namespace tessarine {

// Wingfall's pictures, drawn here: three invented towns on a grid of 16-pixel tiles
// (roads, houses, water, trees), and the markers. Nothing comes from any game.

// The built-in town map of Picture2 (320 by 320), Picture3 (320 by 320) or Picture4
// (384 by 320). A brought picture has none: it gives a null image.
QImage TownMapPicture(MapPicture picture);

// A box marker: an outline of 17 by 17 pixels in `colour`, clear inside.
QPixmap BoxMarker(const QColor& colour);

// The bird icon of the landing tile: 32 by 32 on a transparent background.
QPixmap BirdIcon();

}  // namespace tessarine
