// SPDX-License-Identifier: GPL-3.0-or-later
// Reports as PDF, without a screen, read back by another program.
#include <gmock/gmock.h>

#include <algorithm>

#include "tests/cli/commands/graded_class.h"
#include "tests/support/pdf_words.h"
#include "tests/support/refusing_disk.h"

namespace tallyroll {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using Words = std::vector<std::string>;

class ReportPdfTest : public CliTest {
 protected:
  // A roster of as many students, of whom the first is Müller, Ægir.
  std::string ClassOf(int students) const {
    std::string list;
    for (int i = 1; i <= students; ++i) {
      const std::string id = std::to_string(100 + i);
      const std::string lastname = i == 1 ? "Müller" : "Zacharias" + id;
      list += (i > 1 ? ", " : "") + std::string(R"({"lastname": ")") + lastname +
              R"(", "firstname": "Ægir", "id": ")" + id + R"("})";
    }
    return Build(R"({"Students": [)" + list + "]}");
  }
  CliRun Report(const std::string& code, const std::string& file,
                std::vector<std::string> more = {}) const {
    Words arguments = {"report", "--code", code, "--today", "2026-12-18", "--out", pdf, file};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return RunCli(arguments);
  }

  const std::string pdf = Path("report.pdf");
};

TEST_F(ReportPdfTest, TheWordsOfAPageStandInTheFile) {
  const CliRun run = Report("19", ClassOf(1), {"--title", "Term ½ — late"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(run.err, "");
  EXPECT_THAT(
      WordsOf(PdfText(pdf)),
      ElementsAre("12/18/2026", "Class", "Roster", "Printout", "Grid", "Form", "Term", "½", "—",
                  "late", "NAME", "ID", "NOTES", "1", "Müller,", "Ægir", "|", "101", "Page", "1"));
}

TEST_F(ReportPdfTest, EveryStudentStandsOnOneOfThePages) {
  EXPECT_EQ(Report("19", ClassOf(120)).status, 0);
  const Words words = WordsOf(PdfText(pdf));
  for (int i = 2; i <= 120; ++i) {
    const std::string name = "Zacharias" + std::to_string(100 + i) + ",";
    EXPECT_EQ(std::count(words.begin(), words.end(), name), 1) << name;
  }
  const int pages = std::stoi(PdfInfo(pdf, "Pages"));
  EXPECT_GE(pages, 2);
  for (int page = 1; page <= pages; ++page) {
    const Words on_page = WordsOf(PdfText(pdf, page));
    ASSERT_GE(on_page.size(), 2u);
    EXPECT_EQ(on_page[on_page.size() - 2], "Page");
    EXPECT_EQ(on_page.back(), std::to_string(page));
  }
}

TEST_F(ReportPdfTest, TheFileIsNamedAfterItsTitle) {
  Report("19", ClassOf(1), {"--title", "Term 1"});
  EXPECT_EQ(PdfInfo(pdf, "Title"), "Term 1");
  EXPECT_EQ(PdfInfo(pdf, "Creator"), "Tallyroll");
  Report("19", ClassOf(1));
  EXPECT_EQ(PdfInfo(pdf, "Title"), "class.TYR");
}

TEST_F(ReportPdfTest, PagesAreUprightLetterSheets) {
  Report("19", ClassOf(1));
  EXPECT_THAT(PdfInfo(pdf, "Page size"), ::testing::StartsWith("612 x 792 pts"));
}

TEST_F(ReportPdfTest, TheMonthsLieAcrossTheSheet) {
  const CliRun run = Report("8", ClassOf(1), {"--months", "2026-09..2026-09"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(PdfInfo(pdf, "Page size"), ::testing::StartsWith("792 x 612 pts"));
}

TEST_F(ReportPdfTest, FullTitlesRunUpwardsAndCanBeRead) {
  const std::string file = Build(R"({"NumInstruments": 1,
    "Instruments": [{"title": "Homework", "typecode": "HW"}],
    "Students": [{"lastname": "Smith", "id": "7", "Marks": ["", "95"]}]})");
  const CliRun run = Report("4", file);
  ASSERT_EQ(run.status, 0) << run.err;
  EXPECT_THAT(WordsOf(PdfText(pdf)), Contains("Homework"));
}

TEST_F(ReportPdfTest, TheFormatOverridesTheName) {
  const std::string named = Path("report.txt");
  const CliRun run =
      RunCli({"report", "--code", "19", "--format", "pdf", "--out", named, ClassOf(1)});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(Get(named).substr(0, 5), "%PDF-");
}

TEST_F(ReportPdfTest, APdfGoesToAFileOnly) {
  const std::string file = ClassOf(1);
  ExpectRefused(RunCli({"report", "--code", "19", "--format", "pdf", file}),
                file + ": a PDF needs --out");
}

TEST_F(ReportPdfTest, AMissingFolderIsRefused) {
  const std::string out = Path("none/report.pdf");
  const CliRun run = RunCli({"report", "--code", "19", "--out", out, ClassOf(1)});
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(run.err.starts_with(out + ": File Error: ")) << run.err;
}

TEST_F(ReportPdfTest, AFullDiskIsRefusedAndTheOldFileStays) {
  Put("report.pdf", "old");
  const std::string file = ClassOf(20);
  CliRun run;
  {
    const SmallFiles small(2000);
    run = Report("20", file);
  }
  EXPECT_EQ(run.status, 1);
  EXPECT_TRUE(run.err.starts_with(pdf + ": File Error: ")) << run.err;
  EXPECT_EQ(Get(pdf), "old");
}

TEST_F(ReportPdfTest, ARefusedReportLeavesTheOldFileAsItIs) {
  Put("report.pdf", "old");
  const std::string file = ClassOf(1);
  ExpectRefused(Report("14", file, {"--student", "999"}), file + ": no student has the ID 999");
  EXPECT_EQ(Get(pdf), "old");
}

TEST_F(ReportPdfTest, ANewFileReplacesTheOldOneAndLeavesNothingBeside) {
  Put("report.pdf", "old");
  EXPECT_EQ(Report("22", ClassOf(1)).status, 0);
  EXPECT_EQ(Get(pdf).substr(0, 5), "%PDF-");
  const std::filesystem::path folder = std::filesystem::path(pdf).parent_path();
  const auto files = std::distance(std::filesystem::directory_iterator(folder), {});
  EXPECT_EQ(files, 2);  // the class and the report
}

// The words of each line in turn, for a page's text has its blanks anywhere.
TEST_F(ReportPdfTest, PdfTellsTheAveragesOfTheClass) {
  GradedClass graded(20261123);
  for (int n = 0; n < 16; ++n) {
    const std::string json = graded.Make(n % 4);
    const std::string file = Build(json);
    for (const char* code : {"11", "12", "18"}) {
      ASSERT_EQ(Report(code, file).status, 0) << json;
      const Words words = WordsOf(PdfText(pdf));
      auto at = words.begin();
      for (const std::string& line : LinesOnAverages(file)) {
        const Words wanted = WordsOf(line);
        at = std::search(at, words.end(), wanted.begin(), wanted.end());
        ASSERT_NE(at, words.end()) << line << " in code " << code << " of " << json;
        ++at;
      }
    }
  }
}

TEST_F(ReportPdfTest, TwoRunsDifferInNothingButTheTime) {
  const auto without_time = [this] {
    std::string bytes = Get(pdf);
    const std::size_t at = bytes.find("/CreationDate");
    EXPECT_NE(at, std::string::npos);
    return bytes.erase(at, bytes.find('\n', at) - at);
  };
  const std::string file = ClassOf(3);
  Report("20", file);
  const std::string first = without_time();
  Report("20", file);
  EXPECT_EQ(without_time(), first);
}

}  // namespace
}  // namespace tallyroll
