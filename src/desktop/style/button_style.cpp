// SPDX-License-Identifier: GPL-3.0-or-later
// Buttons, ticks and options.
#include <QAbstractButton>
#include <QPainter>

#include "desktop/style/controls.h"
#include "desktop/style/shapes.h"

namespace tallyroll {
namespace {

// A button for what most press by its key: small, so that several stand in a row.
bool IsChip(const QWidget* widget) {
  return widget && widget->property("chip").toBool();
}

// The words of a box whose height follows its width wrap; the box stands beside the first line.
bool Wraps(const QWidget* widget) {
  return widget && widget->sizePolicy().hasHeightForWidth();
}

constexpr double kButtonRadius = 6, kSmallRadius = 4;
constexpr double kIndicatorSide = 16, kIndicatorGap = 8, kIndicatorInset = 3;
constexpr double kBehindWords = 6;
constexpr double kLeastButton = 84, kArrowButton = 36, kBesideWord = 14;

QColor GroundOf(const StyleBrush& b) {
  if (!b.enabled) return b.t.window;
  if (b.pressed || b.on) return b.t.pressed;
  return b.hover ? b.t.hover : b.t.raised;
}

}  // namespace

void DrawMainGround(StyleBrush& b, const QRectF& rect) {
  const QColor fill = b.pressed ? b.t.accent_pressed : b.hover ? b.t.accent_hover : b.t.accent;
  const double radius = b.m.Px(kButtonRadius);
  DrawBox(b.painter, rect, radius, fill);
  if (!b.shows_focus) return;
  DrawBox(b.painter, rect, radius, QColor(), b.t.focus, 2);
  DrawBox(b.painter, rect.adjusted(2.5, 2.5, -2.5, -2.5), radius - 2, QColor(), b.t.on_accent, 1.5);
}

void DrawFlatGround(StyleBrush& b, const QRectF& rect) {
  const double radius = b.m.Px(kButtonRadius);
  if (b.hover || b.pressed || b.on) DrawBox(b.painter, rect, radius, GroundOf(b));
  if (b.shows_focus) DrawBox(b.painter, rect, radius, QColor(), b.t.focus, 2);
}

namespace {

QString Bare(QString caption) {
  return caption.remove(QLatin1Char('&')).trimmed();
}

// The only two captions that are drawn as what they mean.
Qt::ArrowType ArrowFor(const QString& caption) {
  const QString bare = Bare(caption);
  if (bare == QLatin1String("<")) return Qt::LeftArrow;
  if (bare == QLatin1String(">")) return Qt::RightArrow;
  return Qt::NoArrow;
}

bool IsMain(const QStyleOptionButton& button, bool enabled) {
  return enabled && (button.features & QStyleOptionButton::DefaultButton) &&
         !Destroys(button.text) && ArrowFor(button.text) == Qt::NoArrow;
}

void DrawPanel(const QStyleOptionButton& button, StyleBrush& b) {
  const QRectF rect(button.rect);
  if (button.features & QStyleOptionButton::Flat) return DrawFlatGround(b, rect);
  if (IsMain(button, b.enabled)) return DrawMainGround(b, rect);
  const QColor edge = !b.enabled ? b.t.line : Destroys(button.text) ? b.t.danger : b.t.border;
  const double radius = b.m.Px(IsChip(b.widget) ? kSmallRadius : kButtonRadius);
  DrawBox(b.painter, rect, radius, GroundOf(b), edge, 1);
  if (b.shows_focus) DrawBox(b.painter, rect, radius, QColor(), b.t.focus, 2);
}

QColor WordColor(const QStyleOptionButton& button, const StyleBrush& b) {
  if (!b.enabled) return b.t.off;
  if (Destroys(button.text)) return b.t.danger;
  if (button.features & QStyleOptionButton::Flat) return b.t.focus;
  return IsMain(button, b.enabled) ? b.t.on_accent : b.t.text;
}

void DrawWord(const QStyleOptionButton& button, StyleBrush& b) {
  const QColor color = WordColor(button, b);
  if (const Qt::ArrowType way = ArrowFor(button.text); way != Qt::NoArrow)
    return DrawArrow(b.painter, button.rect, way, color, b.m.Px(4.5));
  b.painter.save();
  if (IsMain(button, b.enabled)) b.painter.setFont(FontFor(b.painter.font(), TextUse::kHeading));
  if (IsChip(b.widget)) b.painter.setFont(FontFor(b.painter.font(), TextUse::kSmall));
  b.painter.setPen(color);
  // Blanks in front of a word would only push it out of the middle.
  const QString word = button.text.trimmed();
  QRect place = button.rect;
  if (!button.icon.isNull()) {
    QRect icon(QPoint(), button.iconSize);
    const int text = b.painter.fontMetrics().horizontalAdvance(Bare(button.text));
    icon.moveCenter(place.center());
    icon.moveLeft(place.center().x() - (text + icon.width() + b.m.Px(6)) / 2);
    button.icon.paint(&b.painter, icon, Qt::AlignCenter,
                      b.enabled ? QIcon::Normal : QIcon::Disabled);
    place.setLeft(icon.right() + b.m.Px(6));
    b.painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft | b.Mnemonic(button), word);
  } else {
    b.painter.drawText(place, Qt::AlignCenter | b.Mnemonic(button), word);
  }
  b.painter.restore();
}

QRect IndicatorPlace(const QRect& row, const Measures& m) {
  const int side = m.Px(kIndicatorSide);
  return {row.left() + m.Px(kIndicatorInset), row.center().y() - side / 2 + 1 - side % 2, side,
          side};
}

void DrawIndicatorIn(const QRectF& box, bool round, bool partly, StyleBrush& b) {
  const double radius = round ? box.width() / 2 : b.m.Px(kSmallRadius);
  if (b.on || partly) {
    const QColor fill = !b.enabled  ? b.t.off
                        : b.pressed ? b.t.accent_pressed
                        : b.hover   ? b.t.accent_hover
                                    : b.t.accent;
    const QColor sign = b.enabled ? b.t.on_accent : b.t.window;
    DrawBox(b.painter, box, radius, fill);
    const double inset = box.width() * 0.31;
    if (round)
      DrawBox(b.painter, box.adjusted(inset, inset, -inset, -inset), radius, sign);
    else if (partly)
      b.painter.fillRect(QRectF(box.left() + 4, box.center().y() - 1, box.width() - 8, 2), sign);
    else
      DrawTick(b.painter, box, sign);
    return;
  }
  const QColor fill = !b.enabled             ? b.t.window
                      : b.hover || b.pressed ? b.t.accent_soft
                                             : b.t.surface;
  const QColor edge = !b.enabled ? b.t.line : b.hover || b.pressed ? b.t.focus : b.t.border;
  DrawBox(b.painter, box, radius, fill, edge, 1.3);
}

void DrawTickRow(const QStyleOptionButton& button, bool round, StyleBrush& b) {
  const bool wraps = Wraps(b.widget);
  QRect first = button.rect;
  if (wraps) first.setHeight(std::min(first.height(), b.m.TickRow()));
  const QRect box = IndicatorPlace(first, b.m);
  DrawIndicatorIn(box, round, button.state & QStyle::State_NoChange, b);
  const QRect words =
      button.rect.adjusted(box.right() + 1 - button.rect.left() + b.m.Px(kIndicatorGap), 0, 0, 0);
  const int flags = Qt::AlignVCenter | Qt::AlignLeft | b.Mnemonic(button) |
                    (wraps ? static_cast<int>(Qt::TextWordWrap) : 0);
  b.painter.save();
  b.painter.setPen(b.Text());
  b.painter.drawText(words, flags, button.text);
  b.painter.restore();
  if (!b.shows_focus) return;
  // Round the sign and its words, however wide its pane lets the row be.
  QRect ring = button.rect;
  const int end = button.fontMetrics.boundingRect(words, flags, button.text).right();
  ring.setRight(std::min(ring.right(), end + b.m.Px(kBehindWords)));
  DrawBox(b.painter, ring, b.m.Px(kSmallRadius), QColor(), b.t.focus, 2);
}

QSize TickSize(const QStyleOptionButton& button, const Measures& m) {
  const int text = button.fontMetrics.size(Qt::TextShowMnemonic, button.text).width();
  const int lines = button.fontMetrics.size(Qt::TextShowMnemonic, button.text).height();
  return {m.Px(kIndicatorInset + kIndicatorSide + kIndicatorGap + kBehindWords) + text,
          std::max(m.TickRow(), lines + m.Px(6))};
}

QSize ChipSize(const QStyleOptionButton& button, const Measures& m, const QWidget& widget) {
  constexpr double kBesideChip = 4;
  const QFontMetrics words(FontFor(widget.font(), TextUse::kSmall));
  const int width = words.size(Qt::TextShowMnemonic, button.text).width();
  return {width + 2 * m.Px(kBesideChip), m.TickRow()};
}

QSize PushSize(const QStyleOptionButton& button, const QSize& contents, const Measures& m,
               const QWidget* widget) {
  if (IsChip(widget)) return ChipSize(button, m, *widget);
  // An arrow, or another sign alone: as wide whatever the font makes of it.
  if (Bare(button.text).size() == 1) return {m.Px(kArrowButton), m.Control()};
  int width = contents.width();
  const bool may_be_main =
      button.features & (QStyleOptionButton::DefaultButton | QStyleOptionButton::AutoDefaultButton);
  if (may_be_main && widget) {
    const QFontMetrics strong(FontFor(widget->font(), TextUse::kHeading));
    width +=
        strong.horizontalAdvance(button.text) - button.fontMetrics.horizontalAdvance(button.text);
  }
  const bool flat = button.features & QStyleOptionButton::Flat;
  const int least = m.Px(flat ? 0 : kLeastButton);
  return {std::max(least, width + 2 * m.Px(flat ? 10 : kBesideWord)),
          std::max(m.Control(), contents.height() + m.Px(6))};
}

}  // namespace

