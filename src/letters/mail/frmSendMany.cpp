// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/frmSendMany.h"

#include <algorithm>
#include <utility>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "letters/mail/mail_batch.h"
#include "letters/mail/student_report.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kManyTopic = 475;
constexpr int kStateColumn = 4;
constexpr int kLongestPause = 3600, kMostADay = 100'000;
constexpr std::string_view kManyHeads[] = {"Student", "Address", "Subject", "Attachment", "State"};
constexpr int kManyWidths[] = {2400, 3000, 1800, 2400, 3000};

std::string Number(std::size_t count) {
  return PlainNumberText(static_cast<std::int64_t>(count));
}

// A whole number within bounds; nothing stands for 0.
bool TakeNumber(const TextBox& box, int most, int& number) {
  const std::string_view text = Trim(box.Text);
  if (text.find_first_not_of("0123456789") != text.npos) return false;
  const double value = LeadingNumber(text);
  number = value <= most ? static_cast<int>(value) : 0;
  return value <= most;
}

}  // namespace

frmSendMany::frmSendMany() : Portal("frmSendMany") {
  Caption = "Send to Several";
  HelpContext = kManyTopic;
  shared.Caption = "An &address may stand for several students";
  again.Caption = "&Begin anew, whoever got it already";
  cmdStart.Caption = "&Send";
  cmdCancel.Caption = "&Cancel Sending";
  cmdPrint.Caption = "&Print List";
  cmdCsv.Caption = "Save &List...";
  cmdClose.Caption = "E&xit";
  Grid1.Notes.Of = [this](int row, int col) {
    const bool stays = Grid1.Style(row, col) == CellStyle::kFailing;
    return stays ? CellNote{CellMark::kNone, "to be looked at"} : CellNote();
  };
}

void frmSendMany::Declare(ControlTable& table) {
  table.Add("Grid1", Grid1);
  table.Add("shared", shared).Change([this] { FillGrid(); });
  table.Add("again", again).Change([this] { again_Change(); });
  table.Add("pause", pause);
  table.Add("a_day", a_day);
  table.Add("status", status);
  table.Add("progress", progress);
  table.Add("cmdPrint", cmdPrint).Click([this] { cmdPrint_Click(); });
  table.Add("cmdCsv", cmdCsv).Click([this] { cmdCsv_Click(); });
  table.Add("cmdStart", cmdStart).Click([this] { cmdStart_Click(); });
  table.Add("cmdCancel", cmdCancel).Click([this] { cmdCancel_Click(); });
  table.Add("cmdClose", cmdClose).Click([this] { QueryUnload(); });
}

void frmSendMany::Load() {
  Grid1.SetSize(1, static_cast<int>(std::size(kManyHeads)));
  for (int col = 0; col < Grid1.Cols(); ++col) {
    Grid1.SetTextMatrix(0, col, kManyHeads[col]);
    Grid1.SetColWidth(col, kManyWidths[col]);
  }
  SetRunning(false);
  again_Change();
  SetFocus(cmdStart);
}

void frmSendMany::again_Change() {
  ReadStates();
  FillGrid();
  ShowCounts();
}

// What the last run with this subject has done.
void frmSendMany::ReadStates() {
  mails_ = PlanMails(Batch.students, Batch.subject);
  for (PlannedMail& mail : mails_)
    if (Batch.pdf) mail.entry.attachment = PathForDisplay(ReportFileName(mail.student));
  if (again.Value) return;
  MailJournal journal = MailJournal::ToRead(Current().FileName);
  const std::vector<JournalMail> before = journal.LastRun(Batch.subject);
  for (PlannedMail& mail : mails_) {
    const auto found = std::ranges::find_if(before, [&mail](const JournalMail& each) {
      return each.student == mail.entry.student && each.name == mail.entry.name;
    });
    if (found == before.end()) continue;
    mail.entry.state = found->state;
    mail.entry.reason = found->reason;
    mail.entry.changed = found->changed;
  }
}

void frmSendMany::FillGrid() {
  Grid1.SetSize(static_cast<int>(mails_.size()) + 1, Grid1.Cols());
  for (std::size_t i = 0; i < mails_.size(); ++i) {
    const PlannedMail& mail = mails_[i];
    const int row = static_cast<int>(i) + 1;
    const bool open =
        mail.entry.state == MailState::kWaiting || mail.entry.state == MailState::kRefused;
    const bool sends = IsToBeSent(mail, shared.Value);
    const std::string texts[] = {
        mail.entry.name, mail.entry.address, mail.entry.subject, mail.entry.attachment,
        open && !sends ? MailProblemText(mail.problem) : MailStateText(mail.entry)};
    for (int col = 0; col < Grid1.Cols(); ++col) Grid1.SetTextMatrix(row, col, texts[col]);
    const bool failing = mail.entry.state == MailState::kTrying || (open && !sends) ||
                         mail.entry.state == MailState::kRefused;
    Grid1.SetStyle(row, kStateColumn, failing ? CellStyle::kFailing : CellStyle::kPlain);
  }
}

int frmSendMany::Count(MailState state) const {
  return static_cast<int>(std::ranges::count_if(
      mails_, [state](const PlannedMail& mail) { return mail.entry.state == state; }));
}

int frmSendMany::Left() const {
  return static_cast<int>(std::ranges::count_if(
      mails_, [this](const PlannedMail& mail) { return IsToBeSent(mail, shared.Value); }));
}

