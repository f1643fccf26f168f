// SPDX-License-Identifier: GPL-3.0-or-later
// The forms of attendance: their texts word for word, the list of codes over the current cell, and
// dates that keep within their bounds.
#include <QAction>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>

#include "attendance/frmAtsum.h"
#include "attendance/frmAtt.h"
#include "desktop/grid/grid_painter.h"
#include "desktop/grid/grid_widget.h"
#include "tests/desktop/class_dialogs.h"
#include "tests/desktop/forms/form_texts.h"

namespace tallyroll {
namespace {

TEST(AttendanceForms, frmAttReadsAsTeachersKnowIt) {
  const Texts texts = TextsOf("frmAtt");
  const Texts told = {{"mnudate", "&Date Setting"},
                      {"munatt", "&Att Summary"},
                      {"mnuPrint", "&Print"},
                      {"mnuOptiona", "Display &Totals"},
                      {"mnuStudent", "Show &Student Summary"},
                      {"mnuDaily", "Show &Daily Summary"},
                      {"mnucancel", "&Cancel"},
                      {"mnuExit", "E&xit"}};
  for (const auto& [name, text] : told) EXPECT_EQ(texts.at(name), text);
}

TEST(AttendanceForms, frmatsetReadsAsTeachersKnowIt) {
  const Texts texts = TextsOf("frmatset");
  EXPECT_EQ(texts.at(""), "Attendance Settings Portal");
  EXPECT_EQ(texts.at("startquestion"), "What is the first month you will be taking attendance?");
  EXPECT_EQ(texts.at("endquestion"), "What is the last month you will be  taking attendance?");
}

TEST(AttendanceForms, frmAtsumReadsAsTeachersKnowIt) {
  const Texts texts = TextsOf("frmAtsum");
  EXPECT_EQ(texts.at(""), "Summary Attendance Portal");
  EXPECT_EQ(texts.at("termstart_label"), "Please Enter the Starting  Date");
  EXPECT_EQ(texts.at("termend_label"), "Please Enter the Ending Date");
  EXPECT_EQ(texts.at("Title_label"), "Title of  Attendance");
  EXPECT_EQ(texts.at("code_label"), "Up to 3 Character Code");
}

TEST(AttendanceForms, frmEattAndFrmDattReadAsTeachersKnowThem) {
  EXPECT_EQ(TextsOf("frmEatt").at(""), "Edit  Summary Attendance Portal");
  EXPECT_EQ(TextsOf("frmEatt").at("list1_label"), "Choose From List of Titles of Attendances");
  EXPECT_EQ(TextsOf("frmDatt").at(""), "Delete Attendance Portal");
  EXPECT_EQ(TextsOf("frmDatt").at("list1_label"), "Choose From List of Attendance Summary Titles");
}

class AttendanceFormsTest : public ClassDialogs {
 protected:
  ~AttendanceFormsTest() override { dialog.reset(); }
  QComboBox& codes() { return Find<QComboBox>("Combo1"); }

