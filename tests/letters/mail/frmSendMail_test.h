// SPDX-License-Identifier: GPL-3.0-or-later
// The E-mail Portal on a class of three, with a server that the test plays.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "letters/mail/frmSendMail.h"
#include "letters/mail/mail_draft.h"
#include "printing/temp_file.h"
#include "store/settings.h"
#include "tests/printing/report_test.h"
#include "tests/support/scripted_socket.h"

namespace tallyroll {

class FrmSendMailTest : public ReportTest {
 protected:
  FrmSendMailTest() {
    ProgramFolder = folder;
    Enrol("Ng", "Ada", "17").email = " ada@home.org ";
    Enrol("O'Hara", "Bo", "23").email = "bo@home.org";
    Enrol("Quist", "Cy", "42");
    WriteTempFile("Report\r\n.\r\n");
    MakeSocket = [] {
      auto made = std::make_unique<ScriptedSocket>();
      socket = made.get();
      return std::unique_ptr<Socket>(std::move(made));
    };
  }
  ~FrmSendMailTest() override {
    MakeSocket = nullptr;
    if (!driver) return;
    for (const std::string& complaint : driver->Complaints()) ADD_FAILURE() << complaint;
  }

  void Open() {
    portal = std::make_unique<frmSendMail>();
    portal->Load();
    driver.emplace(*portal);
  }
  void OpenFilled() {
    MailServer = "mail.school.org";
    SenderAddress = "teacher@school.org";
    CurrentStudent = 2;
    Open();
    driver->Type("txtSubject", "Marks");
  }
  // Up to the message, which the server then takes.
  void SendAll() {
    for (const char* reply : {"220 a\r\n", "250 b\r\n", "250 c\r\n", "250 d\r\n", "354 e\r\n"})
      socket->Say(reply);
  }

  inline static ScriptedSocket* socket = nullptr;
  std::unique_ptr<frmSendMail> portal;
  std::optional<PortalDriver> driver;
};

}  // namespace tallyroll
