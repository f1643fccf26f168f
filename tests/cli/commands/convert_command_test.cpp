// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlohmann/json.hpp>

#include "tests/cli/run_cli.h"
#include "tests/support/file_bytes.h"

namespace tallyroll {
namespace {

using nlohmann::json;

void AddStudent(FileBytes& f, bool seven, const char* last, const char* first, const char* mark,
                std::string_view daily) {
  f.Fixed(last, 12).Fixed(first, 10).Fixed("12", 9).Fixed("", 30).Fixed("", 14).Fixed("", 14);
  f.Fixed("", 50).Fixed("", 15).Fixed("", 2).Fixed("", 10).Fixed("", 14);
  const std::size_t width = seven ? 5 : 3;
  f.List(1).Fixed("", width).Fixed(mark, width);
  f.List(2).Raw(" ").Raw(daily);
  f.List(1).Fixed("", 5).Fixed("9", 5);
  f.NoList().NoList().Text("note").Text(seven ? "a@example.com" : "");
  if (seven) f.Texts(2);
}

// Two students, one grade, two days and one summary over both days.
std::string OlderClass(bool seven) {
  FileBytes f;
  f.Raw(seven ? "ty7" : "ty5").Fixed("", 10).I16(2).I16(1).I16(2).I16(1).I16(0);
  f.NoList().NoList().I16(0).Fixed("Mr B", 20).Fixed("9/1/2026", 15).Fixed("10/1/2026", 15);
  f.Fixed("2", 15).Fixed("Algebra", 30).Fixed("7", 6).Text("");
  if (seven) f.NoList().Text("");
  AddStudent(f, seven, "Young", "Ann", "85", "AL");
  AddStudent(f, seven, "Abe", "Bo", "ABS", "AA");
  f.Fixed("Quiz", 50).Fixed("Q1", 5).Money(100000).I16(20).Fixed("Y", 1).Fixed("9/2/2026", 10);
  f.Fixed("13", 4).Text("").Fixed("Q", 2).Fixed("", 2).Fixed("", 8).Text("");
  f.Date(46266).Raw(" ").Text("").Date(46267).Raw(" ").Text("");
  f.Fixed("Fall", 50).Fixed("A1", 5).I16(2).I16(1).Fixed("9/1/2026", 10).Fixed("9/2/2026", 10);
  return f.bytes;
}

class ConvertCommandTest : public CliTest, public ::testing::WithParamInterface<bool> {};

INSTANTIATE_TEST_SUITE_P(BothMarks, ConvertCommandTest, ::testing::Bool(),
                         [](const auto& test) { return test.param ? "ty7" : "ty5"; });

TEST_P(ConvertCommandTest, WritesTheCurrentFormatAndLeavesTheOldFile) {
  const std::string old = Put("old.TYR", OlderClass(GetParam()));
  const CliRun run = RunCli({"convert", old, Path("new.TYR")});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out + run.err, "");
  EXPECT_EQ(Get(old), OlderClass(GetParam()));
  const json c = json::parse(RunCli({"dump", Path("new.TYR")}).out);
  EXPECT_EQ(c["Magic"], "ty8");
  EXPECT_EQ(c["teacher"], "Mr B");
  EXPECT_EQ(c["RoundTable"][0][0], 99.5);
  EXPECT_EQ(c["LetterValues"][1], "99");
  EXPECT_EQ(c["Students"][0]["lastname"], "Abe");
  EXPECT_EQ(c["Students"][0]["Marks"][1], "ABS");
  EXPECT_EQ(c["Instruments"][0]["weight"], "10");
  EXPECT_EQ(RunCli({"check", Path("new.TYR")}).status, 0);
}

TEST_P(ConvertCommandTest, RangeSummariesAreCountedAnew) {
  const std::string old = Put("old.TYR", OlderClass(GetParam()));
  ASSERT_EQ(RunCli({"convert", old, Path("new.TYR")}).status, 0);
  const json c = json::parse(RunCli({"dump", Path("new.TYR")}).out);
  EXPECT_EQ(c["Students"][0]["SummaryAbsent"][1], "2    ");
  EXPECT_EQ(c["Students"][1]["SummaryAbsent"][1], "1    ");
  EXPECT_EQ(c["Students"][1]["SummaryLate"][1], "1");
}

// "2/9/2026" is the second day of the two for who writes the day first, and no day for others.
TEST_P(ConvertCommandTest, DatesAreReadInTheOrderAskedFor) {
  std::string bytes = OlderClass(GetParam());
  const std::size_t start = bytes.rfind("9/1/2026");
  bytes.replace(start, 8, "2/9/2026");
  const std::string old = Put("old.TYR", bytes);
  const auto absent = [&](const char* order) {
    const CliRun run = RunCli({"dump", "--opened", "--date-order", order, old});
    EXPECT_EQ(run.status, 0) << run.err;
    return json::parse(run.out)["Students"][0]["SummaryAbsent"][1];
  };
  EXPECT_EQ(absent("mdy"), "2    ");
  EXPECT_EQ(absent("dmy"), "1    ");
  ASSERT_EQ(RunCli({"convert", "--date-order", "dmy", old, Path("new.TYR")}).status, 0);
  const json c = json::parse(RunCli({"dump", Path("new.TYR")}).out);
  EXPECT_EQ(c["Students"][0]["SummaryAbsent"][1], "1    ");
}

TEST_P(ConvertCommandTest, AnUnknownDateOrderIsAWrongCommandLine) {
  const std::string old = Put("old.TYR", OlderClass(GetParam()));
  const CliRun run = RunCli({"convert", "--date-order", "myd", old, Path("new.TYR")});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.out, "");
  EXPECT_FALSE(std::filesystem::exists(Path("new.TYR")));
}