bool Destroys(const QString& caption) {
  return Bare(caption).startsWith(QLatin1String("Delete"));
}

bool DrawButton(QStyle::ControlElement element, const QStyleOption& option, StyleBrush& brush) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(&option);
  if (!button) return false;
  switch (element) {
    case QStyle::CE_PushButtonBevel:
      DrawPanel(*button, brush);
      return true;
    case QStyle::CE_PushButtonLabel:
      DrawWord(*button, brush);
      return true;
    case QStyle::CE_CheckBox:
      DrawTickRow(*button, false, brush);
      return true;
    case QStyle::CE_RadioButton:
      DrawTickRow(*button, true, brush);
      return true;
    default:
      return false;
  }
}

bool DrawIndicator(QStyle::PrimitiveElement element, const QStyleOption& option,
                   StyleBrush& brush) {
  const bool partly = option.state & QStyle::State_NoChange;
  const QRectF box(option.rect);
  switch (element) {
    case QStyle::PE_IndicatorCheckBox:
    case QStyle::PE_IndicatorItemViewItemCheck:
      DrawIndicatorIn(box, false, partly, brush);
      return true;
    case QStyle::PE_IndicatorRadioButton:
      DrawIndicatorIn(box, true, partly, brush);
      return true;
    case QStyle::PE_PanelButtonTool:
      DrawFlatGround(brush, box);
      return true;
    default:
      return false;
  }
}

