// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/cli/run_cli.h"
#include "tests/support/refusing_disk.h"

namespace tallyroll {
namespace {

// Quizzes and tests by the weights of single grades.
constexpr const char* kClass = R"({"description": "Algebra", "school": "Riverside",
  "AverageSettings": "0,0,0,0,0",
  "LetterValues": ["100", "99", "95", "90", "88", "85", "80", "78", "75", "70", "68", "65", "60", "55"],
  "RoundMode": 0,
  "Instruments": [{"title": "Fractions", "code": "Q1", "typecode": "Q ", "mvalue": 20, "weight": "50"},
                  {"title": "Midterm", "code": "T1", "typecode": "T ", "mvalue": 100, "weight": "50"}],
  "AttendanceDays": [{"date": 46266}],
  "Summaries": [{"title": "First term", "code": "FT", "kind": 1}],
  "Students": [
    {"lastname": "Muñoz", "firstname": "Zoé", "id": "7", "comments": "Reads well.",
     "Marks": ["", "18", "90"], "DailyMarks": [" ", "A"],
     "SummaryAbsent": ["     ", "2    "], "SummaryLate": ["", "1"], "SummaryDetail": ["", " 0/ 0/ 0/ 0/"]},
    {"lastname": "Abe", "firstname": "Bo", "id": "512",
     "Marks": ["", "14", "ABS"], "DailyMarks": [" ", " "],
     "SummaryAbsent": ["     ", "0    "], "SummaryLate": ["", "0"], "SummaryDetail": ["", " 0/ 0/ 0/ 0/"]}]})";

class ReportCommandTest : public CliTest {
 protected:
  // A report of the class above; standard error stays empty.
  std::string Report(std::vector<std::string> options) {
    options.insert(options.begin(), "report");
    options.push_back(Build(kClass));
    const CliRun run = RunCli(options);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.err, "");
    return run.out;
  }
  void ExpectRefusal(std::vector<std::string> options, const std::string& reason) {
    const std::string file = Build(kClass);
    options.insert(options.begin(), "report");
    options.push_back(file);
    ExpectRefused(RunCli(options), file + ": " + reason);
  }
  void ExpectWrong(std::vector<std::string> options) {
    options.insert(options.begin(), "report");
    options.push_back(Build(kClass));
    const CliRun run = RunCli(options);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_FALSE(run.err.empty());
  }
  static bool Has(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
  }
};

const std::string kRule(77, '_');
const std::string kWideRule(80, '_');

TEST_F(ReportCommandTest, TheTextGoesToStandardOutput) {
  EXPECT_EQ(Report({"--code", "1"}),
            "                    Full Grades Printout\r\n\r\n"
            "512 Abe, Bo\r\nQ1    T1\r\n14    ABS\r\n\r\n" +
                kRule + "\r\n\r\n" + "7 Muñoz, Zoé\r\nQ1    T1\r\n18    90\r\n\r\n" + kRule +
                "\r\n\r\n");
}

TEST_F(ReportCommandTest, EveryCodeIsMade) {
  for (const char* code : {"1",  "2",  "3",  "4",  "8",  "9",  "10", "11", "12", "13", "14",
                           "15", "16", "17", "18", "19", "20", "21", "22", "23", "24"}) {
    EXPECT_NE(
        Report({"--code", code, "--grade", "1", "--summary", "1", "--months", "2026-09..2026-09"}),
        "")
        << code;
  }
}

TEST_F(ReportCommandTest, TheFilesEndingChoosesTheForm) {
  EXPECT_EQ(Report({"--code", "22", "--out", Path("a.txt")}), "");
  EXPECT_EQ(Get(Path("a.txt")).substr(0, 27), " Class Information Printout");
  for (const char* name : {"a.htm", "b.HTML"}) {
    EXPECT_EQ(Report({"--code", "22", "--out", Path(name)}), "");
    EXPECT_EQ(Get(Path(name)).substr(0, 6), "<html>") << name;
  }
}

TEST_F(ReportCommandTest, TheFormatOverridesTheEnding) {
  Report({"--code", "22", "--out", Path("a.htm"), "--format", "text"});
  EXPECT_EQ(Get(Path("a.htm")).substr(0, 27), " Class Information Printout");
  EXPECT_EQ(Report({"--code", "22", "--format", "html"}).substr(0, 6), "<html>");
  ExpectWrong({"--code", "22", "--format", "rtf"});
}

