// SPDX-License-Identifier: GPL-3.0-or-later
// frmexchange: the School Systems Portal. It takes the marks of another system's file in, by a list
// of what would happen, and gives the class out as such a file, with what that system would
// misread.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "exchange/out_table.h"
#include "exchange/take.h"
#include "platform/portal.h"

namespace tallyroll {

struct frmexchange : Portal {
  frmexchange();
  void Declare(ControlTable& table) override;
  void Load() override;

  OptionButton takein, giveout;
  ComboBox system;
  CommandButton choose;
  Label told;
  Pages ways;
  struct Frame inframe;
  ComboBox show;      // which lines of the list are shown
  Grid changes;       // a line each, with its tick
  ComboBox who;       // whom an unknown line is about
  CheckBox leaveout;  // what cannot be used stays out, the rest is taken
  CommandButton tickall, ticknone;
  struct Frame outframe;
  std::array<ComboBox, 5> sign;  // how each special mark goes out
  Grid warnings;
  CommandButton okbt, cancelbt;

  void way_Click();
  void system_Change();
  void choose_Click();
  void show_Change();
  void changes_Change();
  bool changes_KeyPress(unsigned char key);
  void changes_Click();
  void who_Change();
  void TickShown(bool on);
  void sign_Change();
  bool warnings_KeyPress(unsigned char key);
  void warnings_Click();
  void okbt_Click();

 private:
  ExchangeFormat Format() const;
  bool GivesOut() const { return giveout.Value; }

  bool Read();
  void ShowChanges();
  void ShowChange(int row);
  void ShowWho();
  void ShowCounts();
  void ToggleChange();
  const Change* CurrentChange() const;
  void Take();

  void LoadOut();
  OutSigns ChosenSigns() const;
  void FillSigns();
  void MakeOut();
  void ShowWarning(int row);
  void ToggleWarning();
  void GiveOut();

  std::string path_;
  std::string bytes_;
  StudentsByRow chosen_;
  int read_system_ = 0;  // of the list that is shown
  ExchangePreview preview_;
  std::vector<std::size_t> shown_;  // by row of the grid, the change
  OutTable out_;
};

}  // namespace tallyroll
