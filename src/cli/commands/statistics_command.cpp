// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>
#include <optional>
#include <vector>

#include "analysis/grade_charts.h"
#include "analysis/grade_figures.h"
#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "cli/basics/chart_file.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/json_text.h"
#include "cli/basics/table_text.h"
#include "cli/commands/commands.h"
#include "grades/marks.h"
#include "store/csv.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

struct StatisticsOptions {
  std::string file;
  std::string grade;
  bool csv = false;
  bool json = false;
  std::string chart, out;
  OpenOptions opening;
};

const Instrument& GradeAt(int grade) {
  return Current().Instruments[static_cast<std::size_t>(grade)];
}

// ---- Which grades ----

// By its number, or else by its code; 0 when there is none.
int FindGrade(const std::string& wanted) {
  const std::optional<double> number = WholeNumberText(wanted);
  const int last = GradeCount(Current());
  if (number && *number >= 1 && *number <= last && *number == static_cast<int>(*number))
    return static_cast<int>(*number);
  const std::optional<std::string> code = CodePageFromUtf8(wanted);
  for (int i = 1; code && i <= last; ++i)
    if (Trim(GradeAt(i).code) == Trim(*code)) return i;
  return 0;
}

std::string ChooseGrades(const StatisticsOptions& options, std::vector<int>& grades) {
  if (options.grade.empty()) {
    for (int i = 1; i <= GradeCount(Current()); ++i) grades.push_back(i);
    return grades.empty() ? "the class has no grades" : "";
  }
  grades = {FindGrade(options.grade)};
  return grades.front() == 0 ? "no grade has the number or code " + options.grade : "";
}

// ---- The figures of one grade, by name ----

// As they are shown, trimmed and without " %"; nothing where the arithmetic fails.
struct NamedFigure {
  const char* name;   // of the field
  const char* label;  // for people
  std::optional<std::string> text;
};

std::vector<NamedFigure> FiguresByName(int grade) {
  const GradeHead head = HeadOfGrade(GradeAt(grade));
  const std::optional<GradeFigures> figures = FiguresOfGrade(grade);
  const auto shown = [&](auto member) -> std::optional<std::string> {
    if (!figures) return std::nullopt;
    const auto value = (*figures).*member;
    if constexpr (std::is_same_v<decltype(value), const i16>)
      return PlainNumberText(int{value});
    else
      return PlainNumberText(value);
  };
  return {{"title", "Title", std::string(Trim(head.title))},
          {"code", "Code", std::string(Trim(head.code))},
          {"present", "# Present for Test", shown(&GradeFigures::present)},
          {"absent", "# Absent", shown(&GradeFigures::absent)},
          {"passed", "# Passed", shown(&GradeFigures::passed)},
          {"perpassed", "% Passed", shown(&GradeFigures::perpassed)},
          {"failed", "# Failed", shown(&GradeFigures::failed)},
          {"perfailed", "% Failed", shown(&GradeFigures::perfailed)},
          {"lowest", "Lowest", shown(&GradeFigures::lowest)},
          {"highest", "Highest", shown(&GradeFigures::highest)},
          {"std", "Standard Deviation", shown(&GradeFigures::deviation)},
          {"average", "Average", shown(&GradeFigures::average)},
          {"lpassv", "Lowest passing grade", head.lpassv}};
}

// ---- The three forms ----

std::string Text(const std::vector<int>& grades) {
  std::string text;
  for (const int grade : grades) {
    Table table = {{"", ""}};
    for (const NamedFigure& figure : FiguresByName(grade))
      table.push_back({figure.label, CellText(figure.text.value_or("-"))});
    const GradeQuartiles quartiles = QuartilesOfGrade(grade);
    const bool any = quartiles.n > 0;
    table.push_back({"Median", any ? PlainNumberText(quartiles.median) : "-"});
    table.push_back(
        {"Quartiles (type 7)",
         any ? PlainNumberText(quartiles.lower) + " to " + PlainNumberText(quartiles.upper) : "-"});
    table.push_back({"n", PlainNumberText(static_cast<std::int64_t>(quartiles.n))});
    const RangeCounts counts = CountRanges(grade);
    for (std::size_t range = 1; range <= kRanges; ++range)
      table.push_back({std::string(kRangeHeads[range]), PlainNumberText(counts[range])});
    text += AlignedText(table).substr(text.empty() ? 1 : 0);  // an empty line parts two grades
  }
  return Utf8FromCodePage(ClassHeading(Current()) + text);
}

