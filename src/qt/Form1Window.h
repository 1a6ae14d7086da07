#pragma once

#include <QAbstractButton>
#include <QPixmap>
#include <QWidget>
#include <string>
#include <vector>

#include "qt/ControlSync.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;

namespace tessarine {

class LinedTextBoxWidget;
class QtShell;

// One of the three picture buttons along the top of the main window: a face picture with
// a caption label on it. Pressed, it shows the pressed face (idown). It takes the
// keyboard focus and Space or Enter like a push button does.
class ImageButton : public QAbstractButton {
  Q_OBJECT

 public:
  // `captionActs`: a click on the caption is a click on the picture; otherwise the caption
  // takes its clicks and does nothing with them.
  ImageButton(const QString& name, const QString& labelName, bool captionActs, QWidget* parent);
  QLabel* label() const { return label_; }
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLabel* label_;
};

// The main window, Form1: the event workspace and the script lister. It shows the
// record of QtShell::form1() and turns each click, pick and edit into a call of the core.
class Form1Window : public QWidget {
  Q_OBJECT

 public:
  explicit Form1Window(QtShell& shell);
  ~Form1Window() override;

  // Copies the record into the widgets, with their signals blocked.
  void Refresh();

  // The Tools menu at a place on the screen; waits until it closes.
  void PopUpToolsMenu(const QPoint& at);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragMoveEvent(QDragMoveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void BuildWidgets();
  void Connect();

  QtShell& shell_;
  QPixmap background_;

  ImageButton* Image3_;
  ImageButton* Image4_;
  ImageButton* Image5_;
  QLabel* Image6_;
  QComboBox* Combo3_;
  QComboBox* Combo4_;
  QComboBox* Combo5_;
  QPushButton* Command10_;
  QPushButton* Command9_;
  QLabel* Label6_;
  QLineEdit* spritetxt_;
  QLabel* Label8_;
  QLineEdit* scriptpointxt_;
  QPushButton* Command6_;
  QPushButton* frlgl_;
  QLabel* Label9_;
  QLineEdit* flagtxt_;
  QLabel* Label7_;
  QComboBox* Combo2_;
  QLabel* Label13_;
  QComboBox* Combo1_;
  QLineEdit* Text1_;
  QLineEdit* hoobla_;
  QLabel* Label12_;
  QLineEdit* Text2_;
  QLineEdit* hoobla2_;
  QLabel* Label11_;
  QLabel* hdtxt_;
  QLabel* Label18_;
  QLineEdit* Text3_;
  QPushButton* Command2_;
  QCheckBox* Check1_;
  QPushButton* Command8_;
  LinedTextBoxWidget* Text4_;

  // What the widgets were last given, so that a refresh touches only what changed.
  ComboSync combo1_, combo2_, combo3_, combo4_, combo5_;
  unsigned shownText4Puts_ = 0;
};

}  // namespace tessarine
