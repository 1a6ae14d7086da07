#pragma once

// Drives real widgets as a person does, for the view tests and the screenshots.
#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QTest>

namespace tessarine::test {

// Opens a drop-down list and clicks one of its rows.
inline void Pick(QComboBox* combo, int row) {
  combo->showPopup();
  QAbstractItemView* list = combo->view();
  const QModelIndex index = list->model()->index(row, combo->modelColumn());
  list->scrollTo(index);
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(index).center());
}

// Replaces the text of a field by typing.
inline void Type(QLineEdit* field, const QString& text) {
  field->setFocus();
  field->selectAll();
  QTest::keyClicks(field, text);
}

}  // namespace tessarine::test
