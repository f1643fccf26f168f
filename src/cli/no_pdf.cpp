// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/pdf.h"

namespace tallyroll {

PdfOutcome WritePdf(const std::string& /*path*/, const std::string& /*title*/) {
  return {"PDF is not available here"};
}

std::unique_ptr<PrintTarget> MakePaperBox(bool /*landscape*/) {
  return nullptr;
}

}  // namespace tallyroll
