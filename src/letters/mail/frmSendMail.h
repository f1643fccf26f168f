// SPDX-License-Identifier: GPL-3.0-or-later
// frmSendMail: the E-mail Portal. It sends one message to a student's or parent's address: the
// report that the preview shows, or a letter.
#pragma once

#include <memory>
#include <string>

#include "letters/mail/smtp_dialogue.h"
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
  CheckBox auth;
  Frame loginauth;
  TextBox txtusername, txtpassword;
  CommandButton insert, save, connect, disconnect, cmdSend, cmdClose;
  Label status;

  std::string txtmessage1;  // what is sent: the message as it stood when sending began

  void cmdSend_Click();
  void connect_Click();
  void disconnect_Click();
  void insert_Click();
  void save_Click();
  void FileAdd_Click();
  void Combo1_Change();
  void auth_Change();

 private:
  void FillCombo1();
  void FocusFirstEmpty();
  // Tells what is missing; false then.
  bool Validate();
  // False when the teacher thinks better of it.
  bool PasswordMayTravel(const std::string& host);
  // False when the file cannot be read, which was told.
  bool ReadAttachment();
  PlainMessage Message() const;
  void DataArrived();
  void SocketFailed(int number, const std::string& description);
  void TellSent();
  std::string SavedMessage() const;

  SmtpDialogue dialogue_;
  std::unique_ptr<Socket> socket_;
  std::string received_;    // of a reply that is not whole yet
  std::string attachment_;  // encoded
  std::string attach_path_;
  std::string body_file_;
  std::string warned_host_;  // to which the password may travel in the open
};

}  // namespace tallyroll
