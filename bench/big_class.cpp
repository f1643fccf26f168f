// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/big_class.h"

#include <algorithm>
#include <random>

#include "attendance/daily_codes.h"
#include "base/date_serial.h"
#include "base/number_text.h"
#include "store/class_defaults.h"

namespace tallyroll {
namespace {

constexpr const char* kFirst[] = {"Ana",  "Ben",   "Chlo\xE9", "David",
                                  "Emma", "Farid", "Grace",    "Hugo"};
constexpr const char* kLast[] = {"Alvarez",
                                 "Brown",
                                 "Chen",
                                 "Dubois",
                                 "Evans",
                                 "Fischer",
                                 "Garc\xED"
                                 "a",
                                 "Haddad"};
constexpr const char* kMarks[] = {"A", "B+", "ABS", "EXC", "C-", "NEW"};

std::string Mark(std::mt19937& random) {
  if (random() % 12 == 0) return kMarks[random() % 6];
  return PlainNumberText(static_cast<int>(50 + random() % 51));
}

Student MakeStudent(std::mt19937& random, int number, int grades, int days) {
  Student s;
  const std::string id = PlainNumberText(100000 + number);
  s.lastname = std::string(kLast[random() % 8]) + PlainNumberText(static_cast<int>(random() % 900));
  s.firstname = kFirst[random() % 8];
  s.id = id;
  s.parent = "Parent of " + s.firstname;
  s.phone = "555-0100";
  s.address = id + " School Street";
  s.city = "Springfield";
  s.state = "NY";
  s.zip = "10001";
  s.email = "s" + id + "@example.org";
  ReDim(s.Marks, grades);
  for (int i = 1; i <= grades; ++i) s.Marks[static_cast<std::size_t>(i)] = Mark(random);
  ReDim(s.DailyMarks, days, FixedText<1>(" "));
  return s;
}

}  // namespace

Class BigClass(int students, int grades, int days) {
  std::mt19937 random(2026);
  Class c;
  c.Magic = "ty8";
  c.description = "Benchmark";
  c.NumStudents = static_cast<i16>(students);
  c.NumInstruments = static_cast<i16>(grades);
  c.NumDays = static_cast<i16>(days);
  ReDim(c.Instruments, grades);
  for (int i = 1; i <= grades; ++i) {
    Instrument& grade = c.Instruments[static_cast<std::size_t>(i)];
    grade.title = "Grade " + PlainNumberText(i);
    grade.code = "G" + PlainNumberText(i % 100);
    grade.mvalue = 100;
    grade.dropyn = "Y";
    grade.testdate = "9/1/2026";
    grade.typecode = "Q ";
  }
  ReDim(c.AttendanceDays, days);
  for (int i = 1; i <= days; ++i)
    c.AttendanceDays[static_cast<std::size_t>(i)].date = DateSerial({2026, 9, 1}) + i - 1;
  ReDim(c.Students, students);
  for (int i = 1; i <= students; ++i)
    c.Students[static_cast<std::size_t>(i)] = MakeStudent(random, i, grades, days);
  return c;
}

Class BigAttendedClass(int students, int days) {
  Class c = BigClass(students, 1, days);
  for (int i = 1; i <= students; ++i)
    for (int j = 1; j <= days; ++j)
      if ((i + j) % 7 == 0)
        c.Students[static_cast<std::size_t>(i)].DailyMarks[static_cast<std::size_t>(j)] =
            kDailyCodes.substr(static_cast<std::size_t>(i + j) % kDailyCodes.size(), 1);
  return c;
}

Class BigAveragedClass(int students, int grades, int method) {
  // Essay, homework, quiz, test and extra credit with their places among the 26 types.
  constexpr const char* kCodes[] = {"E ", "HW", "Q ", "T ", "X "};
  constexpr int kPlaces[] = {4, 6, 10, 12, 13};
  constexpr int kPercents[] = {15, 20, 25, 40, 5};
  Class c = BigClass(students, grades, 0);
  SetDefaultLetterValues(c);
  SetDefaultRoundScale(c);
  c.RoundMode = 0;
  int counted = 0;
  for (int i = 1; i <= grades; ++i) {
    Instrument& grade = c.Instruments[static_cast<std::size_t>(i)];
    grade.typecode = kCodes[i % 5];
    if (i % 5 != 4) ++counted;
  }
  for (int i = 1; i <= grades; ++i) {
    c.Instruments[static_cast<std::size_t>(i)].weight =
        Currency::FromDouble(i % 5 == 4 ? 0.1 : 100.0 / counted);
  }
  c.Method = static_cast<i16>(method);
  c.AverageFlag4 = kTrue;
  c.AverageSettings = PlainNumberText(method) + ",0,0,0,1";
  for (int t = 1; t <= 26; ++t) {
    const auto* const place = std::find(std::begin(kPlaces), std::end(kPlaces), t);
    const bool used = place != std::end(kPlaces);
    c.TypeWeights[static_cast<std::size_t>(t)] = Currency::FromWhole(used && t != 13 ? 2 : 0);
    c.AverageSettings += used && t != 13 ? ",2" : ",0";
    c.PercentsText += used ? PlainNumberText(kPercents[place - std::begin(kPlaces)]) : "0";
    if (t < 26) c.PercentsText += '\r';
  }
  return c;
}

}  // namespace tallyroll
