// SPDX-License-Identifier: GPL-3.0-or-later
// Code 8: the class's daily attendance, a block a month with a column a day.
#include <array>
#include <string>
#include <vector>

#include "base/date_serial.h"
#include "base/number_text.h"
#include "base/text.h"
#include "printing/line_table.h"
#include "printing/month_table.h"
#include "printing/report_choice.h"
#include "printing/report_writers.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr std::string_view kMonthsTitle = "Attendance Summary - ";
constexpr int kMonthsTitleColumn = 30;
constexpr int kMonthIdColumn = 24;  // of a table with names and IDs
constexpr int kFirstDay = 35;
constexpr int kDayStep = 3;  // "|Mo"
constexpr int kMonthHeadLines = 3;

// The totals' heads run downwards.
constexpr std::array<std::array<char, kMonthHeadLines>, kMonthTotals> kTotalHeads = {
    {{'A', 'B', 'S'},
     {'C', 'U', 'T'},
     {'E', 'X', 'C'},
     {'S', 'P', 'A'},
     {'N', 'O', 'T'},
     {'L', 'A', 'T'},
     {'T', 'O', 'T'}}};

constexpr std::array kWeekdays = {"Su", "Mo", "Tu", "We", "Th", "Fr", "Sa"};

std::string MonthText(const Month& month) {
  return std::string(MonthName(month.month)) + ", " + PlainNumberText(month.year);
}

int TotalColumn(const Month& month, int k) {
  return kFirstDay + kDayStep * (DaysIn(month) + k);
}

int Width() {
  return kFirstDay + kDayStep * (31 + kMonthTotals + 1);
}

std::string Bar(std::string_view text) {
  return "|" + std::string(text);
}

// ---- Heads ----

void AddDayHeads(std::array<TableLine, kMonthHeadLines>& lines, const Month& month) {
  for (int day = 1; day <= DaysIn(month); ++day) {
    const int column = kFirstDay + kDayStep * (day - 1);
    const std::string digits = PadLeft(PlainNumberText(day), 2);
    lines[0].cells.push_back({column, Bar(kWeekdays[WeekdayOf(month, day)])});
    lines[1].cells.push_back({column, Bar(digits.substr(0, 1))});
    lines[2].cells.push_back({column, Bar(digits.substr(1))});
  }
  for (int k = 0; k < kMonthTotals; ++k)
    for (std::size_t line = 0; line < kMonthHeadLines; ++line)
      lines[line].cells.push_back(
          {TotalColumn(month, k), Bar({&kTotalHeads[static_cast<std::size_t>(k)][line], 1})});
}

void AddStudentHeads(std::array<TableLine, kMonthHeadLines>& lines) {
  lines[1].cells.push_back({0, "Student"});
  lines[2].cells.push_back({0, Choice.shown == Shown::kId ? " ID" : "Name"});
  if (Choice.shown != Shown::kNameAndId) return;
  lines[1].cells.push_back({kMonthIdColumn, "|Student"});
  lines[2].cells.push_back({kMonthIdColumn, "|ID"});
}

std::vector<TableLine> MonthHeadOf(const Month& month) {
  std::array<TableLine, kMonthHeadLines> lines;
  AddStudentHeads(lines);
  AddDayHeads(lines, month);
  TableLine title{{{kMonthsTitleColumn, std::string(kMonthsTitle) + MonthText(month)}}};
  return {title, lines[0], lines[1], lines[2], {{}, '_'}};
}

// ---- Rows ----

void AddStudent(TableLine& line, const Student& student) {
  const std::string id(Trim(student.id));
  switch (Choice.shown) {
    case Shown::kId:
      line.cells.push_back({0, std::string(Left(id, kFirstDay - 1))});
      break;
    case Shown::kName:
      line.cells.push_back({0, std::string(Left(PlainName(student), kFirstDay - 1))});
      break;
    default:
      line.cells.push_back({0, std::string(Left(PlainName(student), kMonthIdColumn - 1))});
      line.cells.push_back(
          {kMonthIdColumn,
           Bar(Left(id, static_cast<std::size_t>(kFirstDay - kMonthIdColumn - 1)))});
  }
}

TableLine MonthLineOf(const Student& student, const Month& month) {
  TableLine line;
  AddStudent(line, student);
  const MonthMarks marks = MarksOfMonth(student, month);
  for (int day = 1; day <= DaysIn(month); ++day) {
    const char mark = marks[static_cast<std::size_t>(day)];
    line.cells.push_back({kFirstDay + kDayStep * (day - 1), Bar({&mark, 1})});
  }
  const MonthCounts counts = CountsOf(marks);
  for (int k = 0; k < kMonthTotals; ++k)
    line.cells.push_back(
        {TotalColumn(month, k), Bar(PlainNumberText(counts[static_cast<std::size_t>(k)]))});
  return line;
}

LineTable MonthsTable() {
  LineTable table{Width(), {}};
  for (const Month& month : MonthsOf(Choice.month_first, Choice.month_last)) {
    LineBlock block{MonthHeadOf(month), {}, {{}}};
    for (int i = 1; i <= Current().NumStudents; ++i)
      block.rows.push_back({MonthLineOf(Current().Students[static_cast<std::size_t>(i)], month)});
    table.blocks.push_back(std::move(block));
  }
  return table;
}

std::string MonthsTitle() {
  const std::vector<Month> months = MonthsOf(Choice.month_first, Choice.month_last);
  std::string title(kMonthsTitle);
  if (months.empty()) return title;
  title += MonthText(months.front());
  if (months.size() > 1) title += " - " + MonthText(months.back());
  return title;
}

}  // namespace

void PrintAttendanceMonths(ReportPass& pass) {
  PageHeader(pass, MonthsTitle());
  PrintLineTable(pass, MonthsTable());
}

void WriteAttendanceMonths(TextReport& text) {
  WriteTable(text, MonthsTable());
}

}  // namespace tallyroll
