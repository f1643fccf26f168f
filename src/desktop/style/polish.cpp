// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/style/polish.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLabel>
#include <QListView>
#include <QMdiArea>
#include <QTabBar>
#include <QTextCharFormat>
#include <QToolButton>

#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

struct NamedUse {
  const char* name;
  TextUse use;
  QPalette::ColorRole color;
};

constexpr NamedUse kUses[] = {
    {"display", TextUse::kDisplay, QPalette::WindowText},
    {"title", TextUse::kTitle, QPalette::WindowText},
    {"name", TextUse::kName, QPalette::WindowText},
    {"heading", TextUse::kHeading, QPalette::WindowText},
    {"small", TextUse::kSmall, QPalette::PlaceholderText},
    {"note", TextUse::kSmall, QPalette::WindowText},
    {"muted", TextUse::kText, QPalette::PlaceholderText},
    {"help", TextUse::kSmall, QPalette::WindowText},
};

bool IsShownFigure(const QLabel& label, const QByteArray& use) {
  return label.frameShape() == QFrame::StyledPanel && (use.isEmpty() || use == "display");
}

// A label says by its property "textUse" what its words are for.
void PolishLabel(QLabel& label, const Measures& m) {
  const QByteArray wanted = label.property("textUse").toByteArray();
  // As far within its ground as a figure in a field.
  if (IsShownFigure(label, wanted)) label.setIndent(m.BesideWords() - label.frameWidth());
  if (wanted.isEmpty()) return;
  for (const NamedUse& each : kUses) {
    if (wanted != each.name) continue;
    label.setFont(FontFor(QApplication::font(), each.use));
    label.setForegroundRole(each.color);
  }
  if (!wanted.startsWith("help")) return;
  label.setFrameShape(QFrame::StyledPanel);
  label.setMargin(m.Px(8));
}

void PolishCalendar(QCalendarWidget& calendar) {
  const Tokens t = TokensOf(QApplication::palette());
  calendar.setGridVisible(false);
  calendar.setHorizontalHeaderFormat(QCalendarWidget::SingleLetterDayNames);
  calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  QTextCharFormat head;
  head.setForeground(t.muted);
  head.setBackground(t.surface);
  calendar.setHeaderTextFormat(head);
  QTextCharFormat day;
  day.setForeground(t.text);
  for (const auto each : {Qt::Monday, Qt::Tuesday, Qt::Wednesday, Qt::Thursday, Qt::Friday})
    calendar.setWeekdayTextFormat(each, day);
  day.setForeground(t.muted);
  for (const auto each : {Qt::Saturday, Qt::Sunday}) calendar.setWeekdayTextFormat(each, day);
  // The bar with the month writes in the colour of what is highlighted, on its own ground.
  if (auto* bar = calendar.findChild<QWidget*>(QStringLiteral("qt_calendar_navigationbar"))) {
    QPalette palette = QApplication::palette();
    palette.setColor(QPalette::Highlight, t.surface);
    palette.setColor(QPalette::HighlightedText, t.text);
    palette.setColor(QPalette::ButtonText, t.text);
    bar->setPalette(palette);
    bar->setBackgroundRole(QPalette::Base);
  }
}

}  // namespace

void PolishWidget(QWidget& widget, const Measures& measures) {
  if (auto* label = qobject_cast<QLabel*>(&widget)) return PolishLabel(*label, measures);
  if (auto* calendar = qobject_cast<QCalendarWidget*>(&widget)) return PolishCalendar(*calendar);
  if (auto* area = qobject_cast<QMdiArea*>(&widget))
    return area->setBackground(TokensOf(QApplication::palette()).pressed);
  const bool points = qobject_cast<QAbstractButton*>(&widget) ||
                      qobject_cast<QComboBox*>(&widget) || qobject_cast<QTabBar*>(&widget);
  if (points) widget.setAttribute(Qt::WA_Hover);
  if (auto* list = qobject_cast<QListView*>(&widget)) list->viewport()->setAttribute(Qt::WA_Hover);
}

}  // namespace tallyroll
