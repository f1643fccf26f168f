// SPDX-License-Identifier: GPL-3.0-or-later
// A build without Qt has no fonts to lay a page out with.
#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

using NoPdfTest = CliTest;

TEST_F(NoPdfTest, APdfIsRefusedAndNothingIsWritten) {
  const std::string file = Build(R"({"Students": [{"lastname": "Smith", "id": "7"}]})");
  const CliRun run = RunCli({"report", "--code", "19", "--out", Path("roster.pdf"), file});
  ExpectRefused(run, file + ": PDF is not available here");
  EXPECT_FALSE(std::filesystem::exists(Path("roster.pdf")));
}

}  // namespace
}  // namespace tallyroll
