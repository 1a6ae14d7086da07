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
// Emerald: both words hold the species, and the list follows the first, the Pokemon word. As in
// Ruby and Sapphire, an event whose script is a constant of the game shows hoobla and hoobla2,
// so that a cry of its own can be typed; one whose script is the person's shows Text1 and Text2.
constexpr EventWordLayout kE1{"e 1", ScriptSource::PersonRecord, 0x0C, 0x03, false, false};
constexpr EventWordLayout kE2{"e 2", ScriptSource::PlaceScript, 0x25, 0x17, true, false};
constexpr EventWordLayout kE4{"e 4", ScriptSource::PersonRecord, 0x0D, 0x04, false, false};
constexpr EventWordLayout kE8{"e 8", ScriptSource::PlaceScript, 0x36, 0x26, true, false};
constexpr EventWordLayout kE9{"e 9", ScriptSource::PersonRecord, 0x55, 0x1B, false, false};
constexpr EventWordLayout kE10{"e 10", ScriptSource::PersonRecord, 0x50, 0x45, false, false};
constexpr EventWordLayout kE11{"e 11", ScriptSource::PlaceScript, 0x5F, 0x30, true, false};
constexpr EventWordLayout kE12{"e 12", ScriptSource::PlaceScript, 0x2D, 0x1F, true, false};

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

// Row 0 shows the first event's person, as in the other lists.
const std::array<EventEntry, 13> kEEvents{{
    {"Select a Event", nullptr, nullptr, 0},
    {"Rayquaza", nullptr, &kE1, 0},
    {"Kyogre", nullptr, &kE2, 1},
    {"Groudon", nullptr, &kE2, 2},
    {"Regirock", nullptr, &kE4, 3},
    {"Regice", nullptr, &kE4, 4},
    {"Registeel", nullptr, &kE4, 5},
    {"Latias/Latios", nullptr, nullptr, 6},  // its species comes from a variable: no words
    {"Deoxys", nullptr, &kE8, 7},
    {"Mew", nullptr, &kE9, 8},
    {"Lugia", nullptr, &kE10, 9},
    {"Ho-Oh", nullptr, &kE11, 10},
    {"Sudowoodo", nullptr, &kE12, 11},
}};

// The place of the event in the profile of the game opened last, if it has one.
const EventPlace* PlaceOf(const Form1& form, const EventEntry& event) {
  const GameProfile* profile = ProfileOf(form);
  if (profile == nullptr || event.place < 0 || static_cast<std::size_t>(event.place) >= profile->eventPlaces.size()) {
    return nullptr;
  }
  return &profile->eventPlaces[static_cast<std::size_t>(event.place)];
}

}  // namespace

std::span<const EventEntry> EventCatalogue(std::string_view family) {
  if (family == kFamilyRs) return kRsEvents;
  if (family == kFamilyFrlg) return kFrlgEvents;
  if (family == kFamilyE) return kEEvents;
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

const EventEntry* SelectedEvent(const Form1& form) { return FindEvent(form.cowmoo, ParseLenient(form.whee)); }

const EventWordLayout* SelectedWordLayout(const Form1& form) {
  const EventEntry* event = SelectedEvent(form);
  return event != nullptr ? event->layout : nullptr;
}

std::string PersonOffsetOf(const Form1& form, const EventEntry& event) {
  if (event.personField != nullptr) return form.*(event.personField);
  const EventPlace* place = PlaceOf(form, event);
  return place != nullptr ? std::string(place->person) : std::string();
}

std::string_view FixedScriptOf(const Form1& form, const EventEntry& event) {
  if (event.layout == nullptr) return {};
  const GameProfile* profile = ProfileOf(form);
  switch (event.layout->scriptSource) {
    case ScriptSource::PersonRecord: return {};
    case ScriptSource::LatiScript: return profile != nullptr ? profile->latiScript : std::string_view();
    case ScriptSource::GroudonScript: return profile != nullptr ? profile->groudonScript : std::string_view();
    case ScriptSource::PlaceScript: {
      const EventPlace* place = PlaceOf(form, event);
      return place != nullptr ? place->script : std::string_view();
    }
  }
  return {};
}

}  // namespace tessarine
