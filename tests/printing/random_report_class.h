// SPDX-License-Identifier: GPL-3.0-or-later
// A random class that every report can be made of: the texts of random_class.h at lengths that a
// page has room for, unique names and titles to look for, and figures that have an average.
#pragma once

#include <algorithm>
#include <array>
#include <random>
#include <string>

#include "averages/engine/average_state.h"
#include "tests/printing/report_test.h"
#include "tests/support/random_class.h"

namespace tallyroll {

class RandomReportClass {
 public:
  explicit RandomReportClass(unsigned seed) : random_(seed) {}

  // Puts it into the slot in work.
  void Make() {
    const std::string path = Current().FileName;
    Current() = RandomClass(random_);
    Class& c = Current();
    c.FileName = path;
    SetDefaultLetterValues();
    SetDefaultRoundScale();
    c.RoundScale = 0;
    c.Categories.fill({});
    FillGrades(c);
    FillPeriods(c);
    FillDays(c);
    FillStudents(c);
    FillMethod(c);
  }

 private:
  int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }
  template <std::size_t N>
  const char* OneOf(const std::array<const char*, N>& texts) {
    return texts[static_cast<std::size_t>(UpTo(static_cast<int>(N) - 1))];
  }
  static std::string Numbered(const char* text, int i) { return text + PlainNumberText(i); }

  void FillGrades(Class& c) {
    constexpr std::array kTypes = {"Q ", "T ", "HW", "X ", "P "};
    c.NumInstruments = static_cast<i16>(UpTo(2) == 0 ? UpTo(60) : UpTo(12));
    ReDim(c.Instruments, c.NumInstruments);
    for (int i = 1; i <= c.NumInstruments; ++i) {
      Instrument& grade = c.Instruments[static_cast<std::size_t>(i)];
      grade.title = Numbered("Title#", i);
      grade.code = Numbered("g", i);
      grade.typecode = OneOf(kTypes);
      grade.mvalue = static_cast<i16>(50 + UpTo(49));
      grade.testdate = Numbered("9/", 1 + UpTo(29)) + "/2026";
      grade.dropyn = "N";
      grade.countflag = "Y";
    }
  }
  void FillPeriods(Class& c) {
    c.NumSummaries = static_cast<i16>(UpTo(20));
    ReDim(c.Summaries, c.NumSummaries);
    for (int i = 1; i <= c.NumSummaries; ++i)
      c.Summaries[static_cast<std::size_t>(i)] = {
          Numbered("Period#", i), Numbered("p", i), static_cast<i16>(1 + UpTo(1)), 0, "", ""};
  }
  void FillDays(Class& c) {
    c.NumDays = static_cast<i16>(UpTo(60));
    ReDim(c.AttendanceDays, c.NumDays);
    for (int i = 1; i <= c.NumDays; ++i)
      c.AttendanceDays[static_cast<std::size_t>(i)].date = 46266 + i;
  }
  void FillStudents(Class& c) {
    const List<Student> before = c.Students;
    c.NumStudents = static_cast<i16>(UpTo(4) == 0 ? 0 : UpTo(60));
    ReDim(c.Students, c.NumStudents);
    for (int s = 1; s <= c.NumStudents; ++s) {
      Student& student = c.Students[static_cast<std::size_t>(s)];
      if (before.size() > 1)
        student = before[1 + static_cast<std::size_t>(s) % (before.size() - 1)];
      Shorten(student);
      student.lastname = Numbered("Last#", s);
      student.firstname = "F";
      student.id = Numbered("id#", s);
      FillLists(student, c);
    }
  }
  static void Shorten(Student& s) {
    s.comments.clear();
    for (std::string* text :
         {&s.city, &s.state, &s.zip, &s.work, &s.parent, &s.phone, &s.address, &s.birth, &s.email})
      text->resize(std::min<std::size_t>(text->size(), 9));
  }
  void FillLists(Student& s, const Class& c) {
    constexpr std::array kMarks = {"NEW", "ABS", "EXC", "CUT", "NON", "A-", "0", "1", "0.5"};
    constexpr std::array kDays = {" ", " ", "A", "C", "E", "S", "N", "L"};
    ReDim(s.Marks, c.NumInstruments);
    for (std::size_t i = 1; i < s.Marks.size(); ++i) s.Marks[i] = OneOf(kMarks);
    ReDim(s.DailyMarks, c.NumDays);
    for (std::size_t i = 1; i < s.DailyMarks.size(); ++i)
      s.DailyMarks[i] = FixedText<1>(OneOf(kDays));
    ReDim(s.SummaryAbsent, c.NumSummaries, FixedText<5>("1"));
    ReDim(s.SummaryLate, c.NumSummaries, ShortText("2"));
    ReDim(s.SummaryDetail, c.NumSummaries, ShortText(" 3/ 4/ 5/ 6/"));
  }
  void FillMethod(Class& c) {
    c.Method = static_cast<i16>(UpTo(3));
    c.AverageFlag1 = c.AverageFlag2 = c.AverageFlag3 = c.AverageFlag4 = 0;
    ReDim(c.Weights, c.NumInstruments, Currency::FromWhole(10));
    ReDim(c.InstrumentUse, c.NumInstruments, Currency::FromWhole(1));
    c.TypeWeights.fill(Currency());
    c.TypePercents.fill(Currency::FromWhole(4));
  }

  std::mt19937 random_;
};

}  // namespace tallyroll
