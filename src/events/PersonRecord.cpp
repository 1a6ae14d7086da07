#include "events/PersonRecord.h"

#include <algorithm>
#include <span>
#include <type_traits>

#include "events/EventWords.h"
#include "events/SaveRule.h"
#include "forms/Form1.h"
#include "forms/WriteRule.h"
#include "rom/Failure.h"
#include "rom/GbaPointer.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"

namespace tessarine {
namespace {

// Reads little-endian fields from a byte block in order; bytes missing at its end count as 0.
class FieldReader {
 public:
  explicit FieldReader(const Bytes& bytes) : bytes_(bytes) {}

  template <typename T>
  void operator()(T& field) {
    const std::size_t from = std::min(at_, bytes_.size());
    const std::size_t count = std::min(sizeof(T), bytes_.size() - from);
    field = static_cast<T>(LittleEndian(std::span(bytes_).subspan(from, count)));
    at_ += sizeof(T);
  }

 private:
  const Bytes& bytes_;
  std::size_t at_ = 0;
};

// Appends little-endian fields to a byte block.
class FieldWriter {
 public:
  explicit FieldWriter(Bytes& bytes) : bytes_(bytes) {}

  template <typename T>
  void operator()(T field) {
    AppendLittleEndian(bytes_, static_cast<std::make_unsigned_t<T>>(field), sizeof(T));
  }

 private:
  Bytes& bytes_;
};

// Visits the fourteen fields in their order in the record.
template <typename Record, typename Visit>
void ForEachField(Record& r, Visit visit) {
  visit(r.keep00);
  visit(r.sprite);
  visit(r.keep03);
  visit(r.keep04);
  visit(r.keep06);
  visit(r.keep08);
  visit(r.behaviour);
  visit(r.keep0A);
  visit(r.keep0B);
  visit(r.keep0C);
  visit(r.keep0D);
  visit(r.keep0E);
  visit(r.script);
  visit(r.flag);
}

PersonRecord ReadPersonRecord(Form1& form, RomImage& rom) {
  // The offset is no field a person types: before any pick there is none to ask for.
  if (form.personOffset.empty()) {
    throw Failure("No event is picked, so there is no person record to read. Pick an event in the list first.");
  }
  const RomOffset offset = ParseOffset(form.personOffset, "Person offset");
  rom.Seek(offset);  // first: no ROM open, or an offset below 0, is told as such
  if (auto outside = PersonRecordOutsideRom(rom, offset)) throw Failure(*outside + " Nothing of it was read.");
  return PersonRecord::FromBytes(rom.ReadBytes(PersonRecord::kSize));
}

}  // namespace

PersonRecord PersonRecord::FromBytes(const Bytes& bytes) {
  PersonRecord record;
  ForEachField(record, FieldReader(bytes));
  return record;
}

Bytes PersonRecord::ToBytes() const {
  Bytes bytes;
  ForEachField(*this, FieldWriter(bytes));
  return bytes;
}

std::optional<std::string> PersonRecordOutsideRom(const RomImage& rom, RomOffset offset) {
  if (rom.Holds(offset, PersonRecord::kSize)) return std::nullopt;
  return "The person record at " + ToHexText(offset) + " does not lie wholly inside the ROM, which is " +
         PlaceText(rom.Length()) + " bytes long.";
}

std::vector<std::string> MovementTypeTexts() {
  return {
      "No Movement",
      "Look around",
      "Walk around",
      "Patrol up and down [Starting up three tiles]",
      "Patrol up and down [Starting down three tiles]",
      "Patrol left and right [Starting left three tiles]",
      "Patrol left and right [Starting right three tiles]",
      "Just stand there [up]",
      "Just stand there [down]",
      "Just stand there [left]",
      "Just stand there [right]",
      "Just stand there",
  };
}

void LoadPerson(Form1& form, RomImage& rom, Dialogs& dialogs) {
  if (auto refusal = StaleEventRefusal(form, "loading")) throw Failure(*refusal);
  form.personLoaded = false;  // until the Flag, the last field, has its text
  const PersonRecord record = ReadPersonRecord(form, rom);
  // The fields take their texts in the record's order, so a pointer that cannot become an
  // offset leaves the fields after it as they were.
  form.spritetxt.text = ToHexText(record.sprite);
  SetBehavtxt(form, ToHexText(record.behaviour));
  const std::string script = ToHexText(ToRomOffset(record.script));
  form.scriptpointxt.text = script;
  form.Text3.text = script;
  form.scripteh = script;
  form.flagtxt.text = ToHexText(record.flag);
  form.personFlag = record.flag;
  form.personLoaded = true;
  form.tehe = std::to_string(form.Combo2.selected);
  LoadEventWords(form, rom, dialogs);
}

void SavePerson(Form1& form, RomImage& rom, Dialogs& dialogs) {
  if (const auto refusal = SaveRefusal(form, rom)) throw Failure(*refusal + " Nothing was written.");
  PersonRecord record = ReadPersonRecord(form, rom);
  record.sprite = ParseWord(form.spritetxt.text, "Sprite");  // the rule has parsed all three
  record.flag = ParseWord(form.flagtxt.text, "Flag");
  record.behaviour = ParseByte(form.behavtxt, "Behavior");
  RomWrite write(rom, form);
  write.Add({"the person record", ParseOffset(form.personOffset, "Person offset"), record.ToBytes()});
  ExpectEventWords(form, write);
  write.CheckAndWrite();
  form.personFlag = record.flag;
  SaveEventWords(form, rom, dialogs, write);
}

void SetBehaviourText(Form1& form) {
  const std::int32_t value = ParseLenient(form.behavtxt);
  if (value >= 0 && static_cast<std::size_t>(value) < form.Combo2.rows.size()) SetCombo2Selection(form, value);
}

void SelectMovement(Form1& form, int index) {
  SetBehavtxt(form, ToHexText(index));
  form.tehe = std::to_string(index);
}

void SetBehavtxt(Form1& form, const std::string& text) {
  if (form.behavtxt == text) return;
  form.behavtxt = text;
  SetBehaviourText(form);
}

void SetCombo2Selection(Form1& form, int index) {
  if (form.Combo2.Show(index)) SelectMovement(form, index);
}

}  // namespace tessarine
