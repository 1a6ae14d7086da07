#include <QApplication>

#include "qt/Form1Window.h"
#include "qt/QtArtwork.h"
#include "qt/QtDialogs.h"
#include "qt/QtShell.h"

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  QApplication::setApplicationName("Tessarine");
  QApplication::setDesktopFileName("tessarine");  // the installed menu entry, for the desktop's dock
  QApplication::setWindowIcon(tessarine::ApplicationIcon());
  // The main window may be hidden while the Unsupported ROM dialog stands alone; the
  // program ends when the main window closes, not when the last window does.
  QApplication::setQuitOnLastWindowClosed(false);

  tessarine::QtDialogs dialogs;
  tessarine::QtShell shell(dialogs);
  shell.ShowWindow(tessarine::WindowName::Form1);
  return QApplication::exec();
}
