// SPDX-License-Identifier: GPL-3.0-or-later
// The first page of a report as it would be printed now, for a look beside its options. Nobody is
// asked or told anything and no event is let through meanwhile; the run, the choice and the class
// are afterwards what they were.
#pragma once

#include <string>

#include "platform/print_target.h"
#include "printing/page/print_job.h"
#include "printing/page/report_choice.h"

namespace tallyroll {

class FirstPage {
 public:
  // Lays a report of the class out as far as its first page goes, on the printer's sheet and under
  // the title that a run would offer. Empty, or why there is no page to see.
  std::string LayOut(i16 tab, int code, const ReportChoice& choice);
  // The page that was laid out.
  void Draw(PrintTarget& target);

  // Of the whole sheet.
  double width() const { return width_; }
  double height() const { return height_; }

 private:
  class InWork;

  PrintJob job_;
  ReportChoice choice_;
  double width_ = 0, height_ = 0;
  double printable_width_ = 0, printable_height_ = 0;
};

}  // namespace tallyroll
