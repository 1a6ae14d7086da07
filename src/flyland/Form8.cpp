#include "flyland/Form8.h"

#include "flyland/MapImages.h"
#include "flyland/MapView.h"
#include "forms/Dialogs.h"
#include "rom/Failure.h"
#include "rom/HexField.h"

namespace tessarine {
namespace {

// The record on screen: mapnumber is set only by a pick in a list, so it names one of
// the 20 records.
int RecordOnScreen(const Form8& form) { return ParseOffset(form.mapnumber, "Location"); }

void ShowRecord(Form8& form, const FlyRecord& record) {
  form.BL.caption = BankText(record.bank);
  form.LB.caption = LevelText(record.level);
  form.XXt.text = ToHexText(record.X);
  form.YYt.text = ToHexText(record.Y);
  PlaceSpotMarkers(form);
}

}  // namespace

std::vector<std::string> LocationRows(FlyList list) {
  const LocationList& entries = list == FlyList::kanto     ? kKantoLocations
                                : list == FlyList::emerald ? kEmeraldLocations
                                                           : kHoennLocations;
  return {entries.begin(), entries.end()};
}

void LoadForm8(Form8& form, const Form1& main, Dialogs& dialogs) {
  form.Image1.visible = false;
  SetMapSizeFromSurface(form);
  form.filled.Fill(main);

  const auto table = FindFlyTable(IdentityOf(main));
  if (!table) {
    dialogs.Message("Unsupported Rom. Please Load a Different Rom.");
    return;
  }
  if (table->list != FlyList::kanto) form.hoenn.rows = LocationRows(table->list);  // Emerald's, or hoenn's
  if (main.headtxt == "BPEJ" || table->list == FlyList::emerald) {  // Emerald, Japanese or English
    ShowMapPicture(form, MapPicture::Picture3, kPicture3Size);
  } else if (table->list == FlyList::kanto) {
    ShowMapPicture(form, MapPicture::Picture4, kPicture4Size);
    form.kanto.visible = true;
    form.hoenn.visible = false;
  }
  for (Marker* landing : {&form.Shape2, &form.Image1}) *landing = {0, 0, landing->visible};
  for (TextBox* field : {&form.XXt, &form.YYt}) field->enabled = true;
  for (Button* button : {&form.loadbutton, &form.savebutton}) button->enabled = true;
  form.hoenn.enabled = true;
}

void SelectLocation(Form8& form, RomImage& rom, const Form1& main, FlyList list, int index) {
  if (!(list == FlyList::kanto ? form.kanto : form.hoenn).Show(index)) return;  // no such entry
  form.mapnumber = std::to_string(index);
  PressLoadbutton(form, rom, main);
}

void PressLoadbutton(Form8& form, RomImage& rom, const Form1& main) {
  std::optional<FlyRecord> record;
  try {
    record = ReadFlyRecord(rom, IdentityOf(main), RecordOnScreen(form));
  } catch (const Failure&) {
    // The fields hold no record of this ROM, and no marker stands on its landing: Save refuses
    // until a load reads one.
    const Form8 start;
    form.BL.caption = start.BL.caption;
    form.LB.caption = start.LB.caption;
    form.XXt.text = start.XXt.text;
    form.YYt.text = start.YYt.text;
    form.Image1.visible = form.Shape2.visible = false;
    form.filled = {};
    throw;
  }
  if (record) {
    ShowRecord(form, *record);
    form.filled.Fill(main);
  }
  form.Image1.visible = true;
  form.Shape2.visible = true;
}

void PressSavebutton(Form8& form, RomImage& rom, const Form1& main, Dialogs& dialogs) {
  const auto record = WriteFlyPosition(rom, main, form.filled, RecordOnScreen(form), form.XXt.text, form.YYt.text);
  if (record) {
    ShowRecord(form, *record);
    dialogs.Message("Saved");
  }
  PressLoadbutton(form, rom, main);
}

}  // namespace tessarine
