// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/mime_message.h"

#include <gtest/gtest.h>

#include "letters/mail/base64.h"
#include "letters/mail/mail_address.h"

namespace tallyroll {
namespace {

MimeMail Sample() {
  return {.from = "teacher@school.org",
          .to = "parent@home.org",
          .subject = "\xC3\x89l\xC3\xA8ve",
          .text = "Caf\xC3\xA9 = 1\r\n.\r\n\r\nend ",
          .attachments = {},
          .date = "Tue, 01 Sep 2026 08:15:00 +0200",
          .id = "<1@school.org>"};
}

TEST(MimeMessage, ATextAloneIsOnePart) {
  EXPECT_EQ(MimeMessage(Sample()),
            "From: <teacher@school.org>\r\n"
            "To: <parent@home.org>\r\n"
            "Subject: =?UTF-8?B?w4lsw6h2ZQ==?=\r\n"
            "Date: Tue, 01 Sep 2026 08:15:00 +0200\r\n"
            "Message-ID: <1@school.org>\r\n"
            "MIME-Version: 1.0\r\n"
            "Content-Type: text/plain; charset=utf-8\r\n"
            "Content-Transfer-Encoding: quoted-printable\r\n"
            "\r\n"
            "Caf=C3=A9 =3D 1\r\n.\r\n\r\nend=20\r\n");
}

TEST(MimeMessage, AnAttachmentIsAPartOfItsOwn) {
  MimeMail mail = Sample();
  mail.attachments = {{"Ng, Ada.pdf", std::string(58, 'A')}};
  const std::string message = MimeMessage(mail);
  const std::size_t at = message.find("boundary=\"");
  ASSERT_NE(at, std::string::npos);
  const std::string boundary = message.substr(at + 10, 34);
  const std::string head = "\r\n--" + boundary + "\r\n";
  EXPECT_TRUE(
      message.ends_with(head +
                        "Content-Type: application/pdf\r\nContent-Transfer-Encoding: base64\r\n"
                        "Content-Disposition: attachment;\r\n filename=\"Ng, Ada.pdf\"\r\n\r\n" +
                        EncodeBase64(std::string(57, 'A')) + "\r\n" + EncodeBase64("A") + "\r\n--" +
                        boundary + "--\r\n"));
  EXPECT_NE(message.find(head + "Content-Type: text/plain"), std::string::npos);
}

TEST(MimeMessage, AFileNameOfOtherLettersGoesByNumbers) {
  MimeMail mail = Sample();
  mail.attachments = {{"\xC3\x89lise \"x\".bin", ""}};
  EXPECT_NE(MimeMessage(mail).find("filename*=UTF-8''%C3%89lise%20%22x%22.bin\r\n"),
            std::string::npos);
  EXPECT_NE(MimeMessage(mail).find("Content-Type: application/octet-stream\r\n"),
            std::string::npos);
}

TEST(MimeMessage, NothingMakesAHeader) {
  MimeMail mail = Sample();
  mail.from = "a@b\r\nBcc: c@d";
  mail.to = std::string("e@f\nBcc: g@h\0", 13);
  mail.subject = "Hi\r\n\r\nBcc: i@j";
  mail.attachments = {{"a\r\nBcc: k@l\r\n.pdf", "x"}};
  const std::string message = MimeMessage(mail);
  EXPECT_EQ(message.find("\nBcc"), std::string::npos);
  EXPECT_EQ(message.find('\0'), std::string::npos);
}

TEST(MimeMessage, NoLineIsBareOrTooLong) {
  MimeMail mail = Sample();
  mail.text = std::string(5000, 'x') + "\n" + std::string(300, ' ') + "\r" + "\xC3\xA9";
  mail.attachments = {{"a.pdf", std::string(10000, '\n')}};
  const std::string message = MimeMessage(mail);
  std::size_t start = 0;
  for (std::size_t end = 0; (end = message.find('\n', start)) != std::string::npos;
       start = end + 1) {
    ASSERT_GT(end, start);
    EXPECT_EQ(message[end - 1], '\r');
    EXPECT_LE(end - 1 - start, 76u);
  }
  EXPECT_EQ(start, message.size());
}

TEST(QuotedPrintable, WhatTouchesTheEdgeIsWritten) {
  EXPECT_EQ(QuotedPrintable("a\tb\t"), "a\tb=09\r\n");
  EXPECT_EQ(QuotedPrintable(std::string(76, 'x')), std::string(76, 'x') + "\r\n");
  EXPECT_EQ(QuotedPrintable(std::string(77, 'x')), std::string(75, 'x') + "=\r\nxx\r\n");
  EXPECT_EQ(QuotedPrintable(std::string(75, 'x') + " "), std::string(75, 'x') + "=\r\n=20\r\n");
  EXPECT_EQ(QuotedPrintable(""), "");
}

TEST(HeaderText, PlainLettersStayAsTheyAre) {
  EXPECT_EQ(HeaderText("Marks of the first term"), "Marks of the first term");
  EXPECT_EQ(HeaderText("=?x?="), "=?UTF-8?B?PT94Pz0=?=");
}

// 45 bytes a word, never through the middle of a character.
TEST(HeaderText, ALongTextIsFoldedBetweenCharacters) {
  std::string text;
  for (int i = 0; i < 40; ++i) text += "\xC3\xA9";
  std::string first, second;
  for (int i = 0; i < 22; ++i) first += "\xC3\xA9";
  for (int i = 0; i < 18; ++i) second += "\xC3\xA9";
  EXPECT_EQ(HeaderText(text),
            "=?UTF-8?B?" + EncodeBase64(first) + "?=\r\n =?UTF-8?B?" + EncodeBase64(second) + "?=");
}

TEST(ZonedMailDate, SaysTheOffset) {
  EXPECT_EQ(ZonedMailDate(46266, 7200), "Tue, 01 Sep 2026 00:00:00 +0200");
  EXPECT_EQ(ZonedMailDate(46266, -12600), "Tue, 01 Sep 2026 00:00:00 -0330");
  EXPECT_EQ(ZonedMailDate(46266, 0), "Tue, 01 Sep 2026 00:00:00 +0000");
}

TEST(NewMessageId, IsNeverTheSame) {
  const std::string id = NewMessageId("teacher@school.org");
  EXPECT_TRUE(id.ends_with("@school.org>"));
  EXPECT_NE(id, NewMessageId("teacher@school.org"));
}

TEST(MailAddress, IsOneNameAtOneDomain) {
  for (const char* good : {"a@b", "ada.ng+x@home.example.org", "o'hara@a-b.org", "1@2.3"})
    EXPECT_TRUE(IsMailAddress(good)) << good;
  for (const char* bad : {"",      "a",      "@b",      "a@",    "a@b@c",  "a b@c",  "a@b,c@d",
                          "<a@b>", "a@b.",   "a@.b",    ".a@b",  "a.@b",   "a..b@c", "a@-b",
                          "a@b-",  "a@b-.c", "a@b\r\n", "a\n@b", "\xE9@b", "a@b;",   "a@b_c"})
    EXPECT_FALSE(IsMailAddress(bad)) << bad;
  EXPECT_FALSE(IsMailAddress(std::string_view("a@b\0", 4)));
  EXPECT_FALSE(IsMailAddress(std::string(65, 'a') + "@b"));
}

}  // namespace
}  // namespace tallyroll
