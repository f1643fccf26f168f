// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/mail_journal.h"

#include <filesystem>

#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

class MailJournalTest : public PortalTest {
 protected:
  static JournalMail For(const std::string& student, const std::string& subject = "Marks") {
    JournalMail mail;
    mail.subject = subject;
    mail.student = student;
    mail.name = "N\xE9, " + student;
    mail.address = student + "@home.org";
    return mail;
  }
  std::string path = Path("MATH.TYR");
};

TEST_F(MailJournalTest, ReadingMakesNoFile) {
  EXPECT_TRUE(MailJournal::ToRead(path).LastRun("Marks").empty());
  EXPECT_EQ(MailJournal::ToRead(path).fault(), "");
  EXPECT_FALSE(std::filesystem::exists(CompanionPath(path)));
}

TEST_F(MailJournalTest, ARunComesBackInItsOrder) {
  std::vector<JournalMail> mails = {For("7"), For("3")};
  MailJournal::ToWrite(path).Begin(mails);
  EXPECT_EQ(mails[0].run, 1);
  EXPECT_EQ(MailJournal::ToRead(path).LastRun("Marks"), mails);
  EXPECT_TRUE(MailJournal::ToRead(path).LastRun("marks").empty());
}

TEST_F(MailJournalTest, TheLastRunOfASubjectCounts) {
  MailJournal journal = MailJournal::ToWrite(path);
  std::vector<JournalMail> first = {For("7")}, other = {For("7", "Trip")}, again = {For("8")};
  journal.Begin(first);
  journal.Begin(other);
  journal.Begin(again);
  EXPECT_EQ(journal.LastRun("Marks"), again);
  EXPECT_EQ(again[0].run, 3);
  std::vector<JournalMail> more = {For("9")};
  more[0].run = 3;
  journal.Add(more);
  EXPECT_EQ(journal.LastRun("Marks").size(), 2u);
  EXPECT_EQ(journal.All().front().run, 3);
  EXPECT_EQ(journal.All().size(), 4u);
}

TEST_F(MailJournalTest, AMessageIsTakenOnce) {
  std::vector<JournalMail> mails = {For("7")};
  MailJournal journal = MailJournal::ToWrite(path), other = MailJournal::ToWrite(path);
  journal.Begin(mails);
  EXPECT_TRUE(journal.Claim(mails[0], "2026-09-01 08:00:00"));
  EXPECT_FALSE(other.Claim(mails[0], "2026-09-01 08:00:01"));
  EXPECT_EQ(other.LastRun("Marks")[0].state, MailState::kTrying);
  journal.Note(mails[0], MailState::kRefused, "550 no", "2026-09-01 08:00:02");
  EXPECT_EQ(other.LastRun("Marks")[0].reason, "550 no");
  EXPECT_TRUE(other.Claim(mails[0], "2026-09-01 08:00:03"));
  other.Note(mails[0], MailState::kSent, "", "2026-09-01 08:00:04");
  EXPECT_FALSE(journal.Claim(mails[0], "2026-09-01 08:00:05"));
  EXPECT_EQ(journal.LastRun("Marks")[0].changed, "2026-09-01 08:00:04");
}

TEST_F(MailJournalTest, CountsWhatWentOnADay) {
  std::vector<JournalMail> mails = {For("1"), For("2"), For("3")};
  MailJournal journal = MailJournal::ToWrite(path);
  journal.Begin(mails);
  journal.Note(mails[0], MailState::kSent, "", "2026-09-01 23:59:59");
  journal.Note(mails[1], MailState::kSent, "", "2026-09-02 00:00:00");
  journal.Note(mails[2], MailState::kRefused, "", "2026-09-02 00:00:00");
  EXPECT_EQ(journal.SentOn("2026-09-01"), 1);
  EXPECT_EQ(journal.SentOn("2026-09-02"), 1);
  EXPECT_EQ(journal.SentOn("2026-09-03"), 0);
}

TEST_F(MailJournalTest, TheAddressOfWhatWentStays) {
  std::vector<JournalMail> mails = {For("1"), For("2")};
  MailJournal journal = MailJournal::ToWrite(path);
  journal.Begin(mails);
  journal.Note(mails[0], MailState::kSent, "", "2026-09-01 08:00:00");
  for (JournalMail& mail : mails) {
    mail.address = "new@home.org";
    journal.SetAddress(mail);
  }
  EXPECT_EQ(journal.LastRun("Marks")[0].address, "1@home.org");
  EXPECT_EQ(journal.LastRun("Marks")[1].address, "new@home.org");
}

TEST_F(MailJournalTest, AClassWithoutAFileHasNone) {
  std::vector<JournalMail> mails = {For("1")};
  MailJournal journal = MailJournal::ToWrite("");
  journal.Begin(mails);
  EXPECT_EQ(journal.fault(), "the class was not saved yet");
  EXPECT_FALSE(journal.Claim(mails[0], "2026-09-01 08:00:00"));
}

TEST_F(MailJournalTest, ACompanionOfAnEarlierLayoutGetsTheTable) {
  {
    Database old(CompanionPath(path), Database::Mode::kWrite);
    old.Run(
        "CREATE TABLE seat_wish (place INTEGER PRIMARY KEY, kind TEXT NOT NULL,"
        " student TEXT NOT NULL, other TEXT NOT NULL); PRAGMA user_version=1");
  }
  std::vector<JournalMail> mails = {For("1")};
  MailJournal journal = MailJournal::ToWrite(path);
  journal.Begin(mails);
  EXPECT_EQ(journal.fault(), "");
  EXPECT_EQ(journal.LastRun("Marks").size(), 1u);
}

}  // namespace
}  // namespace tallyroll
