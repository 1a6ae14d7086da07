#include "qt/WildBattleWindows.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QPushButton>
#include <QSignalBlocker>

#include "qt/Form1Window.h"
#include "qt/QtArtwork.h"
#include "qt/QtShell.h"
#include "scripts/WildBattleForms.h"

namespace tessarine {
WildBattleWindow::WildBattleWindow(QtShell& shell, WildBattleForm& form, const char* name)
    : QWidget(&shell.mainWindow(), Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                       Qt::WindowMinimizeButtonHint | Qt::WindowCloseButtonHint),
      shell_(shell),
      grid_(new QGridLayout(this)),
      form_(form) {
  setObjectName(name);
  setAttribute(Qt::WA_DeleteOnClose);  // closing unloads it; the next opening starts afresh
  setWindowIcon(ApplicationIcon());

  Label1_ = Named(new QLabel(this), "Label1");
  Combo1_ = Named(new QComboBox(this), "Combo1");
  Combo1_->setEditable(true);  // shows "Select a Pokemon"; typed text selects nothing
  Combo1_->setInsertPolicy(QComboBox::NoInsert);
  Combo1_->setCompleter(nullptr);
  Combo1_->setMinimumContentsLength(18);
  Combo1_->setMaxVisibleItems(20);
  pkmntxt_ = Named(new QLineEdit(this), "pkmntxt");
  Label2_ = Named(new QLabel(this), "Label2");
  crytxt_ = Named(new QLineEdit(this), "crytxt");
  Label3_ = Named(new QLabel(this), "Label3");
  Combo3_ = Named(new QComboBox(this), "Combo3");
  Combo3_->setMaxVisibleItems(20);
  Label4_ = Named(new QLabel(this), "Label4");
  Combo2_ = Named(new QComboBox(this), "Combo2");
  Combo2_->setMaxVisibleItems(20);
  Label5_ = Named(new QLabel(this), "Label5");
  Text3_ = Named(new QLineEdit(this), "Text3");
  Command1_ = Named(new QPushButton(this), "Command1");
  Command1_->setDefault(true);
  FitNumber(pkmntxt_, NumberText::Word);
  FitNumber(crytxt_, NumberText::Word);
  FitNumber(Text3_, NumberText::Offset);
  Combo3_->setFixedWidth(Text3_->minimumWidth());  // the level list as wide as the offset below it
  Check1_ = Named(new QCheckBox(this), "Check1");
  Command4_ = Named(new QPushButton(this), "Command4");

  grid_->setContentsMargins(14, 14, 14, 14);
  grid_->setHorizontalSpacing(8);
  grid_->addWidget(Label1_, 0, 0);
  grid_->addWidget(Combo1_, 0, 1, 1, 3);
  grid_->addWidget(pkmntxt_, 1, 1);
  grid_->addWidget(Label2_, 1, 2, Qt::AlignRight);
  grid_->addWidget(crytxt_, 1, 3);
  grid_->addWidget(Label3_, 2, 0);
  grid_->addWidget(Combo3_, 2, 1);
  grid_->addWidget(Label4_, 3, 0);
  grid_->addWidget(Combo2_, 3, 1, 1, 3);
  grid_->addWidget(Label5_, 4, 0);
  grid_->addWidget(Text3_, 4, 1);
  grid_->addWidget(Command4_, 4, 2, 1, 2, Qt::AlignLeft);
  grid_->setSizeConstraint(QLayout::SetFixedSize);

  WildBattleForm& f = form_;
  connect(Combo1_, &QComboBox::activated, this,
          [this](int i) { shell_.Run([this, i] { SetCombo1Selection(form_, i); }); });
  connect(Combo1_, &QComboBox::editTextChanged, this, [&f](const QString& t) { f.Combo1.text = t.toStdString(); });
  connect(Combo1_->lineEdit(), &QLineEdit::returnPressed, this,
          [this] { shell_.Run([this] { PickTypedSpecies(form_, shell_.dialogs()); }); });
  connect(Check1_, &QCheckBox::clicked, this, [&f](bool on) { f.Check1.checked = on; });
  connect(Combo2_, &QComboBox::activated, this,
          [this](int i) { shell_.Run([this, i] { SetCombo2Selection(form_, i); }); });
  const std::pair<QLineEdit*, TextBox*> edits[] = {{pkmntxt_, &f.pkmntxt}, {crytxt_, &f.crytxt}, {Text3_, &f.Text3}};
  for (const auto& [widget, box] : edits) {
    connect(widget, &QLineEdit::textEdited, this, [box = box](const QString& t) { box->text = t.toStdString(); });
  }
}

void WildBattleWindow::FinishLayout(std::initializer_list<QLineEdit*> offsets) {
  CloseOnEscape(this);
  WireEnter(this, Command1_, offsets);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(Check1_);
  buttons->addStretch();
  buttons->addWidget(Command1_);
  grid_->addLayout(buttons, grid_->rowCount(), 0, 1, 4);
  // As the window reads: each Find Free Space after its field, the box before Insert.
  setTabOrder(Text3_, Command4_);
  setTabOrder(Command4_, Check1_);
  setTabOrder(Check1_, Command1_);
}

void WildBattleWindow::Refresh() {
  const QSignalBlocker b1(Combo1_), b2(Combo2_), b3(Combo3_), b4(pkmntxt_), b5(crytxt_), b6(Text3_);
  setWindowTitle(ToQString(form_.title));
  Sync(Label1_, form_.Label1);
  combo1_(Combo1_, form_.Combo1);
  Sync(pkmntxt_, form_.pkmntxt);
  Sync(Label2_, form_.Label2);
  Sync(crytxt_, form_.crytxt);
  Sync(Label3_, form_.Label3);
  combo3_(Combo3_, form_.Combo3);
  Sync(Label4_, form_.Label4);
  combo2_(Combo2_, form_.Combo2);
  Sync(Label5_, form_.Label5);
  Sync(Text3_, form_.Text3);
  Sync(Command1_, form_.Command1);
  Sync(Check1_, form_.Check1);
  Sync(Command4_, form_.Command4);
  RefreshOwn();
}

Form3Window::Form3Window(QtShell& shell, Form3& form) : WildBattleWindow(shell, form, "Form3"), form3_(form) {
  connect(Combo3_, &QComboBox::activated, this,
          [this](int i) { shell_.Run([this, i] { SetCombo3Selection(form3_, i); }); });
  connect(Command1_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { InsertWildBattle(form3_, shell_.form1(), shell_.rom(), shell_.dialogs()); }); });
  connect(Command4_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { PressFindScriptSpace(form3_, shell_.rom(), shell_.dialogs()); }); });
  FinishLayout({Text3_});
  Refresh();
}

