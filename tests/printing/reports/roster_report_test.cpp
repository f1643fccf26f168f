// SPDX-License-Identifier: GPL-3.0-or-later
// Rosters, contact forms and class information on paper and as text.
#include "printing/reports/report_writers.h"
#include "tests/printing/report_test.h"

namespace tallyroll {
namespace {

class RosterReportTest : public ReportTest {
 protected:
  RosterReportTest() {
    Enrol("Ng", "Ada", "17");
    Enrol("O'Hara", "Bo", "23");
  }
};

TEST_F(RosterReportTest, NamesAndIdsWithRoomForNotes) {
  EXPECT_EQ(
      TextOf(19),
      (Rows{"Class Roster", "",  //
            "     NAME                                  ID                        NOTES", "",
            "1    Ng, Ada                               | 17            ", std::string(80, '_'),
            "2    O'Hara, Bo                            | 23            ", std::string(80, '_')}));
}

TEST_F(RosterReportTest, IdsAloneHaveNoNameColumn) {
  NameMode = 73;
  EXPECT_EQ(TextOf(19),
            (Rows{"Class Roster", "", "     ID                                    NOTES", "",
                  "1    17                 ", std::string(80, '_'), "2    23                 ",
                  std::string(80, '_')}));
}

TEST_F(RosterReportTest, NamesAlone) {
  NameMode = 57;
  EXPECT_EQ(TextOf(19)[2], "     NAME                                                  NOTES");
  EXPECT_EQ(TextOf(19)[4], "1    Ng, Ada                               ");
}

TEST_F(RosterReportTest, TheGridFormFillsTheLineWithBoxes) {
  // The notes begin at column 60: two boxes of nine characters end at 77.
  EXPECT_EQ(TextOf(23)[0], " Class Roster Printout Grid Form");
  EXPECT_EQ(TextOf(23)[4],
            "1    Ng, Ada                               | 17                    |        |");
}

TEST_F(RosterReportTest, OnPaperBothFormsBearTheGridFormsTitle) {
  for (const i16 code : {i16{19}, i16{23}}) {
    LayOut(code);
    EXPECT_EQ(PageRows(1)[1], " Class Roster Printout Grid Form") << code;
  }
}

TEST_F(RosterReportTest, ARuleClosesEachRowOfTheRoster) {
  LayOut(19);
  const PrintedPage page = Page(1);
  // The head ends at 1392 with two lines behind it, each student takes one.
  EXPECT_EQ(page.lines, (std::vector<PrintedLine>{{0, 2112, 11240, 2112}, {0, 2352, 11240, 2352}}));
}

TEST_F(RosterReportTest, BoxesStayWithinTheMargin) {
  LayOut(23);
  // From column 60, 5900 twips, five boxes of 900 fit for each of two students.
  std::string boxes;
  for (int i = 0; i < 5; ++i) boxes += "        |";
  std::vector<PrintedText> found;
  for (const PrintedText& text : Page(1).texts)
    if (text.text == boxes) found.push_back(text);
  ASSERT_EQ(found.size(), 2U);
  for (const PrintedText& text : found) EXPECT_EQ(text, (PrintedText{5900, text.y, boxes, 10}));
}

TEST_F(RosterReportTest, AClassWithoutStudentsHasOnePage) {
  Current().NumStudents = 0;
  Current().Students.clear();
  LayOut(19);
  EXPECT_EQ(PageTable(), (std::vector<std::pair<int, int>>{{1, 0}}));
}

class LongRosterTest : public ReportTest {};

TEST_F(LongRosterTest, RowsGoOnOnTheNextPageUnderTheHeads) {
  EnrolMany(120);
  LayOut(19);
  // Page 1: the head ends at 1392, the column heads take 2 lines to 1872; 50 rows of 240 end at
  // 13872, and another would pass 13880. Later pages: an empty line and the heads, 720; 54 rows end
  // at 13680, and another would pass.
  EXPECT_EQ(PageTable(), (std::vector<std::pair<int, int>>{{1, 50}, {51, 104}, {105, 120}}));
  EXPECT_EQ(PageRows(2).front(), "NAME ID NOTES");
  EXPECT_EQ(PageRows(2)[1], "51 Last151, First | 151");
  EXPECT_EQ(PageRows(3).back(), "Page 3");
}

TEST_F(LongRosterTest, ACancelledLayoutHasNoFurtherPages) {
  EnrolMany(120);
  screen.on_pump = [this] {
    if (screen.pumped == 60) Job.PrintFlag = kPrintCancelled;
  };
  Job.ReportCode = 19;
  EXPECT_FALSE(LayOutReport());
  EXPECT_EQ(Job.PageCount, 1);
}

TEST_F(RosterReportTest, AContactFormHasSixLines) {
  Student& student = Current().Students[1];
  student.birth = "4/5/2013";
  student.phone = "555-0100";
  student.work = "555-0101";
  student.email = "ada@example.org";
  student.parent = "Li Ng";
  student.address = "1 Elm St.";
  student.city = "Riverside";
  student.state = "NY";
  student.zip = "10001";
  Choice.students = {1};
  EXPECT_EQ(TextOf(21),
            (Rows{" Student Home Contact Form", "",
                  "Ng, Ada                               ID: 17          D.O.B.: 4/5/2013",
                  "Home Phone: 555-0100              Parent's Work Phone: 555-0101",
                  "E-Mail Address: ada@example.org", "Parent's Name: Li Ng", "Address: 1 Elm St.",
                  "Riverside                    NY        10001", std::string(77, '_'), ""}));
}

TEST_F(RosterReportTest, ContactFormsOfTheClassFollowOneAnother) {
  const Rows lines = TextOf(20);
  ASSERT_EQ(lines.size(), 2U + 2 * 8);
  EXPECT_EQ(lines[2].substr(0, 7), "Ng, Ada");
  EXPECT_EQ(lines[10].substr(0, 10), "O'Hara, Bo");
}

TEST_F(LongRosterTest, AContactFormIsNeverCutByAPage) {
  EnrolMany(20);
  LayOut(20);
  // A block takes 7 lines of 240, 1680 twips. Page 1 begins at 1392: the seventh block ends at
  // 13152, an eighth would pass 13880. Later pages begin at 240: the eighth block ends at 13680.
  EXPECT_EQ(PageTable(), (std::vector<std::pair<int, int>>{{1, 7}, {8, 15}, {16, 20}}));
}

TEST_F(RosterReportTest, ClassInformationIsSevenLabelledLines) {
  Class& c = Current();
  c.school = "Riverside";
  c.description = "Math 8";
  c.teacher = "Mrs. W";
  c.termstart = "9/1/2026";
  c.termend = "1/1/2027";
  c.timed = "Period 3";
  c.room = "214";
  EXPECT_EQ(
      TextOf(22),
      (Rows{" Class Information Printout", "",  //
            "School                       Riverside", "", "Class Designation            Math 8", "",
            "Teacher's Name               Mrs. W", "", "Term Start Date              9/1/2026", "",
            "Term End Date                1/1/2027", "", "Time/Period                  Period 3",
            "", "Room Number                  214", ""}));
  LayOut(22);
  EXPECT_EQ(PageTable(), (std::vector<std::pair<int, int>>{{1, 1}}));
  EXPECT_EQ(PageRows(1)[3], "School Riverside");
}

TEST_F(RosterReportTest, AFileThatCannotBeWrittenIsToldAndNothingIsLeft) {
  Job.ReportCode = 22;
  screen.ExpectBox("File Error");
  EXPECT_NE(SaveReportText(Path("no such folder/report.txt")), 0);
  EXPECT_FALSE(std::filesystem::exists(Path("no such folder")));
}

}  // namespace
}  // namespace tallyroll
