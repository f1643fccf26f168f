// SPDX-License-Identifier: GPL-3.0-or-later
// Letters and labels without a screen.
#include <gmock/gmock.h>

#include <algorithm>

#include "letters/text/rtf_reader.h"
#include "tests/cli/run_cli.h"
#include "tests/letters/letter_texts.h"

namespace tallyroll {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;

constexpr const char* kTwoStudents =
    R"({"description": "Algebra", "Students": [
      {"lastname": "Ng", "firstname": "Ada", "id": "12", "city": "Köln", "parent": "Eve Ng"},
      {"lastname": "Ng", "firstname": "Bo", "id": "13", "city": "", "parent": "Max"}]})";
constexpr const char* kLetter =
    "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}}Dear {\\b <First} Name>, <City>\\par}";

class LettersCommandTest : public CliTest {
 protected:
  LettersCommandTest() { std::filesystem::create_directory(out); }

  CliRun Letters(std::vector<std::string> more) const {
    std::vector<std::string> arguments = {"letters", file, "--letter", letter, "--out", out};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return RunCli(arguments);
  }
  std::vector<std::string> Written() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(out))
      names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }

  const std::string file = Build(kTwoStudents);
  const std::string letter = Put("May.rtf", kLetter);
  const std::string out = Path("out");
};

TEST_F(LettersCommandTest, AFileForEachStudent) {
  const CliRun run = Letters({});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, out + "/May_Ng.RTF\n" + out + "/May_Ng_13.RTF\n");
  EXPECT_EQ(run.err, letter + ": <City> is empty for Ng, Bo.\n" + letter +
                         ": There are two letters for Ng: that of Ng, Bo is May_Ng_13.RTF\n");
  EXPECT_THAT(Written(), ElementsAre("May_Ng.RTF", "May_Ng_13.RTF"));
  const RichText ada = ReadRtf(Get(out + "/May_Ng.RTF")).text;
  EXPECT_EQ(WordsOf(ada), "Dear Ada, Köln");
  EXPECT_EQ(RunsOf(ada.paragraphs.at(0)), "[:Dear ][b:Ada][:, Köln]");
  EXPECT_EQ(Get(letter), kLetter) << "the form letter stays as it is";
}

TEST_F(LettersCommandTest, SomeStudentsAndPlainText) {
  const CliRun run = Letters({"--student", "13", "--format", "txt"});
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(Written(), ElementsAre("May_Ng.TXT"));
  EXPECT_EQ(Get(out + "/May_Ng.TXT"), "Dear Bo, ");
}

TEST_F(LettersCommandTest, APlainLetterGivesPlainLetters) {
  const std::string plain = Put("plain.txt", "<Last Name> <Date> <Class>\r\n");
  const CliRun run = RunCli({"letters", file, "--letter", plain, "--out", out, "--student", "12",
                             "--today", "2026-11-22"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(Get(out + "/plain_Ng.TXT"), "Ng 11/22/2026 Algebra\r\n");
}

TEST_F(LettersCommandTest, ACodeThatNobodyKnowsKeepsEveryLetterBack) {
  Put("May.rtf", "{\\rtf1 Dear <Nickname>}");
  const CliRun run = Letters({});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, letter + ": <Nickname> is no code: it would stand in the letter as it is.\n");
  EXPECT_THAT(Written(), ElementsAre());
}

TEST_F(LettersCommandTest, AValueWithItsOwnCodeKeepsEveryLetterBack) {
  Build(R"({"Students": [{"lastname": "Li", "firstname": "x<first name>"}]})");
  const CliRun run = Letters({});
  EXPECT_EQ(run.status, 1);
  EXPECT_THAT(run.err, HasSubstr("holds this code itself"));
  EXPECT_THAT(Written(), ElementsAre());
}

TEST_F(LettersCommandTest, WhatTheLetterCannotHoldIsTold) {
  Put("May.rtf", "{\\rtf1 Hello{\\pict 00}}");
  EXPECT_THAT(Letters({}).err, HasSubstr(letter + ": 1 picture was left out\n"));
}

TEST_F(LettersCommandTest, RefusesWhatCannotBe) {
  EXPECT_EQ(RunCli({"letters", file, "--letter", letter}).err,
            file + ": --out or --one-pdf must say where the letters go\n");
  EXPECT_EQ(RunCli({"letters", file, "--letter", letter, "--out", Path("none")}).err,
            Path("none") + ": there is no such folder\n");
  EXPECT_EQ(RunCli({"letters", file, "--letter", Path("none.rtf"), "--out", out}).err,
            Path("none.rtf") + ": File Error: 53 (there is no such file)\n");
  EXPECT_EQ(Letters({"--student", "77"}).err, file + ": no student has the ID 77\n");
  const std::string cut = Put("cut.rtf", "{\\rtf1 a");
  EXPECT_EQ(RunCli({"letters", file, "--letter", cut, "--out", out}).err,
            cut + ": it ends before its last group does\n");
  EXPECT_EQ(RunCli({"letters", Build("{}", "empty.TYR"), "--letter", letter, "--out", out}).err,
            Path("empty.TYR") + ": the class has no students\n");
  EXPECT_EQ(RunCli({"letters", file, "--out", out}).status, 2);
  EXPECT_THAT(Written(), ElementsAre());
}

TEST_F(LettersCommandTest, AClassFileIsNeverWrittenOver) {
  std::filesystem::copy_file(file, out + "/May_Ng.RTF");
  EXPECT_EQ(Letters({}).err, out + "/May_Ng.RTF: is a class file, which is left as it is\n");
  EXPECT_EQ(Get(out + "/May_Ng.RTF"), Get(file));
}

TEST_F(LettersCommandTest, LabelsNeedToKnowWhom) {
  EXPECT_EQ(RunCli({"labels", file, "--out", Path("l.pdf")}).status, 2);
  EXPECT_EQ(RunCli({"labels", file, "--to", "cat", "--out", Path("l.pdf")}).status, 2);
  EXPECT_EQ(
      RunCli({"labels", file, "--to", "parent", "--out", Path("l.pdf"), "--student", "9"}).err,
      file + ": no student has the ID 9\n");
}

}  // namespace
}  // namespace tallyroll
