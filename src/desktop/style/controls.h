// SPDX-License-Identifier: GPL-3.0-or-later
// How each kind of control is drawn and how large it is. A function that answers false, or nothing,
// leaves that part to the toolkit.
#pragma once

#include <QGuiApplication>
#include <QStyle>
#include <QStyleOption>
#include <optional>

#include "desktop/style/measures.h"
#include "desktop/style/tokens.h"

class QPainter;

namespace tallyroll {

// What one drawing needs.
struct StyleBrush {
  StyleBrush(const QStyle& style, const Measures& measures, const QStyleOption& option,
             QPainter& painter, const QWidget* widget)
      : style(style),
        m(measures),
        t(TokensOf(QGuiApplication::palette())),
        painter(painter),
        widget(widget),
        enabled(option.state & QStyle::State_Enabled),
        hover(enabled && (option.state & QStyle::State_MouseOver)),
        pressed(enabled && (option.state & QStyle::State_Sunken)),
        on(option.state & QStyle::State_On),
        focus(enabled && (option.state & QStyle::State_HasFocus)),
        shows_focus(focus && (option.state & QStyle::State_KeyboardFocusChange)) {}

  QColor Text() const { return enabled ? t.text : t.off; }
  // How a text with a mnemonic is drawn just now.
  int Mnemonic(const QStyleOption& option) const {
    return style.styleHint(QStyle::SH_UnderlineShortcut, &option, widget) ? Qt::TextShowMnemonic
                                                                          : Qt::TextHideMnemonic;
  }

  const QStyle& style;
  const Measures& m;
  const Tokens t;
  QPainter& painter;
  const QWidget* widget;
  const bool enabled, hover, pressed, on, focus, shows_focus;
};

// A button whose word says that something goes for good.
bool Destroys(const QString& caption);

// The grounds of the main action, and of what has none until it is pointed at.
void DrawMainGround(StyleBrush& brush, const QRectF& rect);
void DrawFlatGround(StyleBrush& brush, const QRectF& rect);

// Buttons, ticks, options, tools.
bool DrawButton(QStyle::ControlElement element, const QStyleOption& option, StyleBrush& brush);
bool DrawIndicator(QStyle::PrimitiveElement element, const QStyleOption& option, StyleBrush& brush);
bool DrawTool(const QStyleOptionComplex& option, StyleBrush& brush);
QSize ToolSize(const QStyleOption* option, const QSize& contents, const Measures& m,
               const QWidget* widget);
std::optional<QRect> ButtonPart(QStyle::SubElement element, const QStyleOption& option,
                                const Measures& m);
std::optional<QSize> ButtonSize(QStyle::ContentsType type, const QStyleOption* option,
                                const QSize& contents, const Measures& m, const QWidget* widget);

// Fields, choices, dates, numbers with an arrow up and one down, the frames of lists and sheets.
bool DrawField(QStyle::PrimitiveElement element, const QStyleOption& option, StyleBrush& brush);
bool DrawChoice(const QStyleOptionComplex& option, StyleBrush& brush);
bool DrawChoiceText(const QStyleOption& option, StyleBrush& brush);
bool DrawFrame(const QStyleOption& option, StyleBrush& brush);
bool DrawSpin(const QStyleOptionComplex& option, StyleBrush& brush);
std::optional<QRect> ChoicePart(const QStyleOptionComplex& option, QStyle::SubControl part,
                                const Measures& m);
std::optional<QRect> SpinPart(const QStyleOptionComplex& option, QStyle::SubControl part,
                              const Measures& m);
std::optional<QSize> FieldSize(QStyle::ContentsType type, const QSize& contents, const Measures& m);

// What the toolkit itself leaves free before words that are typed.
inline constexpr int kToolkitsOwn = 2;

// Left and right of a word in a menu bar.
inline constexpr double kBarItemSide = 11;

// Menus and their bar.
bool DrawMenu(QStyle::ControlElement element, const QStyleOption& option, StyleBrush& brush);
std::optional<QSize> MenuSize(QStyle::ContentsType type, const QStyleOption* option,
                              const QSize& contents, const Measures& m);

// Scroll bars, tabs, groups, progress.
bool DrawScrollBar(const QStyleOptionComplex& option, StyleBrush& brush);
std::optional<QRect> ScrollBarPart(const QStyleOptionComplex& option, QStyle::SubControl part,
                                   const Measures& m);
bool DrawTab(QStyle::ControlElement element, const QStyleOption& option, StyleBrush& brush);
bool DrawGroup(const QStyleOptionComplex& option, StyleBrush& brush);
std::optional<QRect> GroupPart(const QStyleOptionComplex& option, QStyle::SubControl part,
                               const Measures& m, const QWidget* widget);
bool DrawProgress(QStyle::ControlElement element, const QStyleOption& option, StyleBrush& brush);

// Heads of lists with columns.
bool DrawHead(QStyle::ControlElement element, const QStyleOption& option, StyleBrush& brush);
Qt::ArrowType SortArrow(const QStyleOption& option);

// Lines of lists.
bool DrawLine(const QStyleOption& option, StyleBrush& brush);

// Windows within the frame.
bool DrawTitleBar(const QStyleOptionComplex& option, StyleBrush& brush);
bool DrawWindowButtons(const QStyleOptionComplex& option, StyleBrush& brush);
std::optional<QRect> TitleBarPart(const QStyleOptionComplex& option, QStyle::SubControl part,
                                  const Measures& m);

// Signs of message boxes, buttons of windows, arrows, files; null for any other.
QIcon SignFor(QStyle::StandardPixmap icon);

// The distance of two neighbours by their kinds.
int SpaceBetween(QSizePolicy::ControlType one, QSizePolicy::ControlType other,
                 Qt::Orientation orientation, const Measures& m);

// Room, widths and heights that the toolkit asks for one by one.
std::optional<int> MeasureOf(QStyle::PixelMetric metric, const Measures& m, const QWidget* widget);

}  // namespace tallyroll
