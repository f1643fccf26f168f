// SPDX-License-Identifier: GPL-3.0-or-later
// A message as servers and readers of today take it: plain letters throughout, whatever it says.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

struct MailAttachment {
  std::string name;  // UTF-8, without a folder
  std::string bytes;
};

struct MimeMail {
  std::string from, to;  // addresses
  std::string subject;   // UTF-8
  std::string text;      // UTF-8, any line ends
  std::vector<MailAttachment> attachments;
  std::string date;  // ZonedMailDate
  std::string id;    // NewMessageId
};

// Every line ends in carriage return and line feed. A dot at the start of a line stands as it is:
// whoever sends it doubles it.
std::string MimeMessage(const MimeMail& mail);

// "Tue, 01 Sep 2026 08:15:00 +0200" of a local day serial, with the offset from UTC in seconds.
std::string ZonedMailDate(double serial, long offset);
// The offset of this moment.
long OffsetFromUtc();

// A name that no other message has: "<...@school.org>" for an address there.
std::string NewMessageId(std::string_view sender);

// Words in plain letters that stand for any text of a header, each at most 75 long, parted by a
// fold; the text itself where it has nothing but plain letters and is short.
std::string HeaderText(std::string_view utf8);

// In lines of at most 76, a line end of the text being one of the result.
std::string QuotedPrintable(std::string_view text);

}  // namespace tallyroll
