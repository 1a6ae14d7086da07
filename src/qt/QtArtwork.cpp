#include "qt/QtArtwork.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QRadialGradient>
#include <cmath>
#include <numbers>

namespace tessarine {
namespace {

// Warm and cool tiles, in the order the emblem's rings use them.
const QColor kTiles[] = {QColor(0xE8, 0x6A, 0x3A), QColor(0xF2, 0xA5, 0x41), QColor(0x3B, 0x7E, 0xA1),
                         QColor(0x5B, 0xA8, 0x8C), QColor(0xC4, 0x4D, 0x58), QColor(0x8E, 0x6C, 0xB8)};

QPointF HexCorner(QPointF centre, double radius, int corner) {
  const double angle = std::numbers::pi / 180.0 * (60.0 * corner - 90.0);
  return centre + QPointF(radius * std::cos(angle), radius * std::sin(angle));
}

}  // namespace

QPixmap EmblemPicture(int size) {
  QPixmap picture(size, size);
  picture.fill(Qt::transparent);
  QPainter p(&picture);
  DrawEmblem(p, size);
  return picture;
}

void DrawEmblem(QPainter& p, double size) {
  p.setRenderHint(QPainter::Antialiasing);
  const QPointF centre(size / 2.0, size / 2.0);
  const double outer = size * 0.46;
  // Six sectors of the hexagon, each cut into four triangles: one sector a tile colour.
  for (int sector = 0; sector < 6; ++sector) {
    const QPointF a = HexCorner(centre, outer, sector);
    const QPointF b = HexCorner(centre, outer, sector + 1);
    const QPointF ab = (a + b) / 2, ca = (centre + a) / 2, cb = (centre + b) / 2;
    const QPolygonF tiles[] = {QPolygonF({centre, ca, cb}), QPolygonF({ca, a, ab}), QPolygonF({cb, ab, b}),
                               QPolygonF({ca, ab, cb})};
    for (int t = 0; t < 4; ++t) {
      QColor colour = kTiles[(sector + (t == 3 ? 3 : 0)) % 6];
      colour = t == 0 ? colour.lighter(130) : t == 3 ? colour.darker(115) : colour;
      p.setPen(QPen(QColor(0xFA, 0xF6, 0xEE), size / 90.0 + 0.5));
      p.setBrush(colour);
      p.drawPolygon(tiles[t]);
    }
  }
  p.setPen(QPen(QColor(0x2E, 0x2A, 0x33), size / 60.0 + 0.5));
  p.setBrush(Qt::NoBrush);
  QPolygonF hexagon;
  for (int corner = 0; corner < 6; ++corner) hexagon << HexCorner(centre, outer, corner);
  p.drawPolygon(hexagon);
}

QIcon ApplicationIcon() {
  QIcon icon;
  for (const int size : {16, 32, 64, 128}) icon.addPixmap(EmblemPicture(size));
  return icon;
}

QPixmap ButtonFace(QSize size, bool pressed) {
  QPixmap face(size);
  face.fill(Qt::transparent);
  QPainter p(&face);
  p.setRenderHint(QPainter::Antialiasing);
  QLinearGradient fill(0, 0, 0, size.height());
  const QColor light(0xFB, 0xF8, 0xF1), dark(0xD9, 0xCF, 0xBC);
  fill.setColorAt(0, pressed ? dark : light);
  fill.setColorAt(1, pressed ? light : dark);
  const QRectF box = QRectF(face.rect()).adjusted(1, 1, -1, -1);
  p.setPen(QPen(QColor(0x8A, 0x7D, 0x68), 1.2));
  p.setBrush(fill);
  p.drawRoundedRect(box, 6, 6);
  // A strip of the emblem's colours along the bottom edge, pressed into the face when down.
  QLinearGradient strip(box.left(), 0, box.right(), 0);
  for (int i = 0; i < 6; ++i) strip.setColorAt(i / 5.0, kTiles[i]);
  p.setPen(Qt::NoPen);
  p.setBrush(strip);
  const double y = pressed ? box.bottom() - 4.5 : box.bottom() - 4;
  p.drawRoundedRect(QRectF(box.left() + 6, y, box.width() - 12, 2.5), 1, 1);
  return face;
}

QPixmap BackgroundPicture(QSize size) {
  QPixmap background(size);
  QPainter p(&background);
  QLinearGradient fill(0, 0, 0, size.height());
  fill.setColorAt(0, QColor(0xF4, 0xEF, 0xE4));
  fill.setColorAt(1, QColor(0xE3, 0xDB, 0xCB));
  p.fillRect(background.rect(), fill);
  // A faint band of triangles along the top, the emblem's pattern in the background.
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  const double step = 28;
  for (int i = 0; i * step < size.width() + step; ++i) {
    QColor colour = kTiles[i % 6];
    colour.setAlpha(34);
    p.setBrush(colour);
    const double x = i * step;
    p.drawPolygon(QPolygonF({QPointF(x, 0), QPointF(x + step, 0), QPointF(x + step / 2, step * 0.8)}));
  }
  return background;
}

QPixmap BrailleScreenshotPicture() {
  constexpr int kWidth = 240, kHeight = 160, kTile = 16, kWallBottom = 56;
  QPixmap screen(kWidth, kHeight);
  QPainter p(&screen);

  // The floor: sand tiles, each a shade of its own, with a few grains.
  for (int y = kWallBottom; y < kHeight; y += kTile) {
    for (int x = 0; x < kWidth; x += kTile) {
      const int shade = (x * 7 + y * 13) % 5;
      p.fillRect(x, y, kTile, kTile, QColor(0xD8 - shade * 3, 0xBA - shade * 3, 0x7C - shade * 2));
      p.fillRect(x + (y * 3 + x) % 11 + 2, y + (x * 5 + y) % 9 + 3, 2, 1, QColor(0xB0, 0x90, 0x58));
      p.fillRect(x, y + kTile - 1, kTile, 1, QColor(0xC6, 0xA5, 0x6A));
    }
  }
  // A path of darker flagstones from the tablet to the bottom edge.
  for (int y = kWallBottom; y < kHeight; y += kTile) {
    for (int x = 96; x < 144; x += kTile) {
      p.fillRect(x + 1, y + 1, kTile - 2, kTile - 2, QColor(0xB4, 0x96, 0x68));
    }
  }
  // The wall: courses of bricks, each course offset by half a brick, and its shadow.
  p.fillRect(0, 0, kWidth, kWallBottom, QColor(0x7A, 0x5C, 0x40));
  for (int course = 0; course * 8 < kWallBottom; ++course) {
    const int offset = course % 2 == 0 ? 0 : 12;
    for (int x = -offset; x < kWidth; x += 24) {
      const int shade = ((x + course * 24) / 24 * 5 + course) % 4;
      p.fillRect(x + 1, course * 8 + 1, 22, 6, QColor(0x9C - shade * 6, 0x78 - shade * 5, 0x52 - shade * 4));
    }
  }
  p.fillRect(0, kWallBottom, kWidth, 4, QColor(0x9E, 0x80, 0x52));

  p.setRenderHint(QPainter::Antialiasing);
  // The tablet, with rows of carved dots.
  p.setPen(QPen(QColor(0x5A, 0x44, 0x30), 1));
  p.setBrush(QColor(0xC9, 0xB8, 0x9A));
  p.drawRoundedRect(QRectF(92.5, 6.5, 55, 44), 3, 3);
  p.setPen(Qt::NoPen);
  p.setBrush(QColor(0x6E, 0x58, 0x40));
  for (int row = 0; row < 3; ++row) {
    for (int cell = 0; cell < 5; ++cell) {
      for (int dot = 0; dot < 6; ++dot) {
        if ((cell * 5 + row * 3 + dot * 7) % 3 == 0) continue;
        p.drawEllipse(QPointF(99 + cell * 10 + dot % 2 * 3.5, 13 + row * 13 + dot / 2 * 3.5), 1.2, 1.2);
      }
    }
  }
  // Two pillars standing out from the wall.
  for (const int x : {24, 200}) {
    QLinearGradient stone(x, 0, x + 16, 0);
    stone.setColorAt(0, QColor(0xB8, 0x98, 0x6C));
    stone.setColorAt(1, QColor(0x86, 0x68, 0x46));
    p.setBrush(stone);
    p.drawRect(x, 20, 16, 76);
    p.setBrush(QColor(0x00, 0x00, 0x00, 50));
    p.drawEllipse(QRectF(x - 3, 92, 22, 8));
  }
  // The traveller, seen from behind, facing the tablet.
  p.setBrush(QColor(0x00, 0x00, 0x00, 60));
  p.drawEllipse(QRectF(111, 88, 18, 6));
  p.setBrush(QColor(0x3B, 0x7E, 0xA1));
  p.drawRoundedRect(QRectF(112, 72, 16, 18), 4, 4);
  p.setBrush(QColor(0x4A, 0x34, 0x2A));
  p.drawEllipse(QRectF(113, 60, 14, 14));
  p.setBrush(QColor(0xE8, 0x6A, 0x3A));
  p.drawChord(QRectF(112, 58, 16, 14), 0, 180 * 16);
  return screen;
}

}  // namespace tessarine
