// SPDX-License-Identifier: GPL-3.0-or-later
// The term table: a copy of all daily marks of the class, on which attendance is entered and
// moved until it is stored.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

// A row a student, a column a day, both from 1. A place outside reads as no mark, and a mark set
// there is dropped.
class TermTable {
 public:
  int Students() const { return static_cast<int>(rows_.size()); }
  int Days() const { return days_; }
  void SetStudents(int students);
  // Columns that remain keep their marks, new ones are empty.
  void SetDays(int days);

  char Mark(int student, int day) const;
  void SetMark(int student, int day, char mark);
  // The marks of a student, day 1 first.
  std::string_view Row(int student) const { return rows_[static_cast<std::size_t>(student) - 1]; }

  // Every student's marks of a day to another day; from outside the table comes an empty day.
  void CopyDay(int from, int to);
  void ClearDay(int day) { CopyDay(0, day); }

  int MarkCount() const;
  // Takes the calendar's dates for those of the columns.
  void TakeDates();
  // How many marks have come to stand under another date since TakeDates.
  int MarksUnderOtherDates() const;
  // The class holds the marks at the places that they have here now.
  void TakeStoredDates();
  // How many marks stand under their date, but in the class at another place or not any more.
  int MarksAwaitingStore() const;

 private:
  // Of the marks of a column, which take this along when they move.
  struct Dates {
    double taken = 0;
    double stored = 0;
  };

  bool HasDay(int day) const { return day >= 1 && day <= days_; }
  int DatedDays() const;  // the days that the calendar has too
  int MarksOfDay(int day) const;

  int days_ = 0;
  std::vector<std::string> rows_;
  std::vector<Dates> dates_;
  double stored_first_ = 0;  // the date of the first place when marks were stored
};

extern TermTable Grid2;  // of the class in work; filled by frmAtt, whose range frmatset moves

// Sizes Grid2 and fills it from the daily marks.
void LoadTermGrid();
// Writes Grid2 into the daily marks, counts range summaries anew and sets Changed.
void StoreDailyMarks();

// Empties Grid2.
void ResetAttendance();

}  // namespace tallyroll
