// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/window/tour.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QPainter>
#include <QPushButton>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>
#include <initializer_list>

#include "desktop/grid/grid_widget.h"
#include "desktop/style/shapes.h"
#include "desktop/style/tokens.h"
#include "desktop/window/page_button.h"
#include "desktop/window/toolbar_view.h"
#include "platform/surroundings.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

constexpr std::string_view kTourSection = "startup", kTourKey = "TOUR";
constexpr int kTourWidth = 394;  // with its margins the card is as wide as the mark it stands below
constexpr int kTourMargin = 16;
constexpr int kTourGap = 10;    // between the card and what it points at
constexpr int kMarkWidth = 3;   // of the line around the target
constexpr int kMarkBeyond = 1;  // of that beyond it: the rest covers the target's own line
constexpr double kTourRadius = 6, kTableCorner = 4, kToolCorner = 6;

struct TourStep {
  const char* tool;  // the toolbar's button; null for the table
  const char* title;
  const char* text;
};

constexpr TourStep kTourSteps[Tour::kSteps] = {
    {nullptr, QT_TR_NOOP("Your class"),
     QT_TR_NOOP("A row for every student, a column for every grade. A double click or Enter on a "
                "mark opens it to be changed.")},
    {"Grades", QT_TR_NOOP("A new grade"),
     QT_TR_NOOP("Ctrl+G or this button enters a quiz or a test: its title, and a mark for every "
                "student down the list.")},
    {"Attendance", QT_TR_NOOP("Attendance"),
     QT_TR_NOOP("A month at a time: type a letter for whoever was away or late. The totals "
                "count themselves.")},
    {"Average", QT_TR_NOOP("Averages"),
     QT_TR_NOOP("Say once what counts how much. From then on averages and final grades follow "
                "every mark.")},
    {"Print", QT_TR_NOOP("Reports, and help"),
     QT_TR_NOOP("Reports for you, the students and the school: seen first, then printed or saved. "
                "F1 explains the window you are in, Ctrl+K finds every command.")}};

// How far the corners of what is pointed at are rounded.
double CornerOf(const QWidget* target) {
  if (const auto* button = qobject_cast<const PageButton*>(target)) return button->Corner();
  return qobject_cast<const GridWidget*>(target) ? kTableCorner : kToolCorner;
}

// Below the target, above it, or within it where it fills the window.
QPoint PlaceBeside(const QRect& target, const QSize& card, const QRect& room) {
  const int x = std::clamp(target.x() + (target.width() - card.width()) / 2, room.left() + kTourGap,
                           std::max(room.left(), room.right() - card.width() - kTourGap));
  const int below = target.bottom() + kTourGap;
  if (below + card.height() <= room.bottom()) return {x, below};
  const int above = target.top() - kTourGap - card.height();
  if (above >= room.top()) return {x, above};
  return {room.right() - card.width() - 2 * kTourGap,
          target.bottom() - card.height() - 2 * kTourGap};
}

}  // namespace

// A line around a real control, which stays within reach of the mouse.
class TourMark : public QWidget {
 public:
  explicit TourMark(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setObjectName(QStringLiteral("TourMark"));
  }
  void PointAt(const QWidget& target, const QRect& place) {
    corner_ = CornerOf(&target) + kMarkBeyond;
    setGeometry(place);
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    DrawBox(painter, rect(), corner_, QColor(), TokensOf(palette()).focus, kMarkWidth);
  }

 private:
  double corner_ = 0;
};

bool IsFirstStart() {
  const auto setting = [](std::string_view application, std::string_view key) {
    return Platform().ReadSetting(application, kTourSection, key, "");
  };
  if (!setting(kApplicationKey, kTourKey).empty()) return false;
  return std::ranges::all_of(
      std::initializer_list<const char*>{kApplicationKey, "TALLYRLP7", "TALLYRLW6", "TALLYRLW"},
      [&](const char* application) { return setting(application, "VERSION").empty(); });
}

