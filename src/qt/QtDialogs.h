#pragma once

#include <QString>

#include "forms/Dialogs.h"

namespace tessarine {

// The questions of Dialogs as real Qt dialogs, over the window that is active. Windows
// are shown and hidden by QtShell, which wraps this; Show and Hide do nothing here.
class QtDialogs : public Dialogs {
 public:
  MessageAnswer Message(std::string_view text, MessageButtons buttons, std::string_view title) override;
  std::optional<std::string> Input(std::string_view prompt, std::string_view title = kDefaultTitle,
                                   std::string_view initial = {}) override;
  std::string OpenFile(std::string_view title, std::string_view filter) override;
  void Show(WindowName) override {}
  void Hide(WindowName) override {}
  bool StartProgram(std::string_view name) override;
};

// "Pokemon Advance rom|*.gba" (description and pattern, in pairs) as a Qt file filter:
// "Pokemon Advance rom (*.gba)".
QString QtFileFilter(std::string_view filter);

}  // namespace tessarine
