// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/mark_entry.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "base/text.h"

namespace tallyroll {
namespace {

constexpr std::string_view kAbsent = "ABS";
constexpr std::string_view kNone = "NON";
constexpr std::string_view kCut = "CUT";
constexpr std::string_view kExcused = "EXC";

std::string_view SpecialMarkOf(Key key) {
  switch (key) {
    case Key::kF6:
      return kAbsent;
    case Key::kF7:
      return kNone;
    case Key::kF8:
      return kCut;
    case Key::kF9:
      return kExcused;
    default:
      return {};
  }
}

}  // namespace

std::string ShownMark(std::string_view mark) {
  std::string shown(mark);
  std::ranges::replace(shown, '\0', ' ');
  shown.resize(TrimRight(shown).size());
  return shown;
}

std::string TypedMark(std::string_view text) {
  return UpperCase(Left(text, kLongestMark));
}

CellEntry::CellEntry(Grid& grid, int column, std::function<void()> edited)
    : grid_(grid), column_(column), edited_(std::move(edited)) {}

ControlRow& CellEntry::Declare(ControlTable& table, std::string_view grid_name) {
  return table.Add(grid_name, grid_)
      .Change([this] { typing_.first_key = true; })
      .Click([this] { Click(); })
      .KeyDown([this](Key key) { return KeyDown(key); })
      .KeyPress([this](unsigned char key) { return KeyPress(key); });
}

bool CellEntry::HasCell() const {
  return grid_.Row >= grid_.FixedRows && grid_.Row < grid_.Rows();
}

void CellEntry::Write(std::string_view text) {
  grid_.Col = column_;
  grid_.SetTextMatrix(grid_.Row, column_, text);
  last_active_row_ = grid_.Row;
  edited_();
}

bool CellEntry::KeyPress(unsigned char key) {
  if (!HasCell()) return true;
  goes_on_ = !typing_.first_key;
  Write(Typed(typing_.Type(grid_.TextMatrix(grid_.Row, column_), key)));
  return true;
}

bool CellEntry::KeyDown(Key key) {
  if (key == Key::kEnter)
    NextRow();
  else if (key == Key::kEnd)
    LastRow();
  else
    return false;
  return true;
}

void CellEntry::NextRow() {
  GoTo(grid_.Row + 1);
}

void CellEntry::LastRow() {
  GoTo(grid_.Rows() - 1);
}

void CellEntry::GoTo(int row) {
  typing_.first_key = true;
  grid_.Col = column_;
  if (row >= grid_.FixedRows && row < grid_.Rows()) grid_.Row = row;
}

void CellEntry::StartAt(int row) {
  last_active_row_ = row;
  GoTo(row);
}

// A name belongs to its row; a heading to none.
void CellEntry::Click() {
  GoTo(grid_.MouseRow < grid_.FixedRows ? last_active_row_ : grid_.MouseRow);
}

MarkEntry::MarkEntry(Portal& portal, Grid& grid, int column, std::function<void()> edited)
    : CellEntry(grid, column, std::move(edited)), portal_(portal), marks_(grid) {
  Command1.Caption = " ABS [F6]";
  Command2.Caption = " NON [F7]";
  Command3.Caption = "CUT [F8]";
  Command4.Caption = "EXC [F9]";
}

void MarkEntry::Declare(ControlTable& table, std::string_view grid_name) {
  CellEntry::Declare(table, grid_name);
  table.Add("Command1", Command1).Click([this] { Press(kAbsent); });
  table.Add("Command2", Command2).Click([this] { Press(kNone); });
  table.Add("Command3", Command3).Click([this] { Press(kCut); });
  table.Add("Command4", Command4).Click([this] { Press(kExcused); });
}

void MarkEntry::Enable(bool on) {
  for (Control* control :
       std::initializer_list<Control*>{&marks_, &Command1, &Command2, &Command3, &Command4})
    control->Enabled = on;
}

bool MarkEntry::KeyDown(Key key) {
  const std::string_view special = SpecialMarkOf(key);
  if (special.empty()) return CellEntry::KeyDown(key);
  WriteSpecial(special);
  return true;
}

std::string MarkEntry::Typed(std::string text) const {
  return TypedMark(text);
}

// A special mark is whole: a key after it begins a new mark.
void MarkEntry::WriteSpecial(std::string_view mark) {
  if (!HasCell()) return;
  Write(mark);
  GoTo(marks_.Row);
}

void MarkEntry::Press(std::string_view mark) {
  WriteSpecial(mark);
  portal_.SetFocus(marks_);
}

}  // namespace tallyroll
