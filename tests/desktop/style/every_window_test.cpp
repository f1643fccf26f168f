// SPDX-License-Identifier: GPL-3.0-or-later
// Every window has the one look: nothing in it has a colour, a font or a margin of its own, it fits
// a small screen at each density, and its words stand whole where there is room.
#include <QAbstractButton>
#include <QApplication>
#include <QCalendarWidget>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>
#include <QTabBar>
#include <QToolButton>
#include <QToolTip>

#include "desktop/grid/grid_widget.h"
#include "desktop/letter/rich_text_edit.h"
#include "desktop/style/appearance.h"
#include "tests/desktop/every_window.h"

namespace tallyroll {
namespace {

// A screen of 1024 x 640 without the title and the borders of the window.
constexpr QSize kSmallRoom(1024 - 16, 640 - 40);

class EveryWindowTest : public EveryWindow {
 protected:
  ~EveryWindowTest() override { Appearance::Instance()->SetDensity(Density::kNormal); }
};

// What the toolkit builds inside a calendar is the style's affair.
bool IsOfCalendar(const QWidget* widget) {
  for (; widget; widget = widget->parentWidget())
    if (qobject_cast<const QCalendarWidget*>(widget)) return true;
  return false;
}

// A letter is paper whatever the window is; B, I and U stand on their buttons as they make the
// text.
bool IsOfLetter(const QWidget* widget) {
  if (qobject_cast<const RichTextEdit*>(widget)) return true;
  const QString name = widget->objectName();
  if (widget->window()->objectName() == QStringLiteral("frmwrdproc") &&
      qobject_cast<const QToolButton*>(widget))
    return name == QStringLiteral("Bold") || name == QStringLiteral("Italic") ||
           name == QStringLiteral("Underline");
  return widget->parentWidget() && qobject_cast<const RichTextEdit*>(widget->parentWidget());
}

QString FaultOf(const QWidget& widget) {
  const QPalette expected = QApplication::palette(&widget);
  const auto* label = qobject_cast<const QLabel*>(&widget);
  const bool has_use = label && label->property("textUse").isValid();
  if (!widget.styleSheet().isEmpty()) return QStringLiteral("a style sheet");
  if (widget.testAttribute(Qt::WA_SetPalette)) return QStringLiteral("a palette of its own");
  if (widget.testAttribute(Qt::WA_SetFont) && !has_use &&
      widget.font().family() == QApplication::font().family())
    return QStringLiteral("a font of its own");
  if (widget.palette().color(QPalette::Window) != expected.color(QPalette::Window))
    return QStringLiteral("a ground of its own");
  return {};
}

TEST_F(EveryWindowTest, NoWidgetHasALookOfItsOwn) {
  ForEach([](const std::string& name, PortalDialog& window) {
    for (const QWidget* each : window.findChildren<QWidget*>()) {
      if (IsOfCalendar(each) || IsOfLetter(each)) continue;
      const QString fault = FaultOf(*each);
      EXPECT_TRUE(fault.isEmpty())
          << name << ": " << each->objectName().toStdString() << " has " << fault.toStdString();
    }
  });
  EXPECT_GE(walked, 35);
}

TEST_F(EveryWindowTest, AnOwnColourOrFontIsNoticed) {
  QLabel label;
  label.show();
  EXPECT_EQ(FaultOf(label), QString());
  QPalette red = label.palette();
  red.setColor(QPalette::WindowText, Qt::red);
  label.setPalette(red);
  EXPECT_EQ(FaultOf(label), QStringLiteral("a palette of its own"));
  QLabel bold;
  QFont font = bold.font();
  font.setBold(true);
  bold.setFont(font);
  EXPECT_EQ(FaultOf(bold), QStringLiteral("a font of its own"));
}

TEST_F(EveryWindowTest, EachFitsASmallScreenAtEveryDensity) {
  for (const Density density : {Density::kCompact, Density::kNormal, Density::kRoomy}) {
    Appearance::Instance()->SetDensity(density);
    ForEach([density](const std::string& name, PortalDialog& window) {
      const QSize least = window.minimumSizeHint();
      EXPECT_LE(least.width(), kSmallRoom.width()) << name << " at " << static_cast<int>(density);
      EXPECT_LE(least.height(), kSmallRoom.height()) << name << " at " << static_cast<int>(density);
    });
  }
}

// The room of a sheet beyond its last column.
int FreeRoomOf(const GridWidget& grid) {
  return grid.viewport()->width() + grid.verticalScrollBar()->sizeHint().width() -
         grid.WholeWidth();
}

TEST_F(EveryWindowTest, NothingIsCutBesideFreeRoom) {
  int cells = 0;
  ForEach([&cells](const std::string& name, PortalDialog& window) {
    window.resize(window.size().expandedTo(kSmallRoom));
    QCoreApplication::processEvents();
    for (const auto* tabs : window.findChildren<QTabBar*>()) {
      if (!tabs->isVisible()) continue;
      EXPECT_GE(tabs->width() + 1, tabs->sizeHint().width()) << name;
    }
    for (const auto* grid : window.findChildren<GridWidget*>()) {
      if (!grid->isVisible() || !grid->grid() || FreeRoomOf(*grid) <= 0) continue;
      for (int row = 0; row < grid->grid()->Rows(); ++row)
        for (int col = 0; col < grid->grid()->Cols(); ++col, ++cells)
          EXPECT_FALSE(grid->IsCut(row, col)) << name << ": " << grid->grid()->TextMatrix(row, col);
    }
  });
  EXPECT_GT(cells, 0);
}

bool IsFieldOfOneLine(const QWidget& widget) {
  return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget);
}

// Beside it, not above it.
bool IsOnOneLine(const QRect& label, const QRect& field) {
  return label.right() < field.left() && label.top() < field.bottom() &&
         field.top() < label.bottom();
}

TEST_F(EveryWindowTest, ALabelStandsOnTheLineOfItsField) {
  int pairs = 0;
  for (const Density density : {Density::kCompact, Density::kNormal, Density::kRoomy}) {
    Appearance::Instance()->SetDensity(density);
    ForEach([&pairs](const std::string& name, PortalDialog& window) {
      const auto place_of = [&window](const QWidget& widget) {
        return QRect(widget.mapTo(&window, QPoint(0, 0)), widget.size());
      };
      for (const auto* label : window.findChildren<QLabel*>()) {
        const QWidget* field = label->buddy();
        if (!label->isVisible() || !field ||
            field->height() > 2 * label->fontMetrics().height() + 8)
          continue;
        const QRect one = place_of(*label), other = place_of(*field);
        if (!IsOnOneLine(one, other)) continue;
        ++pairs;
        EXPECT_NEAR(one.center().y(), other.center().y(), 1)
            << name << ": " << label->objectName().toStdString();
      }
    });
  }
  EXPECT_GT(pairs, 100);
}

// What a label stands beside is seen by its distance: its field is the nearer neighbour.
TEST_F(EveryWindowTest, ALabelStandsNearerToItsFieldThanToTheOneBefore) {
  int pairs = 0;
  ForEach([&pairs](const std::string& name, PortalDialog& window) {
    const auto place_of = [&window](const QWidget& widget) {
      return QRect(widget.mapTo(&window, QPoint(0, 0)), widget.size());
    };
    for (const auto* label : window.findChildren<QLabel*>()) {
      const QWidget* field = label->buddy();
      if (!label->isVisible() || !field || !field->isVisible()) continue;
      const QRect one = place_of(*label), other = place_of(*field);
      if (!IsOnOneLine(one, other)) continue;
      for (const auto* each : window.findChildren<QWidget*>()) {
        if (!each->isVisible() || each == field || each->isAncestorOf(label)) continue;
        if (!IsFieldOfOneLine(*each) || !IsOnOneLine(place_of(*each), one)) continue;
        ++pairs;
        EXPECT_GT(one.left() - place_of(*each).right(), other.left() - one.right())
            << name << ": " << label->objectName().toStdString();
      }
    }
  });
  EXPECT_GT(pairs, 3);
}

// The toolkit would take the least size and forget the other.
TEST_F(EveryWindowTest, NothingMustBeLargerThanItMay) {
  ForEach([](const std::string& name, PortalDialog& window) {
    for (const auto* each : window.findChildren<QWidget*>())
      EXPECT_EQ(each->minimumSize().boundedTo(each->maximumSize()), each->minimumSize())
          << name << ": " << each->objectName().toStdString();
  });
}

// A caption needs its width; a label that wraps needs its height.
TEST_F(EveryWindowTest, NoCaptionIsCut) {
  ForEach([](const std::string& name, PortalDialog& window) {
    for (const auto* label : window.findChildren<QLabel*>()) {
      if (!label->isVisible() || label->text().isEmpty() || label->wordWrap()) continue;
      EXPECT_GE(label->width() + 1, label->sizeHint().width())
          << name << ": " << label->objectName().toStdString();
    }
    for (const auto* button : window.findChildren<QAbstractButton*>()) {
      if (!button->isVisible() || button->text().isEmpty()) continue;
      EXPECT_GE(button->width() + 1, button->minimumSizeHint().width())
          << name << ": " << button->objectName().toStdString();
    }
  });
}

}  // namespace
}  // namespace tallyroll
