// SPDX-License-Identifier: GPL-3.0-or-later
// The identifiers of another system that the class in work keeps, as importing and exporting use
// them.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

#include "companion/mark_comments.h"
#include "exchange/formats/formats.h"

namespace tallyroll {

struct ExchangePreview;

struct KeptIds {
  std::string course;
  std::unordered_map<std::string, std::string> key_of_student;  // by the student's ID
  std::unordered_map<std::string, std::string> grade_of_key;    // the title by the key
  std::unordered_map<std::string, std::string> key_of_grade;    // and the reverse
};
// A class without a companion has none.
KeptIds KeptIdsOf(ExchangeFormat format);

// What a system says by the marks of the class, by student's ID and title.
class KeptComments {
 public:
  // A class without a companion has none.
  explicit KeptComments(ExchangeFormat format);
  // Empty where the mark is another one than was commented.
  std::string CommentOn(const std::string& student, const std::string& title,
                        std::string_view mark) const;

 private:
  std::map<std::pair<std::string, std::string>, MarkComment> by_cell_;
};

// Keeps those of a file that was taken, and what it says by the marks that stand now. Answers why
// it could not be done; empty when it was.
std::string KeepIdsOf(ExchangeFormat format, const ExchangePreview& preview);

}  // namespace tallyroll
