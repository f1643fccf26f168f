// SPDX-License-Identifier: GPL-3.0-or-later
// The largest seating chart, 13 rows of 11 seats with 143 students: opened, and a card dropped
// until it is painted, beside as many names painted in a bare window.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QPainter>
#include <QWidget>
#include <memory>

#include "base/number_text.h"
#include "bench/big_class.h"
#include "bench/open_class.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/grid/grid_widget.h"
#include "desktop/portal/card_drag.h"
#include "desktop/portal/portal_dialog.h"
#include "seating/chart_records.h"
#include "seating/fill_chart.h"
#include "seating/frmseating.h"

namespace tallyroll {
namespace {

constexpr int kRows = 11, kColumns = 13;
constexpr int kStudents = kRows * kColumns;
const QSize kSize(1300, 800);

struct SeatedClass : OpenClass {
  SeatedClass() : OpenClass(BigClass(kStudents, 10, 30)) {
    for (int i = 1; i <= kStudents; ++i) {
      Student& student = Current().Students[static_cast<std::size_t>(i)];
      student.id = PlainNumberText(1000 + i);
      student.lastname = "Lastname" + PlainNumberText(i);
    }
    SeatPlan plan = EmptyPlan(kRows, kColumns);
    FillAsSorted(plan);
    StoreChart(AddChart(kRows, kColumns), plan);
  }
};

struct ShownChart : SeatedClass {
  ShownChart() {
    portal.Load();
    dialog = std::make_unique<PortalDialog>(portal, nullptr);
    dialog->resize(kSize);
    dialog->show();
    QApplication::processEvents();
    grid = dialog->findChild<GridWidget*>(QStringLiteral("Grid1"));
    grid->viewport()->repaint();
  }

  frmseating portal;
  std::unique_ptr<PortalDialog> dialog;
  GridWidget* grid = nullptr;
};

class BareLabels : public QWidget {
 protected:
  void paintEvent(QPaintEvent* /*event*/) override {
    QPainter painter(this);
    const int width = this->width() / kColumns, height = this->height() / kRows;
    for (int i = 0; i < kStudents; ++i) {
      const QRect seat(i / kRows * width, i % kRows * height, width, height);
      painter.drawRect(seat);
      const Student& student = Current().Students[static_cast<std::size_t>(i) + 1];
      painter.drawText(seat, Qt::AlignCenter,
                       FromText(student.lastname + "\n" + student.firstname + "\n" + student.id));
    }
  }
};

void PaintBareLabels(benchmark::State& state) {
  const SeatedClass open;
  BareLabels bare;
  bare.resize(kSize);
  bare.show();
  QApplication::processEvents();
  for (auto _ : state) bare.repaint();
}
BENCHMARK(PaintBareLabels)->Unit(benchmark::kMicrosecond)->UseRealTime();

void OpenSeatingChart(benchmark::State& state) {
  const SeatedClass open;
  for (auto _ : state) {
    frmseating portal;
    portal.Load();
    PortalDialog dialog(portal, nullptr);
    dialog.resize(kSize);
    dialog.show();
    QApplication::processEvents();
    dialog.findChild<GridWidget*>(QStringLiteral("Grid1"))->viewport()->repaint();
  }
}
BENCHMARK(OpenSeatingChart)->Unit(benchmark::kMillisecond)->UseRealTime();

// Two neighbours change places again and again: what the drag hands over at its end.
void CardDropped(benchmark::State& state) {
  const ShownChart shown;
  auto* cards = shown.grid->findChild<CardDrag*>(QStringLiteral("Grid1"));
  if (!cards) return state.SkipWithError("cards cannot be dragged");
  bool there = false;
  for (auto _ : state) {
    const int from = there ? 1 : 0, to = there ? 0 : 1;
    shown.grid->MoveTo(from, 0);
    cards->dropped("Grid1", shown.grid->CellRect(to, 0).center());
    there = !there;
    shown.grid->viewport()->repaint();
  }
  if (shown.portal.ChartDirty == kFalse) state.SkipWithError("no card has moved");
}
BENCHMARK(CardDropped)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace tallyroll

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
