#include "shell/Form1Window.h"

namespace tessarine {

Form1Window::Form1Window(Form1& form, QWidget* parent) : QWidget(parent), form_(form) {
  setObjectName("Form1");
  Refresh();
}

void Form1Window::Refresh() { setWindowTitle(QString::fromStdString(form_.title)); }

}  // namespace tessarine
