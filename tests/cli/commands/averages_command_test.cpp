// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlohmann/json.hpp>

#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

using nlohmann::json;

// Quizzes at 50 and tests at 50; no test was written by the second student.
constexpr const char* kByTypes = R"({"description": "Algebra",
  "AverageSettings": "1,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0,0",
  "PercentsText": "0\r0\r0\r0\r0\r0\r0\r0\r0\r50\r0\r50\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0\r0",
  "LetterValues": ["100", "99", "95", "90", "88", "85", "80", "78", "75", "70", "68", "65", "60", "55"],
  "RoundMode": 0,
  "Instruments": [{"title": "Quiz", "code": "QZ1", "typecode": "Q ", "mvalue": 20},
                  {"title": "Test", "code": "T1", "typecode": "T ", "mvalue": 100}],
  "Students": [
    {"lastname": "Muñoz, Jr.", "firstname": "Zoé", "id": "7", "Marks": ["", "18.5", "A-"]},
    {"lastname": "Abe", "firstname": "Bo \"B\"", "id": "512", "Marks": ["", "14", "ABS"]}]})";

// 25.5 of 30 points.
constexpr const char* kByPoints = R"({
  "AverageSettings": "2,0,0,0,0",
  "Instruments": [{"typecode": "Q ", "mvalue": 20}, {"typecode": "T", "mvalue": 10},
                  {"typecode": "X", "mvalue": 5}],
  "Students": [{"lastname": "Abe", "firstname": "Bo", "id": "5", "Marks": ["", "18.5", "6", "1"]}]})";

class AveragesCommandTest : public CliTest {};

TEST_F(AveragesCommandTest, AveragesAndFinalGradesStandInATable) {
  // 18.5 of 20 are 92.5, "A-" is 90: 46.25 and 45. The other has 14 of 20 alone: 70.
  const CliRun run = RunCli({"averages", Build(kByTypes)});
  EXPECT_EQ(run.out,
            "Algebra\n"
            "\n"
            "NAME                ID   AVERAGE  GRADE\n"
            " 1 Abe, Bo \"B\"      512  70        70 (C-/SAT/2.0)\n"
            " 2 Muñoz, Jr., Zoé  7    91.25     90 (A-/EX/4.0)\n");
  EXPECT_EQ(run.err, "");
}

TEST_F(AveragesCommandTest, PointsStandBesideTheAverage) {
  EXPECT_EQ(RunCli({"averages", Build(kByPoints)}).out,
            "NAME        ID  POINTS   AVERAGE  GRADE\n"
            " 1 Abe, Bo  5   25.5/30  85        85 (B/SAT/3.0)\n");
}

TEST_F(AveragesCommandTest, JsonHoldsEveryFigure) {
  const json all = json::parse(RunCli({"averages", "--json", Build(kByTypes)}).out);
  ASSERT_EQ(all.size(), 2u);
  const json& abe = all[0];
  EXPECT_EQ(abe["id"], "512");
  EXPECT_EQ(abe["lastname"], "Abe");
  EXPECT_EQ(abe["firstname"], "Bo \"B\"");
  EXPECT_EQ(abe["ComputedAverage"], "70");
  EXPECT_EQ(abe["ExactAverage"], "70");
  EXPECT_EQ(abe["FinalGrade"], " 70 (C-/SAT/2.0)    ");
  EXPECT_EQ(abe["Marks0"], "70");
  ASSERT_EQ(abe["counts"].size(), 26u);
  ASSERT_EQ(abe["sums"].size(), 26u);
  ASSERT_EQ(abe["maxes"].size(), 26u);
  EXPECT_EQ(abe["counts"][9], 1);
  EXPECT_EQ(abe["sums"][9], "14");
  EXPECT_EQ(abe["maxes"][9], "20");
  EXPECT_EQ(abe["counts"][11], 0);
  EXPECT_EQ(abe["sums"][11], "-1");
  EXPECT_TRUE(abe["earned"].is_null());
  EXPECT_TRUE(abe["possible"].is_null());
  EXPECT_EQ(abe.size(), 12u);
  EXPECT_EQ(all[1]["lastname"], "Muñoz, Jr.");
  EXPECT_EQ(all[1]["ExactAverage"], "91.25");
}

