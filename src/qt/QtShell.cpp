#include "qt/QtShell.h"

#include <QApplication>

#include "qt/Form1Window.h"
#include "qt/Form2Window.h"
#include "qt/Form5Window.h"
#include "qt/Form9Window.h"
#include "qt/WildBattleWindows.h"
#include "qt/frmAboutWindow.h"
#include "rom/Failure.h"
#include "shell/ScriptForms.h"

namespace tessarine {

QtShell::QtShell(Dialogs& questions)
    : dialogs_(*this, questions), main_(std::make_unique<Form1Window>(*this)) {}

QtShell::~QtShell() {
  delete form2Window_.data();
  delete form3Window_.data();
  delete form4Window_.data();
  delete form5Window_.data();
  delete form9Window_.data();
  delete aboutWindow_.data();
}

void QtShell::Run(const std::function<void()>& action) {
  if (running_) {  // an action that a widget's change starts inside another one
    action();
    return;
  }
  running_ = true;
  try {
    action();
  } catch (const Failure& failure) {
    dialogs_.Message(failure.what(), MessageButtons::Ok, kDefaultTitle);
  }
  running_ = false;
  RefreshAll();
}

void QtShell::RefreshAll() {
  main_->Refresh();
  if (form2Window_) form2Window_->Refresh();
  if (form3Window_) form3Window_->Refresh();
  if (form4Window_) form4Window_->Refresh();
  if (form5Window_) form5Window_->Refresh();
  if (form9Window_) form9Window_->Refresh();
  if (aboutWindow_) aboutWindow_->Refresh();
}

void QtShell::ShowWindow(WindowName window) {
  QWidget* shown = nullptr;
  switch (window) {
    case WindowName::Form1:
      shown = main_.get();
      break;
    case WindowName::Form2:
      if (!form2Window_) {
        session_.form2 = Form2{};
        form2Window_ = new Form2Window(*this, session_.form2);
        form2Window_->show();  // the form stands also when its load fails, and shows what it has
        LoadForm2(session_.form2, session_.form1, session_.rom, dialogs_);
      }
      shown = form2Window_;
      break;
    case WindowName::Form3:
      if (!form3Window_) {
        LoadForm3(session_);
        form3Window_ = new Form3Window(*this, session_.form3);
      }
      shown = form3Window_;
      break;
    case WindowName::Form4:
      if (!form4Window_) {
        LoadForm4(session_);
        form4Window_ = new Form4Window(*this, session_.form4);
      }
      shown = form4Window_;
      break;
    case WindowName::Form5:
      if (!form5Window_) {
        LoadForm5(session_);
        form5Window_ = new Form5Window(*this, session_.form5);
      }
      shown = form5Window_;
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
    case WindowName::Form2:
      if (form2Window_) form2Window_->close();  // closing drops it; it loads afresh next time
      break;
    case WindowName::Form3:
      if (form3Window_) form3Window_->close();  // closing drops it; it loads afresh next time
      break;
    case WindowName::Form4:
      if (form4Window_) form4Window_->close();
      break;
    case WindowName::Form5:
      if (form5Window_) form5Window_->close();
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
    case WindowName::Form2: return form2Window_;
    case WindowName::Form3: return form3Window_;
    case WindowName::Form4: return form4Window_;
    case WindowName::Form5: return form5Window_;
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
