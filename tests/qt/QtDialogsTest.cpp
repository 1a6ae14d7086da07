#include "qt/QtDialogs.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QInputDialog>
#include <QLabel>
#include <QTimer>

#include "editors/NameEditors.h"

namespace tessarine {
namespace {

TEST(QtDialogsTest, AnInputBoxShowsTheAmpersandOfItsPrompt) {
  QString shown;  // the label as a person reads it, with shortcut marks taken out
  QTimer::singleShot(0, [&] {
    if (auto* box = qobject_cast<QInputDialog*>(QApplication::activeModalWidget())) {
      shown = QAccessible::queryAccessibleInterface(box->findChild<QLabel*>())->text(QAccessible::Name);
      box->reject();
    }
  });
  EXPECT_EQ(QtDialogs().Input(kPokemonEntryPrompt, kDefaultTitle), std::nullopt);
  EXPECT_EQ(shown.toStdString(), kPokemonEntryPrompt);
}

}  // namespace
}  // namespace tessarine
