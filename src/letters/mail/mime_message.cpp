// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/mime_message.h"

#include <algorithm>
#include <ctime>
#include <random>

#include "base/line_reader.h"
#include "base/text.h"
#include "letters/mail/base64.h"
#include "letters/mail/one_line.h"
#include "letters/mail/smtp_dialogue.h"

namespace tallyroll {
namespace {

constexpr std::string_view kMimeLineEnd = "\r\n";
constexpr std::string_view kHexDigits = "0123456789ABCDEF";
constexpr std::size_t kLongestMimeLine = 76;
constexpr std::size_t kPlainSubject = 60;  // stands on the header's line
constexpr std::size_t kBytesAWord = 45;    // 60 characters in base64, 72 with what is around

std::string HexOf(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return {kHexDigits[byte >> 4], kHexDigits[byte & 15]};
}

bool IsPlainLetter(char c) {
  return c >= ' ' && c <= '~';
}

// As many bytes as a word holds, cut between characters.
std::string_view NextWordOf(std::string_view utf8) {
  std::size_t end = std::min(kBytesAWord, utf8.size());
  const auto within = [&](std::size_t at) {
    return at < utf8.size() && (static_cast<unsigned char>(utf8[at]) & 0xC0) == 0x80;
  };
  while (end > 1 && within(end)) --end;
  return utf8.substr(0, end);
}

// A line of the text may need several.
void AddQuotedLine(std::string_view line, std::string& out) {
  std::size_t length = 0;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    const bool last = i + 1 == line.size();
    const bool blank = c == ' ' || c == '\t';
    const bool plain = blank ? !last : IsPlainLetter(c) && c != '=';
    const std::string written = plain ? std::string(1, c) : "=" + HexOf(c);
    // One place stays for the sign that the line goes on.
    if (length + written.size() > kLongestMimeLine - (last ? 0 : 1)) {
      out += "=\r\n";
      length = 0;
    }
    out += written;
    length += written.size();
  }
  out += kMimeLineEnd;
}

std::string Base64Lines(std::string_view bytes) {
  constexpr std::size_t kBytesALine = 57;
  std::string text;
  text.reserve(bytes.size() / kBytesALine * 78 + 80);
  for (std::size_t at = 0; at < bytes.size(); at += kBytesALine)
    text += EncodeBase64(bytes.substr(at, kBytesALine)) + "\r\n";
  return text;
}

std::string TypeOf(const std::string& name) {
  return LowerCase(name).ends_with(".pdf") ? "application/pdf" : "application/octet-stream";
}

// Every byte that is not a letter, a digit or harmless, by its number.
std::string PercentText(std::string_view utf8) {
  std::string text;
  for (const char c : utf8) {
    const bool harmless = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') ||
                          (c >= '0' && c <= '9') || c == '.' || c == '-' || c == '_';
    text += harmless ? std::string(1, c) : "%" + HexOf(c);
  }
  return text;
}

std::string FileNameParameter(const std::string& name) {
  const std::string line = OneLine(name);
  const bool plain = std::ranges::all_of(
      line, [](char c) { return IsPlainLetter(c) && c != '"' && c != '\\' && c != '%'; });
  return plain ? "filename=\"" + line + "\"" : "filename*=UTF-8''" + PercentText(line);
}

std::string TextPart(const MimeMail& mail) {
  return "Content-Type: text/plain; charset=utf-8\r\n"
         "Content-Transfer-Encoding: quoted-printable\r\n\r\n" +
         QuotedPrintable(mail.text);
}

std::string AttachmentPart(const MailAttachment& attachment) {
  return "Content-Type: " + TypeOf(attachment.name) +
         "\r\nContent-Transfer-Encoding: base64\r\nContent-Disposition: attachment;\r\n " +
         FileNameParameter(attachment.name) + "\r\n\r\n" + Base64Lines(attachment.bytes);
}

std::string RandomName() {
  std::random_device random;
  std::string name;
  for (int i = 0; i < 32; ++i) name += LowerCase(kHexDigits.substr(random() & 15, 1));
  return name;
}

}  // namespace

std::string HeaderText(std::string_view utf8) {
  std::string line = OneLine(utf8);
  const bool plain = line.size() <= kPlainSubject && std::ranges::all_of(line, IsPlainLetter) &&
                     line.find("=?") == line.npos && Trim(line) == line;
  if (plain) return line;
  std::string words;
  for (std::string_view rest = line; !rest.empty();) {
    const std::string_view word = NextWordOf(rest);
    words += (words.empty() ? "=?UTF-8?B?" : "\r\n =?UTF-8?B?") + EncodeBase64(word) + "?=";
    rest.remove_prefix(word.size());
  }
  return words;
}

std::string QuotedPrintable(std::string_view text) {
  std::string out;
  out.reserve(text.size() + text.size() / 8);
  LineReader lines(text);
  while (const auto line = lines.Next()) AddQuotedLine(*line, out);
  return out;
}

std::string MimeMessage(const MimeMail& mail) {
  std::string message = "From: <" + OneLine(mail.from) + ">\r\nTo: <" + OneLine(mail.to) +
                        ">\r\nSubject: " + HeaderText(mail.subject) +
                        "\r\nDate: " + OneLine(mail.date) + "\r\nMessage-ID: " + OneLine(mail.id) +
                        "\r\nMIME-Version: 1.0\r\n";
  if (mail.attachments.empty()) return message + TextPart(mail);
  // Neither of the two ways of writing a part ever writes "=_".
  const std::string boundary = "=_" + RandomName();
  message += "Content-Type: multipart/mixed;\r\n boundary=\"" + boundary + "\"\r\n\r\n";
  message += "--" + boundary + "\r\n" + TextPart(mail);
  for (const MailAttachment& attachment : mail.attachments)
    message += "--" + boundary + "\r\n" + AttachmentPart(attachment);
  return message + "--" + boundary + "--\r\n";
}

std::string ZonedMailDate(double serial, long offset) {
  const long minutes = (offset < 0 ? -offset : offset) / 60;
  const long digits[] = {minutes / 600, minutes / 60 % 10, minutes % 60 / 10, minutes % 10};
  std::string zone = offset < 0 ? " -" : " +";
  for (const long digit : digits) zone += static_cast<char>('0' + digit);
  return MailDate(serial) + zone;
}

long OffsetFromUtc() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return local.tm_gmtoff;
}

std::string NewMessageId(std::string_view sender) {
  const std::size_t at = sender.find('@');
  const std::string domain = at == sender.npos ? "localhost" : OneLine(sender.substr(at + 1));
  return "<" + RandomName() + "@" + domain + ">";
}

}  // namespace tallyroll
