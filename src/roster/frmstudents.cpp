// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/frmstudents.h"

#include <algorithm>
#include <utility>

#include "roster/chosen_students.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

std::vector<std::string> LinesOf(const std::vector<i16>& places) {
  std::vector<std::string> lines;
  lines.reserve(places.size());
  for (const i16 place : places)
    lines.push_back(StudentListLine(Current().Students[static_cast<std::size_t>(place)]));
  return lines;
}

}  // namespace

frmstudents::frmstudents() : Portal("frmstudents") {
  Caption = "Student Portal";
  HelpContext = 290;
  enter.Caption = "&Enter >>";
  remove.Caption = "<< &Remove";
  allstudents.Caption = "Choose All &Students";
  clear.Caption = "&Clear Selected List";
  finished.Caption = "&Finished";
  Label3.Caption = "For E-mail, choose only ONE student";
  orglist.MultiSelect = printlist.MultiSelect = true;
}

void frmstudents::Declare(ControlTable& table) {
  table.Add("orglist", orglist).DblClick([this] { enter_Click(); });
  table.Add("enter", enter).Click([this] { enter_Click(); });
  table.Add("remove", remove).Click([this] { remove_Click(); });
  table.Add("printlist", printlist).DblClick([this] { remove_Click(); });
  table.Add("Label3", Label3);
  table.Add("allstudents", allstudents).Click([this] { allstudents_Click(); });
  table.Add("clear", clear).Click([this] { clear_Click(); });
  table.Add("finished", finished).Click([this] { finished_Click(); });
}

void frmstudents::Load() {
  chosen_ = ChosenStudents();
  for (i16 i = 1; i <= Current().NumStudents; ++i)
    if (std::ranges::find(chosen_, i) == chosen_.end()) rest_.push_back(i);
  FillLists();
  SetFocus(orglist);
}

void frmstudents::FillLists() {
  std::ranges::sort(rest_);
  std::ranges::sort(chosen_);
  orglist.List = LinesOf(rest_);
  printlist.List = LinesOf(chosen_);
  const auto within = [](ListBox& box) {
    box.ListIndex = std::min(box.ListIndex, static_cast<int>(box.List.size()) - 1);
    box.Selected.assign(box.List.size(), false);
    if (box.ListIndex >= 0) box.Selected[static_cast<std::size_t>(box.ListIndex)] = true;
  };
  within(orglist);
  within(printlist);
}

// Every marked line moves. The one behind the first of them stands marked afterwards, so that one
// key moves several one by one too.
void frmstudents::Move(ListBox& from, Places& places, Places& to) {
  Places stay;
  int first = -1;
  for (std::size_t line = 0; line < places.size(); ++line) {
    const bool moves = line < from.Selected.size() && from.Selected[line];
    (moves ? to : stay).push_back(places[line]);
    if (moves && first < 0) first = static_cast<int>(line);
  }
  if (first < 0) return;
  places = std::move(stay);
  from.ListIndex = first;
  FillLists();
}

void frmstudents::enter_Click() {
  Move(orglist, rest_, chosen_);
}

void frmstudents::remove_Click() {
  Move(printlist, chosen_, rest_);
}

void frmstudents::allstudents_Click() {
  chosen_.insert(chosen_.end(), rest_.begin(), rest_.end());
  rest_.clear();
  FillLists();
}

void frmstudents::clear_Click() {
  rest_.insert(rest_.end(), chosen_.begin(), chosen_.end());
  chosen_.clear();
  FillLists();
}

void frmstudents::finished_Click() {
  ChooseStudents(chosen_);
  Unload();
}

}  // namespace tallyroll
