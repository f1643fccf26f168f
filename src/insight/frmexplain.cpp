// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/frmexplain.h"

#include "averages/explained/explain_student.h"
#include "averages/explained/needed_marks.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "printing/page/print_job.h"
#include "printing/page/report_choice.h"
#include "printing/print_message.h"
#include "printing/print_run.h"
#include "printing/reports/report_codes.h"
#include "printing/reports/reports.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr int kLongestMark = 5;
constexpr int kTitleWidth = 2600, kFigureWidth = 860, kNoteWidth = 4400;
constexpr int kTypeWidth = 1800, kNeedsLabelWidth = 1500, kNeedsMarkWidth = 1600;
constexpr i16 kAveragesTab = 4;
constexpr i16 kSkipsRounding = 1;  // RoundMode

template <std::size_t N>
void HeadExplained(Grid& grid, const std::array<std::string_view, N>& heads, int first_width) {
  grid.FixedCols = 1;
  for (std::size_t i = 0; i < N; ++i) {
    const int col = static_cast<int>(i);
    grid.SetTextMatrix(0, col, heads[i]);
    grid.SetColWidth(col, col == 0 ? first_width : kFigureWidth);
    grid.SetColAlignment(col, col == 0 ? ColumnAlign::kLeft : ColumnAlign::kRight);
  }
}

// The report's own words for a row of the scale.
std::string GradeWords(std::size_t row) {
  std::string label(Trim(FinalLabels[row]));
  if (Current().RoundMode == kSkipsRounding && row > 0) return label;
  return PlainNumberText(FinalValues[row]) + " " + label;
}

}  // namespace

frmexplain::frmexplain() : Portal("frmexplain") {
  Caption = "Explain Average Portal";
  HelpContext = 810;
  Frame1.Caption = "What would it take?";
  PREVIOUS.Caption = "&Previous";
  nextt.Caption = "&Next";
  preview.Caption = "Pre&view and Print";
  exit.Caption = "E&xit";
}

void frmexplain::Declare(ControlTable& table) {
  const auto pick = [this] {
    const int picked = lstName.ListIndex + 1;
    if (picked >= 1 && picked != student_) Show(picked);
  };
  table.Add("lstName", lstName).Change(pick).Click(pick);
  table.Add("grdgrade", grdgrade).Change([this] { ChooseGrade(); }).Click([this] {
    ChooseGrade();
  });
  table.Add("grdtypes", grdtypes);
  table.Add("lststeps", lststeps);
  table.Add("avg", avg);
  table.Add("final_grade", final_grade);
  table.Add("Frame1", Frame1);
  table.Add("chosen", chosen);
  table.Add("trymark", trymark).Change([this] { Try(); });
  table.Add("tried", tried);
  table.Add("why", why);
  table.Add("grdneeds", grdneeds);
  table.Add("PREVIOUS", PREVIOUS).Click([this] {
    if (student_ > 1) Show(student_ - 1);
  });
  table.Add("nextt", nextt).Click([this] {
    if (student_ < Current().NumStudents) Show(student_ + 1);
  });
  table.Add("preview", preview).Click([this] { preview_Click(); });
  table.Add("exit", exit).Click([this] { Unload(); });
}

void frmexplain::Load() {
  const int wanted = OpenState == kExplainStudent ? CurrentStudent : 1;
  trymark.Enabled = preview.Enabled = PREVIOUS.Enabled = nextt.Enabled = false;
  if (Current().NumStudents == 0 || !HasAverages()) {
    lststeps.List = {
        "There are no averages to explain yet: the class needs students, grades, and weights or "
        "points for them."};
    return SetFocus(exit);
  }
  preview.Enabled = PREVIOUS.Enabled = nextt.Enabled = true;
  for (int i = 1; i <= Current().NumStudents; ++i)
    lstName.List.push_back(StudentListLine(Current().Students[static_cast<std::size_t>(i)]));
  trymark.MaxLength = kLongestMark;
  Show(wanted >= 1 && wanted <= Current().NumStudents ? wanted : 1);
  SetFocus(lstName);
}

void frmexplain::Show(int student) {
  student_ = static_cast<i16>(student);
  lstName.ListIndex = student - 1;
  explained_ = ExplainAverage(student_);
  ShowPage();
}

void frmexplain::ShowPage() {
  const ExplainedPage page = PageOf(explained_);
  ShowGrades(page);
  ShowTypes(page);
  ShowSentences(page);
  avg.Caption = page.average;
  final_grade.Caption = page.final_grade;
  ChooseGrade();
}

