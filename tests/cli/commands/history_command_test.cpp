// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlohmann/json.hpp>

#include "companion/change_history.h"
#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

class HistoryCommandTest : public CliTest {
 protected:
  HistoryCommandTest()
      : file(Build(
            R"({"Instruments": [{"title": "Quiz", "code": "Q1", "typecode": "Q ", "mvalue": 10}],
                       "Students": [{"lastname": "Abe", "id": "5", "Marks": ["", "7"]}]})")) {}
  void Keep(const std::string& time, const std::string& id, const std::string& after) const {
    EXPECT_EQ(KeepChanges(file, time, {{id, "Abe, Bo", "Quiz", "Q1", "mark", "6", after}}), "");
  }
  std::string file;
};

TEST_F(HistoryCommandTest, NothingKeptIsSaid) {
  EXPECT_EQ(RunCli({"history", file}).out, "No change is kept.\n");
  EXPECT_EQ(RunCli({"history", file, "--json"}).out, "[]\n");
}

TEST_F(HistoryCommandTest, ChangesStandInATable) {
  Keep("2026-09-01 10:00:00", "5", "7");
  EXPECT_EQ(RunCli({"history", file}).out,
            "TIME                 ID  NAME     GRADE  CODE  FIELD  OLD  NEW\n"
            "2026-09-01 10:00:00  5   Abe, Bo  Quiz   Q1    mark   6    7\n");
}

TEST_F(HistoryCommandTest, JsonHoldsTheChangesThatAreAskedFor) {
  Keep("2026-09-01 10:00:00", "5", "7");
  Keep("2026-09-05 10:00:00", "6", "8");
  const auto all = nlohmann::json::parse(RunCli({"history", file, "--json"}).out);
  ASSERT_EQ(all.size(), 2U);
  EXPECT_EQ(all[0]["time"], "2026-09-05 10:00:00");
  EXPECT_EQ(all[0]["old"], "6");
  EXPECT_EQ(all[0]["new"], "8");
  const auto of = [&](std::vector<std::string> options) {
    options.insert(options.begin(), {"history", file, "--json"});
    return nlohmann::json::parse(RunCli(options).out).size();
  };
  EXPECT_EQ(of({"--student", "5"}), 1U);
  EXPECT_EQ(of({"--grade", "Q1"}), 2U);
  EXPECT_EQ(of({"--grade", "Q2"}), 0U);
  EXPECT_EQ(of({"--since", "2026-09-02"}), 1U);
  EXPECT_EQ(RunCli({"history", file, "--since", "soon"}).status, 2);
}

}  // namespace
}  // namespace tallyroll
