#include <QApplication>
#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <sys/socket.h>
#include <unistd.h>

#include <csignal>
#endif

#include "qt/Form1Window.h"
#include "qt/QtArtwork.h"
#include "qt/QtDialogs.h"
#include "qt/QtShell.h"

namespace {

#ifdef Q_OS_UNIX
// SIGTERM, SIGHUP and SIGINT (the end of a desktop session, a closed terminal, Ctrl+C) end the
// program as a quit does: every event loop returns, a question that stands answers No, and main
// returns, so that every object is destroyed, among them the file dialog's temporary folder.
// The handler only writes a byte into a socket; the event loop reads it and quits.
int signalSocket[2] = {-1, -1};

void OnEndSignal(int) {
  const char byte = 1;
  [[maybe_unused]] const ssize_t written = ::write(signalSocket[0], &byte, 1);
}

void QuitOnEndSignals(QApplication& app) {
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalSocket) != 0) return;
  auto* notifier = new QSocketNotifier(signalSocket[1], QSocketNotifier::Read, &app);
  QObject::connect(notifier, &QSocketNotifier::activated, &app, [] {
    char byte = 0;
    [[maybe_unused]] const ssize_t read = ::read(signalSocket[1], &byte, 1);
    QCoreApplication::exit(0);
  });
  struct sigaction action = {};
  action.sa_handler = OnEndSignal;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) sigaction(signal, &action, nullptr);
}
#else
void QuitOnEndSignals(QApplication&) {}
#endif

}  // namespace

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Tessarine");
  QApplication::setDesktopFileName("tessarine");  // the installed menu entry, for the desktop's dock
  QApplication::setWindowIcon(tessarine::ApplicationIcon());
  // The main window may be hidden while the Unsupported ROM dialog stands alone; the
  // program ends when the main window closes, not when the last window does.
  QApplication::setQuitOnLastWindowClosed(false);
  QuitOnEndSignals(app);

  tessarine::QtDialogs dialogs;
  tessarine::QtShell shell(dialogs);
  shell.ShowWindow(tessarine::WindowName::Form1);
  return QApplication::exec();
}
