// SPDX-License-Identifier: GPL-3.0-or-later
// frmSendMail: the E-mail Portal. It sends one message to a student's or parent's address: the
// report that the preview shows, or a letter.
#pragma once

#include <memory>
#include <string>

#include "letters/mail/mime_message.h"
#include "letters/mail/smtp_dialogue.h"
#include "platform/background.h"
#include "platform/mail_sender.h"
#include "platform/portal.h"
#include "platform/socket.h"

namespace tallyroll {

struct frmSendMail : Portal {
  frmSendMail();
  ~frmSendMail() override;
  void Declare(ControlTable& table) override;
  void Load() override;
  void QueryUnload() override;

  TextBox txtHost, txtSender, txtRecipient, txtSubject;
  ComboBox Combo1;  // the students, to take an address from
  TextBox txtMessage, attachFile;
  CommandButton FileAdd;
  CheckBox attachpdf;
  ComboBox Connection;  // plain, or over an encrypted connection
  Frame authorityframe;
  TextBox authority;  // a file of certificates that are trusted as well
  CommandButton FileAuthority;
  CheckBox auth;
  Frame loginauth;
  TextBox txtusername, txtpassword;
  CommandButton insert, save, connect, disconnect;
  CommandButton cmdSend, cmdCancel, cmdMany, cmdClose;
  Label status;

  std::string txtmessage1;  // what is sent: the message as it stood when sending began

  void cmdSend_Click();
  void connect_Click();
  void disconnect_Click();
  void insert_Click();
  void save_Click();
  void FileAdd_Click();
  void Combo1_Change();
  void Connection_Change();
  void FileAuthority_Click();
  void cmdCancel_Click();
  void cmdMany_Click();
  void auth_Change();

 private:
  void ReadText();
  void FillCombo1();
  void FocusFirstEmpty();
  // Tells what is missing; false then.
  enum class Recipients { kOne, kSeveral };
  bool Validate(Recipients recipients = Recipients::kOne);
  // A report on one student, or a letter to one, goes to another one's address only when that is
  // meant.
  bool GoesToTheRightOne();
  // Letters to several: nothing here goes to one address.
  void ShowThatItIsForSeveral();
  bool ChangesMayBeLost();
  // False when the teacher thinks better of it.
  bool PasswordMayTravel(const std::string& host);
  MailSecurity Security() const { return static_cast<MailSecurity>(Connection.ListIndex); }
  // The file that is attached, in the file system's bytes.
  std::string AttachedPath() const;
  // False when the file cannot be read, which was told.
  bool ReadAttachment();
  // Each tells what keeps it from being done; false or nothing then.
  bool TakeAccount(MailAccount& account);
  bool IsGood(TextBox& box, std::string_view why);
  bool SenderIsGood();
  bool AddFile(std::vector<MailAttachment>& attachments);
  bool AddPdf(std::vector<MailAttachment>& attachments);
  void SendPlain();
  void SendProtected();
  void TellResult(const MailResult& result);
  void ShowSending(bool on);
  PlainMessage Message() const;
  void DataArrived();
  void SocketFailed(int number, const std::string& description);
  void TellSent();
  std::string SavedMessage() const;

  i16 student_ = 0;  // whose report or letter it is
  std::string text_at_first_;
  SmtpDialogue dialogue_;
  std::unique_ptr<Socket> socket_;
  std::string received_;    // of a reply that is not whole yet
  std::string attachment_;  // encoded
  std::string attach_path_;
  std::string body_file_;
  std::string authority_path_;
  std::string warned_host_;  // to which the password may travel in the open
  BackgroundWork background_;
};

// The path that stands in a box: what was chosen as long as that is shown, otherwise what was
// typed.
std::string PathOfBox(const std::string& chosen, const TextBox& box);

}  // namespace tallyroll
