// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/page/page_frame.h"

#include "base/number_text.h"
#include "store/settings.h"
#include "tests/printing/report_test.h"

namespace tallyroll {
namespace {

class PageFrameTest : public ReportTest {
 protected:
  PageFrameTest() { SetupPage(target); }

  Rows Printed() const { return FixedPrintTarget::RowsOf(target.job->pages.back()); }
  const PrintedText& Text(std::size_t i) const { return target.job->pages.back().texts.at(i); }

  FixedPrintTarget target;
  ReportPass pass{target};
};

TEST_F(PageFrameTest, MarginsNarrowThePage) {
  // 12240 - 500 - 500 across. Down: the sheet ends at 15840 - 500, less 500, less 4 lines of 240.
  EXPECT_EQ(Job.PageTextWidth, 11240);
  EXPECT_EQ(Job.PageBottom, 13880);
  EXPECT_EQ(target.ScaleLeft, -500);
  EXPECT_EQ(target.ScaleTop, -500);
  EXPECT_EQ(Job.CharUnit, 100);
}

TEST_F(PageFrameTest, AMarginThatWasNeverSetIs500Twips) {
  MarginTop = MarginLeft = MarginBottom = MarginRight = "";
  SetupPage(target);
  EXPECT_EQ(Job.PageTextWidth, 11240);
  EXPECT_EQ(Job.PageBottom, 13880);
  EXPECT_EQ(MarginTop, "-500");
}

TEST_F(PageFrameTest, EachMarginCountsForItself) {
  MarginTop = "-1000";
  MarginLeft = "-200";
  MarginBottom = "-300";
  MarginRight = "-1500";
  SetupPage(target);
  EXPECT_EQ(Job.PageTextWidth, 12240 - 200 - 1500);
  EXPECT_EQ(Job.PageBottom, 15840 - 1000 - 300 - 960);
}

TEST_F(PageFrameTest, TheHeadHasDateTitleAndTheTeachersTitle) {
  PageHeader(pass, " Title");
  EXPECT_EQ(Printed(), (Rows{"9/1/2026", " Title", "MATH"}));
  // The date's width is taken at 12 points, 8 characters of 120 twips; it stands on the second
  // line.
  EXPECT_EQ(Text(0), (PrintedText{11240 - 960, 240, "9/1/2026", 10}));
  // Titles at 14 points, 140 twips a character, on lines of 336; the first below a line of 240.
  EXPECT_EQ(Text(1), (PrintedText{(11240 - 840) / 2, 480, " Title", 14}));
  EXPECT_EQ(Text(2), (PrintedText{(11240 - 560) / 2, 816, "MATH", 14}));
  // An empty line of the body closes the head.
  EXPECT_EQ(target.CurrentY, 816 + 336 + 240);
  EXPECT_EQ(target.FontSize, 10);
}

TEST_F(PageFrameTest, ALaterPageBeginsWithAnEmptyLine) {
  pass.page = 2;
  PageHeader(pass, " Title");
  EXPECT_EQ(Printed(), Rows{});
  EXPECT_EQ(target.CurrentY, 240);
}

TEST_F(PageFrameTest, ACancelledRunHasNoHead) {
  Job.PrintFlag = kPrintCancelled;
  PageHeader(pass, " Title");
  EXPECT_EQ(Printed(), Rows{});
  EXPECT_EQ(target.CurrentY, 0);
}

TEST_F(PageFrameTest, SchoolAndTeacherHeadTheTabsOfStudentsAndAverages) {
  Current().school = " Riverside ";
  Current().teacher = " Mrs. W ";
  Choice.school = Choice.teacher = true;
  for (const i16 tab : {i16{2}, i16{4}}) {
    Job.PrintTab = tab;
    PageHeader(pass, "Title");
    EXPECT_EQ(Printed(), (Rows{"Riverside 9/1/2026", "Mrs. W", "Title", "MATH"})) << tab;
  }
}

TEST_F(PageFrameTest, SchoolAndTeacherDoNotHeadTheClassReports) {
  Current().school = "Riverside";
  Current().teacher = "Mrs. W";
  Choice.school = Choice.teacher = true;
  for (const i16 tab : {i16{1}, i16{3}}) {
    Job.PrintTab = tab;
    PageHeader(pass, "Title");
    EXPECT_EQ(Printed(), (Rows{"9/1/2026", "Title", "MATH"})) << tab;
  }
}

TEST_F(PageFrameTest, SchoolAndTeacherStandOnlyWhereTheyAreChosen) {
  Current().school = "Riverside";
  Current().teacher = "Mrs. W";
  Job.PrintTab = 2;
  PageHeader(pass, "Title");
  EXPECT_EQ(Printed(), (Rows{"9/1/2026", "Title", "MATH"}));
}

TEST_F(PageFrameTest, ABodyOf12PointsComesBackAHairSmaller) {
  target.FontSize = 12;
  PageHeader(pass, "Title");
  EXPECT_EQ(target.FontSize, 11.99);
}

TEST_F(PageFrameTest, ABodyOf12PointsInCourierStays) {
  target.FontName = "Courier";
  target.FontSize = 12;
  PageHeader(pass, "Title");
  EXPECT_EQ(target.FontSize, 12);
}

TEST_F(PageFrameTest, APrinterTakesTheHairSmallerSizeAcrossAPage) {
  FixedPrintTarget printer(FixedPrintTarget::Kind::kPrinter);
  printer.FontSize = 12;
  NewPageOn(printer);
  EXPECT_EQ(printer.FontSize, 11.99);
  EXPECT_EQ(printer.job->pages.size(), 2U);
  printer.FontSize = 9;
  NewPageOn(printer);
  EXPECT_EQ(printer.FontSize, 9);
}

TEST_F(PageFrameTest, TheFootNumbersThePageInTheMiddle) {
  target.CurrentY = 1000;
  PageFooter(pass, 4);
  // "Page" and two blanks are 600 twips.
  EXPECT_EQ(Text(0), (PrintedText{(11240 - 600) / 2, 1000, "Page 1", 10}));
  EXPECT_EQ(Job.PageCount, 0);
}

TEST_F(PageFrameTest, TheLayoutPassEntersEachPage) {
  pass.recording = true;
  CurrentStudent = 4;
  PageFooter(pass, 4);
  CurrentStudent = 9;
  PageFooter(pass, 9);
  EXPECT_EQ(Job.PageCount, 2);
  EXPECT_EQ(PageTable(), (std::vector<std::pair<int, int>>{{1, 3}, {4, 8}}));
  EXPECT_EQ(Job.PageStudent, (std::vector<i16>{0, 4, 9}));
  EXPECT_EQ(pass.page, 3);
}

TEST_F(PageFrameTest, APageThatRestartsBeginsWithRow1) {
  pass.recording = true;
  bool restart = false;
  PageFooter(pass, 6, restart);
  restart = true;
  PageFooter(pass, 3, restart);
  EXPECT_FALSE(restart);
  EXPECT_EQ(PageTable(), (std::vector<std::pair<int, int>>{{1, 5}, {1, 2}}));
}

TEST_F(PageFrameTest, ABlockThatFitsStaysOnItsPage) {
  EnrolMany(1);
  CurrentStudent = 1;
  pass.recording = true;
  Job.BlockLines = 2;
  target.CurrentY = 13880 - 480;
  FitBlock(pass, CurrentStudent);
  EXPECT_EQ(Job.PageCount, 0);
  EXPECT_EQ(Job.BlockLines, 480);
}

TEST_F(PageFrameTest, ABlockThatPassesTheBottomBreaksThePage) {
  EnrolMany(3);
  CurrentStudent = 3;
  pass.recording = true;
  Job.BlockLines = 2;
  target.CurrentY = 13880 - 479;
  FitBlock(pass, CurrentStudent);
  EXPECT_EQ(PageTable(), (std::vector<std::pair<int, int>>{{1, 2}}));
  EXPECT_EQ(target.CurrentY, 240);
}

TEST_F(PageFrameTest, ACommentWeighsAQuarterOfItsLines) {
  Student& student = (EnrolMany(1), Current().Students[1]);
  CurrentStudent = 1;
  pass.recording = true;
  Choice.comment1 = true;
  // 112 characters a line: 11240 / (500 / 5). 887 + 9 characters are 8 lines, 480 twips in
  // quarters.
  student.comments = std::string(887, 'a');
  Job.BlockLines = 1;
  target.CurrentY = 13880 - 240 - 480;
  FitBlock(pass, CurrentStudent);
  EXPECT_EQ(Job.PageCount, 0);
  Job.BlockLines = 1;
  ++target.CurrentY;
  FitBlock(pass, CurrentStudent);
  EXPECT_EQ(Job.PageCount, 1);
}

TEST_F(PageFrameTest, LineEndsOfACommentAreLines) {
  Student& student = (EnrolMany(1), Current().Students[1]);
  CurrentStudent = 1;
  pass.recording = true;
  Choice.comment1 = true;
  student.comments = "a\r\nb\r\nc\r\nd";  // 10 + 9 characters: nearest to 0.17 + 3 is 3 lines
  Job.BlockLines = 1;
  target.CurrentY = 13880 - 240 - 180;
  FitBlock(pass, CurrentStudent);
  EXPECT_EQ(Job.PageCount, 0);
  Job.BlockLines = 1;
  ++target.CurrentY;
  FitBlock(pass, CurrentStudent);
  EXPECT_EQ(Job.PageCount, 1);
}

TEST_F(PageFrameTest, ABlockTallerThanAPageEndsTheLayoutWithItsStudent) {
  EnrolMany(5);
  CurrentStudent = 3;
  pass.recording = true;
  Job.BlockLines = 100;
  target.CurrentY = 5000;
  EXPECT_THROW(FitBlock(pass, CurrentStudent), ReportEnds);
  EXPECT_EQ(PageTable(), (std::vector<std::pair<int, int>>{{1, 2}, {3, 3}}));
  EXPECT_TRUE(Job.Notice.starts_with("The report ends with 103 Last103, First: "));
}

TEST_F(PageFrameTest, ACommentIsWrappedAtWords) {
  EnrolMany(1);
  CurrentStudent = 1;
  Job.PageTextWidth = 2000;  // 20 characters
  Current().Students[1].comments = " Reads well and writes often. ";
  WrapComments(target);
  EXPECT_EQ(Printed(), (Rows{"COMMENTS: Reads ", "well and writes ", "often."}));
}

TEST_F(PageFrameTest, TheEndOfACommentNeedsLessThanTheLine) {
  EnrolMany(1);
  CurrentStudent = 1;
  Current().Students[1].comments = "well done!";  // 20 characters with what stands ahead
  Job.PageTextWidth = 2000;
  WrapComments(target);
  EXPECT_EQ(Printed(), (Rows{"COMMENTS: well ", "done!"}));
  target.Cls();
  Job.PageTextWidth = 2001;
  WrapComments(target);
  EXPECT_EQ(Printed(), Rows{"COMMENTS: well done!"});
}

TEST_F(PageFrameTest, AWordWiderThanALineIsBrokenAtTheMargin) {
  EnrolMany(1);
  CurrentStudent = 1;
  Job.PageTextWidth = 1200;
  Current().Students[1].comments = "Extraordinarily good";
  WrapComments(target);
  EXPECT_EQ(Printed(), (Rows{"COMMENTS: ", "Extraordinar", "ily good"}));
}

TEST_F(PageFrameTest, TheLinesOfACommentStay) {
  EnrolMany(1);
  CurrentStudent = 1;
  Current().Students[1].comments = "One\r\n\r\nTwo";
  WrapComments(target);
  EXPECT_EQ(Printed(), (Rows{"COMMENTS: One", "Two"}));
  EXPECT_EQ(target.CurrentY, 3 * 240);
}

TEST_F(PageFrameTest, TheSchoolsLineIsAsHighAsTheSchool) {
  Current().school = "Riverside";
  Current().teacher = "Mrs. W";
  Choice.school = Choice.teacher = true;
  Job.PrintTab = 2;
  PageHeader(pass, "Title");
  EXPECT_EQ(Text(0), (PrintedText{0, 240, "Riverside", 12}));
  EXPECT_EQ(Text(2), (PrintedText{0, 240 + 288, "Mrs. W", 12}));
}

TEST_F(PageFrameTest, ALongTitleIsSetSmallerAndAVeryLongOneIsCut) {
  PageHeader(pass, std::string(100, 't'));
  // 100 characters of 140 twips; 11240 hold them at 11.24 points, which is 224.8 twips high.
  EXPECT_EQ(Text(1).x, 0);
  EXPECT_NEAR(Text(1).size, 11.2, 0.01);
  PageHeader(pass, std::string(200, 't'));
  // At six tenths, 8.4 points, a character is 84 twips: 133 of them, the last an ellipsis.
  EXPECT_NEAR(Text(1).size, 8.4, 0.01);
  EXPECT_EQ(Text(1).text, std::string(132, 't') + "\x85");
}

TEST_F(PageFrameTest, ATabNeverPrintsOver) {
  target.PrintOpen("abcdef");
  target.Tab(4);
  EXPECT_EQ(target.CurrentX, 700);
  target.Tab(8);
  EXPECT_EQ(target.CurrentX, 800);  // the very column leaves a blank
  target.Tab(10);
  EXPECT_EQ(target.CurrentX, 900);
}

TEST(NextWordTest, TakesAWordWithItsBlank) {
  std::string text = "Reads well now";
  EXPECT_EQ(NextWord(text), "Reads ");
  EXPECT_EQ(NextWord(text), "well ");
  EXPECT_EQ(NextWord(text), "");
  EXPECT_EQ(text, "now");
}

TEST_F(PageFrameTest, AStudentIsNamedAsTheDisplayAsks) {
  Enrol("Ng  ", "Ada ", "17");
  CurrentStudent = 1;
  NameMode = 68;
  EXPECT_EQ(StudentLabel(), "17 Ng, Ada");
  NameMode = 82;
  EXPECT_EQ(StudentLabel(), "17 Ng, Ada");
  NameMode = 57;
  EXPECT_EQ(StudentLabel(), "Ng, Ada");
  NameMode = 73;
  EXPECT_EQ(StudentLabel(), "17");
}

}  // namespace
}  // namespace tallyroll
