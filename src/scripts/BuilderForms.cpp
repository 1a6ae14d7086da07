#include "scripts/BuilderForms.h"

#include "forms/Dialogs.h"
#include "forms/InsertPlace.h"
#include "rom/Failure.h"
#include "scripts/ScriptBuilders.h"

namespace tessarine {

std::vector<std::string> LevelRows() {
  std::vector<std::string> rows;
  for (int level = 0; level <= 100; ++level) rows.push_back(std::to_string(level));
  return rows;
}

void AskAndWriteMessage(RomImage& rom, Dialogs& dialogs, std::string_view title, std::string_view prompt,
                        RomOffset textOffset, std::string_view field, std::string_view fieldText,
                        std::string_view written) {
  const std::string message = dialogs.Input(prompt, title).value_or("");
  try {
    RequireInsideRom(rom, textOffset, static_cast<std::int64_t>(MessageTextBytes(message).size()), "the message",
                     field, fieldText);
    WriteMessageText(rom, textOffset, message);
  } catch (const Failure& failure) {
    throw Failure(std::string(written) + " Its message was not written: " + failure.what());
  }
}

}  // namespace tessarine
