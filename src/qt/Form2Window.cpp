#include "qt/Form2Window.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStyle>

#include "editors/Form2.h"
#include "qt/Form1Window.h"
#include "qt/QtArtwork.h"
#include "qt/QtShell.h"

namespace tessarine {
Form2Window::Form2Window(QtShell& shell, Form2& form)
    : QWidget(&shell.mainWindow(), Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                       Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint),
      shell_(shell),
      form_(form),
      Label1_(Named(new QLabel, this, "Label1")),
      Combo1_(Named(new QComboBox, this, "Combo1")),
      Label2_(Named(new QLabel, this, "Label2")),
      Combo2_(Named(new QComboBox, this, "Combo2")),
      Label3_(Named(new QLabel, this, "Label3")),
      Combo3_(Named(new QComboBox, this, "Combo3")),
      Command1_(Named(new QPushButton, this, "Command1")),
      Command3_(Named(new QPushButton, this, "Command3")),
      Command2_(Named(new QPushButton, this, "Command2")) {
  setObjectName("Form2");
  setAttribute(Qt::WA_DeleteOnClose);  // closing drops it; the next opening loads afresh
  setWindowIcon(ApplicationIcon());
  const std::pair<QLabel*, QComboBox*> balls[] = {{Label1_, Combo1_}, {Label2_, Combo2_}, {Label3_, Combo3_}};
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(14, 14, 14, 14);
  grid->setHorizontalSpacing(10);
  int row = 0;
  for (const auto& [label, list] : balls) {
    label->setBuddy(list);
    list->setMinimumContentsLength(18);
    list->setMaxVisibleItems(20);
    grid->addWidget(label, row, 0);
    grid->addWidget(list, row++, 1);
  }
  Command1_->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->setSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing));  // the grid has none to give
  buttons->addStretch();
  buttons->addWidget(Command1_);
  buttons->addWidget(Command3_);
  buttons->addWidget(Command2_);
  grid->addLayout(buttons, row, 0, 1, 2);
  grid->setSizeConstraint(QLayout::SetFixedSize);

  connect(Combo1_, &QComboBox::activated, this,
          [this](int i) { shell_.Run([this, i] { SetCombo1Selection(form_, i); }); });
  connect(Combo2_, &QComboBox::activated, this,
          [this](int i) { shell_.Run([this, i] { SetCombo2Selection(form_, i); }); });
  connect(Combo3_, &QComboBox::activated, this,
          [this](int i) { shell_.Run([this, i] { SetCombo3Selection(form_, i); }); });
  connect(Command1_, &QPushButton::clicked, this, [this] {
    shell_.Run([this] { PressSave(form_, shell_.form1(), shell_.rom(), shell_.dialogs()); });
  });
  connect(Command3_, &QPushButton::clicked, this, [this] {
    shell_.Run([this] { LoadForm2(form_, shell_.form1(), shell_.rom(), shell_.dialogs()); });
  });
  connect(Command2_, &QPushButton::clicked, this, [this] { shell_.Run([this] { PressDone(shell_.dialogs()); }); });
  CloseOnEscape(this, Command2_);
  WireEnter(this);  // Enter on a button presses it
  Refresh();
}

void Form2Window::Refresh() {
  const QSignalBlocker b1(Combo1_), b2(Combo2_), b3(Combo3_);
  setWindowTitle(ToQString(form_.title));
  Sync(Label1_, form_.Label1);
  combo1_(Combo1_, form_.Combo1);
  Sync(Label2_, form_.Label2);
  combo2_(Combo2_, form_.Combo2);
  Sync(Label3_, form_.Label3);
  combo3_(Combo3_, form_.Combo3);
  Sync(Command1_, form_.Command1);
  Sync(Command3_, form_.Command3);
  Sync(Command2_, form_.Command2);
}

}  // namespace tessarine
