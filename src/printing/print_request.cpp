// SPDX-License-Identifier: GPL-3.0-or-later
// What the Printer Portal does with the teacher's choice: checks it, lays the report out, and
// prints it or shows its pages.
#include <algorithm>
#include <initializer_list>

#include "platform/surroundings.h"
#include "printing/frmprintall.h"
#include "printing/page/report_choice.h"
#include "printing/print_command.h"
#include "printing/reports/report_codes.h"
#include "printing/reports/reports.h"
#include "printing/running.h"
#include "store/program_state.h"
#include "store/sort_students.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

bool IsOnStudents(int code) {
  const Report* report = FindReport(code);
  return report && report->one_student;
}

bool Refuse(std::string_view why, BoxIcon icon = BoxIcon::kNone) {
  ShowMessage(why, icon);
  return false;
}

}  // namespace

void frmprintall::FillChoice() {
  const bool class_boxes = Job.PrintTab == 1;
  Choice = ReportChoice();
  Choice.attendance1 = class_boxes ? attendance.Value : attendance1.Value;
  Choice.comment1 = class_boxes ? comments.Value : comment1.Value;
  Choice.printcode = printcode.Value;
  Choice.parentsig = parentsig.Value;
  Choice.school = school.Value;
  Choice.teacher = teacher.Value;
  Choice.sort = sort3.Value   ? TypeSort::kSomeTypes
                : sort2.Value ? TypeSort::kAllTypes
                              : TypeSort::kNone;
  Choice.types = (class_boxes ? rolltypes : onetypes).Ticked();
  Choice.shown = rollid.Value ? Shown::kId : rollname.Value ? Shown::kName : Shown::kNameAndId;
  Choice.grade = lsttitle.ListIndex + 1;
  Choice.rank = highlow.Value ? Rank::kHighToLow : lowhigh.Value ? Rank::kLowToHigh : Rank::kNone;
  Choice.summary = lstatt.ListIndex + 1;
  Choice.roll_order = all_type.Value    ? RollBookOrder::kAllTypes
                      : some_type.Value ? RollBookOrder::kSomeTypes
                      : all_date.Value  ? RollBookOrder::kAllDates
                      : some_date.Value ? RollBookOrder::kSomeDates
                                        : RollBookOrder::kNone;
  Choice.date_first = datestart.Value;
  Choice.date_last = dateend.Value;
  Choice.month_first = start.First();
  Choice.month_last = end.First();
  if (IsOnStudents(Job.ReportCode)) Choice.students = TickedStudents();
}

// A line stands for the student who is written so: sorting has moved students since the list was
// filled. Two who are written alike are taken one after the other.
std::vector<i16> frmprintall::TickedStudents() const {
  const Class& c = Current();
  std::vector<i16> students;
  std::vector<bool> taken(static_cast<std::size_t>(c.NumStudents) + 1, false);
  for (std::size_t line = 0; line < lstName.List.size(); ++line) {
    for (std::size_t i = 1; i < taken.size(); ++i) {
      if (taken[i] || StudentListLine(c.Students[i]) != lstName.List[line]) continue;
      taken[i] = true;
      if (lstName.Checked[line]) students.push_back(static_cast<i16>(i));
      break;
    }
  }
  return students;
}

void frmprintall::TickAll(bool on) {
  lstName.Checked.assign(lstName.List.size(), on);
}

void frmprintall::RefreshNames() {
  const std::vector<i16> ticked = TickedStudents();
  lstName.List.clear();
  for (int i = 1; i <= Current().NumStudents; ++i)
    lstName.List.push_back(StudentListLine(Current().Students[static_cast<std::size_t>(i)]));
  TickAll(false);
  for (const i16 student : ticked) lstName.Checked[static_cast<std::size_t>(student) - 1] = true;
}

bool frmprintall::CheckChoice() const {
  const int code = Job.ReportCode;
  const bool wants_types = (IsOneOf(code, {kRollBook, kRollBookTitles}) && some_type.Value) ||
                           (IsOneOf(code, {kAveragesOfOne, kGradesOfOne}) && sort3.Value);
  if (wants_types && Choice.types.empty()) return Refuse("You must select at least one type.");
  if (IsOnStudents(code) && Choice.students.empty())
    return Refuse("Choose the NAME of the student whose record you wish to print.");
  if (code == kMonths && Choice.month_last < Choice.month_first)
    return Refuse("The start date must be less than the ending date");
  if (code == kOneSummary && Choice.summary < 1)
    return Refuse("Choose the TITLE of the attendance period you wish to print.",
                  BoxIcon::kCritical);
  if (code == kOneGrade && Choice.grade < 1)
    return Refuse("Choose the TITLE of the evaluation item you wish to print.", BoxIcon::kCritical);
  return true;
}

bool frmprintall::LayOut(bool for_preview) {
  Job.PrintTab = static_cast<i16>(TabStrip1.Selected + 1);
  Job.ReportCode = static_cast<i16>(Code());
  ResetPrintJob();
  if (Job.PrintFlag != kPrintRuns) return false;
  SortStudents();
  if (for_preview && (Job.PrintTab == 2 || Job.PrintTab == 4)) RefreshNames();
  FillChoice();
  // The averages of the whole class are looked at before they go to paper: the preview prints them.
  if (Job.ReportCode == kFullClass && !for_preview)
    return Refuse(
        "The averages of the full class are printed from the preview. Choose Preview, then Print.");
  if (!CheckChoice()) return false;
  if (const std::string nothing = NothingToReport(); !nothing.empty()) ShowMessage(nothing);
  return LayOutReport() && Job.PageCount > 0;
}

void frmprintall::prints_Click() {
  if (running_) return;
  const Running running(running_);
  PrintMessage message;
  if (LayOut(false)) PrintOnPrinter(AllPages(), message);
}

void frmprintall::preview_Click() {
  if (running_) return;
  const Running running(running_);
  bool laid_out = false;
  {
    PrintMessage message;
    laid_out = LayOut(true);
  }
  if (!laid_out) return;
  ShowPortal("frmprintpre");
  LoadGrades();
}

}  // namespace tallyroll
