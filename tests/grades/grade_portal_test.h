// SPDX-License-Identifier: GPL-3.0-or-later
// A grade Portal on a small class, worked as a teacher does.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/portal_driver.h"
#include "store/class_defaults.h"
#include "store/class_format.h"
#include "store/program_state.h"
#include "tests/support/enrol_student.h"
#include "tests/support/noting_window.h"
#include "tests/support/portal_test.h"

namespace tallyroll {

class GradePortalTest : public PortalTest {
 protected:
  GradePortalTest() {
    SetClassWindow(&window);
    SetDefaultLetterValues();
  }
  ~GradePortalTest() override {
    SetClassWindow(nullptr);
    if (!driver) return;
    for (const std::string& complaint : driver->Complaints()) ADD_FAILURE() << complaint;
  }

  static Student& Enrol(const std::string& lastname, const std::string& firstname,
                        const std::string& id) {
    Student& student = EnrolStudent(lastname, firstname, id);
    ReDim(student.Marks, Current().NumInstruments, ShortText("NEW"));
    return student;
  }

  // A grade at the end with the marks of the students in their order.
  static Instrument& Give(const std::string& title, const std::string& code,
                          const std::string& typecode, const std::vector<std::string>& marks) {
    Class& c = Current();
    const int n = ++c.NumInstruments;
    ReDimPreserve(c.Instruments, n);
    for (int i = 1; i <= c.NumStudents; ++i) {
      List<ShortText>& row = c.Students[static_cast<std::size_t>(i)].Marks;
      ReDimPreserve(row, n);
      row.back() = marks.at(static_cast<std::size_t>(i) - 1);
    }
    Instrument& grade = c.Instruments.back();
    grade.title = title;
    grade.code = code;
    grade.typecode = typecode;
    grade.mvalue = 100;
    grade.dropyn = "N";
    grade.testdate = "9/1/2026";
    grade.lowpass = "65";
    ReDimPreserve(c.Weights, n);
    ReDimPreserve(c.InstrumentUse, n, Currency::FromWhole(1));
    return grade;
  }

  static void DropGrades() {
    Class& c = Current();
    c.NumInstruments = 0;
    ReDim(c.Instruments, 0);
    ReDim(c.Weights, 0);
    ReDim(c.InstrumentUse, 0);
    for (Student& student : c.Students) ReDim(student.Marks, 0);
  }
  static void DropStudents() {
    Current().NumStudents = 0;
    ReDim(Current().Students, 0);
  }

  static std::string Mark(int student, int grade) {
    return Current()
        .Students.at(static_cast<std::size_t>(student))
        .Marks.at(static_cast<std::size_t>(grade))
        .str();
  }
  static Instrument& Grade(int i) { return Current().Instruments.at(static_cast<std::size_t>(i)); }
  static std::vector<std::string> Titles() {
    std::vector<std::string> titles;
    for (int i = 1; i <= Current().NumInstruments; ++i) titles.push_back(Grade(i).title);
    return titles;
  }
  static std::string Bytes() {
    std::string bytes;
    EXPECT_EQ(SerializeClass(Current(), bytes), 0);
    return bytes;
  }

  void UseMethod(i16 method) {
    Current().Method = method;
    Current().AverageSettings = "settings";
  }
  void ExpectMethodKept(i16 method) {
    EXPECT_EQ(Current().Method, method);
    EXPECT_EQ(Current().AverageSettings, "settings");
    EXPECT_TRUE(window.disabled.empty());
  }
  void ExpectMethodForgotten() {
    EXPECT_EQ(Current().Method, 5);
    EXPECT_EQ(Current().AverageSettings, "");
    EXPECT_EQ(window.disabled, (std::set<std::string>{"mnuoptions", "mnuprtgrade"}));
  }

  // How the last box looked, its text aside.
  void ExpectLastBox(std::string_view title, BoxIcon icon, BoxButtons buttons = BoxButtons::kOk,
                     bool second_is_default = false) {
    const MessageRequest& box = screen.boxes.at(screen.boxes.size() - 1);
    EXPECT_EQ(box.title, title) << box.text;
    EXPECT_EQ(box.icon, icon) << box.text;
    EXPECT_EQ(box.buttons, buttons) << box.text;
    EXPECT_EQ(box.second_is_default, second_is_default) << box.text;
  }

  void Open(Portal& portal) {
    portal.Load();
    driver.emplace(portal);
  }

  NotingWindow window;
  std::optional<PortalDriver> driver;
};

inline const std::string kReminder =
    "You must fill in the TITLE and CODE of the grading instrument, and a GRADE for each "
    "student.\nUse TAB to move from one entry to the next.\nUse ARROW KEYS to move between student "
    "names.";
inline const std::string kScoreMustBeAbove0 = "The value for Maximum Score must be greater than 0";
inline const std::string kDataEntered = "Data has been entered. Are you sure you want to CANCEL?";

}  // namespace tallyroll
