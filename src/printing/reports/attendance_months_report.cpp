// SPDX-License-Identifier: GPL-3.0-or-later
// Code 8: the class's daily attendance, a block a month with a column a day.
#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "base/date_serial.h"
#include "base/number_text.h"
#include "base/text.h"
#include "printing/page/line_table.h"
#include "printing/page/report_choice.h"
#include "printing/reports/month_table.h"
#include "printing/reports/report_writers.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr std::string_view kMonthsTitle = "Attendance Summary - ";
constexpr int kMonthsTitleColumn = 30;
constexpr int kMonthIdColumn = 24;  // of a table with names and IDs
constexpr int kFirstIdColumn = 12;  // where long IDs need the room
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

// A table for paper, which makes texts fit its columns, or for a text file.
enum class Sheet { kPaper, kText };

// IDs that were cut could not be told apart: the names leave them the room.
int IdColumn() {
  int longest = 0;
  for (int i = 1; i <= Current().NumStudents; ++i) {
    const std::string& id = Current().Students[static_cast<std::size_t>(i)].id;
    longest = std::max(longest, static_cast<int>(Trim(id).size()));
  }
  return std::clamp(kFirstDay - 1 - longest, kFirstIdColumn, kMonthIdColumn);
}

// An ID that is longer than all room keeps its end, which tells more students apart than its
// beginning.
std::string IdWithin(const std::string& id, int room, Sheet sheet) {
  const auto most = static_cast<std::size_t>(room);
  if (sheet == Sheet::kPaper || id.size() <= most) return id;
  return "\x85" + id.substr(id.size() - most + 1);
}

std::string NameWithin(const std::string& name, int room, Sheet sheet) {
  return sheet == Sheet::kPaper ? name : std::string(Left(name, static_cast<std::size_t>(room)));
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

void AddStudentHeads(std::array<TableLine, kMonthHeadLines>& lines, int id_column) {
  lines[1].cells.push_back({0, "Student"});
  lines[2].cells.push_back({0, Choice.shown == Shown::kId ? " ID" : "Name"});
  if (Choice.shown != Shown::kNameAndId) return;
  lines[1].cells.push_back({id_column, "|Student"});
  lines[2].cells.push_back({id_column, "|ID"});
}

std::vector<TableLine> MonthHeadOf(const Month& month, int id_column) {
  std::array<TableLine, kMonthHeadLines> lines;
  AddStudentHeads(lines, id_column);
  AddDayHeads(lines, month);
  TableLine title{{{kMonthsTitleColumn, std::string(kMonthsTitle) + MonthText(month)}}};
  return {title, lines[0], lines[1], lines[2], {{}, '_'}};
}

// ---- Rows ----

void AddStudent(TableLine& line, const Student& student, int id_column, Sheet sheet) {
  const std::string id(Trim(student.id));
  switch (Choice.shown) {
    case Shown::kId:
      line.cells.push_back({0, IdWithin(id, kFirstDay - 1, sheet)});
      break;
    case Shown::kName:
      line.cells.push_back({0, NameWithin(PlainName(student), kFirstDay - 1, sheet)});
      break;
    default:
      line.cells.push_back({0, NameWithin(PlainName(student), id_column - 1, sheet)});
      line.cells.push_back({id_column, Bar(IdWithin(id, kFirstDay - id_column - 1, sheet))});
  }
}

TableLine MonthLineOf(const Student& student, const Month& month, int id_column, Sheet sheet) {
  TableLine line;
  AddStudent(line, student, id_column, sheet);
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

LineTable MonthsTable(Sheet sheet) {
  LineTable table{Width(), {}};
  const int id_column = IdColumn();
  for (const Month& month : MonthsOf(Choice.month_first, Choice.month_last)) {
    const auto row_at = [month, id_column, sheet](int i) {
      const Student& student = Current().Students[static_cast<std::size_t>(i)];
      return std::vector<TableLine>{MonthLineOf(student, month, id_column, sheet)};
    };
    table.blocks.push_back(
        {MonthHeadOf(month, id_column), Current().NumStudents, row_at, {}, true});
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
  PrintLineTable(pass, MonthsTable(Sheet::kPaper));
}

void WriteAttendanceMonths(TextReport& text) {
  WriteTable(text, MonthsTable(Sheet::kText));
  text.End();
}

}  // namespace tallyroll