Tour::Tour(QMainWindow& frame)
    : QWidget(&frame),
      frame_(frame),
      mark_(new TourMark(&frame)),
      title_(new QLabel),
      text_(new QLabel),
      back_(new QPushButton(tr("Back"))),
      next_(new QPushButton),
      leave_(new QPushButton),
      before_(frame.focusWidget()) {
  setObjectName(QStringLiteral("Tour"));
  setAccessibleName(tr("A first look"));
  title_->setProperty("textUse", QStringLiteral("heading"));
  text_->setWordWrap(true);
  text_->setMinimumWidth(kTourWidth);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(leave_);
  buttons->addStretch();
  buttons->addWidget(back_);
  buttons->addWidget(next_);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(kTourMargin, kTourMargin, kTourMargin, kTourMargin);
  for (QWidget* row : {title_, text_}) rows->addWidget(row);
  rows->addLayout(buttons);
  for (QPushButton* button : {back_, next_, leave_}) button->setAutoDefault(true);
  connect(leave_, &QPushButton::clicked, this, &Tour::Leave);
  connect(back_, &QPushButton::clicked, this, [this] { ShowStep(step_ - 1); });
  connect(next_, &QPushButton::clicked, this, [this] {
    if (step_ == 0) return Begin();
    step_ == kSteps ? Leave() : ShowStep(step_ + 1);
  });
  connect(new QShortcut(Qt::Key_Escape, this), &QShortcut::activated, this, &Tour::Leave);
  frame_.installEventFilter(this);
  Platform().WriteSetting(kApplicationKey, kTourSection, kTourKey, "1");
  ShowStep(0);
}

// Queued: the class opens once the press has answered, and the steps begin with it on the screen.
void Tour::Begin() {
  beginning_ = true;
  QTimer::singleShot(0, this, [this] {
    Q_EMIT SampleWanted();
    QTimer::singleShot(0, this, [this] {
      beginning_ = false;
      TargetOf(1) ? ShowStep(1) : Leave();
    });
  });
}

void Tour::ShowStep(int step) {
  step_ = step;
  if (target_) target_->removeEventFilter(this);
  target_ = TargetOf(step);
  if (target_) target_->installEventFilter(this);
  const bool offers = step == 0;
  const TourStep& told = kTourSteps[std::max(step - 1, 0)];
  title_->setText(offers ? tr("Your first time here?")
                         : tr("%1 of %2: %3").arg(step).arg(kSteps).arg(tr(told.title)));
  text_->setText(offers ? tr("The sample is a finished class to try everything with. Open it, and "
                             "five steps show you where things are.")
                        : tr(told.text));
  next_->setText(offers ? tr("Open the sample class") : step == kSteps ? tr("Done") : tr("Next"));
  leave_->setText(offers ? tr("Not now (Esc)") : tr("Leave (Esc)"));
  back_->setVisible(step > 1);
  leave_->setVisible(step < kSteps);
  // A screen reader reads it with the button that gets the focus.
  next_->setAccessibleDescription(title_->text() + QLatin1Char('\n') + text_->text());
  PlaceIt();
  show();
  next_->setFocus(Qt::TabFocusReason);
}

// The page in front, or the window with its buttons, is laid out by now.
QWidget* Tour::TargetOf(int step) const {
  QWidget* found = nullptr;
  if (step == 0) {
    found = frame_.findChild<QWidget*>(QStringLiteral("sample"));
  } else if (const char* tool = kTourSteps[step - 1].tool) {
    auto* bar = frame_.findChild<ToolbarView*>();
    auto* action = bar ? bar->findChild<QAction*>(QString::fromLatin1(tool)) : nullptr;
    found = action ? bar->widgetForAction(action) : nullptr;
  } else {
    found = frame_.findChild<GridWidget*>();
  }
  return found && found->isVisible() ? found : nullptr;
}

void Tour::PlaceIt() {
  adjustSize();
  const QRect room = frame_.rect();
  mark_->setVisible(target_ != nullptr);
  if (target_) {
    const QRect place(target_->mapTo(&frame_, QPoint(0, 0)), target_->size());
    const QRect around = place.adjusted(-kMarkBeyond, -kMarkBeyond, kMarkBeyond, kMarkBeyond);
    mark_->PointAt(*target_, around & room);
    move(PlaceBeside(place, size(), room));
  } else {
    move(room.center() - rect().center());
  }
  mark_->raise();
  raise();
}

bool Tour::eventFilter(QObject* watched, QEvent* event) {
  const bool moves = event->type() == QEvent::Resize || event->type() == QEvent::Move;
  if (moves) PlaceIt();
  // What it pointed at has gone: another page is in front now.
  if (watched == target_ && event->type() == QEvent::Hide)
    QTimer::singleShot(0, this, [this] {
      const bool gone = !target_ || !target_->isVisible();
      if (gone && !beginning_ && !frame_.isMinimized()) Leave();
    });
  return QWidget::eventFilter(watched, event);
}

void Tour::paintEvent(QPaintEvent*) {
  const Tokens t = TokensOf(palette());
  QPainter painter(this);
  DrawBox(painter, rect(), kTourRadius, t.raised, t.focus);
}

void Tour::Leave() {
  hide();
  mark_->hide();
  frame_.removeEventFilter(this);
  if (target_) target_->removeEventFilter(this);
  if (QWidget* next = step_ == 0 ? before_.data() : TargetOf(1))
    next->setFocus(Qt::OtherFocusReason);
  mark_->deleteLater();
  deleteLater();
}

}  // namespace tallyroll
