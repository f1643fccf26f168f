// SPDX-License-Identifier: GPL-3.0-or-later
// List boxes.
#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QMouseEvent>

#include "desktop/basics/text_conversion.h"
#include "desktop/basics/typed_ahead.h"
#include "desktop/portal/card_drag.h"
#include "desktop/portal/control_binding.h"
#include "desktop/portal/empty_texts.h"
#include "desktop/portal/list_columns.h"
#include "find/type_ahead.h"

namespace tallyroll {
namespace {

// The columns of a line, parted as a sentence is.
QString InWords(const QString& line) {
  return line.split(QLatin1Char('\t'), Qt::SkipEmptyParts).join(QLatin1String(", "));
}

class ListBinding : public Binding<ListBox, QListWidget> {
 public:
  ListBinding(ListBox& control, ControlRow& row, QListWidget& list, BindingOwner& owner)
      : Binding(control, row, list, owner), columns_(new ListColumns(&list)) {
    list.setItemDelegate(columns_);
    list.installEventFilter(this);
    list.viewport()->installEventFilter(this);
    ShowWhileEmpty(list, EmptyTextOf(list.window()->objectName(), list.objectName()));
    if (row.drag_drop) LetCardsMove();
    if (control.MultiSelect) list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    QObject::connect(&list, &QListWidget::currentRowChanged, this, [this] {
      press_is_told_ = true;
      typed_.MovedTo(widget_.currentRow());
      // Keys walk through the lines; a click means the line.
      if (by_mouse_)
        UserDid({&ControlRow::change, &ControlRow::click});
      else
        UserDid({&ControlRow::change});
    });
    QObject::connect(&list, &QListWidget::itemPressed, this, [this] { MarkCurrent(); });
    QObject::connect(&list, &QListWidget::itemClicked, this, [this] {
      // A press on another line has raised its click when it chose the line; a tick is no click.
      if (!press_is_told_) UserDid({&ControlRow::click});
    });
    QObject::connect(&list, &QListWidget::itemDoubleClicked, this,
                     [this] { UserDid({&ControlRow::dbl_click}); });
    QObject::connect(&list, &QListWidget::itemChanged, this, [this] {
      press_is_told_ = true;
      UserDid({&ControlRow::change});
    });
  }

  void Read() override {
    control_.ListIndex = widget_.currentRow();
    if (control_.Checks) control_.Checked = Ticks();
    if (control_.MultiSelect) control_.Selected = Marks();
  }

 protected:
  void ShowValue() override {
    const QSignalBlocker silence(widget_);
    if (control_.List != list_) Fill();
    if (control_.Counts != counts_) ShowCounts();
    if (control_.Checks) ShowTicks();
    if (widget_.currentRow() != control_.ListIndex) {
      widget_.setCurrentRow(control_.ListIndex);
      if (control_.ListIndex < 0) widget_.clearSelection();
    }
    if (control_.MultiSelect) ShowMarks();
    TellInField();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusIn && watched == &widget_) return TakeFocus(event);
    if (event->type() == QEvent::KeyPress) {
      by_mouse_ = false;
      const auto& key = *static_cast<const QKeyEvent*>(event);
      if (watched == &widget_ && (GoesToEnd(key) || GoToTyped(key))) return true;
    }
    if (event->type() == QEvent::MouseButtonPress) {
      press_is_told_ = false;
      by_mouse_ = true;
      // A press below the last line would take away the mark but not the choice.
      if (!widget_.itemAt(static_cast<QMouseEvent*>(event)->position().toPoint())) return true;
    }
    return ControlBinding::eventFilter(watched, event);
  }

 private:
  // While no line is the current one, every key leads to the first, and End to the last.
  bool GoesToEnd(const QKeyEvent& key) {
    if (key.key() != Qt::Key_End || key.modifiers() != Qt::NoModifier) return false;
    if (widget_.currentRow() >= 0 || widget_.count() == 0) return false;
    widget_.setCurrentRow(widget_.count() - 1);
    return true;
  }

  // The toolkit's own search knows no accents and gives the keys less time.
  bool GoToTyped(const QKeyEvent& event) {
    if (row().key_down || row().key_press || !typed_.Take(event, widget_.currentRow()))
      return false;
    const int line = LineToGoTo(typed_.typed(), list_, widget_.currentRow());
    if (line >= 0) {
      typed_.LeadsTo(line);
      widget_.setCurrentRow(line);
    } else if (!typed_.typed().empty()) {
      QApplication::beep();
    }
    return true;
  }

