#include "qt/LinedTextBoxWidget.h"

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QVBoxLayout>

#include <gtest/gtest.h>

#include <algorithm>

namespace tessarine {
namespace {

std::vector<int> TintedLines(const GutterPaint& paint) {
  std::vector<int> lines;
  for (const GutterRow& row : paint.rows) {
    if (row.tinted) lines.push_back(row.line);
  }
  return lines;
}

QString Lines(int count) {
  QStringList lines;
  for (int i = 1; i <= count; ++i) lines << QString("line %1").arg(i);
  return lines.join("\r\n");
}

// A window with the box and a second field to take the focus away.
class LinedTextBoxWidgetTest : public ::testing::Test {
 protected:
  void SetUp() override {
    auto* layout = new QVBoxLayout(&window_);
    box_ = new LinedTextBoxWidget(&window_);
    other_ = new QLineEdit(&window_);
    layout->addWidget(box_);
    layout->addWidget(other_);
    window_.resize(320, 260);
    box_->EnableLineNumbers(true, 4);
    window_.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
    box_->setFocus();
  }

  // The gutter's plan once every pending paint has been made.
  const GutterPaint& Painted() {
    QCoreApplication::processEvents();
    EXPECT_TRUE(box_->LastGutterPaint().has_value());
    return *box_->LastGutterPaint();
  }

  // The middle of the gutter's row of `line`.
  QPoint RowMiddle(int line) {
    for (const GutterRow& row : Painted().rows) {
      if (row.line == line) {
        return QPoint((row.rect.left + row.rect.right) / 2, (row.rect.top + row.rect.bottom) / 2);
      }
    }
    ADD_FAILURE() << "line " << line << " is not in view";
    return {};
  }

