// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/page_frame.h"

#include <algorithm>
#include <cmath>

#include "base/line_reader.h"
#include "base/number_text.h"
#include "base/text.h"
#include "platform/portal.h"
#include "platform/surroundings.h"
#include "printing/report_choice.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr double kHeadSize = 12;
constexpr double kTitleSize = 14;
constexpr std::string_view kComments = "COMMENTS: ";

// A proportional font of 12 points comes back a hair smaller, as the page breaks were found with
// it.
double BodySize(const PrintTarget& target) {
  constexpr double kJustBelow12 = 11.99;
  return target.FontSize == 12 && target.FontName != "Courier" ? kJustBelow12 : target.FontSize;
}

// The heads of class reports bear neither school nor teacher.
bool HeadsStudent() {
  return Job.PrintTab == 2 || Job.PrintTab == 4;
}

void PrintCentred(PrintTarget& target, std::string_view text) {
  target.CurrentX = (Job.PageTextWidth - target.TextWidth(text)) / 2;
  target.Print(text);
}

void PrintSchoolAndDate(PrintTarget& target, double body_size) {
  target.FontSize = kHeadSize;
  if (HeadsStudent() && Choice.school) target.PrintOpen(Trim(Current().school));
  const std::string today = DateText(std::floor(Platform().Now()), Platform().ShortDateOrder());
  target.CurrentX = Job.PageTextWidth - target.TextWidth(today);
  target.FontSize = body_size;
  target.Print(today);
}

int CommentLines(const PrintTarget& target) {
  if (!Choice.comment1) return 0;
  const std::string& comments =
      Current().Students[static_cast<std::size_t>(CurrentStudent)].comments;
  const std::string_view text = Trim(comments);
  const auto n = static_cast<double>(text.size() + 9);
  const auto returns = static_cast<double>(std::count(text.begin(), text.end(), '\r'));
  const double in_line = std::trunc(Job.PageTextWidth / (target.TextWidth("Class") / 5));
  const double lines = std::trunc(std::nearbyint(n / std::max(in_line, 1.0) + returns) + 0.5);
  return std::max(static_cast<int>(lines), 1);
}

// A word that is wider than a line stands on one of its own.
void Wrap(const PrintTarget& target, std::string text, std::vector<std::string>& lines) {
  std::string line;
  for (std::string word = NextWord(text); !word.empty(); word = NextWord(text)) {
    if (target.TextWidth(line + word) > Job.PageTextWidth && !line.empty()) {
      lines.push_back(line);
      line.clear();
    }
    line += word;
  }
  if (target.TextWidth(line + text) < Job.PageTextWidth) return lines.push_back(line + text);
  if (!line.empty()) lines.push_back(line);
  lines.push_back(text);
}

}  // namespace

void PageHeader(ReportPass& pass, std::string_view title) {
  StudentHeader(pass, title, pass.page == 1);
}

void StudentHeader(ReportPass& pass, std::string_view title, bool student_begins) {
  PrintTarget& target = pass.target;
  if (target.IsPrinter() && Job.PrintFlag != kPrintCancelled) Platform().PumpEvents();
  if (!target.IsPrinter()) target.Cls();
  target.CurrentX = target.CurrentY = 0;
  if (Job.PrintFlag == kPrintCancelled) return;
  const double body_size = BodySize(target);
  target.FontSize = body_size;
  target.Print();
  if (!student_begins) return;
  PrintSchoolAndDate(target, body_size);
  target.FontSize = kHeadSize;
  if (HeadsStudent() && Choice.teacher) target.Print(Trim(Current().teacher));
  target.FontSize = kTitleSize;
  PrintCentred(target, title);
  PrintCentred(target, Job.PrintTitle);
  target.FontSize = body_size;
  target.Print();
}

void PageFooter(ReportPass& pass, int position, bool& restart) {
  PrintTarget& target = pass.target;
  target.CurrentX = (Job.PageTextWidth - target.TextWidth("Page  ")) / 2;
  target.Print("Page " + PlainNumberText(pass.page));
  if (!pass.recording) return;
  const bool at_first_row = restart || Job.PageCount == 0;
  const int first = at_first_row ? 1 : Job.PageLast.back() + 1;
  ++Job.PageCount;
  Job.PageFirst.push_back(static_cast<i16>(first));
  Job.PageLast.push_back(static_cast<i16>(position - 1));
  Job.PageStudent.push_back(CurrentStudent);
  ++pass.page;
  restart = false;
}

void PageFooter(ReportPass& pass, int position) {
  bool restart = false;
  PageFooter(pass, position, restart);
}

void NewPageOn(PrintTarget& target) {
  if (!target.IsPrinter()) return target.Cls();
  const double body_size = BodySize(target);
  target.NewPage();
  target.Print();
  target.FontSize = body_size;
}

void BeginPage(PrintTarget& target) {
  NewPageOn(target);
  target.Print();
}

void BreakPage(ReportPass& pass, int position) {
  PageFooter(pass, position);
  BeginPage(pass.target);
}

bool WouldPassBottom(const PrintTarget& target, int lines) {
  return target.TextHeight("A") * lines + target.CurrentY > Job.PageBottom;
}

void FitBlock(ReportPass& pass) {
  PrintTarget& target = pass.target;
  const double line = target.TextHeight("A");
  const double comment = std::nearbyint(line * CommentLines(target) / 4.0);
  Job.BlockLines = static_cast<int>(std::nearbyint(line * Job.BlockLines));
  const double block = Job.BlockLines + comment;
  if (block + target.CurrentY > Job.PageBottom) BreakPage(pass, CurrentStudent);
  if (block > Job.PageBottom) {
    PageFooter(pass, CurrentStudent + 1);
    throw ReportEnds{};
  }
}

std::vector<std::string> WrappedComment(const PrintTarget& target) {
  const std::string& comments =
      Current().Students[static_cast<std::size_t>(CurrentStudent)].comments;
  LineReader typed(Trim(comments));
  std::string ahead(kComments);
  std::vector<std::string> lines;
  do {
    Wrap(target, ahead + std::string(typed.Next().value_or("")), lines);
    ahead.clear();
  } while (!typed.Rest().empty());
  return lines;
}

void WrapComments(PrintTarget& target) {
  for (const std::string& line : WrappedComment(target)) target.Print(line);
}

void Rule(PrintTarget& target) {
  target.Line(0, target.CurrentY, Job.PageTextWidth, target.CurrentY);
}

}  // namespace tallyroll
