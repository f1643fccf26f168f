// SPDX-License-Identifier: GPL-3.0-or-later
// The average of one student by the class's method. A caller sets CurrentStudent, computes, and
// calls RoundedGrade before it goes on to the next student.
//
// What can go wrong is arithmetic: a division by an mvalue of 0, and sums beyond Currency or 16
// bits. Then nothing is changed, neither in the class nor in ExactAverage, and the caller gets
// told.
#pragma once

#include <string>

#include "averages/engine/average_listener.h"
#include "averages/engine/average_state.h"
#include "grades/type_totals.h"

namespace tallyroll {

// Why there is no average; number 0 when there is one.
struct AverageError {
  int number = 0;   // kErrorOverflow, kErrorDivisionByZero, kErrorSubscript without a student
  i16 student = 0;  // Students index
  i16 grade = 0;    // Instruments index; 0 when it happened in the sum of all

  explicit operator bool() const { return number != 0; }
};

// The error in words, with the names of the student and the grade.
std::string AverageErrorText(const AverageError& error);

// By type, after the drop where one applies.
struct TypeTotals {
  TypeCounts counts{};  // grades counted
  TypeSums sums{};      // of their values; -1 under method 1 for a type without a grade
  TypeSums maxes{};     // of their mvalue

  friend bool operator==(const TypeTotals&, const TypeTotals&) = default;
};

// What the point methods find beside the average.
struct Points {
  Currency earned;
  Currency possible;

  friend bool operator==(const Points&, const Points&) = default;
};

// By Method; a class without a method is averaged by its items. Without points, which only the
// point methods have, they are dropped.
// `listener` may be null; otherwise it is told each step.
AverageError ComputeAverage(TypeTotals& totals);
AverageError ComputeAverage(Points& points, TypeTotals& totals,
                            AverageListener* listener = nullptr);

// The methods 0 to 3. Each sets ExactAverage and fills `totals`.
AverageError AverageByItems(TypeTotals& totals, AverageListener* listener = nullptr);
AverageError AverageByTypes(TypeTotals& totals, AverageListener* listener = nullptr);
AverageError AverageByPoints(Points& points, TypeTotals& totals,
                             AverageListener* listener = nullptr);
AverageError AverageByPointsAndTypes(Points& points, TypeTotals& totals,
                                     AverageListener* listener = nullptr);

}  // namespace tallyroll
