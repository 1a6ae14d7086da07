#include "support/ScriptedDialogs.h"

namespace tessarine::test {

std::vector<std::string> ScriptedDialogs::MessageTexts() const {
  std::vector<std::string> texts;
  for (const MessageShown& m : messages) texts.push_back(m.text);
  return texts;
}

MessageAnswer ScriptedDialogs::Message(std::string_view text, MessageButtons buttons, std::string_view title) {
  messages.push_back({std::string(text), std::string(title), buttons});
  if (messageAnswers.empty()) return buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::No;
  const MessageAnswer answer = messageAnswers.front();
  messageAnswers.pop_front();
  return answer;
}

std::optional<std::string> ScriptedDialogs::Input(std::string_view prompt, std::string_view title) {
  inputs.push_back({std::string(prompt), std::string(title)});
  if (inputAnswers.empty()) return std::nullopt;
  auto answer = inputAnswers.front();
  inputAnswers.pop_front();
  return answer;
}

std::string ScriptedDialogs::OpenFile(std::string_view title, std::string_view filter) {
  fileDialogs.push_back({std::string(title), std::string(filter)});
  if (openFileAnswers.empty()) return {};
  std::string answer = openFileAnswers.front();
  openFileAnswers.pop_front();
  return answer;
}

void ScriptedDialogs::Show(WindowName window) { windowEvents.push_back({window, true}); }
void ScriptedDialogs::Hide(WindowName window) { windowEvents.push_back({window, false}); }

bool ScriptedDialogs::StartProgram(std::string_view name) {
  programsStarted.emplace_back(name);
  return programsStart;
}

}  // namespace tessarine::test
