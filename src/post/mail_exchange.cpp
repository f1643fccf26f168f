// SPDX-License-Identifier: GPL-3.0-or-later
#include "post/mail_exchange.h"

#include <algorithm>

namespace tallyroll {
namespace {

constexpr std::size_t kLongestReason = 500;

// Whether more of the same reply follows.
bool GoesOn(std::string_view line) {
  return line.size() > 3 && line[3] == '-';
}

int CodeOf(std::string_view line) {
  if (line.size() < 3) return 0;
  int code = 0;
  for (const char c : line.substr(0, 3)) {
    if (c < '0' || c > '9') return 0;
    code = code * 10 + (c - '0');
  }
  return code;
}

// Concerns the connection, whoever a message is for.
bool EndsEverything(int code) {
  constexpr int kCodes[] = {421, 454, 530, 534, 535, 538};
  return std::ranges::find(kCodes, code) != std::end(kCodes);
}

}  // namespace

void MailExchange::Said(std::string_view line) {
  if (line.starts_with("MAIL FROM")) step_ = Step::kAddresses;
  if (line.starts_with("DATA")) step_ = Step::kText;
}

void MailExchange::Heard(std::string_view line) {
  while (!line.empty() && (line.back() == '\r' || line.back() == '\n')) line.remove_suffix(1);
  const int code = CodeOf(line);
  if (code == 0) return;
  if (code != code_ || !reply_goes_on_) reply_.clear();
  reply_goes_on_ = GoesOn(line);
  code_ = code;
  if (!reply_.empty()) reply_ += ' ';
  reply_ += reply_.empty() ? line : line.substr(std::min<std::size_t>(4, line.size()));
  if (reply_.size() > kLongestReason) reply_.resize(kLongestReason);
  if (text_ended_) replied_after_text_ = true;
}

MailResult MailExchange::ResultOfReply() const {
  if (EndsEverything(code_)) return {MailOutcome::kStopped, reply_};
  return {code_ >= 500 ? MailOutcome::kRefused : MailOutcome::kLater, reply_};
}

MailResult MailExchange::Result(const std::string& failure) const {
  if (failure.empty()) return {MailOutcome::kSent, {}};
  const bool bad_reply = code_ >= 400;
  if (MayHaveGone() && !(bad_reply && replied_after_text_))
    return {MailOutcome::kUncertain, failure};
  if (step_ != Step::kConnecting && bad_reply) return ResultOfReply();
  return {MailOutcome::kStopped, bad_reply ? reply_ : failure};
}

}  // namespace tallyroll
