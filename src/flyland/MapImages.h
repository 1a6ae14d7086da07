#pragma once

#include <optional>
#include <string>

#include "flyland/Form8.h"

namespace tessarine {

class Dialogs;

// Where the pictures that a person brings come from: files and the clipboard. The program
// decodes them; a test answers with sizes. Each gives the size of the new picture, which
// is from then on the one to show, or none, and the picture on show stays.
class MapPictures {
 public:
  virtual ~MapPictures() = default;
  // A BMP, GIF or JPEG file; none when it is no picture, or one too large to decode.
  virtual std::optional<PictureSize> TakeFile(const std::string& path) = 0;
  // The bitmap on the clipboard; none when there is none.
  virtual std::optional<PictureSize> TakeClipboard() = 0;
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
// and the size fields still take the surface's size; a cancelled dialog changes nothing.
void LoadMapImageFile(Form8& form, Dialogs& dialogs, MapPictures& pictures);

// "Load EliteMap Clipboard Level": the bitmap on the clipboard. With none there the
// picture stays, and the size fields still take the surface's size.
void PasteMapImage(Form8& form, MapPictures& pictures);

}  // namespace tessarine
