// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/frmSendMail.h"

#include <filesystem>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "letters/mail/mail_draft.h"
#include "letters/mail/mail_settings.h"
#include "platform/surroundings.h"
#include "printing/page/print_job.h"
#include "printing/reports/report_codes.h"
#include "printing/temp_file.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/settings.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr int kMailTopic = 470;
constexpr int kFullClassTypes = 18;

// For these no student is the obvious one.
bool IsOnNobody(int code) {
  return IsOneOf(code, {kFullClass, kAveragesOfOne, kFullClassTypes});
}

}  // namespace

frmSendMail::frmSendMail() : Portal("frmSendMail") {
  Caption = "E-mail Portal";
  HelpContext = kMailTopic;
  FileAdd.Caption = "Add Fi&le...";
  attachpdf.Caption = "Attach this report as PDF";
  authorityframe.Caption = "Certificate Authority of the School";
  FileAuthority.Caption = "&Browse...";
  auth.Caption = "Authentication Needed";
  loginauth.Caption = "Login";
  insert.Caption = "Insert Recipient &Font Information";
  save.Caption = "Save &Message";
  connect.Caption = "&Connect Using Dail-Up";
  disconnect.Caption = "&Disconnect Dail-Up Connection";
  cmdSend.Caption = "&Send";
  cmdCancel.Caption = "Cancel Sendin&g";
  cmdMany.Caption = "Send to Sever&al...";
  cmdClose.Caption = "&Exit";
  loginauth.Visible = false;
  disconnect.Enabled = cmdCancel.Enabled = false;
  Connection.List = {"As told (plain)", "TLS", "STARTTLS"};
}

frmSendMail::~frmSendMail() = default;

void frmSendMail::Declare(ControlTable& table) {
  table.Add("txtHost", txtHost);
  table.Add("txtSender", txtSender);
  table.Add("Combo1", Combo1).Change([this] { Combo1_Change(); });
  table.Add("txtRecipient", txtRecipient);
  table.Add("txtSubject", txtSubject);
  table.Add("attachFile", attachFile);
  table.Add("FileAdd", FileAdd).Click([this] { FileAdd_Click(); });
  table.Add("attachpdf", attachpdf);
  table.Add("Connection", Connection).Change([this] { Connection_Change(); });
  table.Add("authorityframe", authorityframe);
  table.Add("authority", authority);
  table.Add("FileAuthority", FileAuthority).Click([this] { FileAuthority_Click(); });
  table.Add("auth", auth).Change([this] { auth_Change(); });
  table.Add("loginauth", loginauth);
  table.Add("txtusername", txtusername);
  table.Add("txtpassword", txtpassword);
  table.Add("txtMessage", txtMessage);
  table.Add("status", status);
  table.Add("insert", insert).Click([this] { insert_Click(); });
  table.Add("save", save).Click([this] { save_Click(); });
  table.Add("connect", connect).Click([this] { connect_Click(); });
  table.Add("disconnect", disconnect).Click([this] { disconnect_Click(); });
  table.Add("cmdSend", cmdSend).Click([this] { cmdSend_Click(); });
  table.Add("cmdCancel", cmdCancel).Click([this] { cmdCancel_Click(); });
  table.Add("cmdMany", cmdMany).Click([this] { cmdMany_Click(); });
  table.Add("cmdClose", cmdClose).Click([this] { QueryUnload(); });
}

void frmSendMail::Load() {
  body_file_ = Draft.body_file.empty() ? TempFilePath() : Draft.body_file;
  txtHost.Text = MailServer;
  txtSender.Text = SenderAddress;
  txtSubject.Text = Draft.subject;
  ReadText();
  text_at_first_ = txtMessage.Text;
  student_ = CurrentStudent;
  Connection.ListIndex = static_cast<int>(StoredMailSecurity());
  Connection.Text = Connection.List[static_cast<std::size_t>(Connection.ListIndex)];
  authority_path_ = StoredMailAuthority();
  authority.Text = PathForDisplay(authority_path_);
  Connection_Change();
  cmdMany.Enabled = !Draft.letter || Draft.text_of;
  FillCombo1();
  if (!Draft.recipient.empty()) txtRecipient.Text = Draft.recipient;
  if (Draft.text_of) ShowThatItIsForSeveral();
  if (MakeSocket) socket_ = MakeSocket();
  if (socket_) {
    socket_->data_arrival = [this] { DataArrived(); };
    socket_->error = [this](int number, const std::string& description) {
      SocketFailed(number, description);
    };
  }
  FocusFirstEmpty();
}

