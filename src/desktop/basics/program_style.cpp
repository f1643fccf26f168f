// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/basics/program_style.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>

#include "desktop/basics/palette_icon.h"

namespace tallyroll {
namespace {

// The style draws an outline as the window's colour, this much darker.
constexpr int kOutlineDarker = 140;
constexpr int kMostPalettes = 64;

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightnessF() < 0.5F;
}

// From the ground towards the text: halfway, and on a dark ground, where that is too faint beside
// a button, somewhat further.
QColor OutlineOn(const QPalette& palette) {
  const QColor ground = palette.color(QPalette::Base), text = palette.color(QPalette::Text);
  const int share = IsDark(palette) ? 62 : 50;
  const auto mix = [share](int from, int to) { return from + (to - from) * share / 100; };
  return QColor(mix(ground.red(), text.red()), mix(ground.green(), text.green()),
                mix(ground.blue(), text.blue()));
}

bool IsIndicator(QStyle::PrimitiveElement element) {
  return element == QStyle::PE_IndicatorCheckBox || element == QStyle::PE_IndicatorRadioButton;
}

// What a dark window would swallow: its outline is drawn darker than the window.
bool HasFaintOutline(QStyle::PrimitiveElement element) {
  return element == QStyle::PE_FrameLineEdit || element == QStyle::PE_Frame ||
         element == QStyle::PE_PanelButtonCommand;
}

// The lines of a button in the title of a window, within a square of 16.
QPainterPath TitleGlyph(QStyle::StandardPixmap icon) {
  QPainterPath path;
  if (icon == QStyle::SP_TitleBarMinButton) {
    path.moveTo(4, 11);
    path.lineTo(12, 11);
  } else if (icon == QStyle::SP_TitleBarNormalButton) {
    path.addRect(3.5, 6.5, 6, 6);
    path.moveTo(6.5, 6.5);
    path.lineTo(6.5, 3.5);
    path.lineTo(12.5, 3.5);
    path.lineTo(12.5, 9.5);
    path.lineTo(9.5, 9.5);
  } else if (icon == QStyle::SP_TitleBarCloseButton) {
    path.moveTo(4, 4);
    path.lineTo(12, 12);
    path.moveTo(12, 4);
    path.lineTo(4, 12);
  }
  return path;
}

}  // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

// The same palette for the same palette: the toolkit keeps what it drew by its palette.
QPalette ProgramStyle::Outlined(const QPalette& palette) const {
  const auto known = outlined_.constFind(palette.cacheKey());
  if (known != outlined_.constEnd()) return *known;
  if (outlined_.size() >= kMostPalettes) outlined_.clear();
  QPalette outlined(palette);
  outlined.setColor(QPalette::Window, OutlineOn(palette).lighter(kOutlineDarker));
  if (IsDark(palette))
    outlined.setColor(QPalette::Highlight, QColor(QLatin1StringView(kAccentOnDark)));
  return *outlined_.insert(palette.cacheKey(), outlined);
}

template <typename Option>
bool ProgramStyle::DrawOutlined(PrimitiveElement element, const QStyleOption& option,
                                QPainter* painter, const QWidget* widget) const {
  const auto* own = qstyleoption_cast<const Option*>(&option);
  if (!own) return false;
  Option outlined(*own);
  outlined.palette = Outlined(own->palette);
  QProxyStyle::drawPrimitive(element, &outlined, painter, widget);
  return true;
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  const bool faint = HasFaintOutline(element) && IsDark(option->palette);
  if ((IsIndicator(element) || faint) &&
      (DrawOutlined<QStyleOptionButton>(element, *option, painter, widget) ||
       DrawOutlined<QStyleOptionFrame>(element, *option, painter, widget)))
    return;
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
  if (control != CC_ComboBox || !combo || !IsDark(option->palette))
    return QProxyStyle::drawComplexControl(control, option, painter, widget);
  QStyleOptionComboBox outlined(*combo);
  outlined.palette = Outlined(combo->palette);
  QProxyStyle::drawComplexControl(control, &outlined, painter, widget);
}

// The toolkit's own pictures of these are grey whatever the ground.
QIcon ProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const {
  const QPalette palette = QGuiApplication::palette();
  const QPainterPath glyph = TitleGlyph(icon);
  if (glyph.isEmpty() || !IsDark(palette)) return QProxyStyle::standardIcon(icon, option, widget);
  constexpr int kSide = 16, kSharpness = 3;
  QPixmap picture(kSide * kSharpness, kSide * kSharpness);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(kSharpness, kSharpness);
  painter.setPen(QPen(palette.color(QPalette::ButtonText), 1.6));
  painter.drawPath(glyph);
  return QIcon(picture);
}

}  // namespace tallyroll
