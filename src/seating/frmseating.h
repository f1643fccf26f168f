// SPDX-License-Identifier: GPL-3.0-or-later
// frmseating: the Seating Chart Portal. It makes, changes, prints and deletes the class's charts.
#pragma once

#include <cstdint>

#include "platform/portal.h"
#include "seating/wish_step.h"

namespace tallyroll {

struct frmseating : Portal {
  frmseating();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override;

  // The pages of the Portal.
  static constexpr int kChart = 0, kSize = 1, kOptions = 2, kWishes = 3;
  Pages step;

  // The chart.
  Label chartlabel;   // heads the list of charts
  ListBox Listchart;  // "Chart 1"
  Label Label3;       // "Chart 1", the one on display
  Grid Grid1;         // the seats; row 0 is at the board
  ListBox students;   // who has no seat
  Label said;         // what the last move did
  Label unmetlabel;
  ListBox unmet;     // after a filling by wishes: what could not be met
  CheckBox details;  // absences and the last mark on the cards
  CommandButton newchart, show, delete_, undo, redo, save, prints, exit;

  // The size of a new chart.
  Label columnlabel, seatslabel;
  ListBox column, seatsrow;
  CommandButton okinfo, sizeback;

  // How it is filled.
  struct Frame chartmethod;
  OptionButton alpha, randord, indiv, bywishes;
  CommandButton chartok, optionsback;

  WishStep wishes;
  CommandButton wishok, wishback;

  i16 CurrentChart = 0;  // on display; 0 is none
  i16 ChartIsNew = kFalse;
  i16 ChartDirty = kFalse;
  const SeatPlan& plan() const { return plan_; }

  void newchart_Click();
  void show_Click();
  void delete_Click();
  void save_Click();
  void prints_Click();
  void exit_Click();
  void undo_Click();
  void redo_Click();
  void column_Change();
  void okinfo_Click();
  void chartok_Click();
  void wishok_Click();
  void details_Click();

 private:
  bool MayLoseChanges();
  void ListCharts();
  void Begin(SeatPlan plan, int chart, bool is_new);
  void FillSizes();
  void FillNew(void (*fill)(SeatPlan& plan));
  void Store();
  void ShowPlan();
  void ShowSeats();
  std::string CardLine(int row, int col) const;

  void Grid1_DragDrop(std::string_view source);
  void students_DragDrop(std::string_view source);
  bool Grid1_KeyPress(unsigned char key);
  bool students_KeyPress(unsigned char key);

  // Each remembers what stood before, and says what came of it.
  void SeatToSeat(Seat from, Seat to);
  void ListToSeat(std::size_t line, Seat to);
  void SeatToList(Seat from);
  void Moved(SeatPlan before, std::string what);
  void LetCarry(const std::string& label);
  void LetGo(std::string what);
  void GoTo(std::vector<SeatPlan>& from, std::vector<SeatPlan>& kept, std::string what);
  Seat CellInWork() const { return {Grid1.Row, Grid1.Col}; }

  SeatPlan plan_;
  std::vector<int> sitting_;             // by seat, as its cards tell
  std::vector<SeatPlan> done_, undone_;  // plans before the last moves, and those taken back
  // The card that the keys carry: a seat, or a line of the list.
  enum class Carried { kNothing, kCard, kLine };
  Carried carried_ = Carried::kNothing;
  Seat carried_seat_;
  std::size_t carried_line_ = 0;
};

}  // namespace tallyroll
