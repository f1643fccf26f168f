// SPDX-License-Identifier: GPL-3.0-or-later
#include "seating/frmseating.h"

#include <functional>
#include <utility>

#include "base/number_text.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "seating/chart_records.h"
#include "seating/print_chart.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

// Twips: a name breaks behind its comma, so a card holds twelve characters and three lines.
constexpr int kCardWidth = 1690, kCardHeight = 1000;

// In a list or on a seat Enter means what stands there, and never the button of the window.
std::function<bool(Key)> OnEnter(std::function<void()> act) {
  return [act = std::move(act)](Key key) {
    if (key == Key::kEnter) act();
    return key == Key::kEnter;
  };
}

std::string ChartName(int chart) {
  return "Chart " + PlainNumberText(chart);
}

}  // namespace

frmseating::frmseating() : Portal("frmseating") {
  Caption = "Seating Chart Portal";
  HelpContext = 580;
  unmetlabel.Caption = "Wishes not met";
  newchart.Caption = "&New";
  show.Caption = "Se&lect";
  delete_.Caption = "&Delete";
  undo.Caption = "&Undo";
  redo.Caption = "&Redo";
  save.Caption = "&Save";
  prints.Caption = "&Print";
  exit.Caption = "E&xit";
  details.Caption = "&Absences and last mark on the cards";
  columnlabel.Caption =
      "Enter number of rows (horizontal). The maximum number of rows for this chart is 13";
  seatslabel.Caption = "Enter number of seats per row (vertical).";
  okinfo.Caption = chartok.Caption = wishok.Caption = "C&ontinue";
  sizeback.Caption = optionsback.Caption = wishback.Caption = "&Back";
  alpha.Caption = "As Sorted";
  randord.Caption = "Random Order";
  indiv.Caption = "Individual Method";
  bywishes.Caption = "By Wishes";
  FillSizes();
  Grid1.FixedRows = Grid1.FixedCols = Grid1.TopRow = Grid1.LeftCol = 0;
  Grid1.SmallLine = [this](int row, int col) { return CardLine(row, col); };
}

void frmseating::Declare(ControlTable& table) {
  table.Add("step", step);
  table.Add("chartlabel", chartlabel);
  table.Add("Listchart", Listchart).DblClick([this] { show_Click(); }).KeyDown(OnEnter([this] {
    show_Click();
  }));
  table.Add("Label3", Label3);
  table.Add("Grid1", Grid1)
      .KeyDown(OnEnter([this] { Grid1_KeyPress(' '); }))
      .KeyPress([this](unsigned char key) { return Grid1_KeyPress(key); })
      .DragDrop([this](std::string_view source) { Grid1_DragDrop(source); });
  table.Add("students", students)
      .KeyDown(OnEnter([this] { students_KeyPress(' '); }))
      .KeyPress([this](unsigned char key) { return students_KeyPress(key); })
      .DragDrop([this](std::string_view source) { students_DragDrop(source); });
  table.Add("unmetlabel", unmetlabel);
  table.Add("unmet", unmet);
  table.Add("details", details).Click([this] { details_Click(); });
  table.Add("said", said);
  table.Add("newchart", newchart).Click([this] { newchart_Click(); });
  table.Add("show", show).Click([this] { show_Click(); });
  table.Add("delete", delete_).Click([this] { delete_Click(); });
  table.Add("undo", undo).Click([this] { undo_Click(); });
  table.Add("redo", redo).Click([this] { redo_Click(); });
  table.Add("save", save).Click([this] { save_Click(); });
  table.Add("prints", prints).Click([this] { prints_Click(); });
  table.Add("exit", exit).Click([this] { exit_Click(); });

  table.Add("columnlabel", columnlabel);
  table.Add("column", column).Change([this] { column_Change(); }).KeyDown(OnEnter([this] {
    okinfo_Click();
  }));
  table.Add("seatslabel", seatslabel);
  table.Add("seatsrow", seatsrow).KeyDown(OnEnter([this] { okinfo_Click(); }));
  table.Add("okinfo", okinfo).Click([this] { okinfo_Click(); });
  table.Add("sizeback", sizeback).Click([this] { step.Current = kChart; });

  table.Add("chartmethod", chartmethod);
  table.Add("alpha", alpha);
  table.Add("randord", randord);
  table.Add("indiv", indiv);
  table.Add("bywishes", bywishes);
  table.Add("chartok", chartok).Click([this] { chartok_Click(); });
  table.Add("optionsback", optionsback).Click([this] { step.Current = kSize; });

  wishes.Declare(table);
  table.Add("wishok", wishok).Click([this] { wishok_Click(); });
  table.Add("wishback", wishback).Click([this] { step.Current = kOptions; });
}

void frmseating::Load() {
  ListCharts();
  if (Current().NumCharts > 0) {
    Begin(LoadChart(1), 1, false);
    SetFocus(Grid1);
  } else {
    Begin({}, 0, false);
    said.Caption = "No charts yet: press New to make one.";
    SetFocus(newchart);
  }
}

void frmseating::ListCharts() {
  chartlabel.Caption = "Charts of this class";
  Listchart.List.clear();
  for (int chart = 1; chart <= Current().NumCharts; ++chart)
    Listchart.List.push_back(ChartName(chart));
  Listchart.ListIndex = -1;
}

