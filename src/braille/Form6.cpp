#include "braille/Form6.h"

#include <array>
#include <utility>

#include "braille/BrailleRecord.h"
#include "forms/Dialogs.h"
#include "forms/FreeSpace.h"
#include "forms/WriteRule.h"
#include "rom/Failure.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"

namespace tessarine {
namespace {

constexpr std::string_view kLineBreak = "\r\n";

struct HeaderField {
  TextBox Form6::*box;
  Label Form6::*label;
};

// The header fields in the order of their bytes in the record.
constexpr std::array<HeaderField, 6> kHeaderFields{{
    {&Form6::postionleft, &Form6::Label2},
    {&Form6::postiontop, &Form6::Label3},
    {&Form6::msgboxleft, &Form6::Label4},
    {&Form6::msgboxtop, &Form6::Label5},
    {&Form6::brailleleft, &Form6::Label6},
    {&Form6::brailletop, &Form6::Label7},
}};

// A field's name in a sentence: its label without the colon, "Postion.Left".
std::string FieldName(const Label& label) {
  std::string name = label.caption;
  while (!name.empty() && (name.back() == ' ' || name.back() == ':')) name.pop_back();
  return name;
}

// Everything Insert writes, parsed and made, as the pieces of one write.
void PlanInsertion(const Form6& form, RomWrite& write) {
  BrailleHeader header{};
  for (std::size_t i = 0; i < kHeaderFields.size(); ++i) {
    header[i] = ParseByte((form.*kHeaderFields[i].box).text, FieldName(form.*kHeaderFields[i].label));
  }
  const std::string brailleField = FieldName(form.Label8);
  const std::string scriptField = FieldName(form.Label11);
  const RomOffset brailleOffset = ParseInsertOffset(form.Text2.text, brailleField);
  const RomOffset scriptOffset = ParseInsertOffset(form.Text3.text, scriptField);
  Bytes script;
  try {
    script = BrailleScriptBytes(brailleOffset);
  } catch (const Failure& failure) {
    throw Failure(brailleField + ": " + failure.what());
  }
  write.Add({"the braille record", brailleOffset, BrailleRecordBytes(header, form.Text1.text), brailleField,
             form.Text2.text});
  write.Add({"its script", scriptOffset, std::move(script), scriptField, form.Text3.text});
}

std::int64_t RecordLength(const Form6& form) { return std::ssize(BrailleRecordBytes({}, form.Text1.text)); }
std::int64_t ScriptLength() { return std::ssize(BrailleScriptBytes(kCartridgeHeaderEnd)); }

std::string DoubledLineBreaks(std::string_view text) {
  std::string doubled;
  doubled.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    if (text.substr(at, kLineBreak.size()) == kLineBreak) {
      doubled.append(kLineBreak).append(kLineBreak);
      at += kLineBreak.size();
    } else {
      doubled += text[at++];
    }
  }
  return doubled;
}

}  // namespace

void PressInsert(Form6& form, const Form1& main, RomImage& rom, Dialogs& dialogs) {
  RomWrite write(rom, main);
  // The record and the script that shows it run as one: neither may lie over the other.
  write
      .FromWindow(form.filled, "Press \"Load\" to read the record at the Braille Offset from the ROM that is open now, "
                               "or close the window and open it again.")
      .KeepApart()
      .Check();  // a window that may not write says so before the question
  if (dialogs.Message("Are you sure that you wan't to insert?", MessageButtons::YesNo, "Braille Inserted.") !=
      MessageAnswer::Yes) {
    return;
  }
  try {
    PlanInsertion(form, write);
  } catch (const Failure& failure) {
    throw write.Stopped(failure);
  }
  (void)write.CheckAskAndWrite(dialogs);  // No writes nothing and says nothing more
}

void PressFindRecordSpace(Form6& form, RomImage& rom, Dialogs& dialogs) {
  PressFindFreeSpace(form.Text2, FieldName(form.Label8), "the braille record", RecordLength(form), &form.Text3,
                     ScriptLength(), rom, dialogs);
}

