// SPDX-License-Identifier: GPL-3.0-or-later
// Bars and lines: an axis of values from zero, a slot for each point.
#include <algorithm>
#include <cmath>

#include "analysis/chart_axis.h"
#include "analysis/chart_painter.h"
#include "base/number_text.h"

namespace tallyroll {
namespace {

constexpr double kSmallestLabel = 6;
constexpr double kBarsShare = 0.8;  // of a slot
constexpr double kGridWidth = 5, kThinWidth = 15, kLineWidth = 30;
constexpr double kMarkRadius = 45;
constexpr double kLeastSlot = 1;      // twips, below which no label can be meant
constexpr double kMostAround = 0.15;  // of the height, for what stands above or below the points
constexpr double kLeastShare = 0.1;   // of the height, that the points keep
constexpr double kDotsShare = 0.15;   // of the height
constexpr double kMostForAxis = 0.4;  // of the width, for the texts of the axis
constexpr double kThinReach = 60;     // from the thin line to where the pointer finds its points

// How the labels stand below the points. They get smaller before they turn, and turn before some
// are left out.
struct LabelPlan {
  bool shown = true;  // in the smallest frames the points need the room
  double size = 0;
  bool upwards = false;
  std::size_t every = 1;
  double height = 0;
};

LabelPlan PlanLabels(ChartPainter& painter, double slot) {
  const std::vector<std::string>& labels = painter.chart().labels;
  const double most_height = painter.rest().height / 4;
  LabelPlan plan{.size = painter.size()};
  if (painter.LineHeight(plan.size) > most_height || slot < kLeastSlot) return {.shown = false};
  // Text is as wide as its font is large.
  const double widest_of_a_point = painter.Widest(labels, plan.size) / plan.size;
  const double fitting = (slot - painter.gap()) / std::max(widest_of_a_point, 1.0);
  if (fitting >= kSmallestLabel) {
    plan.size = std::min(plan.size, fitting);
    plan.height = painter.LineHeight(plan.size);
    return plan;
  }
  plan.upwards = true;
  plan.size = painter.size();
  while (plan.size > kSmallestLabel && painter.LineHeight(plan.size) > slot)
    plan.size = std::max(plan.size - 0.5, kSmallestLabel);
  plan.every = static_cast<std::size_t>(std::ceil(painter.LineHeight(plan.size) / slot));
  plan.height = std::min(widest_of_a_point * plan.size + painter.gap() / 2, most_height);
  return plan;
}

class PlotPainter {
 public:
  explicit PlotPainter(ChartPainter& painter) : p_(painter), chart_(painter.chart()) {}

  void Draw() {
    p_.DrawTitle();
    if (Count() == 0) return;
    p_.DrawLegendBelow(Entries());
    LayOut();
    DrawGrid();
    DrawThinLine();
    for (std::size_t set = 0; set < chart_.sets.size(); ++set) {
      if (chart_.kind == ChartKind::kLine)
        DrawLine(set);
      else
        DrawBars(set);
    }
    p_.Line({plot_.left, Height(0)}, {plot_.left + plot_.width, Height(0)}, kThinWidth,
            p_.colors().text);
    DrawLabels();
    DrawValues();
    AddPointSpots();
    AddThinSpots();
    DrawDots(p_, dots_, slot_);
  }

 private:
  std::size_t Count() const { return chart_.Points(); }
  double Value(std::size_t set, std::size_t point) const {
    const std::vector<double>& values = chart_.sets[set].values;
    return point < values.size() ? values[point] : 0;
  }
  double SlotLeft(std::size_t point) const {
    return plot_.left + slot_ * static_cast<double>(point);
  }
  double Middle(std::size_t point) const { return SlotLeft(point) + slot_ / 2; }
  double Height(double value) const { return plot_.top + plot_.height * (1 - axis_.Share(value)); }
  PrintColor ColorOf(std::size_t set) const { return p_.colors().sets[set % kChartSets]; }
  double BarWidth() const { return slot_ * kBarsShare / static_cast<double>(chart_.sets.size()); }

  std::vector<LegendEntry> Entries() const {
    std::vector<LegendEntry> entries;
    for (std::size_t set = 0; set < chart_.sets.size(); ++set)
      if (!chart_.sets[set].name.empty()) entries.push_back({chart_.sets[set].name, ColorOf(set)});
    if (!chart_.thin_line.empty()) entries.push_back({chart_.thin_name, p_.colors().thin, true});
    return entries;
  }

