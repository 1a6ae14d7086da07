#pragma once

#include <QString>
#include <QTemporaryDir>
#include <map>
#include <string>

#include "forms/Dialogs.h"

namespace tessarine {

// The questions of Dialogs as real Qt dialogs, over the window that is active. Windows
// are shown and hidden by QtShell, which wraps this; Show and Hide do nothing here.
//
// A file dialog starts in the folder of the last file chosen in a dialog of its filter, for
// as long as this object lives; nothing of it outlives the program.
//
// Once the program is ending (ProgramEnding), no question is answered for the person: each
// one (Yes/No, input, file), also one that stood when the end came and that the quit closed,
// ends its action with the Failure kProgramEnding, and a message that only tells something
// goes to standard error, since no box can wait any more.
class QtDialogs : public Dialogs {
 public:
  static constexpr const char* kProgramEnding =
      "The program is ending, so the question is not answered and nothing more is written.";

  QtDialogs();
  // The program quits: every event loop returns, also those of the dialogs that stand.
  void ProgramEnding() { ending_ = true; }
  MessageAnswer Message(std::string_view text, MessageButtons buttons, std::string_view title) override;
  std::optional<std::string> Input(std::string_view prompt, std::string_view title = kDefaultTitle,
                                   std::string_view initial = {}) override;
  std::string OpenFile(std::string_view title, std::string_view filter) override;
  void Show(WindowName) override {}
  void Hide(WindowName) override {}
  bool StartProgram(std::string_view name) override;

 private:
  // Throws kProgramEnding once the program is ending: before a question, and after it, when
  // the quit closed it.
  void NoAnswerOnceEnding() const;

  bool ending_ = false;
  std::map<std::string, QString, std::less<>> folders_;  // by filter
  // Where Qt's file dialog keeps its history and last folder (the user's "QtProject"
  // settings), so that they stay with this run and go with it. On Windows those settings
  // are in the registry, which this does not reach.
  QTemporaryDir dialogSettings_;
};

// "Pokemon Advance rom|*.gba" (description and pattern, in pairs) as a Qt file filter:
// "Pokemon Advance rom (*.gba)".
QString QtFileFilter(std::string_view filter);

}  // namespace tessarine
