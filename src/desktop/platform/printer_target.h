// SPDX-License-Identifier: GPL-3.0-or-later
// The printer in use, and a job on it.
#pragma once

#include <QPrinter>
#include <memory>

#include "desktop/paper/paged_target.h"

namespace tallyroll {

// A printer with the paper that lies in it; without any printer, the paper of the country.
std::unique_ptr<QPrinter> MakePrinter();
// Its sheet, upright, and what of it can be printed on.
Sheet SheetOf(const QPrinter& printer);

class PrinterTarget : public PagedTarget {
 public:
  // Null when the printer refuses. The printer outlives the target, and stands after the job as it
  // was set up.
  static std::unique_ptr<PrinterTarget> Open(QPrinter& printer, bool landscape,
                                             std::string_view title);
  ~PrinterTarget() override { KillDoc(); }

 protected:
  void Abort() override { printer_.abort(); }
  int Finish(bool keep) override;

 private:
  PrinterTarget(QPrinter& printer, const Sheet& sheet);

  QPrinter& printer_;
  QPageLayout::Orientation before_;  // comes back when the job is over
};

}  // namespace tallyroll
