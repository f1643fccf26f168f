// SPDX-License-Identifier: GPL-3.0-or-later
// How the E-mail Portal sends over an encrypted connection: a message in parts, in a thread of its
// own.
#include <filesystem>
#include <memory>
#include <utility>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "letters/mail/frmSendMail.h"
#include "letters/mail/mail_address.h"
#include "letters/mail/mail_batch.h"
#include "letters/mail/mail_draft.h"
#include "letters/mail/mail_host.h"
#include "letters/mail/mail_limits.h"
#include "letters/mail/mail_settings.h"
#include "letters/mail/student_report.h"
#include "platform/surroundings.h"
#include "printing/page/report_choice.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

std::string InCodePage(const std::string& utf8) {
  const auto text = CodePageTextFromUtf8(utf8);
  return text ? text->text : std::string();
}

std::string ReportMessage(i16 student) {
  return Utf8FromCodePage(TextOfStudent(student));
}

}  // namespace

bool frmSendMail::TakeAccount(MailAccount& account) {
  const MailHost host = MailHostOf(txtHost.Text, UsualMailPort(Security()));
  if (!IsHostName(host.name) || host.port == 0) {
    ShowMessage(host.port == 0
                    ? "The port behind the server's name must be a number from 1 to 65535."
                    : "The Outgoing Mail (SMTP) Server is no name of a server.");
    SetFocusAndSelect(txtHost);
    return false;
  }
  account.host = host.name;
  account.port = host.port;
  account.security = Security();
  account.authority = PathOfBox(authority_path_, authority);
  if (!auth.Value) return true;
  if (Security() == MailSecurity::kPlain && !PasswordMayTravel(host.name)) return false;
  account.user = Utf8FromCodePage(Trim(txtusername.Text));
  account.password = Utf8FromCodePage(txtpassword.Text);
  return true;
}

bool frmSendMail::IsGood(TextBox& box, std::string_view why) {
  if (IsMailAddress(Trim(box.Text))) return true;
  ShowMessage(why);
  SetFocusAndSelect(box);
  return false;
}

bool frmSendMail::SenderIsGood() {
  return IsGood(txtSender, "The From Address is no e-mail address.");
}

bool frmSendMail::AddFile(std::vector<MailAttachment>& attachments) {
  if (!attachFile.Text.empty()) {
    const std::string path = AttachedPath();
    FileContents file = ReadWholeFile(path, kLargestAttachment);
    if (file.error != 0) {
      ShowMessage("File Error: " + PlainNumberText(file.error));
      SetFocusAndSelect(attachFile);
      return false;
    }
    attachments.push_back({std::filesystem::path(path).filename().string(), std::move(file.bytes)});
  }
  return true;
}

bool frmSendMail::AddPdf(std::vector<MailAttachment>& attachments) {
  if (!attachpdf.Value) return true;
  std::string pdf = PdfOfStudent(student_);
  if (pdf.empty()) {
    ShowMessage("The report can't be made as PDF. Nothing was sent.");
    return false;
  }
  const bool single = IsOnSingleStudents();
  attachments.push_back({single ? ReportFileName(student_) : "Report.pdf", std::move(pdf)});
  return true;
}

void frmSendMail::SendProtected() {
  MailAccount account;
  MimeMail mail;
  if (!TakeAccount(account) || !SenderIsGood() ||
      !IsGood(txtRecipient, "The To Address is no e-mail address.") || !AddFile(mail.attachments) ||
      !AddPdf(mail.attachments))
    return;
  if (!MakeMailSender) {
    ShowMessage("This version of the program was built without encrypted mail.");
    return;
  }
  mail.from = Trim(txtSender.Text);
  mail.to = Trim(txtRecipient.Text);
  mail.subject = Utf8FromCodePage(txtSubject.Text);
  mail.text = Utf8FromCodePage(txtmessage1);
  mail.date = ZonedMailDate(Platform().Now(), OffsetFromUtc());
  mail.id = NewMessageId(mail.from);
  status.Caption = "Sending e-mail";
  ShowSending(true);
  background_.Start([this, account = std::move(account), mail = std::move(mail)] {
    MailHooks hooks;
    hooks.goes_on = [this] { return background_.GoesOn(); };
    const auto sender = MakeMailSender(account);
    const MailResult result = sender->Send({mail.from, mail.to, MimeMessage(mail)}, hooks);
    background_.Tell([this, result] { TellResult(result); });
  });
}

void frmSendMail::TellResult(const MailResult& result) {
  ShowSending(false);
  if (result.outcome == MailOutcome::kSent) return TellSent();
  status.Caption = "E-mail Not Sent";
  std::string text = InCodePage(result.reason);
  if (result.outcome == MailOutcome::kUncertain) {
    status.Caption = "E-mail may have been sent";
    text =
        "The message went to the server, and no answer came: it may have arrived. Ask before "
        "you send it again.\r\n" +
        text;
  }
  ShowMessage(text, BoxIcon::kExclamation, "SMTP Error");
}

void frmSendMail::ShowSending(bool on) {
  cmdCancel.Enabled = on;
}

void frmSendMail::cmdCancel_Click() {
  background_.Cancel();
  status.Caption = "Cancelling";
}

// What was typed into the text stands in no report and in no letter.
bool frmSendMail::ChangesMayBeLost() {
  if (txtMessage.Text == text_at_first_) return true;
  const std::string what = Draft.letter ? "letter" : "report";
  return Ask("Each student gets their own " + what +
                 ", and what you have changed in this text goes to nobody. Go on?",
             BoxButtons::kYesNo, BoxIcon::kQuestion) == BoxAnswer::kYes;
}

// The report on each, or the letter to each; what shows the whole class goes to nobody.
void frmSendMail::cmdMany_Click() {
  const bool letters = Draft.letter && Draft.text_of;
  if (!letters && (Draft.letter || !IsOnSingleStudents())) {
    ShowMessage(
        "Only a report on single students can go to several: this one would show everybody's "
        "record to everybody.");
    return;
  }
  if (!MakeMailSender) {
    ShowMessage("This version of the program was built without encrypted mail.");
    return;
  }
  if (!Validate(Recipients::kSeveral) || !SenderIsGood()) return;
  if (letters && Trim(txtSubject.Text).empty()) {
    ShowMessage("Letters to several need a subject: it tells this run from another.");
    return SetFocus(txtSubject);
  }
  if (!ChangesMayBeLost()) return;
  Batch = MailBatch();
  if (!TakeAccount(Batch.account) || !AddFile(Batch.attachments)) return;
  Batch.sender = Trim(txtSender.Text);
  Batch.subject = txtSubject.Text;
  Batch.students = letters ? Draft.students : Choice.students;
  Batch.text_of = letters ? Draft.text_of : ReportMessage;
  Batch.pdf = attachpdf.Value;
  ShowPortal("frmSendMany");
  Batch = MailBatch();
}

}  // namespace tallyroll
