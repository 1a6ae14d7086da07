#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessarine {

struct Form1;
class RomImage;

// When a press of Save (Command9) may write, and what: decided here and nowhere else.
//
// Before anything is written, the save runs only when
//   - a ROM is open;
//   - the event fields were loaded from the ROM now open: after an Open ROM, an event must
//     be picked again;
//   - the person record lies wholly inside the ROM;
//   - the last person load read the record whole, Flag included (a script pointer that
//     cannot become an offset stops it before the Flag);
//   - Sprite and Flag are words and Behavior a byte;
//   - for an event with words, the word fields hold what the save may write into them
//     (WordsToSave): its words were read and the one that the Pokemon list follows held a
//     species number, or a species was picked in the list since;
//   - and Script is an offset; where it places the words, the write rule checks with the
//     person record before either is written (ExpectEventWords).
// Then the person record is written, and the words one after the other, Pokemon first. A
// word whose field is no word or no species number stops the save there: what was written
// before stays and the sentence says what was and what was not. A word whose place in the
// ROM holds no species number now is left as it is, and the person is told after the save.

// None when the save may run; else the sentence why not.
std::optional<std::string> SaveRefusal(const Form1& form, const RomImage& rom);

// None when the event fields belong to the ROM that is open (an event was picked since the
// last Open ROM); else the sentence why the action (`doing`: "saving", "loading") may not run.
// The one test of it, for the save and for the loads of the buttons beside the fields.
std::optional<std::string> StaleEventRefusal(const Form1& form, std::string_view doing);

// The species number in a word field, to be written; a Failure where the text is no species
// number (0 to 411), a word or not. `name` names the field in the sentence.
std::int16_t SpeciesToWrite(std::string_view text, std::string_view name);

// Whether the word that stands in the ROM may be overwritten: a species number, wholly in
// the file (none where the file ends before the word does).
bool MayOverwrite(std::optional<std::int16_t> inRom);

}  // namespace tessarine
