// SPDX-License-Identifier: GPL-3.0-or-later
// The class grid of 1,000 students and 300 grades beside a bare QTableView on a trivial model of
// the same texts: filling and first paint, and a repaint while scrolling.
#include <benchmark/benchmark.h>

#include <QAbstractTableModel>
#include <QApplication>
#include <QEventLoop>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTableView>
#include <QTimer>
#include <memory>

#include "bench/big_class.h"
#include "bench/open_class.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/grid/grid_widget.h"
#include "desktop/panel/side_panel.h"
#include "desktop/style/appearance.h"
#include "desktop/window/frame_window.h"
#include "shell/shell_state.h"
#include "store/class_defaults.h"

namespace tallyroll {
namespace {

constexpr int kStudents = 1000;
constexpr int kGrades = 300;
const QSize kWindow(1200, 800);

// The class window's grid with its class, without the window around it.
struct GridOfClass : OpenClass {
  GridOfClass() : OpenClass(BigClass(kStudents, kGrades, 0)) {
    Current().SlotState = 10;
    window.Tag = "1";
    window.SlotIndex = 1;
  }

  Form1 window;
};

class Texts : public QAbstractTableModel {
 public:
  explicit Texts(const Grid& grid) {
    for (int row = 0; row < grid.Rows(); ++row) {
      QStringList line;
      for (int col = 0; col < grid.Cols(); ++col) line << FromText(grid.TextMatrix(row, col));
      rows_ << line;
    }
  }
  int rowCount(const QModelIndex&) const override { return static_cast<int>(rows_.size()); }
  int columnCount(const QModelIndex&) const override { return static_cast<int>(rows_[0].size()); }
  QVariant data(const QModelIndex& at, int role) const override {
    return role == Qt::DisplayRole ? QVariant(rows_[at.row()][at.column()]) : QVariant();
  }

 private:
  QList<QStringList> rows_;
};

void PaintNow(QAbstractScrollArea& area) {
  area.viewport()->repaint();
}

void ScrollOn(benchmark::State& state, QAbstractScrollArea& area, QScrollBar& bar, int step) {
  area.resize(kWindow);
  area.show();
  QApplication::processEvents();
  for (auto _ : state) {
    bar.setValue(bar.value() + step > bar.maximum() ? bar.minimum() : bar.value() + step);
    PaintNow(area);
  }
}

void FirstPaintOfTableView(benchmark::State& state) {
  GridOfClass open;
  open.window.showform3();
  for (auto _ : state) {
    Texts texts(open.window.Grid1);
    QTableView view;
    view.setModel(&texts);
    view.resize(kWindow);
    view.show();
    PaintNow(view);
  }
}
BENCHMARK(FirstPaintOfTableView)->Unit(benchmark::kMillisecond)->UseRealTime();

void FirstPaintOfClassGrid(benchmark::State& state) {
  GridOfClass open;
  for (auto _ : state) {
    open.window.showform3();
    GridWidget widget;
    widget.SetGrid(&open.window.Grid1);
    widget.resize(kWindow);
    widget.show();
    PaintNow(widget);
    state.PauseTiming();
    open.window.Grid1.SetSize(0, 0);
    widget.SetGrid(nullptr);
    state.ResumeTiming();
  }
}
BENCHMARK(FirstPaintOfClassGrid)->Unit(benchmark::kMillisecond)->UseRealTime();

void ScrollTableView(benchmark::State& state) {
  GridOfClass open;
  open.window.showform3();
  Texts texts(open.window.Grid1);
  QTableView view;
  view.setModel(&texts);
  ScrollOn(state, view, *view.verticalScrollBar(), static_cast<int>(state.range(0)));
}
BENCHMARK(ScrollTableView)->Arg(1)->Arg(20)->Unit(benchmark::kMillisecond)->UseRealTime();

void ScrollClassGrid(benchmark::State& state) {
  GridOfClass open;
  open.window.showform3();
  GridWidget widget;
  widget.SetGrid(&open.window.Grid1);
  ScrollOn(state, widget, *widget.verticalScrollBar(), static_cast<int>(state.range(0)));
}
BENCHMARK(ScrollClassGrid)->Arg(1)->Arg(20)->Unit(benchmark::kMillisecond)->UseRealTime();

// What one press of a key and one move of the pointer cost until they are painted.
template <typename Act>
void ActInClassGrid(benchmark::State& state, Act act) {
  GridOfClass open;
  open.window.showform3();
  GridWidget widget;
  widget.SetGrid(&open.window.Grid1);
  widget.resize(kWindow);
  widget.show();
  widget.setFocus();
  QApplication::processEvents();
  int step = 0;
  for (auto _ : state) {
    act(widget, step++);
    QApplication::processEvents();
  }
}

void PressKey(QWidget& widget, Qt::Key key) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
  QApplication::sendEvent(&widget, &press);
}

void KeyInClassGrid(benchmark::State& state) {
  ActInClassGrid(state, [](GridWidget& widget, int step) {
    PressKey(widget, step % 40 < 20 ? Qt::Key_Down : Qt::Key_Up);
  });
}
BENCHMARK(KeyInClassGrid)->Unit(benchmark::kMillisecond)->UseRealTime();

void KeyThatScrollsClassGrid(benchmark::State& state) {
  ActInClassGrid(state, [](GridWidget& widget, int step) {
    PressKey(widget, step % 1800 < 900 ? Qt::Key_Down : Qt::Key_Up);
  });
}
BENCHMARK(KeyThatScrollsClassGrid)->Unit(benchmark::kMillisecond)->UseRealTime();

// The class window in its frame, with panel and status line, as the program shows it. From the
// first one on everything has the program's own look.
struct WindowOfClass : GridOfClass {
  WindowOfClass() {
    if (!Appearance::Instance()) new Appearance(*qApp);  // its child
    FrameForm = std::make_unique<MDIForm1>();
    Current().Method = 2;
    PrepareWeights();
    window.showform3();
    frame = std::make_unique<FrameWindow>();
    frame->resize(1500, 900);
    frame->show();
    frame->ShowWindow(window);
    QEventLoop rest;  // until the panel has followed
    QTimer::singleShot(200, &rest, &QEventLoop::quit);
    rest.exec();
    grid = frame->findChild<GridWidget*>();
    panel = frame->findChild<SidePanel*>();
  }
  ~WindowOfClass() {
    frame->DestroyWindow(window);
    frame.reset();
    FrameForm.reset();
  }

