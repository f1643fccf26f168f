// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/consecutive.h"

#include "tests/attendance/attendance_test.h"

namespace tallyroll {
namespace {

class ConsecutiveTest : public AttendanceTest {
 protected:
  ConsecutiveTest() {
    Enrol("Li", "Bo", "2");
    Enrol("Ng", "Ada", "1");
    SetRange({9, 2026}, {9, 2026});
  }
  // A mark a day from 1 September on.
  static void Marks(int student, const std::string& marks) {
    for (std::size_t j = 0; j < marks.size(); ++j)
      At(student).DailyMarks[j + 1] = std::string_view(marks).substr(j, 1);
  }
  // "1: 2 3" of each row: student and days of September.
  static std::string Runs(int at_least, DayRange range = {1, 30}) {
    std::string text;
    for (const AbsenceRun& run : AbsencesInARow(range, at_least)) {
      text +=
          (text.empty() ? "" : "; ") + std::string(1, static_cast<char>('0' + run.student)) + ":";
      for (const double day : run.dates)
        text += std::string(1, static_cast<char>('0' + static_cast<int>(day - Day(2026, 8, 31))));
    }
    return text;
  }
};

TEST_F(ConsecutiveTest, AbsentCutSpecialAndNoteAreAbsences) {
  Marks(1, "ACSN");
  EXPECT_EQ(Runs(4), "1:1234");
}

TEST_F(ConsecutiveTest, ExcusedAndLateEndARow) {
  Marks(1, "AAEAALAA");
  EXPECT_EQ(Runs(2), "1:12; 1:45; 1:78");
  EXPECT_EQ(Runs(3), "");
}

TEST_F(ConsecutiveTest, ABlankOnADayThatAnotherIsMarkedOnEndsARow) {
  Marks(1, "AA AA");
  Marks(2, "  L");
  EXPECT_EQ(Runs(3), "");
  EXPECT_EQ(Runs(2), "1:12; 1:45");
}

TEST_F(ConsecutiveTest, ADayThatNobodyIsMarkedOnDoesNotPartARow) {
  Marks(1, "AA  A");
  EXPECT_EQ(Runs(3), "1:125");
}

TEST_F(ConsecutiveTest, OnlyTheRangeCounts) {
  Marks(1, "AAAAA");
  EXPECT_EQ(Runs(1, {2, 4}), "1:234");
}

TEST_F(ConsecutiveTest, AStudentWithoutDailyMarksIsNeverAbsent) {
  At(1).DailyMarks.clear();
  Marks(2, "A");
  EXPECT_EQ(Runs(1), "2:1");
}

}  // namespace
}  // namespace tallyroll
