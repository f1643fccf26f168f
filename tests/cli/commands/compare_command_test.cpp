// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlohmann/json.hpp>

#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

using nlohmann::json;

// The second class has no letter but its own values; 54.5 percent is 54.
constexpr const char* kOne = R"({
  "Instruments": [{"title": "Final", "code": "F1", "typecode": "FE", "mvalue": 100}],
  "Students": [{"id": "1", "Marks": ["", "80"]}, {"id": "2", "Marks": ["", "90"]},
               {"id": "3", "Marks": ["", "ABS"]}]})";
constexpr const char* kTwo = R"({
  "Instruments": [{"title": "Quiz", "code": "Q", "typecode": "Q ", "mvalue": 10},
                  {"title": "Final ", "code": "F2", "typecode": "FE", "mvalue": 100,
                   "lowpass": "54.5"}],
  "Students": [{"id": "4", "Marks": ["", "1", "54.5"]}]})";

class CompareCommandTest : public CliTest {};

TEST_F(CompareCommandTest, SetsPanelsAndTableSideBySide) {
  const CliRun run =
      RunCli({"compare", Build(kOne, "one.TYR"), Build(kTwo, "two.TYR"), "--grade", "Final"});
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.out,
            "Comparisons for ONE.TYR, TWO.TYR\n"
            "\n"
            "           ONE.TYR  TWO.TYR  Totals\n"
            "Deviation  5        0\n"
            "Average    85       54.5\n"
            "# Passed   2        1        3\n"
            "% Passed   100 %    100 %\n"
            "# Failed   0        0        0\n"
            "% Failed   0 %      0 %\n"
            "Lowest     80       54.5\n"
            "Hightest   90       54.5\n"
            "# Present  2        1        3\n"
            "# Absent   1        0        1\n"
            "\n"
            "Range   ONE.TYR  TWO.TYR  Total\n"
            "00-54   0        1        1\n"
            "55-64   0        0        0\n"
            "65-69   0        0        0\n"
            "70-74   0        0        0\n"
            "75-79   0        0        0\n"
            "80-84   1        0        1\n"
            "85-89   0        0        0\n"
            "90-94   1        0        1\n"
            "95-100  0        0        0\n");
}

TEST_F(CompareCommandTest, JsonHoldsTheSame) {
  const CliRun run = RunCli(
      {"compare", Build(kOne, "one.TYR"), Build(kTwo, "two.TYR"), "--grade", "Final", "--json"});
  const json all = json::parse(run.out);
  ASSERT_EQ(all["classes"].size(), 2u);
  EXPECT_EQ(all["classes"][0]["class"], "ONE.TYR");
  EXPECT_EQ(all["classes"][1]["code"], "F2");
  EXPECT_EQ(all["classes"][0]["std"], "5");
  EXPECT_EQ(all["classes"][0]["perpassed"], "100");
  EXPECT_EQ(all["classes"][1]["ranges"], json({1, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(all["totals"]["present"], "3");
  EXPECT_TRUE(all["totals"]["average"].is_null());
  EXPECT_EQ(all["totals"]["ranges"], json({1, 0, 0, 0, 0, 1, 0, 1, 0}));
  EXPECT_EQ(all["heads"][0], "00-54");
}

TEST_F(CompareCommandTest, ATitleThatOneClassLacksIsRefused) {
  const std::string one = Build(kOne, "one.TYR"), two = Build(kTwo, "two.TYR");
  ExpectRefused(RunCli({"compare", one, two, "--grade", "Quiz"}),
                one + ": no grade has the title Quiz");
}

TEST_F(CompareCommandTest, TakesTwoToFiveFiles) {
  const std::string one = Build(kOne);
  EXPECT_EQ(RunCli({"compare", one, "--grade", "Final"}).status, 2);
  EXPECT_EQ(RunCli({"compare", one, one, one, one, one, one, "--grade", "Final"}).status, 2);
  EXPECT_EQ(RunCli({"compare", one, one, one, one, one, "--grade", "Final"}).status, 0);
  EXPECT_EQ(RunCli({"compare", one, one}).status, 2);
}

TEST_F(CompareCommandTest, AFileThatIsNotThereIsRefused) {
  const std::string one = Build(kOne), lost = Path("lost.TYR");
  EXPECT_EQ(RunCli({"compare", one, lost, "--grade", "Final"}).status, 1);
}

}  // namespace
}  // namespace tallyroll