void PressFindScriptSpace(Form6& form, RomImage& rom, Dialogs& dialogs) {
  PressFindFreeSpace(form.Text3, FieldName(form.Label11), "its script", ScriptLength(), &form.Text2,
                     RecordLength(form), rom, dialogs);
}

void PressLoad(Form6& form, const Form1& main, RomImage& rom) {
  PressRestore(form);
  BrailleRecord record;
  try {
    record = ReadBrailleRecord(rom, ParseOffset(form.Text2.text, FieldName(form.Label8)));
  } catch (const Failure& failure) {
    throw failure.Then("Nothing was loaded.");
  }
  form.postionleft.text = ToHexText(record.header[0]);
  form.postiontop.text = ToHexText(record.header[1]);
  form.msgboxleft.text = ToHexText(record.header[2]);
  form.msgboxtop.text = ToHexText(record.header[3]);
  SetBrailleLeft(form, ToHexText(record.header[4]));
  SetBrailleTop(form, ToHexText(record.header[5]));
  SetText1(form, std::move(record.text));
  form.filled.Fill(main);
  PressApply(form);
}

void PressApply(Form6& form) {
  PressRestore(form);
  const PreviewPlacement placed = PreviewLayout(form.postionleft.text, form.postiontop.text, form.msgboxleft.text,
                                                form.msgboxtop.text, form.brailleleft.text, form.brailletop.text);
  form.Shape1.Width = placed.frameWidth.value_or(form.Shape1.Width);
  form.Shape1.Left = placed.frameLeft.value_or(form.Shape1.Left);
  form.Shape1.Height = placed.frameHeight.value_or(form.Shape1.Height);
  form.Shape1.Top = placed.frameTop.value_or(form.Shape1.Top);
  form.Label1.Left = placed.textLeft.value_or(form.Label1.Left);
  form.Label1.Top = placed.textTop.value_or(form.Label1.Top);
}

void PressRestore(Form6& form) { form.Shape1 = Shape{}; }

void PressLoadScreenshot(Dialogs& dialogs, const PictureLoader& load) {
  const std::string path = dialogs.OpenFile("Open", "Bitmap|*.bmp|Gif|*.gif|Jpeg|*.jpg");
  if (path.empty()) return;
  const std::string problem = load(path);
  if (!problem.empty()) throw Failure(problem).Then("The preview keeps its picture.");
}

void SetText1(Form6& form, std::string text) {
  form.Text1.text = std::move(text);
  form.Label1.caption = DoubledLineBreaks(form.Text1.text);
}

std::vector<TextPiece> TextPieces(std::string_view text, std::size_t pieceBytes) {
  std::vector<TextPiece> pieces;
  for (bool more = true; more;) {
    const std::size_t end = text.find(kLineBreak);
    more = end != std::string_view::npos;
    std::string_view line = text.substr(0, end);
    bool continues = false;
    do {
      std::size_t cut = std::min(line.size(), std::max<std::size_t>(pieceBytes, 1));
      // A character's bytes stay together: back up over the continuation bytes of UTF-8.
      while (cut < line.size() && cut > 1 && (static_cast<unsigned char>(line[cut]) & 0xC0) == 0x80) --cut;
      pieces.push_back({line.substr(0, cut), continues});
      line.remove_prefix(cut);
      continues = true;
    } while (!line.empty());
    if (more) text.remove_prefix(end + kLineBreak.size());
  }
  return pieces;
}

std::string TextOfPieces(const std::vector<TextPiece>& pieces) {
  std::string text;
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (i > 0 && !pieces[i].continues) text += kLineBreak;
    text += pieces[i].text;
  }
  return text;
}

void SetBrailleLeft(Form6& form, std::string text) {
  form.brailleleft.text = std::move(text);
  form.Label1.Left = EightPixelUnits(form.brailleleft.text).value_or(form.Label1.Left);
}

void SetBrailleTop(Form6& form, std::string text) {
  form.brailletop.text = std::move(text);
  form.Label1.Top = EightPixelUnits(form.brailletop.text).value_or(form.Label1.Top);
}

}  // namespace tessarine
