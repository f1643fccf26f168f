// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/recent_facts.h"

#include <algorithm>
#include <cstdint>
#include <ctime>
#include <fstream>

#include "base/date_serial.h"
#include "base/number_text.h"
#include "base/text.h"
#include "companion/working_copy.h"
#include "platform/surroundings.h"
#include "store/class_file.h"
#include "store/class_format.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

constexpr std::size_t kEnoughForAHeader = std::size_t{1} << 16;
constexpr std::int64_t kNanoseconds = 1000000000;

// The day on the teacher's own clock.
double DayOf(std::int64_t modified) {
  const std::time_t seconds = modified / kNanoseconds;
  std::tm local{};
  if (!localtime_r(&seconds, &local)) return 0;
  return DateSerial({local.tm_year + 1900, local.tm_mon + 1, local.tm_mday});
}

std::string FirstBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string bytes(kEnoughForAHeader, '\0');
  file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(std::max<std::streamsize>(file.gcount(), 0)));
  return bytes;
}

}  // namespace

RecentFacts FactsOfFile(const std::string& path) {
  RecentFacts facts;
  const FileStamp stamp = StampOf(path);
  facts.there = stamp.size >= 0;
  if (!facts.there) return facts;
  facts.saved = DayOf(stamp.modified);
  facts.unsaved = !IsOpenClassFile(path) && WorkingCopyOf(path).newer;
  Class header;
  if (ParseHeader(FirstBytes(path), header).error != 0) return facts;
  facts.locked = header.PasswordSet == 1;
  facts.known = !facts.locked;
  if (facts.locked) return facts;
  facts.description = Trim(header.description);
  facts.students = header.NumStudents;
  return facts;
}

std::string TextOfFacts(const RecentFacts& facts) {
  if (!facts.there) return "Not found";
  std::string text;
  const auto add = [&text](std::string_view part) {
    if (part.empty()) return;
    if (!text.empty()) text += ", ";
    text += part;
  };
  if (facts.locked) add("With a password");
  add(facts.description);
  if (facts.known)
    add(PlainNumberText(facts.students) + (facts.students == 1 ? " student" : " students"));
  if (facts.saved > 0) add(DateText(facts.saved, Platform().ShortDateOrder()));
  if (facts.unsaved) add("with work that was not saved");
  return text;
}

}  // namespace tallyroll
