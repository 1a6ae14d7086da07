#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "forms/Dialogs.h"

namespace tessarine::test {

// Dialogs that answer from queues and record every question, for tests that walk a
// user's road with no window. A question with no queued answer gets the harmless one:
// OK (or No), a cancelled input box, a cancelled file dialog.
class ScriptedDialogs : public Dialogs {
 public:
  struct MessageShown {
    std::string text;
    std::string title;
    MessageButtons buttons;
  };
  struct InputShown {
    std::string prompt;
    std::string title;
  };
  struct FileDialogShown {
    std::string title;
    std::string filter;
  };
  struct WindowEvent {
    WindowName window;
    bool shown;
    bool operator==(const WindowEvent&) const = default;
  };

  std::deque<MessageAnswer> messageAnswers;
  std::deque<std::optional<std::string>> inputAnswers;
  std::deque<std::string> openFileAnswers;
  bool programsStart = false;

  std::vector<MessageShown> messages;
  std::vector<InputShown> inputs;
  std::vector<FileDialogShown> fileDialogs;
  std::vector<WindowEvent> windowEvents;
  std::vector<std::string> programsStarted;

  // The texts of the messages shown so far, in order.
  std::vector<std::string> MessageTexts() const;

  MessageAnswer Message(std::string_view text, MessageButtons buttons, std::string_view title) override;
  std::optional<std::string> Input(std::string_view prompt, std::string_view title) override;
  std::string OpenFile(std::string_view title, std::string_view filter) override;
  void Show(WindowName window) override;
  void Hide(WindowName window) override;
  bool StartProgram(std::string_view name) override;
};

}  // namespace tessarine::test
