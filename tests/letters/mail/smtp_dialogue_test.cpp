// SPDX-License-Identifier: GPL-3.0-or-later
// The plain dialogue, byte for byte.
#include "letters/mail/smtp_dialogue.h"

#include <gtest/gtest.h>

namespace tallyroll {
namespace {

using Sends = std::vector<std::string>;

class SmtpDialogueTest : public testing::Test {
 protected:
  SmtpDialogueTest() {
    message.sender = " teacher@school.org ";
    message.recipient = "parent@home.org";
    message.subject = "Marks";
    message.text = "Dear parents,\r\n.\r\nyours";
    message.date = MailDate(46266);
    message.username = " ada ";
    message.password = "secret ";
  }
  // What is sent upon a reply that goes on.
  Sends Upon(std::string_view reply) {
    const SmtpAnswer answer = dialogue.Answer(reply, message);
    EXPECT_EQ(answer.verdict, SmtpVerdict::kGoesOn) << reply;
    EXPECT_FALSE(answer.close) << reply;
    return answer.sends;
  }
  void Reach(int state) {
    for (const char* reply : {"220 hi", "250 a", "250 b", "250 c", "354 d", "250 e"}) {
      if (dialogue.State() == state) return;
      Upon(reply);
    }
    EXPECT_EQ(dialogue.State(), state);
  }

