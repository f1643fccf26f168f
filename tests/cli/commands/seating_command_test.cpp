// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlohmann/json.hpp>

#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

using nlohmann::json;

constexpr const char* kSeatedClass = R"({"description": "Algebra", "NumCharts": 2,
  "ChartRows": [0, 2, 1], "ChartColumns": [0, 2, 1],
  "Students": [
    {"lastname": "Abe", "firstname": "Bo", "id": "5", "SeatRow": [0, 1, 0], "SeatColumn": [0, 0, 0]},
    {"lastname": "Cho", "firstname": "Di", "id": "6", "SeatRow": [0, 0, -1], "SeatColumn": [0, 1, -1]},
    {"lastname": "Eng", "firstname": "Fa", "id": "7", "SeatRow": [0, -1, -1], "SeatColumn": [0, -1, -1]}]})";

class SeatingCommandTest : public CliTest {};

TEST_F(SeatingCommandTest, JsonTellsTheSeats) {
  const CliRun run = RunCli({"seating", "--chart", "1", "--json", Build(kSeatedClass)});
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(json::parse(run.out), json::parse(R"({"rows": 2, "columns": 2,
    "seats": [{"row": 1, "column": 0, "id": "5"}, {"row": 0, "column": 1, "id": "6"}],
    "unseated": ["7"]})"));
}

TEST_F(SeatingCommandTest, TheLastChartIsShownAsATable) {
  const CliRun run = RunCli({"seating", Build(kSeatedClass)});
  EXPECT_EQ(run.out,
            "Algebra\n"
            "\n"
            "        Row 1\n"
            "Seat 1  Abe, Bo\n"
            "\n"
            "Without a seat:\n"
            "Cho, Di\n"
            "Eng, Fa\n");
}

TEST_F(SeatingCommandTest, AChartThatIsNotThereIsRefused) {
  const std::string file = Build(kSeatedClass);
  ExpectRefused(RunCli({"seating", "--chart", "3", file}), file + ": there is no chart 3");
  const std::string without =
      Build(R"({"Students": [{"lastname": "Abe", "firstname": "Bo", "id": "5"}]})");
  ExpectRefused(RunCli({"seating", without}), without + ": the class has no seating charts");
  const std::string empty = Build("{}");
  ExpectRefused(RunCli({"seating", empty}), empty + ": the class has no students");
}

// The first sits at the back of the first row.
TEST_F(SeatingCommandTest, ANewChartGoesIntoANewClassFile) {
  const std::string file = Build(kSeatedClass), out = Path("new.TYR");
  const std::string before = Get(file);
  EXPECT_EQ(RunCli({"seating", file, "--new", "2x2", "--fill", "sorted", "--out-class", out}).err,
            "");
  EXPECT_EQ(Get(file), before);
  EXPECT_EQ(RunCli({"check", out}).status, 0);
  const json shown = json::parse(RunCli({"seating", "--json", out}).out);
  EXPECT_EQ(shown["seats"], json::parse(R"([{"row": 1, "column": 0, "id": "5"},
    {"row": 0, "column": 0, "id": "6"}, {"row": 1, "column": 1, "id": "7"}])"));
  EXPECT_EQ(json::parse(RunCli({"dump", out}).out)["NumCharts"], 3);
}

TEST_F(SeatingCommandTest, AClassFileIsReplacedByForceAlone) {
  const std::string file = Build(kSeatedClass);
  const std::vector<std::string> line = {"seating", file,     "--new",       "1x3",
                                         "--fill",  "sorted", "--out-class", file};
  EXPECT_EQ(RunCli(line).status, 1);
  std::vector<std::string> forced = line;
  forced.emplace_back("--force");
  EXPECT_EQ(RunCli(forced).err, "");
  EXPECT_EQ(json::parse(RunCli({"dump", file}).out)["NumCharts"], 3);
}

TEST_F(SeatingCommandTest, TheSameSeedGivesTheSameChart) {
  const std::string file = Build(kSeatedClass);
  for (const char* fill : {"random", "wishes"}) {
    std::vector<std::string> charts;
    for (const char* name : {"one.TYR", "two.TYR"}) {
      ASSERT_EQ(RunCli({"seating", file, "--new", "5x5", "--fill", fill, "--seed", "12",
                        "--out-class", Path(name), "--force"})
                    .err,
                "");
      charts.push_back(RunCli({"seating", "--json", Path(name)}).out);
    }
    EXPECT_EQ(charts[0], charts[1]) << fill;
    EXPECT_EQ(json::parse(charts[0])["seats"].size(), 3u);
  }
}

TEST_F(SeatingCommandTest, SizesThatNoChartHasAreWrong) {
  const std::string file = Build(kSeatedClass);
  for (const char* size : {"0x2", "2x0", "16x11", "12x12", "11x14", "2", "axb", "2x", ""}) {
    EXPECT_EQ(
        RunCli({"seating", file, "--new", size, "--fill", "sorted", "--out-class", "x"}).status, 2)
        << size;
  }
  EXPECT_EQ(RunCli({"seating", file, "--new", "2x2"}).status, 2);
  EXPECT_EQ(RunCli({"seating", file, "--fill", "sorted"}).status, 2);
}

TEST_F(SeatingCommandTest, OnlyAPdfIsWritten) {
  const std::string file = Build(kSeatedClass), out = Path("chart.txt");
  ExpectRefused(RunCli({"seating", file, "--out", out}), out + ": a chart's file must end in .pdf");
}

}  // namespace
}  // namespace tallyroll
