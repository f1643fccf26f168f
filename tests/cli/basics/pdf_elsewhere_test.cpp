// SPDX-License-Identifier: GPL-3.0-or-later
// tallyroll-cli is linked without Qt; what asks for PDF is done by tallyroll-pdf.
#include <cstdlib>

#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

class PdfElsewhereTest : public CliTest {
 protected:
  int StatusOf(const std::string& program, const std::string& arguments) const {
    const std::string line =
        program + " " + arguments + " >" + Path("out") + " 2>" + Path("err") + " </dev/null";
    return WEXITSTATUS(std::system(line.c_str()));
  }
  std::string RosterPdf() const {
    return "report --code 19 --title 'Our class' --out " + Path("roster.pdf") + " " + file_;
  }

  const std::string file_ = Build(R"({"Students": [{"lastname": "Smith", "id": "7"}]})");
};

TEST_F(PdfElsewhereTest, TheProgramWithoutQtMakesAPdf) {
  EXPECT_EQ(StatusOf(TALLYROLL_CLI, RosterPdf()), 0);
  EXPECT_EQ(Get(Path("out")) + Get(Path("err")), "");
  EXPECT_EQ(Get(Path("roster.pdf")).substr(0, 5), "%PDF-");
}

TEST_F(PdfElsewhereTest, ARefusalIsTheSame) {
  const std::string pdf = Path("no-such-folder/roster.pdf");
  EXPECT_EQ(StatusOf(TALLYROLL_CLI, "report --code 19 --out " + pdf + " " + file_), 1);
  EXPECT_EQ(Get(Path("out")), "");
  EXPECT_TRUE(Get(Path("err")).starts_with(pdf + ": File Error: "));
  EXPECT_EQ(Get(Path("err")), RunCli({"report", "--code", "19", "--out", pdf, file_}).err);
}

TEST_F(PdfElsewhereTest, WithoutTheOtherProgramItIsRefused) {
  const std::string lonely = Path("tallyroll-cli");
  std::filesystem::copy_file(TALLYROLL_CLI, lonely);
  EXPECT_EQ(StatusOf(lonely, RosterPdf()), 1);
  EXPECT_EQ(Get(Path("out")), "");
  EXPECT_EQ(Get(Path("err")), file_ + ": PDF is not available here\n");
  EXPECT_FALSE(std::filesystem::exists(Path("roster.pdf")));
}

TEST_F(PdfElsewhereTest, TheOtherProgramIsFoundInTheFolderOfThePackage) {
  const std::filesystem::path home = Path("usr");
  std::filesystem::create_directories(home / "bin");
  std::filesystem::create_directories(home / "libexec/tallyroll");
  const std::filesystem::path cli = TALLYROLL_CLI;
  std::filesystem::copy_file(cli, home / "bin/tallyroll-cli");
  std::filesystem::copy_file(cli.parent_path() / "tallyroll-pdf",
                             home / "libexec/tallyroll/tallyroll-pdf");
  EXPECT_EQ(StatusOf(home / "bin/tallyroll-cli", RosterPdf()), 0) << Get(Path("err"));
  EXPECT_EQ(Get(Path("roster.pdf")).substr(0, 5), "%PDF-");
}

}  // namespace
}  // namespace tallyroll
