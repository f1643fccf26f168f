// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/grid_accessibility.h"

#include <QAccessible>
#include <QAccessibleTableInterface>
#include <QAccessibleWidget>
#include <QHash>
#include <QPointer>

#include "desktop/basics/text_conversion.h"
#include "desktop/grid/grid_widget.h"
#include "desktop/grid/seats_widget.h"

namespace tallyroll {
namespace {

bool IsRoom(const GridWidget* widget) {
  return qobject_cast<const SeatsWidget*>(widget) != nullptr;
}

// The rows of a classroom stand side by side, their seats one behind the other.
QString RowOfRoom(int col) {
  return QObject::tr("Row %1").arg(col + 1);
}
QString SeatOfRow(int row) {
  return QObject::tr("seat %1 from the front").arg(row + 1);
}

bool HasWords(const QAccessibleInterface* cell) {
  return cell && !cell->text(QAccessible::Name).isEmpty();
}

class GridCellInterface : public QAccessibleInterface,
                          public QAccessibleTableCellInterface,
                          public QAccessibleActionInterface {
 public:
  GridCellInterface(GridWidget* widget, int row, int col) : widget_(widget), row_(row), col_(col) {}

  bool isValid() const override {
    return widget_ && widget_->grid() && row_ < widget_->grid()->Rows() &&
           col_ < widget_->grid()->Cols();
  }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override { return widget_->window()->windowHandle(); }
  QAccessibleInterface* parent() const override {
    return QAccessible::queryAccessibleInterface(widget_.data());
  }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }

  QString text(QAccessible::Text type) const override {
    if (!isValid()) return {};
    if (type == QAccessible::Name)
      return FromText(widget_->grid()->TextMatrix(row_, col_)).trimmed();
    if (type != QAccessible::Description) return {};
    const QString told = isSelected() ? widget_->Told() : QString();
    return told.isEmpty() ? State() : told;
  }
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override {
    const QRect cell = widget_->CellRect(row_, col_);
    return cell.isEmpty() ? QRect()
                          : QRect(widget_->viewport()->mapToGlobal(cell.topLeft()), cell.size());
  }
  QAccessible::Role role() const override {
    if (row_ < widget_->grid()->FixedRows) return QAccessible::ColumnHeader;
    return col_ < widget_->grid()->FixedCols ? QAccessible::RowHeader : QAccessible::Cell;
  }
  QAccessible::State state() const override {
    QAccessible::State state;
    state.readOnly = true;
    state.focusable = role() == QAccessible::Cell;
    const Grid& grid = *widget_->grid();
    state.selectable = role() == QAccessible::Cell;
    state.selected = state.selectable && isSelected();
    state.focused = grid.Row == row_ && grid.Col == col_ && widget_->hasFocus();
    state.invisible = widget_->CellRect(row_, col_).isEmpty();
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableCellInterface)
      return static_cast<QAccessibleTableCellInterface*>(this);
    if (type == QAccessible::ActionInterface) return static_cast<QAccessibleActionInterface*>(this);
    return nullptr;
  }
  bool isSelected() const override { return isValid() && widget_->Range().Contains(row_, col_); }
  QList<QAccessibleInterface*> columnHeaderCells() const override;
  QList<QAccessibleInterface*> rowHeaderCells() const override;
  int columnIndex() const override { return col_; }
  int rowIndex() const override { return row_; }
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override { return parent(); }

  QStringList actionNames() const override { return {setFocusAction(), pressAction()}; }
  void doAction(const QString& name) override {
    if (!isValid() || role() != QAccessible::Cell) return;
    widget_->setFocus();
    widget_->MoveTo(row_, col_);
    if (name == pressAction()) Q_EMIT widget_->cellDoubleClicked(row_, col_);
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  // What the eye learns of a colour, a chip or the line below a head.
  QString State() const {
    if (IsRoom(widget_)) return PlaceInRoom();
    const GridNotes& notes = widget_->grid()->Notes;
    if (role() == QAccessible::ColumnHeader && notes.Tip) {
      QString tip = FromText(notes.Tip(row_, col_));
      if (!tip.isEmpty()) return tip.replace(QLatin1Char('\n'), QLatin1String(", "));
    }
    if (const CellNote note = NoteOf(notes, row_, col_); !note.words.empty())
      return FromText(note.words);
    return widget_->grid()->Style(row_, col_) == CellStyle::kFailing ? QStringLiteral("failing")
                                                                     : QString();
  }

  // Where the seat is, whether it is taken, and what stands small on its card.
  QString PlaceInRoom() const {
    const Grid& grid = *widget_->grid();
    QStringList words{RowOfRoom(col_), SeatOfRow(row_)};
    if (grid.TextMatrix(row_, col_).empty())
      words << QObject::tr("empty");
    else if (grid.SmallLine)
      words << FromText(grid.SmallLine(row_, col_));
    words.removeAll(QString());
    return words.join(QLatin1String(", "));
  }

  QPointer<GridWidget> widget_;
  int row_;
  int col_;
};

class GridInterface : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit GridInterface(GridWidget* widget) : QAccessibleWidget(widget, QAccessible::Table) {}
  ~GridInterface() override {
    for (const QAccessible::Id id : std::as_const(cells_))
      QAccessible::deleteAccessibleInterface(id);
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
  }

