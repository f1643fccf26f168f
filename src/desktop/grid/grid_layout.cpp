// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/grid_layout.h"

#include <algorithm>
#include <cmath>

namespace tallyroll {
namespace {

constexpr int kTwipsToTheInch = 1440;
constexpr double kDesignPoints = 8.25;
constexpr int kRoomAroundText = 4;

}  // namespace

GridAxis::GridAxis(std::vector<int> sizes, int fixed)
    : fixed_(std::clamp(fixed, 0, static_cast<int>(sizes.size()))) {
  offsets_.reserve(sizes.size() + 1);
  for (const int size : sizes) offsets_.push_back(offsets_.back() + size);
}

int GridAxis::Start(int index, int first) const {
  return index < fixed_ ? Offset(index) : Offset(index) - Offset(first) + FixedSize();
}

int GridAxis::At(int place, int first) const {
  if (place < 0) return -1;
  const int offset = place < FixedSize() ? place : place - FixedSize() + Offset(first);
  const auto behind = std::upper_bound(offsets_.begin(), offsets_.end(), offset);
  return behind == offsets_.end() ? -1 : static_cast<int>(behind - offsets_.begin()) - 1;
}

int GridAxis::LastFirst(int extent) const {
  if (fixed_ >= Count()) return fixed_;
  const int wanted = TotalSize() - std::max(extent - FixedSize(), 0);
  const auto found = std::lower_bound(offsets_.begin() + fixed_, offsets_.end() - 1, wanted);
  return std::min(static_cast<int>(found - offsets_.begin()), Count() - 1);
}

int GridAxis::FirstToShow(int index, int first, int extent) const {
  if (index < fixed_ || index >= Count()) return first;
  if (index < first) return index;
  const int room = extent - FixedSize();
  while (first < index && Offset(index + 1) - Offset(first) > room) ++first;
  return first;
}

std::vector<Band> GridAxis::Visible(int first, int extent) const {
  std::vector<Band> bands;
  for (int i = 0; i < Count(); i = i + 1 == fixed_ ? std::max(first, fixed_) : i + 1) {
    const Band band{i, Start(i, first), SizeOf(i)};
    if (band.start >= extent) break;
    if (band.size > 0) bands.push_back(band);
  }
  return bands;
}

int GridAxis::Next(int from, int step) const {
  for (int i = from + step; i >= fixed_ && i < Count(); i += step)
    if (SizeOf(i) > 0) return i;
  return from;
}

GridAxis GridAxis::With(int index, int size) const {
  GridAxis axis(*this);
  const int more = size - SizeOf(index);
  for (auto i = static_cast<std::size_t>(index) + 1; i < axis.offsets_.size(); ++i)
    axis.offsets_[i] += more;
  return axis;
}

GridAxis GridAxis::WithLeast(int index, int size) const {
  return SizeOf(index) == 0 || SizeOf(index) >= size ? *this : With(index, size);
}

GridAxis GridAxis::Filling(int extent) const {
  int last = Count() - 1;
  while (last >= 0 && SizeOf(last) == 0) --last;
  if (last < 0 || TotalSize() >= extent) return *this;
  return With(last, SizeOf(last) + extent - TotalSize());
}

int PixelsOfTwips(int twips, int logical_dpi, double font_points) {
  return static_cast<int>(
      std::lround(twips * (logical_dpi * font_points) / (kTwipsToTheInch * kDesignPoints)));
}

GridAxis RowsOf(const Grid& grid, int logical_dpi, double font_points, int text_height) {
  std::vector<int> sizes(static_cast<std::size_t>(grid.Rows()));
  for (int r = 0; r < grid.Rows(); ++r) {
    const int twips = grid.RowHeight(r);
    if (twips == 0) continue;
    sizes[static_cast<std::size_t>(r)] =
        std::max(PixelsOfTwips(twips, logical_dpi, font_points), text_height + kRoomAroundText);
  }
  return GridAxis(std::move(sizes), grid.FixedRows);
}

GridAxis ColumnsOf(const Grid& grid, int logical_dpi, double font_points) {
  std::vector<int> sizes(static_cast<std::size_t>(grid.Cols()));
  for (int c = 0; c < grid.Cols(); ++c)
    sizes[static_cast<std::size_t>(c)] = PixelsOfTwips(grid.ColWidth(c), logical_dpi, font_points);
  return GridAxis(std::move(sizes), grid.FixedCols);
}

}  // namespace tallyroll
