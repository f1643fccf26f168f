// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/weight_printout.h"

#include <algorithm>

#include "platform/surroundings.h"
#include "printing/page/page_frame.h"
#include "printing/page/paper_line.h"
#include "printing/print_command.h"
#include "printing/print_run.h"

namespace tallyroll {
namespace {

// In widths of the average character.
constexpr int kGap = 3;                        // behind the names and the heads
constexpr int kFirstStep = 5, kLaterStep = 7;  // the least that the later columns lie apart
constexpr int kFewest = 10;                    // what a name keeps in any case

// The left edges of the columns. The second stands behind the longest name, the others so that no
// head runs into the next one. Where they pass the page they come nearer to the names.
std::vector<double> ColumnsOf(const PrintedTable& table, PrintTarget& target) {
  const double character = target.AverageCharWidth();
  double names = 0;
  for (const auto& row : table.rows) names = std::max(names, target.TextWidth(row.front()));
  target.FontBold = true;
  std::vector<double> columns = {(table.first_column - 1) * character};
  for (std::size_t i = 1; i < table.head.size(); ++i) {
    const double step = (i == 1 ? 0 : i == 2 ? kFirstStep : kLaterStep) * character;
    const double head = target.TextWidth(table.head[i - 1]) + kGap * character;
    const double texts = i == 1 ? names + kGap * character : 0;
    columns.push_back(columns.back() + std::max({step, head, texts}));
  }
  const double end = columns.back() + target.TextWidth(table.head.back());
  target.FontBold = false;
  const double room = columns[1] - columns[0] - kFewest * character;
  const double passed = std::clamp(end - Job.PageTextWidth, 0.0, std::max(room, 0.0));
  for (std::size_t i = 1; i < columns.size(); ++i) columns[i] -= passed;
  return columns;
}

class TablePages {
 public:
  TablePages(const PrintedTable& table, PrintTarget& target, PrintMessage& message)
      : table_(table), target_(target), message_(message), columns_(ColumnsOf(table, target)) {}

  // False: it was cancelled.
  bool Print() {
    message_.ShowPage(pass_.page, 0);
    PageHeader(pass_, table_.title);
    PrintHead();
    for (const auto& row : table_.rows) {
      if (Cancelled()) return false;
      if (WouldPassBottom(target_, 1)) BreakTable();
      PrintRow(row);
      Rule(target_);
    }
    PageFooter(pass_, 0);
    return Job.PrintFlag != kPrintCancelled;
  }

 private:
  void PrintRow(const std::vector<std::string>& cells) {
    PaperLine line(target_);
    for (std::size_t i = 0; i < cells.size(); ++i) line.Put(columns_[i], cells[i]);
    line.End();
  }

  void PrintHead() {
    target_.FontBold = true;
    PrintRow(table_.head);
    if (!table_.second_head.empty()) PrintRow(table_.second_head);
    target_.FontBold = false;
    Rule(target_);
  }

  void BreakTable() {
    PageFooter(pass_, 0);
    NewPageOn(target_);
    message_.ShowPage(++pass_.page, 0);
    PrintHead();
  }

  const PrintedTable& table_;
  PrintTarget& target_;
  PrintMessage& message_;
  std::vector<double> columns_;
  ReportPass pass_{.target = target_};
};

}  // namespace

void PrintWeights(const PrintedTable& table) {
  Job.PrintTab = 1;
  Job.ReportCode = 0;
  ResetPrintJob();
  if (Job.PrintFlag != kPrintRuns) return;
  PrintMessage message;
  const auto printer = OpenPrinterOrTell();
  if (!printer) return;
  PrepareTarget(*printer);
  if (!TablePages(table, *printer, message).Print()) printer->KillDoc();
  printer->EndDoc();
}

}  // namespace tallyroll
