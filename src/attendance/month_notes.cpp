// SPDX-License-Identifier: GPL-3.0-or-later
// What the month grid tells beside its texts: days without school, today, and what the codes mean.
#include <array>
#include <cmath>

#include "attendance/daily_codes.h"
#include "attendance/month_grid.h"
#include "base/date_serial.h"
#include "platform/surroundings.h"

namespace tallyroll {
namespace {

// From Saturday, which the first of all day serials is.
constexpr std::array<std::string_view, 7> kShortWeekdays = {"Sa", "Su", "Mo", "Tu",
                                                            "We", "Th", "Fr"};
constexpr std::array<std::string_view, 7> kLongWeekdays = {
    "Saturday", "Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday"};

std::size_t PlaceInWeek(double serial) {
  const int day = static_cast<int>(std::fmod(std::floor(serial), 7));
  return static_cast<std::size_t>((day + 7) % 7);
}

CellNote NoteOfDay(double serial) {
  if (serial == std::floor(Platform().Now())) return {CellMark::kToday, "today"};
  const std::size_t place = PlaceInWeek(serial);
  return place < 2 ? CellNote{CellMark::kNoSchool, kLongWeekdays[place]} : CellNote();
}

// In the order of kDailyCodes.
constexpr std::array<CellNote, kDailyCodes.size()> kNotesOfCodes = {
    CellNote{CellMark::kAlarm, "absent"},
    CellNote{CellMark::kAlarm, "cut"},
    CellNote{CellMark::kSoft, "excused"},
    CellNote{CellMark::kSoft, "special absence"},
    CellNote{CellMark::kSoft, "absent, note received"},
    CellNote{CellMark::kWarning, "late"}};

CellNote NoteOfCode(std::string_view text) {
  if (text.size() != 1 || !IsDailyCode(text.front())) return {};
  return kNotesOfCodes[PlaceOfMark(text.front())];
}

}  // namespace

GridNotes NotesOfMonth(const Grid& grid, const MonthWindow& month,
                       const std::function<double()>& first) {
  const auto day_of = [&month](int col) {
    const int day = col - kFirstDayColumn + 1;
    return day >= 1 && day <= month.monthdays ? day : 0;
  };
  const auto serial_of = [first, day_of](int col) { return first() + day_of(col) - 1; };
  GridNotes notes;
  notes.Of = [&grid, day_of, serial_of](int row, int col) {
    if (row == 0) return day_of(col) > 0 ? NoteOfDay(serial_of(col)) : CellNote();
    return IsDayCell(grid, row, col) ? NoteOfCode(grid.TextMatrix(row, col)) : CellNote();
  };
  notes.AboveHead = [day_of, serial_of](int col) {
    return day_of(col) > 0 ? std::string(kShortWeekdays[PlaceInWeek(serial_of(col))])
                           : std::string();
  };
  notes.Tip = [day_of, serial_of](int row, int col) {
    if (row != 0 || day_of(col) == 0) return std::string();
    const double serial = serial_of(col);
    return std::string(kLongWeekdays[PlaceInWeek(serial)]) + ", " +
           DateText(serial, Platform().ShortDateOrder());
  };
  return notes;
}

}  // namespace tallyroll