TEST_F(ReportCommandTest, AFileHasTheBytesOfAClassAndTheScreenUtf8) {
  Report({"--code", "19", "--out", Path("a.txt")});
  EXPECT_TRUE(Has(Get(Path("a.txt")), "Mu\xF1oz, Zo\xE9"));
  EXPECT_TRUE(Has(Report({"--code", "19"}), "Muñoz, Zoé"));
}

TEST_F(ReportCommandTest, TheClassFileStaysAsItIs) {
  const std::string file = Build(kClass);
  const std::string before = Get(file);
  RunCli({"report", "--code", "11", file});
  EXPECT_EQ(Get(file), before);
}

// ---- Students ----

TEST_F(ReportCommandTest, AllStudentsUnlessSomeAreNamed) {
  const std::string all = Report({"--code", "17"});
  EXPECT_TRUE(Has(all, "for 512 Abe, Bo"));
  EXPECT_TRUE(Has(all, "for 7 Muñoz, Zoé"));
  const std::string one = Report({"--code", "17", "--student", "7"});
  EXPECT_FALSE(Has(one, "Abe"));
  EXPECT_TRUE(Has(one, "for 7 Muñoz, Zoé"));
}

TEST_F(ReportCommandTest, NamedStudentsComeInTheOrderGiven) {
  const std::string text = Report({"--code", "17", "--student", "7", "--student", "512"});
  EXPECT_LT(text.find("Muñoz"), text.find("Abe"));
}

TEST_F(ReportCommandTest, AnUnknownStudentIsRefused) {
  ExpectRefusal({"--code", "17", "--student", "99"}, "no student has the ID 99");
}

// ---- What stands on the report ----

TEST_F(ReportCommandTest, AttendanceCommentsAndSignature) {
  const std::vector<std::string> plain = {"--code", "13", "--student", "7"};
  EXPECT_FALSE(Has(Report(plain), "Att. Summary"));
  EXPECT_FALSE(Has(Report(plain), "Comments: "));
  EXPECT_FALSE(Has(Report(plain), "Parent's Signature"));
  const auto with = [&](const char* option) {
    std::vector<std::string> options = plain;
    options.emplace_back(option);
    return Report(options);
  };
  EXPECT_TRUE(Has(with("--attendance"), "(Total Abs/Late)         2/1\r\n"));
  EXPECT_TRUE(Has(with("--comments"), "Comments: Reads well.\r\n"));
  EXPECT_TRUE(Has(with("--parent-signature"), "\r\n           Parent's Signature\r\n"));
}

TEST_F(ReportCommandTest, CodesAreExplainedOnRequest) {
  EXPECT_FALSE(Has(Report({"--code", "1"}), "CATEGORY"));
  EXPECT_TRUE(Has(Report({"--code", "1", "--code-details"}), "CATEGORY"));
}

TEST_F(ReportCommandTest, HeadsOfPagesDoNotChangeTheText) {
  EXPECT_EQ(Report({"--code", "17", "--school", "--teacher", "--title", "A title", "--today",
                    "2026-09-01"}),
            Report({"--code", "17"}));
}

TEST_F(ReportCommandTest, GradesAreSortedByType) {
  const std::string text = Report({"--code", "13", "--student", "7", "--sort", "type"});
  EXPECT_LT(text.find("Fractions"), text.find("Midterm"));
  const std::string tests = Report({"--code", "13", "--student", "7", "--sort", "types=T"});
  EXPECT_FALSE(Has(tests, "Fractions"));
  EXPECT_TRUE(Has(tests, "Midterm"));
  const std::string both = Report({"--code", "3", "--sort", "types=Q,T"});
  EXPECT_TRUE(Has(both, "Q1   T1"));
  EXPECT_FALSE(Has(Report({"--code", "3", "--sort", "types=Q"}), "T1"));
  const std::string none = Report({"--code", "13", "--student", "7", "--sort", "types="});
  EXPECT_FALSE(Has(none, "Fractions"));
  EXPECT_FALSE(Has(none, "Midterm"));
  ExpectWrong({"--code", "13", "--sort", "date"});
}

