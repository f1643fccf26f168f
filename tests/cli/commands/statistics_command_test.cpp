// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlohmann/json.hpp>

#include "tests/cli/run_cli.h"
#include "tests/support/source_dir.h"

namespace tallyroll {
namespace {

using nlohmann::json;

// Quiz: 80 and 90 are counted, as two grades are whose deviation is 5. Nobody wrote the test.
constexpr const char* kQuizClass = R"({"description": "Algebra",
  "Instruments": [{"title": "Quiz 1 ", "code": "Q1 ", "typecode": "Q ", "mvalue": 100},
                  {"title": "Test, 1", "code": "T1", "typecode": "T ", "mvalue": 30}],
  "Students": [
    {"lastname": "Abe", "firstname": "Bo", "id": "5", "Marks": ["", "80", "ABS"]},
    {"lastname": "Cho", "firstname": "Di", "id": "6", "Marks": ["", "90", "NEW"]},
    {"lastname": "Eng", "firstname": "Fa", "id": "7", "Marks": ["", "CUT", "EXC"]}]})";

class StatisticsCommandTest : public CliTest {};

TEST_F(StatisticsCommandTest, JsonHoldsWhatThePortalShows) {
  const CliRun run = RunCli({"statistics", "--json", Build(kQuizClass)});
  EXPECT_EQ(run.err, "");
  const json all = json::parse(run.out);
  ASSERT_EQ(all.size(), 2u);
  const json& quiz = all[0];
  const std::map<std::string, std::string> shown = {
      {"title", "Quiz 1"}, {"code", "Q1"},       {"present", "2"}, {"absent", "1"},
      {"passed", "2"},     {"perpassed", "100"}, {"failed", "0"},  {"perfailed", "0"},
      {"lowest", "80"},    {"highest", "90"},    {"std", "5"},     {"average", "85"},
      {"lpassv", "65"}};
  for (const auto& [name, text] : shown) EXPECT_EQ(quiz[name], text) << name;
  EXPECT_EQ(quiz["ranges"], json({0, 1, 0, 1, 0, 0, 0, 0, 0}));
  EXPECT_EQ(quiz["median"], 85);
  EXPECT_EQ(quiz["quartiles"], json({82.5, 87.5}));
  EXPECT_EQ(quiz["n"], 2);
}

TEST_F(StatisticsCommandTest, FiguresThatCannotBeMadeAreNull) {
  const json test =
      json::parse(RunCli({"statistics", "--json", "--grade", "T1", Build(kQuizClass)}).out)[0];
  EXPECT_EQ(test["title"], "Test, 1");
  EXPECT_EQ(test["lpassv"], "19.5");
  for (const char* name : {"present", "absent", "std", "average", "lowest", "median", "quartiles"})
    EXPECT_TRUE(test[name].is_null()) << name;
  EXPECT_EQ(test["n"], 0);
}

TEST_F(StatisticsCommandTest, TextNamesEachFigure) {
  const CliRun run = RunCli({"statistics", "--grade", "1", Build(kQuizClass)});
  EXPECT_EQ(run.out,
            "Algebra\n"
            "\n"
            "Title                 Quiz 1\n"
            "Code                  Q1\n"
            "# Present for Test    2\n"
            "# Absent              1\n"
            "# Passed              2\n"
            "% Passed              100\n"
            "# Failed              0\n"
            "% Failed              0\n"
            "Lowest                80\n"
            "Highest               90\n"
            "Standard Deviation    5\n"
            "Average               85\n"
            "Lowest passing grade  65\n"
            "Median                85\n"
            "Quartiles (type 7)    82.5 to 87.5\n"
            "n                     2\n"
            "95-100                0\n"
            "90-94                 1\n"
            "85-89                 0\n"
            "80-84                 1\n"
            "75-79                 0\n"
            "70-74                 0\n"
            "65-69                 0\n"
            "55-64                 0\n"
            "0-54                  0\n");
}

