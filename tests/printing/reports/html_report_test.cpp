// SPDX-License-Identifier: GPL-3.0-or-later
// Reports as HTML, byte for byte, and texts that would break a page.
#include "printing/reports/html_report.h"

#include <fstream>
#include <iterator>

#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

class HtmlReportTest : public SmallClassTest {
 protected:
  HtmlReportTest() { Current().FileName = "/somewhere/Math 8.TYR"; }
  static std::string HtmlOf(i16 code) {
    Job.ReportCode = code;
    return ReportHtml();
  }
  static int Times(const std::string& text, const std::string& part) {
    int times = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1))
      ++times;
    return times;
  }
  static void ExpectPart(const std::string& html, const std::string& part) {
    EXPECT_NE(html.find(part), std::string::npos) << part << "\nis not in\n" << html;
  }
};

const std::string kHead =
    "<html>\r\n<head>\r\n"
    "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=windows-1252\">\r\n"
    "<title>Math 8</title>\r\n</head>\r\n<body>\r\n";

TEST_F(HtmlReportTest, ATextHasItsLinesBehindBreaks) {
  Current().NumStudents = 1;
  Choice.summary = 1;
  Choice.shown = Shown::kId;
  std::string rule;
  for (int i = 0; i < 80; ++i) rule += "_";
  std::string head = "ID", row = "17", title;
  for (int i = 0; i < 44; ++i) head += "&nbsp", row += "&nbsp";
  for (int i = 0; i < 19; ++i) title += "&nbsp";
  head += "TOTAL&nbspABSENCE&nbsp&nbspLATE";
  row += "2";
  for (int i = 0; i < 14; ++i) row += "&nbsp";
  row += "1";
  EXPECT_EQ(HtmlOf(9), kHead + "<Font Size = 3 Font FACE = Courier New>" + title +
                           "FIRST&nbspTERM\r\n<br>" + head + "\r\n<br>" + rule + "\r\n<br>" + row +
                           "\r\n<br></p>\r\n\r\n<br><br><br><br>\r\n</body>\r\n</html>");
}

TEST_F(HtmlReportTest, SignsOfMarkupAreTextInEveryForm) {
  Student& student = Current().Students[1];
  student.lastname = "<script>alert(\"1\")</script>";
  student.firstname = "A&B";
  student.id = "<b>";
  Current().Instruments[1].title = "</td></table>";
  Current().Instruments[1].code = "<i>";
  student.Marks[1] = "<u>&\"";
  student.comments = "</body> & \"quoted\"";
  Choice.comment1 = Choice.printcode = true;
  Choice.grade = Choice.summary = 1;
  Choice.month_first = Choice.month_last = kFirstOfSeptember;
  for (const int code : {1, 2, 3, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 23, 24}) {
    const std::string html = HtmlOf(static_cast<i16>(code));
    for (const char* broken : {"<script", "</script", "<b>", "<i>", "<u>", "</td>", "</table></",
                               "A&B", "</body> ", "\"1\"", "\"quoted\""})
      EXPECT_EQ(html.find(broken), std::string::npos) << broken << " in code " << code;
  }
  ExpectPart(HtmlOf(13), "&lt;/td&gt;&lt;/table&gt;");
  ExpectPart(HtmlOf(13), "Comments:&nbsp&lt;/body&gt;&nbsp&amp;&nbsp&quot;quoted&quot;");
  ExpectPart(HtmlOf(3), "&lt;script&gt;alert(&quot;1&quot;)&lt;/script&gt;, A&amp;B</TD>");
  ExpectPart(HtmlOf(3), "<TD COLSPAN = 5>&lt;u&gt;&amp;&quot;</TD>");
}

TEST_F(HtmlReportTest, ATitleOfMarkupIsText) {
  Current().FileName = "/x/<script>&.TYR";
  ExpectPart(HtmlOf(19), "<title>&lt;script&gt;&amp;</title>");
  ExpectPart(HtmlOf(3), "<CAPTION> ROLLBOOK &lt;script&gt;&amp; </CAPTION>");
}

TEST_F(HtmlReportTest, ASemicolonBehindABlankStays) {
  Current().Students[1].comments = "one ;two; three";
  Choice.comment1 = true;
  ExpectPart(HtmlOf(13), "one&nbsp&#59;two;&nbspthree");
}

