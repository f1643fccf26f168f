// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <random>

#include "store/class_format.h"
#include "tests/cli/run_cli.h"
#include "tests/support/file_bytes.h"
#include "tests/support/random_class.h"

namespace tallyroll {
namespace {

using ::testing::HasSubstr;

// One of everything, as `dump` writes it.
constexpr const char* kSmallClass = R"({
  "Magic": "ty8",
  "LetterValues": ["243", "99", "95.5", "90", "88", "85", "80", "78", "75", "70", "68", "65", "60", "-0.0001"],
  "RoundTable": [
    [99.5, 97, 0.1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0],
    [0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0],
    [0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0],
    [0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0],
    [0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 16777216]
  ],
  "RoundScale": 4,
  "FinalGradeForm": 3,
  "Reserved428": -1,
  "RoundMode": 0,
  "PercentsText": "1\r2",
  "Reserved8": ["0000000000000000", "01020304fffefdfc"],
  "AverageSettings": "0,1,0,0,1,2",
  "NumStudents": 1,
  "NumInstruments": 1,
  "NumDays": 1,
  "NumSummaries": 1,
  "NumCharts": 1,
  "ChartRows": [0, 5],
  "ChartColumns": [0, 6],
  "school": "École 9",
  "PasswordSet": 0,
  "teacher": "Ms. Ó \"Q\" €",
  "termstart": "9/1/2026",
  "termend": "10/1/2026",
  "timed": "2",
  "Reserved488": "12",
  "Password": "",
  "Reserved496": "21",
  "description": "Algebra",
  "room": "7\\B",
  "Categories": ["", "Band~BD", "", "", "", "", "", "", "", "", "", "", "", ""],
  "LastNameWidth": 5,
  "FirstNameWidth": 3,
  "ReservedList": ["", "x"],
  "ReservedText": "r",
  "Instruments": [
    {
      "title": "Quiz 1",
      "code": "QZ1",
      "weight": "33.333",
      "mvalue": 20,
      "dropyn": "Y",
      "testdate": "9/4/2026",
      "lowpass": "13",
      "Reserved32": "",
      "typecode": "Q ",
      "Reserved40": "",
      "countflag": "N",
      "Reserved48": "",
      "ReservedList": null,
      "ReservedText": ""
    }
  ],
  "AttendanceDays": [
    {"date": 46266, "dayflag": " ", "daynote": "first"}
  ],
  "Summaries": [
    {
      "title": "Fall",
      "code": "A1",
      "kind": 2,
      "rangenumber": 1,
      "startdate": "9/1/2026",
      "enddate": "9/1/2026"
    }
  ],
  "Students": [
    {
      "SeatRow": [0, -1],
      "SeatColumn": [0, 3],
      "city": "",
      "state": "NY",
      "zip": "10001",
      "SummaryAbsent": ["     ", "1    "],
      "firstname": "Zoé",
      "SummaryDetail": ["", " 0/ 0/ 0/ 0/"],
      "Marks": [" 88", "18.5"],
      "work": "",
      "lastname": "Muñoz",
      "id": "12",
      "parent": "",
      "phone": "",
      "SummaryLate": ["", "0"],
      "address": "",
      "birth": "",
      "DailyMarks": [" ", "A"],
      "comments": "a\r\nb\t\u0001",
      "email": "",
      "ReservedList": null,
      "ReservedText": "",
      "ReservedFields": ["", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "", "z"]
    }
  ]
}
)";

