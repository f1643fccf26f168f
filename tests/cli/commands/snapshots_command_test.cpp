// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlohmann/json.hpp>

#include "companion/class_snapshots.h"
#include "store/safe_file.h"
#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

constexpr const char* kOneMark = R"({
  "Instruments": [{"title": "Quiz", "code": "Q1", "typecode": "Q ", "mvalue": 10}],
  "Students": [{"lastname": "Abe", "firstname": "Bo", "id": "5", "Marks": ["", "7"]}]})";

class SnapshotsCommandTest : public CliTest {
 protected:
  SnapshotsCommandTest() : file(Build(kOneMark)) {
    was = ReadWholeFile(file).bytes;
    // The mark stands in the file as it was typed.
    is = was;
    is[is.rfind('7')] = '9';
  }
  void Keep() const {
    EXPECT_EQ(KeepSnapshots(file, {{"2026-09-01 10:15:00", was}, {"2026-09-02 08:00:00", is}}), "");
  }

  std::string file, was, is;
};

TEST_F(SnapshotsCommandTest, NothingIsKeptAtFirst) {
  EXPECT_EQ(RunCli({"snapshots", file}).out, "No snapshot is kept.\n");
  EXPECT_EQ(RunCli({"snapshots", file, "--json"}).out, "[]\n");
}

TEST_F(SnapshotsCommandTest, TheyStandInATableTheNewestFirst) {
  Keep();
  EXPECT_EQ(RunCli({"snapshots", file}).out,
            "NUMBER  TIME                 CHANGED\n"
            "2       2026-09-02 08:00:00  1 mark\n"
            "1       2026-09-01 10:15:00  The first that is kept\n");
}

TEST_F(SnapshotsCommandTest, JsonHoldsTheSame) {
  Keep();
  const auto answer = nlohmann::json::parse(RunCli({"snapshots", file, "--json"}).out);
  ASSERT_EQ(answer.size(), 2U);
  EXPECT_EQ(answer[0]["number"], 2);
  EXPECT_EQ(answer[0]["time"], "2026-09-02 08:00:00");
  EXPECT_EQ(answer[0]["changed"], "1 mark");
}

TEST_F(SnapshotsCommandTest, OneIsWrittenAsAClassFileOfItsOwn) {
  Keep();
  const std::string out = Path("then.TYR");
  EXPECT_EQ(RunCli({"snapshots", file, "--number", "1", "--out", out}).status, 0);
  EXPECT_EQ(ReadWholeFile(out).bytes, was);
  EXPECT_EQ(ReadWholeFile(file).bytes, was);
}

TEST_F(SnapshotsCommandTest, TheClassFileItselfIsNeverWrittenOver) {
  Keep();
  EXPECT_NE(RunCli({"snapshots", file, "--number", "2", "--out", file, "--force"}).status, 0);
  EXPECT_EQ(ReadWholeFile(file).bytes, was);
}

TEST_F(SnapshotsCommandTest, ANumberThatIsNotKeptIsRefused) {
  Keep();
  const auto answer = RunCli({"snapshots", file, "--number", "7", "--out", Path("x.TYR")});
  EXPECT_NE(answer.status, 0);
  EXPECT_EQ(answer.out, "");
  EXPECT_FALSE(PathExists(Path("x.TYR")));
}

}  // namespace
}  // namespace tallyroll
