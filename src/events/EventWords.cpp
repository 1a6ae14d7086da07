#include "events/EventWords.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "events/EventCatalogue.h"
#include "events/EventSelection.h"
#include "events/SaveRule.h"
#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "forms/ListRows.h"
#include "forms/WriteRule.h"
#include "rom/Failure.h"
#include "rom/GameProfile.h"
#include "rom/GbaPointer.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"

namespace tessarine {
namespace {

// A word of the event's script, by the name of the field that shows it.
struct EventWord {
  const char* name;
  int distance;
  const TextBox* field;  // what a save writes there
  RomOffset at = 0;
  std::optional<std::int16_t> found;  // none where the file ends before the word does
};

// The word that stands at `at` now, if the file holds all of it.
std::optional<std::int16_t> WordInFile(RomImage& rom, RomOffset at) {
  const Bytes bytes = rom.ReadBytes(at, 2);
  if (bytes.size() < 2) return std::nullopt;
  return static_cast<std::int16_t>(LittleEndian(bytes));
}

std::string JoinNames(const std::vector<const EventWord*>& words) {
  return words.size() == 1 ? words[0]->name : std::string(words[0]->name) + " and " + words[1]->name;
}

// What a save has written so far, for the sentence that ends it.
std::string WhatWasSaved(const std::vector<const EventWord*>& saved) {
  if (saved.empty()) return "The person record was saved.";
  return "The person record and the " + JoinNames(saved) + (saved.size() == 1 ? " word were" : " words were") +
         " saved.";
}

// Why words were left as they are, for the message after the save or the sentence that ends it.
std::string LeftAloneReason(const std::vector<const EventWord*>& leftAlone) {
  const bool one = leftAlone.size() == 1;
  std::string places;
  for (const EventWord* word : leftAlone) {
    if (!places.empty()) places += " and ";
    places += "at " + ToHexText(word->at) + " stands " + (word->found ? ToHexText(*word->found) : "the end of the ROM");
  }
  return "The " + JoinNames(leftAlone) + (one ? " word was left as it is: " : " words were left as they are: ") +
         places + (one ? ", which is no species number" : ", which are no species numbers") + " (&H0 to " +
         ToHexText(kSpeciesCount - 1) + "), and writing a species there would break the event's script.";
}

// A word as a piece of the save's write.
std::string WordPiece(std::string_view name) { return "the " + std::string(name) + " word"; }

}  // namespace

void LoadEventWords(Form1& form, RomImage& rom, Dialogs& /*dialogs*/) {
  if (auto refusal = StaleEventRefusal(form, "loading")) throw Failure(*refusal);
  const EventEntry* event = SelectedEvent(form);
  if (const EventWordLayout* layout = event != nullptr ? event->layout : nullptr) {
    if (const std::string_view constant = FixedScriptOf(form, *event); !constant.empty()) {
      form.scriptpointxt.text = constant;
      form.Text3.text = constant;
    }
    const RomOffset script = ParseOffset(form.scriptpointxt.text, "Script");
    const RomOffset firstAt = OffsetPlus(script, layout->firstWordAt);
    const RomOffset secondAt = OffsetPlus(script, layout->secondWordAt);
    const std::int16_t first = rom.ReadWord(firstAt);
    const std::int16_t second = rom.ReadWord(secondAt);

    form.Text1.visible = form.Text2.visible = !layout->showsHoobla;
    form.hoobla.visible = form.hoobla2.visible = layout->showsHoobla;
    (layout->showsHoobla ? form.hoobla : form.Text1).text = ToHexText(first);
    (layout->showsHoobla ? form.hoobla2 : form.Text2).text = ToHexText(second);
    // Where hoobla and hoobla2 are on show they hold the words as read; elsewhere they hold
    // what the species list gives them.
    if (layout->showsHoobla) form.wordsToSave = {};

    const std::int16_t followed = layout->listFollowsSecond ? second : first;
    if (IsSpeciesNumber(followed)) {
      SetCombo1Selection(form, followed);
    } else if (!layout->showsHoobla) {
      form.wordsToSave = {WordsToSave::State::NoSpecies, layout->listFollowsSecond ? "Cry" : "Pokemon",
                          layout->listFollowsSecond ? secondAt : firstAt, followed};
    }
  }
  if (FollowsRs(form.cowmoo)) form.flagtxt.text = ToHexText(form.personFlag);
}

void ExpectEventWords(const Form1& form, RomWrite& write) {
  const EventWordLayout* layout = SelectedWordLayout(form);
  if (layout == nullptr) return;
  const std::int64_t script = ParseOffset(form.scriptpointxt.text, "Script");
  for (const auto& [name, distance] : {std::pair{"Pokemon", layout->firstWordAt}, {"Cry", layout->secondWordAt}}) {
    write.Expect({WordPiece(name), script + distance, Bytes(2), "Script", form.scriptpointxt.text});
  }
}

void SaveEventWords(Form1& form, RomImage& rom, Dialogs& dialogs, RomWrite& write) {
  const EventWordLayout* layout = SelectedWordLayout(form);
  if (layout == nullptr) return;

  // The rule has put both places inside the ROM, before the person record was written.
  const std::int64_t script = ParseOffset(form.scriptpointxt.text, "Script");
  EventWord words[] = {{"Pokemon", layout->firstWordAt, &form.hoobla}, {"Cry", layout->secondWordAt, &form.hoobla2}};
  std::vector<const EventWord*> saved;
  std::vector<const EventWord*> leftAlone;
  for (EventWord& word : words) {
    word.at = static_cast<RomOffset>(script + word.distance);
    std::int16_t value = 0;
    try {
      value = SpeciesToWrite(word.field->text, word.name);
    } catch (const Failure& failure) {
      Failure stopped = write.Stopped(failure);
      throw leftAlone.empty() ? stopped : stopped.Then(LeftAloneReason(leftAlone));
    }
    word.found = WordInFile(rom, word.at);
    if (!MayOverwrite(word.found)) {
      leftAlone.push_back(&word);
      continue;
    }
    Bytes bytes;
    AppendLittleEndian(bytes, static_cast<std::uint16_t>(value), 2);
    write.Add({WordPiece(word.name), word.at, std::move(bytes), "Script", form.scriptpointxt.text}).CheckAndWrite();
    saved.push_back(&word);
  }
  if (!leftAlone.empty()) dialogs.Message(LeftAloneReason(leftAlone) + " " + WhatWasSaved(saved));
}

}  // namespace tessarine
