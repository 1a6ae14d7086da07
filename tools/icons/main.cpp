// Writes the icon files of the install from the program's own emblem (QtArtwork): a PNG
// picture for each size asked and an SVG drawing, with no window. The build runs it:
//   tessarine_icons <folder> 48 128 256
// writes <folder>/48x48/tessarine.png, ... and <folder>/scalable/tessarine.svg.
#include <QDir>
#include <QGuiApplication>
#include <QPainter>
#include <QSvgGenerator>
#include <cstdio>

#include "qt/QtArtwork.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  if (argc < 2) {
    std::fprintf(stderr, "usage: tessarine_icons <folder> <size in pixels>...\n");
    return 2;
  }
  const QDir folder(QString::fromLocal8Bit(argv[1]));
  bool written = true;
  for (int i = 2; i < argc; ++i) {
    const int size = QString(argv[i]).toInt();
    const QString sized = QString("%1x%1").arg(size);
    written = written && size > 0 && folder.mkpath(sized) &&
              tessarine::EmblemPicture(size).save(folder.filePath(sized + "/tessarine.png"));
  }

  constexpr int kSide = 256;  // the drawing's own units; an SVG scales to any size
  QSvgGenerator drawing;
  drawing.setFileName(folder.filePath("scalable/tessarine.svg"));
  drawing.setSize(QSize(kSide, kSide));
  drawing.setViewBox(QRect(0, 0, kSide, kSide));
  drawing.setTitle("Tessarine");
  drawing.setDescription("The emblem of Tessarine: a hexagon of triangle tiles");
  QPainter painter;
  written = written && folder.mkpath("scalable") && painter.begin(&drawing);
  if (painter.isActive()) {
    tessarine::DrawEmblem(painter, kSide);
    written = painter.end() && written;
  }
  if (!written) std::fprintf(stderr, "tessarine_icons: could not write the icons into %s\n", argv[1]);
  return written ? 0 : 1;
}
