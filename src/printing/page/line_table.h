// SPDX-License-Identifier: GPL-3.0-or-later
// A report as a table of lines whose cells stand at columns of characters. Paper and text file show
// the same lines. In a text file a column is a tab stop, the first being 1; on paper it is as wide
// as the print font's "N", or less where the page is too narrow for all of them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "printing/page/page_frame.h"
#include "printing/page/sections.h"
#include "printing/page/text_report.h"

namespace tallyroll {

struct LineCell {
  int column = 0;  // 0 is the left edge; a line goes from left to right
  std::string text;
};

struct TableLine {
  std::vector<LineCell> cells;
  char rule = 0;  // a line of this character across the table instead of cells
};

// Rows under their heads. A table that is too wide goes on in a further block with the same rows.
struct LineBlock {
  std::vector<TableLine> head;
  int count = 0;
  // The row of a number from 1: a line of cells, which a rule may follow. Made when it is wanted,
  // since a page shows few of them.
  std::function<std::vector<TableLine>(int row)> row = nullptr;
  std::vector<TableLine> foot = {};  // behind the last row
  bool of_students = false;          // its rows are the students of the class
};

struct LineTable {
  int width = 80;  // columns that paper has room for
  std::vector<LineBlock> blocks;
  int text_rule = width;  // characters of a rule in a text file
};

// Prints the rows of the pass, blocks one behind the other, and what stands behind the table.
// `restart` is that of PageFooter.
void PrintLineTable(ReportPass& pass, const LineTable& table, bool restart = false,
                    std::vector<Section> behind = {});
void WriteTable(TextReport& text, const LineTable& table);

}  // namespace tallyroll
