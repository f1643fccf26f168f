// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmscrnavg.h"

#include "averages/average_settings.h"
#include "averages/explained/explain_student.h"
#include "averages/rounding.h"
#include "base/number_text.h"
#include "base/text.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"

namespace tallyroll {
namespace {

bool IsPointMethod() {
  return Current().Method == 2 || Current().Method == 3;
}

}  // namespace

frmscrnavg::frmscrnavg() : StudentScreen("frmscrnavg", lstName, "Code") {
  Caption = "Grades Portal";
  HelpContext = 560;
  avg_label.Caption = "Exact Average";
  PREVIOUS.Caption = "&Previous";
  nextt.Caption = "&Next";
  explain.Caption = "&Explain Average";
}

void frmscrnavg::Declare(ControlTable& table) {
  DeclareList(table, "lstName");
  table.Add("lname", lname);
  table.Add("fname", fname);
  DeclareRecord(table);
  table.Add("avg_label", avg_label);
  table.Add("avg", avg);
  table.Add("suggr", suggr);
  table.Add("PREVIOUS", PREVIOUS).Click([this] { ShowPrevious(); });
  table.Add("nextt", nextt).Click([this] { ShowNext(); });
  table.Add("explain", explain).Click([] { ShowExplanation(CurrentStudent); });
  table.Add("exit", exit).Click([this] { exit_Click(); });
}

void frmscrnavg::Load() {
  StudentScreen::Load();
  for (Student& student : Current().Students)
    if (!student.Marks.empty()) student.Marks[0] = "-";
}

void frmscrnavg::ShowMore() {
  const Student& student = Current().Students[static_cast<std::size_t>(CurrentStudent)];
  lname.Caption = Trim(student.lastname);
  fname.Caption = Trim(student.firstname);
  avg_label.Caption = IsPointMethod() ? "Points/Average" : "Exact Average";
  avg.Caption.clear();
  suggr.Caption.clear();
  StudentAverage average;
  if (const AverageError error = AverageStudent(average)) {
    ShowMessage(AverageErrorText(error), BoxIcon::kCritical);
    return;
  }
  const auto& [earned, possible] = average.points;
  if (IsPointMethod())
    avg.Caption = PlainNumberText(earned) + "/" + PlainNumberText(possible) + "  ";
  avg.Caption += PlainNumberText(average.exact);
  suggr.Caption = TrimRight(average.grade.Text());
}

void frmscrnavg::Leave() {
  ClassWindow().EnableEntry("mnuoptions", true);
  ClassWindow().EnableEntry("mnuprtgrade", true);
  if (WantsAveragesSaved())
    UnloadAndShow("frmgradesave");
  else
    Unload();
}

}  // namespace tallyroll
