#pragma once

#include <QWidget>

#include "shell/Form1.h"

namespace tessarine {

// The main window: shows the Form1 record.
class Form1Window : public QWidget {
  Q_OBJECT

 public:
  explicit Form1Window(Form1& form, QWidget* parent = nullptr);

  // Copies the record into the widgets.
  void Refresh();

 private:
  Form1& form_;
};

}  // namespace tessarine