  void SendMouse(QEvent::Type type, QPoint at, Qt::MouseButtons held) {
    QMouseEvent event(type, at, box_->Gutter()->mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
    QCoreApplication::sendEvent(box_->Gutter(), &event);
  }

  QWidget window_;
  LinedTextBoxWidget* box_ = nullptr;
  QLineEdit* other_ = nullptr;
};

TEST_F(LinedTextBoxWidgetTest, TheTrayIsLaidOutOnceFromNumDigitsAndTheFont) {
  const int fourZeros = box_->fontMetrics().horizontalAdvance("0000");
  EXPECT_EQ(box_->TrayWidth(), fourZeros + 20);
  EXPECT_EQ(box_->viewport()->geometry().left(), box_->frameWidth() + box_->TrayWidth());
  EXPECT_EQ(box_->Gutter()->geometry().right() + 1, box_->viewport()->geometry().left());

  box_->EnableLineNumbers(true, 8);  // already on: nothing changes
  EXPECT_EQ(box_->NumDigits(), 4);
  EXPECT_EQ(box_->TrayWidth(), fourZeros + 20);

  box_->EnableLineNumbers(false, 8);
  EXPECT_FALSE(box_->LineNumbersOn());
  EXPECT_EQ(box_->viewport()->geometry().left(), box_->frameWidth());
  EXPECT_FALSE(box_->Gutter()->isVisible());

  box_->EnableLineNumbers(true, 0);  // 0 behaves as 4
  EXPECT_EQ(box_->TrayWidth(), fourZeros + 20);
  EXPECT_EQ(Painted().rows.at(0).number, "0001");

  QFont larger = box_->font();
  larger.setPointSize(larger.pointSize() * 2);
  box_->setFont(larger);
  EXPECT_EQ(box_->TrayWidth(), box_->fontMetrics().horizontalAdvance("0000") + 20);
}

TEST_F(LinedTextBoxWidgetTest, TypingAndSelectingMarkTheLinesInTheGutter) {
  EXPECT_EQ(TintedLines(Painted()), std::vector<int>{1});  // an empty box: line 1, the caret's
  EXPECT_TRUE(Painted().frame.has_value());

  for (const char* word : {"lock", "faceplayer", "cry"}) {
    QTest::keyClicks(box_, word);
    QTest::keyClick(box_, Qt::Key_Return);
  }
  EXPECT_EQ(Painted().lastLine, 4);
  EXPECT_EQ(TintedLines(Painted()), std::vector<int>{4});

  QTest::keyClick(box_, Qt::Key_Up, Qt::ShiftModifier);
  QTest::keyClick(box_, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(TintedLines(Painted()), (std::vector<int>{2, 3, 4}));

  // A selection that ends at column 0 of a line still marks that line.
  QTextCursor cursor = box_->textCursor();
  cursor.setPosition(2);
  cursor.setPosition(box_->document()->findBlockByNumber(2).position(), QTextCursor::KeepAnchor);
  box_->setTextCursor(cursor);
  EXPECT_EQ(TintedLines(Painted()), (std::vector<int>{1, 2, 3}));

  // A key that keeps the caret on its line paints the gutter all the same.
  const int paints = box_->GutterPaints();
  QTest::keyClick(box_, Qt::Key_X);
  Painted();
  EXPECT_GT(box_->GutterPaints(), paints);
}

TEST_F(LinedTextBoxWidgetTest, TheFocusDecidesTheColours) {
  const QPalette& colors = box_->palette();
  const auto rgb = [](const QColor& c) {
    return Rgb{static_cast<std::uint8_t>(c.red()), static_cast<std::uint8_t>(c.green()),
               static_cast<std::uint8_t>(c.blue())};
  };
  const Rgb highlight = rgb(colors.color(QPalette::Highlight));
  EXPECT_EQ(Painted().tint, BlendColors(highlight, kWhite, 50));
  EXPECT_EQ(Painted().frameColor, highlight);

  other_->setFocus();
  EXPECT_EQ(Painted().tint, BlendColors(rgb(colors.color(QPalette::Button)), kWhite, 75));
  EXPECT_EQ(Painted().frameColor, rgb(colors.color(QPalette::Dark)));
  EXPECT_EQ(Painted().lineColor, rgb(colors.color(QPalette::Dark)));
}

TEST_F(LinedTextBoxWidgetTest, RowsStandBesideTheirTextLinesAndFollowScrolling) {
  box_->setPlainText(Lines(1000));  // the text set by the program shows at once
  EXPECT_EQ(Painted().rows.front().number, "0001");

  box_->verticalScrollBar()->setValue(100);
  const GutterPaint& scrolled = Painted();
  EXPECT_EQ(scrolled.firstLine, 101);
  EXPECT_EQ(scrolled.rows.front().number, "0101");
  EXPECT_EQ(TintedLines(scrolled), std::vector<int>{});  // the caret's line 1 is out of view
  EXPECT_FALSE(scrolled.frame.has_value());

  for (const int line : {101, 104}) {
    QTextCursor at(box_->document()->findBlockByNumber(line - 1));
    const int textTop = box_->cursorRect(at).top();
    const GutterRow& row = scrolled.rows.at(static_cast<std::size_t>(line - 101));
    EXPECT_NEAR(row.rect.top, textTop + 1, 1) << "line " << line;
  }
}

TEST_F(LinedTextBoxWidgetTest, APressInTheGutterReachesTheText) {
  box_->setPlainText(Lines(50));
  other_->setFocus();
  QTest::mouseClick(box_->Gutter(), Qt::LeftButton, Qt::NoModifier, RowMiddle(3));
  EXPECT_TRUE(box_->hasFocus());
  EXPECT_EQ(box_->textCursor().blockNumber(), 2);
  EXPECT_EQ(box_->textCursor().positionInBlock(), 0);

  // A drag down the gutter selects whole lines, and the gutter follows each step.
  SendMouse(QEvent::MouseButtonPress, RowMiddle(2), Qt::LeftButton);
  SendMouse(QEvent::MouseMove, RowMiddle(4), Qt::LeftButton);
  EXPECT_EQ(TintedLines(Painted()), (std::vector<int>{2, 3, 4}));
  SendMouse(QEvent::MouseMove, RowMiddle(6), Qt::LeftButton);
  SendMouse(QEvent::MouseButtonRelease, RowMiddle(6), Qt::NoButton);
  EXPECT_EQ(TintedLines(Painted()), (std::vector<int>{2, 3, 4, 5, 6}));
  EXPECT_EQ(box_->textCursor().selectedText().toStdString(),
            "line 2\u2029line 3\u2029line 4\u2029line 5\u2029");
}

TEST_F(LinedTextBoxWidgetTest, ANewTextIsNumberedAsSoonAsItIsShown) {
  box_->ShowPlainText("lock \r\nfaceplayer \r\nend \r\n");
  const GutterPaint& plan = Painted();
  std::vector<std::string> numbers;
  for (const GutterRow& row : plan.rows) numbers.push_back(row.number);
  EXPECT_EQ(numbers, (std::vector<std::string>{"0001", "0002", "0003", "0004"}));
  EXPECT_EQ(plan.rows[1].rect.top - plan.rows[0].rect.top, box_->fontMetrics().lineSpacing());
}

TEST_F(LinedTextBoxWidgetTest, ALongTextShowsItsStartAtOnceAndFillsWhileTheBoxStaysInUse) {
  const QString text = Lines(100000) + "\r\n";
  int filled = 0;
  QObject::connect(box_, &LinedTextBoxWidget::Filled, [&] { ++filled; });
  box_->ShowPlainText(text);
  EXPECT_TRUE(box_->Filling());
  EXPECT_GT(box_->blockCount(), 1000);  // more than a screen, less than the whole
  EXPECT_LT(box_->blockCount(), 100001);
  EXPECT_EQ(Painted().rows.front().number, "0001");

  // The box takes a key while it fills, and the filling keeps what was typed.
  box_->setFocus();
  box_->moveCursor(QTextCursor::Start);
  QTest::keyClicks(box_, "x");
  while (box_->Filling()) QCoreApplication::processEvents();
  EXPECT_EQ(filled, 1);
  EXPECT_EQ(box_->blockCount(), 100001);
  EXPECT_EQ(box_->toPlainText(), "x" + QString(text).replace("\r\n", "\n"));
  EXPECT_EQ(box_->lineWrapMode(), QPlainTextEdit::NoWrap);
  QTest::keyClick(box_, Qt::Key_Z, Qt::ControlModifier);  // the typed key undoes; the listing stays
  EXPECT_EQ(box_->blockCount(), 100001);

  // Another text stops the filling of the one before, and the box keeps no text it left.
  box_->ShowPlainText(Lines(100000));
  const QPointer<QTextDocument> replaced = box_->document();
  box_->ShowPlainText("lock\r\n");
  EXPECT_FALSE(box_->Filling());
  EXPECT_TRUE(replaced.isNull());
  QCoreApplication::processEvents();
  EXPECT_EQ(box_->toPlainText(), "lock\n");
}

}  // namespace
}  // namespace tessarine
