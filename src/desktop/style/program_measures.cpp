// SPDX-License-Identifier: GPL-3.0-or-later
// Where the parts of the controls stand, how large they are, and how they behave.
#include <QApplication>
#include <QCalendarWidget>

#include "desktop/style/controls.h"
#include "desktop/style/program_style.h"

namespace tallyroll {
namespace {

// Words that wrap have the room above and below them that a single line has.
int HeightOfLine(int wanted, int words, const Measures& m) {
  const bool wraps = wanted > words * 3 / 2;
  const int around = std::max(m.ListLine() - words, 0);
  return std::max(wanted + (wraps ? around : 0), m.ListLine());
}

}  // namespace

QRect ProgramStyle::subElementRect(SubElement element, const QStyleOption* option,
                                   const QWidget* widget) const {
  if (element == SE_LineEditContents) {
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (!frame || frame->lineWidth == 0) return option->rect;
    const int beside = measures_.BesideWords() - kToolkitsOwn;
    return option->rect.adjusted(beside, 2, -beside, -2);
  }
  if (element == SE_TabWidgetTabContents) {
    const auto* tabs = qstyleoption_cast<const QStyleOptionTabWidgetFrame*>(option);
    const int bar = tabs ? tabs->tabBarSize.height() : 0;
    return option->rect.adjusted(0, bar + measures_.Px(12), 0, 0);
  }
  if (element == SE_HeaderArrow) {
    const int side = measures_.Px(10);
    const QRect& r = option->rect;
    const QRect arrow(r.right() + 1 - side - measures_.Px(8), r.top(), side, r.height());
    return visualRect(option->direction, r, arrow);
  }
  if (const auto part = ButtonPart(element, *option, measures_))
    return visualRect(option->direction, option->rect, *part);
  return QProxyStyle::subElementRect(element, option, widget);
}

QRect ProgramStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                   SubControl part, const QWidget* widget) const {
  std::optional<QRect> place;
  switch (control) {
    case CC_ComboBox:
      place = ChoicePart(*option, part, measures_);
      break;
    case CC_SpinBox:
      place = SpinPart(*option, part, measures_);
      break;
    case CC_ScrollBar:
      place = ScrollBarPart(*option, part, measures_);
      break;
    case CC_GroupBox:
      place = GroupPart(*option, part, measures_, widget);
      break;
    case CC_TitleBar:
      place = TitleBarPart(*option, part, measures_);
      break;
    default:
      break;
  }
  return place ? *place : QProxyStyle::subControlRect(control, option, part, widget);
}

QSize ProgramStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                     const QSize& contents, const QWidget* widget) const {
  if (const auto size = ButtonSize(type, option, contents, measures_, widget)) return *size;
  if (const auto size = FieldSize(type, contents, measures_)) return *size;
  if (const auto size = MenuSize(type, option, contents, measures_)) return *size;
  switch (type) {
    case CT_TabBarTab:
      // The word grows bold when its page comes to the front.
      return {contents.width() + contents.width() / 14, measures_.Tab()};
    case CT_TabWidget:
      return contents + QSize(0, measures_.Px(12));
    case CT_GroupBox:
      return contents;
    case CT_ProgressBar:
      return {contents.width(), measures_.Px(14)};
    case CT_MdiControls: {
      int buttons = 0;
      if (const auto* all = qstyleoption_cast<const QStyleOptionComplex*>(option))
        for (const SubControl each : {SC_MdiMinButton, SC_MdiNormalButton, SC_MdiCloseButton})
          buttons += (all->subControls & each) ? 1 : 0;
      return {buttons * measures_.Px(26), measures_.Px(26)};
    }
    case CT_HeaderSection: {
      const QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
      return {size.width(), std::max(size.height(), measures_.ListLine())};
    }
    case CT_ItemViewItem: {
      QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
      // A calendar's days have a width of their own.
      if (widget && qobject_cast<const QCalendarWidget*>(widget->parentWidget())) return size;
      return {size.width(), HeightOfLine(size.height(), option->fontMetrics.height(), measures_)};
    }
    default:
      return QProxyStyle::sizeFromContents(type, option, contents, widget);
  }
}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                              const QWidget* widget) const {
  if (const auto measure = MeasureOf(metric, measures_, widget)) return *measure;
  return QProxyStyle::pixelMetric(metric, option, widget);
}

int ProgramStyle::layoutSpacing(QSizePolicy::ControlType one, QSizePolicy::ControlType other,
                                Qt::Orientation orientation, const QStyleOption*,
                                const QWidget*) const {
  return SpaceBetween(one, other, orientation, measures_);
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
  switch (hint) {
    case SH_UnderlineShortcut:
      return alt_is_held_ ? 1 : 0;
    case SH_ComboBox_Popup:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_MessageBox_CenterButtons:
    case SH_EtchDisabledText:
    case SH_ItemView_ShowDecorationSelected:
    case SH_TabBar_ElideMode:
      return hint == SH_TabBar_ElideMode ? Qt::ElideNone : 0;
    case SH_FormLayoutLabelAlignment:
      return Qt::AlignLeft | Qt::AlignVCenter;
    case SH_FormLayoutFormAlignment:
      return Qt::AlignLeft | Qt::AlignTop;
    case SH_FormLayoutFieldGrowthPolicy:
      return 2;  // each field that can grow does
    case SH_GroupBox_TextLabelColor:
      return static_cast<int>(TokensOf(QGuiApplication::palette()).text.rgb());
    default:
      return QProxyStyle::styleHint(hint, option, widget, data);
  }
}

}  // namespace tallyroll