void frmSendMany::ShowCounts() {
  const int uncertain = Count(MailState::kTrying);
  status.Caption = PlainNumberText(Left()) + " to be sent, " +
                   PlainNumberText(Count(MailState::kSent)) + " sent";
  if (uncertain > 0) status.Caption += ", " + PlainNumberText(uncertain) + " uncertain";
}

bool frmSendMany::TakeNumbers() {
  if (!TakeNumber(pause, kLongestPause, options_.pause)) {
    ShowMessage("The pause must be a number of seconds from 0 to 3600.");
    SetFocusAndSelect(pause);
    return false;
  }
  if (!TakeNumber(a_day, kMostADay, options_.a_day)) {
    ShowMessage("The limit must be a number of messages, or nothing.");
    SetFocusAndSelect(a_day);
    return false;
  }
  return true;
}

bool frmSendMany::LooksGood() {
  if (!TakeNumbers()) return false;
  for (const PlannedMail& mail : mails_) {
    if (mail.problem != MailProblem::kShared || shared.Value || !IsToBeSent(mail, true)) continue;
    ShowMessage("The address " + mail.entry.address +
                " stands for several students. Mend it in the class, or tick that this is right.");
    SetFocus(shared);
    return false;
  }
  if (Left() == 0) {
    ShowMessage("There is nothing to be sent.");
    return false;
  }
  const auto without =
      static_cast<std::size_t>(std::ranges::count_if(mails_, [](const PlannedMail& mail) {
        return mail.problem == MailProblem::kNoAddress ||
               mail.problem == MailProblem::kNotAnAddress;
      }));
  const std::string others =
      without == 0 ? "" : " " + Number(without) + " get none: they have no address.";
  return Ask("Send " + PlainNumberText(Left()) + " messages, one to each address?" + others,
             BoxButtons::kYesNo, BoxIcon::kQuestion) == BoxAnswer::kYes;
}

bool frmSendMany::MakeMessage(const PlannedMail& planned) {
  RunMail& mail = run_.emplace_back();
  mail.entry = planned.entry;
  mail.mime.from = Batch.sender;
  mail.mime.to = planned.entry.address;
  mail.mime.subject = Utf8FromCodePage(Batch.subject);
  mail.mime.text = Batch.text_of(planned.student);
  mail.mime.attachments = Batch.attachments;
  if (mail.mime.text.empty()) return false;
  if (!Batch.pdf) return true;
  std::string pdf = PdfOfStudent(planned.student);
  if (pdf.empty()) return false;
  mail.mime.attachments.push_back({ReportFileName(planned.student), std::move(pdf)});
  return true;
}

bool frmSendMany::MakeMessages() {
  run_.clear();
  progress.Value = 0;
  progress.Maximum = Left();
  for (const PlannedMail& mail : mails_) {
    if (!IsToBeSent(mail, shared.Value)) continue;
    if (!MakeMessage(mail)) {
      ShowMessage("There is no message for " + mail.entry.name + ". Nothing was sent.");
      return false;
    }
    status.Caption = "Preparing message " + Number(run_.size());
    Platform().PumpEvents();
  }
  return true;
}

void frmSendMany::cmdStart_Click() {
  if (running_ || making_ || !LooksGood()) return;
  auto journal = std::make_shared<MailJournal>(MailJournal::ToWrite(Current().FileName));
  const std::string fault = TakeUpRun(*journal, mails_, again.Value);
  if (!fault.empty()) {
    ShowMessage("Nothing was sent, since it can't be noted what went to whom: " + fault + ".",
                BoxIcon::kExclamation);
    return;
  }
  making_ = true;
  const bool made = MakeMessages();
  making_ = false;
  if (!made) return ShowCounts();
  // What is left of this run goes on later; it is not begun anew once more.
  again.Value = false;
  RunInBackground(journal);
}

void frmSendMany::RunInBackground(const std::shared_ptr<MailJournal>& journal) {
  SetRunning(true);
  progress.Value = 0;
  progress.Maximum = static_cast<int>(run_.size());
  background_.Start([this, journal, account = Batch.account] {
    MailRunEvents events;
    events.goes_on = [this] { return background_.GoesOn(); };
    events.changed = [this](const JournalMail& entry) {
      background_.Tell([this, entry] { Changed(entry); });
    };
    const auto sender = MakeMailSender(account);
    const std::string reason = RunMails(*sender, *journal, run_, options_, events);
    background_.Tell([this, reason] { Ended(reason); });
  });
}

void frmSendMany::Changed(const JournalMail& entry) {
  for (PlannedMail& mail : mails_)
    if (mail.entry.place == entry.place) mail.entry = entry;
  progress.Value = std::min(progress.Value + 1, progress.Maximum);
  FillGrid();
  ShowCounts();
}

void frmSendMany::Ended(const std::string& reason) {
  SetRunning(false);
  run_.clear();
  FillGrid();
  ShowCounts();
  if (reason.empty())
    ShowMessage(status.Caption + ".", BoxIcon::kInformation);
  else
    ShowMessage("The run has stopped: " + reason + "\r\n" + status.Caption + ".",
                BoxIcon::kExclamation);
}

void frmSendMany::SetRunning(bool on) {
  running_ = on;
  cmdStart.Enabled = shared.Enabled = again.Enabled = pause.Enabled = a_day.Enabled = !on;
  cmdCancel.Enabled = progress.Visible = on;
}

void frmSendMany::cmdCancel_Click() {
  background_.Cancel();
  status.Caption = "Cancelling";
}

// A run that goes on is cut short and can be taken up later.
void frmSendMany::QueryUnload() {
  if (making_) return;
  background_.Stop();
  Unload();
}

}  // namespace tallyroll
