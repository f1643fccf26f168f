// SPDX-License-Identifier: GPL-3.0-or-later
// Shows a Portal of a class: forty students, attendance from September 2026 to June 2027.
#pragma once

#include <gtest/gtest.h>

#include <QTest>
#include <QWindow>
#include <memory>

#include "attendance/attendance_range.h"
#include "desktop/grid/grid_widget.h"
#include "desktop/portal/portal_dialog.h"
#include "platform/headless.h"
#include "shell/program.h"
#include "store/program_state.h"
#include "tests/support/enrol_student.h"

namespace tallyroll {

class ClassDialogs : public testing::Test {
 protected:
  ClassDialogs() {
    ResetProgram();
    SetPlatform(&surroundings);
    for (int i = 1; i <= 40; ++i) EnrolStudent("Student", std::string(1, char('A' + i)), "1");
    SetUpRange(*DatesOf({{9, 2026}, {6, 2027}, 2027}));
  }
  ~ClassDialogs() override {
    dialog.reset();
    SetPlatform(nullptr);
    ResetProgram();
  }
  // A grade of that type, which may be dropped, with 80 for every student.
  static void AddGrade(const std::string& title, const char* typecode) {
    Class& c = Current();
    const int n = ++c.NumInstruments;
    ReDimPreserve(c.Instruments, n);
    Instrument& grade = c.Instruments.back();
    grade.title = title;
    grade.code = "C1";
    grade.typecode = typecode;
    grade.mvalue = 100;
    grade.dropyn = "Y";
    grade.testdate = "9/1/2026";
    ReDimPreserve(c.Weights, n);
    ReDimPreserve(c.InstrumentUse, n, Currency::FromWhole(1));
    for (int s = 1; s <= c.NumStudents; ++s)
      ReDimPreserve(c.Students[static_cast<std::size_t>(s)].Marks, n, ShortText("80"));
  }
  void Open(Portal& portal) {
    portal.Load();
    dialog = std::make_unique<PortalDialog>(portal);
    ASSERT_EQ(dialog->Complaints().join(u'\n').toStdString(), "");
    dialog->resize(1000, 400);
    dialog->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog.get()));
  }
  template <typename W>
  W& Find(const char* name) {
    auto* found = dialog->findChild<W*>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  // By the name of the control that has the focus.
  std::string Focused() { return dialog->focusWidget()->objectName().toStdString(); }
  // At whatever widget stands there, as a mouse does.
  void ClickAt(const QPoint& place) {
    QTest::mouseClick(dialog->windowHandle(), Qt::LeftButton, {}, place);
  }
  GridWidget& grid() { return Find<GridWidget>("Grid1"); }
  QRect PlaceOf(int row, int col) {
    QRect place = grid().CellRect(row, col);
    place.moveTopLeft(grid().viewport()->mapTo(dialog.get(), place.topLeft()));
    return place;
  }

  HeadlessSurroundings surroundings;
  std::unique_ptr<PortalDialog> dialog;
};

}  // namespace tallyroll
