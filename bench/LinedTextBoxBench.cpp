#include <benchmark/benchmark.h>

#include <algorithm>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>

#include "qt/LinedTextBoxWidget.h"
#include "rom/HexField.h"
#include "rom/RomImage.h"
#include "scripts/ListScript.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

constexpr int kMillion = 1000000;
const std::string kNothing;

// Text4 as the main window shows it: a box with its gutter of four digits, on screen.
struct ShownBox {
  ShownBox() {
    box.EnableLineNumbers(true, 4);
    box.resize(420, 320);
    box.show();
    QCoreApplication::processEvents();
  }
  // The text view and the gutter painted now, as the screen would show them.
  void Paint() {
    box.viewport()->repaint();
    box.Gutter()->repaint();
  }
  LinedTextBoxWidget box;
};

// The whole road of a press of Command2 that lists a million lines: the listing from free
// space near the end of a 16 MiB ROM, the text handed to the box, and the box painted.
// Argument 0: to the first paint, which shows the listing's start while the rest fills in;
// 1: until the whole listing is in the box; 2: one setPlainText, for comparison.
void BM_PressToPaintOfAMillionLines(benchmark::State& state) {
  const auto mode = state.range(0);
  test::FixtureRom fixture = test::FixtureRom::Sapphire();
  RomImage rom;
  rom.Open(fixture.path());
  test::ScriptedDialogs ui;
  Form1 form;
  form.Text3.text = ToHexText(static_cast<std::int32_t>(test::FixtureRom::kSize - kMillion + 1));
  ShownBox shown;
  for (auto _ : state) {
    ListIntoText4(form, rom, ui);
    if (mode == 2) {
      shown.box.setPlainText(QString::fromStdString(form.Text4.text));
    } else {
      shown.box.ShowPlainText(form.Text4.text);
      if (mode == 1) shown.box.FinishFilling();
    }
    shown.Paint();
    state.PauseTiming();
    shown.box.ShowPlainText(kNothing);
    QCoreApplication::processEvents();
    state.ResumeTiming();
  }
  const std::string& text = form.Text4.text;
  state.counters["lines"] = static_cast<double>(std::count(text.begin(), text.end(), '\n'));
}
BENCHMARK(BM_PressToPaintOfAMillionLines)->Arg(0)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->Iterations(3);

// The longest the box is busy with one part of a filling: what a key or a scroll may have
// to wait while a million-line listing fills in.
void BM_OnePartOfAFilling(benchmark::State& state) {
  ShownBox shown;
  std::string listing;
  for (int i = 0; i < kMillion; ++i) listing += "Byte: &HFF \r\n";
  shown.box.ShowPlainText(listing);
  for (auto _ : state) {
    if (!shown.box.Filling()) {
      state.PauseTiming();
      shown.box.ShowPlainText(listing);
      state.ResumeTiming();
    }
    QCoreApplication::processEvents(QEventLoop::AllEvents);  // one part, from the box's timer
  }
}
BENCHMARK(BM_OnePartOfAFilling)->Unit(benchmark::kMillisecond);

// A million-line listing loaded; one scroll step anywhere in it, painted.
void BM_ScrollAMillionLines(benchmark::State& state) {
  ShownBox shown;
  std::string listing;
  for (int i = 0; i < kMillion; ++i) listing += "Byte: &HFF \r\n";
  shown.box.setPlainText(QString::fromStdString(listing));
  shown.Paint();
  QScrollBar* bar = shown.box.verticalScrollBar();
  int step = 0;
  for (auto _ : state) {
    bar->setValue((step++ * 7919) % bar->maximum());  // jumps all over the text
    shown.Paint();
  }
}
BENCHMARK(BM_ScrollAMillionLines)->Unit(benchmark::kMicrosecond);

// A million-line listing loaded; one key typed in the middle of it, painted.
void BM_TypeIntoAMillionLines(benchmark::State& state) {
  ShownBox shown;
  std::string listing;
  for (int i = 0; i < kMillion; ++i) listing += "Byte: &HFF \r\n";
  shown.box.setPlainText(QString::fromStdString(listing));
  shown.box.setFocus();
  QTextCursor middle(shown.box.document()->findBlockByNumber(kMillion / 2));
  shown.box.setTextCursor(middle);
  shown.box.ensureCursorVisible();
  shown.Paint();
  for (auto _ : state) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_X, Qt::NoModifier, "x");
    QCoreApplication::sendEvent(&shown.box, &press);
    shown.Paint();
  }
}
BENCHMARK(BM_TypeIntoAMillionLines)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tessarine
