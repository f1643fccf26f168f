// SPDX-License-Identifier: GPL-3.0-or-later
// How far a message has come, from what was said on the connection: only that tells whether it may
// be sent again.
#pragma once

#include <string>
#include <string_view>

#include "platform/mail_sender.h"

namespace tallyroll {

class MailExchange {
 public:
  // What the client said last decides what an answer is about.
  void Said(std::string_view line);
  // A line of the server.
  void Heard(std::string_view line);
  void TextBegins() { text_begun_ = true; }
  void TextEnds() { text_ended_ = true; }
  bool TextBegun() const { return text_begun_; }
  // The server may have all of it; before that it has nothing that it could deliver.
  bool MayHaveGone() const { return text_ended_; }

  // `failure` is empty when all went well, otherwise why the connection failed, in words.
  MailResult Result(const std::string& failure) const;

 private:
  MailResult ResultOfReply() const;

  enum class Step { kConnecting, kAddresses, kText };
  Step step_ = Step::kConnecting;
  bool text_begun_ = false, text_ended_ = false;
  int code_ = 0;       // of the last reply
  std::string reply_;  // its words
  bool reply_goes_on_ = false;
  bool replied_after_text_ = false;
};

}  // namespace tallyroll
