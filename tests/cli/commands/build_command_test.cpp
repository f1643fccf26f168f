// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <nlohmann/json.hpp>

#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

using nlohmann::json;

class BuildCommandTest : public CliTest {
 protected:
  json BuildAndDump(const std::string& text) {
    return json::parse(RunCli({"dump", Build(text)}).out);
  }
};

TEST_F(BuildCommandTest, AnEmptyObjectIsANewClass) {
  const json c = BuildAndDump("{}");
  EXPECT_EQ(c["Magic"], "ty8");
  EXPECT_EQ(c["RoundMode"], 2);
  EXPECT_EQ(c["RoundScale"], 0);
  EXPECT_EQ(c["Reserved488"], "12");
  EXPECT_EQ(c["Reserved496"], "21");
  EXPECT_EQ(c["LetterValues"][0], "100");
  EXPECT_EQ(c["LetterValues"][13], "55");
  EXPECT_EQ(c["RoundTable"][0][0], 99.5);
  EXPECT_EQ(c["RoundTable"][1][0], 0);
  EXPECT_EQ(c["AverageSettings"], "");
  EXPECT_EQ(c["NumStudents"], 0);
  EXPECT_EQ(c["ChartRows"], nullptr);
  EXPECT_EQ(c["Students"], json::array());
}

TEST_F(BuildCommandTest, MissingCountsAreTakenFromTheLists) {
  const json c = BuildAndDump(R"({"Students": [{}, {}, {}], "Instruments": [{}, {}],
      "AttendanceDays": [{"date": 46266}], "Summaries": [{}],
      "ChartRows": [0, 5, 6], "ChartColumns": [0, 4, 3]})");
  EXPECT_EQ(c["NumStudents"], 3);
  EXPECT_EQ(c["NumInstruments"], 2);
  EXPECT_EQ(c["NumDays"], 1);
  EXPECT_EQ(c["NumSummaries"], 1);
  EXPECT_EQ(c["NumCharts"], 2);
}

TEST_F(BuildCommandTest, AStudentWithoutListsGetsThoseOfANewOne) {
  const json c = BuildAndDump(R"({"Students": [{"lastname": "Abe"}], "Instruments": [{}, {}],
      "AttendanceDays": [{"date": 46266}], "Summaries": [{}],
      "ChartRows": [0, 5], "ChartColumns": [0, 4]})");
  const json& student = c["Students"][0];
  EXPECT_EQ(student["lastname"], "Abe");
  EXPECT_EQ(student["Marks"], json({"", "NEW", "NEW"}));
  EXPECT_EQ(student["DailyMarks"], json({" ", " "}));
  EXPECT_EQ(student["SummaryAbsent"][1], "0    ");
  EXPECT_EQ(student["SummaryDetail"][1], " 0/ 0/ 0/ 0/");
  EXPECT_EQ(student["SummaryLate"][1], "0");
  EXPECT_EQ(student["SeatRow"][1], -1);
  EXPECT_EQ(student["SeatColumn"][1], -1);
}

TEST_F(BuildCommandTest, AStudentWithSomeListsKeepsThem) {
  const json c = BuildAndDump(
      R"({"Students": [{"Marks": ["", "85"], "DailyMarks": null}], "Instruments": [{}],
          "AttendanceDays": [{"date": 46266}]})");
  EXPECT_EQ(c["Students"][0]["Marks"], json({"", "85"}));
  EXPECT_EQ(c["Students"][0]["DailyMarks"], nullptr);
}

TEST_F(BuildCommandTest, ReadsAFileAsWellAsStandardInput) {
  const std::string text = R"({"teacher": "Mr B"})";
  EXPECT_EQ(RunCli({"build", Put("a.json", text), Path("a.TYR")}).status, 0);
  EXPECT_EQ(Get(Path("a.TYR")), Get(Build(text, "b.TYR")));
}

TEST_F(BuildCommandTest, AWriteThatFailsLeavesNothing) {
  const std::string file = Path("none/class.TYR");
  ExpectRefused(RunCli({"build", "-", file}, "{}"),
                file + ": File Error: 76 (there is no such folder)");
}

TEST_F(BuildCommandTest, ARefusalKeepsTheFileThatIsThere) {
  const std::string file = Put("a.TYR", "before");
  EXPECT_EQ(RunCli({"build", "-", file}, R"({"room": 7})").status, 1);
  EXPECT_EQ(Get(file), "before");
}

