#pragma once

#include <optional>
#include <string>

#include "flyland/Form8.h"

namespace tessarine {

class Dialogs;

// A picture brought to the map: its size, from then on the one to show; or none, with the
// sentence that says why, and the picture on show stays.
struct TakenPicture {
  std::optional<PictureSize> size;
  std::string problem;
};

// Where the pictures that a person brings come from: files and the clipboard. The program
// decodes them; a test answers with sizes.
class MapPictures {
 public:
  virtual ~MapPictures() = default;
  // A BMP, GIF or JPEG file; none when it is no picture, is cut short or is too large.
  virtual TakenPicture TakeFile(const std::string& path) = 0;
  // The bitmap on the clipboard; none when there is none, or it is refused as a file is.
  virtual TakenPicture TakeClipboard() = 0;
};

inline constexpr const char* kMapImageTitle = "Open";
inline constexpr const char* kMapImageFilter = "Bitmap|*.bmp|Gif|*.gif|Jpeg|*.jpg";

// A picture's size in hundredths of a millimetre: pixels x 2540 / 96, to the nearest
// whole number, a half to the even one.
int HundredthsOfMillimetre(int pixels);

// Text1 and Text2 take the surface's width and height in tiles, each rounded half to even,
// and the size rule runs for each: the window's opening, and step 3 of the fit rule.
void SetMapSizeFromSurface(Form8& form);

// The surface gets a new picture, and the fit rule runs.
void ShowMapPicture(Form8& form, MapPicture picture, PictureSize size);

// The fit rule. With h and w the picture's height and width in hundredths of a
// millimetre, set against the surface's pixels as they stand:
// 1. a surface Height <= h becomes h / 27 + 8 (to the nearest pixel);
// 2. a surface Width <= w becomes w / 27 + 8;
// 3. Text1 and Text2 take the surface's size / 16 in tiles, rounded half to even;
// 4. the size rule runs for Text1 and then for Text2.
// For pictures up to several hundred pixels that is their size in tiles.
void FitSurfaceToImage(Form8& form, PictureSize image);

// "Load Map Image": a picture from a file. A file that is no picture changes no picture,
// the size fields still take the surface's size, and then a Failure says why the file was
// not taken; a cancelled dialog changes nothing.
void LoadMapImageFile(Form8& form, Dialogs& dialogs, MapPictures& pictures);

// "Load EliteMap Clipboard Level": the bitmap on the clipboard. With none there the
// picture stays, the size fields still take the surface's size, and a Failure says why.
void PasteMapImage(Form8& form, MapPictures& pictures);

}  // namespace tessarine
