// SPDX-License-Identifier: GPL-3.0-or-later
// What the month tells beside its texts. September 2026 begins on a Tuesday; the 14th is today.
#include "base/number_text.h"
#include "tests/attendance/frmAtt_test.h"

namespace tallyroll {
namespace {

class MonthNotesTest : public FrmAttTest {
 protected:
  MonthNotesTest() { OpenPortal(); }
  CellNote Of(int row, int day) const { return portal->Grid1.Notes.Of(row, day + 1); }
};

TEST_F(MonthNotesTest, SaturdaysAndSundaysAreWithoutSchool) {
  std::string days;
  for (int day = 1; day <= 30; ++day)
    if (Of(0, day).mark == CellMark::kNoSchool) days += PlainNumberText(day) + " ";
  EXPECT_EQ(days, "5 6 12 13 19 20 26 27 ");
  EXPECT_EQ(Of(0, 5).words, "Saturday");
  EXPECT_EQ(Of(0, 6).words, "Sunday");
}

TEST_F(MonthNotesTest, TodayIsMarkedInItsMonthAlone) {
  EXPECT_EQ(Of(0, 14).mark, CellMark::kToday);
  EXPECT_EQ(Of(0, 15).mark, CellMark::kNone);
  driver->Press("Command2");
  EXPECT_EQ(Of(0, 14).mark, CellMark::kNone);
}

TEST_F(MonthNotesTest, TheWeekdayStandsOverTheDay) {
  const GridNotes& notes = portal->Grid1.Notes;
  EXPECT_EQ(notes.AboveHead(2), "Tu");
  EXPECT_EQ(notes.AboveHead(31), "We");
  EXPECT_EQ(notes.AboveHead(0), "");
  EXPECT_EQ(notes.AboveHead(32), "");  // the first total
  EXPECT_EQ(notes.Tip(0, 2), "Tuesday, 9/1/2026");
  EXPECT_EQ(notes.Tip(1, 2), "");
  driver->Press("Command2");  // October begins on a Thursday
  EXPECT_EQ(notes.AboveHead(2), "Th");
}

TEST_F(MonthNotesTest, EachCodeIsToldInWords) {
  const std::pair<const char*, CellMark> codes[] = {
      {"A", CellMark::kAlarm}, {"C", CellMark::kAlarm}, {"E", CellMark::kSoft},
      {"S", CellMark::kSoft},  {"N", CellMark::kSoft},  {"L", CellMark::kWarning}};
  int day = 1;
  for (const auto& [code, mark] : codes) {
    Type(1, day, code);
    EXPECT_EQ(Of(1, day).mark, mark) << code;
    EXPECT_NE(Of(1, day).words, "") << code;
    ++day;
  }
  EXPECT_EQ(Of(1, 20).mark, CellMark::kNone);
  driver->Tick("mnuStudent");
  EXPECT_EQ(portal->Grid1.Notes.Of(1, Cols() - 1).mark, CellMark::kNone);
}

}  // namespace
}  // namespace tallyroll
