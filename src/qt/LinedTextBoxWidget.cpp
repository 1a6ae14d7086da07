#include "qt/LinedTextBoxWidget.h"

#include <algorithm>

#include <QCoreApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QLocale>
#include <QPlainTextDocumentLayout>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QTextBlock>

namespace tessarine {
namespace {

Rgb ToRgb(const QColor& color) {
  return {static_cast<std::uint8_t>(color.red()), static_cast<std::uint8_t>(color.green()),
          static_cast<std::uint8_t>(color.blue())};
}

QColor ToQColor(Rgb color) { return QColor(color.red, color.green, color.blue); }

QRect ToQRect(const PixelRect& r) { return QRect(r.left, r.top, r.right - r.left, r.bottom - r.top); }

}  // namespace

// The strip: paints through its box and hands the mouse on to the text.
class LinedTextBoxWidget::GutterArea : public QWidget {
 public:
  explicit GutterArea(LinedTextBoxWidget* box) : QWidget(box), box_(box) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    box_->PaintGutter(painter);
  }
  void mousePressEvent(QMouseEvent* event) override { box_->ForwardToText(event); }
  void mouseMoveEvent(QMouseEvent* event) override { box_->ForwardToText(event); }
  void mouseReleaseEvent(QMouseEvent* event) override { box_->ForwardToText(event); }
  void mouseDoubleClickEvent(QMouseEvent* event) override { box_->ForwardToText(event); }
  // Wheel events are not taken here, so they reach the box and scroll it.

 private:
  LinedTextBoxWidget* box_;
};

LinedTextBoxWidget::LinedTextBoxWidget(QWidget* parent)
    : QPlainTextEdit(parent), gutter_(new GutterArea(this)), fillTimer_(new QTimer(this)), notice_(new QLabel(this)) {
  setLineWrapMode(QPlainTextEdit::NoWrap);
  fillTimer_->setInterval(0);  // a part whenever the program has nothing else to do
  connect(fillTimer_, &QTimer::timeout, this, &LinedTextBoxWidget::AppendPart);
  // Each move of the view (a scroll, a drag of the bar, Ctrl+End, Page Down, a key at the end
  // of the text) may bring it near the end of what is shown, and each one asks for a paint.
  // (The bar's own signals do not serve: the box moves the bar with them blocked when the
  // caret takes the view along.)
  connect(this, &QPlainTextEdit::updateRequest, this, &LinedTextBoxWidget::ReadOn);
  gutter_->setVisible(false);
  notice_->setVisible(false);
  notice_->setAutoFillBackground(true);
  notice_->setBackgroundRole(QPalette::Button);
  notice_->setForegroundRole(QPalette::ButtonText);
  notice_->setContentsMargins(4, 2, 4, 2);
  // Every paint of the text (a key, a scroll, a change of text) and every move of the caret
  // or the selection (a click, a drag step, a selection made by the program) paints the
  // gutter too.
  connect(this, &QPlainTextEdit::updateRequest, gutter_, [this] { gutter_->update(); });
  connect(this, &QPlainTextEdit::cursorPositionChanged, gutter_, [this] { gutter_->update(); });
  connect(this, &QPlainTextEdit::selectionChanged, gutter_, [this] { gutter_->update(); });
}

void LinedTextBoxWidget::EnableLineNumbers(bool enable, int numDigits) {
  if (enable && !on_) {
    on_ = true;
    numDigits_ = numDigits;
  } else if (!enable && on_) {
    on_ = false;
  }
  LayOutTray();
}

namespace {

// About 5,000 lines of a listing: a part takes some 15 ms to add, short enough for the box
// to answer a key or a scroll between two parts.
constexpr std::size_t kPartSize = std::size_t{1} << 16;

// Where the part of `text` that starts at `from` ends: behind a line break, so that no
// CR LF and no character of several bytes is torn apart, or at the end of the text.
std::size_t PartEnd(const std::string& text, std::size_t from) {
  if (text.size() - from <= kPartSize) return text.size();
  const std::size_t lineEnd = text.find('\n', from + kPartSize);
  return lineEnd == std::string::npos ? text.size() : lineEnd + 1;
}

QString Part(const std::string& text, std::size_t from, std::size_t to) {
  return QString::fromUtf8(text.data() + from, static_cast<qsizetype>(to - from));
}

// The lines of text[from, to), the last one counted also without its line break.
qsizetype LinesIn(const std::string& text, std::size_t from, std::size_t to) {
  const auto begin = text.begin() + static_cast<std::ptrdiff_t>(from);
  const auto end = text.begin() + static_cast<std::ptrdiff_t>(to);
  return std::count(begin, end, '\n') + (to > from && text[to - 1] != '\n' ? 1 : 0);
}

QString Count(qsizetype lines) { return QLocale(QLocale::English).toString(static_cast<qlonglong>(lines)); }

}  // namespace