// The same class, byte by byte.
std::string SmallClassBytes() {
  FileBytes f;
  f.Raw("ty8");
  for (int value : {243, 99}) f.Money(value * 10000);
  f.Money(955000);
  for (int value : {90, 88, 85, 80, 78, 75, 70, 68, 65, 60}) f.Money(value * 10000);
  f.Money(-1);
  f.Single(99.5f).Single(97).Single(0.1f);
  for (int k = 3; k < 69; ++k) f.Single(0);
  f.Single(16777216);
  f.I16(4).I16(3).I16(-1).I16(0).Text("1\r2");
  f.List(1).Raw(std::string(8, '\0')).Raw("\x01\x02\x03\x04\xff\xfe\xfd\xfc").Text("0,1,0,0,1,2");
  for (int k = 0; k < 5; ++k) f.I16(1);
  f.List(1)
      .I16(0)
      .I16(5)
      .List(1)
      .I16(0)
      .I16(6)
      .Text(
          "\xC9"
          "cole 9")
      .I16(0);
  f.Text("Ms. \xD3 \"Q\" \x80").Text("9/1/2026").Text("10/1/2026").Text("2").Text("12").Text("");
  f.Text("21").Text("Algebra").Text("7\\B").Text("").Text("Band~BD").Texts(12);
  f.I16(5).I16(3).List(1).Text("").Text("x").Text("r");
  f.Text("Quiz 1").Text("QZ1").Money(333330).I16(20).Text("Y").Text("9/4/2026").Text("13").Text("");
  f.Text("Q ").Text("").Text("N").Text("").NoList().Text("");
  f.Date(46266).Raw(" ").Text("first");
  f.Text("Fall").Text("A1").I16(2).I16(1).Text("9/1/2026").Text("9/1/2026");
  f.List(1).I16(0).I16(-1).List(1).I16(0).I16(3).Text("").Text("NY").Text("10001");
  f.List(1).Raw("     1    ").Text("Zo\xE9").List(1).Text("").Text(" 0/ 0/ 0/ 0/");
  f.List(1).Text(" 88").Text("18.5").Text("").Text("Mu\xF1oz").Text("12").Texts(2);
  f.List(1).Text("").Text("0").Texts(2).List(1).Raw(" A").Text("a\r\nb\t\x01").Text("");
  f.NoList().Text("").Texts(25).Text("z");
  return f.bytes;
}

class DumpCommandTest : public CliTest {};

TEST_F(DumpCommandTest, WritesEveryFieldInFileOrder) {
  const CliRun run = RunCli({"dump", Put("a.TYR", SmallClassBytes())});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.out, kSmallClass);
}

TEST_F(DumpCommandTest, BuildWritesTheClassThatADumpDescribes) {
  EXPECT_EQ(Get(Build(kSmallClass)), SmallClassBytes());
}

TEST_F(DumpCommandTest, BuildOfDumpGivesTheSameBytes) {
  for (unsigned seed = 1; seed <= 200; ++seed) {
    std::mt19937 random(seed);
    std::string bytes;
    ASSERT_EQ(SerializeClass(RandomClass(random), bytes), 0);
    const CliRun dump = RunCli({"dump", Put("a.TYR", bytes)});
    ASSERT_EQ(dump.status, 0) << "seed " << seed << ": " << dump.err;
    std::filesystem::remove(Path("b.TYR"));
    const CliRun build = RunCli({"build", "-", Path("b.TYR")}, dump.out);
    ASSERT_EQ(build.status, 0) << "seed " << seed << ": " << build.err;
    ASSERT_EQ(Get(Path("b.TYR")), bytes) << "seed " << seed;
  }
}

TEST_F(DumpCommandTest, NumbersThatJsonLacksKeepTheirBytes) {
  std::string bytes = SmallClassBytes();
  bytes.replace(
      115, 16, std::string("\x01\x00\xC0\x7F\x00\x00\x80\xFF\x00\x00\x00\x80\x01\x00\x00\x00", 16));
  const CliRun run = RunCli({"dump", Put("a.TYR", bytes)});
  EXPECT_THAT(run.out, HasSubstr(R"(["0100c07f", "000080ff", -0.0, 1e-45, 0,)"));
  EXPECT_EQ(Get(Build(run.out)), bytes);
}

TEST_F(DumpCommandTest, UndefinedBytesAreControlCharacters) {
  std::string bytes = HeaderBytes(1, 0, 0, 0) + StudentBytes("\x81\x8D\x8F\x90\x9D\x80", "A");
  const CliRun run = RunCli({"dump", Put("a.TYR", bytes)});
  EXPECT_THAT(run.out, HasSubstr("\"lastname\": \"\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D€\""));
  EXPECT_EQ(Get(Build(run.out)), bytes);
}

TEST_F(DumpCommandTest, AnOldTailIsNotPartOfTheClass) {
  const std::string bytes = SmallClassBytes();
  const CliRun run = RunCli({"dump", Put("a.TYR", bytes + "old tail")});
  EXPECT_EQ(run.out, kSmallClass);
  EXPECT_EQ(Get(Build(run.out, "a.TYR")), bytes);
}

