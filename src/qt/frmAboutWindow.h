#pragma once

#include <QDialog>

class QLabel;
class QPushButton;

namespace tessarine {

class QtShell;
struct frmAbout;

// The About box: the tool's name, version, the commit it was built from and what it is for.
class frmAboutWindow : public QDialog {
  Q_OBJECT

 public:
  frmAboutWindow(QtShell& shell, frmAbout& form);
  void Refresh();

 private:
  frmAbout& form_;
  QLabel* picIcon_;
  QLabel* lblTitle_;
  QLabel* lblVersion_;
  QLabel* lblCommit_;
  QLabel* lblDescription_;
  QPushButton* cmdOK_;
};

}  // namespace tessarine
