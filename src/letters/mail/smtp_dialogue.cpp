// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/smtp_dialogue.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/date_serial.h"
#include "base/number_text.h"
#include "base/text.h"
#include "letters/mail/base64.h"
#include "letters/mail/one_line.h"

namespace tallyroll {
namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::size_t kLongestReply = 65536;
constexpr i16 kGreeting = 0, kFrom = 1, kTo = 2, kData = 3, kText = 4, kQuit = 5, kGone = 6;

bool Holds(std::string_view text, std::string_view word) {
  return LowerCase(text).find(word) != std::string::npos;
}

SmtpAnswer Send(std::string_view line) {
  return {.sends = {std::string(line) + std::string(kLineEnd)}};
}

// What the server asks for stands behind the code, as base64.
SmtpAnswer AnswerPrompt(std::string_view reply, const PlainMessage& message) {
  std::string prompt(reply.substr(3));
  std::erase_if(prompt, [](char c) { return c == '\r' || c == '\n'; });
  const std::string asked = DecodeBase64String(Trim(prompt));
  if (Holds(asked, "username")) return Send(EncodeBase64(Trim(message.username)));
  if (Holds(asked, "password")) return Send(EncodeBase64(Trim(message.password)));
  return Send("*");
}

std::string Greeting(const PlainMessage& message) {
  const std::string sender = OneLine(Trim(message.sender));
  const std::size_t at = sender.find('@');
  return (message.auth ? "EHLO " : "HELO ") + (at == std::string::npos ? "" : sender.substr(0, at));
}

SmtpAnswer SendMessage(const PlainMessage& message) {
  const std::string end(kLineEnd);
  return {.sends = {"From: <" + OneLine(message.sender) + ">" + end,
                    "To: <" + OneLine(message.recipient) + ">" + end,
                    "Subject:" + OneLine(message.subject) + end, "Date:" + message.date + end + end,
                    message.text + end + end + message.attachment + end, "." + end}};
}

}  // namespace

SmtpAnswer SmtpDialogue::Step(const PlainMessage& message) {
  const i16 state = state_;
  if (state_ < kGone) ++state_;
  switch (state) {
    case kGreeting:
      return Send(Greeting(message));
    case kFrom:
      return Send("MAIL FROM:" + OneLine(Trim(message.sender)));
    case kTo:
      return Send("RCPT TO:" + OneLine(Trim(message.recipient)));
    case kData:
      return Send("DATA");
    case kText:
      return SendMessage(message);
    case kQuit:
      return Send("QUIT");
    default:
      return {.sends = {}, .by_state = true, .close = true};
  }
}

SmtpAnswer SmtpDialogue::ByState(const PlainMessage& message) {
  SmtpAnswer answer = Step(message);
  answer.by_state = true;
  return answer;
}

SmtpAnswer SmtpDialogue::Answer(std::string_view reply, const PlainMessage& message) {
  const std::string_view code = reply.substr(0, 3);
  if (code == "250" && Holds(reply, "login") && Holds(reply, "auth")) return Send("AUTH Login");
  if (code == "334") return AnswerPrompt(reply, message);
  constexpr std::array<std::string_view, 4> kGoodCodes = {"220", "235", "250", "354"};
  if (std::find(kGoodCodes.begin(), kGoodCodes.end(), code) != kGoodCodes.end())
    return ByState(message);
  const bool sent = state_ == kGone;
  return {.sends = {}, .close = true, .verdict = sent ? SmtpVerdict::kSent : SmtpVerdict::kRefused};
}

bool IsWholeReply(std::string_view received) {
  if (received.size() > kLongestReply) return true;
  if (!received.ends_with('\n')) return false;
  received.remove_suffix(1);
  const std::size_t before = received.rfind('\n');
  const std::string_view last =
      before == std::string_view::npos ? received : received.substr(before + 1);
  return last.size() < 4 || last[3] != '-';
}

std::string MailDate(double serial) {
  constexpr std::array kDays = {"Sat", "Sun", "Mon", "Tue", "Wed", "Thu", "Fri"};
  constexpr std::int64_t kSecondsADay = 86400;
  // The nearest second: a serial holds fractions of a day.
  const auto seconds = static_cast<std::int64_t>(std::llround(serial * kSecondsADay));
  const std::int64_t day = seconds / kSecondsADay, time = seconds % kSecondsADay;
  const CivilDate date = DateOfSerial(static_cast<double>(day));
  const auto two = [](std::int64_t number) {
    return std::string(number < 10 ? "0" : "") + PlainNumberText(number);
  };
  return std::string(kDays[static_cast<std::size_t>(day % 7)]) + ", " + two(date.day) + " " +
         std::string(MonthName(date.month).substr(0, 3)) + " " + PlainNumberText(date.year) + " " +
         two(time / 3600) + ":" + two(time / 60 % 60) + ":" + two(time % 60);
}

}  // namespace tallyroll
