// SPDX-License-Identifier: GPL-3.0-or-later
// A class with two charts: two cards and one student without a seat, and a small one.
#pragma once

namespace tallyroll {

inline constexpr const char* kSeatedClass = R"({"description": "Algebra", "NumCharts": 2,
  "ChartRows": [0, 2, 1], "ChartColumns": [0, 2, 1],
  "Students": [
    {"lastname": "Abe", "firstname": "Bo", "id": "5", "SeatRow": [0, 1, 0], "SeatColumn": [0, 0, 0]},
    {"lastname": "Cho", "firstname": "Di", "id": "6", "SeatRow": [0, 0, -1], "SeatColumn": [0, 1, -1]},
    {"lastname": "Eng", "firstname": "Fa", "id": "7", "SeatRow": [0, -1, -1], "SeatColumn": [0, -1, -1]}]})";

}  // namespace tallyroll
