// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <algorithm>
#include <cstdlib>

#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class CommandLineTest : public CliTest {
 protected:
  static void ExpectWrong(const CliRun& run) {
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.out, "");
    EXPECT_THAT(run.err, StartsWith("tallyroll-cli: "));
    EXPECT_EQ(std::ranges::count(run.err, '\n'), 1) << run.err;
  }
};

TEST_F(CommandLineTest, AWrongCommandLineIsToldInOneLine) {
  ExpectWrong(RunCli({}));
  ExpectWrong(RunCli({"destroy"}));
  ExpectWrong(RunCli({"dump"}));
  ExpectWrong(RunCli({"dump", "a", "b"}));
  ExpectWrong(RunCli({"dump", "--colour", "a"}));
  ExpectWrong(RunCli({"dump", "--password", "x", "a"}));
  ExpectWrong(RunCli({"build", "-"}));
  ExpectWrong(RunCli({"check"}));
  ExpectWrong(RunCli({"convert", "a"}));
  ExpectWrong(RunCli({"--\n"}));
}

TEST_F(CommandLineTest, HelpIsToldForTheProgramAndForEveryCommand) {
  const CliRun all = RunCli({"--help"});
  EXPECT_EQ(all.status, 0);
  EXPECT_EQ(all.err, "");
  for (const char* command : {"dump", "build", "check", "convert", "show"}) {
    EXPECT_THAT(all.out, HasSubstr(command));
    const CliRun one = RunCli({command, "--help"});
    EXPECT_EQ(one.status, 0);
    EXPECT_EQ(one.err, "");
    EXPECT_THAT(one.out, HasSubstr(std::string("tallyroll-cli ") + command));
  }
}

TEST_F(CommandLineTest, TheVersionIsTold) {
  const CliRun run = RunCli({"--version"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "tallyroll-cli " TALLYROLL_VERSION "\n");
}

TEST_F(CommandLineTest, AnOutputThatCannotBeWrittenIsARefusal) {
  const std::string file = Build("{}");
  const char* argv[] = {"tallyroll-cli", "dump", file.c_str()};
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  out.setstate(std::ios::badbit);
  EXPECT_EQ(RunCommandLine(3, argv, in, out, err), 1);
  EXPECT_EQ(err.str(), "standard output: cannot be written\n");
}

TEST_F(CommandLineTest, TheProgramItselfAnswersWithItsStatus) {
  const std::string cli = TALLYROLL_CLI;
  const std::string file = Build(R"({"teacher": "Mr B"})");
  const auto status = [&](const std::string& arguments) {
    const std::string line =
        cli + " " + arguments + " >" + Path("out") + " 2>" + Path("err") + " </dev/null";
    return WEXITSTATUS(std::system(line.c_str()));
  };
  EXPECT_EQ(status("dump " + file), 0);
  EXPECT_EQ(Get(Path("out")), RunCli({"dump", file}).out);
  EXPECT_EQ(status("build - " + Path("b.TYR")), 1);
  EXPECT_EQ(Get(Path("out")), "");
  EXPECT_EQ(Get(Path("err")), "-: is no valid JSON at line 1, column 1\n");
  EXPECT_EQ(status("nothing"), 2);
}

}  // namespace
}  // namespace tallyroll
