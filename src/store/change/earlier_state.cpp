// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/change/earlier_state.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <map>
#include <utility>
#include <vector>

#include "base/text.h"
#include "store/change/same_records.h"
#include "store/class_defaults.h"
#include "store/class_format.h"
#include "store/derived_values.h"
#include "store/mend_class.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr i16 kMostRecords = std::numeric_limits<i16>::max();
constexpr i16 kTemporaryScale = 4;

// A list of the class of today: at each place what stood at its place then, or what stands there.
template <typename T>
List<T> Moved(const List<T>& then, const List<T>& now, const std::vector<std::size_t>& source,
              const T& fresh) {
  List<T> list;
  ReDim(list, static_cast<int>(source.size()) - 1, fresh);
  for (std::size_t i = 1; i < source.size(); ++i) {
    if (source[i] != kNowhere && source[i] < then.size())
      list[i] = then[source[i]];
    else if (i < now.size())
      list[i] = now[i];
  }
  return list;
}

// By their places in `now`. Grades that are the same by their place alone are not: a new one that
// took the place of a deleted one keeps its marks.
std::vector<std::size_t> SameGrades(const Class& then, const Class& now) {
  std::vector<std::size_t> source = MatchRecords(then, now).grades;
  for (std::size_t g = 1; g < source.size(); ++g) {
    if (source[g] == kNowhere) continue;
    const Instrument &was = then.Instruments[source[g]], &is = now.Instruments[g];
    if (Trim(was.title) != Trim(is.title) && Trim(was.code) != Trim(is.code)) source[g] = kNowhere;
  }
  return source;
}

std::vector<std::size_t> SameDays(const Class& then, const Class& now) {
  std::map<double, std::size_t> places;
  for (std::size_t i = 1; i < then.AttendanceDays.size(); ++i)
    places[then.AttendanceDays[i].date] = i;
  std::vector<std::size_t> source(now.AttendanceDays.size(), kNowhere);
  for (std::size_t i = 1; i < source.size(); ++i)
    if (const auto found = places.find(now.AttendanceDays[i].date); found != places.end())
      source[i] = found->second;
  return source;
}

std::vector<std::size_t> SameSummaries(const Class& then, const Class& now) {
  const auto same = [](const AttendanceSummary& a, const AttendanceSummary& b) {
    return Trim(a.title) == Trim(b.title) && Trim(a.code) == Trim(b.code);
  };
  std::vector<std::size_t> source(now.Summaries.size(), kNowhere);
  for (std::size_t i = 1; i < source.size(); ++i)
    for (std::size_t k = then.Summaries.size(); k-- > 1;)
      if (same(then.Summaries[k], now.Summaries[i])) source[i] = k;
  return source;
}

// What is told of the student as it was then, in lists that fit the class of today. Seats stay: on
// the one of then somebody else may sit.
Student FitStudent(const Class& then, const Student& was, const Class& now, const Student& is) {
  Student student = was;
  student.Marks = Moved(was.Marks, is.Marks, SameGrades(then, now), ShortText(kNewMark));
  if (!was.Marks.empty() && !student.Marks.empty()) student.Marks[0] = was.Marks[0];
  if (now.NumDays > 0)
    student.DailyMarks = Moved(was.DailyMarks, is.DailyMarks, SameDays(then, now), FixedText<1>());
  if (now.NumSummaries > 0) {
    const auto same = SameSummaries(then, now);
    student.SummaryAbsent =
        Moved(was.SummaryAbsent, is.SummaryAbsent, same, FixedText<5>(kNewSummaryCount));
    student.SummaryLate = Moved(was.SummaryLate, is.SummaryLate, same, ShortText(kNewSummaryCount));
    student.SummaryDetail =
        Moved(was.SummaryDetail, is.SummaryDetail, same, ShortText(kNewSummaryDetail));
  }
  student.SeatRow = is.SeatRow;
  student.SeatColumn = is.SeatColumn;
  return student;
}

// Who stands in no list yet, with a place in each chart.
Student FreshStudent(const Class& now) {
  Student student;
  ReDim(student.SeatRow, std::max<int>(now.NumCharts, 1), kNotSeated);
  ReDim(student.SeatColumn, std::max<int>(now.NumCharts, 1), kNotSeated);
  return student;
}

template <typename T>
void MoveLastTo(List<T>& list, std::size_t place) {
  if (place >= list.size()) return;
  std::rotate(list.begin() + static_cast<std::ptrdiff_t>(place), std::prev(list.end()), list.end());
}

