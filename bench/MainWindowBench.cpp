#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEvent>
#include <QObject>

#include "events/EventSelection.h"
#include "forms/Form1.h"
#include "qt/Form1Window.h"
#include "qt/QtShell.h"
#include "rom/RomImage.h"
#include "shell/OpenRom.h"
#include "shell/Session.h"
#include "support/EventFixtures.h"
#include "support/ScriptedDialogs.h"

namespace tessarine {
namespace {

// Open ROM of a 16 MiB ROM, from the click to a filled species list, in the core.
void BM_OpenRom(benchmark::State& state) {
  test::FixtureRom fixture = test::EventFixtureRom("AXPE");
  const std::string path = fixture.path();
  RomImage rom;
  for (auto _ : state) {
    Form1 form;
    test::ScriptedDialogs dialogs;
    dialogs.openFileAnswers.push_back(path);
    OpenRom(form, rom, dialogs);
    benchmark::DoNotOptimize(form.Combo1.rows.data());
  }
}
BENCHMARK(BM_OpenRom)->Unit(benchmark::kMillisecond);

// A whole event selection: person record, event words, species list and word fields.
void BM_SelectEvent(benchmark::State& state) {
  test::FixtureRom fixture = test::EventFixtureRom("AXPE");
  RomImage rom;
  Form1 form;
  LoadForm1(form);
  test::ScriptedDialogs dialogs;
  dialogs.openFileAnswers.push_back(fixture.path());
  OpenRom(form, rom, dialogs);
  for (auto _ : state) {
    SetCombo3Selection(form, rom, dialogs, 2);
    benchmark::DoNotOptimize(form.hoobla.text.data());
  }
}
BENCHMARK(BM_SelectEvent)->Unit(benchmark::kMicrosecond);

// Notes the first paint of a widget.
class PaintWatch : public QObject {
 public:
  bool painted = false;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted = true;
    return false;
  }
};

// From nothing to the main window painted: the shell and its window are built, shown,
// and the events run until the first paint has happened.
void BM_MainWindowToFirstPaint(benchmark::State& state) {
  for (auto _ : state) {
    test::ScriptedDialogs dialogs;
    QtShell shell(dialogs);
    PaintWatch watch;
    shell.mainWindow().installEventFilter(&watch);
    shell.ShowWindow(WindowName::Form1);
    while (!watch.painted) QApplication::processEvents(QEventLoop::AllEvents, 5);
    state.PauseTiming();
    shell.mainWindow().removeEventFilter(&watch);
    state.ResumeTiming();
  }
}
BENCHMARK(BM_MainWindowToFirstPaint)->Unit(benchmark::kMillisecond)->Iterations(20);

}  // namespace
}  // namespace tessarine
