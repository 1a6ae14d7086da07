#include <benchmark/benchmark.h>

#include <malloc.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <fstream>
#include <functional>
#include <string>
#include <thread>

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QObject>
#include <QPushButton>

#include "events/EventSelection.h"
#include "forms/Form1.h"
#include "qt/Form1Window.h"
#include "qt/LinedTextBoxWidget.h"
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

// A line of /proc/self/status, in MB: VmRSS is the memory resident now, VmHWM the most that
// was resident since the last ResetPeakResident.
double ResidentMegabytes(const std::string& field) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);) {
    if (line.rfind(field + ":", 0) == 0) return std::stod(line.substr(field.size() + 1)) * 1024.0 / 1e6;
  }
  return 0;
}

void ResetPeakResident() { std::ofstream("/proc/self/clear_refs") << "5"; }

struct Resident {
  double peak;   // the most resident at once while the work ran
  double after;  // what stays resident once it is done
};

// The memory that `work` takes, above what was resident before it. The kernel keeps its
// high-water mark up to date only now and then, so the resident size is also sampled every
// few milliseconds; the larger of the two counts.
Resident ResidentDuring(const std::function<void()>& work) {
  malloc_trim(0);
  const double before = ResidentMegabytes("VmRSS");
  ResetPeakResident();
  std::atomic<bool> done{false};
  double sampled = before;
  std::thread sampler([&] {
    while (!done) {
      sampled = std::max(sampled, ResidentMegabytes("VmRSS"));
      std::this_thread::sleep_for(std::chrono::milliseconds(5));
    }
  });
  work();
  done = true;
  sampler.join();
  return {std::max(sampled, ResidentMegabytes("VmHWM")) - before, ResidentMegabytes("VmRSS") - before};
}

// A press of Command2 that lists 8 MiB of free space (one "Byte: &HFF " line a byte, about
// 109 MB of text, 8.4 million lines) into Text4, until the box has added all it adds without
// a person reading on: its fill budget of lines. Reports the most memory resident at once
// during the press above what was resident before it, also as a multiple of the listing's
// size: every copy of the listing that the road holds at once counts.
void BM_ListAndShowEightMegabytesInText4(benchmark::State& state) {
  test::FixtureRom fixture = test::FixtureRom::Sapphire();
  const std::string path = fixture.path();
  Resident taken{};
  double listing = 0, shown = 0, toCome = 0;
  for (auto _ : state) {
    test::ScriptedDialogs dialogs;
    QtShell shell(dialogs);
    shell.ShowWindow(WindowName::Form1);
    dialogs.openFileAnswers.push_back(path);
    shell.Run([&] { OpenRom(shell.form1(), shell.rom(), shell.dialogs()); });
    Form1Window& window = shell.mainWindow();
    auto* text4 = window.findChild<LinedTextBoxWidget*>("Text4");
    window.findChild<QLineEdit*>("Text3")->setText("&H800000");
    shell.form1().Text3.text = "&H800000";
    QApplication::processEvents();
    taken = ResidentDuring([&] {
      window.findChild<QPushButton*>("Command2")->click();
      while (text4->Filling()) QApplication::processEvents();
    });
    listing = static_cast<double>(shell.form1().Text4.text.size()) / 1e6;
    shown = text4->blockCount();
    toCome = static_cast<double>(text4->LinesToCome());
  }
  state.counters["listing_MB"] = listing;
  state.counters["peak_MB"] = taken.peak;
  state.counters["peak_per_listing"] = taken.peak / listing;
  state.counters["resident_after_MB"] = taken.after;  // the listing in the record and in Text4's document
  state.counters["lines_shown"] = shown;
  state.counters["lines_to_come"] = toCome;
}
BENCHMARK(BM_ListAndShowEightMegabytesInText4)->Unit(benchmark::kSecond)->Iterations(1);

}  // namespace
}  // namespace tessarine
