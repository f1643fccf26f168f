// SPDX-License-Identifier: GPL-3.0-or-later
// Which commands of the class window can be given: what a class lacks cannot be worked on.
#include <initializer_list>

#include "base/text.h"
#include "shell/form1.h"
#include "shell/menu_needs.h"

namespace tallyroll {
namespace {

constexpr int kButtonsWithClass[] = {3, 5, 6, 7, 9, 12};
constexpr int kButtonsWithGrades[] = {8, 11, 13, 14};
constexpr int kButtonsWithSummaries[] = {10};
constexpr int kButtonsWithDays[] = {10, 11};

template <typename Names, typename Places>
void Enable(Form1& window, const Names& names, const Places& places, bool on) {
  for (const std::string_view name : names) window.menu.Enable(name, on);
  for (const int place : places) window.Toolbar2[static_cast<std::size_t>(place) - 1].enabled = on;
}

void EnablePasswordEntries(Form1& window, bool on) {
  const bool locked = Current().PasswordSet == 1 || !Trim(Current().Password).empty();
  window.menu.Enable("mnupassdelete", locked && on);
  window.menu.Enable("mnupasschange", locked && on);
  window.menu.Enable("mnupassenter", !locked || !on);
}

}  // namespace

// Several entries need one of two or three kinds of records, so first all that hang on records go
// off, which also follows the loss of a class's last grade; then each kind at hand puts its own on.
void Form1::EnableClassMenus(bool on) {
  const Class& c = Current();
  Enable(*this, kWithGrades, kButtonsWithGrades, false);
  Enable(*this, kWithSummaries, kButtonsWithSummaries, false);
  Enable(*this, kWithDays, kButtonsWithDays, false);

  Enable(*this, kWithClass, kButtonsWithClass, on);
  EnablePasswordEntries(*this, on);
  menu.Enable("mnusave", on);
  if (c.NumInstruments > 0) Enable(*this, kWithGrades, kButtonsWithGrades, on);
  if (c.NumSummaries > 0) Enable(*this, kWithSummaries, kButtonsWithSummaries, on);
  if (c.NumDays > 0) Enable(*this, kWithDays, kButtonsWithDays, on);
}

}  // namespace tallyroll
