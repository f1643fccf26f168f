// SPDX-License-Identifier: GPL-3.0-or-later
// Codes 9, 16 and 24: one attendance summary of the class, all of them, and those of one student.
#include <array>
#include <string>
#include <vector>

#include "base/text.h"
#include "printing/page/line_table.h"
#include "printing/page/report_choice.h"
#include "printing/reports/report_parts.h"
#include "printing/reports/report_writers.h"
#include "printing/reports/student_column.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr i16 kComputed = 2;  // a period that is counted from the daily marks
constexpr int kDetails = 4;   // cuts, excused, special, notes

const Student& StudentAt(int i) {
  return Current().Students[static_cast<std::size_t>(i)];
}
const AttendanceSummary& PeriodAt(int i) {
  return Current().Summaries[static_cast<std::size_t>(i)];
}

template <typename T>
std::string ItemText(const List<T>& list, int i) {
  const auto index = static_cast<std::size_t>(i);
  return index < list.size() ? std::string(Trim(std::string_view(list[index]))) : std::string();
}

// The four numbers of a period's detail, each closed by "/".
std::array<std::string, kDetails> DetailsOf(const Student& student, int period) {
  std::array<std::string, kDetails> details;
  std::string text = ItemText(student.SummaryDetail, period);
  std::string_view rest = text;
  for (std::string& each : details) {
    const std::size_t end = rest.find('/');
    each = Trim(rest.substr(0, end));
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return details;
}

// ---- 9: one period ----

constexpr int kPeriodIdColumn = 40, kAbsenceColumn = 47, kLateColumn = 62;

std::string PeriodTitle() {
  return UpperCase(TrimRight(PeriodAt(Choice.summary).title));
}

TableLine OnePeriodLine(const Student& student) {
  TableLine line;
  if (Choice.shown == Shown::kId) {
    line.cells.push_back({0, std::string(Trim(student.id))});
  } else {
    line.cells.push_back({0, PlainName(student)});
    if (Choice.shown == Shown::kNameAndId)
      line.cells.push_back({kPeriodIdColumn, std::string(Trim(student.id))});
  }
  line.cells.push_back({kAbsenceColumn, ItemText(student.SummaryAbsent, Choice.summary)});
  line.cells.push_back({kLateColumn, ItemText(student.SummaryLate, Choice.summary)});
  return line;
}

LineTable OnePeriodTable() {
  TableLine head;
  head.cells.push_back({0, Choice.shown == Shown::kId ? "ID" : "NAME"});
  if (Choice.shown == Shown::kNameAndId) head.cells.push_back({kPeriodIdColumn, "ID"});
  head.cells.push_back({kAbsenceColumn, "TOTAL ABSENCE"});
  head.cells.push_back({kLateColumn, "LATE"});
  const auto row_at = [](int i) { return std::vector<TableLine>{OnePeriodLine(StudentAt(i))}; };
  return {80, {{{head, {{}, '_'}}, Current().NumStudents, row_at, {}, true}}};
}

// ---- 16: all periods ----

constexpr std::string_view kAllTitle = "ATTENDANCE SUMMARY";
constexpr int kAllTitleColumn = 40;
constexpr int kAllWidth = 95;
constexpr int kPeriodStep = 5;

using Heads = std::array<std::string_view, 2 + kDetails>;
constexpr Heads kTextHeads = {"Abs", "Late", "Cut", "Exc", "Spa", "Note"};
constexpr Heads kPaperHeads = {"Abs", "Late", "Cut", "Exc.", "Spa.", "Note"};

int ColumnsOf(int period) {
  return PeriodAt(period).kind == kComputed ? 2 + kDetails : 2;
}

// The periods that stand side by side in each block. A class without periods has one empty block.
std::vector<std::vector<int>> PeriodsByBlock() {
  std::vector<std::vector<int>> blocks(1);
  int column = BehindStudentColumn();
  for (int i = 1; i <= Current().NumSummaries; ++i) {
    const int width = kPeriodStep * ColumnsOf(i);
    if (!blocks.back().empty() && column + width > kAllWidth) {
      blocks.emplace_back();
      column = BehindStudentColumn();
    }
    blocks.back().push_back(i);
    column += width;
  }
  return blocks;
}

std::vector<TableLine> AllPeriodsHead(const std::vector<int>& periods, const Heads& heads) {
  TableLine codes, columns;
  columns.cells.push_back({0, std::string(StudentColumnHead())});
  int column = BehindStudentColumn();
  for (const int period : periods) {
    codes.cells.push_back({column, std::string(Trim(PeriodAt(period).code))});
    for (int k = 0; k < ColumnsOf(period); ++k, column += kPeriodStep)
      columns.cells.push_back({column, std::string(heads[static_cast<std::size_t>(k)])});
  }
  return {codes, columns, {{}, '_'}};
}

TableLine AllPeriodsLine(const Student& student, const std::vector<int>& periods) {
  TableLine line;
  line.cells.push_back({0, StudentColumnText(student)});
  int column = BehindStudentColumn();
  const auto add = [&](std::string text) {
    line.cells.push_back({column, std::move(text)});
    column += kPeriodStep;
  };
  for (const int period : periods) {
    add(ItemText(student.SummaryAbsent, period));
    add(ItemText(student.SummaryLate, period));
    if (ColumnsOf(period) == 2) continue;
    for (std::string& each : DetailsOf(student, period)) add(std::move(each));
  }
  return line;
}

LineTable AllPeriodsTable(const Heads& heads) {
  LineTable table{kAllWidth, {}};
  for (const std::vector<int>& periods : PeriodsByBlock()) {
    const auto row_at = [periods](int i) {
      return std::vector<TableLine>{AllPeriodsLine(StudentAt(i), periods), {{}, '_'}};
    };
    table.blocks.push_back(
        {AllPeriodsHead(periods, heads), Current().NumStudents, row_at, {}, true});
  }
  table.blocks.back().foot = {{{}, '='}};
  return table;
}

// ---- 24: one student ----

constexpr std::string_view kStudentSummaryTitle = " Summary of Attendance for ";
constexpr int kStudentTitleColumn = 15;
constexpr int kCodeColumn = 34;
constexpr std::array kHeadColumns = {41, 50, 58, 63, 68, 73};
constexpr std::array kRowColumns = {45, 50, 58, 63, 68, 73};
constexpr std::array kStudentHeads = {"ABSENCE", "LATE", "CUT", "EXC", "SPA", "NOTE"};

TableLine StudentPeriodLine(int period) {
  const Student& student = StudentInReport();
  TableLine line;
  line.cells.push_back({0, std::string(Trim(PeriodAt(period).title))});
  line.cells.push_back({kCodeColumn, std::string(Trim(PeriodAt(period).code))});
  line.cells.push_back({kRowColumns[0], ItemText(student.SummaryAbsent, period)});
  line.cells.push_back({kRowColumns[1], ItemText(student.SummaryLate, period)});
  if (PeriodAt(period).kind != kComputed) return line;
  const auto details = DetailsOf(student, period);
  for (std::size_t k = 0; k < kDetails; ++k) line.cells.push_back({kRowColumns[k + 2], details[k]});
  return line;
}

LineTable StudentTable() {
  TableLine total, heads;
  total.cells.push_back({kHeadColumns[0], "TOTAL"});
  heads.cells = {{0, "TITLE"}, {kCodeColumn, "CODE"}};
  for (std::size_t k = 0; k < kStudentHeads.size(); ++k)
    heads.cells.push_back({kHeadColumns[k], kStudentHeads[k]});
  const auto row_at = [](int i) { return std::vector<TableLine>{StudentPeriodLine(i)}; };
  return {80, {{{total, heads, {{}, '_'}}, Current().NumSummaries, row_at}}};
}

std::string StudentTitle() {
  return std::string(kStudentSummaryTitle) + StudentLabel();
}

}  // namespace

