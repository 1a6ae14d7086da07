#pragma once

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace tessarine {

// The records of controls that make up a window's record. Each member holds what a
// person sees of the control. Setting one is plain assignment; where a control runs an
// action on a change, the window's module offers a setter that runs it.

struct Label {
  std::string caption;
  bool visible = true;
};

struct TextBox {
  std::string text;
  bool enabled = true;
  bool visible = true;
  std::string toolTip;  // shown when the mouse rests on the box; empty for none
};

struct Button {
  std::string caption;
  bool enabled = true;
  bool visible = true;
};

struct CheckBox {
  std::string caption;
  bool checked = false;
  bool enabled = true;
  bool visible = true;
};

// A drop-down list. `selected` is the row on show, -1 for none. `text` is what the
// box shows: the selected row's text, or what was typed into a box that takes text.
struct ComboBox {
  std::vector<std::string> rows;
  int selected = -1;
  std::string text;
  bool enabled = true;
  bool visible = true;

  void Clear() {
    rows.clear();
    selected = -1;
    text.clear();
  }
  // Shows row `index` as the selection and answers true. An index that names no row
  // (below 0, or past the last) changes nothing and answers false: there is no row to show
  // and none to act on, so the setters that run a list's action run it only on true.
  [[nodiscard]] bool Show(int index) {
    if (index < 0 || static_cast<std::size_t>(index) >= rows.size()) return false;
    selected = index;
    text = rows[static_cast<std::size_t>(index)];
    return true;
  }
};

// A multi-line box that the program fills and a person may then edit: nothing reads its
// text back. `puts` counts the texts that the program has put there, so that the view shows
// each one whole, also one equal to the text before it.
struct TextArea {
  std::string text;
  unsigned puts = 0;
  bool enabled = true;
  bool visible = true;

  void Put(std::string next) {
    text = std::move(next);
    ++puts;
  }
};

}  // namespace tessarine
