#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>

#include "qt/QtShell.h"
#include "shell/OpenRom.h"
#include "support/FixtureRom.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

// A 32 MiB ROM whose braille record at &H1000000 runs over 3 MiB of blank cells (0x00)
// before its letters and its end byte: a record that reads on through data that is no braille.
constexpr std::size_t kLongRecord = 0x1000000;
constexpr std::size_t kBlankCells = 3 * 1024 * 1024;

struct LongRecordWindow {
  test::FixtureRom fixture{"AXVE", 2 * test::FixtureRom::kSize};
  test::ScriptedDialogs dialogs;
  QtShell shell{dialogs};
  QWidget* window = nullptr;

  LongRecordWindow() {
    fixture.PutBytes(kLongRecord, Bytes{1, 2, 3, 4, 5, 6})
        .PutBytes(kLongRecord + 6, Bytes(kBlankCells, 0x00))
        .PutBytes(kLongRecord + 6 + kBlankCells, Bytes{0x01, 0x05, 0xFF});
    dialogs.openFileAnswers.push_back(fixture.path());
    OpenRom(shell.form1(), shell.rom(), shell.dialogs());
    shell.form1().rom = "Loaded";
    shell.ShowWindow(WindowName::Form6);
    window = shell.Window(WindowName::Form6);
    auto* offset = window->findChild<QLineEdit*>("Text2");
    offset->setText("&H1000000");
    emit offset->textEdited(offset->text());
  }
  ~LongRecordWindow() { shell.rom().Close(); }

  // A press or a key, and what the window then draws.
  void Settle() {
    QApplication::processEvents();
    window->repaint();
  }
  void Load() {
    window->findChild<QPushButton*>("Command2")->click();
    Settle();
  }
};

// Load of the long record, from the click to the window drawn with its text and preview.
void BM_BrailleLoadOfALongRecord(benchmark::State& state) {
  LongRecordWindow w;
  auto* text = w.window->findChild<QPlainTextEdit*>("Text1");
  for (auto _ : state) {
    state.PauseTiming();
    text->setPlainText("AB");  // a text of its own, which the load replaces
    w.Settle();
    state.ResumeTiming();
    w.Load();
  }
}
BENCHMARK(BM_BrailleLoadOfALongRecord)->Unit(benchmark::kMillisecond);

// One key typed at the start of the long record's text, and the window drawn again.
void BM_BrailleKeystrokeInALongRecord(benchmark::State& state) {
  LongRecordWindow w;
  w.Load();
  auto* text = w.window->findChild<QPlainTextEdit*>("Text1");
  text->setFocus();
  text->moveCursor(QTextCursor::Start);
  for (auto _ : state) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_A, Qt::ShiftModifier, "A");
    QApplication::sendEvent(text, &press);
    w.Settle();
  }
}
BENCHMARK(BM_BrailleKeystrokeInALongRecord)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace tessarine
