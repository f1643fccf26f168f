// SPDX-License-Identifier: GPL-3.0-or-later
// What stands in a PDF is what its pages were drawn with, for every report.
#include <gtest/gtest.h>

#include <algorithm>

#include "base/code_page.h"
#include "desktop/paper/pdf_target.h"
#include "tests/printing/report_test.h"
#include "tests/support/pdf_words.h"

namespace tallyroll {
namespace {

// Paper that nobody sees, with a note of what was drawn.
class NotingTarget : public QtPrintTarget {
 public:
  using QtPrintTarget::QtPrintTarget;
  std::string drawn;  // UTF-8

  void PrintUpwards(std::string_view text, double /*x*/, double /*y*/) override { Note(text); }
  void Cls() override {
    QtPrintTarget::Cls();
    drawn.clear();
  }

 protected:
  void DrawTextAt(double /*x*/, double /*y*/, std::string_view text, double /*size*/) override {
    Note(text);
  }

 private:
  void Note(std::string_view text) { drawn += Utf8FromCodePage(text); }
};

// The characters of a text in order of their bytes: readers of PDF part words as they like.
std::string Letters(std::string text) {
  std::erase_if(text, [](char c) { return c == ' ' || c == '\n' || c == '\f'; });
  std::sort(text.begin(), text.end());
  return text;
}

class ReportWordsTest : public ReportTest, public testing::WithParamInterface<int> {
 protected:
  ReportWordsTest() {
    EnrolMany(45);
    Current().Students[1].lastname = "M\xFCller";
    Current().Students[2].comments = "Reads \x93\x41lways\x94 \x97 50\xBD pages a day";
    Current().NumInstruments = 3;
    ReDimPreserve(Current().Instruments, 3);
    for (std::size_t i = 1; i <= 3; ++i) {
      Instrument& grade = Current().Instruments[i];
      grade.title = "Homework about rivers " + PlainNumberText(static_cast<int>(i));
      grade.code = "H" + PlainNumberText(static_cast<int>(i));
      grade.typecode = "HW";
      grade.testdate = "9/1/2026";
      grade.mvalue = 100;
    }
    for (Student& student : Current().Students) {
      ReDim(student.Marks, 3);
      student.Marks[1] = "95";
      student.Marks[2] = "NEW";
      student.Marks[3] = "7.5";
    }
    Choice.comment1 = Choice.printcode = Choice.school = Choice.teacher = true;
    Choice.grade = 1;
    Choice.students = {1, 2};
    Choice.month_first = 46266;  // September and October 2026
    Choice.month_last = 46296;
  }

  static Sheet PaperFor() {
    const Sheet sheet = WholeSheet(QPageSize(QPageSize::Letter));
    return PrintsLandscape() ? Turned(sheet) : sheet;
  }
  void LayOutOnPaper() {
    QtPrintTarget box(PaperFor());
    PrepareTarget(box);
    if (!FindReport(Job.ReportCode)->one_student) {
      ASSERT_TRUE(LayOutRows(box));
      return;
    }
    for (const i16 student : Choice.students) {
      CurrentStudent = student;
      ASSERT_TRUE(LayOutRows(box));
    }
  }
};

TEST_P(ReportWordsTest, ThePdfHoldsWhatItsPagesWereDrawnWith) {
  Job.ReportCode = static_cast<i16>(GetParam());
  Job.PrintTab = FindReport(GetParam())->tab;
  LayOutOnPaper();
  ASSERT_GE(Job.PageCount, 1);

  const std::string path = Path("report.pdf");
  int error = 0;
  const auto pdf = PdfTarget::Open(path, WholeSheet(QPageSize(QPageSize::Letter)),
                                   PrintsLandscape(), "Report", error);
  ASSERT_NE(pdf, nullptr);
  PrepareTarget(*pdf);
  PrintRange pages;
  pages.to_page = Job.PageCount;
  ASSERT_TRUE(PrintPages(*pdf, pages, [](int) {}));
  EXPECT_EQ(PdfInfo(path, "Pages"), PlainNumberText(Job.PageCount));

  for (int page = 1; page <= Job.PageCount; ++page) {
    NotingTarget preview(PaperFor());
    PrepareTarget(preview);
    ASSERT_TRUE(RenderPage(preview, page));
    EXPECT_FALSE(preview.drawn.empty());
    EXPECT_EQ(Letters(PdfText(path, page)), Letters(preview.drawn)) << "page " << page;
  }
}

INSTANTIATE_TEST_SUITE_P(EveryReport, ReportWordsTest,
                         testing::Values(1, 2, 3, 4, 8, 10, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21,
                                         22, 23, 24, 25));

}  // namespace
}  // namespace tallyroll