TEST_P(ConvertCommandTest, DumpShowsTheConvertedRecordWithItsOldMark) {
  const std::string old = Put("old.TYR", OlderClass(GetParam()));
  const json stands = json::parse(RunCli({"dump", old}).out);
  const json opened = json::parse(RunCli({"dump", "--opened", old}).out);
  EXPECT_EQ(stands["Magic"], GetParam() ? "ty7" : "ty5");
  EXPECT_EQ(stands["Students"][0]["lastname"], "Young");
  EXPECT_EQ(stands["Students"][0]["comments"], "note");
  EXPECT_EQ(stands["Students"][0]["SummaryDetail"], json({"", " 0/ 0/ 0/ 0/"}));
  EXPECT_EQ(stands["Students"][0]["SummaryLate"], json({"", "0"}));
  EXPECT_EQ(opened["Magic"], stands["Magic"]);
  EXPECT_EQ(opened["Students"][0]["lastname"], "Abe");
  EXPECT_EQ(opened["Students"][0]["SummaryAbsent"][1], "2    ");
}

TEST_P(ConvertCommandTest, CheckReadsOlderFiles) {
  const std::string old = Put("old.TYR", OlderClass(GetParam()));
  const CliRun run = RunCli({"check", old});
  EXPECT_EQ(run.out, old + ": ok, 2 students, 1 grades, 2 days\n") << run.err;
}

TEST_P(ConvertCommandTest, TheOldFileIsNeverTheNewOne) {
  const std::string old = Put("old.TYR", OlderClass(GetParam()));
  std::filesystem::create_symlink(old, Path("link.TYR"));
  ExpectRefused(RunCli({"convert", old, old}),
                old + ": is the old file itself, which is left as it is");
  ExpectRefused(RunCli({"convert", old, Path("link.TYR")}),
                Path("link.TYR") + ": is the old file itself, which is left as it is");
  EXPECT_EQ(Get(old), OlderClass(GetParam()));
}

TEST_P(ConvertCommandTest, AClassThatIsThereIsReplacedByForceAlone) {
  const std::string old = Put("old.TYR", OlderClass(GetParam()));
  const std::string file = Build("{}", "new.TYR");
  const std::string before = Get(file);
  ExpectRefused(RunCli({"convert", old, file}),
                file + ": exists already (--force replaces it and keeps a backup)");
  EXPECT_EQ(Get(file), before);
  EXPECT_EQ(RunCli({"convert", old, file, "--force"}).status, 0);
  EXPECT_EQ(Get(Path("new.old")), before);
  EXPECT_EQ(json::parse(RunCli({"dump", file}).out)["teacher"], "Mr B");
}

TEST_P(ConvertCommandTest, AFileThatIsCutIsRefused) {
  const std::string bytes = OlderClass(GetParam());
  const std::string old = Put("old.TYR", bytes.substr(0, bytes.size() - 1));
  ExpectRefused(RunCli({"convert", old, Path("new.TYR")}), old + ": File Error: 62");
  EXPECT_FALSE(std::filesystem::exists(Path("new.TYR")));
}

TEST_F(ConvertCommandTest, ACurrentFileIsRefused) {
  const std::string file = Build("{}");
  ExpectRefused(RunCli({"convert", file, Path("new.TYR")}),
                file + ": is already in the current format");
  EXPECT_FALSE(std::filesystem::exists(Path("new.TYR")));
}

}  // namespace
}  // namespace tallyroll
