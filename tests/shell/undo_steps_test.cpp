// SPDX-License-Identifier: GPL-3.0-or-later
// Steps back and forth over random work.
#include "shell/undo_steps.h"

#include <random>

#include "base/number_text.h"
#include "store/class_format.h"
#include "store/derived_values.h"
#include "tests/shell/shell_test.h"
#include "tests/support/random_class.h"

namespace tallyroll {
namespace {

std::string BytesIn(const Class& c) {
  std::string bytes;
  EXPECT_EQ(SerializeClass(c, bytes), 0);
  return bytes;
}

// A class with names of its own for each student, so that their order is certain.
Class BigRandomClass(int students, int grades, std::mt19937& random) {
  Class c = RandomClass(random);
  c.NumStudents = static_cast<i16>(students);
  c.NumInstruments = static_cast<i16>(grades);
  c.NumDays = c.NumSummaries = c.NumCharts = 0;
  c.AttendanceDays.clear();
  c.Summaries.clear();
  c.ChartRows.clear();
  c.ChartColumns.clear();
  c.RoundMode = 0;
  ReDim(c.Instruments, grades);
  ReDim(c.Students, students);
  for (int i = 1; i <= grades; ++i) {
    Instrument& grade = c.Instruments[static_cast<std::size_t>(i)];
    grade.title = "Grade " + PlainNumberText(i);
    grade.mvalue = 100;
  }
  for (int s = 1; s <= students; ++s) {
    Student& student = c.Students[static_cast<std::size_t>(s)];
    student.lastname = "Name" + PlainNumberText(1000 + s);
    student.id = PlainNumberText(s);
    ReDim(student.Marks, grades);
    for (int i = 1; i <= grades; ++i)
      student.Marks[static_cast<std::size_t>(i)] = PlainNumberText(50 + (7 * s + 3 * i) % 50);
  }
  MakeDerivedValues(c);
  return c;
}

// What Portals do to a class, at random.
class Work {
 public:
  explicit Work(unsigned seed) : random_(seed) {}
  std::mt19937& random() { return random_; }

  void Do(Class& c) {
    switch (Any(8)) {
      case 0:
        return FillGrade(c);
      case 1:
        return AddGrade(c);
      case 2:
        return DeleteGrade(c);
      case 3:
        return AddStudent(c);
      case 4:
        return DeleteStudent(c);
      case 5:
        return Rename(c);
      case 6:
        c.Method = static_cast<i16>((c.Method + 1) % 4);
        c.TypePercents[3] = Currency::FromWhole(Any(90));
        return;
      case 7:
        c.room = PlainNumberText(Any(99999));
        return;
      default:
        return OneMark(c);
    }
  }

 private:
  int Any(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }
  std::size_t Student1(const Class& c) {
    return 1 + static_cast<std::size_t>(Any(c.NumStudents - 1));
  }
  std::size_t Grade1(const Class& c) {
    return 1 + static_cast<std::size_t>(Any(c.NumInstruments - 1));
  }

  void OneMark(Class& c) { c.Students[Student1(c)].Marks[Grade1(c)] = PlainNumberText(Any(999)); }
  void FillGrade(Class& c) {
    const std::size_t grade = Grade1(c);
    const std::string mark = PlainNumberText(Any(100));
    for (std::size_t s = 1; s < c.Students.size(); ++s) c.Students[s].Marks[grade] = mark;
  }
  void AddGrade(Class& c) {
    ++c.NumInstruments;
    ReDimPreserve(c.Instruments, c.NumInstruments);
    c.Instruments.back().title = "More " + PlainNumberText(Any(9999));
    c.Instruments.back().mvalue = 10;
    for (std::size_t s = 1; s < c.Students.size(); ++s)
      c.Students[s].Marks.emplace_back(PlainNumberText(Any(10)));
  }
  void DeleteGrade(Class& c) {
    if (c.NumInstruments < 3) return;
    const auto grade = static_cast<std::ptrdiff_t>(Grade1(c));
    --c.NumInstruments;
    c.Instruments.erase(c.Instruments.begin() + grade);
    for (std::size_t s = 1; s < c.Students.size(); ++s)
      c.Students[s].Marks.erase(c.Students[s].Marks.begin() + grade);
  }
  void AddStudent(Class& c) {
    ++c.NumStudents;
    ReDimPreserve(c.Students, c.NumStudents);
    Student& student = c.Students.back();
    student.lastname = "New" + PlainNumberText(++named_);
    ReDim(student.Marks, c.NumInstruments, ShortText("NEW"));
  }
  void DeleteStudent(Class& c) {
    if (c.NumStudents < 3) return;
    --c.NumStudents;
    c.Students.erase(c.Students.begin() + static_cast<std::ptrdiff_t>(1 + Any(c.NumStudents)));
  }
  void Rename(Class& c) { c.Students[Student1(c)].lastname = "Other" + PlainNumberText(++named_); }

