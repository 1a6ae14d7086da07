#include "qt/QtMapPictures.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "qt/QtPictures.h"

namespace tessarine {

std::optional<PictureSize> QtMapPictures::Take(const QImage& image) {
  if (image.isNull()) return std::nullopt;
  brought_ = image;
  return PictureSize{image.width(), image.height()};
}

std::optional<PictureSize> QtMapPictures::TakeFile(const std::string& path) {
  return Take(LoadPictureFile(QString::fromStdString(path)).image);
}

std::optional<PictureSize> QtMapPictures::TakeClipboard() {
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (data == nullptr) return std::nullopt;
  // A picture that comes as the bytes of an image file is decoded here, within the
  // bounds; one that the platform hands over already decoded is taken as it stands.
  bool encoded = false;
  for (const QString& format : data->formats()) {
    if (!format.startsWith("image/")) continue;
    encoded = true;
    if (auto size = Take(LoadPictureData(data->data(format), "The clipboard").image)) return size;
  }
  if (encoded || !data->hasImage()) return std::nullopt;
  return Take(qvariant_cast<QImage>(data->imageData()));
}

}  // namespace tessarine
