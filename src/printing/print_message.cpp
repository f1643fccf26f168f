// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/print_message.h"

#include "platform/surroundings.h"
#include "printing/page/print_job.h"

namespace tallyroll {
namespace {

constexpr double kSecondsOfDay = 24 * 60 * 60;
constexpr double kShortWait = 0.1 / kSecondsOfDay;  // shows nothing

}  // namespace

PrintMessage::PrintMessage() {
  Job.AtEachRow = [this] { ShowIfLong(); };
}

PrintMessage::~PrintMessage() {
  Job.AtEachRow = nullptr;
}

void PrintMessage::ShowIfLong() {
  if (shown_) return;
  const double now = Platform().Now();
  if (begun_ == 0) begun_ = now;
  if (now - begun_ > kShortWait) Show();
}

void PrintMessage::Show() {
  shown_ = true;
  message_.Show();
}

// A window that its Cancel closed stays closed.
void PrintMessage::ShowPage(int page, int all) {
  if (Job.PrintFlag == kPrintCancelled) return;
  if (!message_.get()) message_.Open();
  if (message_.get()) message_.get()->ShowPage(page, all);
  if (!shown_) Show();
}

}  // namespace tallyroll
