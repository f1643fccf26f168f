// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/letters/mail/frmSendMail_test.h"

#include <fstream>

#include "store/safe_file.h"

namespace tallyroll {
namespace {

TEST_F(FrmSendMailTest, OpensOnTheReportAndTheStudentInWork) {
  OpenFilled();
  EXPECT_EQ(portal->Caption, "E-mail Portal");
  EXPECT_EQ(portal->txtMessage.Text, "Report\r\n.\r\n");
  EXPECT_EQ(portal->Combo1.List, (Rows{"17 Ng, Ada", "23 O'Hara, Bo", "42 Quist, Cy"}));
  EXPECT_EQ(portal->Combo1.ListIndex, 1);
  EXPECT_EQ(portal->txtHost.Text, "mail.school.org");
  EXPECT_EQ(portal->txtSender.Text, "teacher@school.org");
  EXPECT_EQ(portal->txtRecipient.Text, "bo@home.org");
  EXPECT_EQ(CurrentStudent, 2);
}

TEST_F(FrmSendMailTest, NamesStandAsTheyAreShown) {
  NameMode = 57;
  Open();
  EXPECT_EQ(portal->Combo1.List, (Rows{"Ng, Ada", "O'Hara, Bo", "Quist, Cy"}));
  NameMode = 73;
  Open();
  EXPECT_EQ(portal->Combo1.List, (Rows{"17", "23", "42"}));
}

TEST_F(FrmSendMailTest, SomeReportsAreOnNobody) {
  for (const i16 code : {i16{11}, i16{12}, i16{18}}) {
    Job.ReportCode = code;
    CurrentStudent = 2;
    Open();
    EXPECT_EQ(portal->Combo1.ListIndex, -1) << code;
    EXPECT_EQ(portal->txtRecipient.Text, "") << code;
  }
}

TEST_F(FrmSendMailTest, ALetterBringsItsTextAndItsAddress) {
  Job.ReportCode = 11;
  std::ofstream(Path("letter")) << "Dear parents";
  Draft = {.body_file = Path("letter"), .recipient = "x@y.org", .subject = "Trip", .letter = true};
  Open();
  EXPECT_EQ(portal->txtMessage.Text, "Dear parents");
  EXPECT_EQ(portal->txtRecipient.Text, "x@y.org");
  EXPECT_EQ(portal->txtSubject.Text, "Trip");
  driver->Press("cmdClose");
  EXPECT_FALSE(PathExists(Path("letter")));
  EXPECT_TRUE(PathExists(TempFilePath()));
  EXPECT_EQ(Draft.body_file, "");
}

TEST_F(FrmSendMailTest, TheFocusGoesToTheNextEmptyBox) {
  MailServer = "mail";
  CurrentStudent = 0;
  Open();
  EXPECT_EQ(driver->Focused(), "txtRecipient");
  CurrentStudent = 2;
  Open();
  EXPECT_EQ(driver->Focused(), "txtSubject");
  MailServer.clear();
  Open();
  EXPECT_EQ(driver->Focused(), "txtHost");
  CurrentStudent = 0;
  Open();
  EXPECT_EQ(driver->Focused(), "");
}

TEST_F(FrmSendMailTest, ANameBringsItsAddress) {
  Open();
  driver->Choose("Combo1", 0);
  EXPECT_EQ(portal->txtRecipient.Text, "ada@home.org");
  driver->Choose("Combo1", 2);
  EXPECT_EQ(portal->txtRecipient.Text, "");
}

TEST_F(FrmSendMailTest, WhatIsMissingIsToldInItsOrder) {
  Open();
  driver->Choose("Connection", 0);
  driver->Tick("auth");
  const auto refused = [this](const char* text, const char* box) {
    for (const char* button : {"cmdSend", "connect"}) {
      screen.ExpectBox(text);
      driver->Press(button);
      EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
      EXPECT_EQ(driver->Focused(), box);
    }
    EXPECT_EQ(socket->connections, 0);
  };
  refused("You must fill in the Outgoing Mail (SMTP) Sever Box. ", "txtHost");
  driver->Type("txtHost", "localhost");
  refused("You must fill in the From Address Box.", "txtSender");
  driver->Type("txtSender", "a@b");
  refused("You must fill in the To Address Box.", "txtRecipient");
  driver->Type("txtRecipient", "c@d");
  refused("You must fill in the User Name Box.", "txtusername");
  driver->Type("txtusername", "ada");
  refused("You must fill in the Password Box.", "txtpassword");
  driver->Type("txtpassword", "secret");
  driver->Press("cmdSend");
  EXPECT_EQ(socket->connections, 1);
}

TEST_F(FrmSendMailTest, TheLoginShowsWithItsTick) {
  Open();
  EXPECT_FALSE(driver->Visible("loginauth"));
  driver->Tick("auth");
  EXPECT_TRUE(driver->Visible("loginauth"));
  driver->Tick("auth", false);
  EXPECT_FALSE(driver->Visible("loginauth"));
}

TEST_F(FrmSendMailTest, AMessageGoesOut) {
  OpenFilled();
  driver->Press("cmdSend");
  EXPECT_EQ(socket->host, "mail.school.org");
  EXPECT_EQ(socket->port, 25);
  EXPECT_EQ(portal->status.Caption, "");
  SendAll();
  EXPECT_EQ(portal->status.Caption, "Sending e-mail");
  EXPECT_EQ(socket->Sent(),
            "HELO teacher\r\nMAIL FROM:teacher@school.org\r\nRCPT TO:bo@home.org\r\nDATA\r\n"
            "From: <teacher@school.org>\r\nTo: <bo@home.org>\r\nSubject:Marks\r\n"
            "Date:Tue, 01 Sep 2026 00:00:00\r\n\r\nReport\r\n.\r\n\r\n\r\n\r\n.\r\n");
  socket->Say("250 taken\r\n");
  EXPECT_EQ(socket->Sent(), "QUIT\r\n");
  screen.ExpectBox("Message sent successfuly.");
  socket->Say("221 bye\r\n");
  EXPECT_EQ(screen.boxes.back().icon, BoxIcon::kInformation);
  EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
  EXPECT_EQ(portal->status.Caption, "E-mail sent");
  EXPECT_FALSE(socket->open);
}

TEST_F(FrmSendMailTest, APortStandsBehindAColon) {
  OpenFilled();
  driver->Type("txtHost", " localhost:2525 ");
  driver->Press("cmdSend");
  EXPECT_EQ(socket->host, "localhost");
  EXPECT_EQ(socket->port, 2525);
  for (const char* host : {"localhost:", "localhost:x", "localhost:0", "localhost:65536", ":25"}) {
    driver->Type("txtHost", host);
    screen.ExpectBox("The port behind the server's name must be a number from 1 to 65535.");
    driver->Press("cmdSend");
  }
  EXPECT_EQ(socket->connections, 1);
}

TEST_F(FrmSendMailTest, AReplyMayComeInPieces) {
  OpenFilled();
  driver->Press("cmdSend");
  socket->Say("22");
  socket->Say("0 hi");
  EXPECT_EQ(socket->Sent(), "");
  socket->Say("\r\n");
  EXPECT_EQ(socket->Sent(), "HELO teacher\r\n");
  socket->Say("250-a\r\n");
  EXPECT_EQ(socket->Sent(), "");
  socket->Say("250 b\r\n");
  EXPECT_EQ(socket->Sent(), "MAIL FROM:teacher@school.org\r\n");
}

TEST_F(FrmSendMailTest, SendingAnewClosesTheDialogue) {
  OpenFilled();
  driver->Press("cmdSend");
  socket->Say("220 a\r\n");
  socket->Say("250-half of a re");
  driver->Type("txtMessage", "Other");
  driver->Press("cmdSend");
  EXPECT_EQ(socket->connections, 2);
  SendAll();
  EXPECT_TRUE(socket->Sent().ends_with("\r\n\r\nOther\r\n\r\n\r\n.\r\n"));
}

// The text that is sent is that of the moment of sending.
TEST_F(FrmSendMailTest, WhatIsTypedMeanwhileIsLeft) {
  OpenFilled();
  driver->Press("cmdSend");
  driver->Type("txtMessage", "Too late");
  SendAll();
  EXPECT_EQ(socket->Sent().find("Too late"), std::string::npos);
}

TEST_F(FrmSendMailTest, WhatTheServerRefusesIsToldInItsWords) {
  OpenFilled();
  driver->Press("cmdSend");
  socket->Say("220 a\r\n");
  screen.ExpectBox("SMTP Error: 550-no\r\n550 such user\r\n");
  socket->Say("550-no\r\n550 such user\r\n");
  EXPECT_EQ(screen.boxes.back().title, "SMTP Error");
  EXPECT_EQ(screen.boxes.back().icon, BoxIcon::kInformation);
  EXPECT_EQ(portal->status.Caption, "");
  EXPECT_FALSE(socket->open);
}

TEST_F(FrmSendMailTest, ALineWithoutAnEndIsShownByItsBeginning) {
  OpenFilled();
  driver->Press("cmdSend");
  screen.ExpectBox("SMTP Error: " + std::string(1000, 'x') + "...");
  for (int i = 0; i < 256; ++i) socket->Say(std::string(4096, 'x'));
  EXPECT_FALSE(socket->open);
}

TEST_F(FrmSendMailTest, ErrorsOfTheSocketAreToldByNumber) {
  OpenFilled();
  const auto fail = [this](int number, const char* text, const char* status, BoxIcon icon) {
    driver->Press("cmdSend");
    screen.ExpectBox(text);
    socket->Fail(number, "It broke");
    EXPECT_EQ(portal->status.Caption, status);
    EXPECT_EQ(screen.boxes.back().icon, icon);
    EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
    EXPECT_FALSE(socket->open);
  };
  fail(11001,
       "The SMTP Server name couldn't be found. You may have entered an incorrect SMTP "
       "designation.",
       "", BoxIcon::kNone);
  fail(11004,
       "The program was unable to make an Internet connection. Connect to the Internet as you "
       "usually do and then retry sending your e-mail.",
       "E-mail Not Sent", BoxIcon::kNone);
  fail(10061, "Winsock Error number 10061\r\nIt broke", "", BoxIcon::kExclamation);
  fail(10054, "Winsock Error number 10054\r\nIt broke", "", BoxIcon::kExclamation);
}

TEST_F(FrmSendMailTest, AServerThatLeavesWithoutAFarewellHasTakenTheMessage) {
  OpenFilled();
  driver->Press("cmdSend");
  SendAll();
  socket->Say("250 taken\r\n");
  screen.ExpectBox("Message sent successfuly.");
  socket->Fail(kSocketClosedByServer, "closed");
  EXPECT_EQ(portal->status.Caption, "E-mail sent");
}

TEST_F(FrmSendMailTest, AFileGoesWithTheMessageOnce) {
  std::ofstream(Path("a.bin")) << "AAA";
  OpenFilled();
  screen.ExpectFileDialog(Path("a.bin"));
  driver->Press("FileAdd");
  EXPECT_EQ(portal->attachFile.Text, Path("a.bin"));
  driver->Press("cmdSend");
  SendAll();
  EXPECT_TRUE(
      socket->Sent().ends_with("Report\r\n.\r\n\r\n\r\nbegin 664 a.bin\r\n#04%!\r\n`\r\n"
                               "end\r\n\r\n\r\n.\r\n"));
  driver->Type("attachFile", "");
  driver->Press("cmdSend");
  SendAll();
  EXPECT_EQ(socket->Sent().find("begin"), std::string::npos);
}

TEST_F(FrmSendMailTest, AFileThatIsGoneIsToldBeforeAnythingGoes) {
  OpenFilled();
  driver->Type("attachFile", Path("none.bin"));
  screen.ExpectBox("File Error: 53");
  driver->Press("cmdSend");
  EXPECT_EQ(socket->connections, 0);
  EXPECT_EQ(driver->Focused(), "attachFile");
}

TEST_F(FrmSendMailTest, APasswordIsAskedForOnceBeforeItTravelsOpenly) {
  OpenFilled();
  driver->Tick("auth");
  driver->Type("txtusername", "ada");
  driver->Type("txtpassword", "secret");
  const std::string question =
      "The user name and the password go to mail.school.org as they are: everybody on the way can "
      "read them. Send them all the same?";
  screen.ExpectBox(question, BoxAnswer::kNo);
  driver->Press("cmdSend");
  EXPECT_EQ(socket->connections, 0);
  screen.ExpectBox(question, BoxAnswer::kYes);
  driver->Press("cmdSend");
  driver->Press("cmdSend");
  EXPECT_EQ(socket->connections, 2);
}

TEST_F(FrmSendMailTest, ThePasswordIsInNoSetting) {
  OpenFilled();
  driver->Tick("auth");
  driver->Type("txtHost", "localhost");
  driver->Type("txtusername", "ada");
  driver->Type("txtpassword", "unheard-of");
  driver->Press("cmdSend");
  driver->Press("cmdClose");
  SaveProgramSettings();
  for (const auto& [key, value] : screen.settings)
    EXPECT_EQ(value.find("unheard-of"), std::string::npos) << key;
}

TEST_F(FrmSendMailTest, AReportIsNotSentToAnotherOnesAddressUnasked) {
  Job.ReportCode = 13;
  OpenFilled();
  driver->Choose("Combo1", 0);
  const std::string question =
      "The report is on O'Hara, Bo, and the address is that of Ng, Ada. Send it there all the "
      "same?";
  screen.ExpectBox(question, BoxAnswer::kNo);
  driver->Press("cmdSend");
  EXPECT_EQ(socket->connections, 0);
  screen.ExpectBox(question, BoxAnswer::kYes);
  driver->Press("cmdSend");
  EXPECT_EQ(socket->connections, 1);
  driver->Type("txtRecipient", "counsellor@school.org");
  driver->Press("cmdSend");
  driver->Choose("Combo1", 1);
  driver->Press("cmdSend");
  EXPECT_EQ(socket->connections, 3);
}

TEST_F(FrmSendMailTest, ThereIsNothingToDial) {
  OpenFilled();
  EXPECT_EQ(portal->connect.Caption, "&Connect Using Dail-Up");
  EXPECT_EQ(portal->disconnect.Caption, "&Disconnect Dail-Up Connection");
  EXPECT_FALSE(driver->Enabled("disconnect"));
  driver->Press("connect");
  EXPECT_EQ(portal->txtmessage1, portal->txtMessage.Text);
  EXPECT_EQ(portal->status.Caption, "Connected to the Internet");
  EXPECT_FALSE(driver->Enabled("connect"));
  EXPECT_EQ(driver->Focused(), "cmdSend");
  driver->Press("disconnect");
  EXPECT_EQ(portal->status.Caption, "Not Connected to the Internet");
  EXPECT_TRUE(driver->Enabled("connect"));
  EXPECT_FALSE(driver->Enabled("disconnect"));
  EXPECT_TRUE(driver->Enabled("cmdSend"));
}

TEST_F(FrmSendMailTest, AdviceForTheReaderIsAddedAtTheEnd) {
  OpenFilled();
  driver->Press("insert");
  EXPECT_EQ(portal->txtMessage.Text,
            "Report\r\n.\r\n\r\nTo view this message as originally formatted, set your e-mail "
            "client\r\n(e.g., Microsoft Outlook Express) to view the text in a 'fixed-width'\r\n"
            "(non-proportional) font such as Courier New.\r\n");
}

TEST_F(FrmSendMailTest, TheMessageIsSavedAsText) {
  OpenFilled();
  screen.encoding_answer = TextEncoding::kWindows1252;
  screen.ExpectFileDialog(Path("m.txt"));
  driver->Press("save");
  const FileDialogRequest& request = screen.file_dialogs.back();
  EXPECT_EQ(request.filter, "Text File (*.txt)|*.txt|Rich Text Format (*.rtf)|*.rtf");
  EXPECT_EQ(request.default_extension, "txt");
  EXPECT_EQ(ReadWholeFile(Path("m.txt")).bytes,
            "To: bo@home.org\r\nFrom: teacher@school.org\r\nSubject: Marks\r\n"
            "Date: Tue, 01 Sep 2026 00:00:00\r\n\r\nReport\r\n.\r\n");
}

TEST_F(FrmSendMailTest, TheMessageIsSavedAsRichText) {
  OpenFilled();
  driver->Type("txtMessage", "{\xC9}");
  screen.ExpectFileDialog(Path("m.rtf"));
  driver->Press("save");
  const std::string rich = ReadWholeFile(Path("m.rtf")).bytes;
  EXPECT_TRUE(rich.starts_with("{\\rtf1\\ansi"));
  EXPECT_TRUE(rich.ends_with("\\par\r\n\\par\r\n\\{\\'c9\\}}\r\n")) << rich;
}

TEST_F(FrmSendMailTest, LeavingKeepsServerAndSenderAndRemovesTheText) {
  Open();
  driver->Type("txtHost", "mail.new.org");
  driver->Type("txtSender", "new@school.org");
  EXPECT_TRUE(PathExists(TempFilePath()));
  driver->Press("cmdClose");
  EXPECT_EQ(screen.settings["TALLYRLG8/startup/POP"], "mail.new.org");
  EXPECT_EQ(screen.settings["TALLYRLG8/startup/EMAIL"], "new@school.org");
  EXPECT_FALSE(PathExists(TempFilePath()));
  Open();
  EXPECT_EQ(portal->txtHost.Text, "mail.new.org");
}

TEST_F(FrmSendMailTest, LeavingEndsTheDialogue) {
  OpenFilled();
  driver->Press("cmdSend");
  socket->Say("220 a\r\n");
  driver->CloseWindow();
  EXPECT_FALSE(socket->open);
}

}  // namespace
}  // namespace tallyroll
