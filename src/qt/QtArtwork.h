#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>

class QPainter;

namespace tessarine {

// The pictures of the windows, drawn here: no picture files, nothing from any game.

// The emblem: a hexagon of triangle tiles. Image6 of the main window, the About box's
// icon and the application icon, also as the installed icon files (tools/icons).
QPixmap EmblemPicture(int size);
// The emblem drawn on any painter, in a square of `size` at its origin.
void DrawEmblem(QPainter& p, double size);
QIcon ApplicationIcon();

// The face of the three image buttons of the main window, normal or pressed (idown).
QPixmap ButtonFace(QSize size, bool pressed);

// The main window's background (fomr1).
QPixmap BackgroundPicture(QSize size);

// The braille preview's first picture: a made-up screen of 240 by 160 pixels, a sandstone
// chamber with a carved tablet in its wall and a traveller before it.
QPixmap BrailleScreenshotPicture();

}  // namespace tessarine
