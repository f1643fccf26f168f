// SPDX-License-Identifier: GPL-3.0-or-later
// frmSendMany: one message for each of several students, looked through before anything leaves, and
// noted beside the class.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "letters/mail/mail_plan.h"
#include "letters/mail/mail_run.h"
#include "platform/background.h"
#include "platform/portal.h"

namespace tallyroll {

struct frmSendMany : Portal {
  frmSendMany();
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override;

  Grid Grid1;  // student, address, subject, attachment, state
  CheckBox shared, again;
  TextBox pause, a_day;
  Label status;
  ProgressBar progress;
  CommandButton cmdStart, cmdCancel, cmdPrint, cmdCsv, cmdClose;

  void again_Change();
  void cmdStart_Click();
  void cmdCancel_Click();
  void cmdPrint_Click();
  void cmdCsv_Click();

 private:
  void ReadStates();
  void FillGrid();
  void ShowCounts();
  // Tells what keeps the run from beginning; false then.
  bool LooksGood();
  bool TakeNumbers();
  // The messages, made before the first one leaves. False when one could not be, which was told.
  bool MakeMessages();
  bool MakeMessage(const PlannedMail& planned);
  void RunInBackground(const std::shared_ptr<MailJournal>& journal);
  void Changed(const JournalMail& entry);
  void Ended(const std::string& reason);
  void SetRunning(bool on);
  int Count(MailState state) const;
  int Left() const;  // how many are to be sent

  std::vector<PlannedMail> mails_;
  std::vector<RunMail> run_;  // belongs to the thread while it runs
  MailRunOptions options_;
  bool running_ = false, making_ = false;
  BackgroundWork background_;
};

}  // namespace tallyroll
