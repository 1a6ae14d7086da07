#include "events/EventWords.h"

#include <optional>
#include <vector>

#include "events/EventCatalogue.h"
#include "events/EventSelection.h"
#include "forms/Dialogs.h"
#include "forms/Form1.h"
#include "forms/ListRows.h"
#include "rom/Failure.h"
#include "rom/GameProfile.h"
#include "rom/GbaPointer.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"

namespace tessarine {
namespace {

const EventWordLayout* SelectedLayout(const Form1& form) {
  const EventEntry* event = FindEvent(form.cowmoo, ParseLenient(form.whee));
  return event != nullptr ? event->layout : nullptr;
}

bool IsSpeciesNumber(std::int16_t word) { return word >= 0 && word < kSpeciesCount; }

// A word of the event's script, by the name of the field that shows it.
struct EventWord {
  const char* name;
  RomOffset at;
  std::optional<std::int16_t> found;  // none where the file ends before the word does
};

// The word that stands at `at` now, if the file holds all of it.
std::optional<std::int16_t> WordInFile(RomImage& rom, RomOffset at) {
  const Bytes bytes = rom.ReadBytes(at, 2);
  if (bytes.size() < 2) return std::nullopt;
  return static_cast<std::int16_t>(bytes[0] | (bytes[1] << 8));
}

std::string JoinNames(const std::vector<EventWord>& words) {
  return words.size() == 1 ? words[0].name : std::string(words[0].name) + " and " + words[1].name;
}

// What a save has written so far, for the sentence that ends it.
std::string WhatWasSaved(const std::vector<EventWord>& saved) {
  if (saved.empty()) return "The person record was saved.";
  return "The person record and the " + JoinNames(saved) + " word were saved.";
}

std::string LeftAloneMessage(const std::vector<EventWord>& leftAlone, const std::vector<EventWord>& saved) {
  const bool one = leftAlone.size() == 1;
  std::string places;
  for (const EventWord& word : leftAlone) {
    if (!places.empty()) places += " and ";
    places += "at " + ToHexText(word.at) + " stands " + (word.found ? ToHexText(*word.found) : "the end of the ROM");
  }
  return "The " + JoinNames(leftAlone) + (one ? " word was left as it is: " : " words were left as they are: ") +
         places + (one ? ", which is no species number" : ", which are no species numbers") + " (&H0 to " +
         ToHexText(kSpeciesCount - 1) + "), and writing a species there would break the event's script. " +
         WhatWasSaved(saved);
}

}  // namespace

void LoadEventWords(Form1& form, RomImage& rom, Dialogs& dialogs) {
  if (form.cowmoo == kFamilyE) {
    dialogs.Message("Load not supported");
    return;
  }
  form.speciesMissing.clear();
  if (const EventWordLayout* layout = SelectedLayout(form)) {
    if (layout->scriptSource != ScriptSource::PersonRecord) {
      if (const auto profile = FindGameProfile(form.headtxt)) {
        const std::string_view constant =
            layout->scriptSource == ScriptSource::LatiScript ? profile->latiScript : profile->groudonScript;
        form.scriptpointxt.text = constant;
        form.Text3.text = constant;
      }
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

    const std::int16_t followed = layout->listFollowsSecond ? second : first;
    if (followed >= 0 && static_cast<std::size_t>(followed) < form.Combo1.rows.size()) {
      SetCombo1Selection(form, followed);
    } else if (!layout->showsHoobla) {
      form.speciesMissing = std::string(layout->listFollowsSecond ? "Cry" : "Pokemon") + " word at " +
                            ToHexText(layout->listFollowsSecond ? secondAt : firstAt) + " holds " +
                            ToHexText(followed);
    }
  }
  if (form.cowmoo == kFamilyRs) form.flagtxt.text = ToHexText(form.personFlag);
}

void RequireSpeciesToSave(const Form1& form) {
  if (form.speciesMissing.empty()) return;
  throw Failure("The " + form.speciesMissing +
                ", which is no species number, so the Pokemon list shows none and there is no species to save. "
                "Pick one in the Pokemon list first. Nothing was saved.");
}

void SaveEventWords(Form1& form, RomImage& rom, Dialogs& dialogs) {
  if (form.cowmoo == kFamilyE) {
    dialogs.Message("Save not supported");
    return;
  }
  const EventWordLayout* layout = SelectedLayout(form);
  if (layout == nullptr) return;

  const RomOffset script = ParseOffset(form.scriptpointxt.text, "Script");
  const std::pair<EventWord, const TextBox*> words[] = {
      {{"Pokemon", OffsetPlus(script, layout->firstWordAt)}, &form.hoobla},
      {{"Cry", OffsetPlus(script, layout->secondWordAt)}, &form.hoobla2},
  };
  std::vector<EventWord> saved;
  std::vector<EventWord> leftAlone;
  for (auto [word, field] : words) {
    std::int16_t value;
    try {
      value = ParseWord(field->text, word.name);
    } catch (const Failure& failure) {
      throw failure.Then(WhatWasSaved(saved) + " The " + word.name + " word was not.");
    }
    word.found = WordInFile(rom, word.at);
    if (word.found && IsSpeciesNumber(*word.found)) {
      rom.WriteWord(word.at, value);
      saved.push_back(word);
    } else {
      leftAlone.push_back(word);
    }
  }
  if (!leftAlone.empty()) dialogs.Message(LeftAloneMessage(leftAlone, saved));
}

}  // namespace tessarine
