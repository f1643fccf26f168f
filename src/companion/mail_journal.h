// SPDX-License-Identifier: GPL-3.0-or-later
// What was sent to whom, kept beside the class: a run that was cut short goes on where it stopped,
// and nobody gets a message twice.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "companion/companion_file.h"

namespace tallyroll {

enum class MailState {
  kWaiting,
  kTrying,  // its text was about to go; seen later, nobody knows whether it went
  kSent,
  kRefused,
};

// One message of a run. Texts are in the class file's code page.
struct JournalMail {
  std::int64_t place = 0;  // in the journal
  std::int64_t run = 0;
  std::string subject;  // of all messages of the run
  std::string student;  // the ID
  std::string name;
  std::string address;
  std::string attachment;  // a file's name; empty: none
  MailState state = MailState::kWaiting;
  std::string reason;   // in the server's words
  std::string changed;  // when the state last changed: "2026-09-01 08:15:00"

  friend bool operator==(const JournalMail&, const JournalMail&) = default;
};

// Open as long as a run lasts. Each change is on the disk when its call comes back, but for the
// note that a message was sent: after a power cut that one is uncertain.
class MailJournal {
 public:
  // Reading makes no file.
  static MailJournal ToRead(const std::string& class_path);
  static MailJournal ToWrite(const std::string& class_path);

  // Why there is no journal, or what failed; empty when all is well.
  const Fault& fault() const;

  // The messages of the last run with this subject, in their order.
  std::vector<JournalMail> LastRun(std::string_view subject);
  // Every message, the latest run first.
  std::vector<JournalMail> All();
  // A new run behind the others; the messages get their places.
  void Begin(std::vector<JournalMail>& mails);
  // More messages of a run that is there.
  void Add(std::vector<JournalMail>& mails);

  // The student has another one now; only of a message that did not go.
  void SetAddress(const JournalMail& mail);

  // The text is about to go. False when it must not: another program has taken this message, or
  // the journal cannot be written.
  bool Claim(const JournalMail& mail, std::string_view now);
  void Note(const JournalMail& mail, MailState state, std::string_view reason,
            std::string_view now);

  // How many messages went on a day, "2026-09-01".
  int SentOn(std::string_view day);

 private:
  explicit MailJournal(Companion companion) : companion_(std::move(companion)) {}
  std::vector<JournalMail> Read(const char* query, std::initializer_list<std::string_view> values);
  void Insert(std::vector<JournalMail>& mails, std::int64_t run);

  Companion companion_;
};

}  // namespace tallyroll
