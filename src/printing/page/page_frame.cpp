// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/page/page_frame.h"

#include <algorithm>
#include <cmath>

#include "base/line_reader.h"
#include "base/number_text.h"
#include "base/text.h"
#include "platform/portal.h"
#include "platform/surroundings.h"
#include "printing/page/paper_line.h"
#include "printing/page/report_choice.h"
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

bool HeadsSchool() {
  return HeadsStudent() && Choice.school;
}

void PrintCentred(PrintTarget& target, std::string_view text) {
  target.CurrentX = std::max((Job.PageTextWidth - target.TextWidth(text)) / 2, 0.0);
  PrintLine(target, text);
}

void PrintSchoolAndDate(PrintTarget& target, double body_size) {
  target.FontSize = kHeadSize;
  const std::string today = DateText(std::floor(Platform().Now()), Platform().ShortDateOrder());
  const double date_place = Job.PageTextWidth - target.TextWidth(today);
  const double line_below = target.CurrentY + target.TextHeight("A");
  if (HeadsSchool()) target.PrintWithin(Trim(Current().school), date_place - target.TextWidth(" "));
  target.CurrentX = date_place;
  target.FontSize = body_size;
  PrintLine(target, today);
  if (HeadsSchool()) target.CurrentY = std::max(target.CurrentY, line_below);
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

// What is wider than a line is broken at the margin; `line` keeps the rest.
void BreakWide(const PrintTarget& target, std::string& line, std::vector<std::string>& lines) {
  while (line.size() > 1 && target.TextWidth(line) > Job.PageTextWidth) {
    const std::size_t fits = std::max<std::size_t>(target.Fitting(line, Job.PageTextWidth), 1);
    lines.push_back(line.substr(0, fits));
    line = std::string(TrimLeft(std::string_view(line).substr(fits)));
  }
}

void Wrap(const PrintTarget& target, std::string text, std::vector<std::string>& lines) {
  std::string line;
  for (std::string word = NextWord(text); !word.empty(); word = NextWord(text)) {
    if (target.TextWidth(line + word) > Job.PageTextWidth && !line.empty()) {
      lines.push_back(line);
      line.clear();
    }
    line += word;
    BreakWide(target, line, lines);
  }
  if (target.TextWidth(line + text) < Job.PageTextWidth) return lines.push_back(line + text);
  if (!line.empty()) lines.push_back(line);
  BreakWide(target, text, lines);
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
  if (HeadsStudent() && Choice.teacher) PrintLine(target, Trim(Current().teacher));
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
  Job.PageFirst.push_back(first);
  Job.PageLast.push_back(position - 1);
  Job.PageStudent.push_back(CurrentStudent);
  ++pass.page;
  restart = false;
  if (Job.FirstPageAlone) throw ReportEnds{};
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

// The foot stands behind an empty line in the lines that are kept free for it.
bool WouldPushFootOff(const PrintTarget& target, int lines) {
  return WouldPassBottom(target, lines + 2 - kFootLines);
}

void NoteTooTall() {
  Job.Notice = "The report ends with " + StudentLabel() +
               ": what is printed of one student takes more than a page. Choose a smaller font or "
               "narrower margins.";
}

int LinesBelowHead(const PrintTarget& target) {
  constexpr int kBodyLines = 3, kTitles = 2;
  const double school = HeadsSchool() ? std::max(kHeadSize - target.FontSize, 0.0) : 0;
  const double teacher = HeadsStudent() && Choice.teacher ? kHeadSize : 0;
  const double head = kBodyLines + (school + teacher + kTitles * kTitleSize) / target.FontSize;
  return static_cast<int>(Job.PageBottom / target.TextHeight("A") - head);
}

void FitBlock(ReportPass& pass, int position) {
  PrintTarget& target = pass.target;
  const double line = target.TextHeight("A");
  const double comment = std::nearbyint(line * CommentLines(target) / 4.0);
  Job.BlockLines = static_cast<int>(std::nearbyint(line * Job.BlockLines));
  const double block = Job.BlockLines + comment;
  if (block + target.CurrentY > Job.PageBottom) BreakPage(pass, position);
  if (block > Job.PageBottom) {
    PageFooter(pass, position + 1);
    NoteTooTall();
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
  for (const std::string& line : WrappedComment(target)) PrintLine(target, line);
}

void Rule(PrintTarget& target) {
  target.Line(0, target.CurrentY, Job.PageTextWidth, target.CurrentY);
}

}  // namespace tallyroll
