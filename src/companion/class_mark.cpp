// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/class_mark.h"

#include <algorithm>
#include <cstdint>
#include <string_view>
#include <vector>

#include "base/text.h"
#include "store/program_state.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

// Tells files apart that nobody made alike on purpose.
std::string DigestOf(std::string_view bytes) {
  std::uint64_t digest = 0xCBF29CE484222325;
  for (const char byte : bytes) {
    digest ^= static_cast<unsigned char>(byte);
    digest *= 0x100000001B3;
  }
  std::string digits;
  for (int place = 60; place >= 0; place -= 4)
    digits += "0123456789abcdef"[(digest >> place) & 15U];
  return digits;
}

std::string StudentsOf(const Class& c) {
  std::string marks;
  for (int i = 1; i <= c.NumStudents; ++i) {
    const Student& s = c.Students[static_cast<std::size_t>(i)];
    std::string who(Trim(s.id));
    who.append("\n").append(Trim(s.lastname)).append("\n").append(Trim(s.firstname));
    marks += DigestOf(who);
  }
  return marks;
}

std::vector<std::string_view> SortedMarks(std::string_view marks) {
  std::vector<std::string_view> sorted;
  for (std::size_t at = 0; at < marks.size(); at += kStudentMark)
    sorted.push_back(marks.substr(at, kStudentMark));
  std::ranges::sort(sorted);
  return sorted;
}

}  // namespace

ClassMark MarkOf(const std::string& class_path) {
  ClassMark mark;
  const FileContents file = ReadWholeFile(class_path);
  if (file.error == 0) mark.file = DigestOf(file.bytes);
  const std::string path = CanonicalPath(class_path);
  for (const Class& c : Classes)
    if (!c.FileName.empty() && CanonicalPath(c.FileName) == path) mark.students = StudentsOf(c);
  return mark;
}

bool IsSameClass(const ClassMark& kept, const ClassMark& now) {
  if (kept.file == now.file) return true;
  const auto before = SortedMarks(kept.students), here = SortedMarks(now.students);
  std::vector<std::string_view> both;
  std::ranges::set_intersection(before, here, std::back_inserter(both));
  return !both.empty() && both.size() * 2 >= std::max(before.size(), here.size());
}

}  // namespace tallyroll
