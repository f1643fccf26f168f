// SPDX-License-Identifier: GPL-3.0-or-later
// What the messages of a run say: a report, or a letter, to each student their own.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "store/records.h"

namespace tallyroll {

struct MailedReport {
  int code = 0;
  bool attendance = false, comments = false, codes = false;
};

struct MailContents {
  std::function<std::string(i16 student)> text_of;  // in UTF-8
  std::string nothing;                              // what an empty text is
  std::vector<std::string> notes;                   // told beside, in UTF-8
};

// Each answers why nothing may go.
std::string TakeMailReport(const MailedReport& mailed, MailContents& contents);
std::string TakeMailLetter(const std::string& path, const std::vector<i16>& students,
                           MailContents& contents);

}  // namespace tallyroll
