// SPDX-License-Identifier: GPL-3.0-or-later
// A grade in figures and pictures: the figures of 1,000 students beside one GradeValue a mark,
// charts drawn and painted on the screen, and the roll book screen of 1,000 students and 300 grades
// opened and moved through by a key.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>

#include "analysis/FRMROLLBOOK.h"
#include "analysis/grade_charts.h"
#include "analysis/grade_figures.h"
#include "bench/big_class.h"
#include "bench/open_class.h"
#include "desktop/grid/grid_widget.h"
#include "desktop/portal/chart_widget.h"
#include "desktop/portal/portal_dialog.h"
#include "grades/marks.h"

namespace tallyroll {
namespace {

constexpr int kStudents = 1000;
constexpr int kGrades = 300;
const QSize kChartSize(900, 500);

void OneValueAMark(benchmark::State& state) {
  const OpenClass open(BigClass(kStudents, 1, 0));
  for (auto _ : state) {
    for (int i = 1; i <= kStudents; ++i)
      benchmark::DoNotOptimize(
          GradeValue(MarkOf(Current().Students[static_cast<std::size_t>(i)], 1)));
  }
}
BENCHMARK(OneValueAMark)->Unit(benchmark::kMicrosecond)->UseRealTime();

void StatisticsOfAGrade(benchmark::State& state) {
  const OpenClass open(BigClass(kStudents, 1, 0));
  for (auto _ : state) benchmark::DoNotOptimize(FiguresOfGrade(1));
}
BENCHMARK(StatisticsOfAGrade)->Unit(benchmark::kMicrosecond)->UseRealTime();

// Drawn anew each time, as after a change of kind.
void PaintChart(benchmark::State& state, const Chart& chart) {
  ChartWidget widget;
  widget.resize(kChartSize);
  widget.show();
  QApplication::processEvents();
  unsigned revision = 0;
  for (auto _ : state) {
    widget.ShowChart(&chart, ++revision);
    widget.repaint();
  }
}

void ChartOfNineRanges(benchmark::State& state) {
  const OpenClass open(BigClass(30, 1, 0));
  Chart chart;
  FillRanges(chart, 1);
  AddStudentDots(chart, 1);
  MakeBarOrLine(chart, ChartKind::kBar);
  PaintChart(state, chart);
}
BENCHMARK(ChartOfNineRanges)->Unit(benchmark::kMillisecond)->UseRealTime();

void ChartOf300Points(benchmark::State& state) {
  const OpenClass open(BigClass(30, kGrades, 0));
  Chart chart;
  std::vector<int> grades;
  for (int grade = 1; grade <= kGrades; ++grade) grades.push_back(grade);
  FillProgress(chart, 1, grades);
  PaintChart(state, chart);
}
BENCHMARK(ChartOf300Points)->Unit(benchmark::kMillisecond)->UseRealTime();

void OpenRollBookScreen(benchmark::State& state) {
  const OpenClass open(BigClass(kStudents, kGrades, 0));
  for (auto _ : state) {
    FRMROLLBOOK portal;
    portal.Load();
    PortalDialog dialog(portal, nullptr);
    dialog.show();
    QApplication::processEvents();
  }
}
BENCHMARK(OpenRollBookScreen)->Unit(benchmark::kMillisecond)->UseRealTime();

void KeyInRollBookScreen(benchmark::State& state) {
  const OpenClass open(BigClass(kStudents, kGrades, 0));
  FRMROLLBOOK portal;
  portal.Load();
  PortalDialog dialog(portal, nullptr);
  dialog.show();
  QApplication::processEvents();
  auto* grid = dialog.findChild<GridWidget*>(QStringLiteral("Grid1"));
  for (auto _ : state) {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    QApplication::sendEvent(grid, &key);
    grid->viewport()->repaint();
  }
}
BENCHMARK(KeyInRollBookScreen)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace tallyroll

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
