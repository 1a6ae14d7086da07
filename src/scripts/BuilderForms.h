#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rom/Bytes.h"
#include "rom/GbaPointer.h"

namespace tessarine {

class Dialogs;
class RomWrite;
struct CheckBox;
struct TextBox;
struct WritePiece;

// What the three builder forms (Form3, Form4, Form5) share.

// The rows of each level list: "0" to "100"; row i is level i.
std::vector<std::string> LevelRows();

inline constexpr const char* kGameReadyCaption = "Game-ready script";
inline constexpr const char* kFindFreeSpaceCaption = "Find Free Space";

// The bytes of a typed message as the form writes it: FF 00 behind the text, or one FF
// where `gameReady` is ticked.
Bytes BuilderMessageBytes(const CheckBox& gameReady, std::string_view message);

// The prompt for the message that the wild battle script with a message shows.
inline constexpr std::string_view kWildMessageTitle = "Wild Pokemon Message";
inline constexpr std::string_view kWildMessagePrompt =
    "Type the Message you would like your Event to have. [N] = Next Line";

// Asks in an input box for the message of a script that `write` has already written, and
// writes it as the piece `message` (its name and place) by the same write rule, free-space
// question included. Closing the box is no cancel: the message is then empty, and only FF 00
// is written, since the script refers to that place. A message that may not be written is
// not, and the Failure says what was written before. The box starts with `kept`, the message
// typed last, and a typed message is kept there. False when the answer No to the free-space
// question left all unwritten.
[[nodiscard]] bool AskAndWriteMessage(RomWrite& write, Dialogs& dialogs, std::string_view title,
                                      std::string_view prompt, WritePiece message, std::string& kept);

// The message of a game-ready script, asked for before anything is checked or written, in
// the box that starts with `kept`; a typed message is kept there. None when the box was
// cancelled: the insert then stops, with nothing written.
std::optional<std::string> AskMessage(Dialogs& dialogs, std::string_view title, std::string_view prompt,
                                      std::string& kept);

// The message that a "Find Free Space" button beside `field` finds room for, or keeps clear
// of. The button's own field is parsed first: one that is no offset is refused before any
// question. Beside the text offset (`field` is `textField`) the message is asked for as
// AskMessage does; beside the script offset only while none is kept and `textField` holds a
// place for one (PlaceIn), so that the place kept clear of is as long as the message the
// insert will write. None when the box beside the text offset was cancelled: the search
// stops. Beside the script a cancelled box gives the empty message, whose end bytes the
// insert writes all the same.
std::optional<std::string> MessageForFreeSpace(const TextBox& field, std::string_view fieldName,
                                               const TextBox& textField, Dialogs& dialogs, std::string_view title,
                                               std::string_view prompt, std::string& kept);

}  // namespace tessarine
