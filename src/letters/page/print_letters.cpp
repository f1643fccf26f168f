// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/page/print_letters.h"

#include <algorithm>

#include "letters/page/letter_measure.h"
#include "printing/page/print_job.h"

namespace tallyroll {
namespace {

void DrawSheets(PrintTarget& printer, const std::vector<LetterPage>& pages, std::size_t first,
                std::size_t last, bool& sheet_begun) {
  for (std::size_t page = first; page < last; ++page) {
    if (sheet_begun) printer.NewPage();
    sheet_begun = true;
    DrawLetterPage(printer, pages[page]);
  }
}

bool EndJob(PrintTarget& printer, bool done) {
  if (!done) printer.KillDoc();
  return printer.EndDoc() && done;
}

}  // namespace

bool PrintLetters(PrintTarget& printer, int count,
                  const std::function<RichText(int letter)>& letter,
                  const std::function<void(int letter)>& progress) {
  LetterMeasure measure(printer);
  const LetterMargins margins = ChosenMargins();
  bool sheet_begun = false;
  for (int i = 1; i <= count; ++i) {
    if (progress) progress(i);
    if (Cancelled()) return EndJob(printer, false);
    const std::vector<LetterPage> pages = LayOutLetter(letter(i), measure, margins);
    DrawSheets(printer, pages, 0, pages.size(), sheet_begun);
  }
  return EndJob(printer, true);
}

bool PrintLetterPages(PrintTarget& printer, const std::vector<LetterPage>& pages,
                      const PrintRange& range) {
  const auto first = static_cast<std::size_t>(std::max(range.from_page, 1)) - 1;
  const auto last = std::min(static_cast<std::size_t>(std::max(range.to_page, 0)), pages.size());
  bool sheet_begun = false;
  DrawSheets(printer, pages, first, last, sheet_begun);
  return EndJob(printer, true);
}

}  // namespace tallyroll
