#pragma once

#include <QWidget>

#include "qt/ControlSync.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tessarine {

class QtShell;
struct Form5;

// "Insert Give Pokemon Script": species, level and held item from lists, the two offsets,
// and Insert, which asks for the question after the block is written.
class Form5Window : public QWidget {
  Q_OBJECT

 public:
  Form5Window(QtShell& shell, Form5& form);
  // Copies the record into the widgets, with their signals blocked.
  void Refresh();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QtShell& shell_;
  Form5& form_;
  QLabel* Image1_;
  QLabel* Label1_;
  QComboBox* Combo1_;
  QLineEdit* pkmntxt_;
  QLabel* Label2_;
  QComboBox* Combo3_;
  QLabel* Label3_;
  QComboBox* Combo2_;
  QLabel* Label4_;
  QLineEdit* Text3_;
  QLabel* Label5_;
  QLineEdit* Text12_;
  QPushButton* Command1_;
  QCheckBox* Check1_;
  QPushButton* Command2_;
  QPushButton* Command3_;
  ComboSync combo1_, combo2_, combo3_;
};

}  // namespace tessarine
