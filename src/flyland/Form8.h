#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "flyland/FlyRecords.h"
#include "forms/Controls.h"
#include "forms/Form1.h"

namespace tessarine {

class Dialogs;
class RomImage;

// The pictures that the map surface can show: the town map it holds from the start
// (Ruby, Sapphire), those of the hidden Picture3 (Emerald) and Picture4 (FireRed,
// LeafGreen), or one the person brought from a file or the clipboard.
enum class MapPicture { Picture2, Picture3, Picture4, Brought };

struct PictureSize {
  int width = 0;
  int height = 0;
};

inline constexpr PictureSize kPicture2Size{320, 320};
inline constexpr PictureSize kPicture3Size{320, 320};
inline constexpr PictureSize kPicture4Size{384, 320};

// Picture1, the viewport: a fixed frame that clips the surface and shows 20 tiles each way.
inline constexpr int kViewportWidth = 324;
inline constexpr int kViewportHeight = 325;

inline constexpr int kTilePixels = 16;
// The surface's largest side: 4094 tiles. A bar scrolls by half the tile count, and its
// offset (Value x 16) is worked out in 16 bits, so 4094 tiles, Value 2047, is the largest
// map whose every scroll position can be shown. A size beyond it is refused like a
// negative one.
inline constexpr int kMaxSurfaceTiles = 4094;
inline constexpr int kMaxSurfaceSide = kMaxSurfaceTiles * kTilePixels;

// Picture2, the map surface: the picture drawn unscaled at its top left corner, its own
// size, and where that corner stands in the viewport (0 or negative).
struct MapSurface {
  int Left = 0;
  int Top = 0;
  int Width = 320;
  int Height = 320;
  MapPicture picture = MapPicture::Picture2;
  int pictureNumber = 0;  // counts the pictures given, so that a view draws a new one
};

// A marker on the surface: the red pointer box Shape1, the landing box Shape2 (17 by 17)
// and the bird icon Image1 (32 by 32). Markers never take the mouse.
struct Marker {
  int Left = 0;
  int Top = 0;
  bool visible = false;
};
inline constexpr int kBoxMarkerSide = 17;
inline constexpr int kBirdMarkerSide = 32;

// A scroll bar from 0 to Max; one unit of Value is one tile.
struct ScrollBar {
  int Value = 0;
  int Max = 0;
};

inline constexpr std::string_view kSelectALevel = "Select a Level";

std::vector<std::string> LocationRows(FlyList list);

// Wingfall: where the player lands after flying to a location. The person picks a
// location, sees its map bank, level and landing tile, brings a picture of that map,
// clicks the landing tile on it and saves. The window works on the main window's open
// ROM and reads the game code from its headtxt at every load and save.
struct Form8 {
  std::string title = "Tessarine - Wingfall";

  Label Label1{"Location"};
  ComboBox kanto{.rows = LocationRows(FlyList::kanto), .text = std::string(kSelectALevel), .visible = false};
  ComboBox hoenn{.rows = LocationRows(FlyList::hoenn), .text = std::string(kSelectALevel), .enabled = false};
  std::string mapnumber = "0";  // the record on screen, decimal
  Button loadbutton{.caption = "Load", .enabled = false};
  Button savebutton{.caption = "Save", .enabled = false};

  Label BL{"B:0"};  // bank and level of the record on screen, greyed
  Label LB{"L:0"};
  Label XXtCaption{"X:"};
  TextBox XXt{.text = "&H00", .enabled = false};
  Label YYtCaption{"Y:"};
  TextBox YYt{.text = "&H00", .enabled = false};

  MapSurface Picture2;
  Marker Shape1{.visible = true};
  Marker Shape2;
  Marker Image1;
  ScrollBar HScroll1;
  ScrollBar VScroll1;

  Button Command2{"Load Map Image"};
  Button Command1{"Load EliteMap Clipboard Level"};
  Label Label5{"Map Size"};
  Label Label6{"W"};
  TextBox Text1{"0"};  // map width in tiles, as typed
  Label Label7{"H"};
  TextBox Text2{"0"};  // map height in tiles
  std::string op;      // width in tiles, decimal: what the scroll range follows
  std::string op2;     // height in tiles, decimal

  Label Label2{"Note: You have to Load your own Image. Wingfall Doesn't Load the maps from the rom."};

  // The per-game load and save buttons, never shown: loadbutton and savebutton run them,
  // and they differ only in the table they work on. txtchange runs the size rule for
  // both size fields.
  Button Command3{.caption = "SL", .visible = false};
  Button Command4{.caption = "SS", .visible = false};
  Button Command5{.caption = "RL", .visible = false};
  Button Command6{.caption = "RS", .visible = false};
  Button Command7{.caption = "FRL", .visible = false};
  Button Command8{.caption = "FRS", .visible = false};
  Button Command9{.caption = "LGL", .visible = false};
  Button Command10{.caption = "LGS", .visible = false};
  Button Command11{.caption = "EML", .visible = false};
  Button Command12{.caption = "EMS", .visible = false};
  Button txtchange{.visible = false};

  // The Open ROM after which the window opened or last read a record: a save writes only
  // what was read from the ROM that is open.
  FilledAt filled;
};

// The window's opening: the map size from the surface, then by the game code the list
// on show and the picture, and the controls of a record enabled. A game without a fly
// table keeps everything disabled and hears "Unsupported Rom. Please Load a Different Rom.".
void LoadForm8(Form8& form, const Form1& main, Dialogs& dialogs);

// A location picked in kanto or in hoenn (which shows Emerald's list on English Emerald): it
// becomes mapnumber and its record loads.
void SelectLocation(Form8& form, RomImage& rom, const Form1& main, FlyList list, int index);

// Load: shows bank, level and landing tile of the record mapnumber names, and puts the
// landing markers on that tile. A read that fails (a record past the end of the file) puts
// those fields back to their start texts and leaves the window holding no record of the ROM
// (FilledAt cleared), so that Save refuses until a load succeeds.
void PressLoadbutton(Form8& form, RomImage& rom, const Form1& main);

// Save: writes XXt and YYt into the record, says "Saved", and loads the record afresh.
// A text that is no byte ends it before anything is written.
void PressSavebutton(Form8& form, RomImage& rom, const Form1& main, Dialogs& dialogs);

}  // namespace tessarine
