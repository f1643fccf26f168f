// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>
#include <optional>

#include "averages/explained/explained_page.h"
#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/command_line_surroundings.h"
#include "cli/basics/date_order.h"
#include "cli/basics/json_text.h"
#include "cli/basics/pdf.h"
#include "cli/commands/commands.h"
#include "printing/page/report_choice.h"
#include "printing/reports/html_report.h"
#include "printing/reports/report_codes.h"
#include "printing/reports/reports.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

struct ExplainOptions {
  std::string file, student, pdf;
  bool json = false, html = false;
  i16 name_mode = 68;
  OpenOptions opening;
};

std::string TextOf(std::string_view text) {
  return Utf8FromCodePage(Trim(text));
}

Json NumberOf(Currency value) {
  return PlainNumberText(value);
}

// What a step says nothing about is left out, so that a 0 is a figure.
Json StepJson(const AverageStep& step, const TypeCodes& codes) {
  Json json = {{"rule", NameOfRule(step.rule)}};
  if (step.grade > 0) {
    const Class& c = Current();
    const auto grade = static_cast<std::size_t>(step.grade);
    const Student& student = c.Students[static_cast<std::size_t>(CurrentStudent)];
    json["grade"] = TextOf(c.Instruments[grade].title);
    json["mark"] = grade < student.Marks.size() ? TextOf(student.Marks[grade]) : std::string();
  }
  if (step.type > 0) json["type"] = TextOf(codes[step.type]);
  const std::pair<const char*, Currency> figures[] = {{"value", step.value},
                                                      {"most", step.most},
                                                      {"percent", step.percent},
                                                      {"weight", step.weight},
                                                      {"part", step.part}};
  for (const auto& [name, figure] : figures)
    if (figure != Currency()) json[name] = NumberOf(figure);
  json["before"] = NumberOf(step.before);
  json["after"] = NumberOf(step.after);
  return json;
}

CommandResult ExplainAsJson(const ExplainOptions& options) {
  const ExplainedAverage explained = ExplainAverage(CurrentStudent);
  if (explained.error)
    return Refused(options.file, Utf8FromCodePage(AverageErrorText(explained.error)));
  TypeCodes codes;
  MakeTypeCodes(codes);
  Json steps = Json::array();
  for (const AverageStep& step : explained.steps) steps.push_back(StepJson(step, codes));
  const Student& student = Current().Students[static_cast<std::size_t>(CurrentStudent)];
  return Done(JsonText({{"id", TextOf(student.id)},
                        {"lastname", TextOf(student.lastname)},
                        {"firstname", TextOf(student.firstname)},
                        {"steps", std::move(steps)},
                        {"ComputedAverage", NumberOf(explained.result.computed)},
                        {"ExactAverage", NumberOf(explained.result.exact)},
                        {"FinalGrade", Utf8FromCodePage(explained.result.grade.Text())}}));
}

i16 StudentOfId(const std::string& wanted) {
  const auto id = CodePageFromUtf8(wanted);
  for (int i = 1; id && i <= Current().NumStudents; ++i)
    if (Trim(Current().Students[static_cast<std::size_t>(i)].id) == Trim(*id))
      return static_cast<i16>(i);
  return 0;
}

CommandResult ExplainOnPaper(const ExplainOptions& options,
                             const CommandLineSurroundings& surroundings) {
  if (std::string reason = WhyNotOver(options.pdf); !reason.empty())
    return Refused(options.pdf, reason);
  const PdfOutcome outcome = WritePdf(options.pdf, "Average of " + options.student);
  if (!outcome.refusal.empty()) return Refused(options.file, outcome.refusal);
  if (outcome.error != 0) return Refused(options.pdf, FileErrorText(outcome.error));
  if (Job.PrintFlag == kPrintCancelled) return Refused(options.file, surroundings.Refusal());
  return Done();
}

// What goes to standard output is UTF-8, and the page says so.
std::string HtmlInUtf8() {
  constexpr std::string_view kCodePage = "charset=windows-1252";
  std::string html = Utf8FromCodePage(ReportHtml());
  const std::size_t at = html.find(kCodePage);
  if (at != std::string::npos) html.replace(at, kCodePage.size(), "charset=utf-8");
  return html;
}

CommandResult ExplainStudentOf(const ExplainOptions& options) {
  NameMode = options.name_mode;
  const std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  CommandLineSurroundings surroundings(std::nullopt, DateOrderOfOption(options.opening.date_order));
  if (!HasAverages())
    return Refused(options.file,
                   "the class has no averages: it needs grades, and weights or points for them");
  CurrentStudent = StudentOfId(options.student);
  if (CurrentStudent == 0) return Refused(options.file, "no student has the ID " + options.student);
  if (options.json) return ExplainAsJson(options);
  Choice = ReportChoice();
  Choice.students = {CurrentStudent};
  Job = PrintJob();
  Job.PrintFlag = kPrintRuns;
  Job.PrintTab = FindReport(kExplainedAverage)->tab;
  Job.ReportCode = kExplainedAverage;
  if (!options.pdf.empty()) return ExplainOnPaper(options, surroundings);
  std::string text = options.html ? HtmlInUtf8() : Utf8FromCodePage(ReportText());
  if (Job.PrintFlag == kPrintCancelled) return Refused(options.file, surroundings.Refusal());
  return Done(std::move(text));
}

}  // namespace

void AddExplainCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("explain", "Tells how a student's average came about");
  const auto options = std::make_shared<ExplainOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  command.AddOption("--student", options->student, "the student's ID").Required();
  const auto json = command.AddFlag("--json", options->json, "as JSON: the steps in order");
  const auto html = command.AddFlag("--html", options->html, "as an HTML page").Excludes(json);
  command.AddOption("--pdf", options->pdf, "the PDF file to write").Excludes(json).Excludes(html);
  AddNameMode(command, options->name_mode);
  AddOpenOptions(command, options->opening);
  command.WhenChosen([&chosen, options] {
    chosen = [options](std::istream&) { return ExplainStudentOf(*options); };
  });
}

}  // namespace tallyroll
