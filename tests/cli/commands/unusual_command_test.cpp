// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlohmann/json.hpp>

#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

constexpr const char* kWithSlips = R"({
  "Instruments": [{"title": "Quiz", "code": "Q1", "typecode": "Q ", "mvalue": 10}],
  "Students": [{"lastname": "Abe", "firstname": "Bo", "id": "5", "Marks": ["", "77"]},
               {"lastname": "Cho", "firstname": "Di", "id": "6", "Marks": ["", "7"]}]})";

class UnusualCommandTest : public CliTest {};

TEST_F(UnusualCommandTest, SlipsStandInATable) {
  EXPECT_EQ(RunCli({"unusual", Build(kWithSlips)}).out,
            "NAME        ID  GRADE  MARK  WHAT               WHY\n"
            " 1 Abe, Bo  5   Quiz   77    above the maximum  the maximum is 10\n");
}

TEST_F(UnusualCommandTest, JsonHoldsTheSame) {
  const auto answer = nlohmann::json::parse(RunCli({"unusual", Build(kWithSlips), "--json"}).out);
  ASSERT_EQ(answer.size(), 1U);
  EXPECT_EQ(answer[0]["id"], "5");
  EXPECT_EQ(answer[0]["grade"], "Quiz");
  EXPECT_EQ(answer[0]["mark"], "77");
  EXPECT_EQ(answer[0]["what"], "above the maximum");
}

TEST_F(UnusualCommandTest, AClassWithoutSlipsSaysSo) {
  const std::string file = Build(R"({
    "Instruments": [{"title": "Quiz", "typecode": "Q ", "mvalue": 10}],
    "Students": [{"id": "5", "Marks": ["", "7"]}]})");
  EXPECT_EQ(RunCli({"unusual", file}).out, "No mark of this class is unusual.\n");
  EXPECT_EQ(RunCli({"unusual", file, "--json"}).out, "[]\n");
}

}  // namespace
}  // namespace tallyroll
