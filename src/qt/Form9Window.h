#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace tessarine {

class QtShell;
struct Form9;

// "Unsupported ROM": asks where the name tables of an unknown game lie.
class Form9Window : public QWidget {
  Q_OBJECT

 public:
  Form9Window(QtShell& shell, Form9& form);
  void Refresh();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QtShell& shell_;
  Form9& form_;
  QLabel* Label1_;
  QLineEdit* Text1_;
  QLabel* Label2_;
  QLineEdit* Text2_;
  QPushButton* Command1_;
  QPushButton* Command2_;
};

}  // namespace tessarine
