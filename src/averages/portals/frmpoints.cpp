// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmpoints.h"

#include <algorithm>

#include "averages/average_settings.h"
#include "averages/portals/change_preview.h"
#include "averages/portals/clipboard_column.h"
#include "averages/portals/type_grid.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "grades/marks.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"

namespace tallyroll {
namespace {

constexpr int kMaxColumn = 2;
constexpr int kFlagColumn = 3;
constexpr std::string_view kPointsFormat = "4z";
constexpr Currency kCounted = Currency::FromScaled(1'0000);
constexpr Currency kLeftOut = Currency::FromScaled(2'0000);

Instrument& GradeWithPoints(int row) {
  return Current().Instruments[static_cast<std::size_t>(row)];
}

// A class that hasn't used points counts every grade but those that were saved as not counting,
// such as a column of final grades.
bool CountsSoFar(int row) {
  const Currency use = Current().InstrumentUse[static_cast<std::size_t>(row)];
  if (use == Currency()) return Trim(GradeWithPoints(row).countflag) != "N";
  return use != kLeftOut;
}

}  // namespace

frmpoints::frmpoints() : Portal("frmpoints") {
  Caption = "Points Portal";
  HelpContext = 520;
  paste.Caption = "Copy &To";
  frombd.Caption = "Paste &From";
  print.Caption = "&Print";
  Sumanry.Caption = "&Summary";
  previewchange.Caption = "Pre&view Change";
  exit.Caption = "C&ontinue";
  cancel.Caption = "&Cancel";
}

void frmpoints::Declare(ControlTable& table) {
  table.Add("grdgrade", grdgrade)
      .KeyDown([this](Key key) { return key == Key::kEnter && GoToNextRow(grdgrade); })
      .KeyPress([this](unsigned char) { return grdgrade_KeyPress(); });
  table.Add("totals", totals);
  table.Add("extra", extra);
  table.Add("paste", paste).Click([this] { paste_Click(); });
  table.Add("frombd", frombd).Click([this] { frombd_Click(); });
  table.Add("Sumanry", Sumanry).Click([this] { Sumanry_Click(); });
  table.Add("print", print).Click([this] { print_Click(); });
  table.Add("previewchange", previewchange).Click([this] { previewchange_Click(); });
  table.Add("exit", exit).Click([this] { exit_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
}

void frmpoints::Load() {
  Class& c = Current();
  work_before_ = c.AverageWork1;
  ReDimPreserve(c.InstrumentUse, GradeCount(c));
  grdgrade.FixedCols = grdgrade.Col = kFlagColumn;
  grdgrade.SetSize(1 + GradeCount(c), 4);
  HeadColumns(grdgrade, {"  TITLES", "Type", "Max Pts.", "Count in Total Pts."});
  grdgrade.SetColWidth(kFlagColumn, 2000);
  grdgrade.SetColAlignment(kFlagColumn, ColumnAlign::kCenter);
  ShowTitles(grdgrade);
  for (int row = 1; row < grdgrade.Rows(); ++row) {
    grdgrade.SetTextMatrix(row, kMaxColumn, PlainNumberText(GradeWithPoints(row).mvalue));
    grdgrade.SetTextMatrix(row, kFlagColumn, CountsSoFar(row) ? "Y" : "N");
  }
  frombd.Enabled = ClipboardHas(kPointsFormat);
  ShowSums();
  SetFocus(grdgrade);
}

bool frmpoints::Counts(int row) const {
  return grdgrade.TextMatrix(row, kFlagColumn) == "Y";
}

void frmpoints::ShowSums() {
  sums_ = PointSums();
  for (int row = 1; row < grdgrade.Rows(); ++row) {
    if (!Counts(row)) continue;
    const bool extra_credit = Trim(GradeWithPoints(row).typecode) == kExtraCreditCode;
    (extra_credit ? sums_.extra : sums_.total) += Currency::FromWhole(GradeWithPoints(row).mvalue);
  }
  totals.Caption = PlainNumberText(sums_.total);
  extra.Caption = PlainNumberText(sums_.extra);
  showtypes();
}

void frmpoints::showtypes() {
  if (!totals_by_type_.get()) return;
  TypeCodes codes;
  MakeTypeCodes(codes);
  const TypesByCode by_code(codes);
  TypeSums points{};
  for (int row = 1; row < grdgrade.Rows(); ++row) {
    if (!Counts(row)) continue;
    for (const std::size_t t : by_code.Of(GradeWithPoints(row).typecode))
      points[t] += Currency::FromWhole(GradeWithPoints(row).mvalue);
  }
  totals_by_type_.get()->ShowPoints(points);
}

bool frmpoints::grdgrade_KeyPress() {
  const int row = grdgrade.Row;
  if (row < 1 || row >= grdgrade.Rows()) return true;
  grdgrade.SetTextMatrix(row, kFlagColumn, Counts(row) ? "N" : "Y");
  Current().AverageWork1 = 1;
  ShowSums();
  return true;
}

void frmpoints::paste_Click() {
  CopyLines(kPointsFormat, ColumnOf(grdgrade, kFlagColumn));
  frombd.Enabled = true;
}

void frmpoints::frombd_Click() {
  std::vector<std::string> lines;
  if (!PasteLines(kPointsFormat, lines)) return;
  const int last = std::min(grdgrade.Rows() - 1, static_cast<int>(lines.size()));
  for (int row = 1; row <= last; ++row) {
    const bool counts = UpperCase(Trim(lines[static_cast<std::size_t>(row) - 1])) == "Y";
    grdgrade.SetTextMatrix(row, kFlagColumn, counts ? "Y" : "N");
  }
  Current().AverageWork1 = 1;
  ShowSums();
}

void frmpoints::print_Click() {
  PrintGrid({.title = " Points Printout",
             .head = {"NAME", "Types", "MAX PTS.", "COUNT IN"},
             .second_head = {"", "", "", "TOTAL PTS."},
             .rows = RowsToPrint(grdgrade)});
}

void frmpoints::Sumanry_Click() {
  if (!totals_by_type_.get()) totals_by_type_.Open();
  showtypes();
  totals_by_type_.Show();
}

void frmpoints::exit_Click() {
  try {
    static_cast<void>(sums_.total.ToWhole16());
  } catch (const RunTimeError&) {
    ShowMessage("The total points of a class can't be more than 32767.", BoxIcon::kCritical);
    return SetFocus(grdgrade);
  }
  Accept();
  totals_by_type_.Close();
  if (Current().Method != 2)
    UnloadAndShow("frmpercents");
  else if (DefaultMethod == 5)
    Unload();  // the summary stands below
  else
    UnloadAndShow("frmroundoff");
}

void frmpoints::PutInForce() {
  Class& c = Current();
  for (int row = 1; row < grdgrade.Rows(); ++row)
    c.InstrumentUse[static_cast<std::size_t>(row)] = Counts(row) ? kCounted : kLeftOut;
  if (DefaultMethod == 2 && c.Method != 2) c.AverageWork1 = 1;
  if (DefaultMethod == 3 && c.Method != 3) c.AverageWork2 = 1;
  if (DefaultMethod == 2 || DefaultMethod == 3) c.Method = DefaultMethod;
}

// Under types the weights come after the points; here those in force count.
void frmpoints::previewchange_Click() {
  PreviewChange([] {}, [this] { PutInForce(); });
}

void frmpoints::Accept() {
  PutInForce();
  Class& c = Current();
  if (c.AverageWork1 == 1) SaveOnYes();
  ClassWindow().EnableEntry("mnuoptions", true);
  ClassWindow().EnableEntry("mnuprtgrade", true);
}

// The drop boxes and the drop flags of the types go from the saved settings: points use none.
void frmpoints::SaveOnYes() {
  if (!AskToSaveSettings("Do you want to save these points", "SAVE POINTS")) return;
  Class& c = Current();
  for (int row = 1; row < grdgrade.Rows(); ++row)
    GradeWithPoints(row).countflag = grdgrade.TextMatrix(row, kFlagColumn);
  c.AverageSettings = AverageSettingsText(c.Method, {}, {});
  SaveChangedClass();
  c.AverageWork1 = 2;
}

void frmpoints::cancel_Click() {
  totals_by_type_.Close();
  Current().AverageWork1 = work_before_;
  Unload();
}

}  // namespace tallyroll
