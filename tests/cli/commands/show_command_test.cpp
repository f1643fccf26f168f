// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

constexpr const char* kShownClass = R"({"description": "Algebra", "teacher": "Ms. Ó",
  "Instruments": [{"code": "QZ1"}, {"code": "T1"}],
  "Students": [
    {"lastname": "Muñoz", "firstname": "Zoé", "id": "7", "Marks": ["", "18.5", "A-"]},
    {"lastname": "Abe ", "firstname": "Bo\tB", "id": "512", "Marks": ["", "ABS", ""]}]})";

class ShowCommandTest : public CliTest {
 protected:
  std::string CellText(const char* mode) {
    const CliRun run = RunCli({"show", "--name-mode", mode, Build(kShownClass)});
    EXPECT_EQ(run.status, 0) << run.err;
    return run.out;
  }
};

TEST_F(ShowCommandTest, NamesIdsAndMarksStandInColumns) {
  EXPECT_EQ(RunCli({"show", Build(kShownClass)}).out,
            "Algebra, Ms. Ó\n"
            "\n"
            "NAME           ID   QZ1   T1\n"
            " 1 Abe, Bo B   512  ABS\n"
            " 2 Muñoz, Zoé  7    18.5  A-\n");
}

TEST_F(ShowCommandTest, NamesAlone) {
  EXPECT_EQ(CellText("57"),
            "Algebra, Ms. Ó\n"
            "\n"
            "NAME           QZ1   T1\n"
            " 1 Abe, Bo B   ABS\n"
            " 2 Muñoz, Zoé  18.5  A-\n");
}

TEST_F(ShowCommandTest, ByIdWithNames) {
  EXPECT_EQ(CellText("82"),
            "Algebra, Ms. Ó\n"
            "\n"
            "ID   NAME        QZ1   T1\n"
            "512  Abe, Bo B   ABS\n"
            "7    Muñoz, Zoé  18.5  A-\n");
}

TEST_F(ShowCommandTest, IdsAlone) {
  EXPECT_EQ(CellText("73"),
            "Algebra, Ms. Ó\n"
            "\n"
            "ID   QZ1   T1\n"
            "512  ABS\n"
            "7    18.5  A-\n");
}

TEST_F(ShowCommandTest, AClassWithoutStudentsIsRefused) {
  const std::string file = Build("{}");
  ExpectRefused(RunCli({"show", file}), file + ": the class has no students");
}

TEST_F(ShowCommandTest, ANameModeThatIsNoneIsAWrongCommandLine) {
  const CliRun run = RunCli({"show", "--name-mode", "70", Build("{}")});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.out, "");
}

TEST_F(ShowCommandTest, NeedsThePassword) {
  // "secret" with the bits 1, 3 and 6 of each character turned over.
  const std::string file = Build(
      R"({"PasswordSet": 1, "Password": "9/)8/>", "Students": [{"lastname": "Ng", "id": "7"}]})");
  ExpectRefused(RunCli({"show", file}), file + ": has a password (give it with --password)");
  EXPECT_EQ(RunCli({"show", "--password", "secret", file}).status, 0);
}

}  // namespace
}  // namespace tallyroll
