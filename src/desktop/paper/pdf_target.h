// SPDX-License-Identifier: GPL-3.0-or-later
// A report as a PDF file, which is complete once EndDoc has run, or absent.
#pragma once

#include <QPdfWriter>
#include <QSaveFile>
#include <memory>
#include <string>

#include "desktop/paper/paged_target.h"

namespace tallyroll {

class PdfTarget : public PagedTarget {
 public:
  // The sheet is upright. Null when the file cannot be written; `error` is the run-time error
  // number then.
  static std::unique_ptr<PdfTarget> Open(const std::string& path, const Sheet& sheet,
                                         bool landscape, std::string_view title, int& error);
  ~PdfTarget() override { KillDoc(); }

 protected:
  int Finish(bool keep) override;

 private:
  PdfTarget(const std::string& path, const Sheet& sheet, bool landscape);

  QSaveFile file_;  // beside the path until it is done
  QPdfWriter writer_;
};

}  // namespace tallyroll
