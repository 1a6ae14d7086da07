#include "qt/QtPictures.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

namespace tessarine {
namespace {

PictureFile ReadBounded(QImageReader& reader, const QString& name) {
  reader.setAutoTransform(false);
  reader.setDecideFormatFromContent(true);
  if (!reader.canRead()) {
    return {{}, "\"" + name + "\" is no picture that can be read (a BMP, GIF or JPEG file)."};
  }
  const QSize size = reader.size();
  if (!size.isValid() || size.isEmpty()) {
    return {{}, "\"" + name + "\" does not tell the size of its picture, so it was not read."};
  }
  if (size.width() > kMaxPictureSide || size.height() > kMaxPictureSide ||
      qint64{size.width()} * size.height() > kMaxPicturePixels) {
    return {{}, QString("\"%1\" holds a picture of %2 by %3 pixels, more than can be shown (at most %4 pixels a "
                        "side and %5 pixels in all), so it was not read.")
                    .arg(name)
                    .arg(size.width())
                    .arg(size.height())
                    .arg(kMaxPictureSide)
                    .arg(kMaxPicturePixels)};
  }
  QImage image = reader.read();
  if (image.isNull()) {
    return {{}, "\"" + name + "\" could not be read as a picture: " + reader.errorString() + "."};
  }
  return {image, {}};
}

}  // namespace

PictureFile LoadPictureFile(const QString& path) {
  QImageReader reader(path);
  return ReadBounded(reader, QFileInfo(path).fileName());
}

PictureFile LoadPictureData(const QByteArray& bytes, const QString& name) {
  QBuffer buffer;
  buffer.setData(bytes);
  buffer.open(QIODevice::ReadOnly);
  QImageReader reader(&buffer);
  return ReadBounded(reader, name);
}

}  // namespace tessarine
