#include "events/EventCatalogue.h"

#include <array>

#include "forms/Form1.h"
#include "rom/GameProfile.h"
#include "rom/HexField.h"

namespace tessarine {
namespace {

constexpr EventWordLayout kRs1{"rs 1", ScriptSource::PersonRecord, 0x03, 0x08, false, false};
constexpr EventWordLayout kRs2{"rs 2", ScriptSource::LatiScript, 0x59, 0x33, true, false};
constexpr EventWordLayout kRs3{"rs 3", ScriptSource::GroudonScript, 0x4F, 0x56, true, false};
constexpr EventWordLayout kRs4{"rs 4", ScriptSource::PersonRecord, 0x0D, 0x04, false, true};
constexpr EventWordLayout kFrlg1{"frlg 1", ScriptSource::PersonRecord, 0x14, 0x1B, false, false};
constexpr EventWordLayout kFrlg4{"frlg 4", ScriptSource::PersonRecord, 0x29, 0x14, false, false};

// Regirock's person is regi3 and Registeel's regi2: the list order is not the fields'.
const std::array<EventEntry, 7> kRsEvents{{
    {"Select a Event", &Form1::Label1, nullptr},
    {"Rayquaza", &Form1::Label1, &kRs1},
    {"Latias/Latios", &Form1::raytxt, &kRs2},
    {"Groudon/Kyogre", &Form1::grou, &kRs3},
    {"Regiice", &Form1::regi1, &kRs4},
    {"Regirock", &Form1::regi3, &kRs4},
    {"Registeel", &Form1::regi2, &kRs4},
}};

const std::array<EventEntry, 6> kFrlgEvents{{
    {"Select a Event", &Form1::Label1, nullptr},
    {"Zapdos", &Form1::Label1, &kFrlg1},
    {"Moltres", &Form1::regi1, &kFrlg1},
    {"Articuno", &Form1::regi2, &kFrlg1},
    {"Mewtwo", &Form1::regi3, &kFrlg4},
    {"Deoxys", &Form1::raytxt, nullptr},
}};

}  // namespace

std::span<const EventEntry> EventCatalogue(std::string_view family) {
  if (family == kFamilyRs) return kRsEvents;
  if (family == kFamilyFrlg) return kFrlgEvents;
  return {};
}

std::vector<std::string> EventEntryTexts(std::string_view family) {
  std::vector<std::string> texts;
  for (const EventEntry& entry : EventCatalogue(family)) texts.emplace_back(entry.text);
  return texts;
}

const EventEntry* FindEvent(std::string_view family, int index) {
  const auto events = EventCatalogue(family);
  if (index < 0 || static_cast<std::size_t>(index) >= events.size()) return nullptr;
  return &events[static_cast<std::size_t>(index)];
}

const EventWordLayout* SelectedWordLayout(const Form1& form) {
  const EventEntry* event = FindEvent(form.cowmoo, ParseLenient(form.whee));
  return event != nullptr ? event->layout : nullptr;
}

}  // namespace tessarine
