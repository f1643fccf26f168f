// SPDX-License-Identifier: GPL-3.0-or-later
// Reports with averages tell the figures of the command `averages`, whatever the class and the
// form.
#include "tests/cli/commands/graded_class.h"

namespace tallyroll {
namespace {

using Lines = std::vector<std::string>;

class AveragesInReportsTest : public CliTest {
 protected:
  static std::string Report(const char* code, const std::string& file, const char* format) {
    const CliRun run = RunCli({"report", "--code", code, "--format", format, file});
    EXPECT_EQ(run.status, 0) << run.err;
    return run.out;
  }
  // HTML writes a blank as "&nbsp" and opens each line but the first with "<br>".
  static std::string TextOfHtml(std::string html) {
    for (const auto& [mark, text] : {std::pair<std::string, std::string>{"&nbsp", " "},
                                     {"<br>", ""},
                                     {"<Font Size = 3 Font FACE = Courier New>", "\n"}})
      for (std::size_t at = 0; (at = html.find(mark, at)) != std::string::npos;)
        html.replace(at, mark.size(), text);
    return html;
  }
};

TEST_F(AveragesInReportsTest, TextAndHtmlTellTheAveragesOfTheClass) {
  GradedClass graded(20261122);
  for (int n = 0; n < 40; ++n) {
    const std::string json = graded.Make(n % 4);
    const std::string file = Build(json);
    const Lines expected = LinesOnAverages(file);
    ASSERT_FALSE(expected.empty());
    for (const char* code : {"11", "12", "18"}) {
      EXPECT_EQ(LinesWithAverages(Report(code, file, "text")), expected) << code << json;
      EXPECT_EQ(LinesWithAverages(TextOfHtml(Report(code, file, "html"))), expected)
          << code << json;
    }
  }
}

TEST_F(AveragesInReportsTest, PointsArePossibleWhoeverOpensTheClass) {
  const std::string file = Build(R"({"AverageSettings": "2,0,0,0,0",
    "Instruments": [{"typecode": "Q ", "mvalue": 20}, {"typecode": "T ", "mvalue": 100}],
    "Students": [{"lastname": "Abe", "firstname": "Bo", "id": "5", "Marks": ["", "15", "EXC"]}]})");
  for (const char* code : {"11", "12", "18"})
    EXPECT_EQ(LinesWithAverages(Report(code, file, "text")),
              (Lines{"TOTAL POINTS: 15.00/20  AVERAGE = 75",
                     "ROUNDED AVERAGE/GRADE:  75 (C/SAT/2.0)     "}))
        << code;
}

TEST_F(AveragesInReportsTest, AClassWithoutAMethodHasNoReportsWithAverages) {
  const std::string file = Build(R"({
    "Instruments": [{"typecode": "Q ", "mvalue": 20}],
    "Students": [{"lastname": "Abe", "firstname": "Bo", "id": "5", "Marks": ["", "15"]}]})");
  for (const char* code : {"11", "12", "18"})
    ExpectRefused(
        RunCli({"report", "--code", code, file}),
        file + ": the class has no averages: it needs grades, and weights or points for them");
  EXPECT_EQ(RunCli({"report", "--code", "13", file}).status, 0);
}

}  // namespace
}  // namespace tallyroll
