// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/distribution_printout.h"

#include <algorithm>

#include "analysis/grade_figures.h"
#include "base/number_text.h"
#include "base/text.h"
#include "printing/page/page_frame.h"
#include "printing/page/paper_line.h"
#include "printing/print_command.h"
#include "printing/print_message.h"
#include "printing/print_run.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kHeadColumn = 10, kCountColumn = 40, kFigureColumn = 50;

void AddFigure(std::vector<ColumnLine>& lines, std::string_view words, std::string figure) {
  lines.push_back({{1, std::string(words)}, {kFigureColumn, std::move(figure)}});
}

void AddFigures(std::vector<ColumnLine>& lines, const GradeFigures& figures) {
  const auto percent = [](i16 value) { return SignedNumberText(int{value}) + " %"; };
  lines.emplace_back();
  AddFigure(lines, "The number of students present was", SignedNumberText(int{figures.present}));
  AddFigure(lines, "The number of students absent was", SignedNumberText(int{figures.absent}));
  lines.emplace_back();
  AddFigure(lines, "The number of students who passed was", SignedNumberText(int{figures.passed}));
  AddFigure(lines, "The number of students who failed was", SignedNumberText(int{figures.failed}));
  lines.emplace_back();
  AddFigure(lines, "The percent of students who passed was", percent(figures.perpassed));
  AddFigure(lines, "The percent of students who failed was", percent(figures.perfailed));
  lines.emplace_back();
  AddFigure(lines, "The lowest grade was", SignedNumberText(figures.lowest));
  AddFigure(lines, "The highest grade was", SignedNumberText(figures.highest));
  lines.emplace_back();
  AddFigure(lines, "The standard deviation was", SignedNumberText(figures.deviation));
  AddFigure(lines, "The class average was ", SignedNumberText(figures.average));
}

// How wide a column is, so that the last one and what it holds stay on the page.
double WidthOfColumn(const PrintTarget& target, const std::vector<ColumnLine>& lines) {
  constexpr int kLastText = 12;
  int columns = 1;
  for (const ColumnLine& line : lines)
    for (const ColumnText& text : line) columns = std::max(columns, text.column + kLastText);
  return std::min(target.AverageCharWidth(), static_cast<double>(Job.PageTextWidth) / columns);
}

bool PrintLines(ReportPass& pass, const std::vector<ColumnLine>& lines) {
  PrintTarget& target = pass.target;
  const double width = WidthOfColumn(target, lines);
  for (const ColumnLine& line : lines) {
    if (Cancelled()) return false;
    if (WouldPassBottom(target, 1)) {
      PageFooter(pass, 0);
      NewPageOn(target);
      ++pass.page;
    }
    PaperLine on_paper(target);
    for (const ColumnText& text : line) on_paper.Put((text.column - 1) * width, text.text);
    on_paper.End();
  }
  return true;
}

}  // namespace

void PrintColumnLines(std::string_view head, const std::vector<ColumnLine>& lines) {
  Job.PrintTab = 1;
  Job.ReportCode = 0;
  ResetPrintJob();
  if (Job.PrintFlag != kPrintRuns) return;
  PrintMessage message;
  const auto printer = OpenPrinterOrTell();
  if (!printer) return;
  PrepareTarget(*printer);
  ReportPass pass{.target = *printer};
  message.ShowPage(pass.page, 0);
  PageHeader(pass, head);
  const bool done = PrintLines(pass, lines);
  if (done) PageFooter(pass, 0);
  if (!done || Job.PrintFlag == kPrintCancelled) printer->KillDoc();
  printer->EndDoc();
}

void PrintDistribution(int grade) {
  const Instrument& instrument = Current().Instruments[static_cast<std::size_t>(grade)];
  const RangeCounts counts = CountRanges(grade);
  std::vector<ColumnLine> lines = {{{1, "Distribution of Grades"}}, {}};
  for (std::size_t range = 1; range <= kRanges; ++range)
    lines.push_back({{kHeadColumn, std::string(kRangeTableHeads[range])},
                     {kCountColumn, SignedNumberText(counts[range])}});
  if (const auto figures = FiguresOfGrade(grade)) AddFigures(lines, *figures);
  PrintColumnLines(std::string(TrimRight(instrument.title)) + " Statistics: ", lines);
}

}  // namespace tallyroll
