// SPDX-License-Identifier: GPL-3.0-or-later
// What the E-mail Portal opens with. Whoever opens it for something else than the report of the
// preview fills this first; the Portal clears it when it closes.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "store/records.h"

namespace tallyroll {

struct MailDraft {
  // The text of the message, in the code page; the Portal removes the file when it closes. Empty
  // stands for TempFilePath() of printing/temp_file.h.
  std::string body_file;
  std::string recipient;  // an address, in the code page; empty: that of the student in work
  std::string subject;
  bool letter = false;  // not the report of the preview: there is none to attach
  // To send a letter to several: the students, and the text for each of them, in UTF-8. The message
  // shown is then the one of the first.
  std::vector<i16> students = {};
  std::function<std::string(i16 student)> text_of = {};
};

extern MailDraft Draft;  // set before ShowPortal("frmSendMail"); cleared when that closes

}  // namespace tallyroll
