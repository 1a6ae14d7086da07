#include "qt/LinedTextBoxWidget.h"

#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace tessarine {
namespace {

Rgb ToRgb(const QColor& c) { return {std::uint8_t(c.red()), std::uint8_t(c.green()), std::uint8_t(c.blue())}; }

std::string Lines(int count) {
  std::string lines;
  for (int i = 1; i <= count; ++i) lines += "line " + std::to_string(i) + (i < count ? "\r\n" : "");
  return lines;
}

// The box as Text4 has it, in a window with a second field to take the focus away.
class LinedTextBoxWidgetTest : public ::testing::Test {
 protected:
  void SetUp() override {
    auto* layout = new QVBoxLayout(&window_);
    layout->addWidget(box_ = new LinedTextBoxWidget(&window_));
    layout->addWidget(other_ = new QLineEdit(&window_));
    window_.resize(320, 260);
    box_->EnableLineNumbers(true, 4);
    window_.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    box_->setFocus();
  }
  // The plan of the gutter's paint once every pending paint has been made.
  const GutterPaint& Painted() {
    QCoreApplication::processEvents();
    return box_->LastGutterPaint().value();
  }
  std::vector<int> Tinted() {
    std::vector<int> lines;
    for (const GutterRow& row : Painted().rows) {
      if (row.tinted) lines.push_back(row.line);
    }
    return lines;
  }
  QPoint Middle(int line) {  // of the line's row in the gutter
    const PixelRect& r = Painted().rows.at(static_cast<std::size_t>(line - Painted().firstLine)).rect;
    return QPoint((r.left + r.right) / 2, (r.top + r.bottom) / 2);
  }
  void Mouse(QEvent::Type type, int line, Qt::MouseButtons held) {
    const QPoint at = Middle(line);
    QMouseEvent event(type, at, box_->Gutter()->mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(box_->Gutter(), &event);
  }
  QWidget window_;
  LinedTextBoxWidget* box_ = nullptr;
  QLineEdit* other_ = nullptr;
};

// The caret's line and the selected ones are tinted (a selection that ends at column 0 still
// marks that line), and every key paints the gutter again; with the focus the tint and frame
// are of the highlight, without it pale, with the shadow's frame.
TEST_F(LinedTextBoxWidgetTest, TypingSelectingAndTheFocusMarkTheLinesInTheGutter) {
  const QPalette& colors = box_->palette();
  EXPECT_EQ(box_->Gutter()->geometry().right() + 1, box_->viewport()->geometry().left());
  EXPECT_EQ(Tinted(), std::vector<int>{1});  // an empty box: line 1, the caret's
  EXPECT_EQ(Painted().tint, BlendColors(ToRgb(colors.color(QPalette::Highlight)), kWhite, 50));
  EXPECT_EQ(Painted().frameColor, ToRgb(colors.color(QPalette::Highlight)));
  QTest::keyClicks(box_, "lock\rfaceplayer\rcry\r");
  QTest::keyClick(box_, Qt::Key_Up, Qt::ShiftModifier);
  QTest::keyClick(box_, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(Tinted(), (std::vector<int>{2, 3, 4}));
  QTextCursor cursor = box_->textCursor();
  cursor.setPosition(2);
  cursor.setPosition(box_->document()->findBlockByNumber(2).position(), QTextCursor::KeepAnchor);
  box_->setTextCursor(cursor);
  EXPECT_EQ(Tinted(), (std::vector<int>{1, 2, 3}));
  const int paints = box_->GutterPaints();
  QTest::keyClick(box_, Qt::Key_X);
  Painted();
  EXPECT_GT(box_->GutterPaints(), paints);
  other_->setFocus();
  EXPECT_EQ(Painted().tint, BlendColors(ToRgb(colors.color(QPalette::Button)), kWhite, 75));
  EXPECT_EQ(Painted().frameColor, ToRgb(colors.color(QPalette::Dark)));
  EXPECT_EQ(Painted().lineColor, ToRgb(colors.color(QPalette::Dark)));
}

// The rows stand beside their lines as they scroll; a press in the gutter is a press in the text,
// left of it, and a drag down the gutter selects whole lines, the gutter following each step.
TEST_F(LinedTextBoxWidgetTest, RowsStandBesideTheirLinesFollowScrollingAndTakeThePressesOfTheMouse) {
  const std::string text = Lines(1000);
  box_->ShowPlainText(text);
  box_->verticalScrollBar()->setValue(100);
  EXPECT_EQ(Painted().rows.front().number, "0101");
  EXPECT_EQ(Tinted(), std::vector<int>{});  // the caret's line 1 is out of view
  EXPECT_FALSE(Painted().frame.has_value());
  for (const int line : {101, 104}) {
    const int textTop = box_->cursorRect(QTextCursor(box_->document()->findBlockByNumber(line - 1))).top();
    EXPECT_NEAR(Painted().rows.at(static_cast<std::size_t>(line - 101)).rect.top, textTop + 1, 1) << line;
  }
  other_->setFocus();
  QTest::mouseClick(box_->Gutter(), Qt::LeftButton, Qt::NoModifier, Middle(103));
  EXPECT_TRUE(box_->hasFocus());
  EXPECT_EQ(std::pair(box_->textCursor().blockNumber(), box_->textCursor().positionInBlock()), std::pair(102, 0));
  Mouse(QEvent::MouseButtonPress, 102, Qt::LeftButton);
  Mouse(QEvent::MouseMove, 104, Qt::LeftButton);
  EXPECT_EQ(Tinted(), (std::vector<int>{102, 103, 104}));
  Mouse(QEvent::MouseMove, 106, Qt::LeftButton);
  Mouse(QEvent::MouseButtonRelease, 106, Qt::NoButton);
  EXPECT_EQ(box_->textCursor().selectedText().toStdString(), "line 102\u2029line 103\u2029line 104\u2029line 105\u2029");
}

// A long text shows its start at once and fills while the box stays in use: whole under the
// budget, and past it another budget's worth each time the view goes to the end.
TEST_F(LinedTextBoxWidgetTest, ALongTextFillsOnItsOwnUpToTheBudgetAndThenAsThePersonReadsOn) {
  const std::string text = Lines(100000) + "\r\n";
  int filled = 0;
  QObject::connect(box_, &LinedTextBoxWidget::Filled, [&] { ++filled; });
  for (const int budget : {LinedTextBoxWidget::kFillBudget, 30000}) {
    filled = 0;
    box_->SetFillBudget(budget);
    box_->ShowPlainText(text);
    EXPECT_TRUE(box_->Filling() && box_->blockCount() > 1000 && box_->blockCount() < 100001);  // a screen, not all
    EXPECT_EQ(Painted().rows.front().number, "0001");
    box_->moveCursor(QTextCursor::Start);  // the box takes a key while it fills, and keeps it
    QTest::keyClicks(box_, "x");
    int reads = 0;
    for (int shown = 0; box_->LinesToCome() > 0 || box_->Filling(); ++reads, shown = box_->blockCount()) {
      const int caret = box_->textCursor().position();  // a part that comes in behind the caret leaves it there
      while (box_->Filling()) QCoreApplication::processEvents();
      EXPECT_EQ(box_->textCursor().position(), caret);
      const int added = box_->blockCount() - shown;  // a budget's worth a read, give or take a part
      EXPECT_TRUE(added < budget + 10000 && (added >= budget || box_->LinesToCome() == 0)) << budget << ": " << added;
      EXPECT_EQ(box_->LinesToCome(), box_->Notice()->isVisible() ? 100001 - box_->blockCount() : 0);
      QTest::keyClick(box_, Qt::Key_End, Qt::ControlModifier);
    }
    EXPECT_EQ(reads > 1, budget < 100000);
    EXPECT_EQ(filled, 1);
    EXPECT_EQ(box_->toPlainText(), "x" + QString::fromStdString(text).replace("\r\n", "\n"));
    QTest::keyClick(box_, Qt::Key_Z, Qt::ControlModifier);  // the typed key undoes; the listing stays
    EXPECT_EQ(box_->blockCount(), 100001);
  }

  box_->ShowPlainText(text);  // another text stops the filling of the one before, and the box keeps no text it left
  const QPointer<QTextDocument> replaced = box_->document();
  const std::string lock = "lock\r\n";
  box_->ShowPlainText(lock);
  EXPECT_TRUE(!box_->Filling() && replaced.isNull());
  QCoreApplication::processEvents();
  EXPECT_EQ(box_->toPlainText(), "lock\n");

  struct : QObject {  // a want of memory, once, where the line under the text first shows
    bool eventFilter(QObject*, QEvent* e) override {
      return e->type() == QEvent::Show && !refused++ ? throw std::bad_alloc() : false;
    }
    int refused = 0;
  } noMemory;
  box_->findChild<QLabel*>()->installEventFilter(&noMemory);
  box_->ShowPlainText(text);  // stops the filling there, and says what is shown and what is missing
  QCoreApplication::processEvents();
  const QLocale english(QLocale::English);
  EXPECT_FALSE(box_->Filling());
  EXPECT_EQ(box_->Notice()->text(), "Out of memory: " + english.toString(box_->blockCount() - 1) + " lines shown; the other " +
                                        english.toString(100001 - box_->blockCount()) + " could not be added.");
}

}  // namespace
}  // namespace tessarine
