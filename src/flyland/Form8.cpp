#include "flyland/Form8.h"

#include "flyland/MapImages.h"
#include "flyland/MapView.h"
#include "forms/Dialogs.h"
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

std::vector<std::string> LocationRows(LocationListName list) {
  const LocationList& entries = list == LocationListName::kanto ? kKantoLocations : kHoennLocations;
  return {entries.begin(), entries.end()};
}

void LoadForm8(Form8& form, std::string_view headtxt, Dialogs& dialogs) {
  form.Image1.visible = false;
  SetMapSizeFromSurface(form);

  const FlyTable* table = FindFlyTable(headtxt);
  if (table == nullptr) {
    dialogs.Message("Unsupported Rom. Please Load a Different Rom.");
    return;
  }
  if (table->code == "BPEJ") {
    ShowMapPicture(form, MapPicture::Picture3, kPicture3Size);
  } else if (table->list == LocationListName::kanto) {
    ShowMapPicture(form, MapPicture::Picture4, kPicture4Size);
    form.kanto.visible = true;
    form.hoenn.visible = false;
  }
  for (Marker* landing : {&form.Shape2, &form.Image1}) *landing = {0, 0, landing->visible};
  for (TextBox* field : {&form.XXt, &form.YYt}) field->enabled = true;
  for (Button* button : {&form.loadbutton, &form.savebutton}) button->enabled = true;
  form.hoenn.enabled = true;
}

void SelectLocation(Form8& form, RomImage& rom, std::string_view headtxt, LocationListName list, int index) {
  if (!(list == LocationListName::kanto ? form.kanto : form.hoenn).Show(index)) return;  // no such entry
  form.mapnumber = std::to_string(index);
  PressLoadbutton(form, rom, headtxt);
}

void PressLoadbutton(Form8& form, RomImage& rom, std::string_view headtxt) {
  if (const auto record = ReadFlyRecord(rom, headtxt, RecordOnScreen(form))) ShowRecord(form, *record);
  form.Image1.visible = true;
  form.Shape2.visible = true;
}

void PressSavebutton(Form8& form, RomImage& rom, std::string_view headtxt, Dialogs& dialogs) {
  if (const auto record = WriteFlyPosition(rom, headtxt, RecordOnScreen(form), form.XXt.text, form.YYt.text)) {
    ShowRecord(form, *record);
    dialogs.Message("Saved");
  }
  PressLoadbutton(form, rom, headtxt);
}

}  // namespace tessarine
