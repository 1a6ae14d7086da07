#pragma once

#include <QWidget>

#include "qt/ControlSync.h"

class QCheckBox;
class QComboBox;
class QGridLayout;
class QLabel;
class QLineEdit;
class QPushButton;

namespace tessarine {

class QtShell;
struct Form3;
struct Form4;
struct WildBattleForm;

// "Insert Wild Battle Script": what Form3Window and Form4Window share, the species, cry,
// level, item and offset rows and the Insert button. Each form adds its own rows and
// binds the level list and the button to its own operations.
class WildBattleWindow : public QWidget {
  Q_OBJECT

 public:
  // Copies the record into the widgets, with their signals blocked.
  void Refresh();

 protected:
  WildBattleWindow(QtShell& shell, WildBattleForm& form, const char* name);
  // Puts the Insert button and the check box below every row, once the form has added its
  // own, and the new buttons last in the tab order. Enter in one of the `offsets` presses
  // Insert; in the other fields it moves on (WireEnter), and in the species box, which takes
  // typing, it picks the row typed (PickTypedSpecies).
  void FinishLayout(std::initializer_list<QLineEdit*> offsets);
  virtual void RefreshOwn() = 0;

  QtShell& shell_;
  QGridLayout* grid_;
  QComboBox* Combo3_;
  QLineEdit* Text3_;
  QPushButton* Command1_;
  QCheckBox* Check1_;
  QPushButton* Command4_;

 private:
  WildBattleForm& form_;
  QLabel* Label1_;
  QComboBox* Combo1_;
  QLineEdit* pkmntxt_;
  QLabel* Label2_;
  QLineEdit* crytxt_;
  QLabel* Label3_;
  QLabel* Label4_;
  QComboBox* Combo2_;
  QLabel* Label5_;
  ComboSync combo1_, combo2_, combo3_;
};

// The wild battle alone.
class Form3Window : public WildBattleWindow {
  Q_OBJECT

 public:
  Form3Window(QtShell& shell, Form3& form);

 private:
  void RefreshOwn() override {}

  Form3& form3_;
};

// The wild battle with a message in front of it: the text offset, and a note that the
// message is asked for after Insert.
class Form4Window : public WildBattleWindow {
  Q_OBJECT

 public:
  Form4Window(QtShell& shell, Form4& form);

 private:
  void RefreshOwn() override;

  Form4& form4_;
  QLabel* Label6_;
  QLineEdit* Text12_;
  QLabel* Label7_;
  QPushButton* Command5_;
};

}  // namespace tessarine
