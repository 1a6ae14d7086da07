#include <QApplication>

#include "rom/RomImage.h"
#include "shell/Form1.h"
#include "shell/Form1Window.h"

int main(int argc, char* argv[]) {
  QApplication app(argc, argv);
  tessarine::RomImage rom;
  tessarine::Form1 form;
  tessarine::Form1Window window(form);
  window.show();
  return QApplication::exec();
}
