#include "qt/QtMapPictures.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include "qt/QtPictures.h"

namespace tessarine {

TakenPicture QtMapPictures::Take(const QImage& image, const QString& problem) {
  if (image.isNull()) return {std::nullopt, problem.toStdString()};
  brought_ = image;
  return {PictureSize{image.width(), image.height()}, {}};
}

TakenPicture QtMapPictures::TakeFile(const std::string& path) {
  const PictureFile picture = LoadPictureFile(QString::fromStdString(path));
  return Take(picture.image, picture.problem);
}

TakenPicture QtMapPictures::TakeClipboard() {
  const QString none = "The clipboard holds no picture.";
  const QMimeData* data = QGuiApplication::clipboard()->mimeData();
  if (data == nullptr) return {std::nullopt, none.toStdString()};
  // A picture that comes as the bytes of an image file is decoded here, within the
  // bounds; one that the platform hands over already decoded is taken as it stands.
  TakenPicture refused{std::nullopt, none.toStdString()};
  for (const QString& format : data->formats()) {
    if (!format.startsWith("image/")) continue;
    const PictureFile picture = LoadPictureData(data->data(format), "The clipboard");
    refused = Take(picture.image, picture.problem);
    if (refused.size) return refused;
  }
  if (!refused.problem.empty() && refused.problem != none.toStdString()) return refused;
  if (!data->hasImage()) return refused;
  return Take(qvariant_cast<QImage>(data->imageData()), none);
}

}  // namespace tessarine
