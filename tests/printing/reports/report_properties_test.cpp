// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for every report of every class.
#include <gtest/gtest.h>

#include <map>
#include <numeric>
#include <random>
#include <sstream>

#include "store/settings.h"
#include "tests/printing/random_report_class.h"

namespace tallyroll {
namespace {

constexpr std::array kCodes = {1,  2,  3,  4,  8,  9,  10, 11, 12, 13, 14,
                               15, 16, 17, 18, 19, 20, 21, 22, 23, 24, 25};

class ReportPropertiesTest : public ReportTest, public testing::WithParamInterface<int> {
 protected:
  static i16 Code() { return static_cast<i16>(GetParam()); }

  // A random class with everything on its reports but comments. Those of the class reports are not
  // bounded by the page: their lines weigh a quarter when a block is fitted, so long ones pass the
  // bottom.
  // False where the report has nothing to choose from.
  static bool Choose(unsigned seed) {
    RandomReportClass(seed).Make();
    const Class& c = Current();
    Choice = ReportChoice();
    Choice.attendance1 = Choice.parentsig = Choice.printcode = true;
    Choice.shown = static_cast<Shown>(seed % 3);
    Choice.grade = c.NumInstruments;
    Choice.summary = c.NumSummaries;
    Choice.month_first = 46266;
    Choice.month_last = 46296;
    for (int s = 1; s <= c.NumStudents; s += 10) Choice.students.push_back(static_cast<i16>(s));
    Job.PrintFlag = kPrintRuns;
    Job.PrintTab = FindReport(Code())->tab;
    Job.ReportCode = Code();
    return !(Code() == 9 && c.NumSummaries == 0) && !(Code() == 10 && c.NumInstruments == 0);
  }

  static std::vector<PrintedPage> AllPages() {
    std::vector<PrintedPage> pages;
    for (int page = 1; page <= Job.PageCount; ++page) pages.push_back(Page(page));
    return pages;
  }