TEST_F(ReportCommandTest, OneGradeIsRanked) {
  const std::vector<std::string> ranked = {"--code", "10", "--grade", "1", "--rank"};
  const auto rank = [&](const char* way) {
    std::vector<std::string> options = ranked;
    options.emplace_back(way);
    return Report(options);
  };
  EXPECT_LT(rank("none").find("Abe"), rank("none").find("Muñoz"));
  EXPECT_LT(rank("high").find("Muñoz"), rank("high").find("Abe"));
  EXPECT_LT(rank("low").find("Abe"), rank("low").find("Muñoz"));
  ExpectWrong({"--code", "10", "--grade", "1", "--rank", "middle"});
}

TEST_F(ReportCommandTest, OneGradeMustBeOfTheClass) {
  EXPECT_EQ(Report({"--code", "10", "--grade", "2"}).substr(0, 10), " Midterm\r\n");
  for (const char* grade : {"0", "3", "-1"})
    ExpectRefusal({"--code", "10", "--grade", grade},
                  "--grade must be a grade of the class, from 1");
  ExpectRefusal({"--code", "10"}, "--grade must be a grade of the class, from 1");
  ExpectWrong({"--code", "10", "--grade", "first"});
}

TEST_F(ReportCommandTest, OneSummaryMustBeOfTheClass) {
  EXPECT_TRUE(Has(Report({"--code", "9", "--summary", "1"}), "FIRST TERM"));
  for (const char* summary : {"0", "2"})
    ExpectRefusal({"--code", "9", "--summary", summary},
                  "--summary must be a summary of the class, from 1");
}

TEST_F(ReportCommandTest, MonthsAreARange) {
  const std::string text = Report({"--code", "8", "--months", "2026-08..2026-09"});
  EXPECT_TRUE(Has(text, "Attendance Summary - August, 2026"));
  EXPECT_TRUE(Has(text, "Attendance Summary - September, 2026"));
  ExpectRefusal({"--code", "8"}, "--months is needed, as YYYY-MM..YYYY-MM");
  ExpectRefusal({"--code", "8", "--months", "2026-09"}, "--months takes YYYY-MM..YYYY-MM");
  for (const char* months : {"2026-13..2026-14", "2026-9..2026-10", "..", "2026-09..",
                             "2026-00..2026-01", "2026/09..2026/10"})
    ExpectRefusal({"--code", "8", "--months", months}, "--months is no range of months");
  ExpectRefusal({"--code", "8", "--months", "2026-09..2026-08"},
                "The start date must be less than the ending date");
}

TEST_F(ReportCommandTest, TheNameModeNamesAndSorts) {
  EXPECT_TRUE(Has(Report({"--code", "1", "--name-mode", "57"}), "\r\nAbe, Bo\r\n"));
  const std::string ids = Report({"--code", "1", "--name-mode", "73"});
  EXPECT_TRUE(Has(ids, "\r\n512\r\n"));
  EXPECT_FALSE(Has(ids, "Abe"));
  EXPECT_TRUE(Has(Report({"--code", "3", "--name-mode", "57"}), "NAME  "));
  EXPECT_TRUE(Has(Report({"--code", "3", "--name-mode", "73"}), "  ID  "));
  ExpectWrong({"--code", "1", "--name-mode", "58"});
}

// ---- Refusals ----

TEST_F(ReportCommandTest, ACodeThatNoReportHas) {
  for (const char* code : {"0", "5", "6", "7", "26", "-1"})
    ExpectRefusal({"--code", code}, "there is no report of this code");
  ExpectWrong({"--code", "one"});
  ExpectWrong({});
}

TEST_F(ReportCommandTest, ADateThatIsNone) {
  ExpectWrong({"--code", "1", "--today", "2026-02-30"});
  ExpectWrong({"--code", "1", "--today", "tomorrow"});
}

TEST_F(ReportCommandTest, ATitleThatAClassCannotHold) {
  ExpectRefusal({"--code", "1", "--title", "数学"},
                "the title has characters that a class cannot hold");
}

