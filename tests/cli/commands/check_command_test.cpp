// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/cli/run_cli.h"
#include "tests/support/file_bytes.h"

namespace tallyroll {
namespace {

class CheckCommandTest : public CliTest {};

TEST_F(CheckCommandTest, AClassInOrderHasItsCountsShown) {
  const std::string file = Build(R"({"Students": [{}, {}], "Instruments": [{}, {}, {}],
      "AttendanceDays": [{"date": 46266}]})");
  const CliRun run = RunCli({"check", file});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, file + ": ok, 2 students, 3 grades, 1 days\n");
  EXPECT_EQ(run.err, "");
}

TEST_F(CheckCommandTest, EveryFileHasItsLine) {
  const std::string a = Build("{}", "a.TYR");
  const std::string b = Build(R"({"Students": [{}]})", "b.TYR");
  const CliRun run = RunCli({"check", b, a});
  EXPECT_EQ(run.out, b + ": ok, 1 students, 0 grades, 0 days\n" + a +
                         ": ok, 0 students, 0 grades, 0 days\n");
}

TEST_F(CheckCommandTest, EveryBrokenInvariantHasItsLine) {
  FileBytes grade;
  grade.Text("Quiz").Text("Q1").Money(0).I16(10).Texts(8).NoList().Text("");
  const std::string file = Put("a.TYR", HeaderBytes(2, 1, 0, 0) + grade.bytes +
                                            StudentBytes("Abe", "A") + StudentBytes("Bo", "B"));
  const CliRun run = RunCli({"check", file});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, file + ": Students[1].Marks has 0 items, NumInstruments is 1\n" + file +
                         ": Students[2].Marks has 0 items, NumInstruments is 1\n");
}

TEST_F(CheckCommandTest, OneFaultyFileTakesAllLinesToTheErrors) {
  const std::string good = Build("{}", "good.TYR");
  const std::string cut = Put("cut.TYR", "ty8");
  const CliRun run = RunCli({"check", good, cut});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, good + ": ok, 0 students, 0 grades, 0 days\n" + cut +
                         ": File Error: 62 (the file ends too early)\n");
}

TEST_F(CheckCommandTest, BytesBehindTheLastStudentAreNoFault) {
  const std::string file = Put("a.TYR", Get(Build("{}")) + "tail of a longer class");
  EXPECT_EQ(RunCli({"check", file}).status, 0);
}

TEST_F(CheckCommandTest, AFileNameOfSeveralLinesStaysOnOne) {
  ExpectRefused(RunCli({"check", Path("a\nb")}),
                Path("a b") + ": File Error: 53 (there is no such file)");
}

}  // namespace
}  // namespace tallyroll