  // Who walks the list from a field hears there which line is chosen.
  void TellInField() {
    if (told_in_.isEmpty()) return;
    auto* field = widget_.window()->findChild<QWidget*>(told_in_);
    const QListWidgetItem* line = widget_.currentItem();
    const QString words =
        line ? tr("%1, %2 of %3")
                   .arg(line->data(Qt::AccessibleTextRole).toString(),
                        QString::number(widget_.currentRow() + 1), QString::number(widget_.count()))
             : widget_.accessibleDescription();
    if (field && field->accessibleDescription() != words) field->setAccessibleDescription(words);
  }

  // A line can be dragged to another control, and what is dragged from there dropped here.
  void LetCardsMove() {
    auto* cards = new CardDrag(widget_, QString::fromStdString(row().name));
    cards->picture = [this](const QPoint& place) {
      const QListWidgetItem* item = widget_.itemAt(place);
      return item ? CardPicture(widget_, item->text()) : QPixmap();
    };
    cards->dropped = [this](const std::string& source, const QPoint&) { UserDropped(source); };
  }

  // With the focus the list makes its first line the current one, which nobody chose.
  bool TakeFocus(QEvent* event) {
    const QSignalBlocker silence(widget_);
    const bool chosen = widget_.currentRow() >= 0;
    static_cast<QObject&>(widget_).event(event);
    if (!chosen) widget_.selectionModel()->clearCurrentIndex();
    return true;
  }

  // The list marks the pressed line even when the handler went back to another.
  void MarkCurrent() {
    if (control_.MultiSelect) return;
    const QSignalBlocker silence(widget_);
    widget_.selectionModel()->select(widget_.currentIndex(), QItemSelectionModel::ClearAndSelect);
  }

  std::vector<bool> Marks() const {
    std::vector<bool> marks;
    for (int row = 0; row < widget_.count(); ++row)
      marks.push_back(widget_.item(row)->isSelected());
    return marks;
  }

  // A line with no mark of its own is not marked.
  void ShowMarks() {
    control_.Selected.resize(list_.size());
    for (int row = 0; row < widget_.count(); ++row) {
      const bool marked = control_.Selected[static_cast<std::size_t>(row)];
      if (widget_.item(row)->isSelected() != marked) widget_.item(row)->setSelected(marked);
    }
  }

  std::vector<bool> Ticks() const {
    std::vector<bool> ticks;
    for (int row = 0; row < widget_.count(); ++row)
      ticks.push_back(widget_.item(row)->checkState() == Qt::Checked);
    return ticks;
  }

  // A line with no tick of its own yet has an empty box.
  void ShowTicks() {
    control_.Checked.resize(list_.size());
    for (int row = 0; row < widget_.count(); ++row) {
      QListWidgetItem& item = *widget_.item(row);
      const auto state =
          control_.Checked[static_cast<std::size_t>(row)] ? Qt::Checked : Qt::Unchecked;
      // A line has a box once it has a state.
      const bool has_box = item.data(Qt::CheckStateRole).isValid();
      if (!has_box || item.checkState() != state) item.setCheckState(state);
    }
  }

  // The number at the end of a line is read with it.
  void ShowCounts() {
    counts_ = control_.Counts;
    for (int row = 0; row < widget_.count(); ++row) {
      const auto at = static_cast<std::size_t>(row);
      const int count = at < counts_.size() ? counts_[at] : 0;
      QListWidgetItem& item = *widget_.item(row);
      item.setData(ListColumns::kCountRole, count);
      QString words = InWords(item.text());
      if (count > 0) words += QStringLiteral(", %1").arg(count);
      item.setData(Qt::AccessibleTextRole, words);
    }
  }

  void Fill() {
    counts_.clear();
    const bool same_length = list_.size() == control_.List.size();
    list_ = control_.List;
    if (!same_length) widget_.clear();
    for (std::size_t i = 0; i < list_.size(); ++i) {
      const int row = static_cast<int>(i);
      QListWidgetItem* item = same_length ? widget_.item(row) : new QListWidgetItem(&widget_);
      const QString text = FromText(list_[i]);
      item->setText(text);
      item->setData(ListColumns::kCountRole, 0);
      item->setData(Qt::AccessibleTextRole, InWords(text));
    }
    columns_->Measure(widget_);
  }

  TypedAhead typed_;
  const QString told_in_ = widget_.property("toldIn").toString();  // the field's name
  ListColumns* columns_;                                           // the list's
  std::vector<std::string> list_;
  std::vector<int> counts_;
  bool press_is_told_ = false;
  bool by_mouse_ = false;  // the last press on the list
};

}  // namespace

BoundControl BindControl(ListBox& control, ControlRow& row, QObject& target, BindingOwner& owner) {
  return BindAs<ListBinding, QListWidget>(control, row, target, owner);
}

}  // namespace tallyroll
