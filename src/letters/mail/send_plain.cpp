// SPDX-License-Identifier: GPL-3.0-or-later
// How the E-mail Portal sends: the dialogue with the server over a socket.
#include <utility>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "letters/mail/frmSendMail.h"
#include "letters/mail/mail_draft.h"
#include "letters/mail/mail_host.h"
#include "letters/mail/student_report.h"
#include "letters/mail/uuencode.h"
#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr int kPlainPort = 25;
constexpr std::size_t kLongestShownReply = 1000;

}  // namespace

bool frmSendMail::Validate(Recipients recipients) {
  const auto refuse = [this](const TextBox& box, std::string_view why) {
    ShowMessage(why);
    SetFocus(box);
    return false;
  };
  if (txtHost.Text.empty())
    return refuse(txtHost, "You must fill in the Outgoing Mail (SMTP) Sever Box. ");
  if (txtSender.Text.empty()) return refuse(txtSender, "You must fill in the From Address Box.");
  if (recipients == Recipients::kOne && txtRecipient.Text.empty())
    return refuse(txtRecipient, "You must fill in the To Address Box.");
  if (auth.Value && txtusername.Text.empty())
    return refuse(txtusername, "You must fill in the User Name Box.");
  if (auth.Value && txtpassword.Text.empty())
    return refuse(txtpassword, "You must fill in the Password Box.");
  return true;
}

bool frmSendMail::GoesToTheRightOne() {
  const Class& c = Current();
  const bool on_one = Draft.letter || IsOnSingleStudents();
  if (!on_one || student_ < 1 || student_ > c.NumStudents) return true;
  const std::string to = LowerCase(Trim(txtRecipient.Text));
  const auto has_it = [&to](const Student& each) { return LowerCase(Trim(each.email)) == to; };
  const Student& shown = c.Students[static_cast<std::size_t>(student_)];
  if (has_it(shown)) return true;
  for (i16 i = 1; i <= c.NumStudents; ++i) {
    const Student& other = c.Students[static_cast<std::size_t>(i)];
    if (!has_it(other)) continue;
    const std::string what = Draft.letter ? "The letter is for " : "The report is on ";
    return Ask(what + PlainName(shown) + ", and the address is that of " + PlainName(other) +
                   ". Send it there all the same?",
               BoxButtons::kYesNo, BoxIcon::kExclamation) == BoxAnswer::kYes;
  }
  return true;
}

bool frmSendMail::PasswordMayTravel(const std::string& host) {
  if (!auth.Value || IsLoopback(host) || host == warned_host_) return true;
  const BoxAnswer answer =
      Ask("The user name and the password go to " + host +
              " as they are: everybody on the way can read them. Send them all the same?",
          BoxButtons::kYesNo, BoxIcon::kExclamation);
  if (answer != BoxAnswer::kYes) return false;
  warned_host_ = host;
  return true;
}

bool frmSendMail::ReadAttachment() {
  attachment_.clear();
  if (attachFile.Text.empty()) return true;
  const UuencodedText file = UuencodeFile(AttachedPath());
  if (file.error != 0) {
    ShowMessage("File Error: " + PlainNumberText(file.error));
    SetFocusAndSelect(attachFile);
    return false;
  }
  attachment_ = file.text + "\r\n";
  return true;
}

void frmSendMail::cmdSend_Click() {
  if (!Validate() || !GoesToTheRightOne()) return;
  if (socket_) socket_->Close();
  background_.Stop();
  ShowSending(false);
  status.Caption.clear();
  txtmessage1 = txtMessage.Text;
  if (Security() == MailSecurity::kPlain)
    SendPlain();
  else
    SendProtected();
}

void frmSendMail::SendPlain() {
  const MailHost host = MailHostOf(txtHost.Text, kPlainPort);
  if (host.port == 0 || host.name.empty()) {
    ShowMessage("The port behind the server's name must be a number from 1 to 65535.");
    return SetFocusAndSelect(txtHost);
  }
  if (!ReadAttachment() || !PasswordMayTravel(host.name)) return;
  if (!socket_) return SocketFailed(kSocketNoNetwork, {});
  received_.clear();
  dialogue_.Reset();
  socket_->Connect(host.name, host.port);
}

PlainMessage frmSendMail::Message() const {
  return {.sender = txtSender.Text,
          .recipient = txtRecipient.Text,
          .subject = txtSubject.Text,
          .text = txtmessage1,
          .attachment = attachment_,
          .date = MailDate(Platform().Now()),
          .auth = auth.Value,
          .username = txtusername.Text,
          .password = txtpassword.Text};
}

// A reply may come in pieces; all that came is one reply once its last line is there.
void frmSendMail::DataArrived() {
  received_ += socket_->GetData();
  if (!IsWholeReply(received_)) return;
  std::string reply = std::exchange(received_, {});
  const SmtpAnswer answer = dialogue_.Answer(reply, Message());
  if (answer.by_state) status.Caption = "Sending e-mail";
  for (const std::string& piece : answer.sends) socket_->SendData(piece);
  if (dialogue_.State() > kSmtpTextSent) attachment_.clear();
  if (answer.close) socket_->Close();
  if (answer.verdict == SmtpVerdict::kSent) return TellSent();
  if (answer.verdict != SmtpVerdict::kRefused) return;
  status.Caption.clear();
  if (reply.size() > kLongestShownReply) reply.replace(kLongestShownReply, reply.npos, "...");
  ShowMessage("SMTP Error: " + reply, BoxIcon::kInformation, "SMTP Error");
}

void frmSendMail::TellSent() {
  status.Caption = "E-mail sent";
  ShowMessage("Message sent successfuly.", BoxIcon::kInformation);
}

void frmSendMail::SocketFailed(int number, const std::string& description) {
  if (socket_) socket_->Close();
  // The server has taken the message; that it went without a farewell changes nothing.
  if (dialogue_.State() > kSmtpTextSent && number == kSocketClosedByServer) return TellSent();
  status.Caption = "E-mail Not Sent";
  if (number == kSocketNoNetwork) {
    ShowMessage(
        "The program was unable to make an Internet connection. Connect to the Internet as you "
        "usually do and then retry sending your e-mail.");
    return;
  }
  if (number == kSocketHostNotFound)
    ShowMessage(
        "The SMTP Server name couldn't be found. You may have entered an incorrect SMTP "
        "designation.");
  else
    ShowMessage("Winsock Error number " + PlainNumberText(number) + "\r\n" + description,
                BoxIcon::kExclamation);
  status.Caption.clear();
}

// There is nothing to dial: the machine is connected, or the sending will say that it is not.
void frmSendMail::connect_Click() {
  if (!Validate()) return;
  txtmessage1 = txtMessage.Text;
  disconnect.Enabled = true;
  connect.Enabled = false;
  SetFocus(cmdSend);
  status.Caption = "Connected to the Internet";
}

void frmSendMail::disconnect_Click() {
  status.Caption = "Not Connected to the Internet";
  disconnect.Enabled = false;
  connect.Enabled = true;
  SetFocus(cmdSend);
}

}  // namespace tallyroll