// Puts a chart on the table; what was done to another one can't be taken back there.
void frmseating::Begin(SeatPlan plan, int chart, bool is_new) {
  plan_ = std::move(plan);
  CurrentChart = static_cast<i16>(chart);
  ChartIsNew = is_new ? kTrue : kFalse;
  ChartDirty = is_new ? kTrue : kFalse;
  carried_ = Carried::kNothing;
  done_.clear();
  undone_.clear();
  unmet.List.clear();
  unmet.Visible = unmetlabel.Visible = false;
  said.Caption.clear();
  Label3.Caption = chart == 0 ? "" : ChartName(chart);
  step.Current = kChart;
  Grid1.Row = Grid1.Col = Grid1.TopRow = Grid1.LeftCol = 0;
  students.ListIndex = -1;
  ShowPlan();
}

void frmseating::ShowPlan() {
  ShowSeats();
  students.List = plan_.unseated;
  if (students.ListIndex >= static_cast<int>(students.List.size())) students.ListIndex = -1;
  Grid1.Enabled = students.Enabled = CurrentChart != 0;
  save.Enabled = prints.Enabled = CurrentChart != 0;
  show.Enabled = delete_.Enabled = Current().NumCharts > 0;
  undo.Enabled = !done_.empty();
  redo.Enabled = !undone_.empty();
}

void frmseating::ShowSeats() {
  sitting_ = StudentsOfCards(Current(), plan_.labels);
  Grid1.SetRedraw(false);
  Grid1.SetSize(plan_.rows, plan_.columns);
  Grid1.Clear();
  for (int col = 0; col < plan_.columns; ++col) {
    Grid1.SetColWidth(col, kCardWidth);
    for (int row = 0; row < plan_.rows; ++row) Grid1.SetTextMatrix(row, col, plan_.At({row, col}));
  }
  for (int row = 0; row < plan_.rows; ++row) Grid1.SetRowHeight(row, kCardHeight);
  if (carried_ == Carried::kCard)
    Grid1.SetStyle(carried_seat_.row, carried_seat_.column, CellStyle::kInWork);
  Grid1.SetRedraw(true);
}

bool frmseating::MayLoseChanges() {
  return ChartDirty == kFalse ||
         Ask("If you continue without first saving you will lose changes to current chart",
             BoxButtons::kOkCancel, BoxIcon::kExclamation, "Note to the teacher") == BoxAnswer::kOk;
}

void frmseating::show_Click() {
  if (Listchart.ListIndex < 0) {
    chartlabel.Caption = "Choose a Chart to Select";
    return SetFocus(Listchart);
  }
  const int chart = Listchart.ListIndex + 1;
  if (!MayLoseChanges()) return;
  ListCharts();
  Begin(LoadChart(chart), chart, false);
  SetFocus(Grid1);
}

void frmseating::delete_Click() {
  chartlabel.Caption = "Choose a Chart to Delete";
  if (Listchart.ListIndex < 0) return SetFocus(Listchart);
  const int chart = Listchart.ListIndex + 1;
  const MessageRequest question{
      .text = "You have chosen to Delete Chart " + PlainNumberText(chart) + ".  Are you sure?",
      .title = "Delete Portal",
      .buttons = BoxButtons::kYesNo,
      .icon = BoxIcon::kQuestion,
      .second_is_default = true};
  if (Platform().MessageBox(question) != BoxAnswer::kYes) return ListCharts();
  DeleteChart(chart);
  ListCharts();
  if (CurrentChart == chart && ChartIsNew == kFalse) return Begin({}, 0, false);
  if (CurrentChart > chart) Label3.Caption = ChartName(--CurrentChart);
  ShowPlan();
}

void frmseating::save_Click() {
  if (ChartDirty == kFalse) {
    said.Caption = "There are no changes to save.";
    return;
  }
  if (Ask("Do you wish to save these changes to your seating chart?", BoxButtons::kYesNo,
          BoxIcon::kQuestion) == BoxAnswer::kYes) {
    Store();
  }
}

void frmseating::Store() {
  if (ChartIsNew == kTrue) CurrentChart = static_cast<i16>(AddChart(plan_.rows, plan_.columns));
  StoreChart(CurrentChart, plan_);
  ChartIsNew = ChartDirty = kFalse;
  ListCharts();
  Label3.Caption = ChartName(CurrentChart);
  const int without = StudentsWithoutLabel();
  said.Caption = Label3.Caption + " is kept." +
                 (without == 0 ? ""
                               : " Students whose card is empty or reads like another's have no "
                                 "seat: " +
                                     PlainNumberText(without) + ".");
  if (Current().FileName.empty() && Current().NumStudents > 0) ClassWindow().mnusave();
  ShowPlan();
}

void frmseating::prints_Click() {
  PrintChart(plan_, Label3.Caption);
}

void frmseating::exit_Click() {
  if (ChartDirty == kTrue && Ask("Do you want to save your changes?", BoxButtons::kYesNo,
                                 BoxIcon::kQuestion) == BoxAnswer::kYes) {
    Store();
    if (ChartDirty == kTrue) return;
  }
  Unload();
}

// Escape lets go of a card first, and goes back a step.
void frmseating::QueryUnload() {
  if (carried_ != Carried::kNothing) return LetGo("The card is back in its place.");
  if (step.Current != kChart) {
    --step.Current;
    return;
  }
  if (ChartDirty == kTrue &&
      Ask("Data has been modified. Are you sure you want to CANCEL?", BoxButtons::kYesNo,
          BoxIcon::kQuestion, "CANCEL") != BoxAnswer::kYes) {
    return;
  }
  Unload();
}

}  // namespace tallyroll
