// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/window/asked_menu.h"

#include "base/number_text.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/window/menu_view.h"
#include "shell/form1.h"

namespace tallyroll {

AskedMenu::AskedMenu(const Form1& form, const MenuView& entries, AskedCell cell, QWidget* parent)
    : QMenu(parent) {
  setObjectName(QStringLiteral("asked"));
  const Class& c = Classes[static_cast<std::size_t>(LeadingNumber(form.Tag))];
  const int student = cell.row - form.Grid1.FixedRows + 1;
  const int grade = cell.col - form.Grid1.FixedCols + 1;
  if (const std::string_view name = NameOfDoubleClick(cell.row, cell.col); !name.empty()) {
    double_click_ = addAction(FromText(name));
    double_click_->setObjectName(QStringLiteral("double_click"));
    setDefaultAction(double_click_);
  }
  const bool has_student = student >= 1 && student <= c.NumStudents;
  const bool has_grade = grade >= 1 && grade <= c.NumInstruments;
  if (double_click_ != nullptr && (has_student || has_grade)) addSeparator();
  if (has_student) {
    addAction(entries.Action(QStringLiteral("mnuexplain")));
    addAction(entries.Action(QStringLiteral("mnustudenthistory")));
  }
  if (has_grade) addAction(entries.Action(QStringLiteral("mnugradegraph")));
}

}  // namespace tallyroll
