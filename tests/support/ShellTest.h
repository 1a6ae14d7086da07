#pragma once

// The program's windows, headless, with dialogs that answer from a script: a window at a time
// is driven through its widgets by their names.
#include <QAbstractButton>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

#include "qt/QtShell.h"
#include "support/ScriptedDialogs.h"
#include "support/WidgetDriver.h"

namespace tessarine::test {

class ShellTest : public ::testing::Test {
 public:
  template <typename W = QLineEdit>
  W* Find(const char* name) {
    W* widget = window->findChild<W*>(name);
    EXPECT_NE(widget, nullptr) << name;
    return widget;
  }
  void Click(const char* button) { QTest::mouseClick(Find<QAbstractButton>(button), Qt::LeftButton); }
  QString Text(const char* field) { return Find<QLineEdit>(field)->text(); }

  ScriptedDialogs dialogs;
  QtShell shell{dialogs};
  QWidget* window = nullptr;
};

}  // namespace tessarine::test