  std::unique_ptr<FrameWindow> frame;
  GridWidget* grid = nullptr;
  SidePanel* panel = nullptr;
};

// A held-down arrow: the key, its picture, and what the frame does before it waits for the next.
void KeyInClassWindow(benchmark::State& state) {
  WindowOfClass open;
  if (!open.panel->isVisible()) state.SkipWithError("the panel is hidden");
  int step = 0;
  for (auto _ : state) {
    PressKey(*open.grid, step++ % 1800 < 900 ? Qt::Key_Down : Qt::Key_Up);
    QApplication::processEvents();
    open.frame->Sync();
  }
}
BENCHMARK(KeyInClassWindow)->Unit(benchmark::kMillisecond)->UseRealTime();

// A wheel's step, or a drag of the bar, through the whole class.
void ScrollClassWindow(benchmark::State& state) {
  WindowOfClass open;
  QScrollBar& bar =
      *(state.range(0) == 0 ? open.grid->horizontalScrollBar() : open.grid->verticalScrollBar());
  const int step = static_cast<int>(state.range(1));
  for (auto _ : state) {
    bar.setValue(bar.value() + step > bar.maximum() ? bar.minimum() : bar.value() + step);
    QApplication::processEvents();
    open.frame->Sync();
  }
}
// Sideways by a grade, down by a student, by the three of a wheel, and by a page.
BENCHMARK(ScrollClassWindow)
    ->Args({0, 1})
    ->Args({1, 1})
    ->Args({1, 3})
    ->Args({1, 30})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

// The pointer over a table of marks: tints, and what the status bar says of the place.
void HoverOverClassWindow(benchmark::State& state) {
  WindowOfClass open;
  int step = 0;
  for (auto _ : state) {
    const QPointF place(400 + step % 7 * 60, 120 + step % 25 * 20);
    ++step;
    QMouseEvent move(QEvent::MouseMove, place, open.grid->viewport()->mapToGlobal(place),
                     Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(open.grid->viewport(), &move);
    QApplication::processEvents();
    open.frame->Sync();
  }
}
BENCHMARK(HoverOverClassWindow)->Unit(benchmark::kMillisecond)->UseRealTime();

// What follows when the keys rest: the figures of another cell, and their picture.
void PanelOfAnotherCell(benchmark::State& state) {
  WindowOfClass open;
  const ClassGlance of_class = LookAtClass();
  int step = 0;
  for (auto _ : state) {
    const int student = 1 + step % kStudents, grade = 1 + step % kGrades;
    ++step;
    open.panel->Show(LookAtStudent(student), LookAtGrade(grade, student),
                     RankOf(of_class, student));
    QApplication::processEvents();
  }
}
BENCHMARK(PanelOfAnotherCell)->Unit(benchmark::kMillisecond)->UseRealTime();

void FiguresOfAnotherCell(benchmark::State& state) {
  OpenClass open(BigAveragedClass(kStudents, kGrades, 2));
  int step = 0;
  for (auto _ : state) {
    const int student = 1 + step % kStudents, grade = 1 + step % kGrades;
    ++step;
    benchmark::DoNotOptimize(LookAtStudent(student));
    benchmark::DoNotOptimize(LookAtGrade(grade, student));
  }
}
BENCHMARK(FiguresOfAnotherCell)->Unit(benchmark::kMillisecond)->UseRealTime();

// What a Portal that is left costs beside: all averages, for the class average and the rank.
void ClassAtAGlance(benchmark::State& state) {
  const int students = static_cast<int>(state.range(0)), grades = static_cast<int>(state.range(1));
  OpenClass open(BigAveragedClass(students, grades, 2));
  for (auto _ : state) benchmark::DoNotOptimize(LookAtClass());
}
BENCHMARK(ClassAtAGlance)
    ->Args({200, 100})
    ->Args({kStudents, kGrades})
    ->Unit(benchmark::kMillisecond)
    ->UseRealTime();

void HoverOverClassGrid(benchmark::State& state) {
  ActInClassGrid(state, [](GridWidget& widget, int step) {
    const QPointF place(500 + step % 7 * 60, 120 + step % 30 * 20);
    QMouseEvent move(QEvent::MouseMove, place, widget.viewport()->mapToGlobal(place), Qt::NoButton,
                     Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget.viewport(), &move);
  });
}
BENCHMARK(HoverOverClassGrid)->Unit(benchmark::kMillisecond)->UseRealTime();

void RefillOfClassGrid(benchmark::State& state) {
  GridOfClass open;
  open.window.showform3();
  GridWidget widget;
  widget.SetGrid(&open.window.Grid1);
  widget.resize(kWindow);
  widget.show();
  QApplication::processEvents();
  int mark = 0;
  for (auto _ : state) {
    Current().Students[3].Marks[3] = ++mark % 2 == 0 ? "80" : "81";
    open.window.showform3();
    widget.UpdateFromGrid();
    QApplication::processEvents();
  }
}
BENCHMARK(RefillOfClassGrid)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace tallyroll

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QApplication::setStyle(QStringLiteral("Fusion"));
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
