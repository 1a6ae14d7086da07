#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace tessarine {

// The largest picture that Tessarine decodes: a side of 8192 pixels, and 16 million pixels
// in all (64 MB as 32-bit pixels). A map of 256 tiles is 4096 pixels across, and the
// braille preview is 240 by 160, so every picture a person means to use fits. A file that
// claims more is refused from its header, before anything is decoded.
inline constexpr int kMaxPictureSide = 8192;
inline constexpr qint64 kMaxPicturePixels = qint64{1} << 24;

// A picture read from a file, or the sentence that says why there is none.
struct PictureFile {
  QImage image;     // null when the file gave no picture
  QString problem;  // empty when it did
};

// Reads a BMP, GIF or JPEG file (the format is told by its content), refusing one whose
// size is unknown or beyond the bounds above without decoding it.
PictureFile LoadPictureFile(const QString& path);

// The same for the bytes of a picture held in memory, such as one on the clipboard;
// `name` names it in the problem.
PictureFile LoadPictureData(const QByteArray& bytes, const QString& name);

}  // namespace tessarine
