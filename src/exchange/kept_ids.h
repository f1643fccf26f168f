// SPDX-License-Identifier: GPL-3.0-or-later
// The identifiers of another system that the class in work keeps, as importing and exporting use
// them.
#pragma once

#include <string>
#include <unordered_map>

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

// Keeps those of a file that was taken. Answers why it could not be done; empty when it was.
std::string KeepIdsOf(ExchangeFormat format, const ExchangePreview& preview);

}  // namespace tallyroll