  QAccessibleInterface* cellAt(int row, int col) const override {
    if (row < 0 || col < 0 || row >= rowCount() || col >= columnCount()) return nullptr;
    const int key = row * columnCount() + col;
    if (const auto known = cells_.constFind(key); known != cells_.constEnd()) {
      QAccessibleInterface* cell = QAccessible::accessibleInterface(*known);
      const auto* place = cell ? cell->tableCellInterface() : nullptr;
      // After a change of size the same number means another cell.
      if (place && place->rowIndex() == row && place->columnIndex() == col) return cell;
      QAccessible::deleteAccessibleInterface(*known);
    }
    auto* cell = new GridCellInterface(widget(), row, col);
    cells_.insert(key, QAccessible::registerAccessibleInterface(cell));
    return cell;
  }
  int rowCount() const override { return widget()->grid() ? widget()->grid()->Rows() : 0; }
  int columnCount() const override { return widget()->grid() ? widget()->grid()->Cols() : 0; }
  QAccessibleInterface* child(int index) const override {
    return columnCount() == 0 ? nullptr : cellAt(index / columnCount(), index % columnCount());
  }
  int childCount() const override { return rowCount() * columnCount(); }
  int indexOfChild(const QAccessibleInterface* child) const override {
    auto* cell = const_cast<QAccessibleInterface*>(child)->tableCellInterface();
    return cell ? cell->rowIndex() * columnCount() + cell->columnIndex() : -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    const auto cell = widget()->CellAt(widget()->viewport()->mapFromGlobal(QPoint(x, y)));
    return cellAt(cell.row, cell.col);
  }
  QAccessibleInterface* focusChild() const override {
    if (!widget()->hasFocus() || !widget()->grid()) return nullptr;
    return cellAt(widget()->grid()->Row, widget()->grid()->Col);
  }

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QString columnDescription(int col) const override {
    if (IsRoom(widget())) return RowOfRoom(col);
    const int heads = widget()->grid() ? widget()->grid()->FixedRows : 0;
    for (int row = heads - 1; row >= 0; --row)
      if (const QString words = Heading(row, col); !words.isEmpty()) return words;
    return {};
  }
  QString rowDescription(int row) const override {
    return IsRoom(widget()) ? SeatOfRow(row) : Heading(row, 0);
  }
  int selectedCellCount() const override { return focusChild() ? widget()->Range().Count() : 0; }
  QList<QAccessibleInterface*> selectedCells() const override {
    QList<QAccessibleInterface*> cells;
    if (!focusChild()) return cells;
    const CellRange range = widget()->Range();
    for (int row = range.top; row <= range.bottom; ++row)
      for (int col = range.left; col <= range.right; ++col) cells << cellAt(row, col);
    return cells;
  }
  QString text(QAccessible::Text type) const override {
    const QString text = QAccessibleWidget::text(type);
    const QString notice = widget()->NoticeShown();
    if (type != QAccessible::Description || notice.isEmpty()) return text;
    return text.isEmpty() ? notice : text + QLatin1Char(' ') + notice;
  }
  int selectedColumnCount() const override { return 0; }
  int selectedRowCount() const override { return 0; }
  QList<int> selectedColumns() const override { return {}; }
  QList<int> selectedRows() const override { return {}; }
  bool isColumnSelected(int) const override { return false; }
  bool isRowSelected(int) const override { return false; }
  bool selectRow(int) override { return false; }
  bool selectColumn(int) override { return false; }
  bool unselectRow(int) override { return false; }
  bool unselectColumn(int) override { return false; }
  void modelChange(QAccessibleTableModelChangeEvent*) override {}

 private:
  GridWidget* widget() const { return static_cast<GridWidget*>(object()); }
  QString Heading(int row, int col) const {
    const Grid* grid = widget()->grid();
    if (!grid || row < 0 || row >= grid->Rows() || col < 0 || col >= grid->Cols()) return {};
    return FromText(grid->TextMatrix(row, col)).trimmed();
  }

  mutable QHash<int, QAccessible::Id> cells_;
};

// The one beside the cells comes first, and is what most readers say: one that stands over several
// columns tells none of them. A head without words is none.
QList<QAccessibleInterface*> GridCellInterface::columnHeaderCells() const {
  QList<QAccessibleInterface*> cells;
  QAccessibleTableInterface* whole = parent()->tableInterface();
  for (int r = widget_->grid()->FixedRows - 1; r >= 0; --r)
    if (QAccessibleInterface* head = whole->cellAt(r, col_); HasWords(head)) cells << head;
  return cells;
}

QList<QAccessibleInterface*> GridCellInterface::rowHeaderCells() const {
  QList<QAccessibleInterface*> cells;
  QAccessibleTableInterface* whole = parent()->tableInterface();
  for (int c = 0; c < widget_->grid()->FixedCols; ++c)
    if (QAccessibleInterface* head = whole->cellAt(row_, c); HasWords(head)) cells << head;
  return cells;
}

QAccessibleInterface* MakeInterface(const QString&, QObject* object) {
  auto* widget = qobject_cast<GridWidget*>(object);
  return widget ? new GridInterface(widget) : nullptr;
}

}  // namespace

// Readers speak a description that changes at the focus; the toolkit knows no announcements.
void TellAtCurrentCell(GridWidget& grid, const QString& words) {
  if (words == grid.Told()) return;
  grid.SetTold(words);
  QAccessibleInterface* whole = QAccessible::queryAccessibleInterface(&grid);
  QAccessibleInterface* cell = whole ? whole->focusChild() : nullptr;
  if (!cell || !cell->isValid()) return;
  QAccessibleEvent event(cell, QAccessible::DescriptionChanged);
  QAccessible::updateAccessibility(&event);
}

// The toolkit keeps a factory once, however often it is given.
void InstallGridAccessibility() {
  QAccessible::installFactory(MakeInterface);
}

}  // namespace tallyroll
