// SPDX-License-Identifier: GPL-3.0-or-later
// A command changes no file but the one that it is told to write.
#include <map>

#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

namespace fs = std::filesystem;

class FolderUntouchedTest : public CliTest {
 protected:
  using Listing = std::map<std::string, std::string>;

  // Every file beside the classes, with its bytes and the time when it was last written.
  Listing Seen() const {
    Listing seen;
    for (const auto& entry : fs::directory_iterator(Path(""))) {
      const auto written = entry.last_write_time().time_since_epoch().count();
      seen[entry.path().filename()] = Get(entry.path()) + "@" + std::to_string(written);
    }
    return seen;
  }
};

TEST_F(FolderUntouchedTest, CommandsThatReadLeaveTheFolderAsItIs) {
  const std::string file = Build(R"({"Students": [{"lastname": "Abe"}, {"lastname": "Bo"}]})");
  const std::string cut = Put("cut.TYR", Get(file).substr(0, Get(file).size() - 1));
  Put("class.TYR.saving", "half of a save that was killed");
  Put("cut.TYR.saving", "half of another");
  const Listing before = Seen();
  for (const char* command : {"dump", "check", "show"}) {
    EXPECT_EQ(RunCli({command, file}).status, 0) << command;
    EXPECT_EQ(RunCli({command, cut}).status, 1) << command;
  }
  EXPECT_EQ(RunCli({"dump", "--opened", file}).status, 0);
  EXPECT_EQ(RunCli({"dump", "--opened", cut}).status, 1);
  EXPECT_EQ(Seen(), before);
}

TEST_F(FolderUntouchedTest, ARefusedBuildLeavesTheFolderAsItIs) {
  const std::string file = Build("{}");
  Put("class.TYR.saving", "half of a save that was killed");
  const std::string json =
      Put("class.json", R"({"Students": [{"Marks": [""]}], "NumStudents": 4})");
  const Listing before = Seen();
  EXPECT_EQ(RunCli({"build", json, file}).status, 1);
  EXPECT_EQ(RunCli({"convert", file, Path("new.TYR")}).status, 1);
  EXPECT_EQ(Seen(), before);
}

TEST_F(FolderUntouchedTest, ABuildWritesItsFileAndNoOther) {
  Put("other.TYR", "another class");
  Put("other.TYR.saving", "half of it");
  Listing before = Seen();
  Build("{}", "new.TYR");
  Listing after = Seen();
  EXPECT_EQ(after.erase("new.TYR"), 1u);
  EXPECT_EQ(after, before);
}

}  // namespace
}  // namespace tallyroll
