// SPDX-License-Identifier: GPL-3.0-or-later
// What the two Portals that set weights share: a column of new weights with its sums and buttons,
// and the boxes that say which grades are dropped.
#pragma once

#include <vector>

#include "averages/average_settings.h"
#include "averages/portals/frmdropgrade.h"
#include "averages/portals/frmtotals.h"
#include "platform/cell_typing.h"
#include "platform/table_printer.h"
#include "store/program_state.h"

namespace tallyroll {

struct WeightsForm : Portal {
  void Load() override;
  void QueryUnload() override { cancel_Click(); }

  Label totals, extra;  // sums of the new weights without and of extra credit
  CommandButton newwt, equal, oldwt, clearwt, paste, frombd, types, print;
  CommandButton previewchange, exit, cancel;
  CheckBox dropyn, droptype, labs;

  void newwt_Click();
  void equal_Click();
  void oldwt_Click();
  void clearwt_Click();
  void paste_Click();
  void frombd_Click();
  void types_Click();
  void print_Click();
  void droptype_Click();
  void dropyn_Click();
  void previewchange_Click();
  void exit_Click();
  void cancel_Click();

 protected:
  // The last column of the grid is that of the new weights, and the one before that of the old.
  WeightsForm(std::string_view name, Grid& grid, int columns, std::string_view clipboard_format);
  void DeclareGrid(ControlTable& table, std::string_view name);
  void DeclareButtons(ControlTable& table);
  void DeclareBoxes(ControlTable& table);
  void DeclareFoot(ControlTable& table);

  int NewColumn() const { return columns_ - 1; }
  int OldColumn() const { return columns_ - 2; }
  int LastRow() const { return grid_.Rows() - 1; }
  std::string_view NewWeight(int row) const { return grid_.TextMatrix(row, NewColumn()); }
  void SetNewWeight(int row, std::string_view text);
  void SetChanged() { Work() = 1; }
  void ShowSums();

  virtual void FillGrid() = 0;
  virtual bool IsExtraCredit(int row) const = 0;
  virtual bool TakesWeight(int /*row*/) const { return true; }
  // The rows among which 100 is shared out evenly, and how much each but the last gets.
  virtual std::vector<int> EqualRows() const = 0;
  virtual Currency EqualWeight(int rows) const = 0;
  virtual PrintedTable Printout() const = 0;  // the table as it goes to paper
  virtual void MoveMark() {}                  // the current cell has moved
  virtual TypeSums WeightsByType() const = 0;
  virtual bool SumIsHundred() const = 0;
  virtual i16& Work() const = 0;  // AverageWork1 or AverageWork2
  // Puts accepted weights in force; saves them in the class's own fields.
  virtual void PutInForce(const std::vector<Currency>& weights) = 0;
  virtual void KeepForTheFile() = 0;
  virtual DropBoxes Boxes() const;

 private:
  void grid_Moved();
  bool grid_KeyDown(Key key);
  bool grid_KeyPress(unsigned char character);
  void ShowTypes();
  void ClearDropBoxes();
  bool TakeDrops(TypeSums& drops);
  bool ReadWeights(std::vector<Currency>& weights) const;
  bool TakeWeights(std::vector<Currency>& weights);
  void PutBoxesInForce();
  void Accept(const std::vector<Currency>& weights, const TypeSums& drops);

  Grid& grid_;
  int columns_;
  std::string_view clipboard_format_;
  CellTyping typing_;
  Beside<frmtotals> totals_by_type_;
  Beside<frmdropgrade> drop_;
  i16 work_before_ = 0;
};

}  // namespace tallyroll
