// SPDX-License-Identifier: GPL-3.0-or-later
// The two screens that walk the students by entries of a menu, in their windows.
#include <gtest/gtest.h>

#include <QMenuBar>
#include <QPushButton>
#include <QTest>

#include "averages/portals/frminfo.h"
#include "desktop/portal/portal_dialog.h"
#include "grades/frmMgrade.h"
#include "platform/headless.h"
#include "shell/program.h"
#include "store/class_defaults.h"

namespace tallyroll {
namespace {

class PortalMenuTest : public testing::Test {
 protected:
  PortalMenuTest() {
    ResetProgram();
    SetPlatform(&surroundings);
    Class& c = Current();
    c.NumStudents = 2;
    ReDim(c.Students, 2);
    c.Students[1].lastname = "Li";
    c.Students[2].lastname = "Ng";
  }
  ~PortalMenuTest() override {
    dialog.reset();
    SetPlatform(nullptr);
    ResetProgram();
  }
  void Open(Portal& portal) {
    portal.Load();
    dialog = std::make_unique<PortalDialog>(portal);
    ASSERT_EQ(dialog->Complaints().join(u'\n').toStdString(), "");
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  void Alt(Qt::Key letter) { QTest::keyClick(dialog->focusWidget(), letter, Qt::AltModifier); }
  QStringList Entries() const {
    QStringList texts;
    for (const QAction* entry : dialog->findChild<QMenuBar*>()->actions()) texts << entry->text();
    return texts;
  }
  // A click into the bar, where the entry stands.
  void Click(const char* name) {
    auto* bar = dialog->findChild<QMenuBar*>();
    auto* entry = dialog->findChild<QAction*>(QString::fromLatin1(name));
    QTest::mouseClick(bar, Qt::LeftButton, {}, bar->actionGeometry(entry).center());
  }

  HeadlessSurroundings surroundings;
  frmMgrade missing;
  frminfo info;
  std::unique_ptr<PortalDialog> dialog;
};

TEST_F(PortalMenuTest, MissingGradesAreWalkedByItsMenu) {
  Open(missing);
  EXPECT_EQ(Entries(), (QStringList{QStringLiteral("&Previous"), QStringLiteral("&Next"),
                                    QStringLiteral("E&xit")}));
  EXPECT_TRUE(dialog->findChildren<QPushButton*>().isEmpty());
  Alt(Qt::Key_N);
  EXPECT_EQ(missing.list1.ListIndex, 1);
  Alt(Qt::Key_P);
  EXPECT_EQ(missing.list1.ListIndex, 0);
  Click("mnunextt");
  EXPECT_EQ(missing.list1.ListIndex, 1);
  Alt(Qt::Key_X);
  EXPECT_TRUE(missing.Unloaded());
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(PortalMenuTest, AllInformationIsWalkedByItsMenu) {
  Open(info);
  EXPECT_EQ(Entries(), (QStringList{QStringLiteral("&Previous"), QStringLiteral("&Next"),
                                    QStringLiteral("&Graph")}));
  surroundings.ExpectBox("You must first select a student");
  Alt(Qt::Key_G);
  Alt(Qt::Key_N);
  EXPECT_EQ(CurrentStudent, 1);
  Click("mnuext");
  EXPECT_EQ(CurrentStudent, 2);
  Alt(Qt::Key_P);
  EXPECT_EQ(CurrentStudent, 1);
  Alt(Qt::Key_X);
  EXPECT_TRUE(info.Unloaded());
  EXPECT_TRUE(surroundings.Complaints().empty());
}

TEST_F(PortalMenuTest, EscapeLeavesWhereNoButtonDoes) {
  Open(missing);
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Escape);
  EXPECT_TRUE(missing.Unloaded());
}

// The words of the bar begin where the list below it does, and the bar is as wide as the window.
TEST_F(PortalMenuTest, TheMenuHangsOverTheWholeWindowAndBeginsWithItsContent) {
  Open(info);
  const auto* bar = dialog->findChild<QMenuBar*>();
  EXPECT_EQ(bar->mapTo(dialog.get(), QPoint()), QPoint(0, 0));
  EXPECT_EQ(bar->width(), dialog->width());
  const auto* list = dialog->findChild<QWidget*>(QStringLiteral("list1"));
  const int content = list->mapTo(dialog.get(), QPoint()).x();
  QAction* first = bar->actions().front();
  const int word = bar->fontMetrics().size(Qt::TextShowMnemonic, first->text()).width();
  const QRect place = bar->actionGeometry(first);
  EXPECT_NEAR(place.x() + (place.width() - word) / 2, content, 2);
}

}  // namespace
}  // namespace tallyroll
