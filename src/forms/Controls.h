#pragma once

#include <string>
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
  // Shows row `index` (which must exist) as the selection.
  void Show(int index) {
    selected = index;
    text = rows[static_cast<std::size_t>(index)];
  }
};

}  // namespace tessarine
