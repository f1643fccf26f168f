// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/scrolling_body.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QEvent>
#include <QGridLayout>
#include <QMenuBar>
#include <QScrollBar>
#include <QStyle>
#include <algorithm>
#include <utility>

#include "desktop/basics/window_places.h"
#include "desktop/grid/grid_widget.h"
#include "desktop/style/program_style.h"

namespace tallyroll {
namespace {

// What of the body is always seen.
constexpr QSize kLeast(320, 120);

// A wrapped text is as high as its width makes it. The toolkit would then ask for what everything
// else would like, and scroll beside sheets and lists that can do with less.
class Body : public QWidget {
 public:
  using QWidget::QWidget;

  int heightForWidth(int width) const override {
    const QLayout* rows = layout();
    return rows && rows->hasHeightForWidth() ? rows->minimumHeightForWidth(width) : -1;
  }
};

bool IsFoot(const QLayoutItem& item) {
  const QLayout* row = const_cast<QLayoutItem&>(item).layout();
  const QWidget* pages = const_cast<QLayoutItem&>(item).widget();
  return (row && row->objectName() == QLatin1String("foot")) ||
         (pages && pages->objectName() == QLatin1String("actions"));
}

// What a sheet lacks to show its last columns, where it is little; it scrolls where it is much.
int LackingOfSheets(const QDialog& dialog) {
  int lacking = 0;
  for (const auto* sheet : dialog.findChildren<GridWidget*>()) {
    const int lacks = sheet->WholeWidth() - sheet->minimumWidth();
    if (sheet->isVisibleTo(&dialog) && lacks <= sheet->WholeWidth() / 8)
      lacking = std::max(lacking, lacks);
  }
  return lacking;
}

void HangMenu(QLayout& layout, QMenuBar& menu) {
  constexpr double kBelowMenu = 8;
  layout.setMenuBar(&menu);
  QMargins margins = layout.contentsMargins();
  margins.setTop(ScreenMeasures().Px(kBelowMenu));
  layout.setContentsMargins(margins);
}

void Append(QBoxLayout& layout, QLayoutItem& item) {
  if (QLayout* row = item.layout()) return layout.addLayout(row);
  layout.addItem(&item);
}

}  // namespace

ScrollingBody* ScrollingBody::Of(QDialog& dialog) {
  auto* panes = qobject_cast<QGridLayout*>(dialog.layout());
  if (panes && panes->objectName() == QLatin1String("panes"))
    return new ScrollingBody(dialog, *panes);
  auto* whole = qobject_cast<QVBoxLayout*>(dialog.layout());
  if (!whole) return nullptr;
  auto* menu = dialog.findChild<QMenuBar*>();
  if (menu) whole->removeWidget(menu);
  const bool has_foot = whole->count() >= 2 && IsFoot(*whole->itemAt(whole->count() - 1));
  auto* body = has_foot ? new ScrollingBody(dialog) : nullptr;
  if (menu) HangMenu(*dialog.layout(), *menu);
  return body;
}

ScrollingBody::ScrollingBody(QDialog& dialog) : QScrollArea(&dialog) {
  auto* whole = static_cast<QVBoxLayout*>(dialog.layout());
  const QMargins margins = whole->contentsMargins();
  const int spacing = whole->spacing();
  QLayoutItem* foot = whole->takeAt(whole->count() - 1);

  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  // Within the dialog from the start, so that Tab goes on in its order.
  auto* body = new Body(viewport());
  setWidget(body);
  body->setLayout(whole);
  whole->setContentsMargins(0, 0, 0, 0);

  auto* rows = new QVBoxLayout(&dialog);
  rows->setContentsMargins(margins);
  rows->setSpacing(spacing);
  rows->addWidget(this, 1);
  Append(*rows, *foot);
}

// The layout in the corner moves into it. The rows below are as wide as that, without the bar.
ScrollingBody::ScrollingBody(QDialog& dialog, QGridLayout& panes)
    : QScrollArea(&dialog), panes_(&panes) {
  bar_room_ = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidgetResizable(true);
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  QLayout* head = panes.itemAtPosition(0, 0)->layout();
  panes.removeItem(head);
  auto* body = new Body(viewport());
  setWidget(body);
  body->setLayout(head);
  head->setContentsMargins(0, 0, 0, 0);
  // Its fields are as wide with a bar as without.
  const auto keep_room = [this](int, int most) {
    setViewportMargins(0, 0, most > 0 ? 0 : bar_room_, 0);
  };
  connect(verticalScrollBar(), &QAbstractSlider::rangeChanged, this, keep_room);
  keep_room(0, 0);
  panes.addWidget(this, 0, 0);
  for (int row = 1; row < panes.rowCount(); ++row) {
    QLayoutItem* below = panes.itemAtPosition(row, 0);
    if (below && below->layout()) below->layout()->setContentsMargins(0, 0, bar_room_, 0);
  }
}

QSize ScrollingBody::sizeHint() const {
  return widget()->sizeHint() + QSize(bar_room_, 0);
}

QSize ScrollingBody::minimumSizeHint() const {
  return (widget()->minimumSizeHint() + QSize(bar_room_, 0)).boundedTo(kLeast);
}

int ScrollingBody::LacksBeside() const {
  int column = 0;
  for (int row = 0; panes_ && row < panes_->rowCount(); ++row)
    if (const QLayoutItem* item = panes_->itemAtPosition(row, 0))
      column = std::max(column, item->minimumSize().width());
  const int whole = widget()->minimumSizeHint().width() + bar_room_;
  return panes_ ? std::max(0, whole - column) : 0;
}

void ScrollingBody::BringIntoSight(QWidget* focused) {
  if (!focused || !widget()->isAncestorOf(focused)) return;
  if (QApplication::mouseButtons() == Qt::NoButton) ensureWidgetVisible(focused);
}

void SparePane::setVisible(bool wanted) {
  wanted_ = wanted;
  if (window_ != window()) {
    if (window_) window_->removeEventFilter(this);
    window_ = window();
    window_->installEventFilter(this);
  }
  QGroupBox::setVisible(wanted && HasRoom());
}

bool SparePane::HasRoom() const {
  constexpr double kLeastWindow = 860;
  return window()->width() >= ScreenMeasures().Px(kLeastWindow);
}

bool SparePane::eventFilter(QObject* watched, QEvent* event) {
  if (watched == window_ && event->type() == QEvent::Resize && wanted_ && isHidden() == HasRoom())
    QGroupBox::setVisible(HasRoom());
  return QGroupBox::eventFilter(watched, event);
}

QSize RoomWanted(const QDialog& dialog, ScrollingBody* body) {
  // What was shown or hidden just now counts, however deep it stands.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  // What is in the body does not tell the layout around it.
  if (body) body->updateGeometry();
  const QLayout& layout = *dialog.layout();
  QSize least = layout.totalMinimumSize();
  if (!body) return least;
  least.rwidth() += body->LacksBeside();
  const QSize whole = body->widget()->minimumSizeHint();
  const QMargins margins = layout.contentsMargins();
  const int beside = margins.left() + margins.right();
  least.setWidth(std::max(least.width(), whole.width() + beside + LackingOfSheets(dialog)));
  const int width = std::max(least.width(), dialog.width()) - beside;
  const int wrapped = body->IsPane() ? 0 : body->widget()->heightForWidth(width);
  least.rheight() += std::max(whole.height(), wrapped) - body->minimumSizeHint().height();
  return least;
}

void TakeRoom(QDialog& dialog, ScrollingBody* body, QSize& taken) {
  if (!dialog.layout()) return;  // of a form that could not be read
  const QSize least = RoomWanted(dialog, body);
  const QSize before = std::exchange(taken, taken.expandedTo(least));
  if (taken == before || dialog.isMaximized() || dialog.isFullScreen()) return;
  const QSize before_growing = dialog.size();
  dialog.resize(least.expandedTo(before_growing));
  KeepOnScreen(dialog);
  if (dialog.isVisible()) dialog.resize(dialog.size().expandedTo(before_growing));
}

}  // namespace tallyroll