TEST_F(HtmlReportTest, TheRollBookIsATable) {
  const std::string html = HtmlOf(3);
  EXPECT_EQ(html.substr(0, kHead.size()), kHead);
  ExpectPart(html,
             "<TABLE BORDER = 1 CELLPADDING = 2 CELLSPACING = 2 >\r\n"
             "<CAPTION> ROLLBOOK Math 8 </CAPTION>\r\n"
             "<TR ALIGN = LEFT ><TH>NAME and ID<TH><TH COLSPAN = 49>"
             "<TH COLSPAN = 5> GRADES </TH></TR>\r\n");
  ExpectPart(html,
             "<TD COLSPAN = 5>9/3</TD><TD COLSPAN = 5>9/10</TD><TD COLSPAN = 5>9/17</TD></TR>");
  ExpectPart(html,
             "<TR><TD COLSPAN = 51>23  O'Hara, Bo</TD><TD COLSPAN = 5>ABS</TD>"
             "<TD COLSPAN = 5>40</TD><TD COLSPAN = 5>NEW</TD></TR>");
  EXPECT_EQ(Times(html, "<TR>"), 3);
  EXPECT_TRUE(html.ends_with("</TABLE>\r\n</BODY></html>"));
}

TEST_F(HtmlReportTest, ADateWithoutAYearToCutStaysWhole) {
  Current().Instruments[1].testdate = "Sept. 3";
  Current().Instruments[2].testdate = "2026-09-10";
  ExpectPart(HtmlOf(3), "<TD COLSPAN = 5>Sept</TD><TD COLSPAN = 5>2026-09-10</TD>");
}

TEST_F(HtmlReportTest, TheRollBooksFirstHeadFollowsTheColumn) {
  Choice.shown = Shown::kName;
  ExpectPart(HtmlOf(3), "<TH>NAME<TH>");
  Choice.shown = Shown::kId;
  ExpectPart(HtmlOf(3), "<TH>  ID<TH>");
}

TEST_F(HtmlReportTest, TheRollBookExplainsItsCodesWhereThatIsChosen) {
  Choice.printcode = true;
  const std::string html = HtmlOf(3);
  ExpectPart(html, "<TD> TITLE  </TD><TD>CODE <TD> TYPE  </TD><TD> DATE <TD>   MAX. SCORE </TD>");
  ExpectPart(html, "<TR><TD>Midterm</TD><TD>T1</TD><TD>T</TD><TD>9/10/2026</TD><TD>50</TD></TR>");
  EXPECT_TRUE(html.ends_with(" </TABLE>\r\n</BODY></html>"));
}

TEST_F(HtmlReportTest, MonthsAreATableEach) {
  Choice.month_first = kFirstOfSeptember;
  Choice.month_last = kFirstOfOctober;
  const std::string html = HtmlOf(8);
  ExpectPart(html, "<CAPTION> Attendance Summary - September, 2026   </CAPTION>");
  ExpectPart(html, "<CAPTION> Attendance Summary - October, 2026   </CAPTION>");
  EXPECT_EQ(Times(html, "<TABLE BORDER = 1 CELLPADDING = 2 CELLSPACING = 2 width = 100%>"), 2);
  EXPECT_EQ(Times(html, "</table>"), 2);
  // 30 and 31 days, each with a weekday and a number.
  EXPECT_EQ(Times(html, "<TD font size = 1>"), 61);
  EXPECT_EQ(Times(html, "<TD font size = 3 >"), 61);
  ExpectPart(html, "<TD rowspan = 2> A  B  S</TD><TD rowspan = 2> C  U  T </TD>");
  ExpectPart(html, "<TD rowspan = 2> T  0  T</TD></TR>");
  ExpectPart(html, "<TD  COLSPAN =  70 > Student Name </TD><TD COLSPAN = 20> Student ID </TD>");
  ExpectPart(html,
             "<TD COLSPAN = 70>Quist, Cy</TD><TD COLSPAN = 20 >42</TD>"
             "<TD>C</TD><TD>E</TD><TD>&nbsp</TD>");
  EXPECT_TRUE(html.ends_with("</table>\r\n</body></html>"));
}

TEST_F(HtmlReportTest, APageThatCannotBeWrittenIsToldAndNothingIsLeft) {
  Job.ReportCode = 19;
  screen.ExpectBox("File Error");
  EXPECT_NE(SaveReportHtml(Path("no such folder/report.htm")), 0);
  EXPECT_FALSE(std::filesystem::exists(Path("no such folder")));
}

TEST_F(HtmlReportTest, ASavedPageIsThePage) {
  Job.ReportCode = 19;
  ASSERT_EQ(SaveReportHtml(Path("roster.htm")), 0);
  std::ifstream file(Path("roster.htm"), std::ios::binary);
  EXPECT_EQ(std::string(std::istreambuf_iterator<char>(file), {}), ReportHtml());
}

}  // namespace
}  // namespace tallyroll
