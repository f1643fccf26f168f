// SPDX-License-Identifier: GPL-3.0-or-later
// What the command does without a server; tests/mail has the servers.
#include <filesystem>
#include <set>

#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

class MailCommandTest : public CliTest {
 protected:
  static std::string ClassOf(const std::string& second_address) {
    return R"({"Instruments": [{"title": "Quiz", "code": "Q1", "typecode": "Q ", "mvalue": 20,
               "testdate": "9/3/2026"}],
               "Students": [{"lastname": "Ng", "firstname": "Ada", "id": "7",
                             "email": "ada@home.org", "Marks": ["", "18"]},
                            {"lastname": "O'Hara", "firstname": "B\u00f6", "id": "3",
                             "email": ")" +
           second_address + R"(", "Marks": ["", "15"]}]})";
  }
  CliRun Mail(std::vector<std::string> options) const {
    std::vector<std::string> line = {"mail", file_, "--report", "13", "--from", "t@school.org"};
    line.insert(line.end(), options.begin(), options.end());
    return RunCli(line);
  }
  const std::string file_ = Build(ClassOf("bo@home.org"));
};

TEST_F(MailCommandTest, ADryRunSaysWhoWouldGetWhat) {
  const CliRun run = Mail({"--dry-run"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "would be sent\t7\tada@home.org\nwould be sent\t3\tbo@home.org\n");
  EXPECT_FALSE(std::filesystem::exists(Path("class.tyx")));
}

TEST_F(MailCommandTest, WhoHasNoAddressIsNamed) {
  Build(ClassOf(""));
  const CliRun run = Mail({"--dry-run"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "would be sent\t7\tada@home.org\nno address\t3\t\n");
  Build(ClassOf(R"(a b\r\nBcc: x@y)"));
  EXPECT_EQ(Mail({"--dry-run", "--student", "3"}).out, "is no address\t3\ta b  Bcc: x@y\n");
}

TEST_F(MailCommandTest, AnAddressOfTwoIsRefusedUntilItIsMeant) {
  Build(ClassOf("ADA@home.org"));
  const CliRun run = Mail({"--dry-run"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_NE(run.err.find("stands for several students"), std::string::npos);
  EXPECT_EQ(Mail({"--dry-run", "--allow-shared"}).status, 0);
}

TEST_F(MailCommandTest, EachMessageIsAFile) {
  const CliRun run = Mail({"--eml", Path("out"), "--subject", "\xC3\x89l\xC3\xA8ve"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "written\t7\tada@home.org\nwritten\t3\tbo@home.org\n");
  const std::string ada = Get(Path("out/7 Ng, Ada.eml"));
  EXPECT_TRUE(
      ada.starts_with("From: <t@school.org>\r\nTo: <ada@home.org>\r\n"
                      "Subject: =?UTF-8?B?w4lsw6h2ZQ==?=\r\nDate: "))
      << ada;
  EXPECT_NE(ada.find("7 Ng, Ada"), std::string::npos);
  EXPECT_EQ(ada.find("O'Hara"), std::string::npos);
  EXPECT_TRUE(std::filesystem::exists(Path("out/3 O'Hara, B\xC3\xB6.eml")));
  EXPECT_FALSE(std::filesystem::exists(Path("class.tyx")));
}

TEST_F(MailCommandTest, WhatCannotBeSentIsRefusedBeforehand) {
  const auto refused = [this](std::vector<std::string> options, const std::string& why) {
    ExpectRefused(Mail(std::move(options)), file_ + ": " + why);
  };
  refused({}, "sending needs --server");
  refused({"--student", "9", "--dry-run"}, "no student has the ID 9");
  refused({"--server", "no server"}, "--server is no name of a server");
  refused({"--server", "a:b"}, "the port of --server must be a number from 1 to 65535");
  refused({"--server", "mail.org", "--user", "ada"}, "--user needs --password-from");
  refused({"--server", "mail.org", "--security", "plain", "--user", "ada", "--password-from", "0"},
          "a password is not sent unprotected: choose --security starttls or tls");
  refused({"--server", "mail.org", "--user", "ada", "--password-from", Path("none")},
          "the file of the password can't be read");
  ExpectRefused(RunCli({"mail", file_, "--report", "19", "--from", "t@s.org", "--dry-run"}),
                file_ +
                    ": this report shows the whole class; only one on single students goes to "
                    "each");
  ExpectRefused(RunCli({"mail", file_, "--report", "13", "--from", "teacher", "--dry-run"}),
                file_ + ": --from must be an address, name@domain");
}

class MailLetterTest : public MailCommandTest {
 protected:
  CliRun Letter(std::vector<std::string> options) const {
    std::vector<std::string> line = {"mail", file_, "--letter", letter, "--from", "t@school.org"};
    line.insert(line.end(), options.begin(), options.end());
    return RunCli(line);
  }
  const std::string letter =
      Put("Progress.rtf", "{\\rtf1\\ansi Dear {\\b <First} Name>,\\par \\u913?lpha}");
};

TEST_F(MailLetterTest, EachGetsTheirOwnAndNobodyElses) {
  const CliRun run = Letter({"--eml", Path("out")});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "written\t7\tada@home.org\nwritten\t3\tbo@home.org\n");
  const std::string ada = Get(Path("out/7 Ng, Ada.eml"));
  EXPECT_NE(ada.find("\r\nSubject: Progress\r\n"), std::string::npos) << ada;
  EXPECT_NE(ada.find("\r\n\r\nDear Ada,\r\n=CE=91lpha"), std::string::npos) << ada;
  const std::string bo = Get(Path("out/3 O'Hara, B\xC3\xB6.eml"));
  EXPECT_NE(bo.find("\r\n\r\nDear B=C3=B6,\r\n"), std::string::npos) << bo;
  EXPECT_EQ(bo.find("Ada"), std::string::npos);
}

TEST_F(MailLetterTest, AStudentNamedTwiceGetsOne) {
  const CliRun run = Letter({"--dry-run", "--student", "7", "--student", "7"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "would be sent\t7\tada@home.org\n");
}

TEST_F(MailLetterTest, WhatIsLeftEmptyOrOutIsTold) {
  Put("Progress.rtf", "{\\rtf1 <City>!{\\pict 00}}");
  const CliRun run = Letter({"--dry-run", "--student", "7"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "would be sent\t7\tada@home.org\n");
  EXPECT_EQ(run.err,
            letter + ": 1 picture was left out\n" + letter + ": <City> is empty for Ng, Ada.\n");
}

TEST_F(MailLetterTest, ALetterThatIsNotInOrderGoesToNobody) {
  const auto refused = [this](const char* text, const std::string& why) {
    Put("Progress.rtf", text);
    ExpectRefused(Letter({"--eml", Path("out")}), letter + ": " + why);
    EXPECT_FALSE(std::filesystem::exists(Path("out")));
  };
  refused("{\\rtf1 <Nickname>}", "<Nickname> is no code: it would stand in the letter as it is.");
  refused("{\\rtf1 a", "it ends before its last group does");
  Put("Progress.rtf", "{\\rtf1 }");
  ExpectRefused(Letter({"--eml", Path("out")}), file_ + ": the letter is empty");
  std::filesystem::remove(letter);
  ExpectRefused(Letter({"--dry-run"}), letter + ": File Error: 53 (there is no such file)");
}

TEST_F(MailLetterTest, ALetterIsNoReport) {
  EXPECT_EQ(Letter({"--report", "13", "--dry-run"}).status, 2);
  ExpectRefused(Letter({"--pdf", "--dry-run"}),
                file_ + ": --pdf, --attendance, --comments and --code-details go with --report");
  ExpectRefused(RunCli({"mail", file_, "--from", "t@s.org", "--dry-run"}),
                file_ + ": --report or --letter must say what goes");
}

}  // namespace
}  // namespace tallyroll
