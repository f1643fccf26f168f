// SPDX-License-Identifier: GPL-3.0-or-later
// Cards of frmseating on the move, by mouse and by keys, and how a move is taken back.
#include <utility>

#include "base/number_text.h"
#include "seating/card_details.h"
#include "seating/frmseating.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr unsigned char kBlank = ' ';

// "row 2, seat 3": rows as the heads over the chart count them, seats from the board on.
std::string Place(Seat seat) {
  return "row " + PlainNumberText(seat.column + 1) + ", seat " + PlainNumberText(seat.row + 1);
}

}  // namespace

std::string frmseating::CardLine(int row, int col) const {
  const int seat = col * plan_.rows + row;
  const int student = sitting_[static_cast<std::size_t>(seat)];
  return student == 0 ? "" : CardDetails(student, details.Value);
}

void frmseating::details_Click() {
  ShowPlan();
}

void frmseating::Moved(SeatPlan before, std::string what) {
  done_.push_back(std::move(before));
  undone_.clear();
  ChartDirty = kTrue;
  carried_ = Carried::kNothing;
  said.Caption = std::move(what);
  ShowPlan();
}

void frmseating::Grid1_DragDrop(std::string_view source) {
  const Seat to{Grid1.MouseRow, Grid1.MouseCol};
  if (!plan_.Holds(to)) return;
  const Seat from = CellInWork();
  Grid1.Row = to.row;
  Grid1.Col = to.column;
  if (source == "Grid1")
    SeatToSeat(from, to);
  else if (students.ListIndex >= 0)
    ListToSeat(static_cast<std::size_t>(students.ListIndex), to);
}

void frmseating::students_DragDrop(std::string_view source) {
  if (source == "Grid1") SeatToList(CellInWork());
}

void frmseating::SeatToSeat(Seat from, Seat to) {
  SeatPlan before = plan_;
  if (!MoveCard(plan_, from, to)) return LetGo("");
  std::string what = plan_.At(to) + " sits at " + Place(to) + ".";
  if (!plan_.At(from).empty())
    what = plan_.At(to) + " and " + plan_.At(from) + " have changed places.";
  Moved(std::move(before), std::move(what));
}

void frmseating::ListToSeat(std::size_t line, Seat to) {
  SeatPlan before = plan_;
  const std::string sat = plan_.At(to);
  if (!SeatFromList(plan_, line, to)) return LetGo("");
  students.ListIndex = -1;
  Moved(std::move(before), plan_.At(to) + " sits at " + Place(to) + "." +
                               (sat.empty() ? "" : " " + sat + " is back on the list."));
}

void frmseating::SeatToList(Seat from) {
  SeatPlan before = plan_;
  if (!Unseat(plan_, from)) return LetGo("");
  Moved(std::move(before), plan_.unseated.back() + " is back on the list.");
}

void frmseating::LetGo(std::string what) {
  carried_ = Carried::kNothing;
  said.Caption = std::move(what);
  ShowPlan();
}

bool frmseating::Grid1_KeyPress(unsigned char key) {
  if (key != kBlank || CurrentChart == 0) return false;
  const Seat here = CellInWork();
  if (carried_ == Carried::kCard) {
    SeatToSeat(carried_seat_, here);
  } else if (carried_ == Carried::kLine) {
    ListToSeat(carried_line_, here);
  } else if (!plan_.At(here).empty()) {
    carried_ = Carried::kCard;
    carried_seat_ = here;
    LetCarry(plan_.At(here));
  } else {
    said.Caption = "This seat is free.";
  }
  return true;
}

// The list takes a card up for the chart, and back from there.
bool frmseating::students_KeyPress(unsigned char key) {
  if (key != kBlank || CurrentChart == 0) return false;
  if (carried_ == Carried::kCard) {
    SeatToList(carried_seat_);
  } else if (students.ListIndex >= 0) {
    carried_ = Carried::kLine;
    carried_line_ = static_cast<std::size_t>(students.ListIndex);
    LetCarry(plan_.unseated[carried_line_]);
    SetFocus(Grid1);
  }
  return true;
}

void frmseating::LetCarry(const std::string& label) {
  said.Caption = label + " is taken up: arrows carry, the blank puts down, Escape lets go.";
  ShowPlan();
}

void frmseating::undo_Click() {
  if (!done_.empty()) GoTo(done_, undone_, "The last move is taken back.");
}

void frmseating::redo_Click() {
  if (!undone_.empty()) GoTo(undone_, done_, "The move is made again.");
}

void frmseating::GoTo(std::vector<SeatPlan>& from, std::vector<SeatPlan>& kept, std::string what) {
  kept.push_back(std::exchange(plan_, std::move(from.back())));
  from.pop_back();
  ChartDirty = kTrue;
  LetGo(std::move(what));
}

}  // namespace tallyroll
