#pragma once

#include <QPlainTextEdit>
#include <QTimer>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

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

 signals:
  // The last text shown is all in the box.
  void Filled();

 public:
  explicit LinedTextBoxWidget(QWidget* parent = nullptr);

  // Puts the gutter on or takes it off. Turning it on when it is already on changes
  // nothing, not even NumDigits. `numDigits` 0 means 4.
  void EnableLineNumbers(bool enable, int numDigits);

  // Replaces the text, UTF-8, as setPlainText does, but shows its start at once and adds the
  // rest a part at a time while the program waits for input, so that a listing of a million
  // lines is on screen at once and the box answers scrolling and typing while it fills. The
  // box reads the parts from `text` itself, so that no copy of a long text is made: `text`
  // must stay as it is while the box fills, or until the next ShowPlainText, which stops the
  // filling of the text before. (The main window hands it the record's Text4, which only an
  // action changes; each action ends with a refresh that hands it over again.)
  void ShowPlainText(const std::string& text);
  void ShowPlainText(std::string&& text) = delete;  // a temporary would be gone before the parts are read
  // True while parts of the last text are still to come.
  bool Filling() const { return source_ != nullptr; }
  // Adds what is still to come at once.
  void FinishFilling();

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
  void AppendPart();
  void CompleteFilling();

  QWidget* gutter_;  // a GutterArea
  bool on_ = false;
  int numDigits_ = 0;
  int digitsWidth_ = 0;  // NumDigits "0"s in the box's font, measured at each layout
  int trayWidth_ = 0;
  std::optional<GutterPaint> lastPaint_;
  int paints_ = 0;
  const std::string* source_ = nullptr;  // the text being shown, while parts of it are still to come
  std::size_t sourceSize_ = 0;
  std::size_t fillFrom_ = 0;             // where the next part starts
  QTimer* fillTimer_;
};

}  // namespace tessarine
