// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/frmstatistic.h"

#include <algorithm>
#include <cmath>

#include "analysis/grade_charts.h"
#include "analysis/open_classes.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "platform/surroundings.h"

namespace tallyroll {
namespace {

std::string Percent(i16 value) {
  return SignedNumberText(int{value}) + " %";
}

// A quartile may lie between two marks; what is shown has two decimals.
std::string Hundredths(double value) {
  return PlainNumberText(std::nearbyint(value * 100) / 100);
}

}  // namespace

frmstatistic::frmstatistic() : Portal("frmstatistic") {
  Caption = "Statistics Portal";
  HelpContext = 600;
  continue_.Caption = "C&ontinue";
  cancel.Caption = "&Cancel";
  compare.Caption = "Com&pare Classes";
}

void frmstatistic::Declare(ControlTable& table) {
  const auto pick = [this] { lsttitles_Click(); };
  table.Add("lsttitles", lsttitles).Change(pick);
  table.Add("Title", Title);
  table.Add("code", code);
  table.Add("present", present);
  table.Add("absent", absent);
  table.Add("passed", passed);
  table.Add("perpassed", perpassed);
  table.Add("failed", failed);
  table.Add("perfailed", perfailed);
  table.Add("lowest", lowest);
  table.Add("highest", highest);
  table.Add("std", std_);
  table.Add("average", average);
  table.Add("lpassv", lpassv);
  table.Add("middle", middle);
  table.Add("distribution", distribution);
  table.Add("compare", compare).Click([this] { compare_Click(); });
  table.Add("continue", continue_).Click([this] { continue_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
}

void frmstatistic::Load() {
  Begin();
  SetFocus(lsttitles);
}

void frmstatistic::Begin() {
  CurrentStudent = 0;
  lsttitles.List.clear();
  lsttitles.ListIndex = -1;
  const Class& c = Current();
  for (int i = 1; i <= GradeCount(c); ++i)
    lsttitles.List.emplace_back(TrimRight(c.Instruments[static_cast<std::size_t>(i)].title));
}

// Of grades with the same title the first one is meant.
void frmstatistic::lsttitles_Click() {
  const auto line = static_cast<std::size_t>(lsttitles.ListIndex);
  if (lsttitles.ListIndex < 0 || line >= lsttitles.List.size()) return;
  const Class& c = Current();
  for (int i = 1; i <= GradeCount(c); ++i) {
    if (TrimRight(c.Instruments[static_cast<std::size_t>(i)].title) != lsttitles.List[line])
      continue;
    CurrentStudent = static_cast<i16>(i);
    return Compute();
  }
}

// Where the figures cannot be made, those of the grade before stay, and none is chosen.
void frmstatistic::Compute() {
  const GradeHead head =
      HeadOfGrade(Current().Instruments[static_cast<std::size_t>(CurrentStudent)]);
  Title.Caption = head.title;
  code.Caption = head.code;
  lpassv.Caption = head.lpassv;
  const std::optional<GradeFigures> figures = FiguresOfGrade(CurrentStudent);
  if (!figures) return Begin();
  std_.Caption = SignedNumberText(figures->deviation);
  average.Caption = SignedNumberText(figures->average);
  passed.Caption = SignedNumberText(int{figures->passed});
  perpassed.Caption = Percent(figures->perpassed);
  failed.Caption = SignedNumberText(int{figures->failed});
  perfailed.Caption = Percent(figures->perfailed);
  lowest.Caption = SignedNumberText(figures->lowest);
  highest.Caption = SignedNumberText(figures->highest);
  present.Caption = SignedNumberText(int{figures->present});
  absent.Caption = SignedNumberText(int{figures->absent});
  ShowDistribution();
}

void frmstatistic::ShowDistribution() {
  const GradeQuartiles quartiles = QuartilesOfGrade(CurrentStudent);
  middle.Caption = "Median " + Hundredths(quartiles.median) + ", middle half " +
                   Hundredths(quartiles.lower) + " to " + Hundredths(quartiles.upper);
  FillRanges(distribution.chart, CurrentStudent);
  MakeBarOrLine(distribution.chart, ChartKind::kBar);
  distribution.chart.title.clear();
  distribution.Draw();
}

void frmstatistic::continue_Click() {
  if (CurrentStudent > 0 && CurrentStudent <= Current().NumInstruments)
    Unload();
  else
    ShowMessage("You must choose a Testing Instrument");
}

void frmstatistic::cancel_Click() {
  CurrentStudent = 0;
  Unload();
}

void frmstatistic::compare_Click() {
  const std::vector<int> open = OpenSlots();
  const auto with_data = std::count_if(open.begin(), open.end(), [](int slot) {
    return Classes[static_cast<std::size_t>(slot)].NumInstruments > 0;
  });
  if (with_data < 2)
    ShowMessage("You must first open at least two class files with data for comparison.",
                BoxIcon::kInformation);
  else if (with_data < static_cast<std::ptrdiff_t>(open.size()))
    ShowMessage("If any class is open without grades you must first enter grades for that class.",
                BoxIcon::kInformation);
  else
    ShowPortal("frmcompare");
}

}  // namespace tallyroll
