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

// The bytes of a file from its start, a block at a time, so that no file is held whole.
class ByteStream {
 public:
  explicit ByteStream(QIODevice& device) : device_(device) { device_.seek(0); }

  // The next byte, or -1 at the end of the file.
  int Next() {
    if (at_ == buffer_.size()) {
      base_ += buffer_.size();
      buffer_ = device_.read(kBlock);
      at_ = 0;
      if (buffer_.isEmpty()) return -1;
    }
    return static_cast<quint8>(buffer_[at_++]);
  }

  // Passes over `count` bytes; false when the file ends before them.
  bool Skip(qint64 count) {
    const qint64 target = base_ + at_ + count;
    if (target <= base_ + buffer_.size()) {
      at_ = static_cast<qsizetype>(target - base_);
      return true;
    }
    if (target > device_.size() || !device_.seek(target)) return false;
    base_ = target;
    buffer_.clear();
    at_ = 0;
    return true;
  }

 private:
  static constexpr qint64 kBlock = 1 << 16;
  QIODevice& device_;
  QByteArray buffer_;
  qint64 base_ = 0;  // where buffer_ starts in the file
  qsizetype at_ = 0;
};

// The next marker of a JPEG: the byte behind an FF that is neither a fill FF, a stuffed 00
// nor a restart marker, so that the data of a scan is passed over; -1 at the end of the file.
int NextJpegMarker(ByteStream& in) {
  for (;;) {
    int byte = in.Next();
    while (byte != 0xFF) {
      if (byte < 0) return -1;
      byte = in.Next();
    }
    int marker = in.Next();
    while (marker == 0xFF) marker = in.Next();
    if (marker != 0x00 && (marker < 0xD0 || marker > 0xD7)) return marker;
  }
}

// A JPEG is whole when its segments and scans run on to its end-of-image marker; what lies
// behind that marker (a camera's own data, another picture) is not the picture's. Segments
// are passed over by their lengths, so a thumbnail inside one is never taken for the picture.
bool JpegEndsWhole(ByteStream& in) {
  if (in.Next() != 0xFF || in.Next() != 0xD8) return true;  // not a JPEG's start: the decoder says so
  for (;;) {
    const int marker = NextJpegMarker(in);
    if (marker < 0) return false;
    if (marker == 0xD9) return true;
    if (marker == 0x01) continue;  // the one marker besides the restarts with no length
    const int high = in.Next(), low = in.Next();
    if (low < 0 || (high << 8 | low) < 2 || !in.Skip((high << 8 | low) - 2)) return false;
  }
}

// The sub-blocks of a GIF's extension or picture, up to the empty one that ends them.
bool SkipGifSubBlocks(ByteStream& in) {
  for (;;) {
    const int size = in.Next();
    if (size <= 0) return size == 0;
    if (!in.Skip(size)) return false;
  }
}

// Passes over a colour table, if the flags of its screen or picture say there is one.
bool SkipGifColourTable(ByteStream& in, int flags) { return (flags & 0x80) == 0 || in.Skip(3 << ((flags & 7) + 1)); }

// A GIF's first picture, the one the decoder reads, is whole when the sub-blocks of its
// data run on to their end; the extensions before it are passed over by their sizes, and
// what comes behind it (more frames, the trailer) is not read.
bool GifEndsWhole(ByteStream& in) {
  if (!in.Skip(10)) return false;  // the signature and the screen's width and height
  const int flags = in.Next();
  if (flags < 0 || !in.Skip(2) || !SkipGifColourTable(in, flags)) return false;
  for (;;) {
    switch (in.Next()) {
      case 0x21:  // an extension: its label, then its sub-blocks
        if (in.Next() < 0 || !SkipGifSubBlocks(in)) return false;
        break;
      case 0x2C: {  // the picture: where and how large, its flags, its colours, its code size, its data
        if (!in.Skip(8)) return false;
        const int pictureFlags = in.Next();
        return pictureFlags >= 0 && SkipGifColourTable(in, pictureFlags) && in.Skip(1) && SkipGifSubBlocks(in);
      }
      case -1:
        return false;
      default:  // the trailer before any picture, or a byte that is no block: the decoder refuses it
        return true;
    }
  }
}

// Whether the file holds its picture to its end, as far as its kind shows: Qt decodes a BMP,
// GIF or JPEG cut short with a warning at most, and fills what is missing. The file is read
// a block at a time and left where it was.
bool EndsWhole(QIODevice& device, const QByteArray& format) {
  if (format == "bmp") return HoldsItsPixels(device);
  if (format != "jpeg" && format != "gif") return true;
  const qint64 position = device.pos();
  ByteStream in(device);
  const bool whole = format == "gif" ? GifEndsWhole(in) : JpegEndsWhole(in);
  device.seek(position);
  return whole;
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
