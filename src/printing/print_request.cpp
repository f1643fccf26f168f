// SPDX-License-Identifier: GPL-3.0-or-later
// What the Printer Portal does with the teacher's choice: checks it, lays the report out, and
// prints it or shows its pages.
#include <algorithm>
#include <initializer_list>
#include <utility>

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

ReportChoice frmprintall::Chosen(int code) const {
  const bool class_boxes = TabStrip1.Selected == 0;
  ReportChoice chosen;
  chosen.attendance1 = class_boxes ? attendance.Value : attendance1.Value;
  chosen.comment1 = class_boxes ? comments.Value : comment1.Value;
  chosen.printcode = printcode.Value;
  chosen.parentsig = parentsig.Value;
  chosen.school = school.Value;
  chosen.teacher = teacher.Value;
  chosen.sort = sort3.Value   ? TypeSort::kSomeTypes
                : sort2.Value ? TypeSort::kAllTypes
                              : TypeSort::kNone;
  chosen.types = (class_boxes ? rolltypes : onetypes).Ticked();
  chosen.shown = rollid.Value ? Shown::kId : rollname.Value ? Shown::kName : Shown::kNameAndId;
  chosen.grade = lsttitle.ListIndex + 1;
  chosen.rank = highlow.Value ? Rank::kHighToLow : lowhigh.Value ? Rank::kLowToHigh : Rank::kNone;
  chosen.summary = lstatt.ListIndex + 1;
  chosen.roll_order = all_type.Value    ? RollBookOrder::kAllTypes
                      : some_type.Value ? RollBookOrder::kSomeTypes
                      : all_date.Value  ? RollBookOrder::kAllDates
                      : some_date.Value ? RollBookOrder::kSomeDates
                                        : RollBookOrder::kNone;
  chosen.date_first = datestart.Value;
  chosen.date_last = dateend.Value;
  chosen.month_first = start.First();
  chosen.month_last = end.First();
  if (IsOnStudents(code)) chosen.students = TickedStudents();
  return chosen;
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

frmprintall::Refusal frmprintall::RefusalOf(int code, const ReportChoice& choice) const {
  const bool wants_types = (IsOneOf(code, {kRollBook, kRollBookTitles}) && some_type.Value) ||
                           (IsOneOf(code, {kAveragesOfOne, kGradesOfOne}) && sort3.Value);
  if (wants_types && choice.types.empty()) return {"You must select at least one type."};
  if (IsOnStudents(code) && choice.students.empty())
    return {"Choose the NAME of the student whose record you wish to print."};
  if (code == kMonths && choice.month_last < choice.month_first)
    return {"The start date must be less than the ending date"};
  if (code == kOneSummary && choice.summary < 1)
    return {"Choose the TITLE of the attendance period you wish to print.", BoxIcon::kCritical};
  if (code == kOneGrade && choice.grade < 1)
    return {"Choose the TITLE of the evaluation item you wish to print.", BoxIcon::kCritical};
  return {};
}

bool frmprintall::LayOut(bool for_preview) {
  Job.PrintTab = static_cast<i16>(TabStrip1.Selected + 1);
  Job.ReportCode = static_cast<i16>(Code());
  ResetPrintJob();
  if (Job.PrintFlag != kPrintRuns) return false;
  SortStudents();
  if (for_preview && (Job.PrintTab == 2 || Job.PrintTab == 4)) RefreshNames();
  Choice = Chosen(Job.ReportCode);
  // The averages of the whole class are looked at before they go to paper: the preview prints them.
  if (Job.ReportCode == kFullClass && !for_preview)
    return Refuse(
        "The averages of the full class are printed from the preview. Choose Preview, then Print.");
  if (const Refusal refusal = RefusalOf(Job.ReportCode, Choice); !refusal.why.empty())
    return Refuse(refusal.why, refusal.icon);
  if (const std::string nothing = NothingToReport(); !nothing.empty()) ShowMessage(nothing);
  return LayOutReport() && Job.PageCount > 0;
}

void frmprintall::prints_Click() {
  if (running_) return;
  const Running running(running_);
  PrintMessage message;
  if (LayOut(false)) PrintOnPrinter(AllPages(), message);
  ++firstpage.Revision;  // the printer may have another sheet by now
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
  ++firstpage.Revision;
}

void frmprintall::DeclareFirstPage(ControlTable& table) {
  table.Add("firstframe", firstframe);
  table.Add("firsttold", firsttold);
  table.Add("firstpage", firstpage).Change([this] { firstpage_Change(); });
}

// Whatever the teacher chooses, the first page follows it.
void frmprintall::FollowChoice(ControlTable& table) {
  for (const auto& row : table.rows())
    for (const auto event : {&ControlRow::change, &ControlRow::click})
      (*row).*event = [this, before = std::move((*row).*event)] {
        if (before) before();
        NoteChoice();
      };
}

void frmprintall::NoteChoice() {
  if (!firstframe.Visible) return;
  Asked now{Code(), Chosen(Code())};
  if (now == asked_) return;
  asked_ = std::move(now);
  ++firstpage.Revision;
}

void frmprintall::firstpage_Change() {
  if (running_ || !firstframe.Visible) return;
  const int code = Code();
  const ReportChoice choice = Chosen(code);
  std::string why(RefusalOf(code, choice).why);
  if (why.empty()) why = first_.LayOut(static_cast<i16>(TabStrip1.Selected + 1), code, choice);
  firsttold.Caption = why;
  firsttold.Visible = !why.empty();
  firstpage.Visible = why.empty();
  firstpage.SheetWidth = first_.width();
  firstpage.SheetHeight = first_.height();
}

}  // namespace tallyroll
