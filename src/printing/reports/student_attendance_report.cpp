// SPDX-License-Identifier: GPL-3.0-or-later
// Code 15: the dates of each attendance code that a student has, with their number.
#include <array>
#include <string>
#include <vector>

#include "base/date_serial.h"
#include "base/number_text.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "printing/page/line_table.h"
#include "printing/page/report_choice.h"
#include "printing/reports/report_parts.h"
#include "printing/reports/report_writers.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kStudentAttendanceTitle = "Attendance for ";
constexpr int kDateStep = 12;
constexpr int kLastDateStart = 69;  // no date begins here or beyond

struct AttendanceCode {
  char code;
  std::string_view heading;
};
constexpr std::array kCodes = {
    AttendanceCode{'A', "Absences "},
    AttendanceCode{'C', "Cuts "},
    AttendanceCode{'E', "Excused "},
    AttendanceCode{'S', "Special Absences "},
    AttendanceCode{'N', "Absences with a Note"},
    AttendanceCode{'L', "Lates "},
};

std::vector<std::string> DatesOf(const Student& student, char code) {
  std::vector<std::string> dates;
  const Class& c = Current();
  for (std::size_t i = 1; i < student.DailyMarks.size() && i < c.AttendanceDays.size(); ++i) {
    if (student.DailyMarks[i].view().front() != code) continue;
    dates.push_back(DateText(c.AttendanceDays[i].date, Platform().ShortDateOrder()));
  }
  return dates;
}

TableLine PlainLine(std::string text) {
  return {{{0, std::move(text)}}};
}

using Rows = std::vector<std::vector<TableLine>>;

void AddDates(Rows& rows, const std::vector<std::string>& dates) {
  TableLine line;
  for (const std::string& date : dates) {
    int column = line.cells.empty() ? 0 : line.cells.back().column + kDateStep;
    if (column >= kLastDateStart) {
      rows.push_back({line});
      line = {};
      column = 0;
    }
    line.cells.push_back({column, date});
  }
  rows.push_back({line});
}

void AddCode(Rows& rows, const AttendanceCode& code) {
  const std::string heading(code.heading);
  const std::vector<std::string> dates = DatesOf(StudentInReport(), code.code);
  if (dates.empty()) {
    rows.push_back({PlainLine("No " + heading)});
  } else {
    rows.push_back({PlainLine(heading)});
    AddDates(rows, dates);
    rows.push_back({TableLine()});
    rows.push_back({PlainLine("Number of " + heading + "is " +
                              PlainNumberText(static_cast<std::int64_t>(dates.size())))});
  }
  rows.push_back({TableLine()});
  rows.push_back({TableLine()});
}

LineTable DatesTable() {
  Rows rows;
  for (const AttendanceCode& code : kCodes) AddCode(rows, code);
  const int count = static_cast<int>(rows.size());
  const auto row_at = [rows = std::move(rows)](int row) {
    return rows[static_cast<std::size_t>(row) - 1];
  };
  return {80, {{{}, count, row_at}}};
}

std::string StudentAttendanceTitle() {
  return std::string(kStudentAttendanceTitle) + StudentLabel();
}

}  // namespace

void PrintStudentAttendance(ReportPass& pass) {
  StudentHeader(pass, StudentAttendanceTitle(), pass.first == 1);
  PrintLineTable(pass, DatesTable(), true, SignatureSections(pass.target));
}

void WriteStudentAttendance(TextReport& text) {
  text.Row(80, '=');
  text.Line(StudentAttendanceTitle());
  text.End();
  WriteTable(text, DatesTable());
  if (Choice.parentsig) WriteParentSignature(text);
  text.Line("   ");
}

}  // namespace tallyroll
