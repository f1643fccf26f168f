// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/cli/commands/graded_class.h"

namespace tallyroll {
namespace {

using nlohmann::json;

// 92.5 of quizzes and 90 of tests, at 50 each.
constexpr const char* kTwoTypes = R"({"RoundMode": 0,
  "AverageSettings": "1,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0",
  "PercentsText": "0\r0\r0\r0\r0\r0\r0\r0\r0\r50\r0\r50\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0",
  "LetterValues": ["100", "99", "95", "90", "88", "85", "80", "78", "75", "70", "68", "65", "60", "55"],
  "Instruments": [{"title": "Quiz one", "code": "QZ1", "typecode": "Q ", "mvalue": 20},
                  {"title": "Test one", "code": "T1", "typecode": "T ", "mvalue": 100}],
  "Students": [
    {"lastname": "Muñoz", "firstname": "Zoé", "id": "7", "Marks": ["", "18.5", "A-"]},
    {"lastname": "Abe", "firstname": "Bo", "id": "512", "Marks": ["", "14", "ABS"]}]})";

class ExplainCommandTest : public CliTest {};

TEST_F(ExplainCommandTest, ThePageIsWrittenAsText) {
  const CliRun run = RunCli({"explain", Build(kTwoTypes), "--student", "7"});
  EXPECT_EQ(run.err, "");
  EXPECT_NE(run.out.find("Average Explained for"), std::string::npos) << run.out;
  EXPECT_NE(run.out.find("What the types count adds up to 91.25, of a weight of 100."),
            std::string::npos)
      << run.out;
  EXPECT_NE(run.out.find("Final grade: 90 (A-/EX/4.0)"), std::string::npos) << run.out;
}

TEST_F(ExplainCommandTest, JsonHoldsTheStepsInOrder) {
  const CliRun run = RunCli({"explain", Build(kTwoTypes), "--student", "512", "--json"});
  EXPECT_EQ(run.err, "");
  const json answer = json::parse(run.out);
  EXPECT_EQ(answer["ComputedAverage"], "70");
  EXPECT_EQ(answer["ExactAverage"], "70");
  EXPECT_EQ(answer["FinalGrade"], " 70 (C-/SAT/2.0)    ");
  std::vector<std::string> rules;
  for (const json& step : answer["steps"]) rules.push_back(step["rule"]);
  EXPECT_EQ(rules,
            (std::vector<std::string>{
                "counted", "left out", "type weighed", "type without grades", "divided", "average",
                "rounded to two decimals", "minimum missed", "minimum missed", "minimum missed",
                "minimum missed", "minimum missed", "minimum missed", "minimum missed",
                "minimum missed", "minimum missed", "minimum reached", "final grade"}));
  EXPECT_EQ(answer["steps"][0]["grade"], "Quiz one");
  EXPECT_EQ(answer["steps"][0]["percent"], "70");
  EXPECT_EQ(answer["steps"][3]["type"], "T");
  EXPECT_EQ(answer["steps"][3]["before"], "100");
  EXPECT_EQ(answer["steps"][3]["after"], "50");
}

TEST_F(ExplainCommandTest, AsHtmlItIsAPageInUtf8) {
  const CliRun run = RunCli({"explain", Build(kTwoTypes), "--student", "7", "--html"});
  EXPECT_NE(run.out.find("charset=utf-8"), std::string::npos);
  EXPECT_NE(run.out.find("Muñoz"), std::string::npos);
}

TEST_F(ExplainCommandTest, ItEndsWithTheFiguresOfTheAverages) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    const int method = static_cast<int>(seed % 4);
    const std::string file = Build(GradedClass(seed).Make(method));
    for (const json& student : json::parse(RunCli({"averages", "--json", file}).out)) {
      const std::string id = student["id"];
      const CliRun run = RunCli({"explain", file, "--student", id, "--json"});
      ASSERT_EQ(run.status, 0) << run.err;
      const json explained = json::parse(run.out);
      EXPECT_EQ(explained["ComputedAverage"], student["ComputedAverage"]) << seed;
      EXPECT_EQ(explained["ExactAverage"], student["ExactAverage"]) << seed;
      EXPECT_EQ(explained["FinalGrade"], student["FinalGrade"]) << seed;
    }
  }
}

TEST_F(ExplainCommandTest, WhatCannotBeExplainedIsRefused) {
  const std::string file = Build(kTwoTypes);
  ExpectRefused(RunCli({"explain", file, "--student", "99"}), file + ": no student has the ID 99");
  const std::string plain = Build(R"({"Students": [{"id": "7", "Marks": [""]}]})");
  ExpectRefused(RunCli({"explain", plain, "--student", "7"}),
                plain +
                    ": the class has no averages: it needs grades, and weights or points for "
                    "them");
  EXPECT_EQ(RunCli({"explain", file}).status, 2);
}

}  // namespace
}  // namespace tallyroll
