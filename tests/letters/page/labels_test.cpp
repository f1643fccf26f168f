// SPDX-License-Identifier: GPL-3.0-or-later
// At 8 points a character is 80 twips wide: the tab columns 5, 49 and 93 lie at 320, 3840 and 7360.
#include "letters/page/labels.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "base/number_text.h"
#include "platform/fixed_print_target.h"
#include "printing/page/print_job.h"
#include "store/program_state.h"
#include "tests/support/enrol_student.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

using testing::ElementsAre;

class LabelsTest : public PortalTest {
 protected:
  static std::vector<i16> Enrol(int count) {
    std::vector<i16> students;
    for (int i = 1; i <= count; ++i) {
      Student& student = EnrolStudent("L" + PlainNumberText(i), "F", "");
      student.parent = "P" + PlainNumberText(i);
      student.address = "S" + PlainNumberText(i);
      student.city = "C";
      student.state = "IL";
      student.zip = "6";
      students.push_back(static_cast<i16>(i));
    }
    return students;
  }

  FixedPrintTarget printer{FixedPrintTarget::Kind::kPrinter};
};

TEST_F(LabelsTest, NameAddressAndCity) {
  Enrol(1);
  EXPECT_THAT(LabelLines(Current().Students[1], LabelTo::kStudent),
              ElementsAre("F L1", "S1", "C, IL 6"));
  EXPECT_THAT(LabelLines(Current().Students[1], LabelTo::kParent),
              ElementsAre("P1", "S1", "C, IL 6"));
}

TEST_F(LabelsTest, AnEmptyLineClosesUp) {
  Enrol(1);
  Student& student = Current().Students[1];
  student.address = "  ";
  student.state = "";
  EXPECT_THAT(LabelLines(student, LabelTo::kParent), ElementsAre("P1", "C 6"));
  student.city = student.zip = student.parent = "";
  EXPECT_THAT(LabelLines(student, LabelTo::kParent), ElementsAre());
}

TEST_F(LabelsTest, ThreeAcrossAtTheirColumns) {
  ASSERT_TRUE(PrintLabels(printer, Enrol(5), LabelTo::kParent));
  const std::vector<PrintedText>& texts = printer.job->pages.at(0).texts;
  ASSERT_EQ(texts.size(), 15u);
  EXPECT_EQ(texts[0].x, 320);
  EXPECT_EQ(texts[3].x, 3840);
  EXPECT_EQ(texts[6].x, 7360);
  EXPECT_EQ(texts[9].x, 320);
  EXPECT_EQ(texts[12].x, 3840) << "the last row has two";
  EXPECT_EQ(texts[9].y - texts[0].y, 1440);
  EXPECT_EQ(texts[3].y, texts[0].y);
  EXPECT_THAT(FixedPrintTarget::RowsOf(printer.job->pages[0]),
              ElementsAre("P1 P2 P3", "S1 S2 S3", "C, IL 6 C, IL 6 C, IL 6", "P4 P5", "S4 S5",
                          "C, IL 6 C, IL 6"));
  EXPECT_EQ(printer.FontName, "Arial");
  EXPECT_TRUE(printer.job->ended);
}

// Ten rows of an inch are on a sheet of eleven inches, half an inch being free at both ends.
TEST_F(LabelsTest, ThirtyOnASheet) {
  ASSERT_TRUE(PrintLabels(printer, Enrol(61), LabelTo::kStudent));
  ASSERT_EQ(printer.job->pages.size(), 3u);
  EXPECT_EQ(printer.job->pages[1].texts.size(), 90u);
  EXPECT_EQ(printer.job->pages[2].texts.size(), 3u);
  EXPECT_EQ(printer.job->pages[2].texts[0].y, printer.job->pages[0].texts[0].y);
}

TEST_F(LabelsTest, ALongLineNeverReachesTheNextLabel) {
  const std::vector<i16> students = Enrol(2);
  Current().Students[1].parent = std::string(90, 'x');
  ASSERT_TRUE(PrintLabels(printer, students, LabelTo::kParent));
  const PrintedText& text = printer.job->pages[0].texts[0];
  EXPECT_LE(text.x + static_cast<double>(text.text.size()) * text.size * 10, 3840 - 2 * 80 + 1);
}

TEST_F(LabelsTest, ACancelledRunIsDropped) {
  Job.PrintFlag = kPrintCancelled;
  EXPECT_FALSE(PrintLabels(printer, Enrol(2), LabelTo::kStudent));
  EXPECT_TRUE(printer.job->killed);
}

}  // namespace
}  // namespace tallyroll
