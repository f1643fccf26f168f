// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/style/program_style.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <QStyleFactory>

#include "desktop/style/controls.h"
#include "desktop/style/polish.h"
#include "desktop/style/shapes.h"

namespace tallyroll {

ProgramStyle::ProgramStyle(const Measures& measures)
    : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))), measures_(measures) {}

void ProgramStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  PolishWidget(*widget, measures_);
  // The toolkit draws what scrolls anew when the focus comes, not the frame around it.
  if (qobject_cast<QAbstractScrollArea*>(widget)) widget->installEventFilter(this);
}

void ProgramStyle::unpolish(QWidget* widget) {
  widget->removeEventFilter(this);
  QProxyStyle::unpolish(widget);
}

void ProgramStyle::polish(QApplication* application) {
  QProxyStyle::polish(application);
  application->installEventFilter(this);
}

void ProgramStyle::unpolish(QApplication* application) {
  application->removeEventFilter(this);
  QProxyStyle::unpolish(application);
}

void ProgramStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                 QPainter* painter, const QWidget* widget) const {
  StyleBrush brush(*this, measures_, *option, *painter, widget);
  switch (element) {
    case PE_PanelLineEdit:
    case PE_FrameLineEdit:
    case PE_Frame:
      if (DrawField(element, *option, brush)) return;
      break;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
    case PE_IndicatorRadioButton:
    case PE_PanelButtonTool:
      if (DrawIndicator(element, *option, brush)) return;
      break;
    case PE_PanelItemViewItem:
      if (DrawLine(*option, brush)) return;
      break;
    case PE_FrameTabWidget: {
      // The line below the tabs goes on to the end of their page.
      const QRect& r = option->rect;
      return DrawRule(*painter, QRect(r.left(), r.top() - 1, r.width(), 1), brush.t.line);
    }
    case PE_PanelItemViewRow:
    case PE_FrameGroupBox:
    case PE_PanelMenuBar:
    case PE_FrameButtonTool:
      return;
    case PE_FrameTabBarBase: {
      const QRect& r = option->rect;
      return DrawRule(*painter, QRect(r.left(), r.bottom(), r.width(), 1), brush.t.line);
    }
    case PE_FrameFocusRect:
      // What draws its focus by itself has drawn it.
      if (qobject_cast<const QAbstractItemView*>(widget)) return;
      return DrawBox(*painter, option->rect, measures_.Px(4), QColor(), brush.t.focus, 2);
    case PE_IndicatorHeaderArrow:
      return DrawArrow(*painter, option->rect, SortArrow(*option), brush.t.muted, measures_.Px(4));
    case PE_PanelMenu:
      return painter->fillRect(option->rect, brush.t.raised);
    case PE_FrameMenu:
    case PE_FrameWindow:
      return DrawBox(*painter, option->rect, 0, QColor(), brush.t.strong_line, 1);
    case PE_PanelTipLabel:
      return DrawBox(*painter, option->rect, 0, brush.t.tooltip, brush.t.tooltip, 1);
    case PE_IndicatorToolBarSeparator: {
      const QRect& r = option->rect;
      const int inset = r.height() / 5;
      return DrawRule(*painter, QRect(r.center().x(), r.top() + inset, 1, r.height() - 2 * inset),
                      brush.t.strong_line);
    }
    default:
      break;
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  StyleBrush brush(*this, measures_, *option, *painter, widget);
  bool drawn = false;
  switch (element) {
    case CE_PushButtonBevel:
    case CE_PushButtonLabel:
    case CE_CheckBox:
    case CE_RadioButton:
      drawn = DrawButton(element, *option, brush);
      break;
    case CE_PushButton:
      drawControl(CE_PushButtonBevel, option, painter, widget);
      return drawControl(CE_PushButtonLabel, option, painter, widget);
    case CE_ComboBoxLabel:
      drawn = DrawChoiceText(*option, brush);
      break;
    case CE_MenuItem:
    case CE_MenuBarItem:
    case CE_MenuBarEmptyArea:
    case CE_MenuEmptyArea:
      drawn = DrawMenu(element, *option, brush);
      break;
    case CE_TabBarTabShape:
    case CE_TabBarTabLabel:
      drawn = DrawTab(element, *option, brush);
      break;
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
      drawn = DrawHead(element, *option, brush);
      break;
    case CE_ProgressBarGroove:
    case CE_ProgressBarContents:
    case CE_ProgressBarLabel:
      drawn = DrawProgress(element, *option, brush);
      break;
    case CE_ShapedFrame: {
      const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
      const bool across = frame && frame->frameShape == QFrame::HLine;
      const bool down = frame && frame->frameShape == QFrame::VLine;
      const QPoint middle = option->rect.center();
      if (across)
        return DrawRule(*painter, QRect(option->rect.left(), middle.y(), option->rect.width(), 1),
                        brush.t.line);
      if (down)
        return DrawRule(*painter, QRect(middle.x(), option->rect.top(), 1, option->rect.height()),
                        brush.t.line);
      if (frame && frame->frameShape != QFrame::NoFrame) drawn = DrawFrame(*option, brush);
      break;
    }
    case CE_ToolBar:
      return painter->fillRect(option->rect, brush.t.window);
    default:
      break;
  }
  if (!drawn) QProxyStyle::drawControl(element, option, painter, widget);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  StyleBrush brush(*this, measures_, *option, *painter, widget);
  bool drawn = false;
  switch (control) {
    case CC_ComboBox:
      drawn = DrawChoice(*option, brush);
      break;
    case CC_ScrollBar:
      drawn = DrawScrollBar(*option, brush);
      break;
    case CC_SpinBox:
      drawn = DrawSpin(*option, brush);
      break;
    case CC_GroupBox:
      drawn = DrawGroup(*option, brush);
      break;
    case CC_ToolButton:
      drawn = DrawTool(*option, brush);
      break;
    case CC_TitleBar:
      drawn = DrawTitleBar(*option, brush);
      break;
    case CC_MdiControls:
      drawn = DrawWindowButtons(*option, brush);
      break;
    default:
      break;
  }
  if (!drawn) QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QIcon ProgramStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                                 const QWidget* widget) const {
  const QIcon sign = SignFor(icon);
  return sign.isNull() ? QProxyStyle::standardIcon(icon, option, widget) : sign;
}

QPixmap ProgramStyle::standardPixmap(StandardPixmap icon, const QStyleOption* option,
                                     const QWidget* widget) const {
  const QIcon sign = SignFor(icon);
  if (sign.isNull()) return QProxyStyle::standardPixmap(icon, option, widget);
  return sign.pixmap(measures_.Px(16));
}

// The letters to press are underlined while Alt is held.
bool ProgramStyle::eventFilter(QObject* watched, QEvent* event) {
  const auto type = event->type();
  if (type == QEvent::FocusIn || type == QEvent::FocusOut) {
    auto* area = qobject_cast<QAbstractScrollArea*>(watched);
    if (area) area->update();
    return false;
  }
  const bool key = type == QEvent::KeyPress || type == QEvent::KeyRelease;
  const bool left = type == QEvent::WindowDeactivate || type == QEvent::ApplicationDeactivate;
  if (!left && (!key || static_cast<QKeyEvent*>(event)->key() != Qt::Key_Alt)) return false;
  const bool held = type == QEvent::KeyPress;
  if (held == alt_is_held_) return false;
  alt_is_held_ = held;
  for (QWidget* window : QApplication::topLevelWidgets())
    if (window->isVisible())
      for (QWidget* each : window->findChildren<QWidget*>()) each->update();
  return false;
}

Measures ScreenMeasures() {
  const auto* style = qobject_cast<const ProgramStyle*>(QApplication::style());
  return style ? style->measures() : Measures();
}

}  // namespace tallyroll
