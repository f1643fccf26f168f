// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>

#include "base/date_serial.h"
#include "base/number_text.h"
#include "base/text.h"
#include "printing/page/html_parts.h"
#include "printing/page/print_job.h"
#include "printing/page/report_choice.h"
#include "printing/reports/month_table.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr std::array kHtmlWeekdays = {"Su", "Mo", "Tu", "We", "Th", "Fr", "Sa"};
// The last head has a zero for its "O": it is known so.
constexpr std::string_view kHtmlTotalHeads =
    "<TD rowspan = 2> A  B  S</TD><TD rowspan = 2> C  U  T </TD><TD rowspan = 2> E  X  C </TD>"
    "<TD rowspan = 2> S  P  A </TD><TD rowspan = 2> N  O  T</TD><TD rowspan = 2> L  A  T </TD>"
    "<TD rowspan = 2> T  0  T</TD></TR>\r\n";

std::string HtmlHeadOf(const Month& month) {
  std::string html =
      "<TABLE BORDER = 1 CELLPADDING = 2 CELLSPACING = 2 width = 100%>\r\n"
      "<CAPTION> Attendance Summary - ";
  html += std::string(MonthName(month.month)) + ", " + PlainNumberText(month.year) +
          "   </CAPTION>\r\n<TR ALIGN = LEFT ><TD COLSPAN = 90></TD>";
  for (int day = 1; day <= DaysIn(month); ++day)
    html += "<TD font size = 1>" + std::string(kHtmlWeekdays[WeekdayOf(month, day)]) + "</TD>";
  html += kHtmlTotalHeads;
  html += "<TR><TD  COLSPAN =  70 > Student Name </TD><TD COLSPAN = 20> Student ID </TD>";
  for (int day = 1; day <= DaysIn(month); ++day)
    html += "<TD font size = 3 >" + PlainNumberText(day) + "</TD>";
  return html + "</TR>\r\n";
}

std::string HtmlRowOf(const Student& student, const Month& month) {
  std::string html = "<TR><TD COLSPAN = 70>" + HtmlText(PlainName(student)) +
                     "</TD><TD COLSPAN = 20 >" + HtmlText(Trim(student.id)) + "</TD>";
  const MonthMarks marks = MarksOfMonth(student, month);
  for (int day = 1; day <= DaysIn(month); ++day) {
    const char mark = marks[static_cast<std::size_t>(day)];
    html += "<TD>" + (mark == ' ' ? "&nbsp" : HtmlText({&mark, 1})) + "</TD>";
  }
  for (const int count : CountsOf(marks)) html += "<TD>" + PlainNumberText(count) + "</TD>";
  return html + "</TR>\r\n";
}

}  // namespace

std::string AttendanceHtml(std::string_view title) {
  std::string html = HtmlHead(title);
  for (const Month& month : MonthsOf(Choice.month_first, Choice.month_last)) {
    html += HtmlHeadOf(month);
    for (int i = 1; i <= Current().NumStudents && !Cancelled(); ++i)
      html += HtmlRowOf(Current().Students[static_cast<std::size_t>(i)], month);
    html += "</table>\r\n";
  }
  return html + "</body></html>";
}

}  // namespace tallyroll
