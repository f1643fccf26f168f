// SPDX-License-Identifier: GPL-3.0-or-later
// Each student and grade that belongs on a report stands on its pages, and no more often than it
// should.
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "base/text.h"
#include "grades/marks.h"
#include "store/student_names.h"
#include "tests/printing/random_report_class.h"

namespace tallyroll {
namespace {

class ReportContentsTest : public ReportTest {
 protected:
  void OnRandomClasses(i16 code, const std::function<void()>& check) {
    for (unsigned seed = 21; seed <= 26; ++seed) {
      SCOPED_TRACE(seed);
      RandomReportClass(seed).Make();
      const Class& c = Current();
      Choice = ReportChoice();
      Choice.printcode = true;
      Choice.shown = Shown::kName;
      Choice.grade = c.NumInstruments;
      Choice.summary = c.NumSummaries;
      Choice.month_first = 46266;
      Choice.month_last = 46296;
      for (int s = 1; s <= c.NumStudents; s += 7) Choice.students.push_back(static_cast<i16>(s));
      if ((code == 9 && c.NumSummaries == 0) || (code == 10 && c.NumInstruments == 0)) continue;
      LayOut(code);
      CountTexts();
      check();
    }
  }

  int Times(const std::string& text) const {
    const auto found = times_.find(text);
    return found == times_.end() ? 0 : found->second;
  }

  static std::string Label(int s) {
    CurrentStudent = static_cast<i16>(s);
    return StudentLabel();
  }
  static const Student& StudentAt(int s) { return Current().Students[static_cast<std::size_t>(s)]; }
  static std::string TitleAt(int i) {
    return Current().Instruments[static_cast<std::size_t>(i)].title;
  }
  static int Chosen() { return static_cast<int>(Choice.students.size()); }

  void ExpectEachStudent(int times) const {
    for (int s = 1; s <= Current().NumStudents; ++s)
      EXPECT_EQ(Times(PlainName(StudentAt(s))), times) << s;
  }
  void ExpectEachTitle(int times) const {
    for (int i = 1; i <= Current().NumInstruments; ++i) EXPECT_EQ(Times(TitleAt(i)), times) << i;
  }

 private:
  void CountTexts() {
    times_.clear();
    for (int page = 1; page <= Job.PageCount; ++page)
      for (const PrintedText& text : Page(page).texts) ++times_[text.text];
  }