void LinedTextBoxWidget::ShowPlainText(const std::string& text) {
  fillTimer_->stop();
  source_ = nullptr;
  auto* next = new QTextDocument(this);
  next->setDefaultFont(font());
  next->setUndoRedoEnabled(false);  // until it is complete: the filling is no edit to undo
  next->setDocumentLayout(new QPlainTextDocumentLayout(next));
  // The box deletes a document of its own making when it takes another; one of ours, we do.
  const QPointer<QTextDocument> previous = document();
  setDocument(next);
  if (previous && previous->parent() == this) delete previous;
  source_ = &text;
  sourceSize_ = text.size();
  fillFrom_ = 0;
  lines_ = linesToCome_ = LinesIn(text, 0, text.size());
  fillUntil_ = fillBudget_;
  AppendPart();  // the start, at once
  gutter_->update();  // also while the box's signals are blocked
}

// Every part comes through here, from the timer, from ShowPlainText and from FinishFilling;
// so a want of memory is met here and goes no further.
void LinedTextBoxWidget::AppendPart() {
  if (source_ == nullptr) {
    fillTimer_->stop();
    return;
  }
  const std::string& text = *source_;
  if (text.size() != sourceSize_) {  // the text changed under the box; the next ShowPlainText brings it
    CompleteFilling();
    return;
  }
  try {
    const std::size_t to = PartEnd(text, fillFrom_);
    AddAtEnd(Part(text, fillFrom_, to));
    linesToCome_ -= LinesIn(text, fillFrom_, to);
    fillFrom_ = to;
    gutter_->update();
    if (fillFrom_ == text.size()) {
      CompleteFilling();
    } else {
      PaceFilling();
    }
  } catch (const std::bad_alloc&) {
    StopForWantOfMemory();
  }
}

// The caret and the selection stay where the person put them, also at the end of the text,
// and the view stays too. While the part goes in, the paints it asks for do not make the box
// read on: that is for AppendPart to decide once the part is in and counted.
void LinedTextBoxWidget::AddAtEnd(const QString& part) {
  const QScopedValueRollback<bool> adding(adding_, true);
  const int anchor = textCursor().anchor(), position = textCursor().position();
  const int top = verticalScrollBar()->value(), left = horizontalScrollBar()->value();
  QTextCursor end(document());
  end.movePosition(QTextCursor::End);
  end.insertText(part);
  if (textCursor().anchor() == anchor && textCursor().position() == position) return;
  QTextCursor kept(document());
  kept.setPosition(anchor);
  kept.setPosition(position, QTextCursor::KeepAnchor);
  setTextCursor(kept);
  verticalScrollBar()->setValue(top);
  horizontalScrollBar()->setValue(left);
}

// The box goes on adding parts on its own up to the budget, and another budget's worth each
// time the view comes within a page of the end of what is shown.
void LinedTextBoxWidget::PaceFilling() {
  const QScrollBar* bar = verticalScrollBar();
  if (bar->maximum() - bar->value() <= bar->pageStep()) {  // near the end: another budget's worth
    fillUntil_ = std::max(fillUntil_, document()->blockCount() + fillBudget_);
  }
  if (document()->blockCount() < fillUntil_) {
    fillTimer_->start();
    SayWhatIsToCome(WithCounts(tr("%1 lines shown; %2 more are being added.")));
  } else {
    fillTimer_->stop();
    SayWhatIsToCome(WithCounts(tr("%1 lines shown; %2 more come as you scroll to the end.")));
  }
}

void LinedTextBoxWidget::ReadOn() {
  if (source_ == nullptr || adding_ || fillTimer_->isActive()) return;
  try {
    PaceFilling();
  } catch (const std::bad_alloc&) {
    StopForWantOfMemory();
  }
}

void LinedTextBoxWidget::FinishFilling() {
  while (source_ != nullptr) AppendPart();
}

void LinedTextBoxWidget::CompleteFilling() {
  fillTimer_->stop();
  source_ = nullptr;
  fillFrom_ = 0;
  linesToCome_ = 0;
  document()->setUndoRedoEnabled(true);
  document()->setModified(false);
  SayWhatIsToCome(QString());
  emit Filled();
}

// What the box shows stays, and so does the sentence about what it does not.
void LinedTextBoxWidget::StopForWantOfMemory() {
  fillTimer_->stop();
  source_ = nullptr;
  try {
    document()->setUndoRedoEnabled(true);
    SayWhatIsToCome(WithCounts(tr("Out of memory: %1 lines shown; the other %2 could not be added.")));
  } catch (const std::bad_alloc&) {
    notice_->setVisible(false);  // the box as it is, the filling stopped, and nothing more to be done
  }
}

// A sentence with the lines in the box for %1 and those of the text not in it for %2.
QString LinedTextBoxWidget::WithCounts(const QString& sentence) const {
  return sentence.arg(Count(lines_ - linesToCome_), Count(linesToCome_));
}

// The line under the text, with room made for it; none for an empty sentence.
void LinedTextBoxWidget::SayWhatIsToCome(const QString& sentence) {
  const bool show = !sentence.isEmpty();
  notice_->setText(sentence);
  if (notice_->isVisibleTo(this) == show) return;
  notice_->setVisible(show);
  LayOutTray();
}