std::string Csv(const std::vector<int>& grades) {
  std::string text;
  for (const int grade : grades) {
    const std::vector<NamedFigure> figures = FiguresByName(grade);
    if (text.empty()) {
      for (const NamedFigure& figure : figures) text += std::string(figure.name) + ",";
      text += "n,median,lower_quartile_type_7,upper_quartile_type_7";
      for (std::size_t range = 1; range <= kRanges; ++range)
        text += "," + std::string(kRangeHeads[range]);
      text += "\n";
    }
    for (const NamedFigure& figure : figures) text += CsvField(figure.text.value_or("")) + ",";
    const GradeQuartiles quartiles = QuartilesOfGrade(grade);
    const auto number = [&](double value) {
      return quartiles.n > 0 ? PlainNumberText(value) : std::string();
    };
    text += PlainNumberText(static_cast<std::int64_t>(quartiles.n)) + "," +
            number(quartiles.median) + "," + number(quartiles.lower) + "," +
            number(quartiles.upper);
    const RangeCounts counts = CountRanges(grade);
    for (std::size_t range = 1; range <= kRanges; ++range)
      text += "," + PlainNumberText(counts[range]);
    text += "\n";
  }
  return Utf8FromCodePage(text);
}

std::string JsonOf(const std::vector<int>& grades) {
  Json all = Json::array();
  for (const int grade : grades) {
    Json object;
    for (const NamedFigure& figure : FiguresByName(grade))
      object[figure.name] = figure.text ? Json(Utf8FromCodePage(*figure.text)) : Json();
    const RangeCounts counts = CountRanges(grade);
    object["ranges"] = std::vector<int>(counts.begin() + 1, counts.end());
    const GradeQuartiles quartiles = QuartilesOfGrade(grade);
    const bool any = quartiles.n > 0;
    object["median"] = any ? Json(quartiles.median) : Json();
    object["quartiles"] = any ? Json({quartiles.lower, quartiles.upper}) : Json();
    object["n"] = quartiles.n;
    all.push_back(std::move(object));
  }
  return JsonText(all);
}

// ---- The picture ----

CommandResult DrawOne(const StatisticsOptions& options, const std::vector<int>& grades) {
  if (grades.size() != 1)
    return Refused(options.file, "a chart shows one grade: --grade says which");
  Chart chart;
  FillRanges(chart, grades.front());
  if (options.chart == "pie")
    MakePie(chart);
  else
    MakeBarOrLine(chart, options.chart == "line" ? ChartKind::kLine : ChartKind::kBar);
  const std::string reason = WriteChartFile(chart, options.out);
  return reason.empty() ? Done() : Refused(options.out, reason);
}

CommandResult Statistics(const StatisticsOptions& options) {
  std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  std::vector<int> grades;
  reason = ChooseGrades(options, grades);
  if (!reason.empty()) return Refused(options.file, reason);
  if (!options.chart.empty()) return DrawOne(options, grades);
  return Done(options.json ? JsonOf(grades) : options.csv ? Csv(grades) : Text(grades));
}

}  // namespace

void AddStatisticsCommand(Command& app, ChosenCommand& chosen) {
  Command command =
      app.AddCommand("statistics", "Shows the figures and the distribution of grades");
  const auto options = std::make_shared<StatisticsOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  command.AddOption("--grade", options->grade, "one grade by its number or code");
  CommandOption csv = command.AddFlag("--csv", options->csv, "as comma-separated values");
  command.AddFlag("--json", options->json, "as JSON").Excludes(csv);
  CommandOption chart =
      command.AddOption("--chart", options->chart, "draw the distribution: bar, line or pie")
          .OneOf(std::vector<std::string>{"bar", "line", "pie"});
  CommandOption out =
      command.AddOption("--out", options->out, "the chart's file: .svg, .png or .pdf");
  chart.Needs(out);
  out.Needs(chart);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return Statistics(*options); }; });
}

}  // namespace tallyroll
