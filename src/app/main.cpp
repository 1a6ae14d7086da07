#include <QApplication>
#include <QSocketNotifier>

#ifdef Q_OS_UNIX
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#endif

#include "qt/Form1Window.h"
#include "qt/QtArtwork.h"
#include "qt/QtDialogs.h"
#include "qt/QtShell.h"

namespace {

#ifdef Q_OS_UNIX
// SIGTERM, SIGHUP and SIGINT (the end of a desktop session, a closed terminal, Ctrl+C) end the
// program as a quit does: every event loop returns, a question that stands is answered by
// nobody (QtDialogs ends its action: nothing more is written), and main returns, so that every
// object is destroyed, among them the file dialog's temporary folder. The handler only writes a
// byte into a socket, which never waits: a full socket holds a quit already. The event loop
// reads the bytes and quits.
int signalSocket[2] = {-1, -1};

void OnEndSignal(int) {
  const int saved = errno;  // the code the signal interrupted may be about to read it
  const char byte = 1;
  [[maybe_unused]] const ssize_t written = ::write(signalSocket[0], &byte, 1);
  errno = saved;
}

void QuitOnEndSignals(QApplication& app, tessarine::QtDialogs& dialogs) {
  if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, signalSocket) != 0) return;
  for (const int end : signalSocket) ::fcntl(end, F_SETFL, ::fcntl(end, F_GETFL) | O_NONBLOCK);
  auto* notifier = new QSocketNotifier(signalSocket[1], QSocketNotifier::Read, &app);
  QObject::connect(notifier, &QSocketNotifier::activated, &app, [&dialogs] {
    char bytes[64];
    while (::read(signalSocket[1], bytes, sizeof bytes) > 0) {
    }
    dialogs.ProgramEnding();
    QCoreApplication::exit(0);
  });
  struct sigaction action = {};
  action.sa_handler = OnEndSignal;
  sigemptyset(&action.sa_mask);
  action.sa_flags = SA_RESTART;
  for (const int signal : {SIGTERM, SIGHUP, SIGINT}) {
    // A signal ignored when the program started stays ignored: nohup ignores SIGHUP, and a shell
    // ignores SIGINT for a job it starts in the background.
    struct sigaction old = {};
    if (sigaction(signal, nullptr, &old) == 0 && old.sa_handler == SIG_IGN) continue;
    sigaction(signal, &action, nullptr);
  }
}
#else
void QuitOnEndSignals(QApplication&, tessarine::QtDialogs&) {}
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

  tessarine::QtDialogs dialogs;
  QuitOnEndSignals(app, dialogs);
  tessarine::QtShell shell(dialogs);
  shell.ShowWindow(tessarine::WindowName::Form1);
  return QApplication::exec();
}
