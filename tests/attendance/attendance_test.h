// SPDX-License-Identifier: GPL-3.0-or-later
// A class with students and an attendance range, worked as a teacher does.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "attendance/attendance_range.h"
#include "attendance/daily_codes.h"
#include "attendance/term_table.h"
#include "base/date_serial.h"
#include "platform/portal_driver.h"
#include "store/class_format.h"
#include "store/program_state.h"
#include "tests/support/enrol_student.h"
#include "tests/support/noting_window.h"
#include "tests/support/portal_test.h"

namespace tallyroll {

// Notes besides how often the commands of the class window were enabled.
class AttendanceWindow : public NotingWindow {
 public:
  void EnableClassMenus(bool on) override { enablings += on; }
  int enablings = 0;
};

class AttendanceTest : public PortalTest {
 protected:
  AttendanceTest() { SetClassWindow(&window); }
  ~AttendanceTest() override {
    SetClassWindow(nullptr);
    if (!driver) return;
    for (const std::string& complaint : driver->Complaints()) ADD_FAILURE() << complaint;
  }

  static double Day(int year, int month, int day) { return DateSerial({year, month, day}); }

  // A student with a daily mark for each day that the class has.
  static Student& Enrol(const std::string& lastname, const std::string& firstname,
                        const std::string& id) {
    Student& student = EnrolStudent(lastname, firstname, id);
    if (Current().NumDays > 0) ReDim(student.DailyMarks, Current().NumDays);
    return student;
  }

  // The range of those months, without marks, as the class holds it before it was ever changed.
  static void SetRange(TermMonth first, TermMonth last) {
    Current().NumDays = 0;
    const auto dates = DatesOf({first, last, last.year});
    ASSERT_TRUE(dates.has_value());
    SetUpRange(*dates);
    Current().Changed = kFalse;
  }

  static Student& At(int student) {
    return Current().Students.at(static_cast<std::size_t>(student));
  }
  static std::size_t IndexOf(double day) {
    return static_cast<std::size_t>(day - Current().AttendanceDays.at(1).date) + 1;
  }
  static void Mark(int student, double day, const char* code) {
    At(student).DailyMarks.at(IndexOf(day)) = code;
  }
  static std::string MarkOf(int student, double day) {
    return std::string(At(student).DailyMarks.at(IndexOf(day)).view());
  }
  // "9/1/2026 A, 10/1/2026 L": every mark of a student under its date.
  static std::string Picture(int student) {
    std::string picture;
    const Class& c = Current();
    for (std::size_t j = 1; j < c.AttendanceDays.size(); ++j) {
      const std::string mark(At(student).DailyMarks.at(j).view());
      if (mark == " ") continue;
      picture += (picture.empty() ? "" : ", ") +
                 DateText(c.AttendanceDays[j].date, DateOrder::kMonthFirst) + " " + mark;
    }
    return picture;
  }

  // A period at the end of the class, with a place in every student's lists.
  static AttendanceSummary& AddPeriod(const std::string& title, const std::string& code, i16 kind) {
    Class& c = Current();
    const int n = ++c.NumSummaries;
    ReDimPreserve(c.Summaries, n);
    c.Summaries.back() = {title, code, kind, 0, "", ""};
    for (int i = 1; i <= c.NumStudents; ++i) {
      ReDimPreserve(At(i).SummaryAbsent, n);
      ReDimPreserve(At(i).SummaryLate, n);
      ReDimPreserve(At(i).SummaryDetail, n);
      At(i).SummaryAbsent.back() = "0";
      At(i).SummaryLate.back() = "0";
      At(i).SummaryDetail.back() = " 0/ 0/ 0/ 0/";
    }
    return c.Summaries.back();
  }
  // "absent|late|details" of a student in a period.
  static std::string Figures(int student, std::size_t k) {
    const Student& s = At(student);
    return std::string(s.SummaryAbsent.at(k).view()) + "|" + s.SummaryLate.at(k).str() + "|" +
           s.SummaryDetail.at(k).str();
  }

  static std::string Bytes() {
    std::string bytes;
    EXPECT_EQ(SerializeClass(Current(), bytes), 0);
    return bytes;
  }

  void ExpectLastBox(std::string_view title, BoxButtons buttons, BoxIcon icon) {
    ASSERT_FALSE(screen.boxes.empty());
    const MessageRequest& box = screen.boxes.back();
    EXPECT_EQ(box.title, title) << box.text;
    EXPECT_EQ(box.buttons, buttons) << box.text;
    EXPECT_EQ(box.icon, icon) << box.text;
  }

  void Open(Portal& portal) {
    portal.Load();
    driver.emplace(portal);
  }

  AttendanceWindow window;
  std::optional<PortalDriver> driver;
};

inline const std::string kSureToCancel = "Data has been entered. Are you sure you want to CANCEL?";
inline const std::string kStartsLater =
    "You are starting at a later month; the information for the earlier month(s) will be lost.";
inline const std::string kEndsEarlier =
    "You are ending at an earlier month; the information for the later month(s) will be lost.";
inline const std::string kTwenty =
    "You have entered the maximum number of summary attendance periods allowed for this class.";

}  // namespace tallyroll
