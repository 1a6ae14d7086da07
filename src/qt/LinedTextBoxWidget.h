#pragma once

#include <QLabel>
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
//
// A long text comes into the box a part at a time (ShowPlainText), and only as far as a
// person reads: see kFillBudget. While lines are still to come, a line under the text says
// how many and how they come.
class LinedTextBoxWidget : public QPlainTextEdit {
  Q_OBJECT

 signals:
  // The last text shown is all in the box.
  void Filled();

 public:
  // The lines that the box adds on its own, and again each time a person reads on to the end
  // of what it shows. The listing of 8 MiB of free space is 8.4 million lines, which took
  // 4.3 GB in a document filled whole, and a ROM of 32 MiB listed from its start four times
  // that, more than an ordinary machine has; 500,000 lines take some 90 MB. So past the
  // budget the box adds another budget's worth only when the view nears the end of what is
  // shown, and the document grows as far as somebody reads. Every listing a person may mean
  // to read whole, a script, a braille record, even a few hundred thousand lines of data, lies
  // under the budget and fills whole on its own.
  static constexpr int kFillBudget = 500000;

  explicit LinedTextBoxWidget(QWidget* parent = nullptr);

  // Puts the gutter on or takes it off. Turning it on when it is already on changes
  // nothing, not even NumDigits. `numDigits` 0 means 4.
  void EnableLineNumbers(bool enable, int numDigits);

  // Replaces the text, UTF-8, as setPlainText does, but shows its start at once and adds the
  // rest a part at a time while the program waits for input, so that a listing of a million
  // lines is on screen at once and the box answers scrolling and typing while it fills; past
  // the fill budget, a part each time the view nears the end. The box reads the parts from
  // `text` itself, so that no copy of a long text is made: `text` must stay as it is while
  // lines are to come, or until the next ShowPlainText, which stops the filling of the text
  // before. (The main window hands it the record's Text4, which only an action changes; each
  // action ends with a refresh that hands it over again.)
  //
  // When the system has no memory for the next part, the box stops there: it keeps what it
  // shows and says under the text how many lines are missing.
  void ShowPlainText(const std::string& text);
  void ShowPlainText(std::string&& text) = delete;  // a temporary would be gone before the parts are read
  // True while the box adds parts of the last text on its own.
  bool Filling() const { return fillTimer_->isActive(); }
  // The lines of the last text that are not in the box yet and will come: 0 once it is all
  // there, or once the box has stopped for want of memory.
  qsizetype LinesToCome() const { return source_ != nullptr ? linesToCome_ : 0; }
  // Adds what is still to come at once, whatever the budget.
  void FinishFilling();
  void SetFillBudget(int lines) { fillBudget_ = lines; }
  // The line under the text, shown while lines are to come or are missing.
  const QLabel* Notice() const { return notice_; }

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
  void PlaceNotice();
  GutterInput MeasureGutter() const;
  void PaintGutter(QPainter& painter);
  void ForwardToText(QMouseEvent* event);
  void AppendPart();
  void AddAtEnd(const QString& part);
  void PaceFilling();
  void ReadOn();
  void CompleteFilling();
  void StopForWantOfMemory();
  void SayWhatIsToCome(const QString& sentence);
  QString WithCounts(const QString& sentence) const;

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
  qsizetype lines_ = 0;                  // in the whole text
  qsizetype linesToCome_ = 0;            // in the text from fillFrom_ on
  int fillBudget_ = kFillBudget;
  int fillUntil_ = kFillBudget;          // the block count up to which the box fills on its own
  bool adding_ = false;                  // while a part goes into the document
  QTimer* fillTimer_;
  QLabel* notice_;
};

}  // namespace tessarine
