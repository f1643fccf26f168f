// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>
#include <utility>
#include <vector>

#include "analysis/compared_grades.h"
#include "analysis/open_classes.h"
#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/json_text.h"
#include "cli/basics/table_text.h"
#include "cli/commands/commands.h"
#include "grades/marks.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kMostFiles = 5;

struct CompareOptions {
  std::vector<std::string> files;
  std::string grade;
  bool json = false;
  OpenOptions opening;
};

int GradeOfTitle(const Class& c, std::string_view title) {
  for (int i = 1; i <= GradeCount(c); ++i)
    if (Trim(c.Instruments[static_cast<std::size_t>(i)].title) == title) return i;
  return 0;
}

// A file is opened in slot 1 and moves on to its own.
CommandResult OpenAll(const CompareOptions& options, std::vector<ComparedGrade>& compared) {
  constexpr i16 kTaken = 10;
  const std::optional<std::string> title = CodePageFromUtf8(options.grade);
  for (std::size_t i = options.files.size(); i >= 1; --i) {
    const std::string& file = options.files[i - 1];
    const std::string reason = OpenClassFile(file, options.opening);
    if (!reason.empty()) return Refused(file, reason);
    const int grade = title ? GradeOfTitle(Current(), Trim(*title)) : 0;
    if (grade == 0) return Refused(file, "no grade has the title " + options.grade);
    Current().SlotState = kTaken;
    compared.insert(compared.begin(), {static_cast<int>(i), grade, {}});
    if (i > 1) std::swap(Classes[i], Classes[1]);
  }
  std::vector<int> slots;
  slots.reserve(compared.size());
  for (const ComparedGrade& each : compared) slots.push_back(each.slot);
  const std::vector<std::string> names = ClassNames(slots);
  for (std::size_t i = 0; i < names.size(); ++i) compared[i].name = names[i];
  return Done();
}

struct Comparison {
  std::vector<std::array<std::string, kPanelLabels.size()>> panels;  // the last are the totals
  std::vector<RangeCounts> ranges;
};

Comparison Compare(const std::vector<ComparedGrade>& compared) {
  Comparison comparison;
  std::vector<ComparedFigures> figures;
  for (const ComparedGrade& each : compared) {
    figures.push_back(FiguresOf(each));
    comparison.panels.push_back(PanelTexts(figures.back()));
    comparison.ranges.push_back(RangesOf(each));
  }
  comparison.panels.push_back(TotalsTexts(TotalsOf(figures)));
  return comparison;
}

int TotalOf(const Comparison& comparison, std::size_t range) {
  int total = 0;
  for (const RangeCounts& counts : comparison.ranges) total += counts[range];
  return total;
}

std::string Text(const std::vector<ComparedGrade>& compared) {
  const Comparison comparison = Compare(compared);
  Table panels = {{""}}, ranges = {{"Range"}};
  for (const ComparedGrade& each : compared) {
    panels.front().push_back(CellText(each.name));
    ranges.front().push_back(CellText(each.name));
  }
  panels.front().emplace_back(Trim(kTotalsPanel));
  ranges.front().emplace_back("Total");
  for (std::size_t row = 0; row < kPanelLabels.size(); ++row) {
    panels.push_back({std::string(Trim(kPanelLabels[row]))});
    for (const auto& panel : comparison.panels) panels.back().emplace_back(Trim(panel[row]));
  }
  for (std::size_t row = 0; row < kRanges; ++row) {
    const std::size_t range = kRanges - row;
    ranges.push_back({std::string(kComparedRanges[row])});
    for (const RangeCounts& counts : comparison.ranges)
      ranges.back().push_back(PlainNumberText(counts[range]));
    ranges.back().push_back(PlainNumberText(TotalOf(comparison, range)));
  }
  return Utf8FromCodePage("Comparisons for " + JoinedNames(compared) + "\n\n" +
                          AlignedText(panels) + "\n" + AlignedText(ranges));
}

// A figure as it is shown, without the sign column and " %".
Json ShownFigure(std::string_view text) {
  text = Trim(text);
  if (text.ends_with(" %")) text.remove_suffix(2);
  return text.empty() ? Json() : Json(std::string(text));
}

Json PanelOf(const std::array<std::string, kPanelLabels.size()>& texts) {
  constexpr const char* kNames[] = {"std",       "average", "passed",  "perpassed", "failed",
                                    "perfailed", "lowest",  "highest", "present",   "absent"};
  Json object;
  for (std::size_t i = 0; i < texts.size(); ++i) object[kNames[i]] = ShownFigure(texts[i]);
  return object;
}

std::string JsonOf(const std::vector<ComparedGrade>& compared) {
  const Comparison comparison = Compare(compared);
  Json classes = Json::array();
  for (std::size_t i = 0; i < compared.size(); ++i) {
    const InClass in_class(compared[i].slot);
    const Instrument& grade = Current().Instruments[static_cast<std::size_t>(compared[i].grade)];
    Json object;
    object["class"] = Utf8FromCodePage(compared[i].name);
    object["title"] = Utf8FromCodePage(Trim(grade.title));
    object["code"] = Utf8FromCodePage(Trim(grade.code));
    object.update(PanelOf(comparison.panels[i]));
    const RangeCounts& counts = comparison.ranges[i];
    object["ranges"] = std::vector<int>(counts.rbegin(), counts.rend() - 1);
    classes.push_back(std::move(object));
  }
  Json all;
  all["heads"] = std::vector<std::string>(kComparedRanges.begin(), kComparedRanges.end());
  all["classes"] = std::move(classes);
  Json totals = PanelOf(comparison.panels.back());
  std::vector<int> sums;
  for (std::size_t range = kRanges; range >= 1; --range) sums.push_back(TotalOf(comparison, range));
  totals["ranges"] = sums;
  all["totals"] = std::move(totals);
  return JsonText(all);
}

CommandResult RunCompare(const CompareOptions& options) {
  std::vector<ComparedGrade> compared;
  CommandResult opened = OpenAll(options, compared);
  if (opened.refused) return opened;
  return Done(options.json ? JsonOf(compared) : Text(compared));
}

}  // namespace

void AddCompareCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("compare", "Sets a grade of several classes side by side");
  const auto options = std::make_shared<CompareOptions>();
  command.AddOption("FILE", options->files, "two to five class files")
      .Required()
      .Values(2, kMostFiles);
  command.AddOption("--grade", options->grade, "the title that the grade has in each").Required();
  command.AddFlag("--json", options->json, "as JSON, the ranges from the lowest up");
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return RunCompare(*options); }; });
}

}  // namespace tallyroll
