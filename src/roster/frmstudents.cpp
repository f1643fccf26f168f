// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/frmstudents.h"

#include <algorithm>

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

std::vector<i16> ChosenStudents;

frmstudents::frmstudents() : Portal("frmstudents") {
  Caption = "Student Portal";
  HelpContext = 290;
  enter.Caption = "&Enter >>";
  remove.Caption = "<< &Remove";
  allstudents.Caption = "Choose All &Students";
  clear.Caption = "&Clear Selected List";
  finished.Caption = "&Finished";
  Label3.Caption = "For E-mail, choose only ONE student";
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
  for (int i = 1; i <= Current().NumStudents; ++i) {
    const bool chosen = std::ranges::find(ChosenStudents, i) != ChosenStudents.end();
    (chosen ? chosen_ : rest_).push_back(static_cast<i16>(i));
  }
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
  };
  within(orglist);
  within(printlist);
}

// The next line stands chosen afterwards, so that one key moves several.
void frmstudents::Move(ListBox& from, Places& places, Places& to) {
  if (from.ListIndex < 0) return;
  const auto moved = places.begin() + from.ListIndex;
  to.push_back(*moved);
  places.erase(moved);
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
  ChosenStudents = chosen_;
  Unload();
}

}  // namespace tallyroll
