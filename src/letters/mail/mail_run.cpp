// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/mail_run.h"

#include <chrono>
#include <ctime>
#include <thread>

#include "base/code_page.h"
#include "base/date_serial.h"
#include "base/number_text.h"

namespace tallyroll {
namespace {

// A server that puts off one after the other is full, whoever they are for.
constexpr int kMostPutOff = 3;

std::tm LocalTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return local;
}

double SerialOf(const std::tm& time) {
  const double day = DateSerial({time.tm_year + 1900, time.tm_mon + 1, time.tm_mday});
  return day + (time.tm_hour * 3600 + time.tm_min * 60 + time.tm_sec) / 86400.0;
}

// In the code page; what it lacks stands as a question mark in the server's words.
std::string ReasonText(const std::string& utf8) {
  const auto text = CodePageTextFromUtf8(utf8);
  return text ? text->text : std::string();
}

class MailRun {
 public:
  MailRun(MailSender& sender, MailJournal& journal, const MailRunOptions& options,
          const MailRunEvents& events)
      : sender_(sender), journal_(journal), options_(options), events_(events) {}

  // Whether the run goes on.
  bool Send(RunMail& mail) {
    if (!MaySend()) return false;
    const std::tm now = LocalTime();
    mail.mime.date = ZonedMailDate(SerialOf(now), now.tm_gmtoff);
    mail.mime.id = NewMessageId(mail.mime.from);
    bool taken = false;
    MailHooks hooks;
    hooks.goes_on = events_.goes_on;
    hooks.before_text = [&] { return !(taken = !journal_.Claim(mail.entry, JournalTime())); };
    const MailToSend to_send{mail.mime.from, mail.mime.to, MimeMessage(mail.mime)};
    const MailResult result = sender_.Send(to_send, hooks);
    if (!journal_.fault().empty()) return Stop("The journal can't be written: " + journal_.fault());
    if (taken) return NoteTaken(mail.entry);
    return Note(mail.entry, result);
  }

  const std::string& Reason() const { return reason_; }

 private:
  bool Stop(std::string reason) {
    reason_ = std::move(reason);
    return false;
  }

  bool MaySend() {
    if (options_.a_day > 0 && journal_.SentOn(JournalTime().substr(0, 10)) >= options_.a_day)
      return Stop("The limit of " + PlainNumberText(options_.a_day) +
                  " messages a day is reached. Go on tomorrow.");
    if (sent_ && !Pause()) return Stop("Cancelled");
    return events_.goes_on() || Stop("Cancelled");
  }

  bool Pause() const {
    using std::chrono::milliseconds;
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(options_.pause);
    while (std::chrono::steady_clock::now() < end) {
      if (!events_.goes_on()) return false;
      std::this_thread::sleep_for(milliseconds(50));
    }
    return true;
  }

  // Another program is at it.
  bool NoteTaken(JournalMail& entry) {
    entry.state = MailState::kTrying;
    entry.reason = "another program is sending it";
    events_.changed(entry);
    return true;
  }

  bool Note(JournalMail& entry, const MailResult& result) {
    entry.state = StateAfter(result.outcome);
    entry.reason = ReasonText(result.reason);
    entry.changed = JournalTime();
    journal_.Note(entry, entry.state, entry.reason, entry.changed);
    events_.changed(entry);
    if (!journal_.fault().empty()) return Stop("The journal can't be written: " + journal_.fault());
    sent_ = sent_ || result.outcome == MailOutcome::kSent;
    put_off_ = result.outcome == MailOutcome::kLater ? put_off_ + 1 : 0;
    const bool stopped = result.outcome == MailOutcome::kStopped ||
                         result.outcome == MailOutcome::kUncertain || put_off_ >= kMostPutOff;
    return !stopped || Stop(entry.reason);
  }

  static MailState StateAfter(MailOutcome outcome) {
    switch (outcome) {
      case MailOutcome::kSent:
        return MailState::kSent;
      case MailOutcome::kRefused:
        return MailState::kRefused;
      case MailOutcome::kUncertain:
        return MailState::kTrying;
      default:
        return MailState::kWaiting;
    }
  }

  MailSender& sender_;
  MailJournal& journal_;
  const MailRunOptions& options_;
  const MailRunEvents& events_;
  std::string reason_;
  int put_off_ = 0;
  bool sent_ = false;
};

}  // namespace

std::string RunMails(MailSender& sender, MailJournal& journal, std::vector<RunMail>& mails,
                     const MailRunOptions& options, const MailRunEvents& events) {
  MailRun run(sender, journal, options, events);
  for (RunMail& mail : mails)
    if (!run.Send(mail)) break;
  return run.Reason();
}

std::string JournalTime() {
  const std::tm time = LocalTime();
  const auto two = [](int number) {
    return std::string(number < 10 ? "0" : "") + PlainNumberText(number);
  };
  return PlainNumberText(time.tm_year + 1900) + "-" + two(time.tm_mon + 1) + "-" +
         two(time.tm_mday) + " " + two(time.tm_hour) + ":" + two(time.tm_min) + ":" +
         two(time.tm_sec);
}

}  // namespace tallyroll
