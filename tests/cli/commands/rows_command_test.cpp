// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>
#include <sys/wait.h>

#include <array>
#include <cstdio>
#include <nlohmann/json.hpp>
#include <sstream>

#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

using nlohmann::json;
using ::testing::HasSubstr;

// Points: 18.5 of 20 and 6 of 10, an ABS that is left out.
constexpr const char* kAlgebra =
    R"js({"description": "Algebra", "school": "North", "teacher": "Ms \"T\"",
  "AverageSettings": "2,0,0,0,0", "timed": "3",
  "LetterValues": ["100", "99", "95", "90", "88", "85", "80", "78", "75", "70", "68", "65", "60", "55"],
  "AttendanceDays": [{"date": 46266}, {"date": 46267}],
  "Instruments": [{"title": "Quiz, 1", "code": "QZ1", "typecode": "Q ", "mvalue": 20, "testdate": "9/1/2026",
                   "weight": "12.5", "dropyn": "Y", "lowpass": "65"},
                  {"title": "Test", "code": "T1", "typecode": "T ", "mvalue": 10, "testdate": "soon",
                   "countflag": "N"}],
  "Students": [
    {"lastname": "Muñoz", "firstname": "Zoé", "id": "7", "Marks": ["", "18.5", "6"],
     "DailyMarks": [" ", "A", " "], "email": "=cmd()"},
    {"lastname": "Abe", "firstname": "Bo", "id": "5", "Marks": ["", "ABS", "A-"], "DailyMarks": [" ", " ", "L"]}]})js";

class RowsCommandTest : public CliTest {
 protected:
  static std::vector<json> Lines(const std::string& text) {
    std::vector<json> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) lines.push_back(json::parse(line));
    return lines;
  }

  static std::string Shell(const std::string& command, int& status) {
    std::string out;
    FILE* pipe = popen(command.c_str(), "r");
    std::array<char, 4096> part{};
    for (std::size_t got = 0; (got = fread(part.data(), 1, part.size(), pipe)) > 0;)
      out.append(part.data(), got);
    status = WEXITSTATUS(pclose(pipe));
    return out;
  }
};

TEST_F(RowsCommandTest, AMarkStandsOnALineWithEverythingAboutIt) {
  const std::string file = Build(kAlgebra);
  const CliRun run = RunCli({"rows", file});
  EXPECT_EQ(run.status, 0) << run.err;
  const std::vector<json> rows = Lines(run.out);
  ASSERT_EQ(rows.size(), 4u);
  EXPECT_EQ(rows[2], json({{"file", file},
                           {"class", "Algebra"},
                           {"school", "North"},
                           {"teacher", "Ms \"T\""},
                           {"period", "3"},
                           {"id", "7"},
                           {"lastname", "Muñoz"},
                           {"firstname", "Zoé"},
                           {"grade", 1},
                           {"title", "Quiz, 1"},
                           {"code", "QZ1"},
                           {"type", "Q"},
                           {"max", 20},
                           {"date", "2026-09-01"},
                           {"mark", "18.5"},
                           {"value", 18.5}}));
  EXPECT_EQ(rows[3]["date"], "soon");
  EXPECT_EQ(rows[3]["value"], 6);
  EXPECT_THAT(run.out, HasSubstr(R"("mark":"6","value":6.0})"));
}

TEST_F(RowsCommandTest, AnAbsentMarkHasNoValueAndALetterHasItsOwn) {
  const std::vector<json> rows = Lines(RunCli({"rows", Build(kAlgebra)}).out);
  EXPECT_EQ(rows[0]["mark"], "ABS");
  EXPECT_TRUE(rows[0]["value"].is_null());
  EXPECT_EQ(rows[1]["mark"], "A-");
  EXPECT_EQ(rows[1]["value"], 90);
}

TEST_F(RowsCommandTest, EveryRowOfATableHasTheSameKeys) {
  const std::string full = Build(kAlgebra);
  const std::string bare =
      Build(R"({"Instruments": [{"mvalue": 5}], "AttendanceDays": [{"date": 46266}],
    "Students": [{"Marks": ["", ""], "DailyMarks": [" ", " "]}]})",
            "bare.TYR");
  for (const char* table : {"students", "grades", "marks", "averages", "attendance"}) {
    const std::vector<json> rows = Lines(RunCli({"rows", full, bare, "--table", table}).out);
    ASSERT_GT(rows.size(), 1u) << table;
    for (const json& row : rows) {
      ASSERT_EQ(row.size(), rows[0].size()) << table;
      for (const auto& [key, value] : row.items()) {
        ASSERT_TRUE(rows[0].contains(key)) << table << key;
        EXPECT_TRUE(value.is_null() || rows[0][key].is_null() ||
                    value.is_string() == rows[0][key].is_string())
            << table << " " << key;
      }
    }
  }
}

TEST_F(RowsCommandTest, AveragesAndPointsAreNumbers) {
  // 18.5 of the 20 that count; the test gives its points without counting in the total.
  const std::vector<json> rows =
      Lines(RunCli({"rows", Build(kAlgebra), "--table", "averages"}).out);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[1]["id"], "7");
  EXPECT_EQ(rows[1]["possible"], 20);
  EXPECT_TRUE(rows[1]["average"].is_number());
}

