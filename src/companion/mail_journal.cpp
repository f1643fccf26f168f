// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/mail_journal.h"

#include <utility>

#include "base/code_page.h"
#include "base/number_text.h"

namespace tallyroll {
namespace {

std::string MailText(const Statement& row, int column) {
  return CodePageFromUtf8(row.Text(column)).value_or("");
}

// Database's statements take texts alone.
std::string StateText(MailState state) {
  return PlainNumberText(static_cast<int>(state));
}

}  // namespace

MailJournal MailJournal::ToRead(const std::string& class_path) {
  return MailJournal(OpenCompanion(class_path));
}

MailJournal MailJournal::ToWrite(const std::string& class_path) {
  return MailJournal(MakeCompanion(class_path));
}

const Fault& MailJournal::fault() const {
  return companion_ ? companion_.database->fault() : companion_.fault;
}

std::vector<JournalMail> MailJournal::Read(const char* query,
                                           std::initializer_list<std::string_view> values) {
  std::vector<JournalMail> mails;
  if (!companion_) return mails;
  Statement rows(*companion_.database, query, values);
  while (rows.Next()) {
    JournalMail& mail = mails.emplace_back();
    mail.place = rows.Number(0);
    mail.run = rows.Number(1);
    mail.subject = MailText(rows, 2);
    mail.student = MailText(rows, 3);
    mail.name = MailText(rows, 4);
    mail.address = MailText(rows, 5);
    mail.attachment = MailText(rows, 6);
    mail.state = static_cast<MailState>(rows.Number(7));
    mail.reason = MailText(rows, 8);
    mail.changed = MailText(rows, 9);
  }
  return mails;
}

std::vector<JournalMail> MailJournal::LastRun(std::string_view subject) {
  return Read(
      "SELECT place, run, subject, student, name, address, attachment, state, reason, changed"
      " FROM mail WHERE run = (SELECT max(run) FROM mail WHERE subject = ?) ORDER BY place",
      {Utf8FromCodePage(subject)});
}

std::vector<JournalMail> MailJournal::All() {
  return Read(
      "SELECT place, run, subject, student, name, address, attachment, state, reason, changed"
      " FROM mail ORDER BY run DESC, place",
      {});
}

void MailJournal::Begin(std::vector<JournalMail>& mails) {
  if (!companion_) return;
  Transaction transaction(*companion_.database);
  Insert(mails, companion_.database->Number("SELECT ifnull(max(run), 0) + 1 FROM mail"));
  transaction.Commit();
}

void MailJournal::Add(std::vector<JournalMail>& mails) {
  if (!companion_ || mails.empty()) return;
  Transaction transaction(*companion_.database);
  Insert(mails, mails.front().run);
  transaction.Commit();
}

void MailJournal::Insert(std::vector<JournalMail>& mails, std::int64_t run) {
  for (JournalMail& mail : mails) {
    mail.run = run;
    companion_.database->Run(
        "INSERT INTO mail (run, subject, student, name, address, attachment, state, reason,"
        " changed) VALUES (CAST(? AS INTEGER), ?, ?, ?, ?, ?, CAST(? AS INTEGER), ?, ?)",
        {PlainNumberText(run), Utf8FromCodePage(mail.subject), Utf8FromCodePage(mail.student),
         Utf8FromCodePage(mail.name), Utf8FromCodePage(mail.address),
         Utf8FromCodePage(mail.attachment), StateText(mail.state), Utf8FromCodePage(mail.reason),
         mail.changed});
    mail.place = companion_.database->Number("SELECT last_insert_rowid()");
  }
}

void MailJournal::SetAddress(const JournalMail& mail) {
  if (!companion_) return;
  companion_.database->Run(
      "UPDATE mail SET address = ? WHERE place = CAST(? AS INTEGER) AND state IN (0, 3)",
      {Utf8FromCodePage(mail.address), PlainNumberText(mail.place)});
}

// The two programs that might take the same message do so one after the other, and the second one
// finds it taken.
bool MailJournal::Claim(const JournalMail& mail, std::string_view now) {
  if (!companion_) return false;
  Database& database = *companion_.database;
  database.Run("PRAGMA synchronous=FULL");
  database.Run(
      "UPDATE mail SET state = 1, reason = '', changed = ?"
      " WHERE place = CAST(? AS INTEGER) AND state IN (0, 3)",
      {now, PlainNumberText(mail.place)});
  return database.Number("SELECT changes()") == 1 && database.ok();
}

// Lost in a power cut, it leaves a message uncertain that went: nobody gets it twice for that.
void MailJournal::Note(const JournalMail& mail, MailState state, std::string_view reason,
                       std::string_view now) {
  if (!companion_) return;
  Database& database = *companion_.database;
  database.Run("PRAGMA synchronous=NORMAL");
  database.Run(
      "UPDATE mail SET state = CAST(? AS INTEGER), reason = ?, changed = ?"
      " WHERE place = CAST(? AS INTEGER)",
      {StateText(state), Utf8FromCodePage(reason), now, PlainNumberText(mail.place)});
}

int MailJournal::SentOn(std::string_view day) {
  if (!companion_) return 0;
  Statement row(*companion_.database,
                "SELECT count(*) FROM mail WHERE state = 2 AND substr(changed, 1, 10) = ?", {day});
  return row.Next() ? static_cast<int>(row.Number(0)) : 0;
}

}  // namespace tallyroll
