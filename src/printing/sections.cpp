// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/sections.h"

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
      if (pass_.recording) Fit(row);
      if (!headed_) section_->head();
      headed_ = true;
      section_->print(row - before_);
    }
    PageFooter(pass_, last + 1, restart_);
  }

 private:
  // Finds the section of a row.
  void Enter(int row) {
    int before = 0;
    for (const Section& section : sections_) {
      if (row <= before + section.rows) {
        if (&section != section_) headed_ = false;
        section_ = &section;
        before_ = before;
        return;
      }
      before += section.rows;
    }
  }

  void Fit(int row) {
    if (section_->fit) {
      const int page = pass_.page;
      section_->fit(pass_, row - before_);
      if (pass_.page != page) headed_ = false;
      return;
    }
    const int lines = section_->lines(row - before_) + (headed_ ? 0 : section_->head_lines);
    if (!WouldPassBottom(pass_.target, lines)) return;
    PageFooter(pass_, row, restart_);
    BeginPage(pass_.target);
    headed_ = false;
  }

  ReportPass& pass_;
  const std::vector<Section>& sections_;
  bool restart_;
  const Section* section_ = nullptr;
  int before_ = 0;  // rows of the sections before
  bool headed_ = false;
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
