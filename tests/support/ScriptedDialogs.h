#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/Dialogs.h"

namespace tessarine::test {

// Dialogs that answer from queues and record every question, for tests that walk a user's road with no window. A
// question with no queued answer gets the harmless one: OK (or No), a cancelled input box, a cancelled file dialog, a
// program that is not found. While the next question stands, `whileAsked` may do what another program does meanwhile.
class ScriptedDialogs : public Dialogs {
 public:
  struct MessageShown {
    std::string text, title;
    MessageButtons buttons;
  };
  struct InputShown {
    std::string prompt, title, initial;
  };
  struct WindowEvent {
    WindowName window;
    bool shown;
    bool operator==(const WindowEvent&) const = default;
  };

  std::deque<MessageAnswer> messageAnswers;
  std::deque<std::optional<std::string>> inputAnswers;
  std::deque<std::string> openFileAnswers;
  std::function<void()> whileAsked;

  std::vector<MessageShown> messages;
  std::vector<InputShown> inputs;
  std::vector<std::string> fileDialogs;  // their titles
  std::vector<WindowEvent> windowEvents;
  std::vector<std::string> programsStarted;

  std::vector<std::string> MessageTexts() const {
    std::vector<std::string> texts;
    for (const MessageShown& m : messages) texts.push_back(m.text);
    return texts;
  }

  MessageAnswer Message(std::string_view text, MessageButtons buttons, std::string_view title) override {
    if (whileAsked) std::exchange(whileAsked, {})();
    messages.push_back({std::string(text), std::string(title), buttons});
    return Next(messageAnswers, buttons == MessageButtons::Ok ? MessageAnswer::Ok : MessageAnswer::No);
  }
  std::optional<std::string> Input(std::string_view prompt, std::string_view title,
                                   std::string_view initial) override {
    if (whileAsked) std::exchange(whileAsked, {})();
    inputs.push_back({std::string(prompt), std::string(title), std::string(initial)});
    return Next(inputAnswers, std::optional<std::string>());
  }
  std::string OpenFile(std::string_view title, std::string_view /*filter*/) override {
    fileDialogs.emplace_back(title);
    return Next(openFileAnswers, std::string());
  }
  void Show(WindowName window) override { windowEvents.push_back({window, true}); }
  void Hide(WindowName window) override { windowEvents.push_back({window, false}); }
  bool StartProgram(std::string_view name) override {
    programsStarted.emplace_back(name);
    return false;  // as where the program is not found
  }

 private:
  // The first queued answer, taken from the queue, or `otherwise` when none is left.
  template <typename Answer>
  static Answer Next(std::deque<Answer>& queue, Answer otherwise) {
    if (queue.empty()) return otherwise;
    otherwise = std::move(queue.front());
    queue.pop_front();
    return otherwise;
  }
};

}  // namespace tessarine::test
