// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/grade_charts.h"

#include <cmath>
#include <limits>

#include "analysis/chart_drawing.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "printing/page/print_job.h"
#include "printing/print_command.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

// Of the ranges 1 to 9.
constexpr int kLowestOf[] = {0, 95, 90, 85, 80, 75, 70, 65, 55, 0};
constexpr int kWidthOf[] = {0, 6, 5, 5, 5, 5, 5, 5, 10, 55};

const Instrument& ChartedGrade(int grade) {
  return Current().Instruments[static_cast<std::size_t>(grade)];
}

std::string Counted(int count) {
  return PlainNumberText(count) + (count == 1 ? " student" : " students");
}

// How many were present, and the sum of their percents.
struct ClassPercents {
  int present = 0;
  double sum = 0;
};
ClassPercents PercentsOfClass(int grade) {
  ClassPercents percents;
  const Class& c = Current();
  for (int i = 1; i <= c.NumStudents; ++i) {
    const std::string_view mark = MarkOf(c.Students[static_cast<std::size_t>(i)], grade);
    if (IsAbsence(mark)) continue;
    ++percents.present;
    percents.sum += PercentOfMark(mark, ChartedGrade(grade).mvalue);
  }
  return percents;
}

}  // namespace

std::vector<std::string> RangeLabels() {
  return {kRangeHeads.rbegin(), kRangeHeads.rend() - 1};
}

std::vector<double> RangeValues(const RangeCounts& counts) {
  std::vector<double> values;
  for (std::size_t range = kRanges; range >= 1; --range) values.push_back(counts[range]);
  return values;
}

void FillRanges(Chart& chart, int grade) {
  const RangeCounts counts = CountRanges(grade);
  ChartSet& set = chart.sets.front();
  chart.title = Trim(UpperCase(ChartedGrade(grade).title));
  set.values = RangeValues(counts);
  set.tells.clear();
  const int present = PercentsOfClass(grade).present;
  for (std::size_t range = kRanges; range >= 1; --range)
    set.tells.push_back(std::string(kRangeHeads[range]) + ": " + Counted(counts[range]) + " of " +
                        PlainNumberText(present));
}

void MakeBarOrLine(Chart& chart, ChartKind kind) {
  chart.legend.clear();
  chart.exploded.clear();
  chart.labels = RangeLabels();
  chart.kind = kind;
}

void MakePie(Chart& chart) {
  chart.exploded.assign(kRanges, true);
  chart.labels.clear();
  chart.legend = RangeLabels();
  chart.kind = ChartKind::kPie;
}

std::vector<int> AddStudentDots(Chart& chart, int grade) {
  const Class& c = Current();
  std::vector<int> students;
  chart.dots.clear();
  for (int i = 1; i <= c.NumStudents; ++i) {
    const Student& student = c.Students[static_cast<std::size_t>(i)];
    const std::string_view mark = MarkOf(student, grade);
    const int percent = PercentOfMark(mark, ChartedGrade(grade).mvalue);
    const int range = IsAbsence(mark) ? 0 : RangeOfPercent(percent);
    if (range == 0) continue;
    const double place = (percent - kLowestOf[range] + 0.5) / kWidthOf[range];
    chart.dots.push_back({kRanges - range, std::min(place, 0.999),
                          PlainName(student) + ": " + std::string(Trim(mark))});
    students.push_back(i);
  }
  return students;
}

void FillProgress(Chart& chart, int student, const std::vector<int>& grades) {
  const Student& shown = Current().Students[static_cast<std::size_t>(student)];
  ChartSet& set = chart.sets.front();
  set.values.clear();
  set.tells.clear();
  chart.labels.clear();
  for (const int grade : grades) {
    const Instrument& instrument = ChartedGrade(grade);
    const std::string_view mark = MarkOf(shown, grade);
    const int percent = IsAbsence(mark) ? 0 : PercentOfMark(mark, instrument.mvalue);
    const ClassPercents all = PercentsOfClass(grade);
    chart.labels.push_back(instrument.code);
    set.values.push_back(percent);
    set.tells.push_back(std::string(Trim(instrument.title)) + ": " +
                        (IsAbsence(mark) ? std::string(Trim(mark)) + ", " : "") +
                        PlainNumberText(percent) + " %, " + Counted(all.present) + " present");
  }
}

void AddClassLine(Chart& chart, const std::vector<int>& grades) {
  chart.thin_name = "Average of the class";
  chart.thin_line.clear();
  for (const int grade : grades) {
    const ClassPercents all = PercentsOfClass(grade);
    chart.thin_line.push_back(all.present == 0 ? std::numeric_limits<double>::quiet_NaN()
                                               : all.sum / all.present);
  }
}

void PrintChart(const Chart& chart, const std::vector<std::string>& lines_below) {
  Job.ReportCode = 0;
  Job.PrintTitle = chart.title;
  const auto printer = OpenPrinterOrTell();
  if (!printer) return;
  const ChartFrame frame{printer->ScaleWidth / 4, printer->ScaleHeight / 4, printer->ScaleWidth / 2,
                         printer->ScaleHeight / 3.5};
  DrawChart(chart, *printer, frame, kLightChart);
  printer->CurrentY = frame.top + frame.height;
  printer->Print();
  for (const std::string& line : lines_below) {
    printer->CurrentX = frame.left;
    printer->Print(line);
  }
  printer->EndDoc();
}

}  // namespace tallyroll
