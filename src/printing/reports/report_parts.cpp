// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/reports/report_parts.h"

#include <algorithm>
#include <functional>

#include "averages/average_lines.h"
#include "base/number_text.h"
#include "base/text.h"
#include "printing/page/paper_line.h"
#include "printing/page/report_choice.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr double kSummaryLeft = 25;    // in CharUnits
constexpr double kSummaryColumn = 7;   // in CharUnits
constexpr int kTextSummaryLeft = 26;   // in characters
constexpr int kTextSummaryColumn = 7;  // in characters
constexpr int kTextWidth = 80;
constexpr std::string_view kSummaryLabel = "Att. Summary";
constexpr std::string_view kCellLabel = "(Total Abs/Late)";

std::string_view Item(const List<ShortText>& list, int i) {
  const auto index = static_cast<std::size_t>(i);
  return index < list.size() ? list[index].view() : std::string_view();
}

double NumberAt(std::string_view detail, int place) {
  for (; place > 1; --place) {
    const std::size_t slash = detail.find('/');
    if (slash == std::string_view::npos) return 0;
    detail.remove_prefix(slash + 1);
  }
  return LeadingNumber(detail);
}

// Four lines are looked for above the page's bottom, and the last of the words may stand below it.
constexpr int kSignatureLines = 4;

// Cells of `column` units side by side behind `left` units, as many as fit.
int CellsInRow(double width, double left, double column) {
  return std::max(static_cast<int>((width - left) / column), 1);
}

// Room for one at least.
double SummaryUnit() {
  return std::max(ColumnUnit(kSummaryLeft + kSummaryColumn), 1.0);
}

int PeriodsInRow() {
  return CellsInRow(Job.PageTextWidth / SummaryUnit(), kSummaryLeft, kSummaryColumn);
}

void PrintCells(PrintTarget& target, std::string_view label, int first, int last,
                const std::function<std::string(int)>& cell) {
  PaperLine line(target);
  line.Put(0, label);
  for (int i = first; i <= last; ++i)
    line.Put((kSummaryLeft + kSummaryColumn * (i - first)) * SummaryUnit(), cell(i));
  line.End();
}

void WriteCells(TextReport& text, std::string_view label, int first, int last,
                const std::function<std::string(int)>& cell) {
  text.Put(label);
  for (int i = first; i <= last; ++i) {
    text.Tab(kTextSummaryLeft + kTextSummaryColumn * (i - first));
    text.Put(cell(i));
  }
  text.End();
}

std::string SummaryCode(int i) {
  return std::string(Trim(Current().Summaries[static_cast<std::size_t>(i)].code));
}

std::string SummaryCell(int i) {
  return AttendanceCell(StudentInReport(), i);
}

void CheckAverage(const AverageError& error) {
  if (error) throw ReportEnds{AverageErrorText(error)};
}

}  // namespace

const Student& StudentInReport() {
  return Current().Students[static_cast<std::size_t>(CurrentStudent)];
}

const Instrument& GradeInReport(int i) {
  return Current().Instruments[static_cast<std::size_t>(i)];
}

bool PointMethod() {
  return Current().Method == 2 || Current().Method == 3;
}

bool WeighsTypes() {
  return Current().Method == 1 || Current().Method == 3;
}

bool ReportWithAverages() {
  return Job.ReportCode == 11 || Job.ReportCode == 12 || Job.ReportCode == 18;
}

bool ShowsWeightOrUse() {
  const i16 method = Current().Method;
  return ReportWithAverages() && method <= 3 && method != 1;
}

std::string_view WeightOrUseHead() {
  return PointMethod() ? "PT." : "WT.";
}

std::string WeightOrUse(int grade) {
  const auto i = static_cast<std::size_t>(grade);
  const Class& c = Current();
  if (!PointMethod())
    return i < c.Weights.size() ? PlainNumberText(c.Weights[i]) : std::string("0");
  return i < c.InstrumentUse.size() && c.InstrumentUse[i] == Currency::FromWhole(2) ? "N" : "Y";
}

double GradeBase(const PrintTarget& target) {
  constexpr double kBasesOfTable = 1.9;
  const double base = target.FontSize < 9 ? 37 : 33;
  return base * ColumnUnit(kBasesOfTable * base);
}

std::string AttendanceCell(const Student& student, int summary) {
  const auto i = static_cast<std::size_t>(summary);
  const std::string_view absent =
      i < student.SummaryAbsent.size() ? Trim(student.SummaryAbsent[i].view()) : "";
  const std::string_view detail = Item(student.SummaryDetail, summary);
  const double total =
      LeadingNumber(absent) + NumberAt(detail, 1) + NumberAt(detail, 3) + NumberAt(detail, 4);
  return (total < 1 ? std::string(absent) : PlainNumberText(total)) + "/" +
         std::string(Trim(Item(student.SummaryLate, summary)));
}

void PrintAttendanceRows(PrintTarget& target) {
  const int count = Current().NumSummaries;
  const int in_row = PeriodsInRow();
  for (int first = 1; first <= count; first += in_row) {
    const int last = std::min(first + in_row - 1, count);
    PrintCells(target, kSummaryLabel, first, last, SummaryCode);
    PrintCells(target, kCellLabel, first, last, SummaryCell);
    Job.BlockLines += 2;
  }
}

int LinesOfAttendance() {
  const int in_row = PeriodsInRow();
  return 2 * ((Current().NumSummaries + in_row - 1) / in_row);
}

void WriteAttendanceRows(TextReport& text) {
  const int count = Current().NumSummaries;
  const int in_row = CellsInRow(kTextWidth, kTextSummaryLeft - 1, kTextSummaryColumn);
  for (int first = 1; first <= count; first += in_row) {
    const int last = std::min(first + in_row - 1, count);
    WriteCells(text, kSummaryLabel, first, last, SummaryCode);
    WriteCells(text, kCellLabel, first, last, SummaryCell);
  }
}

void PrintAverages(PrintTarget& target) {
  TypeTotals totals;
  CheckAverage(
      PrintAverageAndCompute([&](std::string_view line) { PrintLine(target, line); }, totals));
}

void WriteAverages(TextReport& text) {
  text.End();
  TypeTotals totals;
  CheckAverage(PrintAverageAndCompute([&](std::string_view line) { text.Line(line); }, totals));
}

void PrintParentSignature(PrintTarget& target) {
  for (int i = 0; i < 3; ++i) target.Print();
  Rule(target);
  target.Print();
  target.CurrentX = GradeBase(target) / 2;
  PrintLine(target, "Parent's Signature");
}

std::vector<Section> SignatureSections(PrintTarget& target) {
  if (!Choice.parentsig) return {};
  return {{.rows = 1,
           .print = [&target](int) { PrintParentSignature(target); },
           .lines = [](int) { return kSignatureLines; }}};
}

void WriteParentSignature(TextReport& text) {
  text.End();
  text.End();
  text.Row(48, '_');
  text.End();
  text.Line("           Parent's Signature");
  text.End();
}

void WriteComments(TextReport& text) {
  text.Paragraph("Comments: " + std::string(Trim(StudentInReport().comments)));
}

}  // namespace tallyroll
