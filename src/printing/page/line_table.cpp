// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/page/line_table.h"

#include <algorithm>
#include <iterator>

#include "printing/page/paper_line.h"

namespace tallyroll {
namespace {

using Lines = std::vector<TableLine>;

class Paper {
 public:
  Paper(PrintTarget& target, int width) : target_(target), unit_(ColumnUnit(width)) {}

  void Print(const Lines& lines) const {
    for (const TableLine& line : lines) {
      if (line.rule != 0) {
        PrintRule();
        continue;
      }
      PaperLine cells(target_);
      for (const LineCell& cell : line.cells) cells.Put(cell.column * unit_, cell.text);
      cells.End();
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
      const int column = std::max(cell.column, 1);
      if (cell.text.starts_with('|'))
        text.Bar(column);
      else
        text.Tab(column);
      text.Put(cell.text);
    }
    text.End();
  }
}

Section SectionOf(const Paper& paper, const LineBlock& block) {
  return {.rows = block.count,
          .print =
              [&paper, &block](int row) {
                paper.Print(block.row(row));
                if (row == block.count) paper.Print(block.foot);
              },
          .head = [&paper, &block] { paper.Print(block.head); },
          .head_lines = LinesOnPaper(block.head),
          .lines =
              [&block](int row) { return 1 + (row == block.count ? LinesOnPaper(block.foot) : 0); },
          .student = block.of_students ? StudentOfRow : std::function<int(int)>()};
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
    if (&block != &table.blocks.front()) text.End();
    Write(text, block.head, table.text_rule);
    for (int row = 1; row <= block.count; ++row) {
      if (Cancelled()) return;
      Write(text, block.row(row), table.text_rule);
    }
    Write(text, block.foot, table.text_rule);
  }
}

}  // namespace tallyroll