  void FindAxis() {
    double lowest = 0, highest = 0;
    const auto take = [&](double value) {
      if (std::isnan(value)) return;
      lowest = std::min(lowest, value);
      highest = std::max(highest, value);
    };
    for (const ChartSet& set : chart_.sets)
      for (const double value : set.values) take(value);
    for (const double value : chart_.thin_line) take(value);
    const double steps = p_.rest().height * 0.6 / (1.6 * p_.LineHeight(p_.size()));
    axis_ = AxisFor(lowest, highest, static_cast<int>(steps));
    for (double at = axis_.bottom; at <= axis_.top + axis_.step / 2; at += axis_.step)
      axis_texts_.push_back(PlainNumberText(std::round(at)));
  }

  // One value after the other as wide as the widest finds its room, or none is written.
  bool ValuesFit() {
    values_.clear();
    const double room = chart_.sets.size() == 1 ? slot_ : BarWidth();
    if (chart_.sets.size() > 1 && chart_.kind == ChartKind::kLine) return false;
    if (p_.Width("0", p_.size()) > room) return false;
    for (std::size_t set = 0; set < chart_.sets.size(); ++set)
      for (std::size_t i = 0; i < Count(); ++i) values_.push_back(PlainNumberText(Value(set, i)));
    return p_.Widest(values_, p_.size()) + p_.gap() / 2 <= room;
  }

  void LayOut() {
    FindAxis();
    plot_ = p_.rest();
    double axis_width = p_.Widest(axis_texts_, p_.size()) + p_.gap();
    if (axis_width > plot_.width * kMostForAxis) {
      axis_texts_.clear();
      axis_width = 0;
    }
    plot_.left += axis_width;
    plot_.width = std::max(plot_.width - axis_width, 1.0);
    slot_ = plot_.width / static_cast<double>(Count());
    labels_ = PlanLabels(p_, slot_);
    values_fit_ = ValuesFit();
    const double line = p_.LineHeight(p_.size());
    if (!chart_.dots.empty()) {
      dots_ = plot_;
      dots_.height = plot_.height * kDotsShare;
      const double taken = dots_.height + std::min(p_.gap(), dots_.height / 2);
      plot_.top += taken;
      plot_.height -= taken;
    }
    const double least = plot_.height * kLeastShare, most = plot_.height * kMostAround;
    const double value_room = line + (chart_.kind == ChartKind::kLine ? kMarkRadius : 0);
    if (value_room > most) values_fit_ = false;
    const double above = values_fit_ ? value_room : std::min(line / 2, most);
    const double below =
        (values_fit_ && axis_.bottom < 0 ? value_room : 0) + std::min(p_.gap(), most / 2);
    label_top_ = plot_.top + plot_.height - labels_.height - (labels_.every > 1 ? line : 0);
    plot_.height = std::max(label_top_ - below - plot_.top - above, least);
    plot_.top += above;
  }

  void DrawGrid() {
    const double line = p_.LineHeight(p_.size());
    double free_below = plot_.top + plot_.height + line;
    for (std::size_t i = 0; i < axis_texts_.size(); ++i) {
      const double y = Height(axis_.bottom + axis_.step * static_cast<double>(i));
      p_.Line({plot_.left, y}, {plot_.left + plot_.width, y}, kGridWidth, p_.colors().grid);
      if (y + line / 2 > free_below) continue;  // the axis is too short for all its texts
      const double width = p_.Width(axis_texts_[i], p_.size());
      p_.Text(axis_texts_[i], plot_.left - p_.gap() - width, y - line / 2, p_.size());
      free_below = y - line / 2;
    }
  }

  void DrawThinLine() {
    for (std::size_t i = 0; i < chart_.thin_line.size() && i < Count(); ++i) {
      const double value = chart_.thin_line[i];
      if (std::isnan(value)) continue;
      const double x = Middle(i), y = Height(value);
      // Its points can be seen where bars hide the line between them.
      const double tick = chart_.kind == ChartKind::kBar ? slot_ / 2 : 0;
      if (tick > 0) p_.Line({x - tick, y}, {x + tick, y}, kThinWidth, p_.colors().thin);
      const bool goes_on = i + 1 < chart_.thin_line.size() && i + 1 < Count();
      if (goes_on && !std::isnan(chart_.thin_line[i + 1]))
        p_.Line({x, y}, {Middle(i + 1), Height(chart_.thin_line[i + 1])}, kThinWidth,
                p_.colors().thin);
    }
  }

  void DrawBars(std::size_t set) {
    const double width = BarWidth();
    for (std::size_t i = 0; i < Count(); ++i) {
      const double x =
          SlotLeft(i) + slot_ * (1 - kBarsShare) / 2 + width * static_cast<double>(set);
      const double y = Height(Value(set, i)), zero = Height(0);
      if (y != zero)
        p_.Fill(Rectangle(x, std::min(y, zero), x + width, std::max(y, zero)), ColorOf(set));
    }
  }

