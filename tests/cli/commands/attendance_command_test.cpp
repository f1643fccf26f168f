// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlohmann/json.hpp>

#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

using nlohmann::json;

// 29 September to 4 October 2026, day serials 46294 to 46299. Nobody has a mark on 2 October.
constexpr const char* kSixDays = R"({
  "AttendanceDays": [{"date": 46294}, {"date": 46295}, {"date": 46296},
                     {"date": 46297}, {"date": 46298}, {"date": 46299}],
  "Students": [
    {"lastname": "Ng", "firstname": "Zoé", "id": "7",
     "DailyMarks": [" ", "A", "C", "S", " ", "N", "A"]},
    {"lastname": "Abe", "firstname": "Bo \"B\"", "id": "512",
     "DailyMarks": [" ", "L", "A", "A", " ", "E", "a"]}]})";

class AttendanceCommandTest : public CliTest {};

TEST_F(AttendanceCommandTest, TheCountsStandInATable) {
  const CliRun run = RunCli({"attendance", Build(kSixDays)});
  EXPECT_EQ(run.out,
            "NAME            ID   A  C  E  S  N  L  T\n"
            " 1 Abe, Bo \"B\"  512  2  0  1  0  0  1  2\n"
            " 2 Ng, Zoé      7    2  1  0  1  1  0  5\n");
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.status, 0);
}

TEST_F(AttendanceCommandTest, MonthsLimitTheCounts) {
  const std::string file = Build(kSixDays);
  EXPECT_EQ(RunCli({"attendance", "--csv", "--months", "2026-09..2026-09", file}).out,
            "id,lastname,firstname,A,C,E,S,N,L,T\n"
            "512,Abe,\"Bo \"\"B\"\"\",1,0,0,0,0,1,1\n"
            "7,Ng,Zoé,1,1,0,0,0,0,2\n");
  EXPECT_EQ(RunCli({"attendance", "--csv", "--months", "2026-10..2027-06", file}).out,
            "id,lastname,firstname,A,C,E,S,N,L,T\n"
            "512,Abe,\"Bo \"\"B\"\"\",1,0,1,0,0,0,1\n"
            "7,Ng,Zoé,1,0,0,1,1,0,3\n");
}

TEST_F(AttendanceCommandTest, MonthsOutsideTheRangeHaveNoMarks) {
  EXPECT_EQ(RunCli({"attendance", "--csv", "--months", "2025-01..2026-08", Build(kSixDays)}).out,
            "id,lastname,firstname,A,C,E,S,N,L,T\n"
            "512,Abe,\"Bo \"\"B\"\"\",0,0,0,0,0,0,0\n"
            "7,Ng,Zoé,0,0,0,0,0,0,0\n");
}

TEST_F(AttendanceCommandTest, JsonIsAnArrayInTheOrderOfTheNameMode) {
  const json all =
      json::parse(RunCli({"attendance", "--json", "--name-mode", "82", Build(kSixDays)}).out);
  ASSERT_EQ(all.size(), 2u);
  EXPECT_EQ(all[0]["id"], "512");
  EXPECT_EQ(all[0]["lastname"], "Abe");
  EXPECT_EQ(all[0]["firstname"], "Bo \"B\"");
  EXPECT_EQ(all[0]["A"], 2);
  EXPECT_EQ(all[0]["C"], 0);
  EXPECT_EQ(all[0]["E"], 1);
  EXPECT_EQ(all[0]["S"], 0);
  EXPECT_EQ(all[0]["N"], 0);
  EXPECT_EQ(all[0]["L"], 1);
  EXPECT_EQ(all[0]["T"], 2);
  EXPECT_EQ(all[0].size(), 10u);
  EXPECT_EQ(all[1]["firstname"], "Zoé");
  EXPECT_EQ(all[1]["T"], 5);
}

TEST_F(AttendanceCommandTest, AbsencesInARowPassOverDaysThatNobodyIsMarkedOn) {
  // Zoé was absent on five marked days in a row. For Bo the two end at the excused day, and a
  // lower case letter is no mark.
  EXPECT_EQ(RunCli({"attendance", "--consecutive", "2", Build(kSixDays)}).out,
            "NAME            ID   DAYS  DATES\n"
            " 1 Abe, Bo \"B\"  512  2     2026-09-30 2026-10-01\n"
            " 2 Ng, Zoé      7    5     2026-09-29 2026-09-30 2026-10-01 2026-10-03 2026-10-04\n");
}

