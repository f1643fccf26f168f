// SPDX-License-Identifier: GPL-3.0-or-later
// The plain dialogue with a mail server: what is sent upon each reply. It knows no socket.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "store/records.h"

namespace tallyroll {

// The message as the teacher filled it in, in the class file's code page; read anew upon each
// reply.
struct PlainMessage {
  std::string sender, recipient, subject;
  std::string text;
  std::string attachment;  // uuencoded
  std::string date;        // MailDate
  bool auth = false;
  std::string username, password;
};

// Beyond it the server has taken the message.
inline constexpr i16 kSmtpTextSent = 5;

enum class SmtpVerdict { kGoesOn, kSent, kRefused };

struct SmtpAnswer {
  std::vector<std::string> sends;  // one after the other; each with its line end
  bool by_state = false;           // not by what the server asks for
  bool close = false;              // the socket
  SmtpVerdict verdict = SmtpVerdict::kGoesOn;
};

class SmtpDialogue {
 public:
  // Before each connection.
  void Reset() { state_ = 0; }
  i16 State() const { return state_; }

  // `reply` is all that was received.
  SmtpAnswer Answer(std::string_view reply, const PlainMessage& message);

 private:
  SmtpAnswer ByState(const PlainMessage& message);
  SmtpAnswer Step(const PlainMessage& message);

  i16 state_ = 0;
};

// Whether the received text ends with the last line of a reply: "250 " after "250-" lines. Until
// then the rest is on its way. A text beyond any reply's size is waited for no longer.
bool IsWholeReply(std::string_view received);

// "Tue, 01 Sep 2026 08:15:00" of a day serial.
std::string MailDate(double serial);

}  // namespace tallyroll
