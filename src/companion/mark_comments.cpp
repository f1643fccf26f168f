// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/mark_comments.h"

#include "base/code_page.h"
#include "companion/companion_file.h"

namespace tallyroll {
namespace {

std::string CommentFromFile(const std::string& text) {
  return CodePageFromUtf8(text).value_or("");
}

}  // namespace

KeptMarkComments MarkComments(const std::string& class_path, const std::string& system) {
  if (class_path.empty()) return {{}, "the class was not saved yet"};
  const Companion companion = OpenCompanion(class_path);
  if (!companion) return {{}, companion.fault};
  KeptMarkComments kept;
  Statement rows(*companion.database,
                 "SELECT student, grade, mark, comment FROM mark_comment WHERE system = ?"
                 " ORDER BY student, grade",
                 {system});
  while (rows.Next())
    kept.comments.push_back({CommentFromFile(rows.Text(0)), CommentFromFile(rows.Text(1)),
                             CommentFromFile(rows.Text(2)), CommentFromFile(rows.Text(3))});
  kept.fault = companion.database->fault();
  return kept;
}

std::string KeepMarkComments(const std::string& class_path, const std::string& system,
                             const std::vector<MarkComment>& comments) {
  const Companion companion = MakeCompanion(class_path);
  if (!companion) return companion.fault;
  Database& database = *companion.database;
  Transaction transaction(database);
  for (const MarkComment& one : comments)
    database.Run(
        "INSERT OR REPLACE INTO mark_comment (system, student, grade, mark, comment)"
        " VALUES (?, ?, ?, ?, ?)",
        {system, Utf8FromCodePage(one.student), Utf8FromCodePage(one.grade),
         Utf8FromCodePage(one.mark), Utf8FromCodePage(one.comment)});
  transaction.Commit();
  return database.fault();
}

}  // namespace tallyroll
