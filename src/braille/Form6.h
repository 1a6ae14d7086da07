#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "braille/BraillePreview.h"
#include "forms/Controls.h"
#include "forms/Form1.h"

namespace tessarine {

class Dialogs;
class RomImage;

// The frame on the preview (Shape1), in pixels of the preview.
struct Shape {
  int Left = 0;
  int Top = 0;
  int Width = kFrameWidth;
  int Height = kFrameHeight;
  bool operator==(const Shape&) const = default;
};

// A text placed on the preview (Label1): its caption and its top left corner, in pixels.
struct PlacedLabel {
  std::string caption;
  int Left = 8;
  int Top = 8;
};

// A picture surface (Picture1) and its size in pixels. The picture on it is the view's own:
// the core never sees it, and no file name of it is kept.
struct PictureBox {
  int Width = kScreenWidth;
  int Height = kScreenHeight;
};

// The Braille Inserter: reads a braille record, writes a new one with the script that shows
// it, and previews where its box and its text fall on the screen. Line breaks in Text1 are
// CR LF.
struct Form6 {
  std::string title = "Tessarine Braille Inserter";
  Label Label14{"Braille Inserter"};
  Label Label9{"Braille :"};
  TextBox Text1;
  Label Label10{"Lowercase Letter will not insert. So make sure you captilize your text."};
  Label Label8{"Braille Offset: "};
  TextBox Text2{"&H000000"};
  Label Label11{"Script Offset: "};
  TextBox Text3{"&H000000"};
  Label Label2{"Postion.Left: "};
  TextBox postionleft{"&H"};
  Label Label3{"Postion.Top: "};
  TextBox postiontop{"&H"};
  Label Label4{"Msgbox.Left: "};
  TextBox msgboxleft{"&H"};
  Label Label5{"Msgbox.Top: "};
  TextBox msgboxtop{"&H"};
  Label Label6{"Braille.Left: "};
  TextBox brailleleft{"&H"};
  Label Label7{"Braille.Top: "};
  TextBox brailletop{"&H"};
  Button Command1{"Insert"};
  Button Command2{"Load"};
  Button Command3{"Apply"};
  Button Command4{"Restore"};
  Button Command5{"Load Screenshot"};
  Button Command6{"Find Free Space"};  // beside Text2
  Button Command7{"Find Free Space"};  // beside Text3
  PictureBox Picture1;
  Shape Shape1;
  PlacedLabel Label1;

  // The Open ROM after which the window opened or last loaded a record.
  FilledAt filled;
};

// Insert: asks, and on Yes writes the record (the six header fields, Text1's cells, 0xFF 0x00)
// at Text2 and its script at Text3. A window that may not write (the write rule's file, and a
// window filled before the last Open ROM) is refused before the question. Then every field is
// parsed, the pointer made, and both blocks passed by the write rule (forms/WriteRule.h: inside
// the file, out of the cartridge header, apart from each other) and its free-space question
// before the first write: a Failure there, or No, writes nothing.
void PressInsert(Form6& form, const Form1& main, RomImage& rom, Dialogs& dialogs);

// "Find Free Space" beside Text2: free space for the record of the text in Text1 (header,
// cells, FF 00), kept clear of the script at Text3; beside Text3: for the 8-byte script,
// kept clear of the record at Text2. See PressFindFreeSpace (forms/FreeSpace.h).
void PressFindRecordSpace(Form6& form, RomImage& rom, Dialogs& dialogs);
void PressFindScriptSpace(Form6& form, RomImage& rom, Dialogs& dialogs);

// Load: Restore, then the record at Text2 into the six fields and Text1, then Apply. An
// offset that does not parse fails with the fields as they were.
void PressLoad(Form6& form, const Form1& main, RomImage& rom);

// Apply: Restore, then the frame and the text where PreviewLayout puts them, as far as it gets.
void PressApply(Form6& form);

// Restore: the frame back to where it starts. The text stays.
void PressRestore(Form6& form);

// Makes the picture at `path` the preview's picture; answers "" when it did, otherwise the
// sentence that says why it could not.
using PictureLoader = std::function<std::string(const std::string& path)>;

// Load Screenshot: the file dialog; a chosen file becomes the preview's picture. A cancelled
// dialog changes nothing; a file that is no picture is a Failure and the picture stays.
void PressLoadScreenshot(Dialogs& dialogs, const PictureLoader& load);

// The changes that run actions. Text1: Label1 shows the text with each line break doubled.
// brailleleft and brailletop: Label1 moves to the field times 8 pixels, or stays where that
// leaves 32 bits.
void SetText1(Form6& form, std::string text);

// Text1 as a text box holds it for editing: its lines (CR LF apart), each cut into pieces of
// at most `pieceBytes` bytes, at the start of a character. A box that lays out its text a
// piece at a time then lays out again only the piece that a key changes, also in a record
// whose text runs over megabytes of cells. `continues`: the piece goes on the line of the
// piece before it, with no line break between.
struct TextPiece {
  std::string_view text;
  bool continues = false;
};
inline constexpr std::size_t kTextPieceBytes = 4096;
std::vector<TextPiece> TextPieces(std::string_view text, std::size_t pieceBytes = kTextPieceBytes);

// The text that pieces make, the way back: each piece behind the one before, with CR LF
// before a piece that starts a line of its own.
std::string TextOfPieces(const std::vector<TextPiece>& pieces);
void SetBrailleLeft(Form6& form, std::string text);
void SetBrailleTop(Form6& form, std::string text);

}  // namespace tessarine
