// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/page/sections.h"

#include <algorithm>

namespace tallyroll {
namespace {

class SectionWalk {
 public:
  SectionWalk(ReportPass& pass, const std::vector<Section>& sections, bool restart)
      : pass_(pass), sections_(sections), restart_(restart) {}

  void Run(int first, int last) {
    for (int row = first; row <= last; ++row) {
      if (Cancelled()) return;
      Enter(row);
      if (pass_.recording) {
        Fit(row);
        NoteStudent(row);
      }
      PrintHeads(row);
      sections_[section_].print(row - before_);
      page_is_empty_ = false;
    }
    if (last == RowCount(sections_)) PrintLastHeads(last);
    PageFooter(pass_, last + 1, restart_);
  }

 private:
  // Finds the section of a row.
  void Enter(int row) {
    int before = 0;
    for (std::size_t s = 0; s < sections_.size(); ++s) {
      if (row <= before + sections_[s].rows) {
        if (s != section_) headed_ = false;
        section_ = s;
        before_ = before;
        return;
      }
      before += sections_[s].rows;
    }
  }

  // The first section whose head stands above a row: sections without rows show their heads alone,
  // and they go with the row behind them.
  std::size_t FirstHead(int row) const {
    std::size_t first = section_;
    while (row == before_ + 1 && first > 0 && sections_[first - 1].rows == 0) --first;
    return first;
  }

  // An empty line parts a head from what precedes it on its page.
  static int LinesWithGap(const Section& section, bool page_is_empty) {
    return section.head_lines + (section.head_lines > 0 && !page_is_empty ? 1 : 0);
  }

  int HeadLines(int row) const {
    if (headed_) return 0;
    int lines = 0;
    for (std::size_t s = FirstHead(row); s <= section_; ++s)
      lines += LinesWithGap(sections_[s], page_is_empty_ && lines == 0);
    return lines;
  }

  void PrintHead(const Section& section) {
    if (LinesWithGap(section, page_is_empty_) > section.head_lines) pass_.target.Print();
    section.head();
    if (section.head_lines > 0) page_is_empty_ = false;
  }

  void PrintHeads(int row) {
    if (headed_) return;
    for (std::size_t s = FirstHead(row); s <= section_; ++s) PrintHead(sections_[s]);
    headed_ = true;
  }

  // Heads that no row follows stand on the last page while they fit.
  void PrintLastHeads(int last) {
    const std::size_t behind = last == 0 ? 0 : section_ + 1;
    for (std::size_t s = behind; s < sections_.size(); ++s)
      if (!WouldPassBottom(pass_.target, LinesWithGap(sections_[s], page_is_empty_)))
        PrintHead(sections_[s]);
  }

  // A row that no page could hold does not leave a page empty for it.
  void Fit(int row) {
    const Section& section = sections_[section_];
    if (section.fit) {
      const int page = pass_.page;
      section.fit(pass_, row - before_);
      if (pass_.page != page) headed_ = false;
      return;
    }
    const int lines = section.lines(row - before_) + HeadLines(row);
    if (page_is_empty_ || !WouldPassBottom(pass_.target, lines)) return;
    PageFooter(pass_, row, restart_);
    BeginPage(pass_.target);
    headed_ = false;
    page_is_empty_ = true;
  }

  void NoteStudent(int row) const {
    const Section& section = sections_[section_];
    if (section.student) NoteStudentOnPage(section.student(row - before_), pass_.page);
  }

  ReportPass& pass_;
  const std::vector<Section>& sections_;
  bool restart_;
  std::size_t section_ = 0;
  int before_ = 0;  // rows of the sections before
  bool headed_ = false;
  bool page_is_empty_ = true;
};

}  // namespace

int RowCount(const std::vector<Section>& sections) {
  int count = 0;
  for (const Section& section : sections) count += section.rows;
  return count;
}

void PrintSections(ReportPass& pass, const std::vector<Section>& sections, bool restart) {
  const int total = RowCount(sections);
  const int first = pass.recording ? 1 : pass.first;
  const int last = pass.recording ? total : std::min(pass.last, total);
  SectionWalk(pass, sections, restart).Run(first, last);
}

}  // namespace tallyroll
