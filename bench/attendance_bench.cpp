// SPDX-License-Identifier: GPL-3.0-or-later
// Attendance without a screen: a key in the month of 1,000 students with both totals shown, the
// next month, and 20 range summaries of 200 students over 300 days beside one plain pass over the
// same marks.
#include <benchmark/benchmark.h>

#include "attendance/calendar.h"
#include "attendance/daily_codes.h"
#include "attendance/frmAtt.h"
#include "base/date_serial.h"
#include "bench/big_class.h"
#include "bench/open_class.h"

namespace tallyroll {
namespace {

constexpr int kStudents = 1000;
constexpr int kDays = 400;

struct OpenMonth : OpenClass {
  explicit OpenMonth(int students) : OpenClass(BigAttendedClass(students, kDays)) {
    screen.now = DateSerial({2026, 10, 5});
    OpenState = 15;
    portal.Load();
    portal.Declare(table);
    Switch(portal.mnuStudent, "mnuStudent");
    Switch(portal.mnuDaily, "mnuDaily");
  }
  void Switch(CheckBox& box, const char* name) {
    box.Value = true;
    table.Find(name)->click();
  }

  frmAtt portal;
  ControlTable table;
};

void KeyInMonthGrid(benchmark::State& state) {
  const int students = static_cast<int>(state.range(0));
  OpenMonth open(students);
  open.portal.Grid1.Row = students / 2;
  open.portal.Grid1.Col = 10;
  bool absent = false;
  for (auto _ : state) {
    absent = !absent;
    open.portal.Grid1_KeyPress(absent ? 'A' : 'L');
    benchmark::DoNotOptimize(open.portal.Grid1.Revision());
  }
}
BENCHMARK(KeyInMonthGrid)->Arg(kStudents / 10)->Arg(kStudents)->Unit(benchmark::kMicrosecond);

void NextMonth(benchmark::State& state) {
  OpenMonth open(kStudents);
  const auto& forward = open.table.Find("Command2")->click;
  const auto& back = open.table.Find("Command1")->click;
  bool at_start = true;
  for (auto _ : state) {
    (at_start ? forward : back)();
    at_start = !at_start;
  }
}
BENCHMARK(NextMonth)->Unit(benchmark::kMicrosecond);

// ---- Range summaries ----

constexpr int kSummaries = 20;

struct SummedClass : OpenClass {
  SummedClass() : OpenClass(BigAttendedClass(200, 300)) {
    Class& c = Current();
    c.NumSummaries = kSummaries;
    ReDim(c.Summaries, kSummaries);
    for (int k = 1; k <= kSummaries; ++k) {
      AttendanceSummary& summary = c.Summaries[static_cast<std::size_t>(k)];
      summary.kind = 2;
      summary.startdate = DateText(DateSerial({2026, 9, 5 * k}), DateOrder::kMonthFirst);
      summary.enddate = DateText(DateSerial({2026, 9, 300 - 5 * k}), DateOrder::kMonthFirst);
    }
    for (Student& student : c.Students) {
      ReDim(student.SummaryAbsent, kSummaries);
      ReDim(student.SummaryLate, kSummaries);
      ReDim(student.SummaryDetail, kSummaries);
    }
  }
};

// Each mark looked at once and counted under its code, for each student.
void CountMarksOnce(benchmark::State& state) {
  SummedClass open;
  for (auto _ : state) {
    for (const Student& student : Current().Students) {
      int absent = 0, cut = 0, excused = 0, special = 0, note = 0, late = 0;
      for (const FixedText<1>& mark : student.DailyMarks) {
        switch (mark.view().front()) {
          case 'A':
            ++absent;
            break;
          case 'C':
            ++cut;
            break;
          case 'E':
            ++excused;
            break;
          case 'S':
            ++special;
            break;
          case 'N':
            ++note;
            break;
          case 'L':
            ++late;
            break;
          default:
            break;
        }
      }
      benchmark::DoNotOptimize(absent + 2 * cut + 3 * excused + 5 * special + 7 * note + 11 * late);
    }
  }
}
BENCHMARK(CountMarksOnce)->Unit(benchmark::kMicrosecond);

// The same pass once for each of the 20 periods.
void CountMarksOfEachPeriod(benchmark::State& state) {
  SummedClass open;
  for (auto _ : state)
    for (const Student& student : Current().Students)
      for (int k = 1; k <= kSummaries; ++k)
        benchmark::DoNotOptimize(CountDays(student, {5 * k, 300 - 5 * k}));
}
BENCHMARK(CountMarksOfEachPeriod)->Unit(benchmark::kMicrosecond);

void RecalculateTwentySummaries(benchmark::State& state) {
  SummedClass open;
  for (auto _ : state) {
    RecalculateRangeSummaries();
    benchmark::DoNotOptimize(Current().Students[1].SummaryAbsent[1]);
  }
}
BENCHMARK(RecalculateTwentySummaries)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace tallyroll
