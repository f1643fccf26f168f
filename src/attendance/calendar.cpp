// SPDX-License-Identifier: GPL-3.0-or-later
#include "attendance/calendar.h"

#include <algorithm>
#include <array>
#include <vector>

#include "attendance/daily_codes.h"
#include "attendance/summary_periods.h"
#include "base/number_text.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

// The lowest index of that date; `otherwise` when the text is no date or the date is no day.
int IndexOfDate(const Class& c, std::string_view text, int otherwise) {
  const auto date = DateFromText(Trim(text), Platform().ShortDateOrder());
  if (!date) return otherwise;
  for (int j = 1; j <= c.NumDays; ++j) {
    if (c.AttendanceDays[static_cast<std::size_t>(j)].date == *date) return j;
  }
  return otherwise;
}

struct RangeSummary {
  std::size_t index;
  DayRange range;
};

// A date outside the stored range widens the summary quietly.
std::vector<RangeSummary> RangeSummaries(const Class& c) {
  std::vector<RangeSummary> found;
  for (std::size_t k = 1; k <= static_cast<std::size_t>(c.NumSummaries); ++k) {
    const AttendanceSummary& summary = c.Summaries[k];
    if (summary.kind != kRangeSummary) continue;
    found.push_back(
        {k, {IndexOfDate(c, summary.startdate, 1), IndexOfDate(c, summary.enddate, c.NumDays)}});
  }
  return found;
}

// Counts from day 1 up to each day: one pass over a student's marks serves all his summaries.
class RunningCounts {
 public:
  explicit RunningCounts(int days) : up_to_(static_cast<std::size_t>(days) + 1) {}

  void Take(const Student& student) {
    CodeCounts counts;
    for (std::size_t j = 1; j < up_to_.size(); ++j) {
      const CodeCounts& one = kOne[PlaceOfMark(MarkOn(student, static_cast<int>(j)))];
      for (std::size_t k = 0; k < counts.at.size(); ++k)
        counts.at[k] = static_cast<i16>(counts.at[k] + one.at[k]);
      up_to_[j] = counts;
    }
  }

  CodeCounts Of(DayRange range) const {
    CodeCounts counts;
    if (range.last < range.first) return counts;
    const CodeCounts& all = up_to_[static_cast<std::size_t>(range.last)];
    const CodeCounts& before = up_to_[static_cast<std::size_t>(range.first) - 1];
    for (std::size_t k = 0; k < counts.at.size(); ++k)
      counts.at[k] = static_cast<i16>(all.at[k] - before.at[k]);
    return counts;
  }

 private:
  // What a mark adds, by its place.
  static constexpr std::array<CodeCounts, 8> kOne = [] {
    std::array<CodeCounts, 8> ones{};
    for (std::size_t k = 0; k < ones.size(); ++k) ones[k].at[k] = 1;
    return ones;
  }();

  std::vector<CodeCounts> up_to_;
};

// A figure as it stands among the details, " 12/"; a 16-bit counter takes seven characters at most.
// Copied as one machine word, since the many small copies are most of the work.
struct DetailFigure {
  explicit DetailFigure(int n) {
    const std::string text = SignedNumberText(n) + "/";
    size = text.copy(chars.data(), chars.size());
  }
  std::array<char, 8> chars{};
  std::size_t size = 0;
};

// Each figure that can come up as text, made once: a class has many more summaries than figures.
struct FigureTexts {
  explicit FigureTexts(int highest) {
    for (int n = 0; n <= highest; ++n) {
      plain.push_back(PlainNumberText(n));
      details.emplace_back(n);
    }
  }
  const std::string& Plain(i16 n) const { return plain[static_cast<std::size_t>(n)]; }
  const DetailFigure& Detail(i16 n) const { return details[static_cast<std::size_t>(n)]; }

  std::vector<std::string> plain;
  std::vector<DetailFigure> details;
};

// A text that stays the same is not made anew.
void Put(std::string_view text, ShortText& item) {
  if (item != text) item = text;
}

void StoreCounts(const CodeCounts& counts, const FigureTexts& texts, std::size_t k, Student& s) {
  s.SummaryAbsent[k] = FixedText<5>(texts.Plain(counts.Of('A')));
  Put(texts.Plain(counts.Of('L')), s.SummaryLate[k]);
  std::array<char, 4 * sizeof(DetailFigure::chars)> detail;
  std::size_t size = 0;
  for (const char code : {'C', 'E', 'S', 'N'}) {
    const DetailFigure& figure = texts.Detail(counts.Of(code));
    std::copy_n(figure.chars.begin(), figure.chars.size(), detail.begin() + size);
    size += figure.size;
  }
  Put({detail.data(), size}, s.SummaryDetail[k]);
}

}  // namespace

std::string FirstOfMonthDate(int month, int year) {
  const std::string m = SignedNumberText(month);
  const std::string y = SignedNumberText(year);
  switch (Platform().ShortDateOrder()) {
    case DateOrder::kDayFirst:
      return "01/" + m + "/" + y;
    case DateOrder::kYearFirst:
      return y + "/" + m + "/01";
    case DateOrder::kMonthFirst:
      break;
  }
  return m + "/01/" + y;
}

void RecalculateRangeSummaries() {
  Class& c = Current();
  const std::vector<RangeSummary> summaries = RangeSummaries(c);
  if (summaries.empty()) return;
  const FigureTexts texts(c.NumDays);
  RunningCounts counts(c.NumDays);
  for (std::size_t i = 1; i <= static_cast<std::size_t>(c.NumStudents); ++i) {
    Student& s = c.Students[i];
    MakeRoomForSummaries(s);
    counts.Take(s);
    for (const RangeSummary& summary : summaries)
      StoreCounts(counts.Of(summary.range), texts, summary.index, s);
  }
}

}  // namespace tallyroll
