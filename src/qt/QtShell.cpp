#include "qt/QtShell.h"

#include <QApplication>

#include <new>
#include <optional>
#include <stdexcept>
#include <string>

#include "qt/Form1Window.h"
#include "qt/Form2Window.h"
#include "qt/Form5Window.h"
#include "qt/Form6Window.h"
#include "qt/Form8Window.h"
#include "qt/Form9Window.h"
#include "qt/WildBattleWindows.h"
#include "qt/frmAboutWindow.h"
#include "rom/Failure.h"

namespace tessarine {

template <typename Window, typename Record>
void QtShell::Place(WindowName name, Record& record) {
  View& view = ViewOf(name);
  view.make = [this, &record] { return static_cast<QWidget*>(new Window(*this, record)); };
  view.refresh = [](QWidget* widget) { static_cast<Window*>(widget)->Refresh(); };
}

QtShell::QtShell(Dialogs& questions) : dialogs_(*this, questions), main_(std::make_unique<Form1Window>(*this)) {
  Place<Form2Window>(WindowName::Form2, session_.form2);
  Place<Form3Window>(WindowName::Form3, session_.form3);
  Place<Form4Window>(WindowName::Form4, session_.form4);
  Place<Form5Window>(WindowName::Form5, session_.form5);
  Place<Form6Window>(WindowName::Form6, session_.form6);
  Place<Form8Window>(WindowName::Form8, session_.form8);
  Place<Form9Window>(WindowName::Form9, session_.form9);
  Place<frmAboutWindow>(WindowName::frmAbout, session_.about);
}

QtShell::~QtShell() {
  for (View& view : views_) delete view.widget.data();
}

namespace {

constexpr const char* kNoMemory =
    "The action needed more memory than the system could give, so it stopped there. Whatever it wrote to the "
    "ROM before stays written.";
constexpr const char* kNotShown =
    "The action ended, but the windows could not show what it did for want of memory: what they show may be "
    "out of date until the next action.";

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

// A window that opens takes the keyboard at its first field, in its tab order.
void FocusFirstField(QWidget* window) {
  for (QWidget* field = window->nextInFocusChain(); field != window; field = field->nextInFocusChain()) {
    if ((field->focusPolicy() & Qt::TabFocus) && field->isEnabled() && field->isVisibleTo(window)) {
      field->setFocus(Qt::TabFocusReason);
      return;
    }
  }
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
  if (SentenceThatEnds([this] { RefreshAll(); })) {  // the action has ended; only its showing did not
    dialogs_.Message(kNotShown, MessageButtons::Ok, kDefaultTitle);
  }
}

void QtShell::RefreshAll() {
  main_->Refresh();
  for (View& view : views_) {
    if (view.widget) view.refresh(view.widget);
  }
}

void QtShell::ShowWindow(WindowName window) {
  QWidget* shown = main_.get();
  if (window != WindowName::Form1) {
    View& view = ViewOf(window);
    if (!view.make) return;  // a window that this program does not have
    if (!view.widget) {
      ResetWindow(session_, window);
      view.widget = view.make();
      view.widget->show();
      LoadWindow(session_, dialogs_, window);  // a load that fails leaves the window standing
      view.refresh(view.widget);
      FocusFirstField(view.widget);
    }
    shown = view.widget;
  }
  shown->show();
  shown->raise();
  shown->activateWindow();
}

void QtShell::HideWindow(WindowName window) {
  if (window == WindowName::Form1) {
    main_->hide();
  } else if (QWidget* widget = ViewOf(window).widget) {
    widget->close();  // closing drops it; it loads afresh next time
  }
}

QWidget* QtShell::Window(WindowName window) const {
  if (window == WindowName::Form1) return main_.get();
  return views_[static_cast<std::size_t>(window)].widget;
}

void QtShell::End() {
  session_.rom.Close();
  for (View& view : views_) {  // closing the main window ends every tool
    if (view.widget) view.widget->close();
  }
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
