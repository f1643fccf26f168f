// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/page/paper_line.h"

#include <algorithm>

#include "printing/page/print_job.h"

namespace tallyroll {
namespace {

constexpr double kGap = 0.5;        // between texts, in widths of the print font's "N"
constexpr int kTabbedColumns = 80;  // a page has room for them

}  // namespace

double ColumnUnit(double columns) {
  return std::min(Job.CharUnit, Job.PageTextWidth / columns);
}

void PrintLine(PrintTarget& target, std::string_view text) {
  target.PrintWithin(text, Job.PageTextWidth - target.CurrentX);
  target.Print();
}

double PaperLine::RoomOf(std::size_t i) const {
  for (std::size_t next = i + 1; next < cells_.size(); ++next) {
    const Cell& cell = cells_[next];
    if (cell.text.empty()) continue;
    const bool parted = cell.text.front() == '|' || cell.text.front() == ' ';
    const double gap = parted ? 0 : kGap * Job.CharUnit;
    return cell.x - cells_[i].x - gap;
  }
  return Job.PageTextWidth - cells_[i].x;
}

void PaperLine::End() {
  for (std::size_t i = 0; i < cells_.size(); ++i) {
    target_.CurrentX = cells_[i].x;
    target_.PrintWithin(cells_[i].text, RoomOf(i));
  }
  cells_.clear();
  target_.Print();
}

double TabStop(const PrintTarget& target, int column) {
  const double character =
      std::min(target.AverageCharWidth(), static_cast<double>(Job.PageTextWidth) / kTabbedColumns);
  return (column - 1) * character;
}

void PaperSheet::Tab(int column) {
  cells_.push_back({TabStop(target_, column), {}});
}

bool PaperSheet::Move(std::vector<double>& places) const {
  double end = 0;
  for (const Cell& cell : cells_) {
    const bool reached = end > 0 && end >= cell.stop;
    places.push_back(reached ? end + target_.TextWidth(" ") : cell.stop);
    if (!cell.text.empty()) end = places.back() + target_.TextWidth(cell.text);
  }
  return end <= Job.PageTextWidth;
}

void PaperSheet::End(std::string_view text) {
  Put(text);
  std::vector<double> places;
  const bool moved = columns_ == Columns::kMove && Move(places);
  PaperLine line(target_);
  for (std::size_t i = 0; i < cells_.size(); ++i)
    line.Put(moved ? places[i] : cells_[i].stop, cells_[i].text);
  line.End();
  cells_.assign(1, {});
}

}  // namespace tallyroll
