#include "events/SaveRule.h"

#include <cstdint>
#include <utility>

#include "events/EventCatalogue.h"
#include "events/PersonRecord.h"
#include "forms/Form1.h"
#include "forms/ListRows.h"
#include "rom/Failure.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"

namespace tessarine {
namespace {

// The sentence of the Failure that `parse` throws, or none.
template <typename Parse>
std::optional<std::string> ParseFailure(Parse parse) {
  try {
    parse();
  } catch (const Failure& failure) {
    return failure.what();
  }
  return std::nullopt;
}

std::optional<std::string> WordsRefusal(const Form1& form) {
  const WordsToSave& words = form.wordsToSave;
  switch (words.state) {
    case WordsToSave::State::Loaded:
      return std::nullopt;
    case WordsToSave::State::NotLoaded:
      return "The words of this event were not loaded from its script, so the Pokemon and Cry fields hold no "
             "species of it. Press Load beside Script to read them, or pick a species in the Pokemon list.";
    case WordsToSave::State::NoSpecies:
      return "The " + words.word + " word at " + ToHexText(words.at) + " holds " + ToHexText(words.holds) +
             ", which is no species number, so the Pokemon list was not moved to it and there is no species of "
             "this event to save. Pick one in the Pokemon list first.";
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::string> SaveRefusal(const Form1& form, const RomImage& rom) {
  if (!rom.IsOpen()) return "No ROM is open. Open a ROM first.";
  if (auto refusal = StaleEventRefusal(form, "saving")) return refusal;
  std::optional<std::string> outside;
  ParseFailure([&] { outside = PersonRecordOutsideRom(rom, ParseOffset(form.personOffset)); });
  if (outside) return outside;
  if (!form.personLoaded) {
    return "The person record of this event was not loaded whole: its last load stopped before it reached the "
           "Flag, so a save would write a Flag that was not read from the record.";
  }
  if (auto failure = ParseFailure([&] {
        ParseWord(form.spritetxt.text, "Sprite");
        ParseWord(form.flagtxt.text, "Flag");
        ParseByte(form.behavtxt, "Behavior");
      })) {
    return failure;
  }
  const EventWordLayout* layout = SelectedWordLayout(form);
  if (layout == nullptr) return std::nullopt;
  if (auto refusal = WordsRefusal(form)) return refusal;

  // Where the words lie is the write rule's to check, with the person record, before either is written.
  return ParseFailure([&] { ParseOffset(form.scriptpointxt.text, "Script"); });
}

std::optional<std::string> StaleEventRefusal(const Form1& form, std::string_view doing) {
  if (form.eventFields.Current(form)) return std::nullopt;
  return "Pick an event in the list before " + std::string(doing) + ": no event was picked since the ROM now open "
         "was opened, and the event fields may hold offsets that do not belong to it.";
}

std::int16_t SpeciesToWrite(std::string_view text, std::string_view name) {
  // A text that is no word is no species number either: one sentence for both, with the
  // species' own bounds, since the bounds of a word would invite "&HFFFF".
  std::int16_t value = -1;
  ParseFailure([&] { value = ParseWord(text, name); });
  if (!IsSpeciesNumber(value)) {
    throw Failure(std::string(name) + ": \"" + std::string(text) + "\" is no species number. Type one from &H0 to " +
                  ToHexText(kSpeciesCount - 1) + ", or pick a species in the Pokemon list.");
  }
  return value;
}

bool MayOverwrite(std::optional<std::int16_t> inRom) { return inRom && IsSpeciesNumber(*inRom); }

}  // namespace tessarine
