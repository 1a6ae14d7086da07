#pragma once

#include <QImage>

#include "flyland/MapImages.h"

namespace tessarine {

// The pictures a person brings to Wingfall's map, decoded by Qt: from BMP, GIF and JPEG
// files and from a bitmap on the clipboard, within the bounds of LoadPictureFile. It
// keeps the last one taken, which the map surface shows.
class QtMapPictures : public MapPictures {
 public:
  TakenPicture TakeFile(const std::string& path) override;
  TakenPicture TakeClipboard() override;

  const QImage& brought() const { return brought_; }

 private:
  TakenPicture Take(const QImage& image, const QString& problem);

  QImage brought_;
};

}  // namespace tessarine
