#include "qt/QtShell.h"

#include <QApplication>

#include <new>
#include <optional>
#include <stdexcept>
#include <string>

#include "qt/Form1Window.h"
#include "qt/Form9Window.h"
#include "qt/frmAboutWindow.h"
#include "rom/Failure.h"

namespace tessarine {

QtShell::QtShell(Dialogs& questions)
    : dialogs_(*this, questions), main_(std::make_unique<Form1Window>(*this)) {}

QtShell::~QtShell() {
  delete form9Window_.data();
  delete aboutWindow_.data();
}

namespace {

constexpr const char* kNoMemory =
    "The action needed more memory than the system could give, so it stopped there. Whatever it wrote to the "
    "ROM before stays written.";

// Runs an action to its end, or to the sentence that ends it. Nothing an action throws gets
// past this: an exception must never cross Qt's event loop.
std::optional<std::string> SentenceThatEnds(const std::function<void()>& action) {
  try {
    action();
  } catch (const Failure& failure) {
    return failure.what();
  } catch (const std::bad_alloc&) {
    return kNoMemory;
  } catch (const std::length_error&) {
    return kNoMemory;
  } catch (...) {
    return "The action stopped on an error of the program. Whatever it wrote to the ROM before stays written.";
  }
  return std::nullopt;
}

}  // namespace

void QtShell::Run(const std::function<void()>& action) {
  // An action can start inside another one: a click while a progress dialog or a message box
  // of the first keeps the events running. Each ends here with its own sentence; the windows
  // show their records afresh when the outermost one ends.
  const bool outermost = !running_;
  running_ = true;
  if (const auto sentence = SentenceThatEnds(action)) dialogs_.Message(*sentence, MessageButtons::Ok, kDefaultTitle);
  if (!outermost) return;
  running_ = false;
  RefreshAll();
}

void QtShell::RefreshAll() {
  main_->Refresh();
  if (form9Window_) form9Window_->Refresh();
  if (aboutWindow_) aboutWindow_->Refresh();
}

void QtShell::ShowWindow(WindowName window) {
  QWidget* shown = nullptr;
  switch (window) {
    case WindowName::Form1:
      shown = main_.get();
      break;
    case WindowName::Form9:
      if (!form9Window_) {
        session_.form9 = Form9{};  // the dialog starts afresh each time it loads
        form9Window_ = new Form9Window(*this, session_.form9);
      }
      shown = form9Window_;
      break;
    case WindowName::frmAbout:
      if (!aboutWindow_) {
        session_.about = frmAbout{};
        LoadAbout(session_.about);
        aboutWindow_ = new frmAboutWindow(*this, session_.about);
      }
      shown = aboutWindow_;
      break;
    default:  // the tool windows come with their tools
      return;
  }
  shown->show();
  shown->raise();
  shown->activateWindow();
}

void QtShell::HideWindow(WindowName window) {
  switch (window) {
    case WindowName::Form1:
      main_->hide();
      break;
    case WindowName::Form9:
      if (form9Window_) form9Window_->close();  // closing drops it; it loads afresh next time
      break;
    case WindowName::frmAbout:
      if (aboutWindow_) aboutWindow_->close();
      break;
    default:
      break;
  }
}

QWidget* QtShell::Window(WindowName window) const {
  switch (window) {
    case WindowName::Form1: return main_.get();
    case WindowName::Form9: return form9Window_;
    case WindowName::frmAbout: return aboutWindow_;
    default: return nullptr;
  }
}

void QtShell::End() {
  session_.rom.Close();
  if (form9Window_) form9Window_->deleteLater();
  if (aboutWindow_) aboutWindow_->close();
  QCoreApplication::quit();
}

void QtShell::WindowDialogs::Show(WindowName window) {
  questions_.Show(window);
  shell_.ShowWindow(window);
}

void QtShell::WindowDialogs::Hide(WindowName window) {
  questions_.Hide(window);
  shell_.HideWindow(window);
}

}  // namespace tessarine
