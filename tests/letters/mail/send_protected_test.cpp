// SPDX-License-Identifier: GPL-3.0-or-later
// The E-mail Portal over an encrypted connection.
#include <fstream>

#include "store/safe_file.h"
#include "tests/letters/mail/frmSendMail_test.h"
#include "tests/letters/mail/played_server.h"

namespace tallyroll {
namespace {

constexpr int kPlain = 0, kTls = 1, kStartTls = 2;

class SendProtectedTest : public FrmSendMailTest {
 protected:
  SendProtectedTest() {
    PlayedServers::server = &server;
    MakeMailSender = PlayedServers::Make;
  }
  ~SendProtectedTest() override { MakeMailSender = nullptr; }
  void OpenOver(int connection) {
    OpenFilled();
    driver->Choose("Connection", connection);
  }
  const MailAccount& Account() const { return PlayedServers::account; }

  PlayedServer server;
};

TEST_F(SendProtectedTest, WhoBeginsBeginsWithStartTls) {
  Open();
  EXPECT_EQ(portal->Connection.List, (Rows{"As told (plain)", "TLS", "STARTTLS"}));
  EXPECT_EQ(portal->Connection.ListIndex, kStartTls);
}

TEST_F(SendProtectedTest, WhoHadAServerKeepsThePlainDialogue) {
  OpenFilled();
  EXPECT_EQ(portal->Connection.ListIndex, kPlain);
}

TEST_F(SendProtectedTest, TheChoiceIsKept) {
  OpenOver(kTls);
  driver->Type("authority", "/etc/school.pem");
  driver->Press("cmdClose");
  WriteTempFile("Report");
  OpenFilled();
  EXPECT_EQ(portal->Connection.ListIndex, kTls);
  EXPECT_EQ(portal->authority.Text, "/etc/school.pem");
}

TEST_F(SendProtectedTest, AMessageGoesWithItsLogin) {
  OpenOver(kStartTls);
  driver->Tick("auth");
  driver->Type("txtusername", " ad\xE8le ");
  driver->Type("txtpassword", "s3cret ");
  screen.ExpectBox("Message sent successfuly.");
  driver->Press("cmdSend");
  EXPECT_EQ(Account().host, "mail.school.org");
  EXPECT_EQ(Account().port, 587);
  EXPECT_EQ(Account().security, MailSecurity::kStartTls);
  EXPECT_EQ(Account().user, "ad\xC3\xA8le");
  EXPECT_EQ(Account().password, "s3cret ");
  ASSERT_EQ(server.arrived.size(), 1u);
  EXPECT_EQ(server.arrived[0].from, "teacher@school.org");
  EXPECT_EQ(server.arrived[0].to, "bo@home.org");
  EXPECT_NE(server.arrived[0].bytes.find("\r\nReport\r\n.\r\n"), std::string::npos);
  EXPECT_EQ(portal->status.Caption, "E-mail sent");
  EXPECT_FALSE(driver->Enabled("cmdCancel"));
  EXPECT_EQ(socket->connections, 0);
}

TEST_F(SendProtectedTest, TlsHasAPortOfItsOwn) {
  OpenOver(kTls);
  screen.ExpectBox("Message sent successfuly.");
  driver->Press("cmdSend");
  EXPECT_EQ(Account().port, 465);
  driver->Type("txtHost", "localhost:2465");
  screen.ExpectBox("Message sent successfuly.");
  driver->Press("cmdSend");
  EXPECT_EQ(Account().port, 2465);
}

TEST_F(SendProtectedTest, AnAddressThatIsNoneIsRefusedBeforeConnecting) {
  OpenOver(kTls);
  Current().Students[1].email = "ada@home.org\r\nBcc: x@y.org";
  driver->Choose("Combo1", 0);
  screen.ExpectBox("The To Address is no e-mail address.");
  driver->Press("cmdSend");
  EXPECT_EQ(driver->Focused(), "txtRecipient");
  driver->Type("txtSender", "teacher");
  screen.ExpectBox("The From Address is no e-mail address.");
  driver->Press("cmdSend");
  driver->Type("txtHost", "no server");
  screen.ExpectBox("The Outgoing Mail (SMTP) Server is no name of a server.");
  driver->Press("cmdSend");
  EXPECT_TRUE(server.tried.empty());
}

TEST_F(SendProtectedTest, AFileIsAPartOfTheMessage) {
  std::ofstream(Path("a.bin")) << "AAA";
  OpenOver(kTls);
  driver->Type("attachFile", Path("a.bin"));
  screen.ExpectBox("Message sent successfuly.");
  driver->Press("cmdSend");
  EXPECT_NE(server.arrived[0].bytes.find("filename=\"a.bin\"\r\n\r\nQUFB\r\n"), std::string::npos);
  driver->Type("attachFile", Path("none"));
  screen.ExpectBox("File Error: 53");
  driver->Press("cmdSend");
  EXPECT_EQ(server.arrived.size(), 1u);
}

TEST_F(SendProtectedTest, AReportAsPdfNeedsAMessageInParts) {
  OpenOver(kPlain);
  EXPECT_FALSE(driver->Enabled("attachpdf"));
  driver->Choose("Connection", kStartTls);
  EXPECT_TRUE(driver->Enabled("attachpdf"));
  driver->Tick("attachpdf");
  driver->Choose("Connection", kPlain);
  EXPECT_FALSE(portal->attachpdf.Value);
}

TEST_F(SendProtectedTest, WhatTheServerSaysIsTold) {
  OpenOver(kTls);
  server.conducts["bo@home.org"] = {MailOutcome::kRefused, "550 no such user", false};
  screen.ExpectBox("550 no such user");
  driver->Press("cmdSend");
  EXPECT_EQ(screen.boxes.back().title, "SMTP Error");
  EXPECT_EQ(portal->status.Caption, "E-mail Not Sent");
  server.conducts["bo@home.org"] = {MailOutcome::kUncertain, "connection lost", true};
  screen.ExpectBox(
      "The message went to the server, and no answer came: it may have arrived. Ask before you "
      "send it again.\r\nconnection lost");
  driver->Press("cmdSend");
}

TEST_F(SendProtectedTest, ThePasswordIsKeptNowhere) {
  OpenOver(kTls);
  driver->Tick("auth");
  driver->Type("txtusername", "ada");
  driver->Type("txtpassword", "unheard-of");
  screen.ExpectBox("Message sent successfuly.");
  driver->Press("cmdSend");
  driver->Press("cmdClose");
  SaveProgramSettings();
  for (const auto& [key, value] : screen.settings)
    EXPECT_EQ(value.find("unheard-of"), std::string::npos) << key;
  for (const auto& file : std::filesystem::recursive_directory_iterator(folder))
    EXPECT_EQ(ReadWholeFile(file.path().string()).bytes.find("unheard-of"), std::string::npos);
}

TEST_F(SendProtectedTest, AReportOnTheWholeClassGoesToNobodyElse) {
  OpenOver(kTls);
  Job.ReportCode = 19;
  screen.ExpectBox(
      "Only a report on single students can go to several: this one would show everybody's "
      "record to everybody.");
  driver->Press("cmdMany");
}

TEST_F(SendProtectedTest, SeveralNeedNoAddressHere) {
  OpenOver(kTls);
  Job.ReportCode = 13;
  Choice.students = {1, 2};
  driver->Type("txtRecipient", "");
  screen.ExpectPortal("frmSendMany", [](PortalDriver& many) { many.Press("cmdClose"); });
  driver->Press("cmdMany");
}

}  // namespace
}  // namespace tallyroll
