// SPDX-License-Identifier: GPL-3.0-or-later
// Fields, choices, dates, numbers to step through, and the frames of lists and sheets.
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPlainTextEdit>
#include <QScrollBar>

#include "desktop/style/controls.h"
#include "desktop/style/shapes.h"

namespace tallyroll {
namespace {

constexpr double kFieldRadius = 6, kFrameRadius = 4;
constexpr double kArrowRoom = 28;

struct FieldLook {
  QColor fill, edge;
  double width = 1;
};

FieldLook LookOfField(const StyleBrush& b, bool read_only) {
  FieldLook look{b.enabled && !read_only ? b.t.surface : b.t.window, b.t.border, 1};
  if (!b.enabled) look.edge = b.t.line;
  if (read_only && b.enabled) look.edge = b.t.strong_line;
  if (b.hover && !read_only) look.edge = Mix(b.t.border, b.t.text, 0.33);
  if (b.focus) look = {look.fill, b.t.focus, 2};
  return look;
}

// A date or a number holds a field, which has the focus for it.
FieldLook LookOfBox(const StyleBrush& b) {
  FieldLook look = LookOfField(b, false);
  const QWidget* field = b.widget ? b.widget->focusWidget() : nullptr;
  if (b.enabled && field && field->hasFocus() && b.widget->isAncestorOf(field))
    look = {look.fill, b.t.focus, 2};
  return look;
}

void DrawFieldBox(StyleBrush& b, const QRect& rect, bool read_only) {
  const FieldLook look = LookOfField(b, read_only);
  DrawBox(b.painter, rect, b.m.Px(kFieldRadius), look.fill, look.edge, look.width);
}

bool IsDate(const QWidget* widget) {
  return qobject_cast<const QDateTimeEdit*>(widget) != nullptr;
}

// A figure that is only shown, and a text that explains: a ground without a line.
void DrawShown(const QStyleOption& option, StyleBrush& b) {
  const QString use = b.widget->property("textUse").toString();
  // What a file would hold stands on the paper of one.
  if (use == QLatin1String("sample"))
    return DrawBox(b.painter, option.rect, b.m.Px(kFieldRadius), b.t.surface, b.t.line, 1);
  const bool explains = use == QLatin1String("help");
  DrawBox(b.painter, option.rect, b.m.Px(explains ? kFieldRadius : kFrameRadius),
          explains ? b.t.accent_soft : b.t.total);
}

// A frame is a pixel wider than its line, for that of the focus: there lies what lies within, or
// the desk that is seen beside a sheet.
QColor GroundWithin(const StyleBrush& b) {
  const auto* area = qobject_cast<const QAbstractScrollArea*>(b.widget);
  QPalette::ColorRole role = area ? area->viewport()->backgroundRole() : QPalette::Base;
  if (area && area->backgroundRole() == QPalette::Dark) role = QPalette::Dark;
  return role == QPalette::Base ? b.t.surface : area->viewport()->palette().color(role);
}

// Two scroll bars are one track round their corner: the frame fills it, as it fills what is shown.
void DrawCornerOfBars(StyleBrush& brush) {
  const auto* area = qobject_cast<const QAbstractScrollArea*>(brush.widget);
  if (!area || !area->horizontalScrollBar()->isVisible() || !area->verticalScrollBar()->isVisible())
    return;
  const QRect room = area->contentsRect();
  const QRect shown = area->viewport()->geometry();
  QRect corner(shown.bottomRight() + QPoint(1, 1), room.bottomRight());
  if (area->isRightToLeft())
    corner =
        QRect(QPoint(room.left(), shown.bottom() + 1), QPoint(shown.left() - 1, room.bottom()));
  brush.painter.fillRect(corner, brush.t.window);
}

}  // namespace

bool DrawField(QStyle::PrimitiveElement element, const QStyleOption& option, StyleBrush& brush) {
  switch (element) {
    case QStyle::PE_PanelLineEdit:
    case QStyle::PE_FrameLineEdit: {
      // The field of a choice or a date stands in a box that is drawn already.
      const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(&option);
      if (!frame || frame->lineWidth == 0) return true;
      DrawFieldBox(brush, option.rect, option.state & QStyle::State_ReadOnly);
      return true;
    }
    case QStyle::PE_Frame:
      return DrawFrame(option, brush);
    default:
      return false;
  }
}

bool DrawFrame(const QStyleOption& option, StyleBrush& brush) {
  const QWidget* widget = brush.widget;
  if (qobject_cast<const QLabel*>(widget)) {
    DrawShown(option, brush);
    return true;
  }
  if (widget && widget->isWindow()) {
    DrawBox(brush.painter, option.rect, 0, QColor(), brush.t.strong_line, 1);
    return true;
  }
  // A field of several lines stands below those of one.
  const bool field = qobject_cast<const QPlainTextEdit*>(widget) != nullptr;
  const double radius = brush.m.Px(field ? kFieldRadius : kFrameRadius);
  if (!brush.enabled) {
    DrawBox(brush.painter, option.rect, radius, brush.t.window, brush.t.line, 1);
    return true;
  }
  const bool focus = brush.focus;
  DrawBox(brush.painter, option.rect, radius, GroundWithin(brush));
  DrawCornerOfBars(brush);
  DrawBox(brush.painter, option.rect, radius, QColor(), focus ? brush.t.focus : brush.t.border,
          focus ? 2 : 1);
  return true;
}

bool DrawChoice(const QStyleOptionComplex& option, StyleBrush& brush) {
  const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(&option);
  if (!combo) return false;
  const bool date = IsDate(brush.widget);
  FieldLook look = LookOfBox(brush);
  if (brush.hover && !combo->editable) look.fill = Mix(brush.t.surface, brush.t.hover, 0.5);
  if (combo->frame)
    DrawBox(brush.painter, combo->rect, brush.m.Px(kFieldRadius), look.fill, look.edge, look.width);
  const QRect arrow = brush.style.subControlRect(QStyle::CC_ComboBox, combo,
                                                 QStyle::SC_ComboBoxArrow, brush.widget);
  const QColor sign = brush.enabled ? brush.t.muted : brush.t.off;
  if (!date) {
    DrawArrow(brush.painter, arrow, Qt::DownArrow, sign, brush.m.Px(4));
    return true;
  }
  QRectF box(0, 0, brush.m.Px(16), brush.m.Px(16));
  box.moveCenter(QRectF(arrow).center());
  DrawCalendar(brush.painter, box, sign);
  return true;
}

bool DrawSpin(const QStyleOptionComplex& option, StyleBrush& brush) {
  const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(&option);
  if (!spin) return false;
  const FieldLook look = LookOfBox(brush);
  if (spin->frame)
    DrawBox(brush.painter, spin->rect, brush.m.Px(kFieldRadius), look.fill, look.edge, look.width);
  if (spin->buttonSymbols == QAbstractSpinBox::NoButtons) return true;
  const auto step = [&](QStyle::SubControl part, Qt::ArrowType way, bool can) {
    const bool pointed = brush.hover && can && (spin->activeSubControls & part);
    const QRect place = brush.style.subControlRect(QStyle::CC_SpinBox, spin, part, brush.widget);
    const QColor sign = !brush.enabled || !can ? brush.t.off
                        : pointed              ? brush.t.text
                                               : brush.t.muted;
    DrawArrow(brush.painter, place, way, sign, brush.m.Px(3));
  };
  step(QStyle::SC_SpinBoxUp, Qt::UpArrow, spin->stepEnabled & QAbstractSpinBox::StepUpEnabled);
  step(QStyle::SC_SpinBoxDown, Qt::DownArrow,
       spin->stepEnabled & QAbstractSpinBox::StepDownEnabled);
  return true;
}

bool DrawChoiceText(const QStyleOption& option, StyleBrush& brush) {
  const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(&option);
  if (!combo) return false;
  if (combo->editable) return true;
  const QRect place = brush.style.subControlRect(QStyle::CC_ComboBox, combo,
                                                 QStyle::SC_ComboBoxEditField, brush.widget);
  brush.painter.save();
  brush.painter.setPen(brush.Text());
  const QString text =
      combo->fontMetrics.elidedText(combo->currentText, Qt::ElideRight, place.width());
  brush.painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, text);
  brush.painter.restore();
  return true;
}

