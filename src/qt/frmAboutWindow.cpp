#include "qt/frmAboutWindow.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include "qt/ControlSync.h"
#include "qt/Form1Window.h"
#include "qt/QtArtwork.h"
#include "qt/QtShell.h"
#include "shell/frmAbout.h"

namespace tessarine {

frmAboutWindow::frmAboutWindow(QtShell& shell, frmAbout& form)
    : QDialog(&shell.mainWindow(), Qt::Dialog),
      form_(form),
      picIcon_(new QLabel(this)),
      lblTitle_(new QLabel(this)),
      lblVersion_(new QLabel(this)),
      lblCommit_(new QLabel(this)),
      lblDescription_(new QLabel(this)),
      cmdOK_(new QPushButton(this)) {
  setObjectName("frmAbout");
  setAttribute(Qt::WA_DeleteOnClose);  // OK unloads it; the next opening loads it again
  setModal(false);
  picIcon_->setObjectName("picIcon");
  lblTitle_->setObjectName("lblTitle");
  lblVersion_->setObjectName("lblVersion");
  lblCommit_->setObjectName("lblCommit");
  lblDescription_->setObjectName("lblDescription");
  cmdOK_->setObjectName("cmdOK");

  picIcon_->setPixmap(EmblemPicture(64));
  QFont titleFont = lblTitle_->font();
  titleFont.setPointSizeF(titleFont.pointSizeF() * 1.6);
  titleFont.setBold(true);
  lblTitle_->setFont(titleFont);
  lblCommit_->setTextInteractionFlags(Qt::TextSelectableByMouse);  // to be copied into a report
  lblDescription_->setWordWrap(true);
  lblDescription_->setMinimumWidth(320);
  cmdOK_->setDefault(true);
  cmdOK_->setToolTip("Closes the window (Esc)");  // as any dialog's Esc does

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(16, 16, 16, 16);
  grid->setHorizontalSpacing(16);
  grid->addWidget(picIcon_, 0, 0, 4, 1, Qt::AlignTop);
  grid->addWidget(lblTitle_, 0, 1);
  grid->addWidget(lblVersion_, 1, 1);
  grid->addWidget(lblCommit_, 2, 1);
  grid->addWidget(lblDescription_, 3, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(cmdOK_);
  grid->addLayout(buttons, 4, 0, 1, 2);
  grid->setSizeConstraint(QLayout::SetFixedSize);

  connect(cmdOK_, &QPushButton::clicked, this, &QDialog::close);
  WireEnter(this);
  Refresh();
}

void frmAboutWindow::Refresh() {
  setWindowTitle(QString::fromStdString(form_.title));
  lblTitle_->setText(QString::fromStdString(form_.lblTitle.caption));
  lblVersion_->setText(QString::fromStdString(form_.lblVersion.caption));
  lblCommit_->setText(QString::fromStdString(form_.lblCommit.caption));
  lblDescription_->setText(QString::fromStdString(form_.lblDescription.caption));
  cmdOK_->setText(QString::fromStdString(form_.cmdOK.caption));
}

}  // namespace tessarine
