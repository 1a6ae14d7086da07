#pragma once

#include <QPixmap>
#include <QWidget>
#include <cstddef>
#include <string>

class QFrame;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace tessarine {

class QtShell;
struct Form6;

// The Braille Inserter, Form6: the braille text and the record's fields beside the preview,
// a 240 by 160 picture with the box's frame and the braille text drawn as braille cells.
// It shows the record QtShell keeps and turns each click and edit into a call of the core.
class Form6Window : public QWidget {
  Q_OBJECT

 public:
  Form6Window(QtShell& shell, Form6& form);

  // Copies the record into the widgets, with their signals blocked.
  void Refresh();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void BuildWidgets();
  void Connect();
  void ShowLabel1();

  QtShell& shell_;
  Form6& form_;
  QPixmap background_;

  QLabel* Label14_;
  QLabel* Label9_;
  QPlainTextEdit* Text1_;
  QLabel* Label10_;
  QLabel* Label8_;
  QLineEdit* Text2_;
  QLabel* Label11_;
  QLineEdit* Text3_;
  QLabel* Label2_;
  QLineEdit* postionleft_;
  QLabel* Label3_;
  QLineEdit* postiontop_;
  QLabel* Label4_;
  QLineEdit* msgboxleft_;
  QLabel* Label5_;
  QLineEdit* msgboxtop_;
  QLabel* Label6_;
  QLineEdit* brailleleft_;
  QLabel* Label7_;
  QLineEdit* brailletop_;
  QPushButton* Command1_;
  QPushButton* Command2_;
  QPushButton* Command3_;
  QPushButton* Command4_;
  QPushButton* Command5_;
  QPushButton* Command6_;
  QPushButton* Command7_;
  QLabel* Picture1_;
  QFrame* Shape1_;
  QLabel* Label1_;

  // What the widgets were last given, so that a refresh touches only what changed.
  // Text1 holds its text a piece a block (TextPieces); these put the record's text there and
  // read back what the person typed, CR LF between lines.
  void ShowText1(const std::string& text);
  std::string TypedText1() const;
  std::string shownText1_;
  std::string shownCaption_;
  std::size_t shownLines_ = 0;
  std::size_t shownCells_ = 0;
};

}  // namespace tessarine
