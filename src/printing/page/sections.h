// SPDX-License-Identifier: GPL-3.0-or-later
// A report on paper as sections of rows. Its rows are numbered through, as the page table counts
// them, so any page can be drawn by itself. A section without rows shows its head alone.
#pragma once

#include <functional>
#include <vector>

#include "printing/page/page_frame.h"

namespace tallyroll {

struct Section {
  int rows = 0;
  std::function<void(int row)> print;  // rows count from 1 within the section
  // Above the first row and again on each new page, parted from what precedes by an empty line.
  std::function<void()> head = [] {};
  int head_lines = 0;
  std::function<int(int row)> lines = [](int) { return 1; };  // what a row takes
  // Decides in the layout pass instead of the lines whether a row begins a new page, and breaks it.
  std::function<void(ReportPass& pass, int row)> fit = nullptr;
  // Who stands in a row, so that the page table knows each student's page; null where nobody does.
  std::function<int(int row)> student = nullptr;
};

// Of a section whose rows are the students of the class.
inline int StudentOfRow(int row) {
  return row;
}

int RowCount(const std::vector<Section>& sections);

// Prints the rows of the pass with their heads, and the foot of the last page. In the layout pass
// these are all rows, and pages are broken between them. `restart` is that of PageFooter.
void PrintSections(ReportPass& pass, const std::vector<Section>& sections, bool restart = false);

}  // namespace tallyroll