  std::mt19937 random_;
  int named_ = 0;
};

class UndoStepsTest : public PortalTest {};

TEST_F(UndoStepsTest, RandomWalksComeBackByteForByte) {
  for (unsigned seed = 1; seed <= 10; ++seed) {
    SCOPED_TRACE(seed);
    Work work(seed);
    Class c =
        BigRandomClass(5 + static_cast<int>(seed) * 3, 4 + static_cast<int>(seed), work.random());
    UndoSteps steps;
    steps.Begin(c);
    std::vector<std::string> states = {BytesIn(c)};  // after each step that is done
    std::size_t at = 0;
    for (int k = 0; k < 200; ++k) {
      SCOPED_TRACE(k);
      const int act = std::uniform_int_distribution<int>(0, 9)(work.random());
      if (act < 3 && at > 0) {
        ASSERT_TRUE(steps.Undo(c));
        --at;
      } else if (act < 5 && at + 1 < states.size()) {
        ASSERT_TRUE(steps.Redo(c));
        ++at;
      } else {
        work.Do(c);
        MakeDerivedValues(c);
        if (!steps.Note("Work", c)) continue;
        states.resize(++at);
        states.push_back(BytesIn(c));
      }
      ASSERT_EQ(BytesIn(c), states[at]);
      EXPECT_EQ(steps.ToUndo().empty(), at == 0);
      EXPECT_EQ(steps.ToRedo().empty(), at + 1 == states.size());
    }
  }
}

TEST_F(UndoStepsTest, FiveHundredStepsOfABigClassTakeLittle) {
  Work work(3);
  Class c = BigRandomClass(200, 100, work.random());
  UndoSteps steps;
  steps.Begin(c);
  int noted = 0;
  while (noted < 500) {
    work.Do(c);
    MakeDerivedValues(c);
    if (steps.Note("Work", c)) ++noted;
  }
  EXPECT_LT(steps.Size(), 50U << 20);
  for (int k = 0; k < 500; ++k) ASSERT_TRUE(steps.Undo(c));
  EXPECT_FALSE(steps.Undo(c));
}

TEST_F(UndoStepsTest, ANewStepEndsWhatWasUndone) {
  std::mt19937 random(5);
  Class c = BigRandomClass(3, 3, random);
  UndoSteps steps;
  steps.Begin(c);
  c.room = "1";
  EXPECT_TRUE(steps.Note("First", c));
  EXPECT_FALSE(steps.Note("Nothing", c));
  steps.Undo(c);
  EXPECT_EQ(steps.ToRedo(), "First");
  c.room = "2";
  EXPECT_TRUE(steps.Note("Second", c));
  EXPECT_EQ(steps.ToRedo(), "");
  EXPECT_EQ(steps.ToUndo(), "Second");
}

TEST_F(UndoStepsTest, ASavedClassIsUnchangedAgainWhereItWasSaved) {
  std::mt19937 random(5);
  Class c = BigRandomClass(3, 3, random);
  c.Changed = kFalse;
  UndoSteps steps;
  steps.Begin(c);
  c.room = "1";
  c.Changed = kTrue;
  steps.Note("First", c);
  c.Changed = kFalse;
  steps.NoteSaved();
  steps.Undo(c);
  EXPECT_EQ(c.Changed, kTrue);
  steps.Redo(c);
  EXPECT_EQ(c.Changed, kFalse);
}

TEST_F(UndoStepsTest, AStepIsNamedAfterWhatItWasDoneTo) {
  std::mt19937 random(5);
  const Class before = BigRandomClass(3, 3, random);
  Class c = before;
  for (std::size_t s = 1; s <= 3; ++s) c.Students[s].Marks[2] = "0";
  EXPECT_EQ(NameOfStep("Edit Grades by Title", before, c), "Edit Grades by Title: Grade 2");
  c = before;
  c.Students[2].Marks[2] = "0";
  EXPECT_EQ(NameOfStep("Edit Grades by Title", before, c),
            "Edit Grades by Title: Grade 2, Name1002, ");
  c = before;
  c.Students[2].lastname = "Ng";
  c.Students[2].firstname = "Ada";
  EXPECT_EQ(NameOfStep("Edit Student", before, c), "Edit Student: Ng, Ada");
  c = before;
  c.Students.pop_back();
  c.NumStudents = 2;
  EXPECT_EQ(NameOfStep("Delete Student", before, c), "Delete Student: Name1003, ");
  c = before;
  c.room = "7";
  EXPECT_EQ(NameOfStep("Class Information", before, c), "Class Information");
}

}  // namespace
}  // namespace tallyroll
