// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/paged_target.h"

#include "base/run_time_error.h"

namespace tallyroll {

bool PagedTarget::Begin(QPagedPaintDevice& device) {
  device_ = &device;
  if (!painter_.begin(device_)) return false;
  ScaleToTwips(painter_, *device_);
  return true;
}

void PagedTarget::NewPage() {
  CurrentX = CurrentY = 0;
  if (painter_.isActive() && !device_->newPage()) NoteError(kErrorDevice);
}

bool PagedTarget::EndDoc() {
  if (!painter_.isActive()) return error_ == 0;
  painter_.end();
  NoteError(Finish(error_ == 0));
  if (error_ != 0 && failed) failed(error_);
  return error_ == 0;
}

void PagedTarget::KillDoc() {
  if (!painter_.isActive()) return;
  Abort();
  painter_.end();
  Finish(false);
}

void PagedTarget::NoteError(int error) {
  if (error_ == 0) error_ = error;
}

}  // namespace tallyroll
