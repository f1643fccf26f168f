// SPDX-License-Identifier: GPL-3.0-or-later
#include <vector>

#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "printing/page/html_parts.h"
#include "printing/page/report_choice.h"
#include "printing/reports/report_parts.h"
#include "printing/reports/roll_book.h"
#include "printing/reports/student_column.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

// The label spans what its three head cells do, a grade as much as the word above the first.
constexpr std::string_view kLabelCell = "<TD COLSPAN = 51>";
constexpr std::string_view kHeadRow = "<TR ALIGN = LEFT>";
constexpr std::string_view kGradeCell = "<TD COLSPAN = 5>";

std::string GradeCell(std::string_view text) {
  return std::string(kGradeCell) + HtmlText(Trim(text)) + "</TD>";
}

std::string LabelCell(std::string_view text) {
  return std::string(kLabelCell) + HtmlText(text) + "</TD>";
}

template <typename TextOfGrade>
std::string HtmlRollRowOf(std::string_view opening, std::string_view label,
                          const std::vector<int>& grades, TextOfGrade text) {
  std::string row = std::string(opening) + LabelCell(label);
  for (const int grade : grades) row += GradeCell(text(grade));
  return row + "</TR>\r\n";
}

std::string DetailRow(const Instrument& grade) {
  const auto cell = [](std::string_view text) { return "<TD>" + HtmlText(Trim(text)) + "</TD>"; };
  return "<TR>" + cell(grade.title) + cell(grade.code) + cell(grade.typecode) +
         cell(grade.testdate) + cell(PlainNumberText(grade.mvalue)) + "</TR>\r\n";
}

std::string Details() {
  std::string table =
      "<TABLE BORDER = 1 CELLPADDING = 2 CELLSPACING = 2 >\r\n"
      "<TR><TD> TITLE  </TD><TD>CODE <TD> TYPE  </TD><TD> DATE <TD>   MAX. SCORE </TD></TR>\r\n";
  for (int i = 1; i <= GradeCount(Current()); ++i) table += DetailRow(GradeInReport(i));
  return table + " </TABLE>\r\n";
}

}  // namespace

std::string RollBookHtml(std::string_view title) {
  const std::vector<int> grades = RollBookGrades();
  std::string html = HtmlHead(title) + "<TABLE BORDER = 1 CELLPADDING = 2 CELLSPACING = 2 >\r\n" +
                     "<CAPTION> ROLLBOOK " + HtmlText(title) + " </CAPTION>\r\n" +
                     "<TR ALIGN = LEFT ><TH>" + std::string(StudentColumnHead()) +
                     "<TH><TH COLSPAN = 49><TH COLSPAN = 5> GRADES </TH></TR>\r\n";
  html += HtmlRollRowOf(kHeadRow, "", grades,
                        [](int i) { return std::string_view(GradeInReport(i).code); });
  html += HtmlRollRowOf(kHeadRow, "", grades, [](int i) { return WholeDateWithoutYear(i); });
  for (int s = 1; s <= Current().NumStudents && !Cancelled(); ++s) {
    const Student& student = Current().Students[static_cast<std::size_t>(s)];
    html += HtmlRollRowOf("<TR>", StudentColumnText(student), grades,
                          [&](int i) { return MarkOf(student, i); });
  }
  html += "</TABLE>\r\n";
  if (Choice.printcode) html += Details();
  return html + "</BODY></html>";
}

}  // namespace tallyroll
