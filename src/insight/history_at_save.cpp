// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/history_at_save.h"

#include "companion/change_history.h"
#include "companion/class_snapshots.h"
#include "companion/companion_file.h"
#include "companion/save_time.h"
#include "platform/surroundings.h"
#include "store/change/earlier_state.h"
#include "store/class_format.h"
#include "store/program_state.h"

namespace tallyroll {

HistoryAtSave::HistoryAtSave(const std::string& from) {
  before_.error = -1;
  if (!from.empty()) before_ = ReadWholeFile(from);
}

// The file that was is kept as well where no snapshot has it: it may be older than the first one,
// or another program's.
std::string HistoryAtSave::Keep(const std::string& to) const {
  const std::string now = SaveTimeText(Platform().Now());
  Class before;
  if (ParseClass(before_.bytes, before).error != 0) return {};
  const std::vector<NamedChange> changes = ChangesBetween(before, Current());
  if (!changes.empty()) {
    std::string fault = KeepChanges(to, now, changes);
    if (!fault.empty()) return fault;
  }
  const FileContents after = ReadWholeFile(to);
  if (after.error != 0 || !IsAnother(after.bytes)) return {};
  return KeepSnapshots(to,
                       {{FileTimeText(before_.stamp.modified), before_.bytes}, {now, after.bytes}});
}

// Opening alone may make other bytes of a class, which is no change.
bool HistoryAtSave::IsAnother(const std::string& after) const {
  Class before;
  std::string bytes;
  const bool opened = ReadAsOpened(before_.bytes, before) == 0;
  return !opened || SerializeClass(before, bytes) != 0 || bytes != after;
}

std::string HistoryAtSave::Saved(const std::string& to) const {
  if (before_.error != 0 || !MayKeepMarks(to)) return {};
  const std::string fault = Keep(to);
  // A companion that is off was told when the class was opened, or by the save.
  const bool told = fault.empty() || PathExists(CompanionPath(to));
  return told ? "" : " The history of this class is not kept: " + fault + ".";
}

bool MayKeepMarks(const std::string& class_path) {
  return Current().PasswordSet != 1 || HistoryAgreed(class_path);
}

}  // namespace tallyroll
