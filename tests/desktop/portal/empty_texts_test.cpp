// SPDX-License-Identifier: GPL-3.0-or-later
// Every list and grid of every Portal says in one sentence what will stand there.
#include "desktop/portal/empty_texts.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QLabel>
#include <QListWidget>

#include "desktop/grid/seats_widget.h"
#include "desktop/portal/portal_dialog.h"
#include "platform/headless.h"
#include "shell/portal_list.h"
#include "shell/program.h"

namespace tallyroll {
namespace {

TEST(EmptyTexts, EveryListAndGridHasOne) {
  HeadlessSurroundings surroundings;
  SetPlatform(&surroundings);
  int found = 0;
  for (const std::string_view name : PortalNames()) {
    const std::unique_ptr<Portal> portal = MakePortalByName(name);
    PortalDialog dialog(*portal);
    const QString shown = dialog.objectName();
    QStringList names;
    for (const auto* list : dialog.findChildren<QListWidget*>()) names << list->objectName();
    for (const auto* grid : dialog.findChildren<GridWidget*>())
      if (!qobject_cast<const SeatsWidget*>(grid)) names << grid->objectName();
    for (const QString& control : names) {
      EXPECT_NE(EmptyTextOf(shown, control), QString())
          << shown.toStdString() << "." << control.toStdString();
      ++found;
    }
  }
  EXPECT_GT(found, 40);
  SetPlatform(nullptr);
}

bool IsOfOneColor(const QImage& picture) {
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      if (picture.pixel(x, y) != picture.pixel(0, 0)) return false;
  return true;
}

// Words that are drawn twice come out bold.
TEST(EmptyTexts, NothingElseIsDrawnInAnEmptyList) {
  HeadlessSurroundings surroundings;
  SetPlatform(&surroundings);
  int found = 0;
  for (const std::string_view name : PortalNames()) {
    const std::unique_ptr<Portal> portal = MakePortalByName(name);
    PortalDialog dialog(*portal);
    for (auto* list : dialog.findChildren<QListWidget*>()) {
      auto* notice = list->findChild<QLabel*>(QStringLiteral("EmptyNotice"));
      if (list->count() > 0 || !notice) continue;
      notice->hide();
      EXPECT_TRUE(IsOfOneColor(list->viewport()->grab().toImage()))
          << name << "." << list->objectName().toStdString();
      ++found;
    }
  }
  EXPECT_GT(found, 10);
  SetPlatform(nullptr);
}

TEST(EmptyTexts, AListSaysItUntilItHasALine) {
  QListWidget list;
  ShowWhileEmpty(list, QStringLiteral("Nobody is chosen yet"));
  list.resize(200, 100);
  list.show();
  const auto* notice = list.findChild<QLabel*>(QStringLiteral("EmptyNotice"));
  ASSERT_NE(notice, nullptr);
  EXPECT_TRUE(notice->isVisible());
  EXPECT_EQ(notice->size(), list.viewport()->size());
  EXPECT_EQ(list.accessibleDescription(), QStringLiteral("Nobody is chosen yet"));
  list.addItem(QStringLiteral("Ng, Ada"));
  EXPECT_FALSE(notice->isVisible());
  EXPECT_EQ(list.accessibleDescription(), QString());
  list.clear();
  EXPECT_TRUE(notice->isVisible());
}

}  // namespace
}  // namespace tallyroll