TEST_F(BuildCommandTest, AFileThatIsThereIsReplacedByForceAlone) {
  const std::string file = Put("a.TYR", "before");
  ExpectRefused(RunCli({"build", "-", file}, "{}"),
                file + ": exists already (--force replaces it and keeps a backup)");
  EXPECT_EQ(Get(file), "before");
  EXPECT_EQ(RunCli({"build", "--force", "-", file}, "{}").status, 0);
  EXPECT_EQ(Get(file), Get(Build("{}", "b.TYR")));
  EXPECT_EQ(Get(Path("a.old")), "before");
}

// Not the bytes of any of eight classes are lost, the one kept before under that name least of all.
TEST_F(BuildCommandTest, EachReplacedFileStaysUnderANameOfItsOwn) {
  const std::string file = Put("a.TYR", "0");
  Put("a.old", "kept");
  for (int i = 1; i <= 7; ++i) {
    ASSERT_EQ(RunCli({"build", "--force", "-", file}, "{}").status, 0);
    Put("a.TYR", std::to_string(i));
  }
  EXPECT_EQ(Get(Path("a.old")), "kept");
  const char* const kept[] = {"a.ol6", "a.ol7", "a.ol8", "a.ol9", "a.o10", "a.o11", "a.o12"};
  for (int i = 0; i < 7; ++i) EXPECT_EQ(Get(Path(kept[i])), std::to_string(i)) << kept[i];
}

TEST_F(BuildCommandTest, WithoutRoomForABackupNothingIsReplaced) {
  const std::string file = Put("a.TYR", "before");
  Put("a.old", "");
  for (int i = 6; i <= 9; ++i) Put("a.ol" + std::to_string(i), "");
  for (int i = 10; i <= 99; ++i) Put("a.o" + std::to_string(i), "");
  ExpectRefused(RunCli({"build", "--force", "-", file}, "{}"),
                file + ": File Error: 75 (the path cannot be used)");
  EXPECT_EQ(Get(file), "before");
}

TEST_F(BuildCommandTest, AForcedWriteThatFailsTakesItsBackupBack) {
  const std::string file = Put("a.TYR", "before");
  std::filesystem::permissions(file, std::filesystem::perms::owner_read);
  ExpectRefused(RunCli({"build", "--force", "-", file}, "{}"),
                file + ": File Error: 70 (permission denied)");
  EXPECT_EQ(Get(file), "before");
  EXPECT_FALSE(std::filesystem::exists(Path("a.old")));
}

TEST_F(BuildCommandTest, NeverWritesOverTheJsonItself) {
  const std::string file = Put("a.json", "{}");
  ExpectRefused(RunCli({"build", file, file}), file + ": is the JSON file itself");
  EXPECT_EQ(Get(file), "{}");
}

TEST_F(BuildCommandTest, AMissingJsonFileIsRefused) {
  ExpectRefused(RunCli({"build", Path("none.json"), Path("a.TYR")}),
                Path("none.json") + ": File Error: 53 (there is no such file)");
  EXPECT_FALSE(std::filesystem::exists(Path("a.TYR")));
}

struct RefusedJson {
  const char* name;
  std::string json;
  std::string reason;
};

class RefusedJsonTest : public CliTest, public ::testing::WithParamInterface<RefusedJson> {};

TEST_P(RefusedJsonTest, IsRefusedByItsPath) {
  ExpectRefused(RunCli({"build", "-", Path("a.TYR")}, GetParam().json), "-: " + GetParam().reason);
  EXPECT_FALSE(std::filesystem::exists(Path("a.TYR")));
}

std::string Quoted(std::size_t length) {
  return "\"" + std::string(length, 'x') + "\"";
}

