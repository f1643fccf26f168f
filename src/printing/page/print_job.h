// SPDX-License-Identifier: GPL-3.0-or-later
// The one print run. Printing takes two passes: the report is laid out whole on a surface that
// nobody sees, which fills the page table; then each page is drawn by itself from its entry there,
// in any order and as often as wanted.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/print_target.h"
#include "store/records.h"

namespace tallyroll {

inline constexpr i16 kPrintWaits = 0;  // the title is being asked for
inline constexpr i16 kPrintRuns = 1;
inline constexpr i16 kPrintCancelled = 2;

// What every page keeps free below its last body line.
inline constexpr int kFootLines = 4;

struct PrintJob {
  i16 PrintFlag = kPrintWaits;  // every row loop of every writer polls it
  i16 PrintTab = 1;             // tab of the Printer Portal, 1 to 4
  i16 ReportCode = 0;
  std::string PrintTitle;           // the teacher's own title, below the report's
  std::function<void()> AtEachRow;  // told once a row, by whoever shows how far the run has come
  // A look at one page: the layout ends with the first, and nobody is asked, told or waited for.
  bool FirstPageAlone = false;

  int PageTextWidth = 0;  // twips from the left to the right margin
  int PageBottom = 0;     // the CurrentY below which no body line starts
  double CharUnit = 0;    // width of "N" in the print font; every table column is a multiple of it
  int BlockLines = 0;     // lines of the block before; FitBlock turns them into twips

  // The page table. A row is a student in the class reports and a line in the reports on one
  // student; rows past the last student are those of a table behind the students. Lists begin at 1.
  int PageCount = 0;
  std::vector<int> PageFirst{0}, PageLast{0};
  std::vector<i16> PageStudent{0};  // CurrentStudent when the page ended
  std::vector<int> FirstPage{0};    // by student, the first page that he stands on; 0 for none
  // First and last grade of each wrapped row of the grade matrix, found once for the first student.
  // The missing grades of the class keep the last row of each student in WrapLast.
  std::vector<int> WrapFirst{0}, WrapLast{0};
  std::string Notice;  // what the teacher is told about the pages that were laid out
};

extern PrintJob Job;

// One pass of a report writer: some of its rows on one page, or with `recording` all of them.
struct ReportPass {
  PrintTarget& target;
  int first = 1;
  int last = 0;  // reports on one student take none
  int page = 1;
  bool recording = false;
};

// Clears the page table.
void ClearPageTable();
// Enters that a student stands on a page, unless he stands on an earlier one.
void NoteStudentOnPage(int student, int page);
// The first page that a student stands on; 0 where the report has none of him.
int PageOfStudent(int student);
// The same, and asks for the title; PrintFlag then tells whether the run goes ahead.
void ResetPrintJob();

// Lets waiting events run; whether one of them cancelled the run. Asked once a row.
bool Cancelled();

// Sets the target's origin to the corner of the margins and finds PageTextWidth, PageBottom and
// CharUnit in its font. A margin that was never set is 500 twips.
void SetupPage(PrintTarget& target);

// The text that names CurrentStudent: ID and name as NameMode asks.
std::string StudentLabel();

// `text` up to and including its first blank, which is taken off it; without a blank the answer is
// empty and `text` stays.
std::string NextWord(std::string& text);

// Puts Job and Choice to their start values.
void ResetPrinting();

}  // namespace tallyroll
