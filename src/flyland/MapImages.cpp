#include "flyland/MapImages.h"

#include "flyland/MapView.h"
#include "forms/Dialogs.h"
#include "rom/Failure.h"
#include "rom/HexField.h"

namespace tessarine {
namespace {

// The fit rule's constants: a measure in hundredths of a millimetre set against pixels.
constexpr std::int64_t kFitDivisor = 27;
constexpr std::int64_t kFitMargin = 8;

// Steps 1 and 2 of the fit rule for one measure. The surface takes the new side only up
// to its largest.
void FitSide(int& side, int hundredths) {
  if (side > hundredths) return;
  const std::int64_t pixels = RoundHalfEven(hundredths + kFitMargin * kFitDivisor, kFitDivisor);
  if (pixels <= kMaxSurfaceSide) side = static_cast<int>(pixels);
}

std::string TilesText(int pixels) {
  return ToHexText(static_cast<std::int32_t>(RoundHalfEven(pixels, kTilePixels)));
}

void TakeNewPicture(Form8& form, const TakenPicture& picture) {
  if (picture.size) ShowMapPicture(form, MapPicture::Brought, *picture.size);
  SetMapSizeFromSurface(form);
  PressTxtchange(form);
  if (!picture.size) throw Failure(picture.problem).Then("The map keeps its picture.");
}

}  // namespace

void SetMapSizeFromSurface(Form8& form) {
  SetMapSizeText(form, MapSizeField::Text1, TilesText(form.Picture2.Width));
  SetMapSizeText(form, MapSizeField::Text2, TilesText(form.Picture2.Height));
}

int HundredthsOfMillimetre(int pixels) {
  return static_cast<int>(RoundHalfEven(std::int64_t{pixels} * 2540, 96));
}

void ShowMapPicture(Form8& form, MapPicture picture, PictureSize size) {
  form.Picture2.picture = picture;
  ++form.Picture2.pictureNumber;
  FitSurfaceToImage(form, size);
}

void FitSurfaceToImage(Form8& form, PictureSize image) {
  FitSide(form.Picture2.Height, HundredthsOfMillimetre(image.height));
  FitSide(form.Picture2.Width, HundredthsOfMillimetre(image.width));
  SetMapSizeFromSurface(form);
  PressTxtchange(form);
}

void LoadMapImageFile(Form8& form, Dialogs& dialogs, MapPictures& pictures) {
  const std::string path = dialogs.OpenFile(kMapImageTitle, kMapImageFilter);
  if (path.empty()) return;
  TakeNewPicture(form, pictures.TakeFile(path));
}

void PasteMapImage(Form8& form, MapPictures& pictures) { TakeNewPicture(form, pictures.TakeClipboard()); }

}  // namespace tessarine
