// SPDX-License-Identifier: GPL-3.0-or-later
// The message that stands beside the Portal in front while a run goes on.
#pragma once

#include "printing/printmsg.h"

namespace tallyroll {

// Exists as long as the run. A layout that is over at once shows nothing; a print always shows it.
class PrintMessage {
 public:
  PrintMessage();
  ~PrintMessage();
  PrintMessage(const PrintMessage&) = delete;
  PrintMessage& operator=(const PrintMessage&) = delete;

  // The page that is printed next; 0 of all where their number isn't known.
  void ShowPage(int page, int all);

 private:
  void ShowIfLong();
  void Show();

  Beside<printmsg> message_;
  double begun_ = 0;  // when the first row was done
  bool shown_ = false;
};

}  // namespace tallyroll