TEST_F(DumpCommandTest, OpenedShowsTheClassAfterEveryStep) {
  const CliRun run = RunCli({"dump", "--opened", Put("a.TYR", SmallClassBytes())});
  ASSERT_EQ(run.status, 0) << run.err;
  const auto json = nlohmann::json::parse(run.out);
  EXPECT_EQ(json["RoundScale"], 0);
  EXPECT_EQ(json["RoundTable"][0][2], 92.5);
  EXPECT_EQ(json["RoundTable"][4][13], 16777216);
  EXPECT_EQ(json["Method"], 0);
  EXPECT_EQ(json["AverageFlag1"], -1);
  EXPECT_EQ(json["AverageFlag2"], 0);
  EXPECT_EQ(json["AverageFlag3"], 0);
  EXPECT_EQ(json["AverageFlag4"], -1);
  EXPECT_EQ(json["Weights"], nlohmann::json({"0", "33.333"}));
  EXPECT_EQ(json["InstrumentUse"], nlohmann::json({"0", "0"}));
  EXPECT_EQ(json["TypeWeights"][1], "2");
  EXPECT_EQ(json["TypeWeights"].size(), 27u);
  EXPECT_EQ(json["TypePercents"].size(), 27u);
}

TEST_F(DumpCommandTest, OpenedSortsTheStudents) {
  const std::string file =
      Build(R"({"Students": [{"lastname": "B", "id": "1"}, {"lastname": "A", "id": "2"}]})");
  const auto stands = nlohmann::json::parse(RunCli({"dump", file}).out);
  const auto opened = nlohmann::json::parse(RunCli({"dump", "--opened", file}).out);
  EXPECT_EQ(stands["Students"][0]["lastname"], "B");
  EXPECT_EQ(opened["Students"][0]["lastname"], "A");
}

TEST_F(DumpCommandTest, OpenedNeedsThePassword) {
  // "secret" with the bits 1, 3 and 6 of each character turned over.
  const std::string file = Build(R"({"PasswordSet": 1, "Password": "9/)8/>"})");
  EXPECT_EQ(RunCli({"dump", file}).status, 0);
  ExpectRefused(RunCli({"dump", "--opened", file}),
                file + ": has a password (give it with --password)");
  ExpectRefused(RunCli({"dump", "--opened", "--password", "Secret", file}),
                file + ": has another password");
  ExpectRefused(RunCli({"dump", "--opened", "--password", "", file}),
                file + ": has another password");
  const CliRun run = RunCli({"dump", "--opened", "--password", "secret", file});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(run.out, HasSubstr("\"PasswordSet\": 1"));
}

TEST_F(DumpCommandTest, FilesThatAreNoClassAreRefused) {
  ExpectRefused(RunCli({"dump", Path("none.TYR")}),
                Path("none.TYR") + ": File Error: 53 (there is no such file)");
  ExpectRefused(RunCli({"dump", Put("x.TYR", "hello")}),
                Path("x.TYR") + ": This file is NOT in a recognized Tallyroll format");
  ExpectRefused(RunCli({"dump", "--opened", Path("x.TYR")}),
                Path("x.TYR") + ": This file is NOT in a recognized Tallyroll format");
  ExpectRefused(RunCli({"dump", Put("cut.TYR", SmallClassBytes().substr(0, 700))}),
                Path("cut.TYR") + ": File Error: 62 (the file ends too early)");
  ExpectRefused(RunCli({"dump", "--opened", Path("cut.TYR")}),
                Path("cut.TYR") + ": File Error: 62");
  ExpectRefused(RunCli({"dump", Put("empty.TYR", "")}),
                Path("empty.TYR") + ": This file is NOT in a recognized Tallyroll format");
}

TEST_F(DumpCommandTest, LeavesTheFileAsItIs) {
  const std::string file = Put("a.TYR", SmallClassBytes());
  RunCli({"dump", file});
  RunCli({"dump", "--opened", file});
  EXPECT_EQ(Get(file), SmallClassBytes());
}

}  // namespace
}  // namespace tallyroll