  // Each set has marks of its own shape: colour alone says nothing.
  std::vector<PrintPoint> MarkAt(std::size_t set, double x, double y) const {
    const double r = std::min(kMarkRadius, slot_ / 2);
    switch (set % kChartSets) {
      case 0:
        return Rectangle(x - r * 0.8, y - r * 0.8, x + r * 0.8, y + r * 0.8);
      case 1:
        return {{x, y - r}, {x + r, y + r * 0.8}, {x - r, y + r * 0.8}};
      case 2:
        return {{x, y - r * 1.2}, {x + r * 1.2, y}, {x, y + r * 1.2}, {x - r * 1.2, y}};
      case 3:
        return {{x - r, y - r * 0.8}, {x + r, y - r * 0.8}, {x, y + r}};
      default:
        return Rectangle(x - r * 0.4, y - r * 1.2, x + r * 0.4, y + r * 1.2);
    }
  }

  void DrawLine(std::size_t set) {
    for (std::size_t i = 0; i + 1 < Count(); ++i)
      p_.Line({Middle(i), Height(Value(set, i))}, {Middle(i + 1), Height(Value(set, i + 1))},
              kLineWidth, ColorOf(set));
    for (std::size_t i = 0; i < Count(); ++i)
      p_.Fill(MarkAt(set, Middle(i), Height(Value(set, i))), ColorOf(set));
  }

  void DrawLabels() {
    if (!labels_.shown) return;
    for (std::size_t i = 0; i < Count() && i < chart_.labels.size(); i += labels_.every) {
      const double room = labels_.upwards ? labels_.height : slot_;
      const std::string label = p_.Fitted(chart_.labels[i], labels_.size, room);
      const double width = p_.Width(label, labels_.size);
      if (labels_.upwards) {
        const double x = Middle(i) - p_.LineHeight(labels_.size) / 2;
        p_.TextUpwards(label, x, label_top_ + width, labels_.size);
      } else {
        p_.Text(label, Middle(i) - width / 2, label_top_, labels_.size);
      }
    }
    if (labels_.every == 1) return;
    const std::string note =
        "1 of " + PlainNumberText(static_cast<std::int64_t>(labels_.every)) + " labels is shown";
    p_.Text(p_.Fitted(note, p_.size(), plot_.width), plot_.left, label_top_ + labels_.height,
            p_.size());
  }

  void DrawValues() {
    if (!values_fit_) return;
    const double line = p_.LineHeight(p_.size());
    const bool bars = chart_.kind == ChartKind::kBar;
    std::size_t next = 0;
    for (std::size_t set = 0; set < chart_.sets.size(); ++set) {
      for (std::size_t i = 0; i < Count(); ++i) {
        const std::string& text = values_[next++];
        const double middle = bars ? SlotLeft(i) + slot_ * (1 - kBarsShare) / 2 +
                                         BarWidth() * (static_cast<double>(set) + 0.5)
                                   : Middle(i);
        const double apart = bars ? 0 : kMarkRadius;  // from the mark of a line
        const double y = Height(Value(set, i)) + (Value(set, i) < 0 ? apart : -apart);
        p_.Text(text, middle - p_.Width(text, p_.size()) / 2, Value(set, i) < 0 ? y : y - line,
                p_.size());
      }
    }
  }

  void AddPointSpots() {
    const bool whole_slots = chart_.sets.size() == 1;
    for (std::size_t set = 0; set < chart_.sets.size(); ++set) {
      for (std::size_t i = 0; i < Count(); ++i) {
        ChartSpot spot{{}, static_cast<int>(set), static_cast<int>(i), -1};
        const double part = slot_ / static_cast<double>(chart_.sets.size());
        const double x = SlotLeft(i) + (whole_slots ? 0 : part * static_cast<double>(set));
        spot.outline = Rectangle(x, plot_.top, x + part, plot_.top + plot_.height);
        p_.AddSpot(std::move(spot));
      }
    }
  }

  // Above those of the points: the line is thin, and what it crosses is wide.
  void AddThinSpots() {
    for (std::size_t i = 0; i < chart_.thin_line.size() && i < Count(); ++i) {
      if (std::isnan(chart_.thin_line[i])) continue;
      const double y = Height(chart_.thin_line[i]), reach = slot_ / 2;
      p_.AddSpot({Rectangle(Middle(i) - reach, y - kThinReach, Middle(i) + reach, y + kThinReach),
                  static_cast<int>(chart_.sets.size()), static_cast<int>(i), -1});
    }
  }

  ChartPainter& p_;
  const Chart& chart_;
  ChartFrame plot_;
  ChartFrame dots_;
  ChartAxis axis_;
  std::vector<std::string> axis_texts_;
  std::vector<std::string> values_;
  double slot_ = 0, label_top_ = 0;
  LabelPlan labels_;
  bool values_fit_ = false;
};

}  // namespace

void DrawPlot(ChartPainter& painter) {
  PlotPainter(painter).Draw();
}

}  // namespace tallyroll
