// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/panel/missing_line.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "desktop/basics/text_conversion.h"
#include "desktop/panel/panel_words.h"
#include "desktop/style/shapes.h"
#include "desktop/style/tokens.h"
#include "grades/mark_notes.h"

namespace tallyroll {
namespace {

constexpr double kMissingHeight = 26, kMissingRadius = 4, kMissingGap = 8;

}  // namespace

MissingLine::MissingLine(QWidget* parent)
    : QAbstractButton(parent), chip_(new PanelChip), title_(new PanelWords("muted")) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
  title_->setProperty("textUse", QByteArray());
  for (QWidget* inside : {static_cast<QWidget*>(chip_), static_cast<QWidget*>(title_)})
    inside->setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(2, 0, 2, 0);
  row->setSpacing(PanelPx(*this, kMissingGap));
  row->addWidget(chip_);
  row->addWidget(title_, 1);
}

void MissingLine::Show(const MissingMark& missing) {
  grade_ = missing.grade;
  chip_->Show(FromText(missing.mark), NoteOfMark(missing.mark, {}).mark, false);
  title_->setText(FromText(missing.title));
  setAccessibleName(tr("Missing: %1 %2").arg(FromText(missing.mark), FromText(missing.title)));
  setStatusTip(tr("Click to go to this mark, double click to edit it"));
}

QSize MissingLine::sizeHint() const {
  return {PanelPx(*this, 200), PanelPx(*this, kMissingHeight)};
}

void MissingLine::paintEvent(QPaintEvent*) {
  const Tokens t = TokensOf(palette());
  const double radius = PanelPx(*this, kMissingRadius);
  QPainter painter(this);
  DrawBox(painter, rect(), radius,
          isDown()       ? t.pressed
          : underMouse() ? t.hover
                         : QColor(),
          hasFocus() ? t.focus : QColor(), 2);
}

void MissingLine::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) Q_EMIT Chosen();
}

void MissingLine::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    Q_EMIT Chosen();
    return;
  }
  QAbstractButton::keyPressEvent(event);
}

}  // namespace tallyroll