void PrintOneSummary(ReportPass& pass) {
  PageHeader(pass, PeriodTitle());
  PrintLineTable(pass, OnePeriodTable());
}

void WriteOneSummary(TextReport& text) {
  text.Tab(20);
  text.Line(PeriodTitle());
  text.End();
  WriteTable(text, OnePeriodTable());
}

void PrintAllSummaries(ReportPass& pass) {
  PageHeader(pass, kAllTitle);
  PrintLineTable(pass, AllPeriodsTable(kPaperHeads));
}

void WriteAllSummaries(TextReport& text) {
  text.Tab(kAllTitleColumn);
  text.Line(kAllTitle);
  text.End();
  WriteTable(text, AllPeriodsTable(kTextHeads));
}

void PrintAttendanceSummaryForStudent(ReportPass& pass) {
  StudentHeader(pass, StudentTitle(), pass.first == 1);
  PrintLineTable(pass, StudentTable(), true, SignatureSections(pass.target));
}

void WriteAttendanceSummaryForStudent(TextReport& text) {
  text.Tab(kStudentTitleColumn);
  text.Line(StudentTitle());
  text.Row(80, '=');
  WriteTable(text, StudentTable());
  if (Choice.parentsig) WriteParentSignature(text);
  text.Line("   ");
}

}  // namespace tallyroll