TEST_F(ReportCommandTest, AnAverageThatCannotBeMadeIsRefusedAndNothingIsWritten) {
  std::string text = kClass;
  text.replace(text.find("\"mvalue\": 20"), 12, "\"mvalue\": 0");
  const std::string file = Build(text);
  for (const char* code : {"11", "12", "18"})
    ExpectRefused(RunCli({"report", "--code", code, "--out", Path("a.txt"), file}),
                  file +
                      ": The average of Abe, Bo can't be computed: the maximum score is 0 in the "
                      "grade \"Fractions\".");
  EXPECT_FALSE(std::filesystem::exists(Path("a.txt")));
}

TEST_F(ReportCommandTest, AFileThatCannotBeWrittenIsRefused) {
  const std::string out = Path("none/a.txt");
  ExpectRefused(RunCli({"report", "--code", "1", "--out", out, Build(kClass)}),
                out + ": File Error: 76 (there is no such folder)");
}

TEST_F(ReportCommandTest, AFullDiskIsRefusedAndTheOldFileStays) {
  const std::string file = Build(kClass), out = Put("a.txt", "old");
  for (const char* format : {"text", "html"}) {
    CliRun run;
    {
      const SmallFiles small(50);
      run = RunCli({"report", "--code", "19", "--format", format, "--out", out, file});
    }
    ExpectRefused(run, out + ": File Error: 61 (the disk is full)");
    EXPECT_EQ(Get(out), "old");
  }
}

TEST_F(ReportCommandTest, AReadOnlyFolderIsRefusedAndStaysAsItIs) {
  const std::string file = Build(kClass), out = Path("a.txt");
  {
    const ReadOnlyFolder locked(Path(""));
    ASSERT_TRUE(locked.Refuses());
    ExpectRefused(RunCli({"report", "--code", "19", "--out", out, file}),
                  out + ": File Error: 70 (permission denied)");
  }
  EXPECT_FALSE(std::filesystem::exists(out));
}

TEST_F(ReportCommandTest, AFileThatIsMissingIsRefused) {
  ExpectRefused(RunCli({"report", "--code", "1", Path("none.TYR")}),
                Path("none.TYR") + ": File Error: 53");
}

TEST_F(ReportCommandTest, AReportOfStudentsForAClassWithoutAnyIsRefused) {
  const std::string file = Build("{}");
  for (const char* code : {"1", "2", "3", "8", "9", "10", "11", "12", "13", "14", "15", "16", "17",
                           "18", "19", "20", "21", "23", "24"}) {
    for (const char* format : {"text", "html"})
      ExpectRefused(RunCli({"report", "--code", code, "--format", format, file}),
                    file + ": the class has no students");
    ExpectRefused(RunCli({"report", "--code", code, "--out", Path("out.txt"), file}),
                  file + ": the class has no students");
  }
  EXPECT_FALSE(std::filesystem::exists(Path("out.txt")));
  EXPECT_EQ(RunCli({"report", "--code", "22", file}).status, 0);
}

TEST_F(ReportCommandTest, NoReportGoesOverAClassFile) {
  const std::string file =
      Build(R"({"Students": [{"lastname": "Abe", "firstname": "Bo", "id": "5"}]})");
  const std::string older = Put("older.TYR", "ty5 and so on");
  for (const std::string& out : {file, older}) {
    const std::string before = Get(out);
    for (const char* format : {"text", "html", "pdf"})
      ExpectRefused(RunCli({"report", "--code", "19", "--format", format, "--out", out, file}),
                    out + ": is a class file, which is left as it is");
    EXPECT_EQ(Get(out), before);
  }
}

TEST_F(ReportCommandTest, AReportOfNothingSaysSo) {
  const std::string file =
      Build(R"({"Instruments": [{"title": "Quiz", "code": "Q", "typecode": "Q ", "mvalue": 9}],
                "Students": [{"lastname": "Ng", "firstname": "Ada", "id": "1", "Marks": ["", "9"]}]})");
  ExpectRefused(RunCli({"report", "--code", "2", file}),
                file + ": No student of this class is missing any Grades.");
  ExpectRefused(RunCli({"report", "--code", "3", "--sort", "types=T", file}),
                file + ": None of the grades is of the types or dates you chose.");
}

}  // namespace
}  // namespace tallyroll
