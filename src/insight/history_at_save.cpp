// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/history_at_save.h"

#include <cmath>

#include "base/date_serial.h"
#include "base/number_text.h"
#include "companion/change_history.h"
#include "companion/companion_file.h"
#include "platform/surroundings.h"
#include "store/class_format.h"
#include "store/program_state.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

std::string TwoDigits(int number) {
  return (number < 10 ? "0" : "") + PlainNumberText(number);
}

// "2026-09-01 10:15:00" of a day serial.
std::string TimeText(double serial) {
  constexpr int kSecondsOfDay = 86400;
  auto second = static_cast<std::int64_t>(std::llround(serial * kSecondsOfDay));
  const std::int64_t whole_days = second / kSecondsOfDay;
  const auto day = static_cast<double>(whole_days);
  second %= kSecondsOfDay;
  const CivilDate date = DateOfSerial(day);
  const int of_day = static_cast<int>(second);
  return PlainNumberText(date.year) + "-" + TwoDigits(date.month) + "-" + TwoDigits(date.day) +
         " " + TwoDigits(of_day / 3600) + ":" + TwoDigits(of_day / 60 % 60) + ":" +
         TwoDigits(of_day % 60);
}

}  // namespace

HistoryAtSave::HistoryAtSave(const std::string& from) {
  if (from.empty()) return;
  const FileContents file = ReadWholeFile(from);
  if (file.error != 0) return;
  before_.emplace();
  if (ParseClass(file.bytes, *before_).error != 0) before_.reset();
}

std::string HistoryAtSave::Saved(const std::string& to) const {
  if (!before_) return {};
  const bool locked = Current().PasswordSet == 1;
  if (locked && !HistoryAgreed(to)) return {};
  const std::vector<NamedChange> changes = ChangesBetween(*before_, Current());
  if (changes.empty()) return {};
  const std::string fault = KeepChanges(to, TimeText(Platform().Now()), changes);
  // A companion that is off was told when the class was opened, or by the save.
  const bool told = fault.empty() || PathExists(CompanionPath(to));
  return told ? "" : " The history of this class is not kept: " + fault + ".";
}

}  // namespace tallyroll
