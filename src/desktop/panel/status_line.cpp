// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/panel/status_line.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>

#include "base/number_text.h"
#include "desktop/basics/palette_icon.h"
#include "desktop/basics/text_conversion.h"
#include "desktop/panel/panel_words.h"
#include "desktop/style/tokens.h"
#include "insight/class_glance.h"

namespace tallyroll {
namespace {

constexpr double kStatusDot = 8, kStatusDotGap = 6, kBetweenFacts = 20;
constexpr double kShareOfFacts = 0.62;  // the rest is the message's

// A dot and "not saved".
class ChangedMark : public QLabel {
 public:
  ChangedMark() : QLabel(tr("not saved")) {
    setObjectName(QStringLiteral("not_saved"));
    setProperty("textUse", QByteArrayLiteral("small"));
  }
  QSize sizeHint() const override {
    return QLabel::sizeHint() + QSize(PanelPx(*this, kStatusDot + kStatusDotGap), 0);
  }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent*) override {
    const Tokens t = TokensOf(palette());
    const int side = PanelPx(*this, kStatusDot);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(t.warning);
    painter.drawEllipse(0, (height() - side) / 2, side, side);
    painter.setPen(t.muted);
    painter.drawText(rect().adjusted(side + PanelPx(*this, kStatusDotGap), 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter, text());
  }
};

QString CountOf(int count, const QString& one, const QString& many) {
  return count == 1 ? one : many.arg(count);
}

}  // namespace

StatusLine::StatusLine(QWidget* parent) : QWidget(parent), message_(new QLabel) {
  // A long message must not widen the window.
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  message_->setObjectName(QStringLiteral("StatusBar1"));
  message_->setMargin(3);
  message_->setTextFormat(Qt::PlainText);
  message_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 4, 0);
  row->setSpacing(PanelPx(*this, kBetweenFacts));
  row->addWidget(message_, 1);
  constexpr const char* kNames[] = {"class", "students", "grades", "method",
                                    "class_average_of_all"};
  for (std::size_t i = 0; i < facts_.size(); ++i) {
    facts_[i] = new QLabel;
    facts_[i]->setObjectName(QString::fromLatin1(kNames[i]));
    facts_[i]->setProperty("textUse", QByteArrayLiteral("small"));
    facts_[i]->setTextFormat(Qt::PlainText);
    row->addWidget(facts_[i]);
  }
  changed_ = new ChangedMark;
  row->addWidget(changed_);
  density_ = AddTool(QStringLiteral("density"), tr("How much stands on the screen"));
  density_->setToolTip(density_->accessibleName());
  density_->setPopupMode(QToolButton::InstantPopup);
  panel_ = AddTool(QStringLiteral("panel"), tr("Side panel"));
  panel_->setToolTip(tr("Side panel (F4)"));
  panel_->setCheckable(true);
  connect(panel_, &QToolButton::clicked, this, &StatusLine::PanelPressed);
  DrawIcons();
}

QToolButton* StatusLine::AddTool(const QString& name, const QString& said) {
  auto* tool = new QToolButton;
  tool->setObjectName(name);
  tool->setAccessibleName(said);
  tool->setAutoRaise(true);
  tool->setFocusPolicy(Qt::TabFocus);
  layout()->addWidget(tool);
  return tool;
}

void StatusLine::DrawIcons() {
  density_->setIcon(PaletteIcon(QStringLiteral("Density"), palette()));
  panel_->setIcon(PaletteIcon(QStringLiteral("Panel"), palette()));
}

void StatusLine::TakeDensities(QMenu* menu) {
  density_->setMenu(menu);
}

void StatusLine::ShowMessage(const QString& text) {
  if (text != message_->text()) message_->setText(text);
}

void StatusLine::ShowClass(const ClassGlance& glance, const QString& name) {
  facts_[0]->setText(glance.description.empty() ? name : FromText(glance.description));
  facts_[1]->setText(CountOf(glance.students, tr("1 student"), tr("%1 students")));
  facts_[2]->setText(CountOf(glance.grades, tr("1 grade"), tr("%1 grades")));
  facts_[3]->setText(FromText(WordsOfMethod(glance.method)));
  facts_[4]->setText(glance.average
                         ? tr("Class average %1").arg(FromText(PlainNumberText(*glance.average)))
                         : QString());
  FitFacts();
}

void StatusLine::ShowChanged(bool changed) {
  if (changed_->isVisibleTo(this) == changed) return;
  changed_->setVisible(changed);
  FitFacts();
}

void StatusLine::ShowPanel(bool shown) {
  if (panel_->isChecked() != shown) panel_->setChecked(shown);
}

// Where the room is small the class gives way to the message, the best known first.
void StatusLine::FitFacts() {
  const int gap = layout()->spacing();
  double room = width() * kShareOfFacts;
  for (std::size_t i = facts_.size(); i-- > 0;) {
    const int wanted = facts_[i]->text().isEmpty() ? 0 : facts_[i]->sizeHint().width() + gap;
    room -= wanted;
    facts_[i]->setVisible(wanted > 0 && room >= 0);
  }
}

void StatusLine::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  FitFacts();
}

void StatusLine::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) DrawIcons();
}

}  // namespace tallyroll
