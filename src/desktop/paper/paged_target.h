// SPDX-License-Identifier: GPL-3.0-or-later
// Sheet after sheet on a printer or in a PDF.
#pragma once

#include <QPagedPaintDevice>
#include <QPainter>
#include <functional>

#include "desktop/paper/qt_print_target.h"

namespace tallyroll {

class PagedTarget : public QtPrintTarget {
 public:
  // The sheet as it lies, turned already.
  explicit PagedTarget(const Sheet& sheet) : QtPrintTarget(sheet, &painter_) {}

  bool IsPrinter() const override { return true; }
  void NewPage() override;
  void Cls() override {}
  // A job ends or is dropped once; what comes after that goes nowhere.
  bool EndDoc() override;
  void KillDoc() override;
  // Of a job that has ended: 0, or the run-time error number that kept it from going out.
  int Error() const { return error_; }
  // Told of that number.
  std::function<void(int error)> failed;

 protected:
  // The device lives as long as the job. False when it refuses.
  bool Begin(QPagedPaintDevice& device);
  // Before the last sheet of a dropped job is done.
  virtual void Abort() {}
  // After the last sheet of any. Returns 0 or the run-time error number.
  virtual int Finish(bool keep) = 0;

 private:
  void NoteError(int error);

  QPainter painter_;
  QPagedPaintDevice* device_ = nullptr;
  int error_ = 0;
};

}  // namespace tallyroll
