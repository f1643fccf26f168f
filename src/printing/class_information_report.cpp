// SPDX-License-Identifier: GPL-3.0-or-later
// Code 22: what Class Information holds, a line each.
#include <array>
#include <string>

#include "printing/page_frame.h"
#include "printing/report_writers.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kTitle = " Class Information Printout";
constexpr int kValueColumn = 30;

struct InformationLine {
  std::string_view label;
  std::string Class::*value;
};

constexpr std::array kLines = {
    InformationLine{"School", &Class::school},
    InformationLine{"Class Designation", &Class::description},
    InformationLine{"Teacher's Name", &Class::teacher},
    InformationLine{"Term Start Date", &Class::termstart},
    InformationLine{"Term End Date", &Class::termend},
    InformationLine{"Time/Period", &Class::timed},
    InformationLine{"Room Number", &Class::room},
};

}  // namespace

void PrintClassInformation(ReportPass& pass) {
  PageHeader(pass, kTitle);
  for (const InformationLine& line : kLines) {
    if (Cancelled()) return;
    pass.target.PrintOpen(line.label);
    pass.target.Tab(kValueColumn);
    pass.target.Print(Current().*line.value);
    pass.target.Print();
  }
  PageFooter(pass, 2);  // one row in all
}

void WriteClassInformation(TextReport& text) {
  text.Line(kTitle);
  text.Line("");
  for (const InformationLine& line : kLines) {
    text.Put(line.label);
    text.Tab(kValueColumn);
    text.End(Current().*line.value);
    text.End();
  }
}

}  // namespace tallyroll