// A letter may hold what the code page does not; it is then written as UTF-8 with its mark.
void frmSendMail::ReadText() {
  constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
  txtMessage.Text = ReadWholeFile(body_file_).bytes;
  if (!txtMessage.Text.starts_with(kUtf8Mark)) return;
  const auto text = CodePageTextFromUtf8(txtMessage.Text.substr(kUtf8Mark.size()));
  if (!text) return;
  txtMessage.Text = text->text;
  if (!text->lacking.empty())
    ShowMessage(
        "The letter has characters that a message here cannot hold. A question mark stands for "
        "each of them.",
        BoxIcon::kExclamation);
}

void frmSendMail::FillCombo1() {
  const i16 student = CurrentStudent;
  const Class& c = Current();
  for (CurrentStudent = 1; CurrentStudent <= c.NumStudents; ++CurrentStudent)
    Combo1.List.push_back(StudentLabel());
  CurrentStudent = student;
  const bool chosen = student >= 1 && student <= c.NumStudents;
  if (!chosen || (!Draft.letter && IsOnNobody(Job.ReportCode))) return;
  Combo1.ListIndex = student - 1;
  Combo1.Text = Combo1.List[static_cast<std::size_t>(student) - 1];
  Combo1_Change();
}

// What went to one of them now would go there once more with the others.
void frmSendMail::ShowThatItIsForSeveral() {
  txtRecipient.Text.clear();
  Combo1.ListIndex = -1;
  Combo1.Text.clear();
  txtRecipient.Enabled = Combo1.Enabled = insert.Enabled = save.Enabled = false;
  cmdSend.Enabled = connect.Enabled = false;
  const int count = static_cast<int>(Draft.students.size());
  status.Caption = "For " + PlainNumberText(count) + (count == 1 ? " student" : " students") +
                   ", each their own letter. This is the one for " +
                   PlainName(Current().Students[static_cast<std::size_t>(student_)]) + ".";
}

void frmSendMail::FocusFirstEmpty() {
  if (txtHost.Text.empty() && txtRecipient.Text.empty()) return;
  for (const TextBox* box : {&txtHost, &txtRecipient, &txtSubject})
    if (box->Text.empty() && box->Enabled) return SetFocus(*box);
}

void frmSendMail::Combo1_Change() {
  if (Combo1.ListIndex < 0) return;
  const auto student = static_cast<std::size_t>(Combo1.ListIndex) + 1;
  txtRecipient.Text = Trim(Current().Students[student].email);
}

// A report as PDF needs a message in parts, which the plain dialogue does not know.
void frmSendMail::Connection_Change() {
  const bool plain = Security() == MailSecurity::kPlain;
  authorityframe.Visible = !plain;
  attachpdf.Enabled = !plain && !Draft.letter;
  if (!attachpdf.Enabled) attachpdf.Value = false;
}

void frmSendMail::auth_Change() {
  loginauth.Visible = auth.Value;
  if (auth.Value) SetFocus(txtusername);
}

// What was typed into the boxes is kept for the next message, the password never.
void frmSendMail::QueryUnload() {
  if (socket_) socket_->Close();
  background_.Stop();
  StoreMailSettings(Security(), PathOfBox(authority_path_, authority));
  MailServer = txtHost.Text;
  SenderAddress = txtSender.Text;
  Platform().WriteSetting(kApplicationKey, "startup", "POP", MailServer);
  Platform().WriteSetting(kApplicationKey, "startup", "EMAIL", SenderAddress);
  std::error_code ignored;
  std::filesystem::remove(body_file_, ignored);
  Draft = MailDraft();
  Unload();
}

}  // namespace tallyroll
