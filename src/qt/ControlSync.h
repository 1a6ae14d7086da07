#pragma once

// Copies the records of controls into their widgets. The callers block the widgets'
// signals first, so that nothing a copy changes runs an action.
#include <QAbstractButton>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QString>
#include <QStringList>
#include <string>
#include <vector>

#include "forms/Controls.h"

namespace tessarine {

// A widget under the name of its control, so that tests and tools find it by that name.
template <typename W>
W* Named(W* widget, const char* name) {
  widget->setObjectName(name);
  return widget;
}

template <typename W>
W* Named(W* widget, QWidget* parent, const char* name) {
  widget->setParent(parent);
  return Named(widget, name);
}

inline QString ToQString(const std::string& text) { return QString::fromStdString(text); }

inline void Sync(QLineEdit* widget, const TextBox& box) {
  if (widget->text() != ToQString(box.text)) widget->setText(ToQString(box.text));
  widget->setToolTip(ToQString(box.toolTip));
  widget->setEnabled(box.enabled);
  widget->setVisible(box.visible);
}

inline void Sync(QAbstractButton* widget, const Button& button) {
  widget->setText(ToQString(button.caption));
  widget->setEnabled(button.enabled);
  widget->setVisible(button.visible);
}

inline void Sync(QAbstractButton* widget, const CheckBox& box) {
  widget->setText(ToQString(box.caption));
  widget->setChecked(box.checked);
  widget->setEnabled(box.enabled);
  widget->setVisible(box.visible);
}

inline void Sync(QLabel* widget, const Label& label) {
  widget->setText(ToQString(label.caption));
  widget->setVisible(label.visible);
}

// A window's handling of the keys its fields and closed lists pass on: Enter presses the
// default button. True when the key was taken.
inline bool EnterPresses(QKeyEvent* event, QAbstractButton* defaultButton) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return false;
  defaultButton->click();
  return true;
}

// A drop-down list; remembers the rows it last gave its widget, so that a refresh fills
// the widget only when they changed.
class ComboSync {
 public:
  void operator()(QComboBox* widget, const ComboBox& combo) {
    if (shownRows_ != combo.rows) {
      widget->clear();
      QStringList rows;
      rows.reserve(static_cast<qsizetype>(combo.rows.size()));
      for (const std::string& row : combo.rows) rows << ToQString(row);
      widget->addItems(rows);
      shownRows_ = combo.rows;
    }
    if (widget->currentIndex() != combo.selected) widget->setCurrentIndex(combo.selected);
    if (widget->isEditable() && widget->currentText() != ToQString(combo.text)) {
      widget->setEditText(ToQString(combo.text));
    }
    widget->setEnabled(combo.enabled);
    widget->setVisible(combo.visible);
  }

 private:
  std::vector<std::string> shownRows_;
};

}  // namespace tessarine
