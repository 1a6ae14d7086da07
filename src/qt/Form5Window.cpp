#include "qt/Form5Window.h"

#include <QCheckBox>
#include <QCloseEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>

#include "qt/Form1Window.h"
#include "qt/QtArtwork.h"
#include "qt/QtShell.h"
#include "scripts/Form5.h"
#include "shell/ScriptForms.h"

namespace tessarine {
Form5Window::Form5Window(QtShell& shell, Form5& form)
    : QWidget(&shell.mainWindow(), Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                       Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint),
      shell_(shell),
      form_(form),
      Image1_(Named(new QLabel, this, "Image1")),
      Label1_(Named(new QLabel, this, "Label1")),
      Combo1_(Named(new QComboBox, this, "Combo1")),
      pkmntxt_(Named(new QLineEdit, this, "pkmntxt")),
      Label2_(Named(new QLabel, this, "Label2")),
      Combo3_(Named(new QComboBox, this, "Combo3")),
      Label3_(Named(new QLabel, this, "Label3")),
      Combo2_(Named(new QComboBox, this, "Combo2")),
      Label4_(Named(new QLabel, this, "Label4")),
      Text3_(Named(new QLineEdit, this, "Text3")),
      Label5_(Named(new QLabel, this, "Label5")),
      Text12_(Named(new QLineEdit, this, "Text12")),
      Command1_(Named(new QPushButton, this, "Command1")),
      Check1_(Named(new QCheckBox, this, "Check1")),
      Command2_(Named(new QPushButton, this, "Command2")),
      Command3_(Named(new QPushButton, this, "Command3")) {
  setObjectName("Form5");
  setAttribute(Qt::WA_DeleteOnClose);  // closing unloads it; the next opening starts afresh
  setWindowIcon(ApplicationIcon());
  Image1_->setPixmap(EmblemPicture(72));
  Combo1_->setMinimumContentsLength(18);
  for (QComboBox* list : {Combo1_, Combo2_, Combo3_}) list->setMaxVisibleItems(20);
  FitNumber(pkmntxt_, NumberText::Word);
  FitNumber(Text3_, NumberText::Offset);
  FitNumber(Text12_, NumberText::Offset);
  Combo3_->setFixedWidth(Text3_->minimumWidth());  // the level list as wide as the offsets below it
  Command1_->setDefault(true);

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(14, 14, 14, 14);
  grid->setHorizontalSpacing(8);
  grid->addWidget(Image1_, 0, 0, 5, 1, Qt::AlignTop);
  grid->addWidget(Label1_, 0, 1);
  grid->addWidget(Combo1_, 0, 2);
  grid->addWidget(pkmntxt_, 0, 3);
  grid->addWidget(Label2_, 1, 1);
  grid->addWidget(Combo3_, 1, 2, Qt::AlignLeft);
  grid->addWidget(Label3_, 2, 1);
  grid->addWidget(Combo2_, 2, 2, 1, 2);
  grid->addWidget(Label4_, 3, 1);
  grid->addWidget(Text3_, 3, 2, Qt::AlignLeft);
  grid->addWidget(Command2_, 3, 3);
  grid->addWidget(Label5_, 4, 1);
  grid->addWidget(Text12_, 4, 2, Qt::AlignLeft);
  grid->addWidget(Command3_, 4, 3);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(Check1_);
  buttons->addStretch();
  buttons->addWidget(Command1_);
  grid->addLayout(buttons, 5, 0, 1, 4);
  grid->setSizeConstraint(QLayout::SetFixedSize);

  connect(Combo1_, &QComboBox::activated, this,
          [this](int i) { shell_.Run([this, i] { SetCombo1Selection(form_, i); }); });
  connect(Combo3_, &QComboBox::activated, this,
          [this](int i) { shell_.Run([this, i] { SetCombo3Selection(form_, i); }); });
  connect(Combo2_, &QComboBox::activated, this,
          [this](int i) { shell_.Run([this, i] { SetCombo2Selection(form_, i); }); });
  const std::pair<QLineEdit*, TextBox*> edits[] = {
      {pkmntxt_, &form_.pkmntxt}, {Text3_, &form_.Text3}, {Text12_, &form_.Text12}};
  for (const auto& [widget, box] : edits) {
    connect(widget, &QLineEdit::textEdited, this, [box = box](const QString& t) { box->text = t.toStdString(); });
  }
  connect(Command1_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { InsertGivePokemon(form_, shell_.form1(), shell_.rom(), shell_.dialogs()); }); });
  CloseOnEscape(this);
  WireEnter(this, Command1_, {Text3_, Text12_});
  connect(Check1_, &QCheckBox::clicked, this, [this](bool on) { form_.Check1.checked = on; });
  connect(Command2_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { PressFindScriptSpace(form_, shell_.rom(), shell_.dialogs()); }); });
  connect(Command3_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { PressFindTextSpace(form_, shell_.rom(), shell_.dialogs()); }); });
  // As the window reads: each Find Free Space after its field, the box before Insert.
  QWidget* const order[] = {Combo1_, pkmntxt_, Combo3_, Combo2_, Text3_, Command2_, Text12_, Command3_, Check1_,
                            Command1_};
  for (std::size_t i = 1; i < std::size(order); ++i) setTabOrder(order[i - 1], order[i]);
  Refresh();
}

void Form5Window::Refresh() {
  const QSignalBlocker b1(Combo1_), b2(Combo2_), b3(Combo3_), b4(pkmntxt_), b5(Text3_), b6(Text12_);
  setWindowTitle(ToQString(form_.title));
  Sync(Label1_, form_.Label1);
  combo1_(Combo1_, form_.Combo1);
  Sync(pkmntxt_, form_.pkmntxt);
  Sync(Label2_, form_.Label2);
  combo3_(Combo3_, form_.Combo3);
  Sync(Label3_, form_.Label3);
  combo2_(Combo2_, form_.Combo2);
  Sync(Label4_, form_.Label4);
  Sync(Text3_, form_.Text3);
  Sync(Label5_, form_.Label5);
  Sync(Text12_, form_.Text12);
  Sync(Command1_, form_.Command1);
  Sync(Check1_, form_.Check1);
  Sync(Command2_, form_.Command2);
  Sync(Command3_, form_.Command3);
}

void Form5Window::closeEvent(QCloseEvent* event) {
  shell_.Run([this] { UnloadForm5(shell_.session()); });
  event->accept();
}

}  // namespace tessarine
