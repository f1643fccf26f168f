// SPDX-License-Identifier: GPL-3.0-or-later
// The Portals in which a teacher waits: a mark or a day's code typed for 1,000 students, another
// month, the Portals of such a class opened, and the average after one changed mark, beside a bare
// dialog with a QTableView.
#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QPushButton>
#include <QStandardItemModel>
#include <QTableView>
#include <QVBoxLayout>
#include <optional>

#include "attendance/frmAtt.h"
#include "averages/portals/frmscrnavg.h"
#include "base/date_serial.h"
#include "base/number_text.h"
#include "bench/big_class.h"
#include "bench/open_class.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/grid/grid_widget.h"
#include "desktop/portal/portal_dialog.h"
#include "grades/frmMarks.h"
#include "store/class_defaults.h"

namespace tallyroll {
namespace {

constexpr int kStudents = 1000;
constexpr int kGrades = 100;
const QSize kSize(940, 640);

struct AveragedClass : OpenClass {
  AveragedClass() : OpenClass(BigAveragedClass(kStudents, kGrades, 1)) { PrepareWeights(); }
};

// The names, identifiers and an empty column, as the Enter Grades Portal shows them.
class BareDialog : public QDialog {
 public:
  BareDialog() : model_(kStudents, 3) {
    for (int row = 0; row < kStudents; ++row) {
      const Student& student = Current().Students[static_cast<std::size_t>(row) + 1];
      model_.setItem(row, 0,
                     new QStandardItem(FromText(student.lastname + ", " + student.firstname)));
      model_.setItem(row, 1, new QStandardItem(FromText(student.id)));
      model_.setItem(row, 2, new QStandardItem());
    }
    view.setModel(&model_);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(&view);
    resize(kSize);
  }
  ~BareDialog() override { view.setModel(nullptr); }

  void Write(int row, const QString& text) { model_.item(row, 2)->setText(text); }

  QTableView view;

 private:
  QStandardItemModel model_;
};

void ShowAndPaint(QDialog& dialog, QAbstractScrollArea& area) {
  dialog.resize(kSize);
  dialog.show();
  QApplication::processEvents();  // a window is painted once the screen has shown it
  area.viewport()->repaint();
}

template <typename Widget>
Widget& Named(PortalDialog& dialog, const char* name) {
  return *dialog.findChild<Widget*>(QLatin1String(name));
}

void Key(QWidget& widget, int key, const QString& text) {
  QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(&widget, &event);
}

void KeyInBareCell(benchmark::State& state) {
  AveragedClass open;
  BareDialog dialog;
  ShowAndPaint(dialog, dialog.view);
  int n = 0;
  for (auto _ : state) {
    dialog.Write(n % 20, QString::number(n % 10));
    ++n;
    dialog.view.viewport()->repaint();
  }
}
BENCHMARK(KeyInBareCell)->Unit(benchmark::kMicrosecond)->UseRealTime();

void KeyInMarkCell(benchmark::State& state) {
  AveragedClass open;
  frmMarks portal;
  portal.Load();
  PortalDialog dialog(portal);
  auto& grid = Named<GridWidget>(dialog, "Grid1");
  ShowAndPaint(dialog, grid);
  for (auto _ : state) {
    Key(grid, Qt::Key_8, QStringLiteral("8"));
    grid.viewport()->repaint();
  }
}
BENCHMARK(KeyInMarkCell)->Unit(benchmark::kMicrosecond)->UseRealTime();

// October of 400 days with the totals of students and days, in the middle of its students.
struct ShownMonth : OpenClass {
  ShownMonth() : OpenClass(BigAttendedClass(kStudents, 400)) {
    screen.now = DateSerial({2026, 10, 5});
    OpenState = 15;
    portal.Load();
    dialog.emplace(portal);
    grid = &Named<GridWidget>(*dialog, "Grid1");
    for (const char* totals : {"mnuStudent", "mnuDaily"}) Named<QAction>(*dialog, totals).trigger();
    portal.Grid1.Row = kStudents / 2;
    portal.Grid1.Col = 10;
    portal.Grid1.TopRow = kStudents / 2;
    ShowAndPaint(*dialog, *grid);
  }

  frmAtt portal;
  std::optional<PortalDialog> dialog;
  GridWidget* grid = nullptr;
};

void KeyInMonth(benchmark::State& state) {
  ShownMonth shown;
  bool absent = false;
  for (auto _ : state) {
    absent = !absent;
    Key(*shown.grid, absent ? Qt::Key_A : Qt::Key_L,
        absent ? QStringLiteral("a") : QStringLiteral("l"));
    shown.grid->viewport()->repaint();
  }
}
BENCHMARK(KeyInMonth)->Unit(benchmark::kMicrosecond)->UseRealTime();

void NextMonthShown(benchmark::State& state) {
  ShownMonth shown;
  auto& forward = Named<QPushButton>(*shown.dialog, "Command2");
  auto& back = Named<QPushButton>(*shown.dialog, "Command1");
  bool at_start = true;
  for (auto _ : state) {
    (at_start ? forward : back).click();
    at_start = !at_start;
    shown.grid->viewport()->repaint();
  }
}
BENCHMARK(NextMonthShown)->Unit(benchmark::kMicrosecond)->UseRealTime();

void OpenBareDialog(benchmark::State& state) {
  AveragedClass open;
  for (auto _ : state) {
    BareDialog dialog;
    ShowAndPaint(dialog, dialog.view);
  }
}
BENCHMARK(OpenBareDialog)->Unit(benchmark::kMicrosecond)->UseRealTime();

template <typename P>
void OpenPortal(benchmark::State& state, const char* grid) {
  AveragedClass open;
  for (auto _ : state) {
    P portal;
    portal.Load();
    PortalDialog dialog(portal);
    ShowAndPaint(dialog, Named<GridWidget>(dialog, grid));
  }
}
void OpenMarks(benchmark::State& state) {
  OpenPortal<frmMarks>(state, "Grid1");
}
BENCHMARK(OpenMarks)->Unit(benchmark::kMicrosecond)->UseRealTime();
void OpenScreenAverages(benchmark::State& state) {
  OpenPortal<frmscrnavg>(state, "grdgrade");
}
BENCHMARK(OpenScreenAverages)->Unit(benchmark::kMicrosecond)->UseRealTime();

// The student's whole record with the average is made anew; nothing is painted.
void AverageAfterOneMark(benchmark::State& state) {
  AveragedClass open;
  frmscrnavg portal;
  portal.Load();
  PortalDialog dialog(portal);
  ShowAndPaint(dialog, Named<GridWidget>(dialog, "grdgrade"));
  auto& next = Named<QPushButton>(dialog, "nextt");
  auto& previous = Named<QPushButton>(dialog, "PREVIOUS");
  next.click();
  int n = 0;
  for (auto _ : state) {
    const bool forward = n % 2 == 0;
    Current().Students[forward ? 2 : 1].Marks[7] = PlainNumberText(60 + n++ % 40);
    (forward ? next : previous).click();
  }
}
BENCHMARK(AverageAfterOneMark)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace tallyroll

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
