// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/kept_work.h"

#include <functional>
#include <utility>

#include "companion/behind.h"
#include "companion/change_history.h"
#include "companion/save_time.h"
#include "companion/working_copy.h"
#include "platform/surroundings.h"
#include "store/change/earlier_state.h"
#include "store/class_format.h"

namespace tallyroll {

FoundWork WorkFound;

std::string KeptWork::Keep(const Class& c) {
  if (c.Changed == kFalse) Drop(c.FileName);
  if (off_ || c.Changed == kFalse || c.FileName.empty()) return {};
  if (const std::string fault = kept_ == 0 ? std::string() : FaultBehind(c.FileName);
      !fault.empty()) {
    off_ = true;
    return "The work on this class is not kept until it is saved: " + fault + ".";
  }
  if (c.PasswordSet == 1 && !HistoryAgreed(c.FileName)) return {};
  std::string bytes;
  if (SerializeClass(c, bytes) != 0) return {};
  const std::size_t digest = std::hash<std::string>()(bytes);
  if (digest == kept_) return {};
  kept_ = digest;
  KeepWorkingCopy(c.FileName, SaveTimeText(Platform().Now()), std::move(bytes));
  return {};
}

void KeptWork::Drop(const std::string& class_path, const std::string& other_path) {
  if (kept_ != 0) {
    DropWorkingCopy(class_path);
    if (!other_path.empty() && other_path != class_path) DropWorkingCopy(other_path);
  }
  *this = {};
}

bool FindWork(const Class& c) {
  WorkFound = {};
  WorkingCopy copy = WorkingCopyOf(c.FileName);
  if (copy.time.empty()) return false;
  Class worked;
  std::string bytes, now;
  const bool read = ReadAsOpened(copy.bytes, worked) == 0 && SerializeClass(worked, bytes) == 0 &&
                    SerializeClass(c, now) == 0;
  if (!read || !copy.newer || bytes == now) {
    DropWorkingCopy(c.FileName);
    return false;
  }
  WorkFound = {c.FileName, std::move(copy.time), std::move(copy.bytes), ChangesBetween(c, worked),
               false};
  return true;
}

}  // namespace tallyroll
