// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/student_clipboard.h"

#include "store/class_defaults.h"
#include "tests/roster/roster_test.h"

namespace tallyroll {
namespace {

class StudentClipboardTest : public RosterTest {
 protected:
  StudentClipboardTest() {
    Class& c = Current();
    c.NumInstruments = 2;
    c.NumDays = 3;
    c.NumSummaries = 1;
    Student& ada = Enrol("Ng", "Ada", "7");
    AddStudentDefaults();
    ada.parent = "Eve Ng";
    ada.phone = "555";
    ada.email = "  ";
    ada.city = "Oslo";
    ada.comments = "Sits in front.\r\nWears glasses.";
    ada.Marks[1] = "95.5";
    ada.Marks[2] = "A-";
    ReDim(ada.DailyMarks, 3);
    ada.DailyMarks[2] = "A";
    ada.SummaryAbsent[1] = "3";
    ada.SummaryLate[1] = "12";
    ada.SummaryDetail[1] = " 1/ 2/ 0/ 0/";
  }
  static const Student& Ada() { return Current().Students.at(1); }
};

const std::string kFieldLines =
    "3z\rNg\rAda\r7\rEve Ng\r555\r=\r=\r=\rOslo\r=\r=\r=\r"
    "Sits in front.\r\nWears glasses.<END FIELD>\r2\r3\r1\r";

TEST_F(StudentClipboardTest, AllInformationHoldsMarksDaysAndSummaries) {
  EXPECT_EQ(StudentOnClipboard(Ada(), true),
            kFieldLines + "95.5\rA-\r \rA\r \r3    \r12\r 1/ 2/ 0/ 0/\r");
}

TEST_F(StudentClipboardTest, BasicInfoHoldsWhatANewStudentHas) {
  EXPECT_EQ(StudentOnClipboard(Ada(), false),
            kFieldLines + "NEW  \rNEW  \r \r \r \r0    \r0    \r 0/ 0/ 0/ 0/\r");
}

TEST_F(StudentClipboardTest, AnEmptyCommentIsWrittenAsAnEqualsSign) {
  Current().Students[1].comments = "";
  const std::string text = StudentOnClipboard(Ada(), true);
  EXPECT_NE(text.find("\r=<END FIELD>\r"), std::string::npos);
  EXPECT_EQ(ReadStudent(text)->fields.comments, "");
}

TEST_F(StudentClipboardTest, EveryFieldComesBack) {
  const auto text = ReadStudent(StudentOnClipboard(Ada(), true));
  ASSERT_TRUE(text);
  EXPECT_EQ(text->fields.lastname, "Ng");
  EXPECT_EQ(text->fields.firstname, "Ada");
  EXPECT_EQ(text->fields.id, "7");
  EXPECT_EQ(text->fields.parent, "Eve Ng");
  EXPECT_EQ(text->fields.phone, "555");
  EXPECT_EQ(text->fields.city, "Oslo");
  EXPECT_EQ(text->marks, (std::vector<std::string>{"95.5", "A-"}));
  EXPECT_EQ(text->days, (std::vector<std::string>{" ", "A", " "}));
  ASSERT_EQ(text->summaries.size(), 1u);
  EXPECT_EQ(text->summaries[0].detail, " 1/ 2/ 0/ 0/");
}

TEST_F(StudentClipboardTest, AnEmptyParentComesBackEmpty) {
  Current().Students[1].parent = "";
  EXPECT_EQ(ReadStudent(StudentOnClipboard(Ada(), true))->fields.parent, "");
}

TEST_F(StudentClipboardTest, ACommentOfSeveralLinesSurvives) {
  for (const char* comment :
       {"a\r\nb", "a\r\n\r\nb\r\n", "\r\n a", "<END FIELD> of\r\n<END FIELD>"}) {
    Current().Students[1].comments = comment;
    EXPECT_EQ(ReadStudent(StudentOnClipboard(Ada(), true))->fields.comments, comment);
  }
}

TEST_F(StudentClipboardTest, AnyLineEndWillDo) {
  std::string text = StudentOnClipboard(Ada(), true);
  std::string lines;
  for (const char c : text) {
    if (c == '\r') lines += '\n';
    if (c != '\r' && c != '\n') lines += c;
  }
  const auto read = ReadStudent(lines);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->fields.comments, "Sits in front.\r\nWears glasses.");
  EXPECT_EQ(read->marks.size(), 2u);
}

TEST_F(StudentClipboardTest, ATextCutAnywhereIsRefusedOrWhole) {
  const std::string text = StudentOnClipboard(Ada(), true);
  for (std::size_t length = 2; length < text.size(); ++length) {
    const auto read = ReadStudent(std::string_view(text).substr(0, length));
    // The last line may lose its end, and some of its letters.
    EXPECT_EQ(read.has_value(), length > text.find("12\r 1/") + 3) << length;
  }
}

TEST_F(StudentClipboardTest, CountsThatAreNoneAreRefused) {
  const std::string head = kFieldLines.substr(0, kFieldLines.size() - 6);
  ASSERT_TRUE(ReadStudent(head + "0\r0\r0\r"));
  for (const char* counts : {"-1\r0\r0\r", "x\r0\r0\r", "\r0\r0\r", "1.5\r0\r0\r", "1e9\r0\r0\r",
                             "0\r0\r", "40000\r0\r0\r", "1\r0\r0\r", "0\r0\r99\r"})
    EXPECT_FALSE(ReadStudent(head + counts)) << counts;
}

TEST_F(StudentClipboardTest, CountsMayHaveBlanksAround) {
  const std::string head = kFieldLines.substr(0, kFieldLines.size() - 6);
  EXPECT_TRUE(ReadStudent(head + " 1\r 0 \r0\rA\r"));
}

TEST_F(StudentClipboardTest, ATextLongerThanAFileCanHoldIsRefused) {
  std::string text = kFieldLines;
  text.replace(3, 2, std::string(65536, 'n'));
  EXPECT_FALSE(ReadStudent(text + "A\rB\r \r \r \r0\r0\r0\r"));
}

TEST_F(StudentClipboardTest, ALineEndInsideAFieldIsWrittenAsABlank) {
  Current().Students[1].city = "Os\r\nlo";
  EXPECT_EQ(ReadStudent(StudentOnClipboard(Ada(), true))->fields.city, "Os  lo");
}

TEST_F(StudentClipboardTest, AStudentWithoutDaysHasBlankOnes) {
  Current().Students[1].DailyMarks.clear();
  EXPECT_EQ(ReadStudent(StudentOnClipboard(Ada(), true))->days,
            (std::vector<std::string>{" ", " ", " "}));
}

TEST_F(StudentClipboardTest, ListsAreTakenByPositionAsFarAsBothReach) {
  const auto text = ReadStudent(StudentOnClipboard(Ada(), true));
  Current().NumInstruments = 1;
  Current().NumDays = 5;
  Current().NumSummaries = 2;
  Student& bo = Enrol("Le", "Bo", "8");
  ReDim(bo.DailyMarks, 5);
  AddStudentDefaults();
  TakeLists(*text, bo);
  EXPECT_EQ(UpperBound(bo.Marks), 1);
  EXPECT_EQ(bo.Marks[1], "95.5");
  EXPECT_EQ(bo.DailyMarks[2], "A");
  EXPECT_EQ(bo.DailyMarks[5], " ");
  EXPECT_EQ(bo.SummaryAbsent[1], "3    ");
  EXPECT_EQ(bo.SummaryLate[1], "12");
  EXPECT_EQ(bo.SummaryAbsent[2], "0    ");
  EXPECT_EQ(bo.SummaryLate[2], "0");
  EXPECT_EQ(bo.SummaryDetail[2], " 0/ 0/ 0/ 0/");
}

TEST_F(StudentClipboardTest, MarksLoseTheBlanksThatFillThemUp) {
  const auto text = ReadStudent(StudentOnClipboard(Ada(), false));
  Student& bo = Enrol("Le", "Bo", "8");
  AddStudentDefaults();
  TakeLists(*text, bo);
  EXPECT_EQ(bo.Marks[1], "NEW");
  EXPECT_EQ(bo.SummaryLate[1], "0");
}

// An equals sign at the beginning would be read as nothing.
TEST_F(StudentClipboardTest, AValueThatBeginsLikeNothingGetsABlankBeforeIt) {
  Current().Students[1].city = "=Oslo";
  Current().Students[1].comments = "=5 points\r\n= more";
  const auto text = ReadStudent(StudentOnClipboard(Ada(), true));
  ASSERT_TRUE(text);
  EXPECT_EQ(text->fields.city, " =Oslo");
  EXPECT_EQ(text->fields.comments, " =5 points\r\n= more");
}

}  // namespace
}  // namespace tallyroll
