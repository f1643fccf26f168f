// SPDX-License-Identifier: GPL-3.0-or-later
// frmletter: the Letter Values Portal. What each letter counts as a mark.
#pragma once

#include <array>
#include <optional>

#include "base/currency.h"
#include "grades/letters.h"
#include "grades/mark_entry.h"

namespace tallyroll {

struct frmletter : Portal {
  frmletter();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cancel_Click(); }

  Label header;
  Grid grdletter;  // a row per letter: "Letter", "Value"
  CheckBox allclass;
  CommandButton default_, EXIT, cancel;

  bool DataChanged = false;

  void allclass_Click() { DataChanged = true; }
  void default_Click();
  void EXIT_Click();
  void cancel_Click();

 private:
  using Values = std::array<Currency, LetterNames.size()>;

  void FillGrid();
  void Edited();
  // The values of the cells; nothing when one is no number, after a box and with the focus there.
  std::optional<Values> CheckedValues();

  CellEntry entry_;
  Values before_;  // what the class goes back to on Cancel
};

}  // namespace tallyroll
