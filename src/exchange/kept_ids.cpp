// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/kept_ids.h"

#include <vector>

#include "base/text.h"
#include "companion/foreign_ids.h"
#include "exchange/preview.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr const char* kStudentKind = "student";
constexpr const char* kGradeKind = "grade";
constexpr const char* kCourseKind = "course";

void AddStudentIds(const ExchangePreview& preview, std::vector<ForeignId>& ids) {
  for (std::size_t s = 0; s < preview.student_of.size(); ++s) {
    const int student = preview.student_of[s];
    const std::string& key = preview.table.students[s].key;
    if (student <= 0 || key.empty()) continue;
    const std::string id(Trim(Current().Students[static_cast<std::size_t>(student)].id));
    if (!id.empty()) ids.push_back({kStudentKind, id, key});
  }
}

void AddGradeIds(const ExchangePreview& preview, std::vector<ForeignId>& ids) {
  for (std::size_t g = 0; g < preview.grade_of.size(); ++g) {
    const int grade = preview.grade_of[g];
    const std::string& key = preview.table.grades[g].key;
    if (grade > 0 && !key.empty())
      ids.push_back(
          {kGradeKind,
           std::string(Trim(Current().Instruments[static_cast<std::size_t>(grade)].title)), key});
  }
}

}  // namespace

KeptIds KeptIdsOf(ExchangeFormat format) {
  KeptIds kept;
  if (Current().FileName.empty()) return kept;
  const KeptForeignIds read = ForeignIds(Current().FileName, std::string(RowOfFormat(format).name));
  for (const ForeignId& id : read.ids) {
    if (id.kind == kStudentKind) kept.key_of_student[id.own] = id.foreign;
    if (id.kind == kCourseKind) kept.course = id.foreign;
    if (id.kind != kGradeKind) continue;
    kept.grade_of_key[id.foreign] = id.own;
    kept.key_of_grade[id.own] = id.foreign;
  }
  return kept;
}

std::string KeepIdsOf(ExchangeFormat format, const ExchangePreview& preview) {
  std::vector<ForeignId> ids;
  AddStudentIds(preview, ids);
  AddGradeIds(preview, ids);
  if (!preview.table.course.empty()) ids.push_back({kCourseKind, "", preview.table.course});
  if (ids.empty()) return {};
  return KeepForeignIds(Current().FileName, std::string(RowOfFormat(format).name), ids);
}

}  // namespace tallyroll