  frmAtt month;
  frmAtsum summary;
};

class frmAttDialog : public AttendanceFormsTest {};

TEST_F(frmAttDialog, AMonthIsEnteredByKeysAlone) {
  OpenState = 15;
  Open(month);
  EXPECT_TRUE(codes().isHidden());
  QTest::keyClick(&grid(), Qt::Key_Down);
  QTest::keyClicks(&grid(), QStringLiteral("a"));
  QTest::keyClick(&grid(), Qt::Key_Down);
  QTest::keyClicks(&grid(), QStringLiteral("l"));
  QTest::keyClick(&grid(), Qt::Key_Right);
  QTest::keyClicks(&grid(), QStringLiteral("c"));
  EXPECT_EQ(month.Grid1.TextMatrix(1, 2), "A");
  EXPECT_EQ(month.Grid1.TextMatrix(2, 2), "L");
  EXPECT_EQ(month.Grid1.TextMatrix(2, 3), "C");
}

TEST_F(frmAttDialog, TheListStandsOverTheCurrentCell) {
  OpenState = 15;
  Open(month);
  QTest::keyClick(&grid(), Qt::Key_Down);
  ASSERT_FALSE(codes().isHidden());
  EXPECT_EQ(codes().geometry().topLeft(), PlaceOf(1, 2).topLeft());
  EXPECT_EQ(codes().height(), PlaceOf(1, 2).height());
  QTest::keyClick(&grid(), Qt::Key_Right);
  EXPECT_EQ(codes().geometry().topLeft(), PlaceOf(1, 3).topLeft());
  QTest::keyClicks(&grid(), QStringLiteral("s"));
  EXPECT_EQ(codes().currentText(), QStringLiteral("S"));
  EXPECT_TRUE(grid().hasFocus());
}

TEST_F(frmAttDialog, TheListFollowsAScrolledCellAndLeavesWithIt) {
  OpenState = 15;
  Open(month);
  for (int i = 0; i < 5; ++i) QTest::keyClick(&grid(), Qt::Key_Down);
  grid().verticalScrollBar()->setValue(2);
  EXPECT_EQ(codes().geometry().topLeft(), PlaceOf(5, 2).topLeft());
  grid().verticalScrollBar()->setValue(grid().verticalScrollBar()->maximum());
  EXPECT_FALSE(dialog->rect().intersects(codes().geometry()));
}

TEST_F(frmAttDialog, TheMenuShowsTotals) {
  OpenState = 15;
  Open(month);
  QTest::keyClick(&grid(), Qt::Key_Down);
  QTest::keyClicks(&grid(), QStringLiteral("a"));
  Find<QAction>("mnuStudent").trigger();
  EXPECT_TRUE(Find<QAction>("mnuStudent").isChecked());
  EXPECT_EQ(month.Grid1.TextMatrix(1, 32), "1");
}

TEST_F(frmAttDialog, EveryDaysNumberFitsItsColumn) {
  OpenState = 15;
  Open(month);
  const GridFonts fonts(grid().font());
  for (int day = 1; day <= 30; ++day) {
    EXPECT_EQ(month.Grid1.ColAlignment(day + 1), ColumnAlign::kCenter);
    EXPECT_LE(fonts.plain.WidthOf(month.Grid1.TextMatrix(0, day + 1)),
              RoomForText(grid().CellRect(0, day + 1).width(), ColumnAlign::kCenter))
        << day;
  }
}

TEST_F(frmAttDialog, TheFocusIsSeenAsSoonAsThePortalStands) {
  OpenState = 15;
  Open(month);
  EXPECT_TRUE(dialog->testAttribute(Qt::WA_KeyboardFocusChange));
}

TEST_F(frmAttDialog, KeysGoToTheMonthAfterAndBack) {
  OpenState = 15;
  Open(month);
  QTest::keyClick(&grid(), Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(month.monthlabel.Caption, "October");
  QTest::keyClick(&grid(), Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(month.monthlabel.Caption, "September");
  QTest::keyClick(&grid(), Qt::Key_PageUp, Qt::ControlModifier);
  EXPECT_EQ(month.monthlabel.Caption, "September") << "the first month has none before";
}

TEST_F(frmAttDialog, TheMonthStandsBehindItsArrowsAsOneTitle) {
  OpenState = 15;
  Open(month);
  const QRect arrow = Find<QPushButton>("Command2").geometry();
  const QRect name = Find<QLabel>("monthlabel").geometry();
  const QRect year = Find<QLabel>("endyear").geometry();
  EXPECT_LT(arrow.right(), name.left());
  EXPECT_LT(name.right(), year.left());
  EXPECT_LE(year.left() - name.right(), name.height() / 2);
}

TEST_F(frmAttDialog, WhatIsNotToldTakesNoRoom) {
  OpenState = 15;
  Open(month);
  EXPECT_TRUE(Find<QLabel>("status").isHidden());
  month.status.Caption = "2 marks were lost.";
  dialog->ShowControls();
  EXPECT_TRUE(Find<QLabel>("status").isVisible());
}

TEST_F(frmAttDialog, TheViewHidesWhatChangesAnything) {
  OpenState = 112;
  Open(month);
  for (const char* hidden : {"mnudate", "munatt", "mnuPrint", "mnuExit"})
    EXPECT_FALSE(Find<QAction>(hidden).isVisible()) << hidden;
  EXPECT_EQ(Find<QAction>("mnucancel").text(), QStringLiteral("E&xit"));
}

class frmAtsumDialog : public AttendanceFormsTest {};

TEST_F(frmAtsumDialog, DatesStayWithinTheRange) {
  Open(summary);
  EXPECT_EQ(Find<QDateEdit>("termstart").date(), QDate(2026, 9, 1));
  EXPECT_EQ(Find<QDateEdit>("termend").date(), QDate(2027, 6, 30));
  for (const char* picker : {"termstart", "termend"}) {
    EXPECT_EQ(Find<QDateEdit>(picker).minimumDate(), QDate(2026, 9, 1));
    EXPECT_EQ(Find<QDateEdit>(picker).maximumDate(), QDate(2027, 6, 30));
  }
}

}  // namespace
}  // namespace tallyroll