std::optional<QRect> ChoicePart(const QStyleOptionComplex& option, QStyle::SubControl part,
                                const Measures& m) {
  const QRect& whole = option.rect;
  const int arrow = std::min(m.Px(kArrowRoom), whole.width());
  switch (part) {
    case QStyle::SC_ComboBoxFrame:
    case QStyle::SC_ComboBoxListBoxPopup:
      return whole;
    case QStyle::SC_ComboBoxArrow:
      return QStyle::visualRect(
          option.direction, whole,
          QRect(whole.right() + 1 - arrow, whole.top(), arrow, whole.height()));
    case QStyle::SC_ComboBoxEditField: {
      const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(&option);
      const int before = m.BesideWords() - (combo && combo->editable ? kToolkitsOwn : 0);
      return QStyle::visualRect(option.direction, whole, whole.adjusted(before, 2, -arrow, -2));
    }
    default:
      return std::nullopt;
  }
}

std::optional<QRect> SpinPart(const QStyleOptionComplex& option, QStyle::SubControl part,
                              const Measures& m) {
  const auto* spin = qstyleoption_cast<const QStyleOptionSpinBox*>(&option);
  if (!spin) return std::nullopt;
  const QRect& whole = spin->rect;
  const bool steps = spin->buttonSymbols != QAbstractSpinBox::NoButtons;
  const int arrows = steps ? std::min(m.Px(kArrowRoom), whole.width()) : 0;
  const int edge = steps ? 3 : 0;  // the two arrows stand nearer to each other than to the frame
  const QRect both(whole.right() + 1 - arrows, whole.top() + edge, arrows,
                   whole.height() - 2 * edge);
  const auto visual = [&](const QRect& place) {
    return QStyle::visualRect(spin->direction, whole, place);
  };
  switch (part) {
    case QStyle::SC_SpinBoxFrame:
      return whole;
    case QStyle::SC_SpinBoxUp:
      return visual(both.adjusted(0, 0, 0, -both.height() / 2));
    case QStyle::SC_SpinBoxDown:
      return visual(both.adjusted(0, (both.height() + 1) / 2, 0, 0));
    case QStyle::SC_SpinBoxEditField:
      return visual(whole.adjusted(m.BesideWords() - kToolkitsOwn, 2, -std::max(arrows, 2), -2));
    default:
      return std::nullopt;
  }
}

std::optional<QSize> FieldSize(QStyle::ContentsType type, const QSize& contents,
                               const Measures& m) {
  const int height = std::max(m.Control(), contents.height() + 4);
  switch (type) {
    case QStyle::CT_LineEdit:
      return QSize(contents.width() + 2 * m.BesideWords(), height);
    case QStyle::CT_ComboBox:
      return QSize(contents.width() + m.BesideWords() + m.Px(kArrowRoom + 4), height);
    case QStyle::CT_SpinBox:
      // Its contents are a field with the height of a control already.
      return QSize(contents.width() + m.BesideWords() + m.Px(kArrowRoom),
                   std::max(m.Control(), contents.height()));
    default:
      return std::nullopt;
  }
}

}  // namespace tallyroll
