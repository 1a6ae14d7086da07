#include "qt/WingfallArtwork.h"

#include <QPainter>
#include <QPainterPath>
#include <array>

namespace tessarine {
namespace {

// One character a tile: '.' grass, 'F' flowers, '=' road, ':' sand, '~' water, 'T' tree,
// 'H' a house and 'C' a hall, each of them a block of tiles.
constexpr std::array<const char*, 20> kHarbourTown = {
    "TTTTTTTT==TTTTTTTTTT", "TT......==......FFTT", "T..HHH..==..CCCC...T", "T..HHH..==..CCCC...T",
    "T.......==..CCCC...T", "T..FF...==.........T", "T===================", "T===================",
    "T.......==.........T", "T.HH....==...HHH...T", "T.HH....==...HHH...T", "TT..TT..==..::::::::",
    "TT..TT..==.::~~~~~~~", "T.......==::~~~~~~~~", "T..HHH..==:~~~~~~~~~", "T..HHH..==:~~~~~~~~~",
    "T.......==:~~~~~~~~~", "TFF.....==::~~~~~~~~", "TTT.....==.::~~~~~~~", "TTTTTTTT==TTT:~~~~~~",
};
constexpr std::array<const char*, 20> kIslandTown = {
    "~~~~~~~~~~~~~~~~~~~~", "~~~~::::::::::::~~~~", "~~::............::~~", "~::..TT....HHH...:~~",
    "~:..TTT....HHH...::~", "~:.........=......:~", "~:..HH.=====.===..:~", "~:..HH.=.......=..:~",
    "~:.....=.CCCC..=..:~", "~::....=.CCCC..=..:~", "~~:....=.CCCC..=.::~", "~~:..F.=.......=.:~~",
    "~~:....=========.:~~", "~~:.HHH....=.....:~~", "~~:.HHH....=..TT.:~~", "~~::.......=..TT::~~",
    "~~~:::.....=....:~~~", "~~~~~::::::=::::~~~~", "~~~~~~~~~~~=~~~~~~~~", "~~~~~~~~~~~=~~~~~~~~",
};
constexpr std::array<const char*, 20> kPondTown = {
    "TTTTTTTTTTT==TTTTTTTTTTT", "TTTT.......==.......TTTT", "TT.........==.........TT",
    "T..HHH.....==....HHH...T", "T..HHH.....==....HHH...T", "T..........==..........T",
    "T..FF......==.....FF...T", "T====================..T", "T====================..T",
    "T..........==......==..T", "T.HH..CCCC.==.HH...==..T", "T.HH..CCCC.==.HH...==..T",
    "T.....CCCC.==......==..T", "T..........==..~~~~==~~T", "T.TT...HHH.==.~~~~~~~~~T",
    "T.TT...HHH.==.~~~~~~~~~T", "T..........==..~~~~~~~.T", "TF.........==........FFT",
    "TTTT.......==.......TTTT", "TTTTTTTTTTT==TTTTTTTTTTT",
};

constexpr int kTile = kTilePixels;
const QColor kGrass(0x74, 0xB8, 0x5C);
const QColor kBlade(0x5C, 0x9E, 0x48);
const QColor kRoad(0xD9, 0xC2, 0x8E);
const QColor kSand(0xEE, 0xDE, 0xA6);
const QColor kWater(0x4C, 0x8E, 0xD6);
const QColor kWave(0xA8, 0xCF, 0xF2);
const QColor kLeaves(0x2F, 0x7A, 0x3A);
const QColor kTrunk(0x7A, 0x52, 0x30);
const QColor kWall(0xF4, 0xEC, 0xD8);
const QColor kOutline(0x3A, 0x32, 0x2C);

void DrawGround(QPainter& p, char kind, const QRect& tile) {
  switch (kind) {
    case '=':
      p.fillRect(tile, kRoad);
      p.fillRect(tile.x() + 4, tile.y() + 6, 2, 2, kRoad.darker(112));
      p.fillRect(tile.x() + 11, tile.y() + 12, 2, 2, kRoad.darker(112));
      return;
    case ':':
      p.fillRect(tile, kSand);
      p.fillRect(tile.x() + 3, tile.y() + 10, 1, 1, kSand.darker(120));
      p.fillRect(tile.x() + 12, tile.y() + 4, 1, 1, kSand.darker(120));
      return;
    case '~':
      p.fillRect(tile, kWater);
      p.setPen(kWave);
      p.drawLine(tile.x() + 2, tile.y() + 5, tile.x() + 7, tile.y() + 5);
      p.drawLine(tile.x() + 9, tile.y() + 11, tile.x() + 14, tile.y() + 11);
      return;
    default:
      p.fillRect(tile, kGrass);
      p.fillRect(tile.x() + 3, tile.y() + 4, 1, 3, kBlade);
      p.fillRect(tile.x() + 11, tile.y() + 9, 1, 3, kBlade);
      break;
  }
  if (kind == 'F') {
    const QColor petals[] = {QColor(0xF0, 0x5A, 0x6E), QColor(0xFF, 0xE0, 0x4A), QColor(0xF7, 0xF7, 0xF7)};
    for (int i = 0; i < 3; ++i) {
      p.fillRect(tile.x() + 2 + 5 * i, tile.y() + 3 + 4 * (i % 2) + 3, 3, 3, petals[i]);
    }
  } else if (kind == 'T') {
    p.fillRect(tile.x() + 7, tile.y() + 11, 3, 5, kTrunk);
    p.setPen(kLeaves.darker(130));
    p.setBrush(kLeaves);
    p.drawEllipse(tile.x() + 1, tile.y() + 1, 14, 12);
  }
}

// A building over a block of tiles: roof above, wall below, a door in the middle.
void DrawBuilding(QPainter& p, const QRect& block, const QColor& roof) {
  const QRect inner = block.adjusted(1, 2, -2, -1);
  const int roofHeight = inner.height() * 11 / 20;
  p.setPen(kOutline);
  p.setBrush(kWall);
  p.drawRect(inner.adjusted(1, roofHeight - 2, -1, 0));
  p.setBrush(roof);
  p.drawRect(QRect(inner.left(), inner.top(), inner.width(), roofHeight));
  p.setPen(roof.darker(140));
  for (int y = inner.top() + 4; y < inner.top() + roofHeight - 1; y += 4) p.drawLine(inner.left() + 1, y, inner.right() - 1, y);
  const int doorX = inner.center().x() - 3;
  p.fillRect(doorX, inner.bottom() - 8, 7, 9, kTrunk);
  p.fillRect(inner.left() + 5, inner.bottom() - 8, 5, 5, kWave);
  if (inner.width() > 40) p.fillRect(inner.right() - 9, inner.bottom() - 8, 5, 5, kWave);
}

QImage DrawTown(const std::array<const char*, 20>& rows) {
  const int across = static_cast<int>(std::char_traits<char>::length(rows[0]));
  QImage image(across * kTile, static_cast<int>(rows.size()) * kTile, QImage::Format_RGB32);
  QPainter p(&image);
  auto at = [&](int x, int y) { return x < 0 || y < 0 || x >= across || y >= 20 ? ' ' : rows[y][x]; };
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < across; ++x) DrawGround(p, at(x, y), QRect(x * kTile, y * kTile, kTile, kTile));
  }
  for (int y = 0; y < 20; ++y) {
    for (int x = 0; x < across; ++x) {
      const char kind = at(x, y);
      if ((kind != 'H' && kind != 'C') || at(x - 1, y) == kind || at(x, y - 1) == kind) continue;
      int right = x, bottom = y;
      while (at(right + 1, y) == kind) ++right;
      while (at(x, bottom + 1) == kind) ++bottom;
      const QRect block(x * kTile, y * kTile, (right - x + 1) * kTile, (bottom - y + 1) * kTile);
      DrawBuilding(p, block, kind == 'H' ? QColor(0xC8, 0x4A, 0x3C) : QColor(0x3C, 0x6E, 0xC8));
    }
  }
  return image;
}

}  // namespace

