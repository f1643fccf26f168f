// SPDX-License-Identifier: GPL-3.0-or-later
// Combo boxes, tabs, pages and date pickers.
#include <QAbstractItemView>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QDateEdit>
#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabWidget>
#include <cmath>

#include "desktop/basics/text_conversion.h"
#include "desktop/basics/typed_ahead.h"
#include "desktop/grid/cell_list.h"
#include "desktop/grid/grid_widget.h"
#include "desktop/portal/control_binding.h"
#include "desktop/portal/field_validator.h"
#include "find/type_ahead.h"

namespace tallyroll {
namespace {

class ComboBinding : public Binding<ComboBox, QComboBox> {
 public:
  ComboBinding(ComboBox& control, ControlRow& row, QComboBox& combo, BindingOwner& owner)
      : Binding(control, row, combo, owner) {
    combo.setInsertPolicy(QComboBox::NoInsert);
    QObject::connect(&combo, &QComboBox::activated, this, [this](int index) { Choose(index); });
    if (!combo.isEditable()) {
      combo.installEventFilter(this);
      return;
    }
    // What is typed stands as typed; completing it would be the program's doing.
    combo.setCompleter(nullptr);
    new FieldValidator(*combo.lineEdit());
    QObject::connect(&combo, &QComboBox::editTextChanged, this, [this] {
      if (!combo_typing()) return;
      index_ = -1;
      UserDid({&ControlRow::change});
    });
  }

  void Read() override {
    control_.ListIndex = index_;
    if (const std::optional<std::string> text = ToText(widget_.currentText()))
      control_.Text = text_ = *text;
  }

 protected:
  void ShowValue() override {
    const QSignalBlocker silence(widget_);
    if (control_.List != list_ || widget_.count() != static_cast<int>(list_.size())) FillList();
    if (control_.ListIndex != index_ || (!typed() && widget_.currentIndex() != index_)) {
      index_ = control_.ListIndex;
      widget_.setCurrentIndex(index_);
      if (control_.Text == text_) control_.Text = ToText(widget_.currentText()).value_or("");
    }
    text_ = control_.Text;
    const QString text = FromText(text_);
    if (widget_.isEditable() && widget_.currentText() != text) widget_.setEditText(text);
    if (control_.Over) StandInGrid();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::FocusIn && TakesNames()) widget_.view()->installEventFilter(this);
    if (event->type() == QEvent::KeyPress && TakesNames() &&
        GoToTyped(*static_cast<const QKeyEvent*>(event), watched != &widget_))
      return true;
    return ControlBinding::eventFilter(watched, event);
  }

 private:
  // Its letters are nobody else's: neither a cell's nor a handler's.
  bool TakesNames() const { return !control_.Over && !row().key_down && !row().key_press; }

  // As in a list; the dropped lines are only walked until one is taken.
  bool GoToTyped(const QKeyEvent& event, bool dropped) {
    const int current = dropped ? widget_.view()->currentIndex().row() : widget_.currentIndex();
    if (!ahead_.Take(event, current)) return false;
    const int line = LineToGoTo(ahead_.typed(), list_, current);
    if (line < 0) {
      if (!ahead_.typed().empty()) QApplication::beep();
      return true;
    }
    ahead_.LeadsTo(line);
    if (dropped) {
      widget_.view()->setCurrentIndex(
          widget_.model()->index(line, widget_.modelColumn(), widget_.rootModelIndex()));
    } else if (line != current) {
      widget_.setCurrentIndex(line);
      Choose(line);
    }
    return true;
  }

  void Choose(int index) {
    // The line that is chosen already changes nothing, but a cell may take it again.
    if (!control_.Over && index == control_.ListIndex) return;
    index_ = index;
    UserDid({&ControlRow::change, &ControlRow::click});
  }

  bool typed() const { return widget_.isEditable() && index_ == -1; }
  // A choice changes the text as well, and is told by `activated` alone.
  bool combo_typing() const { return widget_.lineEdit()->isModified(); }

  void FillList() {
    list_ = control_.List;
    widget_.clear();
    for (const std::string& line : list_) widget_.addItem(FromText(line));
    widget_.setCurrentIndex(-1);
    index_ = -1;
  }

  void StandInGrid() {
    auto* list = qobject_cast<CellList*>(&widget_);
    if (!list) return;
    for (auto* grid : widget_.window()->findChildren<GridWidget*>())
      if (grid->grid() == control_.Over) list->StandIn(*grid);
    list->Place();
  }

