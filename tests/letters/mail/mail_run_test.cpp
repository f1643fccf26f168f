// SPDX-License-Identifier: GPL-3.0-or-later
// Runs to many, with a server that answers as the test says.
#include "letters/mail/mail_run.h"

#include "letters/mail/mail_plan.h"
#include "letters/mail/student_report.h"
#include "tests/letters/mail/played_server.h"
#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

class MailRunTest : public SmallClassTest {
 protected:
  MailRunTest() {
    Current().Students[1].email = " ada@home.org ";
    Current().Students[2].email = "bo@home.org";
    Current().Students[3].email = "cy@home.org";
  }
  std::vector<PlannedMail> Plan(const std::string& subject = "Marks") const {
    return PlanMails({1, 2, 3}, subject);
  }
  // A whole run of what is to be sent; why it ended early.
  std::string Run(bool anew = false) {
    MailJournal journal = MailJournal::ToWrite(path);
    plan = Plan();
    EXPECT_EQ(TakeUpRun(journal, plan, anew), "");
    std::vector<RunMail> mails;
    for (const PlannedMail& mail : plan)
      if (IsToBeSent(mail, false))
        mails.push_back({mail.entry,
                         {.from = "t@school.org",
                          .to = mail.entry.address,
                          .subject = "Marks",
                          .text = "Dear parents",
                          .attachments = {},
                          .date = {},
                          .id = {}}});
    server.tried.clear();
    return RunMails(server, journal, mails, options, events);
  }
  Rows States() const {
    Rows states;
    for (const JournalMail& mail : MailJournal::ToRead(path).LastRun("Marks"))
      states.push_back(MailStateText(mail).substr(0, 9));
    return states;
  }

  std::string path = Path("MATH.TYR");
  PlayedServer server;
  MailRunOptions options;
  MailRunEvents events;
  std::vector<PlannedMail> plan;
};

TEST_F(MailRunTest, EverybodyGetsOneMessage) {
  EXPECT_EQ(Run(), "");
  EXPECT_EQ(server.tried, (Rows{"ada@home.org", "bo@home.org", "cy@home.org"}));
  EXPECT_EQ(States(), (Rows{"sent 2026", "sent 2026", "sent 2026"}));
  EXPECT_EQ(Run(), "");
  EXPECT_EQ(server.tried, Rows{});
}

TEST_F(MailRunTest, ANewRunIsANewRun) {
  Run();
  Run(true);
  EXPECT_EQ(server.arrived.size(), 6u);
}

TEST_F(MailRunTest, ARefusedOneLetsTheOthersGoAndIsTriedAnew) {
  server.conducts["bo@home.org"] = {MailOutcome::kRefused, "550 no such user", false};
  EXPECT_EQ(Run(), "");
  EXPECT_EQ(States(), (Rows{"sent 2026", "refused: ", "sent 2026"}));
  EXPECT_EQ(MailStateText(MailJournal::ToRead(path).LastRun("Marks")[1]),
            "refused: 550 no such user");
  Current().Students[2].email = "bo@work.org";
  EXPECT_EQ(Run(), "");
  EXPECT_EQ(server.tried, Rows{"bo@work.org"});
  EXPECT_EQ(States(), (Rows{"sent 2026", "sent 2026", "sent 2026"}));
}

TEST_F(MailRunTest, AServerThatStopsLeavesTheRestWaiting) {
  server.conducts["bo@home.org"] = {MailOutcome::kStopped, "421 too many", false};
  EXPECT_EQ(Run(), "421 too many");
  EXPECT_EQ(server.tried, (Rows{"ada@home.org", "bo@home.org"}));
  EXPECT_EQ(States(), (Rows{"sent 2026", "waiting: ", "waiting"}));
  server.conducts.clear();
  EXPECT_EQ(Run(), "");
  EXPECT_EQ(server.tried, (Rows{"bo@home.org", "cy@home.org"}));
}

TEST_F(MailRunTest, AnUncertainOneEndsTheRunAndIsNeverSentAnew) {
  server.conducts["bo@home.org"] = {MailOutcome::kUncertain, "connection lost", true};
  EXPECT_EQ(Run(), "connection lost");
  EXPECT_EQ(States(), (Rows{"sent 2026", "uncertain", "waiting"}));
  server.conducts.clear();
  EXPECT_EQ(Run(), "");
  EXPECT_EQ(server.tried, Rows{"cy@home.org"});
  EXPECT_EQ(States(), (Rows{"sent 2026", "uncertain", "sent 2026"}));
}

