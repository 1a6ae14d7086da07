#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "rom/GbaPointer.h"

namespace tessarine {

class Dialogs;
class RomWrite;
struct WritePiece;

// What the three builder forms (Form3, Form4, Form5) share.

// The rows of each level list: "0" to "100"; row i is level i.
std::vector<std::string> LevelRows();

// The prompt for the message that the wild battle script with a message shows.
inline constexpr std::string_view kWildMessageTitle = "Wild Pokemon Message";
inline constexpr std::string_view kWildMessagePrompt =
    "Type the Message you would like your Event to have. [N] = Next Line";

// Asks in an input box for the message of a script that `write` has already written, and
// writes it as the piece `message` (its name and place) by the same write rule. Closing the
// box is no cancel: the message is then empty, and only FF 00 is written, since the script
// refers to that place. A message that may not be written is not, and the Failure says
// what was written before.
void AskAndWriteMessage(RomWrite& write, Dialogs& dialogs, std::string_view title, std::string_view prompt,
                        WritePiece message);

}  // namespace tessarine
