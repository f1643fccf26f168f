// SPDX-License-Identifier: GPL-3.0-or-later
// A mark is edited in the row of the student that was double clicked, which is in sight.
#include <gtest/gtest.h>

#include <QTest>

#include "desktop/grid/grid_widget.h"
#include "desktop/portal/portal_dialog.h"
#include "grades/frmEmarks.h"
#include "grades/student_grid.h"
#include "platform/headless.h"
#include "shell/program.h"
#include "store/class_defaults.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

class MarkOfARowTest : public testing::Test {
 protected:
  MarkOfARowTest() {
    ResetProgram();
    SetPlatform(&surroundings);
    Class& c = Current();
    c.NumInstruments = 1;
    ReDim(c.Instruments, 1);
    c.Instruments[1].title = "Quiz";
    c.NumStudents = 200;
    ReDim(c.Students, 200);
    for (std::size_t i = 1; i <= 200; ++i) ReDim(c.Students[i].Marks, 1, ShortText("80"));
  }
  ~MarkOfARowTest() override {
    dialog.reset();
    SetPlatform(nullptr);
    ResetProgram();
  }
  void OpenAt(int student, QSize size) {
    CurrentStudent = 1;
    OpenState = student;
    portal.Load();
    dialog = std::make_unique<PortalDialog>(portal);
    ASSERT_EQ(dialog->Complaints().join(u'\n').toStdString(), "");
    dialog->resize(size);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  GridWidget& grid() const { return *dialog->findChild<GridWidget*>(QStringLiteral("Grid1")); }
  bool InSight(int student) const {
    const QRect cell = grid().CellRect(student, kMarkColumn);
    return !cell.isEmpty() && grid().viewport()->rect().contains(cell);
  }

  HeadlessSurroundings surroundings;
  frmEmarks portal;
  std::unique_ptr<PortalDialog> dialog;
};

TEST_F(MarkOfARowTest, TheRowIsInSightInAWindowOfAnySize) {
  for (const int student : {1, 2, 30, 150, 199, 200}) {
    OpenAt(student, QSize(900, student % 2 == 0 ? 420 : 700));
    EXPECT_TRUE(InSight(student)) << student;
    dialog->resize(900, 380);
    QTest::qWait(1);
    EXPECT_TRUE(InSight(student)) << student;
    dialog.reset();
  }
}

TEST_F(MarkOfARowTest, TheNextDigitsReplaceHisMarkAndNoOther) {
  OpenAt(150, QSize(900, 500));
  EXPECT_TRUE(grid().hasFocus());
  QTest::keyClicks(&grid(), QStringLiteral("95"));
  for (int student = 1; student <= 200; ++student)
    EXPECT_EQ(portal.Grid1.TextMatrix(student, kMarkColumn), student == 150 ? "95" : "80")
        << student;
}

}  // namespace
}  // namespace tallyroll
