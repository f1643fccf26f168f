// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/frmcompare.h"

#include <numeric>

#include "analysis/distribution_printout.h"
#include "analysis/grade_charts.h"
#include "analysis/open_classes.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "platform/surroundings.h"

namespace tallyroll {
namespace {

constexpr int kPanelWidth = 1900, kRangeWidth = 1200;
constexpr int kClassColumn = 20, kClassStep = 22;  // of the printed table

std::string Numbered(std::string_view name, std::size_t i) {
  return std::string(name) + "_" + PlainNumberText(static_cast<std::int64_t>(i) + 1);
}

// A label takes the letter behind a single "&" for a key.
std::string WithoutMnemonic(std::string_view name) {
  std::string caption;
  for (const char c : name) caption += c == '&' ? "&&" : std::string(1, c);
  return caption;
}

int SumOf(const std::vector<RangeCounts>& ranges, std::size_t range) {
  return std::accumulate(ranges.begin(), ranges.end(), 0,
                         [range](int sum, const RangeCounts& r) { return sum + r[range]; });
}

}  // namespace

frmcompare::frmcompare() : Portal("frmcompare") {
  Caption = "Compare Statistics Portal";
  HelpContext = 630;
  for (CommandButton* each : {&continue1, &continue2, &continue3}) each->Caption = "C&ontinue";
  linegr.Caption = "&Line Graph";
  bar.Caption = "&Bar Graph";
  printgr.Caption = "Print &Graph";
  printdist.Caption = "Print &Dist.";
  exit.Caption = "&Cancel";
  Continue.Caption = "E&xit";
  Listfiles.Checks = true;
}

void frmcompare::Declare(ControlTable& rows) {
  rows.Add("frames", frames);
  rows.Add("framefiles", framefiles);
  rows.Add("Listfiles", Listfiles);
  rows.Add("framegrades", framegrades);
  DeclareGrades(rows);
  rows.Add("framestat", framestat);
  rows.Add("panel", panel);
  rows.Add("framegraph", framegraph);
  rows.Add("Graph1", Graph1);
  rows.Add("tabletitle", tabletitle);
  rows.Add("table", table);
  rows.Add("steps", steps);
  rows.Add("continue1", continue1).Click([this] { continue1_Click(); });
  rows.Add("continue2", continue2).Click([this] { continue2_Click(); });
  rows.Add("continue3", continue3).Click([this] { continue3_Click(); });
  rows.Add("linegr", linegr).Click([this] { linegr_Click(); });
  rows.Add("bar", bar).Click([this] { bar_Click(); });
  rows.Add("printgr", printgr).Click([this] { printgr_Click(); });
  rows.Add("printdist", printdist).Click([this] { printdist_Click(); });
  rows.Add("exit", exit).Click([this] { Unload(); });
  rows.Add("Continue", Continue).Click([this] { Unload(); });
}

void frmcompare::DeclareGrades(ControlTable& rows) {
  for (std::size_t i = 0; i < kMostCompared; ++i) {
    rows.Add(Numbered("labelclass", i), labelclass[i]);
    rows.Add(Numbered("Combo1", i), Combo1[i]);
  }
}

void frmcompare::Load() {
  open_ = OpenSlots();
  if (open_.size() < 2) {
    ShowMessage("You must first open at least two class files for comparison.",
                BoxIcon::kInformation);
    return Unload();
  }
  for (const std::string& name : ClassNames(open_)) Listfiles.List.push_back("Class " + name);
  Listfiles.Checked.assign(open_.size(), false);
  ShowFrame(framefiles);
  SetFocus(Listfiles);
}

void frmcompare::ShowFrame(Frame& shown) {
  int page = 0;
  for (Frame* frame : {&framefiles, &framegrades, &framestat, &framegraph}) {
    frame->Visible = frame == &shown;
    if (frame->Visible) frames.Current = steps.Current = page;
    ++page;
  }
  exit.Visible = &shown != &framegraph;
  Continue.Visible = !exit.Visible;
}

void frmcompare::continue1_Click() {
  std::vector<int> slots;
  for (std::size_t line = 0; line < open_.size(); ++line)
    if (Listfiles.Checked[line] && IsOpen(open_[line])) slots.push_back(open_[line]);
  if (slots.size() < 2) return (void)ShowMessage("You must choose at least 2 classes to compare.");
  const std::vector<std::string> names = ClassNames(slots);
  compared_.clear();
  for (std::size_t i = 0; i < kMostCompared; ++i) {
    labelclass[i].Visible = Combo1[i].Visible = i < slots.size();
    Combo1[i].List.clear();
    if (i >= slots.size()) continue;
    const Class& c = Classes[static_cast<std::size_t>(slots[i])];
    compared_.push_back({slots[i], 0, names[i], c.FileName, {}});
    labelclass[i].Caption = WithoutMnemonic(names[i]);
    for (int grade = 1; grade <= GradeCount(c); ++grade)
      Combo1[i].List.emplace_back(TrimRight(c.Instruments[static_cast<std::size_t>(grade)].title));
    Combo1[i].ListIndex = -1;
    Combo1[i].Text.clear();
  }
  ShowFrame(framegrades);
  SetFocus(Combo1[0]);
}

void frmcompare::continue2_Click() {
  for (std::size_t i = 0; i < compared_.size(); ++i) {
    const int line = Combo1[i].ListIndex;
    if (line < 0) {
      ShowMessage("You must choose a Testing Instrument");
      return SetFocus(Combo1[i]);
    }
    compared_[i].grade = line + 1;
    compared_[i].title = Combo1[i].List[static_cast<std::size_t>(line)];
  }
  if (!AllThere()) return;
  ShowPanels();
  ShowFrame(framestat);
  SetFocus(continue3);
}

bool frmcompare::AllThere() {
  for (const ComparedGrade& each : compared_) {
    if (StillThere(each)) continue;
    ShowMessage("The class " + each.name + " was closed or changed. Choose the classes again.");
    Listfiles.List.clear();
    open_ = OpenSlots();
    for (const std::string& name : ClassNames(open_)) Listfiles.List.push_back("Class " + name);
    Listfiles.Checked.assign(open_.size(), false);
    ShowFrame(framefiles);
    SetFocus(Listfiles);
    return false;
  }
  return true;
}

void frmcompare::ShowPanels() {
  std::vector<ComparedFigures> all;
  for (const ComparedGrade& each : compared_) all.push_back(FiguresOf(each));
  panel.SetSize(static_cast<int>(kPanelLabels.size()) + 1, static_cast<int>(all.size()) + 2);
  const auto fill = [this](std::size_t col, std::string_view head,
                           const std::array<std::string, kPanelLabels.size()>& texts) {
    const int at = static_cast<int>(col);
    panel.SetColWidth(at, kPanelWidth);
    panel.SetColAlignment(at, ColumnAlign::kRight);
    panel.SetTextMatrix(0, at, head);
    for (std::size_t row = 0; row < texts.size(); ++row)
      panel.SetTextMatrix(static_cast<int>(row) + 1, at, texts[row]);
  };
  for (std::size_t row = 0; row < kPanelLabels.size(); ++row)
    panel.SetTextMatrix(static_cast<int>(row) + 1, 0, kPanelLabels[row]);
  panel.SetColWidth(0, kRangeWidth);
  for (std::size_t i = 0; i < all.size(); ++i) fill(i + 1, compared_[i].name, PanelTexts(all[i]));
  fill(all.size() + 1, kTotalsPanel, TotalsTexts(TotalsOf(all)));
}

void frmcompare::continue3_Click() {
  if (!AllThere()) return;
  ranges_.clear();
  for (const ComparedGrade& each : compared_) ranges_.push_back(RangesOf(each));
  Caption = "Comparisons for " + JoinedNames(compared_);
  tabletitle.Caption = "Range for " + JoinedNames(compared_);
  ShowTable();
  FillChart();
  ShowFrame(framegraph);
  bar_Click();
  SetFocus(bar);
}

void frmcompare::ShowTable() {
  const int last = static_cast<int>(compared_.size()) + 1;
  table.SetSize(kRanges + 1, last + 1);
  table.SetColWidth(0, kRangeWidth);
  table.SetTextMatrix(0, 0, "Range");
  for (int col = 1; col <= last; ++col) {
    table.SetColWidth(col, kPanelWidth);
    table.SetColAlignment(col, ColumnAlign::kRight);
  }
  table.SetTextMatrix(0, last, "Total");
  for (std::size_t i = 0; i < compared_.size(); ++i)
    table.SetTextMatrix(0, static_cast<int>(i) + 1, compared_[i].name);
  for (int row = 1; row <= kRanges; ++row) {
    const auto range = static_cast<std::size_t>(kRanges + 1 - row);
    table.SetTextMatrix(row, 0, kComparedRanges[static_cast<std::size_t>(row) - 1]);
    for (std::size_t i = 0; i < ranges_.size(); ++i)
      table.SetTextMatrix(row, static_cast<int>(i) + 1, PlainNumberText(ranges_[i][range]));
    table.SetTextMatrix(row, last, PlainNumberText(SumOf(ranges_, range)));
    table.SetStyle(row, last, CellStyle::kTotal);
  }
}

void frmcompare::FillChart() {
  Chart& chart = Graph1.chart;
  chart.title = Caption;
  chart.labels.assign(kComparedRanges.begin(), kComparedRanges.end());
  chart.sets.clear();
  for (std::size_t i = 0; i < compared_.size(); ++i)
    chart.sets.push_back({compared_[i].name, RangeValues(ranges_[i]), {}});
}

void frmcompare::linegr_Click() {
  Graph1.chart.kind = ChartKind::kLine;
  Graph1.Draw();
}

void frmcompare::bar_Click() {
  Graph1.chart.kind = ChartKind::kBar;
  Graph1.Draw();
}

void frmcompare::printgr_Click() {
  if (!AllThere()) return;
  std::vector<std::string> lines = {"List of Compared Classes"};
  for (std::size_t i = 0; i < compared_.size(); ++i)
    lines.push_back(ListedClass(i + 1, compared_[i]));
  lines.insert(lines.end(), {"", "List of Compared Titles"});
  for (std::size_t i = 0; i < compared_.size(); ++i)
    lines.push_back(ListedTitle(i + 1, compared_[i]));
  PrintChart(Graph1.chart, lines);
}

void frmcompare::printdist_Click() {
  std::vector<ColumnLine> lines = {{{1, "Distribution of Grades"}}, {}};
  for (int row = 0; row <= kRanges; ++row) {
    ColumnLine line = {{1, std::string(table.TextMatrix(row, 0))}};
    for (int col = 1; col < table.Cols(); ++col)
      line.push_back(
          {kClassColumn + (col - 1) * kClassStep, std::string(table.TextMatrix(row, col))});
    lines.push_back(std::move(line));
  }
  PrintColumnLines(" Statistics: Comparison", lines);
}

}  // namespace tallyroll
