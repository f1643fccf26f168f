// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/kept_ids.h"

#include <vector>

#include "base/text.h"
#include "companion/foreign_ids.h"
#include "exchange/formats/foreign_mark.h"
#include "exchange/preview.h"
#include "grades/marks.h"
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

// Of every line whose mark stands in the class now: of an old one nothing is known.
std::vector<MarkComment> StandingComments(const ExchangePreview& preview) {
  std::vector<MarkComment> comments;
  for (const Change& change : preview.changes) {
    if (change.comment.empty() || change.student <= 0 || change.grade < 0) continue;
    const int grade = preview.grade_of[static_cast<std::size_t>(change.grade)];
    if (grade <= 0) continue;
    const Student& student = Current().Students[static_cast<std::size_t>(change.student)];
    const std::string_view mark = MarkOf(student, grade);
    const std::string id(Trim(student.id));
    if (id.empty() || !IsSameMark(mark, change.after.view())) continue;
    comments.push_back(
        {id, std::string(Trim(Current().Instruments[static_cast<std::size_t>(grade)].title)),
         std::string(Trim(mark)), change.comment});
  }
  return comments;
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

KeptComments::KeptComments(ExchangeFormat format) {
  const ExchangeFormatRow& row = RowOfFormat(format);
  if (!row.comments || Current().FileName.empty()) return;
  for (MarkComment& one : MarkComments(Current().FileName, std::string(row.name)).comments)
    by_cell_.emplace(std::pair(one.student, one.grade), one);
}

std::string KeptComments::CommentOn(const std::string& student, const std::string& title,
                                    std::string_view mark) const {
  if (by_cell_.empty()) return {};
  const auto kept = by_cell_.find({student, title});
  if (kept == by_cell_.end() || !IsSameMark(mark, kept->second.mark)) return {};
  return kept->second.comment;
}

std::string KeepIdsOf(ExchangeFormat format, const ExchangePreview& preview) {
  std::vector<ForeignId> ids;
  AddStudentIds(preview, ids);
  AddGradeIds(preview, ids);
  if (!preview.table.course.empty()) ids.push_back({kCourseKind, "", preview.table.course});
  const std::vector<MarkComment> comments = StandingComments(preview);
  const std::string system(RowOfFormat(format).name);
  std::string fault;
  if (!ids.empty()) fault = KeepForeignIds(Current().FileName, system, ids);
  if (fault.empty() && !comments.empty())
    fault = KeepMarkComments(Current().FileName, system, comments);
  return fault;
}

}  // namespace tallyroll
