// SPDX-License-Identifier: GPL-3.0-or-later
// The records of a class: the program's shared vocabulary.
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/currency.h"
#include "base/short_text.h"
#include "store/list.h"

namespace tallyroll {

// Booleans of a class are 16-bit integers.
using i16 = std::int16_t;
inline constexpr i16 kTrue = -1;
inline constexpr i16 kFalse = 0;

// Eight bytes kept and written back as they are.
using Bytes8 = std::array<unsigned char, 8>;

// One grade title column.
struct Instrument {
  std::string title;
  std::string code;      // up to three characters
  Currency weight;       // its own weight, used by method 0
  i16 mvalue = 0;        // maximum score, above 0
  std::string dropyn;    // Y or N: may be dropped when the average is made
  std::string testdate;  // date of the grade as text
  std::string lowpass;   // lowest passing score
  std::string Reserved32;
  std::string typecode;  // code of its grade type
  std::string Reserved40;
  std::string countflag;  // "N" leaves the grade out of the total in the point methods
  std::string Reserved48;
  List<ShortText> ReservedList;
  std::string ReservedText;

  friend bool operator==(const Instrument&, const Instrument&) = default;
};

// One calendar day of the attendance range.
struct AttendanceDay {
  double date = 0;  // day serial, whole days
  FixedText<1> dayflag;
  std::string daynote;

  friend bool operator==(const AttendanceDay&, const AttendanceDay&) = default;
};

// One attendance summary period.
struct AttendanceSummary {
  std::string title;
  std::string code;  // up to three characters
  i16 kind = 0;      // 2 = computed from a range of dates
  i16 rangenumber = 0;
  std::string startdate;
  std::string enddate;

  friend bool operator==(const AttendanceSummary&, const AttendanceSummary&) = default;
};

struct Student {
  List<i16> SeatRow;  // 1..NumCharts, -1 = not seated
  List<i16> SeatColumn;
  std::string city;
  std::string state;
  std::string zip;
  List<FixedText<5>> SummaryAbsent;  // 1..NumSummaries, a number as text
  std::string firstname;
  List<ShortText> SummaryDetail;  // cuts, excused, special, notes: " 0/ 0/ 0/ 0/"
  List<ShortText> Marks;          // 1..NumInstruments; Marks[0] holds the last final grade
  std::string work;               // parent's work phone
  std::string lastname;
  std::string id;
  std::string parent;           // parent's full name
  std::string phone;            // student's home phone
  List<ShortText> SummaryLate;  // 1..NumSummaries, a number as text
  std::string address;
  std::string birth;
  List<FixedText<1>> DailyMarks;  // 1..NumDays, a blank where nothing was marked
  std::string comments;
  std::string email;
  List<ShortText> ReservedList;
  std::string ReservedText;
  std::array<ShortText, 26> ReservedFields;

  friend bool operator==(const Student&, const Student&) = default;
};

struct Class {
  List<Student> Students;  // in the display order of the moment
  std::string FileName;    // full path; empty for a class never saved
  List<Instrument> Instruments;
  List<AttendanceSummary> Summaries;  // at most 20
  List<AttendanceDay> AttendanceDays;
  i16 Changed = kFalse;  // unsaved changes stand

  // From here to ReservedText: what the class file's header holds, in its order.
  FixedText<3> Magic;  // "ty8"; "ty7" or "ty5" until the first save after a conversion
  std::array<Currency, 14> LetterValues;              // [0] is a status word
  std::array<std::array<float, 14>, 5> RoundTable{};  // [scale][row]
  i16 RoundScale = 0;                                 // the scale in force; 4 is a temporary one
  i16 FinalGradeForm = 0;                             // 0 numbers, 3 letters
  i16 Reserved428 = 0;
  i16 RoundMode = 2;         // 0 Enable Rounding, 1 Skip Rounding, 2 not yet chosen
  std::string PercentsText;  // 26 numbers, a carriage return after each of the first 25
  List<Bytes8> Reserved8;
  std::string AverageSettings;  // the last average's settings, parted by commas
  i16 NumStudents = 0;
  i16 NumInstruments = 0;
  i16 NumDays = 0;  // 0 = attendance not set up
  i16 NumSummaries = 0;
  i16 NumCharts = 0;
  List<i16> ChartRows;  // 1..NumCharts
  List<i16> ChartColumns;
  std::string school;
  i16 PasswordSet = 0;  // 1 = the class has a password
  std::string teacher;
  std::string termstart;
  std::string termend;
  std::string timed;  // time or period of the class
  std::string Reserved488;
  std::string Password;  // scrambled
  std::string Reserved496;
  std::string description;  // up to 30 characters
  std::string room;
  std::array<std::string, 14> Categories;  // modified grade types
  i16 LastNameWidth = 0;                   // longest lastname, for printed columns
  i16 FirstNameWidth = 0;
  List<ShortText> ReservedList;
  std::string ReservedText;

  // Never in the file: state of the slot, and what is rebuilt after each opening.
  i16 SlotState = 0;                      // 0 free, 10 taken
  List<Currency> Weights;                 // 1..NumInstruments
  List<Currency> InstrumentUse;           // 1, or 2 where countflag is "N"
  std::array<Currency, 27> TypeWeights;   // 1..26: 2 = a lowest grade of the type may be dropped
  i16 AverageFlag1 = 0;                   // labs
  i16 AverageFlag2 = 0;                   // dropyn of the weights Portals
  std::array<Currency, 27> TypePercents;  // 1..26
  i16 AverageWork1 = 0;                   // item weights: 1 = changed, ask to save; 2 = saved
  i16 AverageWork2 = 0;                   // type weights
  i16 AverageFlag3 = 0;                   // redist
  i16 AverageFlag4 = 0;                   // droptype
  i16 Method = 5;                         // 0 to 3; 5 = no method chosen yet
};

}  // namespace tallyroll
