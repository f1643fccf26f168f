// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures: ornaments, and sheets of paper that scroll.
#include <QAccessibleWidget>
#include <QEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

#include "desktop/portal/control_binding.h"
#include "desktop/portal/sheet_view.h"

namespace tallyroll {
namespace {

using OrnamentBinding = Binding<PictureBox, QWidget>;

// To a screen reader the area with a sheet is a document, not a part of the window.
QAccessibleInterface* MakeSpokenSheet(const QString&, QObject* object) {
  auto* area = qobject_cast<QScrollArea*>(object);
  const bool has_sheet = area && qobject_cast<const SheetView*>(area->widget());
  return has_sheet ? new QAccessibleWidget(area, QAccessible::Document) : nullptr;
}

class SheetBinding : public Binding<PictureBox, QScrollArea> {
 public:
  SheetBinding(PictureBox& control, ControlRow& row, QScrollArea& area, BindingOwner& owner)
      : Binding(control, row, area, owner), view_(new SheetView) {
    QAccessible::installFactory(MakeSpokenSheet);
    // What the form puts there stays its own.
    if (QWidget* old = area.takeWidget()) {
      old->setParent(&area);
      old->hide();
    }
    area.setBackgroundRole(QPalette::Dark);
    area.setAlignment(Qt::AlignCenter);
    area.setWidgetResizable(false);
    area.setWidget(view_);
    // The toolkit has taken the area for an empty one as soon as the form gave it a name.
    if (QAccessibleInterface* empty = QAccessible::queryAccessibleInterface(&area))
      QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(empty));
    area.viewport()->installEventFilter(this);
  }

 protected:
  void ShowValue() override {
    view_->ShowSheet(control_, Room());
    if (view_->Words() != widget_.accessibleDescription())
      widget_.setAccessibleDescription(view_->Words());
  }

  // The sheet lies on its desk and throws a shadow.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Resize && watched == widget_.viewport() &&
        control_.Fit != SheetFit::kZoom)
      QMetaObject::invokeMethod(
          this, [this] { ShowValue(); }, Qt::QueuedConnection);
    if (event->type() != QEvent::Paint || watched != widget_.viewport())
      return ControlBinding::eventFilter(watched, event);
    QPainter painter(widget_.viewport());
    painter.fillRect(widget_.viewport()->rect(), widget_.palette().color(QPalette::Dark));
    constexpr int kDepth = 6, kDarkest = 36;
    const QRect sheet = view_->geometry().translated(0, 1);
    painter.setPen(Qt::NoPen);
    for (int i = kDepth; i > 0; --i) {
      painter.setBrush(QColor(0, 0, 0, kDarkest / kDepth));
      painter.drawRoundedRect(sheet.adjusted(-i, -i, i, i), i, i);
    }
    return true;
  }

 private:
  // What a fitted sheet has: the desk without its edge, whether or not a bar stands at its side.
  QSize Room() const {
    constexpr int kEdge = 12;
    const int bar = widget_.verticalScrollBar()->sizeHint().width();
    return widget_.size() - QSize(2 * kEdge + bar, 2 * kEdge);
  }

  SheetView* view_;  // the area's
};

}  // namespace

// A form shows a sheet in a scroll area.
BoundControl BindControl(PictureBox& control, ControlRow& row, QObject& target,
                         BindingOwner& owner) {
  if (IsInput(target)) return nullptr;
  if (auto sheet = BindAs<SheetBinding, QScrollArea>(control, row, target, owner)) return sheet;
  return BindAs<OrnamentBinding, QWidget>(control, row, target, owner);
}

}  // namespace tallyroll
