#include "qt/Form9Window.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>

#include "editors/Form9.h"
#include "qt/ControlSync.h"
#include "qt/QtArtwork.h"
#include "qt/QtShell.h"

namespace tessarine {

Form9Window::Form9Window(QtShell& shell, Form9& form)
    : shell_(shell),
      form_(form),
      Label1_(new QLabel(this)),
      Text1_(new QLineEdit(this)),
      Label2_(new QLabel(this)),
      Text2_(new QLineEdit(this)),
      Command1_(new QPushButton(this)),
      Command2_(new QPushButton(this)) {
  setObjectName("Form9");
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowIcon(ApplicationIcon());
  Label1_->setObjectName("Label1");
  Text1_->setObjectName("Text1");
  Label2_->setObjectName("Label2");
  Text2_->setObjectName("Text2");
  Command1_->setObjectName("Command1");
  Command2_->setObjectName("Command2");
  Label1_->setBuddy(Text1_);
  Label2_->setBuddy(Text2_);
  Command1_->setDefault(true);

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(14, 14, 14, 14);
  grid->addWidget(Label1_, 0, 0);
  grid->addWidget(Text1_, 0, 1);
  grid->addWidget(Label2_, 1, 0);
  grid->addWidget(Text2_, 1, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(Command1_);
  buttons->addWidget(Command2_);
  grid->addLayout(buttons, 2, 0, 1, 2);
  grid->setSizeConstraint(QLayout::SetFixedSize);

  connect(Text1_, &QLineEdit::textEdited, this, [this](const QString& t) { form_.Text1.text = t.toStdString(); });
  connect(Text2_, &QLineEdit::textEdited, this, [this](const QString& t) { form_.Text2.text = t.toStdString(); });
  WireEnter(this);  // Enter moves on to the next offset, then to Continue
  connect(Command1_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { PressContinue(form_, shell_.form1(), shell_.dialogs()); }); });
  connect(Command2_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { PressQuit(form_, shell_.dialogs()); }); });
  CloseOnEscape(this, Command2_);
  Refresh();
}

void Form9Window::Refresh() {
  const QSignalBlocker block1(Text1_), block2(Text2_);
  setWindowTitle(QString::fromStdString(form_.title));
  Label1_->setText(QString::fromStdString(form_.Label1.caption));
  Label2_->setText(QString::fromStdString(form_.Label2.caption));
  if (Text1_->text().toStdString() != form_.Text1.text) Text1_->setText(QString::fromStdString(form_.Text1.text));
  if (Text2_->text().toStdString() != form_.Text2.text) Text2_->setText(QString::fromStdString(form_.Text2.text));
  Command1_->setText(QString::fromStdString(form_.Command1.caption));
  Command2_->setText(QString::fromStdString(form_.Command2.caption));
}

void Form9Window::closeEvent(QCloseEvent* event) {
  // Closed from its title bar: the same as "Quit", so the main window comes back.
  if (event->spontaneous()) shell_.Run([this] { PressQuit(form_, shell_.dialogs()); });
  event->accept();
}

}  // namespace tessarine
