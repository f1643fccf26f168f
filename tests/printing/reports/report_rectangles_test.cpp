// SPDX-License-Identifier: GPL-3.0-or-later
// Long titles, IDs, names and comments: no text of any report covers another one or leaves its
// sheet.
#include <gtest/gtest.h>

#include "base/text.h"
#include "store/settings.h"
#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

constexpr double kHair = 0.01;

struct Rectangle {
  double left, top, right, bottom;
  std::string text;

  bool Covers(const Rectangle& other) const {
    return left < other.right - kHair && other.left < right - kHair && top < other.bottom - kHair &&
           other.top < bottom - kHair;
  }
};

// Of what can be seen: a blank at the end covers nothing.
Rectangle RectangleOf(const PrintedText& text) {
  const double width = static_cast<double>(TrimRight(text.text).size()) * text.size * 10;
  const double height = text.size * 24;
  if (text.upwards) return {text.x, text.y - width, text.x + height, text.y, text.text};
  return {text.x, text.y, text.x + width, text.y + height, text.text};
}

std::string Words(int letters) {
  std::string words;
  while (static_cast<int>(words.size()) < letters)
    words += "word" + PlainNumberText(static_cast<int>(words.size())) + " ";
  words.resize(static_cast<std::size_t>(letters));
  return words;
}

class ReportRectanglesTest : public ClassBuilder, public testing::WithParamInterface<int> {
 protected:
  ReportRectanglesTest() {
    Class& c = Current();
    c.school = c.teacher = c.description = c.room = c.timed = Words(200);
    for (int s = 1; s <= 30; ++s) {
      const std::string number = PlainNumberText(1000 + s);
      Student& student = Enrol(Words(30) + number, Words(30),
                               number + std::string(static_cast<std::size_t>(s), '7'));
      student.comments = Words(1000) + "\r\n" + std::string(300, 'o');
      student.address = student.email = student.parent = student.work = Words(150);
      student.city = student.state = student.zip = student.phone = student.birth = Words(40);
    }
    for (int i = 1; i <= 40; ++i)
      AddGrade(Words(i * 6) + PlainNumberText(i), "code" + PlainNumberText(i), "Q ", 100,
               "12/31/2026");
    for (int s = 1; s <= c.NumStudents; ++s) SetMarks(s, std::vector<std::string>(40, "90.25"));
    for (int s = 1; s <= c.NumStudents; s += 3) SetMarks(s, {"NON", "ABS", "CUT"});
    for (int i = 1; i <= 10; ++i) {
      AddPeriod(Words(60), "period" + PlainNumberText(i), static_cast<i16>(1 + i % 2));
      for (int s = 1; s <= c.NumStudents; ++s)
        SetPeriod(s, i, "99999", "1234567", "999/999/99/99/");
    }
    for (int day = 0; day < 60; ++day) AddDay(kFirstOfSeptember + day, std::string(30, 'A'));
    c.Method = 0;
    c.Weights.assign(41, Currency::FromScaled(333333));
    Job.PrintTitle = std::string(80, 'P');
    Choice = ReportChoice();
    Choice.attendance1 = Choice.comment1 = Choice.parentsig = Choice.printcode = true;
    Choice.school = Choice.teacher = true;
    Choice.grade = 40;
    Choice.summary = 2;
    Choice.month_first = kFirstOfSeptember;
    Choice.month_last = kFirstOfOctober;
    Choice.students = {1, 2, 30};
  }

  static void ExpectOnTheSheet(const Rectangle& r) {
    const double line = 24 * static_cast<double>(PrintsLandscape() ? 9 : PrinterFontSize);
    EXPECT_GE(r.left, -kHair) << r.text;
    EXPECT_LE(r.right, Job.PageTextWidth + kHair) << r.text;
    EXPECT_GE(r.top, -kHair) << r.text;
    EXPECT_LE(r.bottom, Job.PageBottom + kFootLines * line + kHair) << r.text;
  }
  static void ExpectApart(const PrintedPage& page) {
    std::vector<Rectangle> seen;
    for (const PrintedText& text : page.texts) {
      const Rectangle r = RectangleOf(text);
      if (r.left == r.right || r.top == r.bottom) continue;
      ExpectOnTheSheet(r);
      for (const Rectangle& other : seen)
        EXPECT_FALSE(r.Covers(other)) << r.text << " covers " << other.text;
      seen.push_back(r);
    }
  }
  void ExpectAllApart() {
    LayOut(static_cast<i16>(GetParam()));
    EXPECT_GE(Job.PageCount, 1);
    for (int page = 1; page <= Job.PageCount; ++page) {
      SCOPED_TRACE("page " + PlainNumberText(page));
      ExpectApart(Page(page));
      if (HasFailure()) return;
    }
  }
};

TEST_P(ReportRectanglesTest, NoTextCoversAnotherOrLeavesTheSheet) {
  Job.PrintTab = FindReport(GetParam())->tab;
  for (const Shown shown : {Shown::kNameAndId, Shown::kName, Shown::kId}) {
    Choice.shown = shown;
    ExpectAllApart();
  }
}

TEST_P(ReportRectanglesTest, NorWithOtherFontsAndMargins) {
  Job.PrintTab = FindReport(GetParam())->tab;
  for (const char* margin : {"-200", "-1500"}) {
    MarginTop = MarginLeft = MarginBottom = MarginRight = margin;
    for (const float size : {8.0F, 12.0F, 16.0F}) {
      SCOPED_TRACE(std::string(margin) + " at " + PlainNumberText(static_cast<int>(size)));
      PrinterFontSize = size;
      ExpectAllApart();
      if (HasFailure()) return;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EveryCode, ReportRectanglesTest,
                         testing::Values(1, 2, 3, 4, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19,
                                         20, 21, 22, 23, 24, 25),
                         [](const auto& code) { return "Code" + PlainNumberText(code.param); });

}  // namespace
}  // namespace tallyroll
