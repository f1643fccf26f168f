// SPDX-License-Identifier: GPL-3.0-or-later
// A report on a small class, laid out on a surface of fixed measures. A character is 100 twips wide
// and a line 240 high at the body's 10 points; the sheet is 12240 by 15840 twips.
#pragma once

#include <string>
#include <vector>

#include "base/number_text.h"
#include "platform/fixed_print_target.h"
#include "printing/page/page_frame.h"
#include "printing/page/report_choice.h"
#include "printing/print_run.h"
#include "printing/reports/reports.h"
#include "store/class_defaults.h"
#include "store/program_state.h"
#include "tests/support/portal_test.h"

namespace tallyroll {

using Rows = std::vector<std::string>;

class ReportTest : public PortalTest {
 protected:
  ReportTest() {
    SetDefaultLetterValues();
    SetDefaultRoundScale();
    Job.PrintFlag = kPrintRuns;
    Job.PrintTitle = "MATH";
  }

  static Student& Enrol(const std::string& lastname, const std::string& firstname,
                        const std::string& id) {
    Class& c = Current();
    ++c.NumStudents;
    ReDimPreserve(c.Students, c.NumStudents);
    AddStudentDefaults();
    Student& student = c.Students.back();
    student.lastname = lastname;
    student.firstname = firstname;
    student.id = id;
    return student;
  }
  static void EnrolMany(int count) {
    for (int i = 1; i <= count; ++i) {
      const std::string number = PlainNumberText(100 + i);
      Enrol("Last" + number, "First", number);
    }
  }

  // Lays the whole report out, as the Printer Portal does for the class reports.
  void LayOut(i16 code) {
    Job.ReportCode = code;
    EXPECT_TRUE(LayOutReport());
  }
  // What stands on a box of the surroundings of these tests.
  static const PrintedPage& Drawn(const PrintTarget& box) {
    return static_cast<const FixedPrintTarget&>(box).job->pages.back();
  }
  // A page drawn by itself from the page table.
  static PrintedPage Page(int page) {
    const auto box = Platform().MakePrintBox(PrintsLandscape());
    PrepareTarget(*box);
    EXPECT_TRUE(RenderPage(*box, page));
    return Drawn(*box);
  }
  static Rows PageRows(int page) { return FixedPrintTarget::RowsOf(Page(page)); }

  // First and last row of each page.
  static std::vector<std::pair<int, int>> PageTable() {
    std::vector<std::pair<int, int>> table;
    for (std::size_t p = 1; p < Job.PageFirst.size(); ++p)
      table.emplace_back(Job.PageFirst[p], Job.PageLast[p]);
    return table;
  }

  // The report's text file by lines.
  static Rows TextOf(i16 code) {
    Job.ReportCode = code;
    Rows lines;
    const std::string text = ReportText();
    for (std::size_t at = 0; at < text.size();) {
      const std::size_t end = text.find("\r\n", at);
      lines.push_back(text.substr(at, end - at));
      at = end + 2;
    }
    return lines;
  }
};

}  // namespace tallyroll