  std::map<std::string, int> times_;
};

TEST_F(ReportContentsTest, FullGradesHaveEachStudentOnceAndEachGradeWithEachOfThem) {
  for (const i16 code : {i16{1}, i16{11}})
    OnRandomClasses(code, [&] {
      const Class& c = Current();
      for (int s = 1; s <= c.NumStudents; ++s) EXPECT_EQ(Times(Label(s)), 1) << s;
      ExpectEachTitle(1);
      for (int i = 1; i <= c.NumInstruments; ++i)
        EXPECT_EQ(Times("g" + PlainNumberText(i)), c.NumStudents + 1) << i;
    });
}

TEST_F(ReportContentsTest, MissingGradesHaveEachMissingMarkOnce) {
  OnRandomClasses(2, [&] {
    const Class& c = Current();
    std::map<std::string, int> missing;
    for (int s = 1; s <= c.NumStudents; ++s) {
      bool any = false;
      for (int i = 1; i <= c.NumInstruments; ++i) {
        if (!IsMissing(MarkOf(StudentAt(s), i))) continue;
        any = true;
        ++missing[TitleAt(i)];
      }
      EXPECT_EQ(Times(Label(s)), any ? 1 : 0) << s;
    }
    for (int i = 1; i <= c.NumInstruments; ++i)
      EXPECT_EQ(Times(TitleAt(i)), missing[TitleAt(i)]) << i;
  });
}

TEST_F(ReportContentsTest, OneStudentsMissingGradesLikewise) {
  OnRandomClasses(14, [&] {
    for (int i = 1; i <= Current().NumInstruments; ++i) {
      int missing = 0;
      for (const i16 s : Choice.students) missing += IsMissing(MarkOf(StudentAt(s), i));
      EXPECT_EQ(Times(TitleAt(i)), missing) << i;
    }
    for (const i16 s : Choice.students) EXPECT_EQ(Times("Missing Grades For " + Label(s)), 1) << s;
  });
}

// By name a block of the roll book has the columns 38, 43 to 88: eleven.
int BlocksOfRollBook() {
  return std::max((Current().NumInstruments + 10) / 11, 1);
}

TEST_F(ReportContentsTest, TheRollBookHasEachStudentOnceABlock) {
  for (const i16 code : {i16{3}, i16{4}})
    OnRandomClasses(code, [&] { ExpectEachStudent(BlocksOfRollBook()); });
}

TEST_F(ReportContentsTest, TheRollBookHeadsEachGradeOnEachPageOfItsBlock) {
  OnRandomClasses(4, [&] {
    for (int i = 1; i <= Current().NumInstruments; ++i) {
      EXPECT_GE(Times(TitleAt(i)), 1) << i;
      EXPECT_LE(Times(TitleAt(i)), Job.PageCount) << i;
    }
  });
}

TEST_F(ReportContentsTest, MonthsHaveEachStudentOnceAMonth) {
  OnRandomClasses(8, [&] { ExpectEachStudent(2); });
}

TEST_F(ReportContentsTest, ListsOfTheClassHaveEachStudentOnce) {
  for (const i16 code : {i16{9}, i16{10}, i16{19}, i16{20}, i16{23}})
    OnRandomClasses(code, [&] { ExpectEachStudent(1); });
}

TEST_F(ReportContentsTest, AllPeriodsHaveEachStudentOnceABlock) {
  OnRandomClasses(16, [&] {
    // By name the periods begin at column 38 and end at 95: 57 columns of 10 or 30 each.
    int blocks = 1, column = 38;
    for (int i = 1; i <= Current().NumSummaries; ++i) {
      const int width = Current().Summaries[static_cast<std::size_t>(i)].kind == 2 ? 30 : 10;
      if (column + width > 95) {
        ++blocks;
        column = 38;
      }
      column += width;
    }
    ExpectEachStudent(blocks);
  });
}

TEST_F(ReportContentsTest, AllGradesHaveEachGradeOnceAStudent) {
  for (const i16 code : {i16{12}, i16{13}})
    OnRandomClasses(code, [&] {
      ExpectEachTitle(Chosen());
      const std::string title = code == 12 ? " All Grades/Average for " : " All Grades for ";
      for (const i16 s : Choice.students) EXPECT_EQ(Times(title + Label(s)), 1) << s;
    });
}

TEST_F(ReportContentsTest, DaysHaveEachMarkOfAStudentOnce) {
  OnRandomClasses(15, [&] {
    std::map<std::string, int> marks;
    for (const i16 s : Choice.students)
      for (int d = 1; d <= Current().NumDays; ++d) {
        const auto day = static_cast<std::size_t>(d);
        if (StudentAt(s).DailyMarks[day].view() == " ") continue;
        // Days begin on 2 September.
        const int of_september = d + 1;
        const int month = of_september <= 30 ? 9 : of_september <= 61 ? 10 : 11;
        const int date = of_september - (month == 9 ? 0 : month == 10 ? 30 : 61);
        ++marks[PlainNumberText(month) + "/" + PlainNumberText(date) + "/2026"];
      }
    for (const auto& [date, count] : marks) EXPECT_EQ(Times(date), count) << date;
  });
}

TEST_F(ReportContentsTest, SummariesHaveEachUsedTypeOnceAStudent) {
  for (const i16 code : {i16{17}, i16{18}})
    OnRandomClasses(code, [&] {
      for (const auto& [type, name] :
           std::map<std::string, std::string>{{"Q", "Quiz"}, {"T", "Test"}, {"P", "Project"}}) {
        bool used = false;
        for (int i = 1; i <= Current().NumInstruments; ++i)
          used = used || Trim(Current().Instruments[static_cast<std::size_t>(i)].typecode) == type;
        EXPECT_EQ(Times(name), used ? Chosen() : 0) << name;
      }
    });
}

TEST_F(ReportContentsTest, ContactFormsOfChosenStudentsAreTheirs) {
  OnRandomClasses(21, [&] {
    EXPECT_EQ(Job.PageCount, Chosen());
    for (const i16 s : Choice.students) EXPECT_EQ(Times(PlainName(StudentAt(s))), 1) << s;
  });
}

TEST_F(ReportContentsTest, PeriodsOfAStudentStandOnceEach) {
  OnRandomClasses(24, [&] {
    for (int i = 1; i <= Current().NumSummaries; ++i)
      EXPECT_EQ(Times("Period#" + PlainNumberText(i)), Chosen()) << i;
  });
}

}  // namespace
}  // namespace tallyroll
