#include "qt/QtDialogs.h"

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QProcess>
#include <QSettings>
#include <QStandardPaths>

#include <iostream>

#include "rom/Failure.h"

namespace tessarine {
namespace {

QString Q(std::string_view text) { return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())); }

QWidget* Owner() { return QApplication::activeWindow(); }

// The sibling program: by its bare name, beside Tessarine first, then on the PATH.
QString FindProgram(std::string_view name) {
#ifdef Q_OS_WIN
  const QString file = Q(name) + ".exe";
#else
  const QString file = Q(name);
#endif
  const QFileInfo beside(QDir(QCoreApplication::applicationDirPath()).filePath(file));
  if (beside.isFile() && beside.isExecutable()) return beside.filePath();
  return QStandardPaths::findExecutable(file);
}

}  // namespace

QtDialogs::QtDialogs() {
  for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
    QSettings::setPath(format, QSettings::UserScope, dialogSettings_.path());
  }
}

QString QtFileFilter(std::string_view filter) {
  const QStringList parts = Q(filter).split('|');
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    filters << parts[i] + " (" + QString(parts[i + 1]).replace(';', ' ') + ")";
  }
  return filters.join(";;");
}

void QtDialogs::NoAnswerOnceEnding() const {
  if (ending_) throw Failure(kProgramEnding);
}

MessageAnswer QtDialogs::Message(std::string_view text, MessageButtons buttons, std::string_view title) {
  if (ending_ && buttons == MessageButtons::Ok) {
    std::cerr << title << ": " << text << '\n';
    return MessageAnswer::Ok;
  }
  NoAnswerOnceEnding();
  QMessageBox box(Owner());
  box.setWindowTitle(Q(title));
  box.setText(Q(text));
  if (buttons == MessageButtons::YesNo) {
    // A question before a write: Enter pressed by habit answers No, and nothing is written.
    box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
    box.setDefaultButton(QMessageBox::No);
    const bool yes = box.exec() == QMessageBox::Yes;
    NoAnswerOnceEnding();
    return yes ? MessageAnswer::Yes : MessageAnswer::No;
  }
  box.setStandardButtons(QMessageBox::Ok);
  box.exec();
  return MessageAnswer::Ok;
}

std::optional<std::string> QtDialogs::Input(std::string_view prompt, std::string_view title,
                                            std::string_view initial) {
  NoAnswerOnceEnding();
  bool ok = false;
  // The box's label is the buddy of its field, so a single "&" would mark a shortcut key
  // and not show: "Enter &H and the Hex ..." would read "Enter H and the Hex ...".
  const QString label = Q(prompt).replace(u'&', QStringLiteral("&&"));
  const QString answer = QInputDialog::getText(Owner(), Q(title), label, QLineEdit::Normal, Q(initial), &ok);
  NoAnswerOnceEnding();  // a box that the quit closed says "cancelled", which nobody said
  if (!ok) return std::nullopt;
  return answer.toStdString();
}

std::string QtDialogs::OpenFile(std::string_view title, std::string_view filter) {
  // Qt's own dialog everywhere: a desktop's dialog would keep the file among its recent ones.
  NoAnswerOnceEnding();
  const auto folder = folders_.find(filter);
  const QString startIn = folder == folders_.end() ? QString() : folder->second;
  const QString path = QFileDialog::getOpenFileName(Owner(), Q(title), startIn, QtFileFilter(filter), nullptr,
                                                    QFileDialog::DontUseNativeDialog);
  NoAnswerOnceEnding();
  if (!path.isEmpty()) folders_[std::string(filter)] = QFileInfo(path).absolutePath();
  return path.toStdString();
}

bool QtDialogs::StartProgram(std::string_view name) {
  const QString program = FindProgram(name);
  return !program.isEmpty() && QProcess::startDetached(program, {});
}

}  // namespace tessarine
