// SPDX-License-Identifier: GPL-3.0-or-later
// What a Portal tells of the cells of a grid beside their texts. A screen asks for the cells in
// view alone, so that an answer may be worked out, and nothing is kept for the others.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace tallyroll {

// How a cell is set off. Never by its colour alone, and its text stays what it is.
enum class CellMark : std::uint8_t {
  kNone,
  kFailing,   // below the passing score
  kAlarm,     // to be acted on: it counts as 0, or nobody knows why
  kWarning,   // absent, late
  kSoft,      // excused and the like
  kMuted,     // plays no part
  kAbove,     // more than can be reached
  kNoSchool,  // of the head of a day
  kToday,     // of the head of a day
};

struct CellNote {
  CellMark mark = CellMark::kNone;
  std::string_view words = {};  // the same for those who do not see it
};

// Each may be null.
struct GridNotes {
  std::function<CellNote(int row, int col)> Of;
  std::function<std::string(int row, int col)> Tip;  // at length, where the pointer rests
  std::function<std::string(int col)> AboveHead;     // a small line above the last head of a column
  std::function<std::string(int col)> BelowHead;     // and one below
};

inline CellNote NoteOf(const GridNotes& notes, int row, int col) {
  return notes.Of ? notes.Of(row, col) : CellNote();
}

}  // namespace tallyroll
