// SPDX-License-Identifier: GPL-3.0-or-later
// Codes 19 and 23: the students with room for notes, or with a grid of empty boxes.
#include "base/number_text.h"
#include "base/text.h"
#include "printing/page/paper_line.h"
#include "printing/page/sections.h"
#include "printing/reports/report_writers.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr i16 kGridForm = 23;
constexpr std::string_view kGridTitle = " Class Roster Printout Grid Form";
constexpr std::string_view kListTitle = "Class Roster";
constexpr std::string_view kBox = "        |";
constexpr int kRosterWidth = 80;

bool NamesAlone() {
  return NameMode == 57;
}
bool IdsAlone() {
  return NameMode >= 73;
}

int NotesColumn() {
  if (NamesAlone()) return 44;
  return IdsAlone() ? 25 : 60;
}

// One walk for paper and text: `Sheet` has Put, Tab and End.
template <typename Sheet>
void PutRosterHead(Sheet&& sheet) {
  sheet.Tab(6);
  sheet.Put(IdsAlone() ? "ID" : "NAME");
  if (!NamesAlone() && !IdsAlone()) {
    sheet.Tab(44);
    sheet.Put("ID");
  }
  sheet.Tab(NamesAlone() ? 60 : IdsAlone() ? 44 : 70);
  sheet.End("NOTES");
  sheet.End("");
}

template <typename Sheet>
void PutStudent(Sheet&& sheet, int row) {
  const Student& student = Current().Students[static_cast<std::size_t>(row)];
  sheet.Put(PlainNumberText(row));
  sheet.Tab(6);
  if (IdsAlone()) {
    sheet.Put(student.id);
  } else {
    sheet.Put(std::string(TrimRight(student.lastname)) + ", " +
              std::string(TrimRight(student.firstname)));
    if (!NamesAlone()) {
      sheet.Tab(44);
      sheet.Put("|");
      sheet.Tab(46);
      sheet.Put(student.id);
    }
  }
  sheet.Tab(NotesColumn());
}

// As many as the page has room for.
std::string Boxes(const PrintTarget& target) {
  const double room = Job.PageTextWidth - TabStop(target, NotesColumn());
  std::string boxes;
  while (target.TextWidth(boxes) + target.TextWidth(kBox) <= room) boxes += kBox;
  return boxes;
}

PaperSheet RosterSheet(PrintTarget& target) {
  return PaperSheet(target, PaperSheet::Columns::kStay);
}

void PrintRosterRow(PrintTarget& target, int row) {
  PaperSheet sheet = RosterSheet(target);
  PutStudent(sheet, row);
  const bool grid = Job.ReportCode == kGridForm;
  sheet.End(grid ? Boxes(target) : std::string());
  if (!grid) Rule(target);
}

void WriteRow(TextReport& text, int row) {
  PutStudent(text, row);
  if (Job.ReportCode == kGridForm) {
    while (text.Column() + static_cast<int>(kBox.size()) <= kRosterWidth) text.Put(kBox);
    return text.End();
  }
  text.End();
  text.Row(kRosterWidth, '_');
}

}  // namespace

// Both forms bear the grid form's title on paper.
void PrintRoster(ReportPass& pass) {
  PageHeader(pass, kGridTitle);
  PrintSections(pass, {{.rows = Current().NumStudents,
                        .print = [&](int row) { PrintRosterRow(pass.target, row); },
                        .head = [&] { PutRosterHead(RosterSheet(pass.target)); },
                        .head_lines = 2,
                        .student = StudentOfRow}});
}

void WriteRoster(TextReport& text) {
  text.Line(Job.ReportCode == kGridForm ? kGridTitle : kListTitle);
  text.End();
  PutRosterHead(text);
  for (int row = 1; row <= Current().NumStudents; ++row) WriteRow(text, row);
}

}  // namespace tallyroll