TEST_F(AttendanceCommandTest, FewerInARowAreLeftOut) {
  EXPECT_EQ(RunCli({"attendance", "--consecutive", "3", "--csv", Build(kSixDays)}).out,
            "id,lastname,firstname,days,dates\n"
            "7,Ng,Zoé,5,2026-09-29 2026-09-30 2026-10-01 2026-10-03 2026-10-04\n");
  const std::string file = Build(kSixDays);
  ExpectRefused(RunCli({"attendance", "--consecutive", "6", "--csv", file}),
                file + ": no student was absent on 6 or more marked days in a row");
}

TEST_F(AttendanceCommandTest, AbsencesInARowWithinMonthsAsJson) {
  const json all = json::parse(RunCli({"attendance", "--consecutive", "1", "--months",
                                       "2026-10..2026-10", "--json", Build(kSixDays)})
                                   .out);
  ASSERT_EQ(all.size(), 2u);
  EXPECT_EQ(all[0]["id"], "512");
  EXPECT_EQ(all[0]["dates"], json({"2026-10-01"}));
  EXPECT_EQ(all[1]["dates"], json({"2026-10-01", "2026-10-03", "2026-10-04"}));
}

TEST_F(AttendanceCommandTest, AClassWithoutAttendanceHasNothingToCount) {
  const std::string file =
      Build(R"({"Students": [{"lastname": "Abe", "firstname": "Bo", "id": "5"}]})");
  EXPECT_EQ(RunCli({"attendance", "--csv", file}).out,
            "id,lastname,firstname,A,C,E,S,N,L,T\n5,Abe,Bo,0,0,0,0,0,0,0\n");
  EXPECT_EQ(RunCli({"attendance", "--csv", "--months", "2026-09..2026-09", file}).out,
            "id,lastname,firstname,A,C,E,S,N,L,T\n5,Abe,Bo,0,0,0,0,0,0,0\n");
}

TEST_F(AttendanceCommandTest, NobodyAbsentSoOftenIsSaid) {
  const std::string file =
      Build(R"({"Students": [{"lastname": "Abe", "firstname": "Bo", "id": "5"}]})");
  for (const char* form : {"--json", "--csv"})
    ExpectRefused(RunCli({"attendance", form, "--consecutive", "3", file}),
                  file + ": no student was absent on 3 or more marked days in a row");
}

TEST_F(AttendanceCommandTest, AClassWithoutStudentsIsRefused) {
  const std::string file = Build("{}");
  ExpectRefused(RunCli({"attendance", file}), file + ": the class has no students");
  ExpectRefused(RunCli({"attendance", "--json", "--consecutive", "1", file}),
                file + ": the class has no students");
}

TEST_F(AttendanceCommandTest, MonthsThatAreNoneAreRefused) {
  const std::string file = Build(kSixDays);
  ExpectRefused(RunCli({"attendance", "--months", "2026-09", file}),
                file + ": --months takes YYYY-MM..YYYY-MM");
  ExpectRefused(RunCli({"attendance", "--months", "2026-13..2027-01", file}),
                file + ": --months is no range of months");
  ExpectRefused(RunCli({"attendance", "--months", "2026-10..2026-09", file}),
                file + ": The start date must be less than the ending date");
}

TEST_F(AttendanceCommandTest, AWrongCommandLineIsRefused) {
  const std::string file = Build(kSixDays);
  for (const std::vector<std::string>& line : {std::vector<std::string>{"attendance"},
                                               {"attendance", "--consecutive", "0", file},
                                               {"attendance", "--consecutive", "many", file},
                                               {"attendance", "--csv", "--json", file}}) {
    const CliRun run = RunCli(line);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
  }
}

TEST_F(AttendanceCommandTest, AFileThatIsNotThereIsRefused) {
  EXPECT_EQ(RunCli({"attendance", Path("none.TYR")}).status, 1);
}

TEST_F(AttendanceCommandTest, TheFileStaysAsItIs) {
  const std::string file = Build(kSixDays);
  const std::string before = Get(file);
  RunCli({"attendance", file});
  EXPECT_EQ(Get(file), before);
}

}  // namespace
}  // namespace tallyroll