TEST_F(RowsCommandTest, EachDayOfEachStudentIsARowOfAttendance) {
  const std::vector<json> rows =
      Lines(RunCli({"rows", Build(kAlgebra), "--table", "attendance"}).out);
  ASSERT_EQ(rows.size(), 4u);
  EXPECT_EQ(rows[1]["date"], "2026-09-02");
  EXPECT_EQ(rows[1]["code"], "L");
  EXPECT_EQ(rows[2]["code"], "A");
  EXPECT_EQ(rows[3]["code"], "");
}

TEST_F(RowsCommandTest, CommaSeparatedValuesHaveOneHeadingAndNoFormulas) {
  const std::string file = Build(kAlgebra, "a.TYR");
  const CliRun run = RunCli({"rows", file, file, "--csv", "--table", "students"});
  const std::string head =
      "file,class,school,teacher,period,id,lastname,firstname,email,phone,parent,work,address,city,"
      "state,zip,birth,comments\n";
  const std::string row_5 = file + R"(,Algebra,North,"Ms ""T""",3,5,Abe,Bo,,,,,,,,,,)" + "\n";
  const std::string row_7 =
      file + R"(,Algebra,North,"Ms ""T""",3,7,Muñoz,Zoé,'=cmd(),,,,,,,,,)" + "\n";
  EXPECT_EQ(run.out, head + row_5 + row_7 + row_5 + row_7);
}

TEST_F(RowsCommandTest, AFileThatCannotBeReadIsNamedAndTheOthersStand) {
  const std::string good = Build(kAlgebra);
  const std::string bad = Put("bad.TYR", "no class");
  const CliRun run = RunCli({"rows", good, bad, Path("none.TYR"), good});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(Lines(run.out).size(), 8u);
  EXPECT_EQ(run.err, bad + ": This file is NOT in a recognized Tallyroll format\n" +
                         Path("none.TYR") + ": File Error: 53\n");
}

TEST_F(RowsCommandTest, AverageThatCannotBeComputedLeavesNoHalfAClass) {
  const std::string bad = Build(R"({"AverageSettings": "2,0,0,0,0", "Instruments": [{"mvalue": 10}],
    "Students": [{"lastname": "A", "firstname": "B", "id": "1", "Marks": ["", "5"]},
                 {"lastname": "C", "firstname": "D", "id": "2", "Marks": ["", "1E30"]}]})");
  const CliRun run = RunCli({"rows", bad, "--table", "averages"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.err, HasSubstr("C, D can't be computed: a number is too large"));
}

TEST_F(RowsCommandTest, NamesComeFromStandardInputToo) {
  const std::string a = Build(kAlgebra, "a.TYR");
  const std::string b = Build(kAlgebra, "b.TYR");
  EXPECT_EQ(RunCli({"rows", "-"}, a + "\r\n\n" + b + "\n").out, RunCli({"rows", a, b}).out);
}

TEST_F(RowsCommandTest, AWrongTableOrNumberOfJobsIsAWrongCommandLine) {
  EXPECT_EQ(RunCli({"rows", "a", "--table", "pupils"}).status, 2);
  EXPECT_EQ(RunCli({"rows", "a", "--jobs", "0"}).status, 2);
  EXPECT_EQ(RunCli({"rows", "a", "--csv", "--jsonl"}).status, 2);
}

TEST_F(RowsCommandTest, JobsKeepTheOrderOfTheFilesAndOfWhatIsToldOfThem) {
  std::string names;
  for (int i = 0; i < 23; ++i) {
    std::string text = kAlgebra;
    text.replace(text.find("Algebra"), 7, "Class " + std::to_string(i));
    const std::string name = std::to_string(i) + ".TYR";
    names += " " + (i % 5 == 3 ? Put(name, "no class") : Build(text, name));
  }
  int one = 0;
  int four = 0;
  const std::string command = std::string(TALLYROLL_CLI) + " rows" + names;
  const std::string alone = Shell(command + " 2>" + Path("one"), one);
  const std::string shared = Shell(command + " --jobs 4 2>" + Path("four"), four);
  EXPECT_EQ(one, 1);
  EXPECT_EQ(four, 1);
  EXPECT_EQ(Lines(alone).size(), 19u * 4);
  EXPECT_EQ(shared, alone);
  EXPECT_EQ(Get(Path("four")), Get(Path("one")));
  EXPECT_THAT(Get(Path("one")), HasSubstr("3.TYR: "));
}

TEST_F(RowsCommandTest, AReaderWhoLeavesEndsEveryJob) {
  std::string names;
  for (int i = 0; i < 40; ++i) names += " " + Build(kAlgebra, std::to_string(i) + ".TYR");
  int status = 0;
  const std::string out = Shell("timeout 20 bash -c '" + std::string(TALLYROLL_CLI) + " rows" +
                                    names + " --jobs 3 | head -n 1'",
                                status);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Lines(out).size(), 1u);
}

}  // namespace
}  // namespace tallyroll
