#pragma once

// Pictures of the real windows on fixture ROMs, for the README and for a look before a
// window is called done. Each window's road lives in a file of its own and is listed in
// main.cpp.
#include <QDir>
#include <QString>

class QWidget;

namespace tessarine::screenshots {

// Lets the window settle, grabs it into `dir/name` and says so; false when it failed.
bool Save(QWidget* window, const QDir& dir, const QString& name);

// The roads, one a window family; each makes its own fixtures and shell.
bool ShootMainWindow(const QDir& dir);
bool ShootScriptBuilders(const QDir& dir);
bool ShootWingfall(const QDir& dir);
bool ShootBrailleInserter(const QDir& dir);
bool ShootStarterEditor(const QDir& dir);

}  // namespace tessarine::screenshots
