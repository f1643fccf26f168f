// SPDX-License-Identifier: GPL-3.0-or-later
// Charts in the class in work. A chart is its size and, at each student, a seat or none; charts are
// numbered from 1 to NumCharts without gaps.
#pragma once

#include "seating/seating_chart.h"

namespace tallyroll {

// The chart as it can be shown. A size that no chart can have is brought into its bounds; who sits
// outside the chart, or on a seat that an earlier student has, is listed as unseated.
SeatPlan LoadChart(int chart);

// The seat of a student on a chart; not taken when there is none.
Seat SeatOf(const Student& student, int chart);

// Adds a chart of that size in which nobody sits, and gives its number; 0 when there is no room
// for one more.
int AddChart(int rows, int columns);

// Stores the seats of a chart from the labels on it. A student without a card gets no seat; of two
// with the same label the first gets it.
void StoreChart(int chart, const SeatPlan& plan);

// Takes a chart out; the later ones move up.
void DeleteChart(int chart);

// How many students share their label with an earlier one, so that the chart cannot hold them.
int StudentsWithoutLabel();

}  // namespace tallyroll
