// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/change/named_changes.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "base/number_text.h"

namespace tallyroll {
namespace {

using Texts = std::vector<std::string>;

class NamedChangesTest : public testing::Test {
 protected:
  NamedChangesTest() {
    AddGrade("Quiz", "Q1");
    AddGrade("Test", "T1");
    Enrol("7", "Ng", {"80", "90"});
    Enrol("8", "Orr", {"60", "70"});
    before = c;
  }
  void AddGrade(const std::string& title, const std::string& code) {
    ++c.NumInstruments;
    ReDimPreserve(c.Instruments, c.NumInstruments);
    c.Instruments.back().title = title;
    c.Instruments.back().code = code;
    c.Instruments.back().mvalue = 100;
    for (std::size_t s = 1; s < c.Students.size(); ++s) c.Students[s].Marks.emplace_back("5");
  }
  void Enrol(const std::string& id, const std::string& name,
             const std::vector<const char*>& marks) {
    ++c.NumStudents;
    ReDimPreserve(c.Students, c.NumStudents);
    Student& student = c.Students.back();
    student.id = id;
    student.lastname = name;
    student.firstname = "Ada";
    student.Marks.assign(1, ShortText());
    for (const char* mark : marks) student.Marks.emplace_back(mark);
  }
  // "Ng, Ada/Quiz mark: 80 -> 85" of each change.
  Texts Told() const {
    Texts told;
    for (const NamedChange& change : ChangesBetween(before, c))
      told.push_back(change.name + "/" + change.grade + " " + change.field + ": " + change.before +
                     " -> " + change.after);
    return told;
  }
  Class c, before;
};

TEST_F(NamedChangesTest, TheSameClassHasNone) {
  EXPECT_EQ(Told(), Texts{});
  std::swap(c.Students[1], c.Students[2]);
  c.Students[1].Marks[0] = "60";
  EXPECT_EQ(Told(), Texts{});
}

TEST_F(NamedChangesTest, AMarkIsToldWithItsStudentAndGrade) {
  c.Students[2].Marks[1] = " 65";
  const std::vector<NamedChange> changes = ChangesBetween(before, c);
  ASSERT_EQ(changes.size(), 1U);
  EXPECT_EQ(changes[0], (NamedChange{"8", "Orr, Ada", "Quiz", "Q1", "mark", "60", "65"}));
}

TEST_F(NamedChangesTest, MarksFollowStudentsAndGradesThatMoved) {
  std::swap(c.Students[1], c.Students[2]);
  std::swap(c.Instruments[1], c.Instruments[2]);
  for (std::size_t s = 1; s <= 2; ++s) std::swap(c.Students[s].Marks[1], c.Students[s].Marks[2]);
  c.Students[1].Marks[1] = "71";
  EXPECT_EQ(Told(), (Texts{"Orr, Ada/Test mark: 70 -> 71"}));
}

TEST_F(NamedChangesTest, AGradeThatIsRenamedIsTheSameAtItsPlace) {
  c.Instruments[1].title = "Quiz one";
  EXPECT_EQ(Told(), (Texts{"/Quiz one title: Quiz -> Quiz one"}));
}

TEST_F(NamedChangesTest, ANewGradeBringsItsMarks) {
  AddGrade("Essay", "E1");
  EXPECT_EQ(Told(), (Texts{"/Essay grade:  -> Essay", "Ng, Ada/Essay mark:  -> 5",
                           "Orr, Ada/Essay mark:  -> 5"}));
}

TEST_F(NamedChangesTest, ADeletedGradeTakesItsMarks) {
  c.Instruments.erase(c.Instruments.begin() + 1);
  c.NumInstruments = 1;
  for (std::size_t s = 1; s <= 2; ++s) c.Students[s].Marks.erase(c.Students[s].Marks.begin() + 1);
  EXPECT_EQ(Told(), (Texts{"/Quiz grade: Quiz -> ", "Ng, Ada/Quiz mark: 80 -> ",
                           "Orr, Ada/Quiz mark: 60 -> "}));
}

TEST_F(NamedChangesTest, StudentsWhoCameAndWent) {
  c.Students.erase(c.Students.begin() + 1);
  c.NumStudents = 1;
  Enrol("9", "Poe", {"NEW", "NEW"});
  EXPECT_EQ(Told(), (Texts{"Poe, Ada/ student:  -> Poe, Ada", "Poe, Ada/Quiz mark:  -> NEW",
                           "Poe, Ada/Test mark:  -> NEW", "Ng, Ada/ student: Ng, Ada -> ",
                           "Ng, Ada/Quiz mark: 80 -> ", "Ng, Ada/Test mark: 90 -> "}));
}

TEST_F(NamedChangesTest, WhatIsToldOfAStudentAndOfTheClass) {
  c.room = "12";
  c.Students[1].phone = "555";
  c.Students[1].lastname = "Nguyen";
  EXPECT_EQ(Told(), (Texts{"/ room:  -> 12", "Nguyen, Ada/ lastname: Ng -> Nguyen",
                           "Nguyen, Ada/ phone:  -> 555"}));
}

TEST_F(NamedChangesTest, StudentsWithoutAnIdAreKnownByName) {
  before.Students[1].id = before.Students[2].id = "";
  c.Students[1].id = c.Students[2].id = "";
  std::swap(c.Students[1], c.Students[2]);
  c.Students[1].Marks[2] = "75";
  EXPECT_EQ(Told(), (Texts{"Orr, Ada/Test mark: 70 -> 75"}));
}

}  // namespace
}  // namespace tallyroll
