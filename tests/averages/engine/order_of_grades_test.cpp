// SPDX-License-Identifier: GPL-3.0-or-later
// Another order of the grades changes no average, unless two of them tie for the lowest.
#include "averages/rounding.h"
#include "grades/frmdGrade.h"
#include "tests/averages/portals/portal_class.h"

namespace tallyroll {
namespace {

class OrderOfGradesTest : public AveragePortalTest {
 protected:
  OrderOfGradesTest() {
    Class& c = Current();
    OpenState = kOrderOfGrades;
    AddGrade("Quiz 1", "Q ", "Y");
    AddGrade("Quiz 2", "Q ", "Y").mvalue = 200;
    AddGrade("Test 1", "T ", "Y").mvalue = 50;
    AddGrade("Bonus", "X ");
    c.Weights = {Currency(), Money("30"), Money("50"), Money("20"), Money("5")};
    c.InstrumentUse = {Currency(), Money("1"), Money("1"), Money("2"), Money("1")};
    c.TypePercents[10] = Money("60");
    c.TypePercents[12] = Money("40");
    c.TypePercents[13] = Money("5");
    c.TypeWeights[10] = Money("2");
  }
  static Texts Averages() {
    Texts averages;
    for (CurrentStudent = 1; CurrentStudent <= Current().NumStudents; ++CurrentStudent) {
      StudentAverage student;
      EXPECT_FALSE(AverageStudent(student));
      averages.push_back(PlainNumberText(student.computed) + student.grade.number.str());
    }
    return averages;
  }
  void Move(int row, const char* button) {
    frmdGrade portal;
    Open(portal);
    driver->Choose("List1", row - 1);
    driver->Press(button);
    driver->Press("exitbt");
    EXPECT_EQ(driver->Complaints(), Texts{});
    driver.reset();
  }
};

TEST_F(OrderOfGradesTest, EachMoveLeavesEveryAverageAsItIs) {
  Enrol("Ng", {"71", "163", "38", "60"});
  Enrol("Orr", {"ABS", "B+", "CUT", "EXC"});
  Enrol("Poe", {"95", "12", "NEW", "100"});
  Class& c = Current();
  for (const i16 single : {kFalse, kTrue}) {
    for (i16 method = 0; method <= 3; ++method) {
      c.Method = method;
      c.AverageFlag2 = single;
      c.TypeWeights.fill(Currency());
      c.TypeWeights[10] = Money("2");
      const Texts before = Averages();
      for (int row = 1; row < 4; ++row) {
        Move(row, "down");
        EXPECT_EQ(Averages(), before) << "method " << method << ", down from " << row;
      }
      for (int row = 4; row > 1; --row) {
        Move(row, "up");
        EXPECT_EQ(Averages(), before) << "method " << method << ", up from " << row;
      }
      EXPECT_EQ(c.Instruments[1].title, "Quiz 1");
    }
  }
}

TEST_F(OrderOfGradesTest, OfATieTheGradeThatStandsEarlierIsDropped) {
  Enrol("Ng", {"70", "140", "45", "0"});
  Current().Method = 0;
  // 70 percent both. Without the first: 70% of 50 and 90% of 20, of 70.
  EXPECT_EQ(Averages(), (Texts{"75.7143 75"}));
  Move(2, "up");
  // Without the other: 70% of 30 and 90% of 20, of 50.
  EXPECT_EQ(Averages(), (Texts{"78 78"}));
  Move(1, "down");
  EXPECT_EQ(Averages(), (Texts{"75.7143 75"}));
}

}  // namespace
}  // namespace tallyroll