std::optional<QRect> ButtonPart(QStyle::SubElement element, const QStyleOption& option,
                                const Measures& m) {
  switch (element) {
    case QStyle::SE_CheckBoxIndicator:
    case QStyle::SE_RadioButtonIndicator:
      return IndicatorPlace(option.rect, m);
    case QStyle::SE_CheckBoxContents:
    case QStyle::SE_RadioButtonContents:
      return option.rect.adjusted(m.Px(kIndicatorInset + kIndicatorSide + kIndicatorGap), 0, 0, 0);
    case QStyle::SE_CheckBoxFocusRect:
    case QStyle::SE_RadioButtonFocusRect:
    case QStyle::SE_CheckBoxClickRect:
    case QStyle::SE_RadioButtonClickRect:
    case QStyle::SE_PushButtonContents:
    case QStyle::SE_PushButtonFocusRect:
      return option.rect;
    default:
      return std::nullopt;
  }
}

std::optional<QSize> ButtonSize(QStyle::ContentsType type, const QStyleOption* option,
                                const QSize& contents, const Measures& m, const QWidget* widget) {
  const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
  switch (type) {
    case QStyle::CT_PushButton:
      if (!button) return std::nullopt;
      return PushSize(*button, contents, m, widget);
    case QStyle::CT_CheckBox:
    case QStyle::CT_RadioButton:
      if (!button) return std::nullopt;
      return TickSize(*button, m);
    case QStyle::CT_ToolButton:
      return ToolSize(option, contents, m, widget);
    default:
      return std::nullopt;
  }
}

}  // namespace tallyroll
