#include "qt/QtPictures.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImageReader>

namespace tessarine {
namespace {

// Whether a BMP holds all the pixel bytes its header names. Qt decodes a BMP cut short
// without a word and leaves its missing rows as whatever memory held, so the rows are
// counted here first. Only the uncompressed kinds are counted; the others Qt checks itself.
bool HoldsItsPixels(QIODevice& device) {
  const qint64 position = device.pos();  // where reading the size left it
  device.seek(0);
  const QByteArray header = device.read(34);
  device.seek(position);
  const auto field = [&](int at, int width) {
    qint64 value = 0;
    for (int i = width - 1; i >= 0; --i) value = (value << 8) | static_cast<quint8>(header[at + i]);
    return value;
  };
  if (header.size() < 18) return false;
  const bool core = field(14, 4) < 40;  // the old header of 12 bytes: 16-bit sizes, no compression
  if (header.size() < (core ? 26 : 34)) return false;  // a file of one pixel may end before byte 34
  const qint64 width = core ? field(18, 2) : static_cast<qint32>(field(18, 4));
  const qint64 height = core ? field(20, 2) : static_cast<qint32>(field(22, 4));
  const qint64 bits = field(core ? 24 : 28, 2);
  const qint64 compression = core ? 0 : field(30, 4);
  if (compression != 0 && compression != 3) return true;
  return device.size() >= field(10, 4) + (width * bits + 31) / 32 * 4 * qAbs(height);
}

// Whether the file holds its picture to its end, as far as its kind shows: Qt decodes a GIF
// or a JPEG cut short with a warning at most, and fills what is missing. A JPEG ends its last
// scan with the end-of-image marker (no scan holds an FF that is not stuffed or a restart, so
// a marker found after the last scan's start is the file's own); a GIF ends with its trailer.
bool EndsWhole(QIODevice& device, const QByteArray& format) {
  if (format == "bmp") return HoldsItsPixels(device);
  if (format != "jpeg" && format != "gif") return true;
  const qint64 position = device.pos();
  device.seek(0);
  const QByteArray bytes = device.readAll();
  device.seek(position);
  if (format == "gif") return bytes.endsWith(';');
  return bytes.lastIndexOf(QByteArrayView("\xFF\xD9", 2)) > bytes.lastIndexOf(QByteArrayView("\xFF\xDA", 2));
}

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
  if (!EndsWhole(*reader.device(), reader.format())) {
    return {{}, "\"" + name + "\" is cut short: it ends before the end of its picture, so it was not read."};
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
