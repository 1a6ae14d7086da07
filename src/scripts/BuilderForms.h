#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "rom/GbaPointer.h"

namespace tessarine {

class RomImage;
class Dialogs;

// What the three builder forms (Form3, Form4, Form5) share.

// The rows of each level list: "0" to "100"; row i is level i.
std::vector<std::string> LevelRows();

// The prompt for the message that the wild battle script with a message shows.
inline constexpr std::string_view kWildMessageTitle = "Wild Pokemon Message";
inline constexpr std::string_view kWildMessagePrompt =
    "Type the Message you would like your Event to have. [N] = Next Line";

// Asks in an input box for the message of a script that is already in the ROM, and writes
// it at `textOffset`. Closing the box is no cancel: the message is then empty, and only FF
// 00 is written, since the script refers to that place. A message that does not fit in
// the file is not written, and the Failure says so, and that `written` (a sentence on the
// script) stands.
void AskAndWriteMessage(RomImage& rom, Dialogs& dialogs, std::string_view title, std::string_view prompt,
                        RomOffset textOffset, std::string_view field, std::string_view fieldText,
                        std::string_view written);

}  // namespace tessarine
