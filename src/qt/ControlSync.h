#pragma once

// Copies the records of controls into their widgets. The callers block the widgets'
// signals first, so that nothing a copy changes runs an action.
#include <QAbstractButton>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QString>
#include <QStringList>
#include <algorithm>
#include <initializer_list>
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

// Enter in the text fields of `window`. In the offset fields that its writing button reads (a
// builder's script and text offsets, the braille inserter's script offset) Enter presses that
// button, as a click does; the button checks the offsets and asks before it writes over data.
// In every other text field Enter moves the focus on, as Tab does, and runs nothing: Enter
// pressed by habit after a number loads, saves and inserts nothing. The text of a list that
// takes typing is left to the list (its Enter picks the row typed, or nothing), and a list and
// a check box keep their own Enter, which presses nothing. Enter on a button that has the
// focus presses it, in every window (Qt gives that to the buttons of a dialog only).
inline void WireEnter(QWidget* window, QAbstractButton* writer = nullptr,
                      std::initializer_list<QLineEdit*> offsets = {}) {
  for (QPushButton* button : window->findChildren<QPushButton*>()) button->setAutoDefault(true);
  for (QLineEdit* field : window->findChildren<QLineEdit*>()) {
    if (qobject_cast<QComboBox*>(field->parentWidget()) != nullptr) continue;
    if (writer != nullptr && std::find(offsets.begin(), offsets.end(), field) != offsets.end()) {
      QObject::connect(field, &QLineEdit::returnPressed, writer, &QAbstractButton::click);
    } else {
      QObject::connect(field, &QLineEdit::returnPressed, field, [field] {
        QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
        QCoreApplication::sendEvent(field, &tab);
      });
    }
  }
}

// The longest text of a number field: "&H" and as many hexadecimal digits as a ROM offset
// ("&HFFFFFFFF"), a word ("&HFFFF") or a byte ("&HFF") has.
enum class NumberText { Offset = 8, Word = 4, Byte = 2 };

// Makes `field` exactly wide enough to show the longest text of its kind whole, in its own
// font: "&H" and that many of the font's widest hexadecimal digit, the room a line edit keeps
// around its text, and its cursor.
inline void FitNumber(QLineEdit* field, NumberText kind) {
  field->ensurePolished();
  const QFontMetrics metrics = field->fontMetrics();
  int digit = 0;
  for (const QChar c : QStringLiteral("0123456789ABCDEF")) digit = std::max(digit, metrics.horizontalAdvance(c));
  constexpr int kAround = 2 * 2 + 2;  // QLineEdit's margin on each side, the cursor
  const QMargins margins = field->textMargins();
  const int text = metrics.horizontalAdvance(QStringLiteral("&H")) + static_cast<int>(kind) * digit + kAround +
                   margins.left() + margins.right();
  QStyleOptionFrame option;
  option.initFrom(field);
  option.lineWidth = field->hasFrame() ? field->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, field) : 0;
  field->setFixedWidth(
      field->style()->sizeFromContents(QStyle::CT_LineEdit, &option, QSize(text, metrics.height()), field).width());
}

// Esc in a tool window closes it and writes nothing: it presses `closer` (the window's own
// button that closes it, such as Done) or, with none, closes the window as its title bar
// does. The closer's tooltip names the key, else the window's own (where no field has one).
inline void CloseOnEscape(QWidget* window, QAbstractButton* closer = nullptr) {
  auto* escape = new QShortcut(QKeySequence::Cancel, window);
  if (closer != nullptr) {
    QObject::connect(escape, &QShortcut::activated, closer, &QAbstractButton::click);
    closer->setToolTip("Closes the window without writing (Esc)");
  } else {
    QObject::connect(escape, &QShortcut::activated, window, &QWidget::close);
    window->setToolTip("Esc closes the window without writing.");
  }
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
