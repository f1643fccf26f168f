// SPDX-License-Identifier: GPL-3.0-or-later
// Windows within the frame, and the signs of message boxes.
#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>

#include "desktop/style/controls.h"
#include "desktop/style/shapes.h"

namespace tallyroll {
namespace {

constexpr double kTitleButton = 32;

// The lines of a button in the title of a window, within a square of 16.
QPainterPath TitleGlyph(QStyle::StandardPixmap icon) {
  QPainterPath path;
  switch (icon) {
    case QStyle::SP_TitleBarMinButton:
      path.moveTo(4, 11);
      path.lineTo(12, 11);
      break;
    case QStyle::SP_TitleBarMaxButton:
      path.addRoundedRect(QRectF(3.5, 3.5, 9, 9), 1, 1);
      break;
    case QStyle::SP_TitleBarNormalButton:
      path.addRoundedRect(QRectF(3.5, 6, 6.5, 6.5), 1, 1);
      path.moveTo(6.5, 6);
      path.lineTo(6.5, 3.5);
      path.lineTo(12.5, 3.5);
      path.lineTo(12.5, 9.5);
      path.lineTo(10, 9.5);
      break;
    case QStyle::SP_TitleBarCloseButton:
      path.moveTo(4, 4);
      path.lineTo(12, 12);
      path.moveTo(12, 4);
      path.lineTo(4, 12);
      break;
    default:
      break;
  }
  return path;
}

void DrawGlyph(QPainter& painter, const QRectF& box, QStyle::StandardPixmap icon,
               const QColor& color) {
  const SmoothEdges smooth(painter);
  painter.translate(box.topLeft());
  painter.scale(box.width() / 16, box.height() / 16);
  painter.setPen(QPen(color, 1.3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(TitleGlyph(icon));
}

// A disc in a soft colour with the letter of what the box is about.
void DrawSignOfBox(QPainter& painter, const QRectF& box, QStyle::StandardPixmap icon) {
  const Tokens t = TokensOf(QGuiApplication::palette());
  const bool warns = icon == QStyle::SP_MessageBoxWarning;
  const bool fails = icon == QStyle::SP_MessageBoxCritical;
  const QColor ground = fails ? t.danger_soft : warns ? t.warning_soft : t.selection;
  const QColor letter = fails ? t.danger : warns ? t.warning : t.focus;
  const QString sign = icon == QStyle::SP_MessageBoxQuestion      ? QStringLiteral("?")
                       : icon == QStyle::SP_MessageBoxInformation ? QStringLiteral("i")
                                                                  : QStringLiteral("!");
  DrawBox(painter, box, box.width() / 2, ground);
  QFont font = QApplication::font();
  font.setPixelSize(static_cast<int>(box.height() * 0.5));
  font.setWeight(QFont::DemiBold);
  const SmoothEdges smooth(painter);
  painter.setFont(font);
  painter.setPen(letter);
  painter.drawText(box, Qt::AlignCenter, sign);
}

// Drawn when it is needed and as large, in the colours of that moment.
class SignEngine : public QIconEngine {
 public:
  explicit SignEngine(QStyle::StandardPixmap icon) : icon_(icon) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode, QIcon::State) override {
    const QPalette palette = QGuiApplication::palette();
    switch (icon_) {
      case QStyle::SP_ArrowLeft:
      case QStyle::SP_ArrowRight:
        DrawArrow(*painter, rect, icon_ == QStyle::SP_ArrowLeft ? Qt::LeftArrow : Qt::RightArrow,
                  TokensOf(palette).text, rect.width() * 0.26);
        break;
      case QStyle::SP_MessageBoxQuestion:
      case QStyle::SP_MessageBoxInformation:
      case QStyle::SP_MessageBoxWarning:
      case QStyle::SP_MessageBoxCritical:
        DrawSignOfBox(*painter, rect, icon_);
        break;
      default:
        DrawGlyph(*painter, rect, icon_, TokensOf(palette).text);
    }
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }
  QIconEngine* clone() const override { return new SignEngine(*this); }

 private:
  QStyle::StandardPixmap icon_;
};

struct TitleButton {
  QStyle::SubControl part;
  QStyle::StandardPixmap icon;
};

// From the right.
QList<TitleButton> ButtonsOf(const QStyleOptionTitleBar& bar) {
  QList<TitleButton> buttons;
  const bool minimised = bar.titleBarState & Qt::WindowMinimized;
  const bool maximised = bar.titleBarState & Qt::WindowMaximized;
  if (bar.titleBarFlags & Qt::WindowSystemMenuHint)
    buttons << TitleButton{QStyle::SC_TitleBarCloseButton, QStyle::SP_TitleBarCloseButton};
  if (!maximised && (bar.titleBarFlags & Qt::WindowMaximizeButtonHint))
    buttons << TitleButton{QStyle::SC_TitleBarMaxButton, QStyle::SP_TitleBarMaxButton};
  if ((maximised && (bar.titleBarFlags & Qt::WindowMaximizeButtonHint)) ||
      (minimised && (bar.titleBarFlags & Qt::WindowMinimizeButtonHint)))
    buttons << TitleButton{QStyle::SC_TitleBarNormalButton, QStyle::SP_TitleBarNormalButton};
  if (!minimised && (bar.titleBarFlags & Qt::WindowMinimizeButtonHint))
    buttons << TitleButton{QStyle::SC_TitleBarMinButton, QStyle::SP_TitleBarMinButton};
  return buttons;
}

void DrawWindowButton(StyleBrush& b, const QStyleOptionComplex& option, const QRect& place,
                      QStyle::SubControl part, QStyle::StandardPixmap icon, const QColor& color) {
  const bool active = option.activeSubControls & part;
  if (active && (b.hover || b.pressed))
    DrawBox(b.painter, QRectF(place).adjusted(2, 2, -2, -2), 4,
            b.pressed ? b.t.pressed : b.t.hover);
  QRectF glyph(0, 0, b.m.Px(16), b.m.Px(16));
  glyph.moveCenter(QRectF(place).center());
  DrawGlyph(b.painter, glyph, icon, color);
}

}  // namespace

bool DrawTitleBar(const QStyleOptionComplex& option, StyleBrush& brush) {
  const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(&option);
  if (!bar) return false;
  const bool front = bar->titleBarState & QStyle::State_Active;
  const QColor words = front ? brush.t.text : brush.t.muted;
  brush.painter.fillRect(bar->rect, front ? brush.t.raised : brush.t.header);
  DrawRule(brush.painter, QRect(bar->rect.left(), bar->rect.bottom(), bar->rect.width(), 1),
           brush.t.line);
  const auto part = [&](QStyle::SubControl which) {
    return brush.style.subControlRect(QStyle::CC_TitleBar, bar, which, brush.widget);
  };
  if ((bar->titleBarFlags & Qt::WindowSystemMenuHint) && !bar->icon.isNull()) {
    QRect icon(0, 0, brush.m.Px(16), brush.m.Px(16));
    icon.moveCenter(part(QStyle::SC_TitleBarSysMenu).center());
    bar->icon.paint(&brush.painter, icon);
  }
  brush.painter.save();
  brush.painter.setFont(FontFor(brush.painter.font(), TextUse::kHeading));
  brush.painter.setPen(words);
  const QRect label = part(QStyle::SC_TitleBarLabel);
  const QString title =
      brush.painter.fontMetrics().elidedText(bar->text, Qt::ElideRight, label.width());
  brush.painter.drawText(label, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, title);
  brush.painter.restore();
  for (const TitleButton& button : ButtonsOf(*bar))
    DrawWindowButton(brush, option, part(button.part), button.part, button.icon, words);
  return true;
}

std::optional<QRect> TitleBarPart(const QStyleOptionComplex& option, QStyle::SubControl part,
                                  const Measures& m) {
  const auto* bar = qstyleoption_cast<const QStyleOptionTitleBar*>(&option);
  if (!bar) return std::nullopt;
  const QList<TitleButton> buttons = ButtonsOf(*bar);
  const int width = m.Px(kTitleButton);
  const QRect& whole = bar->rect;
  if (part == QStyle::SC_TitleBarSysMenu)
    return QRect(whole.left(), whole.top(), width, whole.height());
  if (part == QStyle::SC_TitleBarLabel)
    return whole.adjusted(width, 0, -width * static_cast<int>(buttons.size()), 0);
  for (int i = 0; i < buttons.size(); ++i)
    if (buttons[i].part == part)
      return QRect(whole.right() + 1 - width * (i + 1), whole.top(), width, whole.height());
  return QRect();
}

bool DrawWindowButtons(const QStyleOptionComplex& option, StyleBrush& brush) {
  const std::pair<QStyle::SubControl, QStyle::StandardPixmap> buttons[] = {
      {QStyle::SC_MdiMinButton, QStyle::SP_TitleBarMinButton},
      {QStyle::SC_MdiNormalButton, QStyle::SP_TitleBarNormalButton},
      {QStyle::SC_MdiCloseButton, QStyle::SP_TitleBarCloseButton}};
  for (const auto& [part, icon] : buttons) {
    if (!(option.subControls & part)) continue;
    const QRect place =
        brush.style.subControlRect(QStyle::CC_MdiControls, &option, part, brush.widget);
    DrawWindowButton(brush, option, place, part, icon, brush.t.text);
  }
  return true;
}

QIcon SignFor(QStyle::StandardPixmap icon, const Measures&) {
  switch (icon) {
    case QStyle::SP_ArrowLeft:
    case QStyle::SP_ArrowRight:
    case QStyle::SP_MessageBoxQuestion:
    case QStyle::SP_MessageBoxInformation:
    case QStyle::SP_MessageBoxWarning:
    case QStyle::SP_MessageBoxCritical:
    case QStyle::SP_TitleBarMinButton:
    case QStyle::SP_TitleBarMaxButton:
    case QStyle::SP_TitleBarNormalButton:
    case QStyle::SP_TitleBarCloseButton:
      return QIcon(new SignEngine(icon));
    default:
      return {};
  }
}

}  // namespace tallyroll
