// SPDX-License-Identifier: GPL-3.0-or-later
// frmstatistic: the Statistics Portal, the figures of one grade. The grade chosen is handed on in
// CurrentStudent; the class window then opens its graph.
#pragma once

#include "platform/chart.h"
#include "platform/portal.h"

namespace tallyroll {

struct frmstatistic : Portal {
  frmstatistic();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override { cancel_Click(); }

  ListBox lsttitles;
  Label Title, code, present, absent, passed, perpassed, failed, perfailed;
  Label lowest, highest, std_, average, lpassv;
  Label middle;        // the median and the middle half
  Graph distribution;  // a small picture of the ranges
  CommandButton continue_, cancel, compare;

  void lsttitles_Click();
  void continue_Click();
  void cancel_Click();
  void compare_Click();

 private:
  void Begin();
  void Compute();
  void ShowDistribution();
};

}  // namespace tallyroll
