// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures: ornaments, and sheets of paper that scroll.
#include <QAccessibleWidget>
#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <algorithm>

#include "desktop/portal/control_binding.h"
#include "desktop/portal/sheet_view.h"

namespace tallyroll {
namespace {

using OrnamentBinding = Binding<PictureBox, QWidget>;

// To a screen reader the area with a sheet is a document, not a part of the window.
QAccessibleInterface* MakeSpokenSheet(const QString&, QObject* object) {
  auto* area = qobject_cast<QScrollArea*>(object);
  const QWidget* desk = area ? area->widget() : nullptr;
  const bool has_sheet =
      desk && desk->findChild<const SheetView*>(QString(), Qt::FindDirectChildrenOnly);
  return has_sheet ? new QAccessibleWidget(area, QAccessible::Document) : nullptr;
}

// A sheet whose form says "whenIdle" waits until the teacher's choices have come to rest: then its
// change is raised, in which the Portal lays it out anew, and it is drawn.
class SheetBinding : public Binding<PictureBox, QScrollArea> {
 public:
  SheetBinding(PictureBox& control, ControlRow& row, QScrollArea& area, BindingOwner& owner)
      : Binding(control, row, area, owner),
        desk_(new QWidget),
        view_(new SheetView(desk_)),
        waits_(area.property("whenIdle").toBool()) {
    QAccessible::installFactory(MakeSpokenSheet);
    // What the form puts there stays its own.
    if (QWidget* old = area.takeWidget()) {
      old->setParent(&area);
      old->hide();
    }
    area.setBackgroundRole(QPalette::Dark);
    area.setAlignment(Qt::AlignCenter);
    area.setWidgetResizable(false);
    view_->resize(0, 0);
    area.setWidget(desk_);
    desk_->setAutoFillBackground(false);  // the shadow lies below it
    // The toolkit has taken the area for an empty one as soon as the form gave it a name.
    if (QAccessibleInterface* empty = QAccessible::queryAccessibleInterface(&area))
      QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(empty));
    area.viewport()->installEventFilter(this);
    constexpr int kRest = 250;  // milliseconds
    rest_.setSingleShot(true);
    rest_.setInterval(kRest);
    rest_.callOnTimeout(this, [this] { AtRest(); });
    if (waits_) area.parentWidget()->installEventFilter(this);
  }

 protected:
  void ShowValue() override {
    if (waits_ && laid_out_ != control_.Revision) return rest_.start();
    Draw();
  }

  // The sheet lies on its desk and throws a shadow.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (waits_ && event->type() == QEvent::Show) rest_.start();
    if (event->type() == QEvent::Resize && watched == widget_.viewport()) {
      LaySheet();
      if (control_.Fit != SheetFit::kZoom) FollowRoom();
    }
    if (event->type() != QEvent::Paint || watched != widget_.viewport())
      return ControlBinding::eventFilter(watched, event);
    QPainter painter(widget_.viewport());
    painter.fillRect(widget_.viewport()->rect(), widget_.palette().color(QPalette::Dark));
    constexpr int kDepth = 6, kDarkest = 36;
    const QRect sheet(view_->mapTo(widget_.viewport(), QPoint(0, 1)), view_->size());
    if (sheet.isEmpty()) return true;
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
    const bool never = widget_.verticalScrollBarPolicy() == Qt::ScrollBarAlwaysOff;
    const int bar = never ? 0 : widget_.verticalScrollBar()->sizeHint().width();
    const int beside = 2 * (kEdge + widget_.frameWidth());
    return widget_.size() - QSize(beside + bar, beside);
  }

  // The desk goes on beside a sheet, but brings no bar for that alone.
  void LaySheet() {
    const int spare = (Room().width() + 2 * kEdge - view_->width()) / 2;
    const int beside = spare < 0 ? kEdge : std::min(spare, kEdge);
    view_->move(beside, kEdge);
    desk_->setFixedSize(view_->size() + QSize(2 * beside, 2 * kEdge));
  }

  void FollowRoom() {
    if (waits_) return rest_.start();
    QMetaObject::invokeMethod(
        this, [this] { ShowValue(); }, Qt::QueuedConnection);
  }

  // Nothing is laid out behind another window that has the teacher's attention, nor where it would
  // not be seen.
  void AtRest() {
    const QWidget* front = QApplication::activeModalWidget();
    if (!widget_.parentWidget()->isVisible() || (front && front != widget_.window())) return;
    if (laid_out_ != control_.Revision) {
      laid_out_ = control_.Revision;
      UserDid({&ControlRow::change});
    }
    Draw();
  }

  void Draw() {
    const QSize before = view_->size();
    view_->ShowSheet(control_, Room());
    LaySheet();
    // The shadow of the sheet before lies there still.
    if (view_->size() != before) widget_.viewport()->update();
    if (view_->Words() != widget_.accessibleDescription())
      widget_.setAccessibleDescription(view_->Words());
  }

  // Of the desk on every side of a sheet, however far it is scrolled.
  static constexpr int kEdge = 12;

  QWidget* desk_;  // the area's
  SheetView* view_;
  QTimer rest_;
  bool waits_;
  unsigned laid_out_ = 0;  // the revision that the Portal has laid out
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
