// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmroundoff.h"

#include <algorithm>
#include <limits>

#include "averages/portals/change_preview.h"
#include "averages/portals/clipboard_column.h"
#include "averages/rounding.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/letters.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/class_defaults.h"

namespace tallyroll {
namespace {

constexpr int kRows = 13;
constexpr int kMinimum = 2;
constexpr i16 kTemporaryScale = 4;
constexpr i16 kLetterForm = 3;
constexpr std::string_view kScaleFormat = "12z";

constexpr std::string_view kExplanation =
    "Tallyroll provides an 'AVERAGE ROUNDING OPTION' for schools using standardized number grades "
    "(e.g., grades in multiples of '5') or letter grades. If you do not use this option, click on "
    "Skip Rounding; the grade will be the weighted average to the nearest whole number (or your "
    "letter grade equivalent). A teacher grading with points who wants to use the average rounding "
    "option should click on Enable Rounding.\n\n"
    "You can use Tallyroll's Default Rounding Values, or you can make up to 3 sets of your own "
    "values and save them; the program will later automatically use your last selected values.\n\n"
    "When making up your new Minimum Values, note: If your school uses standard number grades, but "
    "does not use one or more of the grades listed, then enter '101' for each item not used. (For "
    "example, if your school doesn't use a grade of '88' [B+], then enter '101' next to that "
    "grade.)";

// The Portal goes when it is left, but what Skip Rounding put out of force comes back whenever
// rounding is enabled again.
i16& RememberedScale() {
  return SkippedScale[static_cast<std::size_t>(CurrentClass)];
}

std::array<float, 14>& ScaleOf(i16 scale) {
  return Current().RoundTable[static_cast<std::size_t>(scale)];
}

bool IsEmpty(i16 scale) {
  return ScaleOf(scale)[1] == 0;
}

std::string NumberOf(i16 scale) {
  return PlainNumberText(scale);
}

// A cell as a minimum. One beyond Single is out of reach as well at the greatest of them.
float MinimumOf(std::string_view cell) {
  constexpr double kGreatest = std::numeric_limits<float>::max();
  return static_cast<float>(std::clamp(LeadingNumber(cell), -kGreatest, kGreatest));
}

void MarkChanged() {
  Current().Changed = kTrue;
}

}  // namespace

frmroundoff::frmroundoff() : Portal("frmroundoff") {
  Caption = "Rounding Modification Portal";
  HelpContext = 530;
  noskip.Caption = "&Enable Rounding";
  skip.Caption = "&Skip Rounding";
  finalletter.Caption = "Letter Values";
  finalnumber.Caption = "Numeric Values";
  usescale[0].Caption = "&Default";
  for (i16 s = 1; s < 4; ++s) MarkScale(s, false);
  writeclip.Caption = "Copy &To";
  readclip.Caption = "Paste &From";
  previewchange.Caption = "Pre&view Change";
  continue_.Caption = "&Screen";
  contprinter.Caption = "&Printer";
  continueprint.Caption = "C&ontinue";
  cancel.Caption = "&Cancel";
  grdgrade.Notes.Of = [this](int row, int col) {
    const bool idle = grdgrade.Style(row, col) == CellStyle::kShaded;
    return idle ? CellNote{CellMark::kNone, "not in force"} : CellNote();
  };
}

void frmroundoff::Declare(ControlTable& table) {
  table.Add("mesage", mesage);
  table.Add("valueframe", valueframe);
  table.Add("grdgrade", grdgrade)
      .Change([this] { typing_.first_key = true; })
      .Click([this] { typing_.first_key = true; })
      .KeyPress([this](unsigned char character) { return grdgrade_KeyPress(character); });
  table.Add("noskip", noskip).Click([this] { noskip_Click(); });
  table.Add("skip", skip).Click([this] { skip_Click(); });
  table.Add("finalletter", finalletter).Click([this] { finalform_Click(kLetterForm); });
  table.Add("finalnumber", finalnumber).Click([this] { finalform_Click(0); });
  for (i16 s = 0; s < 4; ++s)
    table.Add("usescale" + NumberOf(s), usescale[static_cast<std::size_t>(s)]).Click([this, s] {
      usescale_Click(s);
    });
  for (i16 s = 1; s < 4; ++s)
    table.Add("savescale" + NumberOf(s), savescale[static_cast<std::size_t>(s)]).Click([this, s] {
      savescale_Click(s);
    });
  table.Add("writeclip", writeclip).Click([this] { writeclip_Click(); });
  table.Add("readclip", readclip).Click([this] { readclip_Click(); });
  table.Add("previewchange", previewchange).Click([this] { previewchange_Click(); });
  table.Add("framescreen", framescreen);
  table.Add("frameprint", frameprint);
  table.Add("framecancel", framecancel);
  table.Add("continue", continue_).Click([this] { leave_Click("frmscrnavg"); });
  table.Add("contprinter", contprinter).Click([this] { leave_Click("frmprintall"); });
  table.Add("continueprint", continueprint).Click([this] { continueprint_Click(); });
  table.Add("cancel", cancel).Click([this] { Unload(); });
}

void frmroundoff::Load() {
  Class& c = Current();
  opened_ = {c.RoundTable, c.RoundScale, c.RoundMode};
  if (c.RoundMode == 2) c.RoundMode = c.Method == 2 || c.Method == 3 ? 1 : 0;
  if (c.RoundMode != 0) UseLetterValuesAsScale();
  mesage.Caption = kExplanation;
  grdgrade.SetSize(1 + kRows, 3);
  grdgrade.FixedCols = grdgrade.Col = kMinimum;
  const bool from_summary = DefaultMethod == 5;
  framescreen.Visible = framecancel.Visible = !from_summary;
  frameprint.Visible = from_summary;
  for (i16 s = 1; s < 4; ++s) MarkScale(s, ScaleOf(s)[2] == 0);
  ShowMode();
}

// An empty set says so until it is saved.
void frmroundoff::MarkScale(i16 scale, bool empty) {
  const auto i = static_cast<std::size_t>(scale);
  const std::string text = NumberOf(scale) + (empty ? " (empty)" : "");
  usescale[i].Caption = "&" + text;
  savescale[i].Caption = text;
}

void frmroundoff::ShowMode() {
  const bool skipping = Current().RoundMode != 0;
  skip.Enabled = !skipping;
  noskip.Enabled = skipping;
  readclip.Enabled = !skipping && ClipboardHas(kScaleFormat);
  FillGrid();
  ShowScaleButtons();
}

void frmroundoff::FillGrid() {
  const Class& c = Current();
  const bool letters = c.FinalGradeForm == kLetterForm;
  finalletter.Value = letters;
  finalnumber.Value = !letters;
  valueframe.Caption =
      "Value - " + (c.RoundScale == 0 ? std::string("Def.") : NumberOf(c.RoundScale));
  const std::string_view headings[] = {"Letter", "Number", " Min. Value"};
  for (int col = 0; col < 3; ++col) {
    grdgrade.SetTextMatrix(0, col, headings[col]);
    grdgrade.SetColWidth(col, col == kMinimum ? 1500 : 1100);
    grdgrade.SetColAlignment(col, col == 0 ? ColumnAlign::kLeft : ColumnAlign::kRight);
  }
  for (int row = 1; row <= kRows; ++row) {
    const auto k = static_cast<std::size_t>(row) - 1;
    const bool blank = row == 1 && !letters && c.RoundMode != 1;
    grdgrade.SetTextMatrix(row, 0, blank ? "    " : LetterNames[k]);
    grdgrade.SetTextMatrix(row, 1, PlainNumberText(FinalValues[k]));
    grdgrade.SetTextMatrix(row, kMinimum, PlainNumberText(ScaleOf(c.RoundScale)[k]));
    grdgrade.SetStyle(row, 0, letters ? CellStyle::kPlain : CellStyle::kShaded);
    grdgrade.SetStyle(row, 1, letters ? CellStyle::kShaded : CellStyle::kPlain);
    grdgrade.SetStyle(row, kMinimum, c.RoundMode == 1 ? CellStyle::kShaded : CellStyle::kPlain);
  }
}

// The scale in force is grey as long as nothing of it was changed.
void frmroundoff::ShowScaleButtons() {
  const Class& c = Current();
  const bool enabled = c.RoundMode == 0;
  for (i16 s = 0; s < 4; ++s) {
    const auto i = static_cast<std::size_t>(s);
    usescale[i].Enabled = enabled && (changed_ || c.RoundScale != s);
    savescale[i].Enabled = enabled;
  }
}

bool frmroundoff::grdgrade_KeyPress(unsigned char character) {
  if (Current().RoundMode != 0 || grdgrade.Row < 1 || grdgrade.Row > kRows) return true;
  changed_ = true;
  grdgrade.Col = kMinimum;
  const std::string_view cell = grdgrade.TextMatrix(grdgrade.Row, kMinimum);
  grdgrade.SetTextMatrix(grdgrade.Row, kMinimum, UpperCase(typing_.Type(cell, character)));
  ShowScaleButtons();
  return true;
}

void frmroundoff::CopyGridTo(i16 scale) {
  for (int row = 1; row <= kRows; ++row)
    ScaleOf(scale)[static_cast<std::size_t>(row) - 1] =
        MinimumOf(grdgrade.TextMatrix(row, kMinimum));
}

void frmroundoff::SaveAs(i16 scale) {
  changed_ = false;
  CopyGridTo(scale);
  MarkScale(scale, false);
  Current().RoundScale = scale;
  MarkChanged();
}

bool frmroundoff::MayLoseChange() {
  return !changed_ ||
         Ask("You've changed current Rounding Value(s). If you load a Rounding Value, you'll lose "
             "that change. Continue?",
             BoxButtons::kOkCancel, BoxIcon::kQuestion, "Note to the teacher.") == BoxAnswer::kOk;
}

// False: the teacher has still to choose what becomes of the change.
bool frmroundoff::SettleChange() {
  if (!changed_) return true;
  if (Ask("You've entered current Rounding Value(s). Do you wish to save those values? ",
          BoxButtons::kYesNo, BoxIcon::kQuestion, "Note to the Teacher.") == BoxAnswer::kYes)
    return SaveInEmptyScale();
  CopyGridTo(kTemporaryScale);
  Current().RoundScale = kTemporaryScale;
  changed_ = false;
  return true;
}

bool frmroundoff::SaveInEmptyScale() {
  i16 scale = 1;
  while (scale <= 3 && !IsEmpty(scale)) ++scale;
  if (scale > 3) {
    ShowMessage(
        "All Rounding Values Save options currently contain Data. Select one to overwrite with the "
        "newly entered data.");
    return false;
  }
  changed_ = false;
  if (Ask("Save your current Rounding Values as " + NumberOf(scale) + "?", BoxButtons::kYesNo,
          BoxIcon::kQuestion) != BoxAnswer::kYes) {
    ShowScaleButtons();
    return false;
  }
  SaveAs(scale);
  return true;
}

void frmroundoff::noskip_Click() {
  Class& c = Current();
  c.RoundMode = 0;
  c.RoundScale = RememberedScale();
  if (c.RoundScale == kTemporaryScale) changed_ = true;
  MarkChanged();
  ShowMode();
}

void frmroundoff::skip_Click() {
  Class& c = Current();
  RememberedScale() = c.RoundScale;
  if (!SettleChange()) return;
  c.RoundMode = 1;
  if (c.AverageWork1 != 1 && c.Method != 1) c.AverageWork1 = 2;
  if (c.AverageWork2 != 1 && (c.Method == 1 || c.Method == 3)) c.AverageWork2 = 2;
  UseLetterValuesAsScale();
  MarkChanged();
  ShowMode();
}

void frmroundoff::usescale_Click(i16 scale) {
  if (!MayLoseChange()) return;
  if (scale == 0) SetDefaultRoundScale();
  if (IsEmpty(scale)) {
    ShowMessage("Rounding Values " + NumberOf(scale) +
                " is currently empty.  To create new values, change the current Min. Values and "
                "Save Rounding Values as " +
                NumberOf(scale) + ".");
    return;
  }
  Current().RoundScale = scale;
  changed_ = false;
  MarkChanged();
  ShowMode();
}

void frmroundoff::savescale_Click(i16 scale) {
  if (!IsEmpty(scale) && Ask("You've already saved Rounding Values as " + NumberOf(scale) +
                                 ". Do you wish to overwrite them with the current Values?",
                             BoxButtons::kOkCancel, BoxIcon::kQuestion) != BoxAnswer::kOk)
    return;
  SaveAs(scale);
  ShowMode();
}

void frmroundoff::finalform_Click(i16 form) {
  const std::vector<std::string> minimums = ColumnOf(grdgrade, kMinimum);
  if (Current().FinalGradeForm != form) MarkChanged();
  Current().FinalGradeForm = form;
  FillGrid();
  // What was typed stays.
  for (int row = 1; row <= kRows; ++row)
    grdgrade.SetTextMatrix(row, kMinimum, minimums[static_cast<std::size_t>(row) - 1]);
}

void frmroundoff::writeclip_Click() {
  std::vector<std::string> minimums = ColumnOf(grdgrade, kMinimum);
  for (std::string& each : minimums) each = std::string(Trim(each));
  CopyLines(kScaleFormat, minimums);
  readclip.Enabled = true;
}

// Under Skip Rounding the minimums are the letter values, and take no paste as they take no key.
void frmroundoff::readclip_Click() {
  if (Current().RoundMode != 0) {
    ShowMessage("Click on Enable Rounding before you paste Min. Values from the clipboard.");
    return;
  }
  if (!MayLoseChange()) return;
  std::vector<std::string> lines;
  if (!PasteLines(kScaleFormat, lines)) return;
  const int last = std::min(kRows, static_cast<int>(lines.size()));
  for (int row = 1; row <= last; ++row)
    grdgrade.SetTextMatrix(row, kMinimum, lines[static_cast<std::size_t>(row) - 1]);
  changed_ = true;
  ShowScaleButtons();
}

// Against what was in force when the Portal opened: the buttons of this Portal act at once.
void frmroundoff::previewchange_Click() {
  PreviewChange(
      [this] {
        Class& c = Current();
        c.RoundTable = opened_.table;
        c.RoundScale = opened_.scale;
        c.RoundMode = opened_.mode;
      },
      [this] {
        if (!changed_) return;
        CopyGridTo(kTemporaryScale);
        Current().RoundScale = kTemporaryScale;
      });
}

void frmroundoff::leave_Click(std::string_view next) {
  if (!SettleChange()) return;
  ClassWindow().EnableEntry("mnuoptions", true);
  ClassWindow().EnableEntry("mnuprtgrade", true);
  UnloadAndShow(next);
}

void frmroundoff::continueprint_Click() {
  if (SettleChange()) Unload();  // the summary stands below
}

}  // namespace tallyroll
