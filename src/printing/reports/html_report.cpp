// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/reports/html_report.h"

#include <filesystem>

#include "base/code_page.h"
#include "base/line_reader.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "printing/page/html_parts.h"
#include "printing/page/report_work.h"
#include "printing/reports/report_codes.h"
#include "printing/reports/reports.h"
#include "store/class_file.h"
#include "store/program_state.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

// A blank at its width; the entity goes without its semicolon. One that the teacher typed behind a
// blank would be taken for it.
std::string WithBlanks(std::string_view text) {
  std::string html;
  char before = 0;
  for (const char c : HtmlText(text)) {
    if (c == ' ')
      html += "&nbsp";
    else if (c == ';' && before == ' ')
      html += "&#59;";
    else
      html += c;
    before = c;
  }
  return html;
}

std::string TextAsHtml(std::string_view title, std::string_view text) {
  std::string html = HtmlHead(title) + "<Font Size = 3 Font FACE = Courier New>";
  LineReader lines(text);
  while (const auto line = lines.Next())
    if (!line->empty()) html += WithBlanks(*line) + "\r\n<br>";
  return html + "</p>\r\n\r\n<br><br><br><br>\r\n</body>\r\n</html>";
}

}  // namespace

std::string HtmlText(std::string_view text) {
  std::string html;
  for (const char c : text) {
    switch (c) {
      case '&':
        html += "&amp;";
        break;
      case '<':
        html += "&lt;";
        break;
      case '>':
        html += "&gt;";
        break;
      case '"':
        html += "&quot;";
        break;
      default:
        html += c;
    }
  }
  return html;
}

std::string HtmlHead(std::string_view title) {
  return "<html>\r\n<head>\r\n"
         "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=windows-1252\">\r\n"
         "<title>" +
         HtmlText(title) + "</title>\r\n</head>\r\n<body>\r\n";
}

std::string ReportHtml() {
  const std::string title =
      PathForDisplay(std::filesystem::path(Current().FileName).stem().string());
  if (IsOneOf(Job.ReportCode, {kRollBook, kMonths})) {
    const ReportWork work(Job.ReportCode == kRollBook ? Current().NumStudents : 0);
    std::string html = Job.ReportCode == kRollBook ? RollBookHtml(title) : AttendanceHtml(title);
    return Job.PrintFlag == kPrintCancelled ? std::string() : html;
  }
  const std::string text = ReportText();
  return Job.PrintFlag == kPrintCancelled ? text : TextAsHtml(title, text);
}

int SaveReportHtml(const std::string& path) {
  const std::string html = ReportHtml();
  if (html.empty()) return 0;  // the teacher knows why
  const int error = ReplaceFile(path, html, OldTail::kDrop);
  if (error != 0)
    ShowMessage("File Error");
  else
    ClassWindow().ShowStatus(SavedText(path));
  return error;
}

}  // namespace tallyroll
