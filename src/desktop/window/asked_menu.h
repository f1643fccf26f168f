// SPDX-License-Identifier: GPL-3.0-or-later
// What the other mouse button and the menu key offer on a cell of the class.
#pragma once

#include <QMenu>

namespace tallyroll {

class Form1;
class MenuView;

// A cell by its row and column.
struct AskedCell {
  int row = -1;
  int col = -1;
};

// First what a double click does, by its name; then what can be asked about the student and the
// grade of the cell. Empty where nothing stands.
class AskedMenu : public QMenu {
 public:
  AskedMenu(const Form1& form, const MenuView& entries, AskedCell cell, QWidget* parent);

  // The entry that stands for the double click; null without one.
  QAction* double_click() const { return double_click_; }

 private:
  QAction* double_click_ = nullptr;
};

}  // namespace tallyroll
