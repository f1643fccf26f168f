// SPDX-License-Identifier: GPL-3.0-or-later
// Code 22: what Class Information holds, a line each.
#include <array>
#include <string>

#include "printing/page/page_frame.h"
#include "printing/page/paper_line.h"
#include "printing/reports/report_writers.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::string_view kInformationTitle = " Class Information Printout";
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

// One walk for paper and text.
template <typename Sheet>
void PutLines(Sheet&& sheet) {
  for (const InformationLine& line : kLines) {
    sheet.Put(line.label);
    sheet.Tab(kValueColumn);
    sheet.End(Current().*line.value);
    sheet.End();
  }
}

}  // namespace

void PrintClassInformation(ReportPass& pass) {
  PageHeader(pass, kInformationTitle);
  PutLines(PaperSheet{pass.target});
  PageFooter(pass, 2);  // one row in all
}

void WriteClassInformation(TextReport& text) {
  text.Line(kInformationTitle);
  text.End();
  PutLines(text);
}

}  // namespace tallyroll
