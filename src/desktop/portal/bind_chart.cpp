// SPDX-License-Identifier: GPL-3.0-or-later
// Charts: the widget reads the chart in place, as a grid is read.
#include "desktop/portal/chart_widget.h"
#include "desktop/portal/control_binding.h"
#include "desktop/portal/empty_texts.h"

namespace tallyroll {
namespace {

class ChartBinding : public Binding<Graph, ChartWidget> {
 public:
  ChartBinding(Graph& control, ControlRow& row, ChartWidget& widget, BindingOwner& owner)
      : Binding(control, row, widget, owner) {
    widget.SetEmptyText(EmptyTextOf(widget.window()->objectName(), widget.objectName()));
    QObject::connect(&widget, &ChartWidget::spotClicked, this,
                     [this] { UserDid({&ControlRow::click}); });
    QObject::connect(&widget, &ChartWidget::spotDoubleClicked, this,
                     [this] { UserDid({&ControlRow::dbl_click}); });
  }
  // The Portal, and the chart with it, may be gone before the widget.
  ~ChartBinding() override { widget_.ShowChart(nullptr, 0); }

  void Read() override {
    const ChartSpot* spot = widget_.CurrentSpot();
    control_.Dot = spot ? spot->dot : -1;
  }

 protected:
  void ShowValue() override { widget_.ShowChart(&control_.chart, control_.Revision); }
};

}  // namespace

BoundControl BindControl(Graph& control, ControlRow& row, QObject& target, BindingOwner& owner) {
  return BindAs<ChartBinding, ChartWidget>(control, row, target, owner);
}

}  // namespace tallyroll
