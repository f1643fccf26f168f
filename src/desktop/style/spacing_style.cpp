// SPDX-License-Identifier: GPL-3.0-or-later
// How far apart things stand, and the lengths that the toolkit asks for.
#include <QAbstractItemView>
#include <QDialog>
#include <QMenu>

#include "desktop/style/controls.h"

namespace tallyroll {
namespace {

constexpr double kDialogMargin = 20, kDialogFoot = 16;
constexpr double kGroups = 20, kFields = 8, kLabelToField = 12, kLabelAbove = 6, kRowOfButtons = 16;

bool IsTick(QSizePolicy::ControlType type) {
  return type == QSizePolicy::CheckBox || type == QSizePolicy::RadioButton;
}

// A list, a sheet, or what holds others.
bool IsPane(QSizePolicy::ControlType type) {
  return type == QSizePolicy::DefaultType || type == QSizePolicy::Frame ||
         type == QSizePolicy::TabWidget;
}

int SpaceBelow(QSizePolicy::ControlType upper, QSizePolicy::ControlType lower, const Measures& m) {
  if (IsTick(upper) && IsTick(lower)) return 0;
  if (upper == QSizePolicy::GroupBox || lower == QSizePolicy::GroupBox) return m.Px(kGroups);
  if (upper == QSizePolicy::Label)
    return m.Px(lower == QSizePolicy::PushButton ? kRowOfButtons : kLabelAbove);
  if (lower == QSizePolicy::PushButton)
    return m.Px(upper == QSizePolicy::PushButton ? kFields : kRowOfButtons);
  return m.Px(kFields);
}

int SpaceBeside(QSizePolicy::ControlType left, QSizePolicy::ControlType right, const Measures& m) {
  if (left == QSizePolicy::GroupBox || right == QSizePolicy::GroupBox) return m.Px(kGroups);
  if (IsPane(left) && IsPane(right)) return m.Px(kGroups);
  // Columns of options stand as far apart as the groups below them.
  if (IsTick(left) && IsTick(right)) return m.Px(kGroups);
  if (left == QSizePolicy::Label || right == QSizePolicy::Label) return m.Px(kLabelToField);
  return m.Px(kFields);
}

// The first word of a menu bar stands over what the dialog begins with.
bool HangsInDialog(const QWidget* bar) {
  return bar && qobject_cast<const QDialog*>(bar->parentWidget());
}

}  // namespace

int SpaceBetween(QSizePolicy::ControlType one, QSizePolicy::ControlType other,
                 Qt::Orientation orientation, const Measures& m) {
  return orientation == Qt::Vertical ? SpaceBelow(one, other, m) : SpaceBeside(one, other, m);
}

std::optional<int> MeasureOf(QStyle::PixelMetric metric, const Measures& m, const QWidget* widget) {
  switch (metric) {
    case QStyle::PM_LayoutHorizontalSpacing:
    case QStyle::PM_LayoutVerticalSpacing:
      return -1;  // by the kinds of the neighbours
    case QStyle::PM_LayoutLeftMargin:
    case QStyle::PM_LayoutRightMargin:
    case QStyle::PM_LayoutTopMargin:
      return qobject_cast<const QDialog*>(widget) ? m.Px(kDialogMargin) : 0;
    case QStyle::PM_LayoutBottomMargin:
      return qobject_cast<const QDialog*>(widget) ? m.Px(kDialogFoot) : 0;
    case QStyle::PM_DefaultFrameWidth:
      return widget && widget->isWindow() ? 1 : 2;
    case QStyle::PM_ComboBoxFrameWidth:
    case QStyle::PM_SpinBoxFrameWidth:
      return 2;
    case QStyle::PM_IndicatorWidth:
    case QStyle::PM_IndicatorHeight:
    case QStyle::PM_ExclusiveIndicatorWidth:
    case QStyle::PM_ExclusiveIndicatorHeight:
      return m.Px(16);
    case QStyle::PM_CheckBoxLabelSpacing:
    case QStyle::PM_RadioButtonLabelSpacing:
      return m.Px(8);
    case QStyle::PM_FocusFrameHMargin:
      return m.Px(7);
    case QStyle::PM_ScrollBarExtent:
      return m.Px(12);
    case QStyle::PM_ScrollBarSliderMin:
      return m.Px(32);
    case QStyle::PM_ScrollView_ScrollBarSpacing:
      return 0;
    case QStyle::PM_HeaderMargin:
      return m.Px(8);
    case QStyle::PM_TabBarTabHSpace:
      return m.Px(24);
    case QStyle::PM_TabBarTabVSpace:
      return m.Px(16);
    case QStyle::PM_TabBarTabShiftVertical:
    case QStyle::PM_TabBarTabShiftHorizontal:
    case QStyle::PM_TabBarTabOverlap:
    case QStyle::PM_TabBarBaseOverlap:
    case QStyle::PM_ButtonShiftHorizontal:
    case QStyle::PM_ButtonShiftVertical:
    case QStyle::PM_ButtonDefaultIndicator:
    case QStyle::PM_MenuHMargin:
    case QStyle::PM_MenuBarPanelWidth:
    case QStyle::PM_MenuBarVMargin:
    case QStyle::PM_MenuBarItemSpacing:
      return 0;
    case QStyle::PM_MenuVMargin:
      return m.Px(4);
    case QStyle::PM_MenuBarHMargin:
      return m.Px(HangsInDialog(widget) ? kDialogMargin - kBarItemSide : 4);
    case QStyle::PM_MenuPanelWidth:
      return 1;
    case QStyle::PM_ToolBarFrameWidth:
      return 0;
    case QStyle::PM_ToolBarItemMargin:
      return m.Px(4);
    case QStyle::PM_ToolBarItemSpacing:
      return m.Px(2);
    case QStyle::PM_ToolBarSeparatorExtent:
      return m.Px(13);
    case QStyle::PM_ToolBarIconSize:
      return m.Px(22);
    case QStyle::PM_MessageBoxIconSize:
      return m.Px(40);
    case QStyle::PM_TitleBarHeight:
      return m.Px(34);
    case QStyle::PM_MdiSubWindowFrameWidth:
      return 1;
    default:
      return std::nullopt;
  }
}

}  // namespace tallyroll