// Nothing is chosen that is no grade, so a type's head keeps the grade that was chosen before.
void frmexplain::ShowGrades(const ExplainedPage& page) {
  constexpr int kNote = 6;
  grdgrade.SetRedraw(false);
  grdgrade.SetSize(1 + static_cast<int>(page.grades.size()),
                   static_cast<int>(kExplainedHeads.size()));
  grdgrade.Clear();
  HeadExplained(grdgrade, kExplainedHeads, kTitleWidth);
  grdgrade.SetColWidth(kNote, kNoteWidth);
  grdgrade.SetColAlignment(kNote, ColumnAlign::kLeft);
  grade_of_row_.assign(1, 0);
  for (const ExplainedRow& row : page.grades) {
    const int at = static_cast<int>(grade_of_row_.size());
    grade_of_row_.push_back(row.grade);
    const std::array<std::string_view, 7> cells = {row.title,  row.mark,   row.most, row.percent,
                                                   row.weight, row.counts, row.note};
    for (std::size_t i = 0; i < cells.size(); ++i) {
      grdgrade.SetTextMatrix(at, static_cast<int>(i), cells[i]);
      if (row.grade == 0) grdgrade.SetStyle(at, static_cast<int>(i), CellStyle::kTotal);
    }
  }
  if (grdgrade.Row >= grdgrade.Rows()) grdgrade.Row = grdgrade.Rows() - 1;
  grdgrade.SetRedraw(true);
}

void frmexplain::ShowTypes(const ExplainedPage& page) {
  grdtypes.Visible = !page.types.empty();
  grdtypes.SetSize(1 + static_cast<int>(page.types.size()),
                   static_cast<int>(kExplainedTypeHeads.size()));
  grdtypes.Clear();
  HeadExplained(grdtypes, kExplainedTypeHeads, kTypeWidth);
  int at = 0;
  for (const ExplainedType& type : page.types) {
    ++at;
    int col = 0;
    for (const std::string_view cell :
         {std::string_view(type.name), std::string_view(type.grades), std::string_view(type.earned),
          std::string_view(type.most), std::string_view(type.weight),
          std::string_view(type.counts)})
      grdtypes.SetTextMatrix(at, col++, cell);
  }
  grdtypes.Row = at > 0 ? 1 : 0;
}

void frmexplain::ShowSentences(const ExplainedPage& page) {
  lststeps.List = page.sum;
  lststeps.List.insert(lststeps.List.end(), page.rounding.begin(), page.rounding.end());
  if (!page.final_grade.empty()) lststeps.List.push_back("Final grade: " + page.final_grade);
  lststeps.ListIndex = -1;
}

// ---- What would it take ----

void frmexplain::ChooseGrade() {
  if (student_ == 0) return;
  const auto row = static_cast<std::size_t>(grdgrade.Row);
  const int at_cursor = row < grade_of_row_.size() ? grade_of_row_[row] : 0;
  if (at_cursor > 0) grade_ = at_cursor;
  if (grade_ == 0)
    for (const int grade : grade_of_row_)
      if (grade > 0 && grade_ == 0) grade_ = grade;
  const List<ShortText>& marks = Current().Students[static_cast<std::size_t>(student_)].Marks;
  const bool usable = grade_ > 0 && static_cast<std::size_t>(grade_) < marks.size();
  trymark.Enabled = usable && !explained_.error;
  const std::string title =
      grade_ > 0 ? std::string(Trim(Current().Instruments[static_cast<std::size_t>(grade_)].title))
                 : std::string();
  chosen.Caption = title;
  trymark.Text.clear();
  Try();
  ShowNeeds();
}

void frmexplain::ShowNeeds() {
  grdneeds.FixedCols = 1;
  grdneeds.SetSize(1, 2);
  grdneeds.SetTextMatrix(0, 0, "Final grade");
  grdneeds.SetTextMatrix(0, 1, "Needs");
  grdneeds.SetColWidth(0, kNeedsLabelWidth);
  grdneeds.SetColWidth(1, kNeedsMarkWidth);
  grdneeds.SetColAlignment(1, ColumnAlign::kRight);
  if (!trymark.Enabled) return;
  const std::vector<NeededMark> needed = MarksNeeded(student_, grade_);
  grdneeds.SetSize(1 + static_cast<int>(needed.size()), 2);
  int at = 0;
  for (const NeededMark& need : needed) {
    ++at;
    grdneeds.SetTextMatrix(at, 0, GradeWords(need.row));
    grdneeds.SetTextMatrix(at, 1, need.mark ? PlainNumberText(*need.mark) : "cannot be reached");
  }
}

void frmexplain::Try() {
  tried.Caption.clear();
  why.Caption.clear();
  const std::string mark(Trim(trymark.Text));
  if (mark.empty() || !trymark.Enabled) return;
  const ExplainedAverage other = ExplainAverageWith(student_, grade_, mark);
  if (other.error) {
    why.Caption = AverageErrorText(other.error);
    return;
  }
  tried.Caption =
      PlainNumberText(other.result.exact) + "   " + std::string(Trim(other.result.grade.Text()));
  why.Caption = IsGrade(mark) ? WhyLower(explained_, other, grade_)
                              : "This is no grade; it counts by the number that it begins with.";
}

// ---- On paper ----

void frmexplain::preview_Click() {
  bool laid_out = false;
  {
    PrintMessage message;
    Job.PrintTab = kAveragesTab;
    Job.ReportCode = kExplainedAverage;
    ResetPrintJob();
    if (Job.PrintFlag != kPrintRuns) return;
    Choice = ReportChoice();
    Choice.students = {student_};
    laid_out = LayOutReport() && Job.PageCount > 0;
  }
  if (laid_out) ShowPortal("frmprintpre");
}

}  // namespace tallyroll