const RefusedJson kRefusals[] = {
    {"Empty", "", "is no valid JSON at line 1, column 1"},
    {"BrokenText", "{\"room\": \n  oops}", "is no valid JSON at line 2, column 3"},
    {"Cut", "{\"room\": \"7\"", "is no valid JSON at line 1, column 13"},
    {"TextBehindTheEnd", "{} {}", "is no valid JSON at line 1, column 4"},
    {"NotAnObject", "[]", "must be an object"},
    {"UnknownField", R"({"rooms": "7"})", "rooms is an unknown field"},
    {"UnknownFieldOfAStudent", R"({"Students": [{}, {"mark": 1}]})",
     "Students[2].mark is an unknown field"},
    {"ADerivedField", R"({"Method": 1})", "Method is an unknown field"},
    {"KeyTwice", R"({"room": "1", "room": "2"})", "room stands twice"},
    {"KeyTwiceInAStudent", R"({"Students": [{}, {"id": "1", "zip": "2", "id": "3"}]})",
     "Students[2].id stands twice"},
    {"TooDeep", "{\"Marks\": " + std::string(100000, '['),
     "Marks[0][0][0][0][0][0][0] is nested too deeply"},
    {"NumberForText", R"({"room": 7})", "room must be a string"},
    {"NullForText", R"({"room": null})", "room must be a string"},
    {"TextForNumber", R"({"RoundMode": "1"})", "RoundMode must be a whole number"},
    {"FractionForNumber", R"({"RoundMode": 1.5})", "RoundMode must be a whole number"},
    {"NumberTooLarge", R"({"RoundMode": 32768})", "RoundMode must lie between -32768 and 32767"},
    {"NumberTooSmall", R"({"RoundMode": -32769})", "RoundMode must lie between -32768 and 32767"},
    {"NumberHuge", R"({"RoundMode": 18446744073709551615})",
     "RoundMode must lie between -32768 and 32767"},
    {"NumberBeyondDouble", R"({"AttendanceDays": [{"date": 1e999}]})", "is no valid JSON"},
    {"SingleTooLarge",
     R"({"RoundTable": [[0,0,0,0,0,0,0,0,0,0,0,0,0,0],[0,0,0,1e39,0,0,0,0,0,0,0,0,0,0],[],[],[]]})",
     "RoundTable[1][3] is too large for a Single"},
    {"TextForDate", R"({"AttendanceDays": [{"date": "9/1/2026"}]})",
     "AttendanceDays[1].date must be a number"},
    {"FiniteBytesForDate", R"({"AttendanceDays": [{"date": "0000000000000000"}]})",
     "AttendanceDays[1].date must be a number"},
    {"BooleanForDate", R"({"AttendanceDays": [{"date": true}]})",
     "AttendanceDays[1].date must be a number"},
    {"CharacterOutsideTheCodePage", "{\"Students\": [{\"lastname\": \"\xC5\x81o\"}]}",
     "Students[1].lastname has a character that code page 1252 lacks"},
    {"TextTooLong", "{\"school\": " + Quoted(65536) + "}",
     "school has 65536 characters, it may have 65535"},
    {"MarkTooLong",
     "{\"Instruments\": [{}], \"Students\": [{\"Marks\": [\"\", " + Quoted(65536) + "]}]}",
     "Students[1].Marks[1] has 65536 characters, it may have 65535"},
    {"FixedTextTooShort", R"({"Summaries": [{}], "Students": [{"SummaryAbsent": ["     ", "0"]}]})",
     "Students[1].SummaryAbsent[1] must have exactly 5 characters, blanks included"},
    {"FixedTextTooLong", R"({"AttendanceDays": [{"dayflag": "ab"}]})",
     "AttendanceDays[1].dayflag must have exactly 1 character, blanks included"},
    {"FixedTextOfOneEmpty", R"({"AttendanceDays": [{"dayflag": ""}]})",
     "AttendanceDays[1].dayflag must have exactly 1 character, blanks included"},
    {"ArrayTooShort", R"({"LetterValues": ["1"]})",
     "LetterValues has 1 items, it must have 14 items"},
    {"ArrayTooLong", R"({"RoundTable": [[],[],[],[],[],[]]})",
     "RoundTable has 6 items, it must have 5 items"},
    {"ScaleTooShort", R"({"RoundTable": [[1],[],[],[],[]]})",
     "RoundTable[0] has 1 items, it must have 14 items"},
    {"NotAnArray", R"({"Categories": "x"})", "Categories must be an array"},
    {"NotAList", R"({"ReservedList": 3})", "ReservedList must be an array or null"},
    {"ListWithoutElementZero", R"({"ReservedList": []})",
     "ReservedList lacks its element 0 (null is a list never dimensioned)"},
    {"NullForStudents", R"({"Students": null})", "Students must be an array"},
    {"StudentNotAnObject", R"({"Students": [[]]})", "Students[1] must be an object"},
    {"GradeNotAnObject", R"({"Instruments": [{}, 5]})", "Instruments[2] must be an object"},
    {"CurrencyAsNumber", R"({"Instruments": [{"weight": 5}]})",
     "Instruments[1].weight must be a string with a decimal number"},
    {"CurrencyWithFiveDecimals", R"({"Instruments": [{"weight": "0.12345"}]})",
     "Instruments[1].weight must be a plain decimal number of at most four decimals"},
    {"CurrencyWithExponent", R"({"Instruments": [{"weight": "1e2"}]})",
     "Instruments[1].weight must be a plain decimal number of at most four decimals"},
    {"CurrencyEmpty", R"({"Instruments": [{"weight": ""}]})",
     "Instruments[1].weight must be a plain decimal number of at most four decimals"},
    {"CurrencyTooLarge", R"({"Instruments": [{"weight": "922337203685477.5808"}]})",
     "Instruments[1].weight must be a plain decimal number of at most four decimals"},
    {"BytesTooFew", R"({"Reserved8": ["0000000000000000", "00"]})",
     "Reserved8[1] must be a string of 16 hexadecimal digits"},
    {"BytesNotHexadecimal", R"({"Reserved8": ["000000000000000g"]})",
     "Reserved8[0] must be a string of 16 hexadecimal digits"},
    {"OlderMagic", R"({"Magic": "ty7"})",
     "Magic must be \"ty8\": only the current format is written"},
    {"CountAboveItsList", R"({"NumStudents": 2, "Students": [{}]})",
     "Students has 1 items, NumStudents is 2"},
    {"CountBelowItsList", R"({"NumInstruments": 0, "Instruments": [{}]})",
     "Instruments has 1 items, NumInstruments is 0"},
    {"CountBelowZero", R"({"NumDays": -1})", "AttendanceDays has 0 items, NumDays is -1"},
    {"ChartCountAndRows", R"({"NumCharts": 2, "ChartRows": [0, 1]})",
     "ChartRows has 1 items, NumCharts is 2"},
    {"ChartColumnsMissing", R"({"ChartRows": [0, 1]})", "ChartColumns has 0 items, NumCharts is 1"},
    {"MarksTooFew", R"({"Instruments": [{}, {}], "Students": [{}, {}, {"Marks": ["", "1"]}]})",
     "Students[3].Marks has 1 items, NumInstruments is 2"},
    {"MarksNeverDimensioned", R"({"Instruments": [{}], "Students": [{"Marks": null}]})",
     "Students[1].Marks has 0 items, NumInstruments is 1"},
    {"DailyMarksTooMany", R"({"Students": [{"DailyMarks": [" ", "A"]}]})",
     "Students[1].DailyMarks has 1 items, NumDays is 0"},
    {"SeatsTooFew",
     R"({"ChartRows": [0, 1], "ChartColumns": [0, 1], "Students": [{"SeatRow": [0]}]})",
     "Students[1].SeatRow has 0 items, NumCharts is 1"},
    {"TooManySummaries",
     "{\"Summaries\": [{}" +
         [] {
           std::string more;
           for (int i = 0; i < 20; ++i) more += ", {}";
           return more;
         }() +
         "]}",
     "NumSummaries is 21, at most 20 are allowed"},
};