  TypedAhead ahead_;
  std::vector<std::string> list_;
  int index_ = -1;
  std::string text_;
};

class TabBinding : public Binding<TabStrip, QTabWidget> {
 public:
  TabBinding(TabStrip& control, ControlRow& row, QTabWidget& tabs, BindingOwner& owner)
      : Binding(control, row, tabs, owner) {
    QObject::connect(&tabs, &QTabWidget::currentChanged, this, [this] {
      UserDid({&ControlRow::change, &ControlRow::click});
    });
  }

  void TakeCaption() override {
    if (!control_.Tabs.empty()) return;
    for (int i = 0; i < widget_.count(); ++i)
      control_.Tabs.push_back(ToText(widget_.tabText(i)).value_or(""));
  }
  void Read() override { control_.Selected = widget_.currentIndex(); }

 protected:
  void ShowValue() override {
    const QSignalBlocker silence(widget_);
    const int count = std::min(widget_.count(), static_cast<int>(control_.Tabs.size()));
    for (int i = 0; i < count; ++i) {
      const QString text = FromText(control_.Tabs[static_cast<std::size_t>(i)]);
      if (widget_.tabText(i) != text) widget_.setTabText(i, text);
    }
    if (widget_.currentIndex() != control_.Selected) widget_.setCurrentIndex(control_.Selected);
  }
};

class PagesBinding : public Binding<Pages, QStackedWidget> {
 public:
  PagesBinding(Pages& control, ControlRow& row, QStackedWidget& pages, BindingOwner& owner)
      : Binding(control, row, pages, owner) {
    QObject::connect(&pages, &QStackedWidget::currentChanged, this, [this] { GiveEnterToPage(); });
  }

 protected:
  void ShowValue() override {
    if (widget_.currentIndex() != control_.Current) widget_.setCurrentIndex(control_.Current);
  }

 private:
  // A page may name the button that Enter presses while it is shown.
  void GiveEnterToPage() {
    const QWidget* page = widget_.currentWidget();
    if (!page) return;
    const QString name = page->property("mainAction").toString();
    if (auto* button = widget_.window()->findChild<QPushButton*>(name); button && !name.isEmpty())
      button->setDefault(true);
  }
};

// Day 0 of the logic's day serials.
QDate DayOf(double serial) {
  return QDate(1899, 12, 30).addDays(static_cast<qint64>(std::floor(serial)));
}

class DateBinding : public Binding<DTPicker, QDateEdit> {
 public:
  DateBinding(DTPicker& control, ControlRow& row, QDateEdit& edit, BindingOwner& owner)
      : Binding(control, row, edit, owner) {
    edit.setCalendarPopup(true);
    QObject::connect(&edit, &QDateEdit::dateChanged, this, [this] { Picked(); });
    QCalendarWidget& calendar = *edit.calendarWidget();
    calendar.installEventFilter(this);
    QObject::connect(&calendar, &QCalendarWidget::clicked, this, [this] { PickedAsShown(); });
    QObject::connect(&calendar, &QCalendarWidget::activated, this, [this] { PickedAsShown(); });
  }

  void Read() override {
    if (widget_.date() == DayOf(control_.Value)) return;
    control_.Value = static_cast<double>(DayOf(0).daysTo(widget_.date()));
  }

 protected:
  void ShowValue() override {
    const QSignalBlocker silence(widget_);
    if (control_.MaxDate > 0)
      widget_.setDateRange(DayOf(control_.MinDate), DayOf(control_.MaxDate));
    if (widget_.date() != DayOf(control_.Value)) widget_.setDate(DayOf(control_.Value));
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Show) told_ = false;
    return ControlBinding::eventFilter(watched, event);
  }

 private:
  void Picked() {
    told_ = true;
    UserDid({&ControlRow::change});
  }
  // The day that the field shows already is a pick too, though the date stays the same.
  void PickedAsShown() {
    if (!told_) Picked();
  }

  bool told_ = false;  // of a pick since the calendar opened
};

}  // namespace

BoundControl BindControl(ComboBox& control, ControlRow& row, QObject& target, BindingOwner& owner) {
  return BindAs<ComboBinding, QComboBox>(control, row, target, owner);
}

BoundControl BindControl(TabStrip& control, ControlRow& row, QObject& target, BindingOwner& owner) {
  return BindAs<TabBinding, QTabWidget>(control, row, target, owner);
}

BoundControl BindControl(Pages& control, ControlRow& row, QObject& target, BindingOwner& owner) {
  return BindAs<PagesBinding, QStackedWidget>(control, row, target, owner);
}

BoundControl BindControl(DTPicker& control, ControlRow& row, QObject& target, BindingOwner& owner) {
  return BindAs<DateBinding, QDateEdit>(control, row, target, owner);
}

}  // namespace tallyroll
