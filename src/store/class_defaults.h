// SPDX-License-Identifier: GPL-3.0-or-later
// Fresh values of a class, and what is rebuilt from a class after it was read.
#pragma once

#include <array>
#include <string_view>

#include "store/program_state.h"

namespace tallyroll {

// What stands in the lists of a new student.
inline constexpr std::string_view kNewMark = "NEW";
inline constexpr std::string_view kNewSummaryCount = "0";
inline constexpr std::string_view kNewSummaryDetail = " 0/ 0/ 0/ 0/";
inline constexpr i16 kNotSeated = -1;

// By slot: the rounding scale that was in force when Skip Rounding was pressed, and comes back when
// rounding is enabled again. Set by frmroundoff, forgotten by ResetClassSlot.
extern std::array<i16, kClassSlots> SkippedScale;

// Empties Classes[CurrentClass] for a new or about-to-be-read class, and clears FileErrorCode.
// ChartRows, ChartColumns, Categories, Magic and SlotState are not touched.
void ResetClassSlot();
// The same for any record, without the globals.
void ResetRecord(Class& c);

// Makes Classes[CurrentClass] a new class, which holds nothing of the one that had the slot before.
void StartNewClass();

// The 14 default letter values: [0] = 100 says that the defaults were loaded.
void SetDefaultLetterValues();
void SetDefaultLetterValues(Class& c);
// The default scale, column 0 of RoundTable: it always comes from the program, never from a file.
void SetDefaultRoundScale();
void SetDefaultRoundScale(Class& c);
// Scale 4 from the letter values, put in force: how Skip Rounding finds its letters.
void UseLetterValuesAsScale();
void UseLetterValuesAsScale(Class& c);

// Gives the last student, whose count was just raised, its lists: marks "NEW", summaries "0",
// seats -1. DailyMarks is left alone: the text import relies on that.
void AddStudentDefaults();

// Reads Method, the four flags and TypeWeights from AverageSettings when it is not blank, and
// enables the entries that need a method. Returns 0, or 6 when a number in it is out of range;
// what stood before that number has been taken.
int ParseAverageSettings();

// After every read: Weights, InstrumentUse and TypePercents by Method, and the scale of Skip
// Rounding. What a Portal put into the lists stays. Returns 0, or 6 when a number of PercentsText
// is out of range.
int PrepareWeights();

}  // namespace tallyroll