// A new grade at that place, and a mark "NEW" of it for everybody.
void InsertGrade(Class& now, std::size_t place, const Instrument& grade) {
  const int count = ++now.NumInstruments;
  ReDimPreserve(now.Instruments, count);
  now.Instruments.back() = grade;
  MoveLastTo(now.Instruments, place);
  for (int i = 1; i <= now.NumStudents; ++i) {
    List<ShortText>& marks = now.Students[static_cast<std::size_t>(i)].Marks;
    ReDimPreserve(marks, count, ShortText(kNewMark));
    MoveLastTo(marks, place);
  }
  ReDimPreserve(now.Weights, count);
  now.Weights.back() = grade.weight;
  MoveLastTo(now.Weights, place);
  ReDimPreserve(now.InstrumentUse, count, Currency::FromWhole(1));
  now.InstrumentUse.back() = Currency::FromWhole(Trim(grade.countflag) == "N" ? 2 : 1);
  MoveLastTo(now.InstrumentUse, place);
}

std::size_t PlaceOf(const std::vector<std::size_t>& source, std::size_t i) {
  return i < source.size() ? source[i] : kNowhere;
}

}  // namespace

int ReadState(std::string_view bytes, Class& out) {
  const ParseOutcome read = ParseClass(bytes, out);
  return read.error != 0 ? read.error : MendClass(out, bytes.size());
}

int ReadAsOpened(std::string_view bytes, Class& out) {
  SetDefaultLetterValues(out);
  if (const int error = ReadState(bytes, out); error != 0) return error;
  SetDefaultRoundScale(out);
  if (out.RoundScale == kTemporaryScale) out.RoundScale = 0;
  MakeDerivedValues(out);
  return 0;
}

int PutState(std::string_view bytes) {
  Class state;
  if (const int error = ReadAsOpened(bytes, state); error != 0) return error;
  Class& c = Current();
  state.FileName = c.FileName;
  state.SlotState = c.SlotState;
  state.Magic = c.Magic;
  state.PasswordSet = c.PasswordSet;
  state.Password = c.Password;
  state.Changed = kTrue;
  c = std::move(state);
  // A figure beyond its range is told when averages are made.
  ParseAverageSettings();
  PrepareWeights();
  MakeDerivedValues(c);
  return 0;
}

std::string TakeBackStudent(const Class& then, std::size_t student, Class& now) {
  const Student& was = then.Students[student];
  const std::size_t place = PlaceOf(MatchRecords(now, then).students, student);
  for (std::size_t i = 1; i < now.Students.size(); ++i) {
    const bool taken =
        i != place && !Trim(was.id).empty() && Trim(now.Students[i].id) == Trim(was.id);
    if (taken) return PlainName(now.Students[i]) + " has the ID of that student now.";
  }
  if (place != kNowhere) {
    now.Students[place] = FitStudent(then, was, now, now.Students[place]);
  } else {
    if (now.NumStudents == kMostRecords) return "The class is full.";
    Student fresh = FitStudent(then, was, now, FreshStudent(now));
    ReDimPreserve(now.Students, ++now.NumStudents);
    now.Students.back() = std::move(fresh);
  }
  now.LastNameWidth = std::max(now.LastNameWidth, then.LastNameWidth);
  now.FirstNameWidth = std::max(now.FirstNameWidth, then.FirstNameWidth);
  now.Changed = kTrue;
  MakeDerivedValues(now);
  return {};
}

std::string TakeBackGrade(const Class& then, std::size_t grade, Class& now) {
  std::size_t place = PlaceOf(SameGrades(now, then), grade);
  if (place == kNowhere) {
    if (now.NumInstruments == kMostRecords) return "The class has as many grades as it can.";
    place = std::min(grade, static_cast<std::size_t>(now.NumInstruments) + 1);
    InsertGrade(now, place, then.Instruments[grade]);
  }
  now.Instruments[place] = then.Instruments[grade];
  const auto students = MatchRecords(then, now).students;
  for (std::size_t s = 1; s < now.Students.size(); ++s) {
    if (students[s] == kNowhere) continue;
    const List<ShortText>& was = then.Students[students[s]].Marks;
    if (grade < was.size() && place < now.Students[s].Marks.size())
      now.Students[s].Marks[place] = was[grade];
  }
  now.Changed = kTrue;
  MakeDerivedValues(now);
  return {};
}

}  // namespace tallyroll