QImage TownMapPicture(MapPicture picture) {
  switch (picture) {
    case MapPicture::Picture2: return DrawTown(kHarbourTown);
    case MapPicture::Picture3: return DrawTown(kIslandTown);
    case MapPicture::Picture4: return DrawTown(kPondTown);
    case MapPicture::Brought: break;
  }
  return {};
}

QPixmap BoxMarker(const QColor& colour) {
  QPixmap box(kBoxMarkerSide, kBoxMarkerSide);
  box.fill(Qt::transparent);
  QPainter p(&box);
  p.setPen(colour);
  p.drawRect(0, 0, kBoxMarkerSide - 1, kBoxMarkerSide - 1);
  return box;
}

QPixmap BirdIcon() {
  QPixmap bird(kBirdMarkerSide, kBirdMarkerSide);
  bird.fill(Qt::transparent);
  QPainter p(&bird);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(QColor(0x1E, 0x2A, 0x44), 1.2));
  // Wings raised in flight, the body between them, the head to the right.
  QPainterPath wings;
  wings.moveTo(4, 9);
  wings.quadTo(11, 10, 15, 18);
  wings.quadTo(19, 9, 27, 5);
  wings.quadTo(22, 15, 17, 21);
  wings.lineTo(13, 21);
  wings.quadTo(10, 13, 4, 9);
  p.setBrush(QColor(0x4A, 0x7C, 0xD8));
  p.drawPath(wings);
  p.setBrush(QColor(0xF4, 0xF0, 0xE6));
  p.drawEllipse(QRectF(9, 17, 14, 8));
  p.setBrush(QColor(0x4A, 0x7C, 0xD8));
  p.drawEllipse(QRectF(20, 14, 7, 7));
  p.setBrush(QColor(0xF2, 0xA0, 0x2C));
  p.drawPolygon(QPolygonF({QPointF(26.5, 16.5), QPointF(30.5, 18), QPointF(26.5, 19.5)}));
  p.setBrush(QColor(0x1E, 0x2A, 0x44));
  p.drawEllipse(QRectF(23.2, 16, 1.6, 1.6));
  return bird;
}

}  // namespace tessarine
