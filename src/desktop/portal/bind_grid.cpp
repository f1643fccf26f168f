// SPDX-License-Identifier: GPL-3.0-or-later
// Grids: the widget reads the Grid in place, so there is nothing to copy.
#include <algorithm>

#include "desktop/grid/grid_widget.h"
#include "desktop/portal/card_drag.h"
#include "desktop/portal/control_binding.h"
#include "desktop/portal/empty_texts.h"

namespace tallyroll {
namespace {

// A grid of few columns is never narrower than they are: the last one is often the one that takes
// keys. In average characters. One of more is as narrow as its form lets it be.
constexpr int kWholeUpTo = 90;

class GridBinding : public Binding<Grid, GridWidget> {
 public:
  GridBinding(Grid& control, ControlRow& row, GridWidget& widget, BindingOwner& owner)
      : Binding(control, row, widget, owner), form_least_(widget.minimumWidth()) {
    const QString portal = widget.window()->objectName();
    widget.Keep(portal + QLatin1Char('.') + widget.objectName());
    widget.SetEmptyText(EmptyTextOf(portal, widget.objectName()));
    widget.SetGrid(&control);
    widget.SetEnterDoubleClicks(static_cast<bool>(row.dbl_click));
    QObject::connect(&widget, &GridWidget::currentCellChanged, this,
                     [this] { UserDid({&ControlRow::change}); });
    QObject::connect(&widget, &GridWidget::cellClicked, this,
                     [this] { UserDid({&ControlRow::click}); });
    QObject::connect(&widget, &GridWidget::cellDoubleClicked, this,
                     [this] { UserDid({&ControlRow::dbl_click}); });
    if (row.drag_drop) LetCardsMove();
  }
  // The Portal, and the grid with it, may be gone before the widget.
  ~GridBinding() override { widget_.SetGrid(nullptr); }

 protected:
  void ShowValue() override {
    widget_.UpdateFromGrid();
    const int whole = widget_.sizeHint().width();
    const int widest = widget_.fontMetrics().averageCharWidth() * kWholeUpTo;
    const int least = form_least_ > 0 ? std::min(form_least_, widest) : widest;
    widget_.setMinimumWidth(widget_.WholeWidth() <= widest ? whole : least);
    // Beyond its last column a sheet ends.
    if (control_.Cols() > 0 && !widget_.LastColumnFills())
      widget_.setMaximumWidth(std::max(widget_.WholeWidth(), widget_.minimumWidth()));
  }

 private:
  void LetCardsMove() {
    auto* cards = new CardDrag(widget_, QString::fromStdString(row().name));
    cards->picture = [this](const QPoint& place) {
      const GridWidget::Cell cell = widget_.CellAt(place);
      if (cell.row < 0 || control_.TextMatrix(cell.row, cell.col).empty()) return QPixmap();
      return widget_.viewport()->grab(widget_.CellRect(cell.row, cell.col));
    };
    cards->dropped = [this](const std::string& source, const QPoint& place) {
      const GridWidget::Cell cell = widget_.CellAt(place);
      control_.MouseRow = cell.row;
      control_.MouseCol = cell.col;
      UserDropped(source);
    };
  }

  const int form_least_;
};

}  // namespace

BoundControl BindControl(Grid& control, ControlRow& row, QObject& target, BindingOwner& owner) {
  return BindAs<GridBinding, GridWidget>(control, row, target, owner);
}

}  // namespace tallyroll
