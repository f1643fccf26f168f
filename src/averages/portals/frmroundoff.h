// SPDX-License-Identifier: GPL-3.0-or-later
// frmroundoff: the Rounding Modification Portal. It says how an average becomes a final grade.
#pragma once

#include <array>

#include "platform/cell_typing.h"
#include "platform/portal.h"
#include "store/program_state.h"

namespace tallyroll {

struct frmroundoff : Portal {
  frmroundoff();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { Unload(); }

  Label mesage;
  CommandButton noskip, skip;
  OptionButton finalletter, finalnumber;
  Frame valueframe;                        // tells the scale in force
  Grid grdgrade;                           // "Letter", "Number", " Min. Value"
  std::array<CommandButton, 4> usescale;   // 0 is the default scale
  std::array<CommandButton, 4> savescale;  // 0 is not used
  CommandButton writeclip, readclip, previewchange;
  Frame framescreen, framecancel, frameprint;  // the ways out, from the menu and from the summary
  CommandButton continue_, contprinter, continueprint, cancel;

  void noskip_Click();
  void skip_Click();
  void usescale_Click(i16 scale);
  void savescale_Click(i16 scale);
  void finalform_Click(i16 form);
  void writeclip_Click();
  void readclip_Click();
  void leave_Click(std::string_view next);
  void continueprint_Click();

 private:
  // The rounding that was in force when the Portal opened.
  struct Rounding {
    decltype(Class::RoundTable) table{};
    i16 scale = 0, mode = 0;
  };
  void previewchange_Click();
  Rounding opened_;
  bool grdgrade_KeyPress(unsigned char character);
  void ShowMode();
  void FillGrid();
  void ShowScaleButtons();
  void MarkScale(i16 scale, bool empty);
  void CopyGridTo(i16 scale);
  void SaveAs(i16 scale);
  bool MayLoseChange();
  bool SettleChange();
  bool SaveInEmptyScale();

  CellTyping typing_;
  bool changed_ = false;
};

}  // namespace tallyroll
