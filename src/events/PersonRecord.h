#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "rom/Bytes.h"
#include "rom/GbaPointer.h"

namespace tessarine {

struct Form1;
class RomImage;
class Dialogs;

// The overworld person of an event: 22 bytes of map data. Three fields are edited, the
// script pointer is read, and every other byte is carried through a save unchanged.
struct PersonRecord {
  static constexpr std::size_t kSize = 22;

  std::uint8_t keep00 = 0;
  std::int16_t sprite = 0;
  std::uint8_t keep03 = 0;
  std::int16_t keep04 = 0;
  std::int16_t keep06 = 0;
  std::uint8_t keep08 = 0;
  std::uint8_t behaviour = 0;  // the movement type
  std::uint8_t keep0A = 0;
  std::uint8_t keep0B = 0;
  std::uint8_t keep0C = 0;
  std::uint8_t keep0D = 0;
  std::int16_t keep0E = 0;
  std::int32_t script = 0;  // a GbaPointer to the event's script
  std::int16_t flag = 0;

  static PersonRecord FromBytes(const Bytes& bytes);  // missing bytes count as 0
  Bytes ToBytes() const;
};

// Why the person record at `offset` can be neither loaded nor saved: the file ends before its
// 22 bytes do. None where the file holds all of them.
std::optional<std::string> PersonRecordOutsideRom(const RomImage& rom, RomOffset offset);

// The twelve movement types of the list Combo2; the row is the value of `behaviour`.
std::vector<std::string> MovementTypeTexts();

// Reads the person record at personOffset into the person fields, then loads the event
// words. The behaviour text moves Combo2 on the way without touching the file.
void LoadPerson(Form1& form, RomImage& rom, Dialogs& dialogs);

// Reads the record afresh, replaces sprite, behaviour and flag by the fields, writes it
// back and saves the event words. Fields are parsed before anything is written.
void SavePerson(Form1& form, RomImage& rom, Dialogs& dialogs);

// behavtxt changed: selects its row of Combo2 when it names one of the twelve types.
void SetBehaviourText(Form1& form);
// A row of Combo2 was chosen: behavtxt and tehe follow it.
void SelectMovement(Form1& form, int index);

// Setters that run the control's action, as a change of the control does.
void SetBehavtxt(Form1& form, const std::string& text);  // runs SetBehaviourText if the text changes
void SetCombo2Selection(Form1& form, int index);         // runs SelectMovement

}  // namespace tessarine