Form4Window::Form4Window(QtShell& shell, Form4& form)
    : WildBattleWindow(shell, form, "Form4"),
      form4_(form),
      Label6_(Named(new QLabel(this), "Label6")),
      Text12_(Named(new QLineEdit(this), "Text12")),
      Label7_(Named(new QLabel(this), "Label7")),
      Command5_(Named(new QPushButton(this), "Command5")) {
  FitNumber(Text12_, NumberText::Offset);
  Label7_->setWordWrap(true);
  grid_->addWidget(Label6_, 5, 0);
  grid_->addWidget(Text12_, 5, 1);
  grid_->addWidget(Command5_, 5, 2, 1, 2, Qt::AlignLeft);
  grid_->addWidget(Label7_, 6, 0, 1, 4);

  connect(Text12_, &QLineEdit::textEdited, this, [this](const QString& t) { form4_.Text12.text = t.toStdString(); });
  connect(Combo3_, &QComboBox::activated, this,
          [this](int i) { shell_.Run([this, i] { SetCombo3Selection(form4_, i); }); });
  connect(Command1_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { InsertWildBattle(form4_, shell_.form1(), shell_.rom(), shell_.dialogs()); }); });
  connect(Command4_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { PressFindScriptSpace(form4_, shell_.rom(), shell_.dialogs()); }); });
  connect(Command5_, &QPushButton::clicked, this,
          [this] { shell_.Run([this] { PressFindTextSpace(form4_, shell_.rom(), shell_.dialogs()); }); });
  FinishLayout({Text3_, Text12_});
  setTabOrder(Command4_, Text12_);
  setTabOrder(Text12_, Command5_);
  setTabOrder(Command5_, Check1_);
  Refresh();
}

void Form4Window::RefreshOwn() {
  const QSignalBlocker block(Text12_);
  Sync(Label6_, form4_.Label6);
  Sync(Text12_, form4_.Text12);
  Sync(Label7_, form4_.Label7);
  Sync(Command5_, form4_.Command5);
}

}  // namespace tessarine
