// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "letters/merge/field_codes.h"
#include "tests/averages/engine/average_test.h"

namespace tallyroll {
namespace {

class FigureCodesTest : public AverageTest {
 protected:
  static std::string Value(std::string_view caption) {
    for (const FieldCode& code : FieldCodes())
      if (code.caption == caption) return FieldValue(code, 1);
    return "no such code";
  }
};

// 8 of 10 is 80, which the scale calls B-.
TEST_F(FigureCodesTest, AverageAndFinalGrade) {
  Put(0, {{"Q", 10, "8", "100"}});
  Current().RoundMode = 0;
  EXPECT_EQ(Value("<Average>"), "80");
  EXPECT_EQ(Value("<Final Grade>"), "80 (B-/SAT/3.0)");
}

TEST_F(FigureCodesTest, NobodyNoticesThatTheyWereComputed) {
  Put(0, {{"Q", 10, "8", "100"}});
  Current().RoundMode = 0;
  Current().Students[1].Marks[0] = "55";
  CurrentStudent = 7;
  Value("<Average>");
  EXPECT_EQ(Current().Students[1].Marks[0].str(), "55");
  EXPECT_EQ(CurrentStudent, 7);
}

TEST_F(FigureCodesTest, WithoutAMethodThereIsNoAverage) {
  Put(0, {{"Q", 10, "8", "100"}});
  Current().Method = 5;
  EXPECT_EQ(Value("<Average>"), "");
  EXPECT_EQ(Value("<Final Grade>"), "");
}

TEST_F(FigureCodesTest, MissingGradesByTheirTitles) {
  Put(0, {{"Q", 10, "8", "30"},
          {"Q", 10, "NON", "30"},
          {"Q", 10, "NEW", "20"},
          {"Q", 10, "EXC", "20"}});
  Current().Instruments[2].title = "Essay ";
  Current().Instruments[3].title = "Poem";
  EXPECT_EQ(Value("<Missing Grades>"), "Essay, Poem");
  Current().Students[1].Marks[2] = Current().Students[1].Marks[3] = "9";
  EXPECT_EQ(Value("<Missing Grades>"), "none");
}

}  // namespace
}  // namespace tallyroll
