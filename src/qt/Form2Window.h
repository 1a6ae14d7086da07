#pragma once

#include <QWidget>

#include "qt/ControlSync.h"

class QComboBox;
class QLabel;
class QPushButton;

namespace tessarine {

class QtShell;
struct Form2;

// "Tessarine Starter Editor": the three starters in three species lists, with Save,
// Reload and Done. It has no text field: Enter in a list presses nothing, so that only a press
// of Save writes; Enter on a button presses that button.
class Form2Window : public QWidget {
  Q_OBJECT

 public:
  Form2Window(QtShell& shell, Form2& form);
  // Copies the record into the widgets, with their signals blocked.
  void Refresh();

 private:
  QtShell& shell_;
  Form2& form_;
  QLabel* Label1_;
  QComboBox* Combo1_;
  QLabel* Label2_;
  QComboBox* Combo2_;
  QLabel* Label3_;
  QComboBox* Combo3_;
  QPushButton* Command1_;
  QPushButton* Command3_;
  QPushButton* Command2_;
  ComboSync combo1_, combo2_, combo3_;
};

}  // namespace tessarine