// The text view gives up TrayWidth pixels on its left to the strip.
void LinedTextBoxWidget::LayOutTray() {
  const QString zeros(EffectiveNumDigits(numDigits_), QLatin1Char('0'));
  digitsWidth_ = fontMetrics().horizontalAdvance(zeros);
  trayWidth_ = on_ ? tessarine::TrayWidth(digitsWidth_) : 0;
  setViewportMargins(trayWidth_, 0, 0, notice_->isVisibleTo(this) ? notice_->sizeHint().height() : 0);
  gutter_->setVisible(on_);
  PlaceGutter();
  gutter_->update();
}

// Beside the text view and as high as it, so that a row and its text line share their y.
void LinedTextBoxWidget::PlaceGutter() {
  const QRect view = viewport()->geometry();
  gutter_->setGeometry(view.left() - trayWidth_, view.top(), trayWidth_, view.height());
  PlaceNotice();
}

// Under the text view and the gutter, as wide as both.
void LinedTextBoxWidget::PlaceNotice() {
  const QRect view = viewport()->geometry();
  notice_->setGeometry(view.left() - trayWidth_, view.bottom() + 1, view.width() + trayWidth_,
                       notice_->sizeHint().height());
}

GutterInput LinedTextBoxWidget::MeasureGutter() const {
  GutterInput in;
  in.numDigits = numDigits_;
  in.digitsWidth = digitsWidth_;
  in.boxHeight = height();
  in.edge = frameWidth();
  const QTextBlock first = firstVisibleBlock();
  const QRectF firstGeometry = blockBoundingGeometry(first).translated(contentOffset());
  // One block is one line, since lines do not wrap; every line has the box's one font.
  in.lineHeight = qRound(firstGeometry.height());
  in.firstLineTop = qRound(firstGeometry.top());
  in.firstLine = first.blockNumber() + 1;
  in.lineCount = blockCount();
  const QTextCursor cursor = textCursor();
  in.selFirst = document()->findBlock(cursor.selectionStart()).blockNumber() + 1;
  in.selLast = document()->findBlock(cursor.selectionEnd()).blockNumber() + 1;
  in.focus = hasFocus();
  // The system colours of the gutter's roles. Button shadow is QPalette::Dark: the role
  // that the platforms with a system colour scheme fill from their button shadow colour,
  // darker than Mid and lighter than Shadow.
  const QPalette& colors = palette();
  in.colors = {ToRgb(colors.color(QPalette::Button)), ToRgb(colors.color(QPalette::WindowText)),
               ToRgb(colors.color(QPalette::Highlight)), ToRgb(colors.color(QPalette::Dark))};
  return in;
}

void LinedTextBoxWidget::PaintGutter(QPainter& painter) {
  if (!on_) return;
  const GutterPaint& plan = lastPaint_.emplace(PlanGutterPaint(MeasureGutter()));
  ++paints_;

  painter.fillRect(QRect(0, 0, plan.trayWidth, gutter_->height()), ToQColor(plan.face));
  painter.setFont(font());
  for (const GutterRow& row : plan.rows) {
    const QRect rect = ToQRect(row.rect);
    if (row.tinted) painter.fillRect(rect, ToQColor(plan.tint));
    painter.setPen(ToQColor(plan.numberColor));
    painter.drawText(rect, Qt::AlignCenter | Qt::TextSingleLine, QString::fromStdString(row.number));
  }
  if (plan.frame) {
    // A pen of one pixel outlines one pixel more than the rectangle's size on the right and
    // at the bottom; the plan's rectangle is half-open.
    painter.setPen(ToQColor(plan.frameColor));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(ToQRect(*plan.frame).adjusted(0, 0, -1, -1));
  }
  if (plan.line && plan.line->bottom > plan.line->top) {
    painter.setPen(ToQColor(plan.lineColor));
    painter.drawLine(plan.line->x, plan.line->top, plan.line->x, plan.line->bottom - 1);
  }
}

// A press in the strip is a press in the text at a point left of it, as far left as the
// strip lies; so it reaches the text box and takes its focus.
void LinedTextBoxWidget::ForwardToText(QMouseEvent* event) {
  const QPointF at = event->position() + QPointF(gutter_->pos() - viewport()->pos());
  QMouseEvent forwarded(event->type(), at, event->globalPosition(), event->button(), event->buttons(),
                        event->modifiers(), event->pointingDevice());
  QCoreApplication::sendEvent(viewport(), &forwarded);
  event->setAccepted(forwarded.isAccepted());
}

void LinedTextBoxWidget::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);  // also told when the text view alone changes size
  PlaceGutter();
}

void LinedTextBoxWidget::changeEvent(QEvent* event) {
  QPlainTextEdit::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) LayOutTray();
  if (event->type() == QEvent::PaletteChange) gutter_->update();
}

void LinedTextBoxWidget::focusInEvent(QFocusEvent* event) {
  QPlainTextEdit::focusInEvent(event);
  gutter_->update();
}

void LinedTextBoxWidget::focusOutEvent(QFocusEvent* event) {
  QPlainTextEdit::focusOutEvent(event);
  gutter_->update();
}

}  // namespace tessarine
