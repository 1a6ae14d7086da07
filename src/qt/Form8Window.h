#pragma once

#include <QImage>
#include <QWidget>
#include <functional>

#include "qt/QtMapPictures.h"

class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollBar;

namespace tessarine {

class QtShell;
struct Form8;

// Picture2, the map surface: draws its picture unscaled at its top left corner and
// reports the pointer's moves and presses in its own pixels, from that corner. The
// markers on it let the mouse through, so a press over one is a press on the surface.
class MapSurfaceWidget : public QWidget {
 public:
  using PointerAction = std::function<void(QPoint)>;
  MapSurfaceWidget(QWidget* parent, PointerAction moved, PointerAction pressed);
  void SetPicture(const QImage& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  PointerAction moved_;
  PointerAction pressed_;
  QImage picture_;
};

// Wingfall: where the player lands after flying. It shows the record of Form8 and turns
// picks, clicks, typing and the scroll bars into calls of the core.
class Form8Window : public QWidget {
  Q_OBJECT

 public:
  Form8Window(QtShell& shell, Form8& form);
  void Refresh();

 private:
  void BuildWidgets();
  void Connect();

  QtShell& shell_;
  Form8& form_;
  QtMapPictures pictures_;
  int shownPicture_ = -1;

  QLabel* Label1_;
  QComboBox* kanto_;
  QComboBox* hoenn_;
  QPushButton* loadbutton_;
  QPushButton* savebutton_;
  QLabel* BL_;
  QLabel* LB_;
  QLabel* XXtCaption_;
  QLineEdit* XXt_;
  QLabel* YYtCaption_;
  QLineEdit* YYt_;
  QFrame* Picture1_;
  QWidget* viewport_;  // Picture1's inside, which clips the surface
  MapSurfaceWidget* Picture2_;
  QLabel* Shape1_;
  QLabel* Shape2_;
  QLabel* Image1_;
  QScrollBar* HScroll1_;
  QScrollBar* VScroll1_;
  QPushButton* Command2_;
  QPushButton* Command1_;
  QLabel* Label5_;
  QLabel* Label6_;
  QLineEdit* Text1_;
  QLabel* Label7_;
  QLineEdit* Text2_;
  QLabel* Label2_;
};

}  // namespace tessarine
