// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <cstdlib>
#include <map>
#include <nlohmann/json.hpp>

#include "companion/seat_wishes.h"
#include "tests/cli/commands/seated_class.h"
#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

using nlohmann::json;

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

TEST_F(SeatingCommandTest, ACopyOnPaperIsNotWrittenOverAClass) {
  const std::string file = Build(kSeatedClass, "chart.pdf");
  const std::string before = Get(file);
  EXPECT_EQ(RunCli({"seating", "--out", file, file}).status, 1);
  EXPECT_EQ(Get(file), before);
}

// Of three rows the first is the front; side by side are neighbours in one row of the chart.
TEST_F(SeatingCommandTest, TheWishesOfTheCompanionAreMet) {
  const std::string file = Build(kSeatedClass), out = Path("new.TYR");
  ASSERT_EQ(KeepSeatWishes(file, {{"beside", "5", "6"}, {"front", "7", ""}}), "");
  for (const char* seed : {"1", "2", "3"}) {
    const CliRun run = RunCli({"seating", file, "--new", "3x4", "--fill", "wishes", "--seed", seed,
                               "--out-class", out, "--force"});
    EXPECT_EQ(run.err, "");
    EXPECT_EQ(run.out, "");
    std::map<std::string, std::pair<int, int>> seats;
    const json shown = json::parse(RunCli({"seating", "--json", out}).out);
    for (const json& seat : shown["seats"]) seats[seat["id"]] = {seat["row"], seat["column"]};
    ASSERT_EQ(seats.size(), 3u);
    EXPECT_EQ(seats["5"].first, seats["6"].first);
    EXPECT_EQ(std::abs(seats["5"].second - seats["6"].second), 1);
    EXPECT_EQ(seats["7"].first, 0);
  }
}

TEST_F(SeatingCommandTest, WishesThatCannotBeMetAreListed) {
  const std::string file = Build(kSeatedClass);
  ASSERT_EQ(KeepSeatWishes(file, {{"front", "5", ""}, {"back", "5", ""}}), "");
  const CliRun run = RunCli({"seating", file, "--new", "3x3", "--fill", "wishes", "--seed", "8",
                             "--out-class", Path("new.TYR")});
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.out, testing::AnyOf("Not met: Abe, Bo: at the front\n",
                                      "Not met: Abe, Bo: at the back\n"));
}

// Wishes beside another class's file say nothing of these students.
TEST_F(SeatingCommandTest, WishesThatCannotBeReadAreNoReasonToSeatWithoutThem) {
  const std::string other = Build(R"({"Students": [{"lastname": "Zed", "id": "5"}]})", "other.TYR");
  ASSERT_EQ(KeepSeatWishes(other, {{"front", "5", ""}}), "");
  const std::string file = Build(kSeatedClass);
  std::filesystem::copy_file(Path("other.tyx"), Path("class.tyx"));
  const std::vector<std::string> line = {"seating", file,     "--new",       "3x3",
                                         "--fill",  "wishes", "--out-class", Path("new.TYR")};
  ExpectRefused(RunCli(line), file + ": the wishes cannot be read: it belongs to another class");
  Put("class.tyx", std::string(500, 'x'));
  ExpectRefused(RunCli(line), file + ": the wishes cannot be read: it is damaged");
  EXPECT_FALSE(std::filesystem::exists(Path("new.TYR")));
}

}  // namespace
}  // namespace tallyroll
