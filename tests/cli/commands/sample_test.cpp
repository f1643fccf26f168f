// SPDX-License-Identifier: GPL-3.0-or-later
// The sample class holds what a teacher who looks around should find.
#include <gmock/gmock.h>

#include <map>
#include <nlohmann/json.hpp>
#include <set>

#include "base/code_page.h"
#include "base/date_serial.h"
#include "tests/cli/run_cli.h"
#include "tests/support/source_dir.h"

namespace tallyroll {
namespace {

using nlohmann::json;
using ::testing::IsSupersetOf;

class SampleTest : public CliTest {
 protected:
  void SetUp() override {
    file = Path("Sample8.TYR");
    const CliRun build = RunCli({"build", SourceDir() + "/sample/Sample8.json", file});
    ASSERT_EQ(build.status, 0) << build.err;
    sample = json::parse(RunCli({"dump", file}).out);
    opened = json::parse(RunCli({"dump", "--opened", file}).out);
  }

  std::set<std::string> AllOf(const char* list) {
    std::set<std::string> texts;
    for (const json& student : sample["Students"]) {
      for (const json& text : student[list]) texts.insert(text);
    }
    return texts;
  }

  static std::size_t IndexOf(const std::string& date) {
    return static_cast<std::size_t>(*DateFromText(date, DateOrder::kMonthFirst) - 46266 + 1);
  }

  std::string file;
  json sample;
  json opened;
};

TEST_F(SampleTest, IsInOrder) {
  EXPECT_EQ(RunCli({"check", file}).out, file + ": ok, 28 students, 14 grades, 122 days\n");
}

TEST_F(SampleTest, StandsInTheOrderInWhichItOpens) {
  EXPECT_EQ(sample["Students"], opened["Students"]);
}

TEST_F(SampleTest, HasMarksOfEveryKind) {
  EXPECT_THAT(AllOf("Marks"),
              IsSupersetOf({"NEW", "ABS", "EXC", "CUT", "NON", "A-", "B+", "12.5"}));
}

TEST_F(SampleTest, HasSevenTypesAndMore) {
  std::set<std::string> types;
  for (const json& grade : sample["Instruments"]) types.insert(grade["typecode"]);
  EXPECT_THAT(types, IsSupersetOf({"Q ", "T ", "HW", "P ", "L ", "ME", "FE", "CP", "X ", "RL"}));
  EXPECT_EQ(sample["Categories"][1], "Reading Log~RL");
}

TEST_F(SampleTest, TypeWeightsAreSettledAndSumTo100) {
  EXPECT_EQ(opened["Method"], 1);
  EXPECT_EQ(opened["AverageFlag4"], -1);
  int sum = 0;
  for (std::size_t t = 1; t <= 26; ++t) {
    if (t != 13) sum += std::stoi(opened["TypePercents"][t].get<std::string>());
  }
  EXPECT_EQ(sum, 100);
  EXPECT_EQ(opened["TypePercents"][13], "5");
}

TEST_F(SampleTest, TypesWhoseLowestMayBeDroppedHaveDroppableGrades) {
  EXPECT_EQ(opened["TypeWeights"][6], "2");
  EXPECT_EQ(opened["TypeWeights"][10], "2");
  std::map<std::string, int> droppable;
  for (const json& grade : sample["Instruments"])
    droppable[grade["typecode"]] += grade["dropyn"] == "Y";
  EXPECT_EQ(droppable["HW"], 3);
  EXPECT_EQ(droppable["Q "], 2);
}

TEST_F(SampleTest, AttendanceRunsFromSeptemberToDecember) {
  const json& days = sample["AttendanceDays"];
  for (std::size_t j = 0; j < days.size(); ++j) EXPECT_EQ(days[j]["date"], 46266 + j);
  EXPECT_EQ(sample["termstart"], "9/1/2026");
  EXPECT_EQ(sample["termend"], "1/1/2027");
  EXPECT_EQ(AllOf("DailyMarks"), (std::set<std::string>{" ", "A", "C", "E", "S", "N", "L"}));
}

TEST_F(SampleTest, NobodyIsMarkedOnAWeekend) {
  for (const json& student : sample["Students"]) {
    for (std::size_t j = 1; j <= 122; ++j) {
      // 1 September 2026, day 1, is a Tuesday: days 5 and 6 are the first weekend.
      if (j % 7 == 5 || j % 7 == 6) {
        EXPECT_EQ(student["DailyMarks"][j], " ");
      }
    }
  }
}

TEST_F(SampleTest, RangeSummariesCountTheDailyMarks) {
  int ranges = 0;
  const json& summaries = sample["Summaries"];
  for (std::size_t k = 0; k < summaries.size(); ++k) {
    if (summaries[k]["kind"] != 2) continue;
    ++ranges;
    for (const json& student : sample["Students"]) {
      std::map<std::string, int> counts;
      for (std::size_t j = IndexOf(summaries[k]["startdate"]);
           j <= IndexOf(summaries[k]["enddate"]); ++j) {
        ++counts[student["DailyMarks"][j]];
      }
      std::string detail;
      for (const char* code : {"C", "E", "S", "N"})
        detail += " " + std::to_string(counts[code]) + "/";
      EXPECT_EQ(student["SummaryDetail"][k + 1], detail);
      EXPECT_EQ(std::stoi(student["SummaryAbsent"][k + 1].get<std::string>()), counts["A"]);
      EXPECT_EQ(student["SummaryLate"][k + 1], std::to_string(counts["L"]));
    }
  }
  EXPECT_EQ(ranges, 2);
  EXPECT_EQ(summaries[2]["kind"], 1);
}

TEST_F(SampleTest, SeatsLieInTheirChartsAndNobodySharesOne) {
  for (std::size_t n = 1; n <= 2; ++n) {
    std::set<std::pair<int, int>> taken;
    for (const json& student : sample["Students"]) {
      const std::pair<int, int> seat{student["SeatRow"][n], student["SeatColumn"][n]};
      if (seat.first == -1) continue;
      EXPECT_TRUE(taken.insert(seat).second) << student["lastname"];
      EXPECT_LT(seat.first, sample["ChartRows"][n].get<int>());
      EXPECT_LT(seat.second, sample["ChartColumns"][n].get<int>());
    }
    EXPECT_GE(taken.size(), 26u);
  }
}

TEST_F(SampleTest, NameWidthsAreThoseOfTheLongestNames) {
  std::size_t last = 0;
  std::size_t first = 0;
  for (const json& student : sample["Students"]) {
    last = std::max(last, CodePageFromUtf8(student["lastname"].get<std::string>())->size());
    first = std::max(first, CodePageFromUtf8(student["firstname"].get<std::string>())->size());
  }
  EXPECT_EQ(sample["LastNameWidth"], last);
  EXPECT_EQ(sample["FirstNameWidth"], first);
}

}  // namespace
}  // namespace tallyroll
