// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/program_style.h"

#include <QStyleFactory>
#include <QStyleOptionButton>

namespace tallyroll {
namespace {

// The style draws an outline as the window's colour, this much darker.
constexpr int kOutlineDarker = 140;

// Halfway from the ground to the text.
QColor OutlineOn(const QPalette& palette) {
  const QColor ground = palette.color(QPalette::Base), text = palette.color(QPalette::Text);
  return QColor((ground.red() + text.red()) / 2, (ground.green() + text.green()) / 2,
                (ground.blue() + text.blue()) / 2);
}

}  // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  const bool indicator = element == PE_IndicatorCheckBox || element == PE_IndicatorRadioButton;
  if (!indicator || !button) return QProxyStyle::drawPrimitive(element, option, painter, widget);
  QStyleOptionButton outlined(*button);
  outlined.palette.setColor(QPalette::Window, OutlineOn(button->palette).lighter(kOutlineDarker));
  QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
}

}  // namespace tallyroll
