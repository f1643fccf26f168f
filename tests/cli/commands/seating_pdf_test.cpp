// SPDX-License-Identifier: GPL-3.0-or-later
// A seating chart on paper, where there is PDF.
#include <sstream>

#include "tests/cli/commands/seated_class.h"
#include "tests/cli/run_cli.h"
#include "tests/support/pdf_words.h"

namespace tallyroll {
namespace {

class SeatingPdfTest : public CliTest {};

// The page as another program reads it: the class, the front, the heads of the rows, each card on
// its seat from the board on, and below who has none.
TEST_F(SeatingPdfTest, ThePageIsWrittenAsPdf) {
  const std::string pdf = Path("chart.pdf");
  const CliRun run = RunCli({"seating", "--chart", "1", "--out", pdf, Build(kSeatedClass)});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(run.out, "");
  EXPECT_EQ(PdfInfo(pdf, "Pages"), "1");
  EXPECT_TRUE(PdfInfo(pdf, "Page size").starts_with("612 x 792")) << PdfInfo(pdf, "Page size");
  std::string words;
  for (const std::string& word : WordsOf(PdfText(pdf))) words += word + ' ';
  for (const char* part : {"Chart Form", "Algebra - Chart 1", "FRONT OF THE ROOM 1 2 ", "Abe, Bo 5",
                           "Cho, Di 6", "Without a seat: Eng, Fa"}) {
    EXPECT_NE(words.find(part), std::string::npos) << part << " in " << words;
  }
  EXPECT_LT(words.find("Abe,"), words.find("Cho,"));
}

TEST_F(SeatingPdfTest, AWideChartLiesAcrossTheSheet) {
  const std::string pdf = Path("wide.pdf"), wide = Path("wide.TYR");
  ASSERT_EQ(RunCli({"seating", Build(kSeatedClass), "--new", "2x9", "--fill", "sorted",
                    "--out-class", wide})
                .err,
            "");
  EXPECT_EQ(RunCli({"seating", "--out", pdf, "--text", wide}).status, 0);
  std::istringstream size(PdfInfo(pdf, "Page size"));
  double width = 0, height = 0;
  std::string by;
  size >> width >> by >> height;
  EXPECT_GT(width, height);
  EXPECT_GT(height, 0);
}

}  // namespace
}  // namespace tallyroll
