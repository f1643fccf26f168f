// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/mend_class.h"

#include <algorithm>

#include "base/run_time_error.h"
#include "store/class_defaults.h"

namespace tallyroll {
namespace {

constexpr std::size_t kPaddingPerByte = 16;
constexpr std::size_t kPaddingAlways = 1 << 20;

// Pads lists as long as the memory granted to it lasts.
class Mender {
 public:
  explicit Mender(std::size_t granted) : granted_(granted) {}

  template <typename T>
  void Pad(List<T>& list, int count, const T& value) {
    const auto wanted = static_cast<std::size_t>(count) + 1;
    if (count == 0 || list.size() >= wanted) return;
    // A text too long for a ShortText itself stands in a block of its own.
    constexpr std::size_t kBlock = 32;
    const std::size_t bytes = (wanted - list.size()) * (sizeof(T) + kBlock);
    if (bytes > granted_) throw RunTimeError{kErrorDevice};
    granted_ -= bytes;
    ReDimPreserve(list, count, value);
  }

 private:
  std::size_t granted_;
};

void MendStudent(Mender& mender, const Class& c, Student& s) {
  mender.Pad(s.Marks, c.NumInstruments, ShortText(kNewMark));
  mender.Pad(s.SummaryAbsent, c.NumSummaries, FixedText<5>(kNewSummaryCount));
  mender.Pad(s.SummaryLate, c.NumSummaries, ShortText(kNewSummaryCount));
  mender.Pad(s.SummaryDetail, c.NumSummaries, ShortText(kNewSummaryDetail));
  mender.Pad(s.SeatRow, c.NumCharts, kNotSeated);
  mender.Pad(s.SeatColumn, c.NumCharts, kNotSeated);
  if (!s.DailyMarks.empty()) mender.Pad(s.DailyMarks, c.NumDays, FixedText<1>());
}

void MendHeader(Class& c) {
  const int charts = std::min(UpperBound(c.ChartRows), UpperBound(c.ChartColumns));
  c.NumCharts = static_cast<i16>(std::clamp<int>(c.NumCharts, 0, charts));
  if (c.RoundScale < 0 || c.RoundScale > 4) c.RoundScale = 0;
  c.LastNameWidth = std::max<i16>(c.LastNameWidth, 0);
  c.FirstNameWidth = std::max<i16>(c.FirstNameWidth, 0);
}

}  // namespace

int MendClass(Class& c, std::size_t file_size) {
  MendHeader(c);
  Mender mender(kPaddingAlways + kPaddingPerByte * file_size);
  int i = 1;
  try {
    for (; i <= c.NumStudents; ++i) MendStudent(mender, c, c.Students[static_cast<std::size_t>(i)]);
  } catch (const RunTimeError& fault) {
    c.NumStudents = static_cast<i16>(i - 1);
    c.Students.resize(static_cast<std::size_t>(i));
    return fault.number;
  }
  return 0;
}

}  // namespace tallyroll