TEST_F(MailRunTest, OneThatIsPutOffLetsTheOthersGo) {
  server.conducts["ada@home.org"] = {MailOutcome::kLater, "450 later", false};
  EXPECT_EQ(Run(), "");
  EXPECT_EQ(States(), (Rows{"waiting: ", "sent 2026", "sent 2026"}));
  server.conducts.clear();
  EXPECT_EQ(Run(), "");
  EXPECT_EQ(server.tried, Rows{"ada@home.org"});
}

TEST_F(MailRunTest, ThreePutOffInARowEndTheRun) {
  for (const char* to : {"ada@home.org", "bo@home.org", "cy@home.org"})
    server.conducts[to] = {MailOutcome::kLater, "452 quota", false};
  EXPECT_EQ(Run(), "452 quota");
}

TEST_F(MailRunTest, TheLimitOfADayEndsTheRun) {
  options.a_day = 2;
  EXPECT_EQ(Run(), "The limit of 2 messages a day is reached. Go on tomorrow.");
  EXPECT_EQ(server.arrived.size(), 2u);
  EXPECT_EQ(States(), (Rows{"sent 2026", "sent 2026", "waiting"}));
}

TEST_F(MailRunTest, ARunIsCancelledBetweenTwoMessages) {
  events.goes_on = [this] { return server.arrived.empty(); };
  EXPECT_EQ(Run(), "Cancelled");
  EXPECT_EQ(server.arrived.size(), 1u);
}

TEST_F(MailRunTest, WhatAnotherProgramHasTakenIsLeft) {
  events.changed = [this](const JournalMail& entry) {
    if (entry.student != "17") return;
    MailJournal other = MailJournal::ToWrite(path);
    other.Claim(other.LastRun("Marks")[1], JournalTime());
  };
  EXPECT_EQ(Run(), "");
  EXPECT_EQ(server.arrived.size(), 2u);
  EXPECT_EQ(States(), (Rows{"sent 2026", "uncertain", "sent 2026"}));
}

TEST_F(MailRunTest, WithoutAJournalNothingIsSent) {
  MailJournal journal = MailJournal::ToWrite("");
  plan = Plan();
  EXPECT_EQ(TakeUpRun(journal, plan, false), "the class was not saved yet");
}

TEST_F(MailRunTest, AddressesAreLookedThroughBeforehand) {
  Current().Students[1].email = "";
  Current().Students[2].email = "bo@home.org\r\nBcc: x@y";
  EXPECT_EQ(Plan()[0].problem, MailProblem::kNoAddress);
  EXPECT_EQ(Plan()[1].problem, MailProblem::kNotAnAddress);
  EXPECT_EQ(Plan()[2].problem, MailProblem::kNone);
  EXPECT_FALSE(IsToBeSent(Plan()[0], true));
  EXPECT_FALSE(IsToBeSent(Plan()[1], true));
}

TEST_F(MailRunTest, AnAddressOfTwoStudentsNeedsATick) {
  Current().Students[3].email = "ADA@home.org";
  EXPECT_EQ(Plan()[0].problem, MailProblem::kShared);
  EXPECT_EQ(Plan()[1].problem, MailProblem::kNone);
  EXPECT_EQ(Plan()[2].problem, MailProblem::kShared);
  EXPECT_FALSE(IsToBeSent(Plan()[0], false));
  EXPECT_TRUE(IsToBeSent(Plan()[0], true));
}

TEST_F(MailRunTest, AStudentWhoCameLaterJoinsTheRun) {
  server.conducts["cy@home.org"] = {MailOutcome::kStopped, "421", false};
  Run();
  std::swap(Current().Students[1], Current().Students[3]);
  server.conducts.clear();
  EXPECT_EQ(Run(), "");
  EXPECT_EQ(server.tried, Rows{"cy@home.org"});
}

TEST_F(MailRunTest, EachGetsTheReportOnTheirOwnStudent) {
  Job.ReportCode = 13;
  Choice.students = {1, 2, 3};
  EXPECT_TRUE(IsOnSingleStudents());
  const std::string text = TextOfStudent(2);
  EXPECT_NE(text.find("23 O'Hara, Bo"), std::string::npos);
  EXPECT_EQ(text.find("Ng"), std::string::npos);
  EXPECT_EQ(text.find("Quist"), std::string::npos);
  EXPECT_EQ(Choice.students, (std::vector<i16>{1, 2, 3}));
  Job.ReportCode = 19;
  EXPECT_FALSE(IsOnSingleStudents());
}

}  // namespace
}  // namespace tallyroll