TEST_F(StatisticsCommandTest, CsvHasALineAGrade) {
  const CliRun run = RunCli({"statistics", "--csv", Build(kQuizClass)});
  EXPECT_EQ(
      run.out,
      "title,code,present,absent,passed,perpassed,failed,perfailed,lowest,highest,std,average,"
      "lpassv,n,median,lower_quartile_type_7,upper_quartile_type_7,95-100,90-94,85-89,80-84,"
      "75-79,70-74,65-69,55-64,0-54\n"
      "Quiz 1,Q1,2,1,2,100,0,0,80,90,5,85,65,2,85,82.5,87.5,0,1,0,1,0,0,0,0,0\n"
      "\"Test, 1\",T1,,,,,,,,,,,19.5,0,,,,0,0,0,0,0,0,0,0,0\n");
}

TEST_F(StatisticsCommandTest, AGradeThatIsNotThereIsRefused) {
  const std::string file = Build(kQuizClass);
  for (const char* wanted : {"3", "0", "X9", "1.5"})
    ExpectRefused(RunCli({"statistics", "--grade", wanted, file}),
                  file + ": no grade has the number or code " + wanted);
}

TEST_F(StatisticsCommandTest, AClassWithoutGradesHasNothingToShow) {
  const std::string file = Build("{}");
  ExpectRefused(RunCli({"statistics", file}), file + ": the class has no grades");
}

TEST_F(StatisticsCommandTest, DrawsAChart) {
  const std::string file = Build(kQuizClass);
  for (const char* kind : {"bar", "line", "pie"}) {
    const std::string out = Path(std::string(kind) + ".svg");
    const CliRun run = RunCli({"statistics", file, "--grade", "1", "--chart", kind, "--out", out});
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "");
    const std::string svg = Get(out);
    EXPECT_TRUE(svg.ends_with("</svg>\n")) << kind;
    EXPECT_NE(svg.find(">QUIZ 1</text>"), std::string::npos) << kind;
    EXPECT_NE(svg.find(">90-94</text>"), std::string::npos) << kind;
  }
}

// The pictures in tests/cli/golden, byte for byte: what they show was looked at.
TEST_F(StatisticsCommandTest, DrawsTheSamePicturesAlways) {
  std::string students;
  for (const char* mark : {"49", "48", "44", "43", "42.5", "40", "36", "31", "20", "ABS"})
    students += std::string(students.empty() ? "" : ", ") + R"({"Marks": ["", ")" + mark + "\"]}";
  const std::string file = Build(
      R"({"Instruments": [{"title": "Unit 1: Ratios & Rates", "code": "U1", "mvalue": 50}],
          "Students": [)" +
      students + "]}");
  for (const std::string kind : {"bar", "line", "pie"}) {
    const std::string out = Path(kind + ".svg");
    EXPECT_EQ(RunCli({"statistics", file, "--chart", kind, "--out", out}).status, 0);
    EXPECT_EQ(Get(out), Get(SourceDir() + "/tests/cli/golden/chart-" + kind + ".svg")) << kind;
  }
}

TEST_F(StatisticsCommandTest, AChartTakesOneGradeAndAFile) {
  const std::string file = Build(kQuizClass);
  ExpectRefused(RunCli({"statistics", file, "--chart", "bar", "--out", Path("a.svg")}),
                file + ": a chart shows one grade: --grade says which");
  const std::string text = Path("a.txt");
  ExpectRefused(RunCli({"statistics", file, "--grade", "1", "--chart", "bar", "--out", text}),
                text + ": a chart's file must end in .svg, .png or .pdf");
  const std::string nowhere = Path("no/a.svg");
  const CliRun run =
      RunCli({"statistics", file, "--grade", "1", "--chart", "bar", "--out", nowhere});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(RunCli({"statistics", file, "--chart", "bar"}).status, 2);
  EXPECT_EQ(RunCli({"statistics", file, "--out", text}).status, 2);
  EXPECT_EQ(RunCli({"statistics", file, "--json", "--csv"}).status, 2);
}

}  // namespace
}  // namespace tallyroll
