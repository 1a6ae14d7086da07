#include "scripts/BuilderForms.h"

#include "forms/Dialogs.h"
#include "forms/WriteRule.h"
#include "rom/Failure.h"
#include "scripts/ScriptBuilders.h"

namespace tessarine {

std::vector<std::string> LevelRows() {
  std::vector<std::string> rows;
  for (int level = 0; level <= 100; ++level) rows.push_back(std::to_string(level));
  return rows;
}

void AskAndWriteMessage(RomWrite& write, Dialogs& dialogs, std::string_view title, std::string_view prompt,
                        WritePiece message) {
  // One piece: a text that does not fit is refused whole, its end bytes with it.
  message.bytes = MessageTextBytes(dialogs.Input(prompt, title).value_or(""));
  write.Add(std::move(message));
  write.CheckAndWrite();
}

}  // namespace tessarine