  template <typename Check>
  void OnRandomClasses(Check check) {
    for (unsigned seed = 1; seed <= 4; ++seed) {
      SCOPED_TRACE(seed);
      if (!Choose(seed)) continue;
      LayOut(Code());
      check();
      if (HasFatalFailure()) return;
    }
  }
};

void ExpectWithinThePage(const PrintedPage& page) {
  for (const PrintedText& text : page.texts) {
    const double width = static_cast<double>(text.text.size()) * text.size * 10;
    EXPECT_GE(text.x, 0) << text.text;
    EXPECT_LE(text.x + (text.upwards ? text.size * 24 : width), Job.PageTextWidth) << text.text;
    if (text.upwards) {
      EXPECT_GE(text.y - width, 0) << text.text;
    } else {
      const double line = 24 * static_cast<double>(PrinterFontSize);
      EXPECT_LE(text.y + text.size * 24, Job.PageBottom + kFootLines * line) << text.text;
    }
  }
  for (const PrintedLine& line : page.lines) {
    EXPECT_GE(line.x1, 0);
    EXPECT_LE(line.x2, Job.PageTextWidth);
  }
}

TEST_P(ReportPropertiesTest, NothingIsDrawnBeyondThePage) {
  OnRandomClasses([] {
    for (const PrintedPage& page : AllPages()) ExpectWithinThePage(page);
  });
}

TEST_P(ReportPropertiesTest, NorWithTheNarrowestAndTheWidestMargins) {
  for (const char* margin : {"-200", "-1500"}) {
    MarginTop = MarginLeft = MarginBottom = MarginRight = margin;
    for (const float size : {8.0F, 12.0F}) {
      PrinterFontSize = size;
      if (!Choose(3)) Choose(5);
      LayOut(Code());
      for (const PrintedPage& page : AllPages()) ExpectWithinThePage(page);
    }
  }
}

TEST_P(ReportPropertiesTest, PagesInAnyOrderAndTwiceAreTheSameDrawing) {
  PrinterFontSize = 12;  // a size that the head puts back a hair smaller
  std::mt19937 random(7);
  OnRandomClasses([&] {
    const std::vector<PrintedPage> alone = AllPages();
    std::vector<int> order(alone.size());
    std::iota(order.begin(), order.end(), 1);
    order.insert(order.end(), order.begin(), order.end());
    std::shuffle(order.begin(), order.end(), random);
    const auto box = screen.MakePrintBox(PrintsLandscape());
    PrepareTarget(*box);
    for (const int page : order) {
      ASSERT_TRUE(RenderPage(*box, page));
      EXPECT_EQ(Drawn(*box), alone[static_cast<std::size_t>(page) - 1]) << page;
    }
  });
}

TEST_P(ReportPropertiesTest, TheSameReportLaidOutAgainHasTheSamePages) {
  OnRandomClasses([this] {
    const PrintJob before = Job;
    LayOut(Code());
    EXPECT_EQ(Job.PageFirst, before.PageFirst);
    EXPECT_EQ(Job.PageLast, before.PageLast);
    EXPECT_EQ(Job.PageStudent, before.PageStudent);
  });
}

TEST_P(ReportPropertiesTest, PagesThatAreNotThereAreRefused) {
  OnRandomClasses([] {
    FixedPrintTarget box;
    PrepareTarget(box);
    EXPECT_FALSE(RenderPage(box, 0));
    EXPECT_FALSE(RenderPage(box, -1));
    EXPECT_FALSE(RenderPage(box, Job.PageCount + 1));
    EXPECT_EQ(box.job->pages.back(), PrintedPage());
  });
}

TEST_P(ReportPropertiesTest, ACancelledLayoutIsShort) {
  OnRandomClasses([this] {
    const int whole = Job.PageCount;
    const int before = screen.pumped;
    LayOut(Code());
    const int rows = screen.pumped - before;
    if (rows == 0) return;  // nothing to cancel in
    const int half = screen.pumped + 1 + rows / 2;
    screen.on_pump = [&] {
      if (screen.pumped >= half) Job.PrintFlag = kPrintCancelled;
    };
    EXPECT_FALSE(LayOutReport());
    EXPECT_LT(Job.PageCount, whole);
    screen.on_pump = nullptr;
  });
}

TEST_P(ReportPropertiesTest, EveryPageBearsItsNumberOnce) {
  OnRandomClasses([] {
    for (int number = 1; number <= Job.PageCount; ++number) {
      const PrintedPage page = Page(number);
      int feet = 0;
      for (const PrintedText& text : page.texts)
        feet += text.text == "Page " + PlainNumberText(number);
      EXPECT_EQ(feet, 1) << number;
    }
  });
}

TEST_P(ReportPropertiesTest, TheTableGoesThroughTheRowsWithoutAGap) {
  OnRandomClasses([] {
    for (std::size_t p = 1; p < Job.PageFirst.size(); ++p) {
      const bool begins = p == 1 || Job.PageStudent[p] != Job.PageStudent[p - 1];
      const bool on_student = FindReport(Code())->one_student;
      const int first = p == 1 || (on_student && begins) ? 1 : Job.PageLast[p - 1] + 1;
      EXPECT_EQ(Job.PageFirst[p], first) << p;
      EXPECT_GE(Job.PageLast[p], Job.PageFirst[p] - 1) << p;
    }
  });
}

class StudentCommentTest : public ReportPropertiesTest {
 protected:
  // Words that no other student has, short ones and more than a page of them.
  static void Comment(int student, int words) {
    std::string& comment = Current().Students[static_cast<std::size_t>(student)].comments;
    for (int word = 1; word <= words; ++word)
      comment += "s" + PlainNumberText(student) + "w" + PlainNumberText(word) + " ";
  }
  // How often each of those words stands on the pages.
  static std::map<std::string, int> WordsOnPages() {
    std::map<std::string, int> words;
    for (const PrintedPage& page : AllPages())
      for (const PrintedText& text : page.texts) {
        std::istringstream stream(text.text);
        for (std::string word; stream >> word;) ++words[word];
      }
    return words;
  }
};

TEST_P(StudentCommentTest, GoesOnOnTheNextPageWithEachWordOnce) {
  for (unsigned seed = 1; seed <= 4; ++seed) {
    SCOPED_TRACE(seed);
    Choose(seed);
    Choice.comment1 = true;
    const int words = seed % 2 == 0 ? 1000 : 40;
    for (const i16 student : Choice.students) Comment(student, words);
    LayOut(Code());
    for (const PrintedPage& page : AllPages()) ExpectWithinThePage(page);
    const std::map<std::string, int> printed = WordsOnPages();
    for (const i16 student : Choice.students)
      for (int word = 1; word <= words; ++word) {
        const std::string text = "s" + PlainNumberText(student) + "w" + PlainNumberText(word);
        EXPECT_EQ(printed.count(text) ? printed.at(text) : 0, 1) << text;
      }
  }
}

INSTANTIATE_TEST_SUITE_P(GradesOfAStudent, StudentCommentTest, testing::Values(12, 13, 17, 18),
                         [](const auto& code) { return "Code" + PlainNumberText(code.param); });

INSTANTIATE_TEST_SUITE_P(EveryCode, ReportPropertiesTest, testing::ValuesIn(kCodes),
                         [](const auto& code) { return "Code" + PlainNumberText(code.param); });

}  // namespace
}  // namespace tallyroll
