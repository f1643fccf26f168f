// SPDX-License-Identifier: GPL-3.0-or-later
// A letter on its way by mail: to several, to each their own, and to one.
#include "letters/mail/mail_draft.h"
#include "letters/writer/frmwrdproc.h"
#include "roster/chosen_students.h"
#include "shell/portal_list.h"
#include "store/settings.h"
#include "tests/letters/mail/played_server.h"
#include "tests/roster/roster_test.h"

namespace tallyroll {
namespace {

const std::string kAskTwo = "Send 2 messages, one to each address?";

class LettersToSeveralTest : public RosterTest {
 protected:
  LettersToSeveralTest() {
    NameMode = 57;
    DataFolder = ProgramFolder = folder;
    MakePortal = MakePortalByName;
    PlayedServers::server = &server;
    MakeMailSender = PlayedServers::Make;
    Enrol("Ng", "Ada", "1").email = "ada@home.org";
    Enrol("Orr", "Cy", "2").email = "cy@home.org";
    Enrol("Ng", "Bo", "3").email = "bo@home.org";
    Current().FileName = Path("MATH.TYR");
    MailServer = "mail.school.org";
    SenderAddress = "teacher@school.org";
  }
  ~LettersToSeveralTest() override { MakeMailSender = nullptr; }

  void Load(std::u16string_view text) {
    Open(portal);
    portal.RichTextBox1.Load(RichTextOf(text));
  }
  // The run as it is begun from the E-mail Portal, answered with Yes.
  void Send(PortalDriver& mail, const std::string& question, const std::string& end) {
    screen.ExpectPortal("frmSendMany", [&](PortalDriver& many) {
      screen.ExpectBox(question, BoxAnswer::kYes);
      screen.ExpectBox(end);
      many.Press("cmdStart");
      many.Press("cmdClose");
    });
    mail.Press("cmdMany");
  }

