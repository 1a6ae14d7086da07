#pragma once

#include <QPlainTextEdit>

#include <functional>
#include <optional>

#include "shell/modLinedTextBox.h"

namespace tessarine {

// A multi-line text box with a gutter of line numbers on its left: Text4 of the main window.
// The gutter is a strip of its own beside the text view, kept in step with it; it paints
// anew on every key, click, drag step, scroll, change of focus and change of text, and a
// press in it reaches the text as a press left of the text. Lines do not wrap, so a line of
// the gutter is a line of the text.
//
// The paint follows PlanGutterPaint: this widget measures the box, asks for the plan and
// draws it, nothing more.
class LinedTextBoxWidget : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit LinedTextBoxWidget(QWidget* parent = nullptr);

  // Puts the gutter on or takes it off. Turning it on when it is already on changes
  // nothing, not even NumDigits. `numDigits` 0 means 4.
  void EnableLineNumbers(bool enable, int numDigits);

  // Replaces the text as setPlainText does, but a part at a time, telling `progress` how far
  // it has come after each part; so a text of a million lines can show a progress dialog and
  // be cancelled. False, with the box as it was, when `progress` cancels.
  bool SetPlainTextInSteps(const QString& text, const std::function<bool(double fractionDone)>& progress);

  bool LineNumbersOn() const { return on_; }
  int NumDigits() const { return numDigits_; }
  int TrayWidth() const { return trayWidth_; }  // 0 while the gutter is off

  // The strip itself, and the plan of its last paint (none before the first), for tests.
  QWidget* Gutter() const { return gutter_; }
  const std::optional<GutterPaint>& LastGutterPaint() const { return lastPaint_; }
  int GutterPaints() const { return paints_; }

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  class GutterArea;

  void LayOutTray();
  void PlaceGutter();
  GutterInput MeasureGutter() const;
  void PaintGutter(QPainter& painter);
  void ForwardToText(QMouseEvent* event);

  QWidget* gutter_;  // a GutterArea
  bool on_ = false;
  int numDigits_ = 0;
  int digitsWidth_ = 0;  // NumDigits "0"s in the box's font, measured at each layout
  int trayWidth_ = 0;
  std::optional<GutterPaint> lastPaint_;
  int paints_ = 0;
};

}  // namespace tessarine
