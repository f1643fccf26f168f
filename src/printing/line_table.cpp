// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/line_table.h"

#include <algorithm>
#include <iterator>

namespace tallyroll {
namespace {

using Lines = std::vector<TableLine>;

class Paper {
 public:
  Paper(PrintTarget& target, int width)
      : target_(target),
        unit_(std::min(Job.CharUnit, static_cast<double>(Job.PageTextWidth) / width)) {}

  void Print(const Lines& lines) const {
    for (const TableLine& line : lines) {
      if (line.rule != 0) {
        PrintRule();
        continue;
      }
      for (const LineCell& cell : line.cells) {
        target_.CurrentX = cell.column * unit_;
        target_.PrintOpen(cell.text);
      }
      target_.Print();
    }
  }

 private:
  // A rule needs no line of its own on paper.
  void PrintRule() const { Rule(target_); }

  PrintTarget& target_;
  double unit_;
};

int LinesOnPaper(const Lines& lines) {
  return static_cast<int>(std::count_if(lines.begin(), lines.end(),
                                        [](const TableLine& line) { return line.rule == 0; }));
}

void Write(TextReport& text, const Lines& lines, int width) {
  for (const TableLine& line : lines) {
    if (line.rule != 0) {
      text.Row(width, line.rule);
      continue;
    }
    for (const LineCell& cell : line.cells) {
      text.Tab(std::max(cell.column, 1));
      text.Put(cell.text);
    }
    text.End();
  }
}

Section SectionOf(const Paper& paper, const LineBlock& block) {
  const auto row_at = [&block](int row) -> const Lines& {
    return block.rows[static_cast<std::size_t>(row) - 1];
  };
  const int count = static_cast<int>(block.rows.size());
  return {.rows = count,
          .print =
              [&paper, &block, row_at, count](int row) {
                paper.Print(row_at(row));
                if (row == count) paper.Print(block.foot);
              },
          .head = [&paper, &block] { paper.Print(block.head); },
          .head_lines = LinesOnPaper(block.head),
          .lines =
              [&block, row_at, count](int row) {
                return LinesOnPaper(row_at(row)) + (row == count ? LinesOnPaper(block.foot) : 0);
              }};
}

}  // namespace

void PrintLineTable(ReportPass& pass, const LineTable& table, bool restart,
                    std::vector<Section> behind) {
  const Paper paper(pass.target, table.width);
  std::vector<Section> sections;
  sections.reserve(table.blocks.size() + behind.size());
  for (const LineBlock& block : table.blocks) sections.push_back(SectionOf(paper, block));
  std::move(behind.begin(), behind.end(), std::back_inserter(sections));
  PrintSections(pass, sections, restart);
}

void WriteTable(TextReport& text, const LineTable& table) {
  for (const LineBlock& block : table.blocks) {
    Write(text, block.head, table.text_rule);
    for (const Lines& row : block.rows) {
      if (Cancelled()) return;
      Write(text, row, table.text_rule);
    }
    Write(text, block.foot, table.text_rule);
  }
}

}  // namespace tallyroll