  PlayedServer server;
  frmwrdproc portal;
};

TEST_F(LettersToSeveralTest, EachChosenStudentGetsTheirOwnLetter) {
  ChooseStudents({1, 2});
  Load(u"Dear <First Name>,\n\u03a7\u03b1\u03af\u03c1\u03b5");
  screen.ExpectPortal("frmSendMail", [&](PortalDriver& mail) {
    mail.Type("txtSubject", "Greeting");
    Send(mail, kAskTwo, "0 to be sent, 2 sent.");
    mail.Press("cmdClose");
  });
  driver->Press("mnumany");
  ASSERT_EQ(server.arrived.size(), 2u);
  EXPECT_EQ(server.arrived[0].to, "ada@home.org");
  EXPECT_EQ(server.arrived[1].to, "cy@home.org");
  const std::string greek =
      "=CE=A7=CE=B1=CE=AF=CF=81=CE=B5";  // what a class cannot hold goes whole
  EXPECT_NE(server.arrived[0].bytes.find("Dear Ada,\r\n" + greek), std::string::npos)
      << server.arrived[0].bytes;
  EXPECT_NE(server.arrived[1].bytes.find("Dear Cy,\r\n" + greek), std::string::npos);
  EXPECT_EQ(server.arrived[1].bytes.find("Ada"), std::string::npos);
}

TEST_F(LettersToSeveralTest, AnotherRunOfTheSameLetterSendsNobodyASecondOne) {
  ChooseStudents({1, 2});
  Load(u"Dear <First Name>");
  const auto send = [&](const std::string& question, const std::string& end) {
    screen.ExpectPortal("frmSendMail", [&](PortalDriver& mail) {
      mail.Type("txtSubject", "May");
      Send(mail, question, end);
      mail.Press("cmdClose");
    });
    driver->Press("mnumany");
  };
  send(kAskTwo, "0 to be sent, 2 sent.");
  ChooseStudents({1, 2, 3});
  send("Send 1 messages, one to each address?", "0 to be sent, 3 sent.");
  ASSERT_EQ(server.arrived.size(), 3u);
  EXPECT_EQ(server.arrived[2].to, "bo@home.org");
}

TEST_F(LettersToSeveralTest, ThePortalSendsNothingToOneOfThem) {
  ChooseStudents({2, 3});
  Load(u"Dear <First Name>");
  screen.ExpectFileDialog(Path("Progress.rtf"));
  driver->Press("mnusave");
  screen.ExpectPortal("frmSendMail", [&](PortalDriver& mail) {
    EXPECT_EQ(mail.Text("txtMessage"), "Dear Cy");
    EXPECT_EQ(mail.Text("txtSubject"), "Progress");
    EXPECT_EQ(mail.Text("txtRecipient"), "");
    EXPECT_EQ(mail.Text("status"),
              "For 2 students, each their own letter. This is the one for Orr, Cy.");
    for (const char* of_one : {"cmdSend", "connect", "txtRecipient", "Combo1", "save", "insert"})
      EXPECT_FALSE(mail.Enabled(of_one)) << of_one;
    EXPECT_TRUE(mail.Enabled("cmdMany"));
    mail.Press("cmdClose");
  });
  driver->Press("mnumany");
  EXPECT_TRUE(server.tried.empty());
  EXPECT_FALSE(Draft.text_of);
}

TEST_F(LettersToSeveralTest, WithoutASubjectTheRunCouldNotBeToldFromAnother) {
  ChooseStudents({1});
  Load(u"Hello");
  screen.ExpectPortal("frmSendMail", [&](PortalDriver& mail) {
    EXPECT_EQ(mail.Focused(), "txtSubject");
    mail.Type("txtSubject", " ");
    screen.ExpectBox("Letters to several need a subject: it tells this run from another.");
    mail.Press("cmdMany");
    EXPECT_EQ(mail.Focused(), "txtSubject");
    mail.Press("cmdClose");
  });
  driver->Press("mnumany");
}

TEST_F(LettersToSeveralTest, WhatIsChangedInTheShownTextGoesToNobodyAndIsTold) {
  ChooseStudents({1, 2});
  Load(u"Dear <First Name>");
  screen.ExpectPortal("frmSendMail", [&](PortalDriver& mail) {
    mail.Type("txtSubject", "May");
    mail.Type("txtMessage", "Dear Ada, and more");
    const std::string question =
        "Each student gets their own letter, and what you have changed in this text goes to "
        "nobody. Go on?";
    screen.ExpectBox(question, BoxAnswer::kNo);
    mail.Press("cmdMany");
    screen.ExpectBox(question, BoxAnswer::kYes);
    Send(mail, kAskTwo, "0 to be sent, 2 sent.");
    mail.Press("cmdClose");
  });
  driver->Press("mnumany");
  ASSERT_EQ(server.arrived.size(), 2u);
  EXPECT_EQ(server.arrived[0].bytes.find("and more"), std::string::npos);
}

TEST_F(LettersToSeveralTest, ALetterThatIsNotInOrderGoesToNobody) {
  Load(u"Dear <Nickname>");
  screen.ExpectBox("You must first choose the names of students.");
  driver->Press("mnumany");
  ChooseStudents({1, 2});
  screen.ExpectBox("<Nickname> is no code: it would stand in the letter as it is.\nGo on?",
                   BoxAnswer::kNo);
  driver->Press("mnumany");
}

TEST_F(LettersToSeveralTest, AnAddressOfTwoAndNoneAtAllAreToldBeforeAnythingLeaves) {
  Current().Students[2].email = "ADA@home.org";
  Current().Students[3].email.clear();
  ChooseStudents({1, 2, 3});
  Load(u"Dear <First Name>");
  screen.ExpectPortal("frmSendMail", [&](PortalDriver& mail) {
    mail.Type("txtSubject", "May");
    screen.ExpectPortal("frmSendMany", [&](PortalDriver& many) {
      screen.ExpectBox(
          "The address ada@home.org stands for several students. Mend it in the class, or tick "
          "that this is right.");
      many.Press("cmdStart");
      many.Press("cmdClose");
    });
    mail.Press("cmdMany");
    mail.Press("cmdClose");
  });
  driver->Press("mnumany");
  EXPECT_TRUE(server.tried.empty());
}

TEST_F(LettersToSeveralTest, ALetterToOneGoesToAnotherOnesAddressOnlyWhenMeant) {
  ChooseStudents({1});
  Load(u"Dear <First Name>");
  screen.ExpectPortal("frmSendMail", [&](PortalDriver& mail) {
    mail.Choose("Combo1", 1);
    EXPECT_EQ(mail.Text("txtRecipient"), "cy@home.org");
    screen.ExpectBox(
        "The letter is for Ng, Ada, and the address is that of Orr, Cy. Send it there all the "
        "same?",
        BoxAnswer::kNo);
    mail.Press("cmdSend");
    mail.Press("cmdClose");
  });
  driver->Press("mnuemail");
  EXPECT_TRUE(server.tried.empty());
}

}  // namespace
}  // namespace tallyroll
