#pragma once

#include <QObject>
#include <QPointer>
#include <array>
#include <functional>
#include <memory>

#include "forms/Dialogs.h"
#include "shell/Session.h"

class QWidget;

namespace tessarine {

class Form1Window;

// The running program: its Session (the one RomImage and the records) and every window.
// Each action of a person starts in Run, the one place where a Failure (or anything else
// thrown) is caught and its sentence shown; after the action every open window shows its
// record afresh.
//
// The main window lives as long as the shell. Every other window is one instance, made when
// it is first shown (its record loads afresh then, LoadWindow) and dropped when it closes.
class QtShell : public QObject {
  Q_OBJECT

 public:
  // `questions` answers message, input and file dialogs and starts programs: Qt's real
  // dialogs in the program, a script in tests. Windows are this shell's own.
  explicit QtShell(Dialogs& questions);
  ~QtShell() override;

  Session& session() { return session_; }
  Form1& form1() { return session_.form1; }
  Form7& form7() { return session_.form7; }
  RomImage& rom() { return session_.rom; }
  Dialogs& dialogs() { return dialogs_; }

  void Run(const std::function<void()>& action);
  void RefreshAll();

  void ShowWindow(WindowName window);
  void HideWindow(WindowName window);
  // The window while it exists, else null.
  QWidget* Window(WindowName window) const;
  Form1Window& mainWindow() { return *main_; }

  // The main window was closed: the file is closed and the program ends.
  void End();

 private:
  // The core's Dialogs: questions go to `questions`, windows to the shell.
  class WindowDialogs : public Dialogs {
   public:
    WindowDialogs(QtShell& shell, Dialogs& questions) : shell_(shell), questions_(questions) {}
    MessageAnswer Message(std::string_view text, MessageButtons buttons, std::string_view title) override {
      return questions_.Message(text, buttons, title);
    }
    std::optional<std::string> Input(std::string_view prompt, std::string_view title,
                                     std::string_view initial) override {
      return questions_.Input(prompt, title, initial);
    }
    std::string OpenFile(std::string_view title, std::string_view filter) override {
      return questions_.OpenFile(title, filter);
    }
    void Show(WindowName window) override;
    void Hide(WindowName window) override;
    bool StartProgram(std::string_view name) override { return questions_.StartProgram(name); }

   private:
    QtShell& shell_;
    Dialogs& questions_;
  };

  // A window other than the main one: the view while it stands, how to make it on its
  // record, and how to show the record in it afresh.
  struct View {
    QPointer<QWidget> widget;
    std::function<QWidget*()> make;
    void (*refresh)(QWidget*) = nullptr;
  };
  template <typename Window, typename Record>
  void Place(WindowName name, Record& record);
  View& ViewOf(WindowName name) { return views_[static_cast<std::size_t>(name)]; }

  WindowDialogs dialogs_;
  Session session_;
  std::unique_ptr<Form1Window> main_;
  std::array<View, static_cast<std::size_t>(WindowName::frmAbout) + 1> views_;
  bool running_ = false;
};

}  // namespace tessarine
