// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/page/report_work.h"

#include <utility>

#include "printing/page/print_job.h"

namespace tallyroll {

ReportWork::ReportWork(int rows)
    : work_("Writing the report", rows), before_(std::exchange(Job.AtEachRow, [this] {
        if (!work_.Step()) Job.PrintFlag = kPrintCancelled;
      })) {}

ReportWork::~ReportWork() {
  Job.AtEachRow = std::move(before_);
}

}  // namespace tallyroll
