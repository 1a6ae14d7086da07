#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tessarine {

// The windows of the system, by their names.
enum class WindowName { Form1, Form2, Form3, Form4, Form5, Form6, Form8, Form9, frmAbout };

// A Yes/No question has No as its default button, which Enter presses: a question before a
// write to the ROM, which cannot be undone, is never answered Yes by habit.
enum class MessageButtons { Ok, YesNo };
enum class MessageAnswer { Ok, Yes, No };

inline constexpr std::string_view kDefaultTitle = "Tessarine";

// What the logic asks of the person and of the desktop. The program answers with real
// dialogs and windows; tests answer from a script and record every question.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // A message box; waits for the answer.
  virtual MessageAnswer Message(std::string_view text, MessageButtons buttons = MessageButtons::Ok,
                                std::string_view title = kDefaultTitle) = 0;
  // An input box, its field holding `initial` to start with; none when the person cancels it.
  virtual std::optional<std::string> Input(std::string_view prompt, std::string_view title = kDefaultTitle,
                                           std::string_view initial = {}) = 0;
  // A file-open dialog with a filter such as "Pokemon Advance rom|*.gba"; empty when cancelled.
  virtual std::string OpenFile(std::string_view title, std::string_view filter) = 0;

  // Shows the one instance of a window, creating it on first use; does not wait.
  virtual void Show(WindowName window) = 0;
  virtual void Hide(WindowName window) = 0;

  // Starts a program by name, with no arguments, and does not wait. False when it could
  // not be started.
  virtual bool StartProgram(std::string_view name) = 0;
};

}  // namespace tessarine