TEST_F(AveragesCommandTest, JsonTellsTheAverageBeforeAndAfterRounding) {
  std::string text = kByPoints;
  text.replace(text.find("18.5"), 4, "17.97");
  const json all = json::parse(RunCli({"averages", "--json", Build(text)}).out);
  // 17.97 + 6 + 1 of 30: 2497 / 30 = 83.2333...
  EXPECT_EQ(all[0]["ComputedAverage"], "83.2333");
  EXPECT_EQ(all[0]["ExactAverage"], "83.23");
  EXPECT_EQ(all[0]["earned"], "24.97");
  EXPECT_EQ(all[0]["possible"], "30");
}

TEST_F(AveragesCommandTest, CsvQuotesWhatNeedsIt) {
  EXPECT_EQ(RunCli({"averages", "--csv", Build(kByTypes)}).out,
            "id,lastname,firstname,ComputedAverage,ExactAverage,FinalGrade,Marks0,earned,possible\n"
            "512,Abe,\"Bo \"\"B\"\"\",70,70, 70 (C-/SAT/2.0)    ,70,,\n"
            "7,\"Muñoz, Jr.\",Zoé,91.25,91.25, 90 (A-/EX/4.0)     ,90,,\n");
}

TEST_F(AveragesCommandTest, TheNameModeSorts) {
  const json by_id =
      json::parse(RunCli({"averages", "--json", "--name-mode", "73", Build(kByTypes)}).out);
  EXPECT_EQ(by_id[0]["id"], "512");
  std::string text = kByTypes;
  text.replace(text.find("\"512\""), 5, "\"812\"");
  const json other =
      json::parse(RunCli({"averages", "--json", "--name-mode", "82", Build(text)}).out);
  EXPECT_EQ(other[0]["id"], "7");
}

TEST_F(AveragesCommandTest, AClassWithoutStudentsIsRefused) {
  const std::string file = Build("{}");
  ExpectRefused(RunCli({"averages", file}), file + ": the class has no students");
  ExpectRefused(RunCli({"averages", "--json", file}), file + ": the class has no students");
  ExpectRefused(RunCli({"averages", "--csv", file}), file + ": the class has no students");
}

TEST_F(AveragesCommandTest, AStudentWithoutGrades) {
  const json all = json::parse(
      RunCli({"averages", "--json",
              Build(R"({"Students": [{"lastname": "A", "firstname": "B", "id": "1"}]})")})
          .out);
  EXPECT_EQ(all[0]["ExactAverage"], "0");
  EXPECT_EQ(all[0]["FinalGrade"], " 0 (F/UNSAT/ABS)  ");
  EXPECT_EQ(all[0]["Marks0"], " 0");
}

TEST_F(AveragesCommandTest, AMaximumScoreOfZeroIsRefusedByName) {
  std::string text = kByTypes;
  text.replace(text.find("\"mvalue\": 20"), 12, "\"mvalue\": 0");
  const std::string file = Build(text);
  ExpectRefused(RunCli({"averages", file}),
                file +
                    ": The average of Abe, Bo \"B\" can't be computed: the maximum score is 0 in "
                    "the grade \"Quiz\".");
}

TEST_F(AveragesCommandTest, MorePointsThan16BitsAreRefused) {
  std::string text = kByPoints;
  text.replace(text.find("\"mvalue\": 20"), 12, "\"mvalue\": 32758");
  const std::string file = Build(text);
  ExpectRefused(RunCli({"averages", file}),
                file + ": The average of Abe, Bo can't be computed: a number is too large.");
}

TEST_F(AveragesCommandTest, AnAverageAbove327) {
  std::string text = kByPoints;
  text.replace(text.find("18.5"), 4, "113");  // 120 of 30
  EXPECT_EQ(RunCli({"averages", Build(text)}).out,
            "NAME        ID  POINTS  AVERAGE  GRADE\n"
            " 1 Abe, Bo  5   120/30  400       100 (A+/EX/4.0)\n");
}

TEST_F(AveragesCommandTest, AFinalGradeBeyond16BitsIsRefused) {
  std::string text = kByPoints;
  text.replace(text.find("18.5"), 4, "9999");  // 10006 of 30 are 33353.3333
  const std::string file = Build(text);
  ExpectRefused(RunCli({"averages", file}),
                file + ": The average of Abe, Bo can't be computed: a number is too large.");
}

TEST_F(AveragesCommandTest, OneFormAtATime) {
  EXPECT_EQ(RunCli({"averages", "--csv", "--json", Build("{}")}).status, 2);
}

TEST_F(AveragesCommandTest, AFileThatIsMissingIsRefused) {
  ExpectRefused(RunCli({"averages", Path("none.TYR")}), Path("none.TYR") + ": File Error: 53");
}

}  // namespace
}  // namespace tallyroll
