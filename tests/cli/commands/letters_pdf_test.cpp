// SPDX-License-Identifier: GPL-3.0-or-later
// Letters and labels as PDF, read back by another program.
#include <gmock/gmock.h>

#include "tests/cli/run_cli.h"
#include "tests/support/pdf_words.h"

namespace tallyroll {
namespace {

class LettersPdfTest : public CliTest {
 protected:
  // The words of a PDF in the order of its pages.
  static std::string Words(const std::string& pdf) {
    std::string words;
    for (const char c : PdfText(pdf)) {
      const bool blank = c == ' ' || c == '\n' || c == '\f';
      if (!blank)
        words += c;
      else if (!words.empty() && words.back() != ' ')
        words += ' ';
    }
    return words;
  }

  const std::string file = Build(R"({"Students": [
      {"lastname": "Ng", "firstname": "Ada", "id": "12", "city": "Köln", "parent": "Eve Ng"},
      {"lastname": "Li", "firstname": "Bo", "id": "13", "city": "Rom", "parent": "Max"}]})");
};

TEST_F(LettersPdfTest, OnePdfHoldsEveryLetterInOrder) {
  const std::string letter =
      Put("May.rtf",
          "{\\rtf1\\ansi \\qc{\\b Report}\\par\\pard\\qj Dear <First Name> of "
          "<City>,\\u945?\\u946?\\par\\page second <ID Number>\\par}");
  const CliRun run = RunCli({"letters", file, "--letter", letter, "--one-pdf", Path("all.pdf")});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, Path("all.pdf") + "\n");
  EXPECT_EQ(Words(Path("all.pdf")),
            "Report Dear Bo of Rom,αβ second 13 Report Dear Ada of Köln,αβ second 12 ");
}

TEST_F(LettersPdfTest, AThirtyPageLetterHoldsEveryWordInOrder) {
  std::string body, wanted;
  for (int i = 0; i < 1400; ++i) {
    body += "word" + std::to_string(i) + " <First Name>\\par ";
    wanted += "word" + std::to_string(i) + " Bo ";
  }
  const std::string letter = Put("long.rtf", "{\\rtf1 " + body + "}");
  const CliRun run = RunCli(
      {"letters", file, "--letter", letter, "--one-pdf", Path("all.pdf"), "--student", "13"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(Words(Path("all.pdf")), wanted);
}

TEST_F(LettersPdfTest, AFileForEachStudent) {
  const std::string letter = Put("May.txt", "Hello <First Name>");
  std::filesystem::create_directory(Path("out"));
  const CliRun run =
      RunCli({"letters", file, "--letter", letter, "--out", Path("out"), "--format", "pdf"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(Words(Path("out/May_Li.pdf")), "Hello Bo ");
  EXPECT_EQ(Words(Path("out/May_Ng.pdf")), "Hello Ada ");
}

TEST_F(LettersPdfTest, Labels) {
  const CliRun run = RunCli({"labels", file, "--to", "parent", "--out", Path("labels.pdf")});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(Words(Path("labels.pdf")), "Max Eve Ng Rom Köln ");
}

TEST_F(LettersPdfTest, AFolderThatIsNotThereIsAnError) {
  const std::string letter = Put("May.txt", "Hello");
  const CliRun run =
      RunCli({"letters", file, "--letter", letter, "--one-pdf", Path("none/all.pdf")});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_FALSE(std::filesystem::exists(Path("none")));
}

}  // namespace
}  // namespace tallyroll