INSTANTIATE_TEST_SUITE_P(All, RefusedJsonTest, ::testing::ValuesIn(kRefusals),
                         [](const auto& test) { return std::string(test.param.name); });

// A short text must not ask for gigabytes.
TEST_F(BuildCommandTest, ListsOfNewStudentsHaveABound) {
  std::string items = "{}";
  for (int i = 1; i < 5000; ++i) items += ",{}";
  const CliRun run = RunCli({"build", "-", Path("a.TYR")},
                            "{\"Instruments\": [" + items + "], \"Students\": [" + items + "]}");
  // 838 students of 5,000 marks are the last below 2^22.
  ExpectRefused(run, "-: Students[839] leaves out lists that would be too large");
}

TEST_F(BuildCommandTest, TopLevelListsHaveAtMost32767Items) {
  std::string items = "{}";
  for (int i = 1; i < 32768; ++i) items += ",{}";
  ExpectRefused(RunCli({"build", "-", Path("a.TYR")}, "{\"Instruments\": [" + items + "]}"),
                "-: Instruments has 32768 items, it may have 32767");
}

TEST_F(BuildCommandTest, AnObjectWithThousandsOfFieldsIsRefusedSoon) {
  std::string fields = "\"f0\": 0";
  for (int i = 1; i < 100000; ++i) fields += ", \"f" + std::to_string(i) + "\": 0";
  ExpectRefused(RunCli({"build", "-", Path("a.TYR")}, "{" + fields + "}"),
                "-: f100 is an unknown field");
}

}  // namespace
}  // namespace tallyroll
