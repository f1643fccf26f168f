// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/frmgraph.h"

#include "analysis/distribution_printout.h"
#include "analysis/grade_charts.h"
#include "averages/portals/frminfo.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "store/program_state.h"

namespace tallyroll {

frmgraph::frmgraph() : Portal("frmgraph") {
  HelpContext = 610;
  pie.Caption = "&Pie Chart";
  bar.Caption = "&Bar Graph";
  linegr.Caption = "&Line Graph";
  printgr.Caption = "Print &Graph";
  printdist.Caption = "Print &Dist.";
  Continue.Caption = "E&xit";
}

void frmgraph::Declare(ControlTable& table) {
  table.Add("Graph1", Graph1).DblClick([this] { OpenStudent(); });
  table.Add("dist", dist);
  table.Add("bar", bar).Click([this] { bar_Click(); });
  table.Add("linegr", linegr).Click([this] { linegr_Click(); });
  table.Add("pie", pie).Click([this] { pie_Click(); });
  table.Add("printgr", printgr).Click([this] { printgr_Click(); });
  table.Add("printdist", printdist).Click([this] { printdist_Click(); });
  table.Add("Continue", Continue).Click([this] { Unload(); });
}

void frmgraph::Load() {
  grade_ = CurrentStudent;
  if (grade_ < 1 || grade_ > GradeCount(Current())) return Unload();
  FillRanges(Graph1.chart, grade_);
  students_ = AddStudentDots(Graph1.chart, grade_);
  Caption = "Graph Portal - " + Graph1.chart.title;
  bar_Click();
  FillTable();
  SetFocus(bar);
}

void frmgraph::bar_Click() {
  MakeBarOrLine(Graph1.chart, ChartKind::kBar);
  Graph1.Draw();
}

void frmgraph::linegr_Click() {
  MakeBarOrLine(Graph1.chart, ChartKind::kLine);
  Graph1.Draw();
}

void frmgraph::pie_Click() {
  MakePie(Graph1.chart);
  Graph1.Draw();
}

void frmgraph::FillTable() {
  const Instrument& grade = Current().Instruments[static_cast<std::size_t>(grade_)];
  const RangeCounts counts = CountRanges(grade_);
  dist.Caption =
      "\r\n" + UpperCase(TrimRight(grade.title)) + "\r\n\r\nDISTRIBUTION OF GRADES\r\n\r\n";
  for (std::size_t range = 1; range <= kRanges; ++range) {
    std::string count = SignedNumberText(counts[range]);
    if (count.size() == 2) count += ' ';
    dist.Caption += count + "   " + std::string(kRangeTableHeads[range]) + "\r\n";
  }
}

void frmgraph::printgr_Click() {
  PrintChart(Graph1.chart);
}

void frmgraph::printdist_Click() {
  PrintDistribution(grade_);
}

// The students of the class stay as they are meanwhile, and the grade is chosen again afterwards.
void frmgraph::OpenStudent() {
  if (Graph1.Dot < 0 || Graph1.Dot >= static_cast<int>(students_.size())) return;
  CurrentStudent = static_cast<i16>(students_[static_cast<std::size_t>(Graph1.Dot)]);
  const int before = OpenState;
  OpenState = kInfoOfStudent;
  ShowPortal("frminfo");
  OpenState = before;
  CurrentStudent = static_cast<i16>(grade_);
}

}  // namespace tallyroll
