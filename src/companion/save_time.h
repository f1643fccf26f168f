// SPDX-License-Identifier: GPL-3.0-or-later
// Times as the companion file keeps them: "2026-09-01 10:15:00", on the teacher's own clock.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tallyroll {

// Of a date and time as a day serial.
std::string SaveTimeText(double serial);
// Of what a file system tells, in nanoseconds.
std::string FileTimeText(std::int64_t modified);
// The day serial of the day; 0 for a text that is no time.
double DayOfSaveTime(std::string_view time);

}  // namespace tallyroll
