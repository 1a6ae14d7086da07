#include "scripts/BuilderForms.h"

#include "forms/Controls.h"
#include "forms/Dialogs.h"
#include "forms/FreeSpace.h"
#include "forms/WriteRule.h"
#include "rom/Failure.h"
#include "rom/HexField.h"
#include "scripts/ScriptBuilders.h"

namespace tessarine {

std::vector<std::string> LevelRows() {
  std::vector<std::string> rows;
  for (int level = 0; level <= 100; ++level) rows.push_back(std::to_string(level));
  return rows;
}

Bytes BuilderMessageBytes(const CheckBox& gameReady, std::string_view message) {
  return gameReady.checked ? GameReadyMessageBytes(message) : MessageTextBytes(message);
}

std::optional<std::string> AskMessage(Dialogs& dialogs, std::string_view title, std::string_view prompt,
                                      std::string& kept) {
  std::optional<std::string> typed = dialogs.Input(prompt, title, kept);
  if (typed) kept = *typed;
  return typed;
}

std::optional<std::string> MessageForFreeSpace(const TextBox& field, std::string_view fieldName,
                                               const TextBox& textField, Dialogs& dialogs, std::string_view title,
                                               std::string_view prompt, std::string& kept) {
  static_cast<void>(ParseOffset(field.text, fieldName));
  if (&field == &textField) return AskMessage(dialogs, title, prompt, kept);
  // Beside the script: no place for a message yet, or one kept, or none typed (a cancelled
  // box): the script keeps clear of what the insert would write, the least being its end bytes.
  if (!kept.empty() || !PlaceIn(textField)) return kept;
  return AskMessage(dialogs, title, prompt, kept).value_or(std::string());
}

bool AskAndWriteMessage(RomWrite& write, Dialogs& dialogs, std::string_view title, std::string_view prompt,
                        WritePiece message, std::string& kept) {
  // One piece: a text that does not fit is refused whole, its end bytes with it.
  std::optional<std::string> typed;
  try {
    typed = AskMessage(dialogs, title, prompt, kept);
  } catch (const Failure& failure) {  // a question that no one may answer ends the action here
    throw write.Stopped(failure);
  }
  message.bytes = MessageTextBytes(typed.value_or(""));
  write.Add(std::move(message));
  return write.CheckAskAndWrite(dialogs);
}

}  // namespace tessarine