  SmtpDialogue dialogue;
  PlainMessage message;
};

TEST_F(SmtpDialogueTest, AWholeMessageGoesOutByItsSteps) {
  EXPECT_EQ(Upon("220 mail.school.org ready\r\n"), Sends{"HELO teacher\r\n"});
  EXPECT_EQ(Upon("250 hello\r\n"), Sends{"MAIL FROM:teacher@school.org\r\n"});
  EXPECT_EQ(Upon("250 ok\r\n"), Sends{"RCPT TO:parent@home.org\r\n"});
  EXPECT_EQ(Upon("250 ok\r\n"), Sends{"DATA\r\n"});
  EXPECT_EQ(Upon("354 go on\r\n"),
            (Sends{"From: < teacher@school.org >\r\n", "To: <parent@home.org>\r\n",
                   "Subject:Marks\r\n", "Date:Tue, 01 Sep 2026 00:00:00\r\n\r\n",
                   "Dear parents,\r\n.\r\nyours\r\n\r\n\r\n", ".\r\n"}));
  EXPECT_EQ(Upon("250 queued\r\n"), Sends{"QUIT\r\n"});
  EXPECT_EQ(dialogue.State(), 6);
  const SmtpAnswer end = dialogue.Answer("221 bye\r\n", message);
  EXPECT_EQ(end.verdict, SmtpVerdict::kSent);
  EXPECT_TRUE(end.close);
  EXPECT_EQ(end.sends, Sends{});
}

TEST_F(SmtpDialogueTest, TheAttachmentStandsBehindTheText) {
  message.attachment = "begin 664 a\r\n \r\n`\r\nend\r\n\r\n";
  Reach(4);
  EXPECT_EQ(Upon("354 go on")[4],
            "Dear parents,\r\n.\r\nyours\r\n\r\nbegin 664 a\r\n \r\n`\r\nend\r\n\r\n\r\n");
}

TEST_F(SmtpDialogueTest, AnAddressWithoutAtGreetsWithNothing) {
  message.sender = "teacher";
  EXPECT_EQ(Upon("220 hi"), Sends{"HELO \r\n"});
  dialogue.Reset();
  message.auth = true;
  EXPECT_EQ(Upon("220 hi"), Sends{"EHLO \r\n"});
}

TEST_F(SmtpDialogueTest, AServerThatOffersLoginGetsTheUserFirst) {
  message.auth = true;
  EXPECT_EQ(Upon("220 hi"), Sends{"EHLO teacher\r\n"});
  EXPECT_EQ(Upon("250-mail\r\n250-SIZE 100\r\n250 Auth PLAIN Login\r\n"), Sends{"AUTH Login\r\n"});
  EXPECT_EQ(dialogue.State(), 1);
  EXPECT_EQ(Upon("334 VXNlcm5hbWU6\r\n"), Sends{"YWRh\r\n"});
  EXPECT_EQ(Upon("334 UGFzc3dvcmQ6\r\n"), Sends{"c2VjcmV0\r\n"});
  EXPECT_EQ(dialogue.State(), 1);
  EXPECT_EQ(Upon("235 welcome\r\n"), Sends{"MAIL FROM:teacher@school.org\r\n"});
}

// Even in the middle, and though nobody asked for it: the words decide.
TEST_F(SmtpDialogueTest, TheOfferOfLoginComesBeforeTheState) {
  Reach(2);
  EXPECT_EQ(Upon("250 author of login"), Sends{"AUTH Login\r\n"});
  EXPECT_EQ(dialogue.State(), 2);
}

TEST_F(SmtpDialogueTest, AServerWithoutLoginIsSentToAllTheSame) {
  message.auth = true;
  Upon("220 hi");
  EXPECT_EQ(Upon("250-mail\r\n250 AUTH PLAIN\r\n"), Sends{"MAIL FROM:teacher@school.org\r\n"});
}

TEST_F(SmtpDialogueTest, APromptThatNamesNeitherIsDeclined) {
  Reach(1);
  EXPECT_EQ(Upon("334 U29tZXRoaW5n\r\n"), Sends{"*\r\n"});  // "Something"
  EXPECT_EQ(Upon("334\r\n"), Sends{"*\r\n"});
  EXPECT_EQ(Upon("334 ???\r\n"), Sends{"*\r\n"});
  EXPECT_EQ(dialogue.State(), 1);
}

TEST_F(SmtpDialogueTest, AnyOtherCodeEndsIt) {
  for (const char* reply : {"421 busy", "450 later", "500 what", "550 no such user", "xyz", ""}) {
    for (const int state : {0, 3, 5}) {
      dialogue.Reset();
      Reach(state);
      const SmtpAnswer answer = dialogue.Answer(reply, message);
      EXPECT_EQ(answer.verdict, SmtpVerdict::kRefused) << reply << state;
      EXPECT_TRUE(answer.close);
      EXPECT_EQ(answer.sends, Sends{});
    }
  }
}

TEST_F(SmtpDialogueTest, AGoodCodeBehindTheEndClosesInSilence) {
  Reach(6);
  const SmtpAnswer answer = dialogue.Answer("250 still here", message);
  EXPECT_TRUE(answer.close);
  EXPECT_EQ(answer.verdict, SmtpVerdict::kGoesOn);
  EXPECT_EQ(dialogue.State(), 6);
}

TEST_F(SmtpDialogueTest, NoFieldAddsALine) {
  message.sender = "a@b\r\nDATA";
  message.recipient = "c@d>\r\nBcc: <e@f";
  message.subject = std::string("Hi\nBcc: g@h\0", 12);
  message.auth = true;
  EXPECT_EQ(Upon("220"), Sends{"EHLO a\r\n"});
  EXPECT_EQ(Upon("250"), Sends{"MAIL FROM:a@b  DATA\r\n"});
  EXPECT_EQ(Upon("250"), Sends{"RCPT TO:c@d>  Bcc: <e@f\r\n"});
  Upon("250");
  const Sends sent = Upon("354");
  EXPECT_EQ(sent[0], "From: <a@b  DATA>\r\n");
  EXPECT_EQ(sent[1], "To: <c@d>  Bcc: <e@f>\r\n");
  EXPECT_EQ(sent[2], "Subject:Hi Bcc: g@h \r\n");
}

TEST(SmtpReply, IsWholeWithItsLastLine) {
  EXPECT_TRUE(IsWholeReply("250 ok\r\n"));
  EXPECT_TRUE(IsWholeReply("250-a\r\n250 b\r\n"));
  EXPECT_TRUE(IsWholeReply("250\r\n"));
  EXPECT_TRUE(IsWholeReply("junk\n"));
  EXPECT_FALSE(IsWholeReply(""));
  EXPECT_FALSE(IsWholeReply("25"));
  EXPECT_FALSE(IsWholeReply("250 ok"));
  EXPECT_FALSE(IsWholeReply("250-a\r\n"));
  EXPECT_FALSE(IsWholeReply("250-a\r\n250 b"));
  EXPECT_TRUE(IsWholeReply(std::string(65537, 'x')));
}

TEST(MailDateTest, SaysDayAndTimeWithoutAZone) {
  EXPECT_EQ(MailDate(46266), "Tue, 01 Sep 2026 00:00:00");
  EXPECT_EQ(MailDate(46387 + 0.5), "Thu, 31 Dec 2026 12:00:00");
  EXPECT_EQ(MailDate(36526 + (23 * 3600 + 59 * 60 + 59) / 86400.0), "Sat, 01 Jan 2000 23:59:59");
}

}  // namespace
}  // namespace tallyroll
