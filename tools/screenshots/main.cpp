// Drives the real windows on fixture ROMs and saves a picture of each. Run it under a
// display server, e.g.
//   xvfb-run -a build/test/tools/screenshots/tessarine_screenshots docs/screenshots
// or simply `make screenshots`.
#include <QApplication>
#include <QTest>
#include <cstdio>

#include "Screenshots.h"

namespace tessarine::screenshots {

bool Save(QWidget* window, const QDir& dir, const QString& name) {
  for (int i = 0; i < 5; ++i) QTest::qWait(40);
  const QString path = dir.filePath(name);
  const bool saved = window != nullptr && window->grab().save(path);
  std::printf("%s %s\n", saved ? "saved" : "FAILED", qPrintable(path));
  return saved;
}

}  // namespace tessarine::screenshots

int main(int argc, char** argv) {
  using namespace tessarine::screenshots;
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  const QDir dir(argc > 1 ? argv[1] : "docs/screenshots");
  QDir().mkpath(dir.path());
  bool ok = true;
  ok &= ShootMainWindow(dir);
  ok &= ShootScriptBuilders(dir);
  ok &= ShootWingfall(dir);
  ok &= ShootBrailleInserter(dir);
  ok &= ShootStarterEditor(dir);
  return ok ? 0 : 1;
}
