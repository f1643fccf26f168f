// SPDX-License-Identifier: GPL-3.0-or-later
#include <filesystem>
#include <memory>
#include <optional>
#include <vector>

#include "base/code_page.h"
#include "base/date_serial.h"
#include "base/text.h"
#include "cli/basics/chosen_students.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/command_line_surroundings.h"
#include "cli/basics/date_order.h"
#include "cli/basics/months_option.h"
#include "cli/basics/pdf.h"
#include "cli/basics/text_layouts.h"
#include "cli/commands/commands.h"
#include "grades/marks.h"
#include "printing/page/report_choice.h"
#include "printing/reports/html_report.h"
#include "printing/reports/reports.h"
#include "store/program_state.h"
#include "store/sort_students.h"
#include "store/text/saved_text.h"

namespace tallyroll {
namespace {

constexpr i16 kAveragesTab = 4;
constexpr int kClassInformation = 22;

struct ReportOptions {
  std::string file;
  int code = 0;
  std::string out, format, encoding = "windows-1252";
  std::vector<std::string> students;
  bool attendance = false, comments = false, parent_signature = false;
  bool school = false, teacher = false, code_details = false;
  std::string sort = "none", rank = "none";
  std::string title;
  i16 name_mode = 68;
  int grade = 0, summary = 0;
  std::string months, today;
  OpenOptions opening;
};

// Each of these answers why the choice is refused.
std::string TakeMonths(const ReportOptions& options) {
  MonthRange months;
  std::string reason = TakeMonthsOption(options.months, months);
  Choice.month_first = months.first;
  Choice.month_last = months.last;
  return reason;
}

void TakeTypes(const std::string& sort) {
  constexpr std::string_view kTypes = "types=";
  Choice.sort = sort == "type" ? TypeSort::kAllTypes : TypeSort::kNone;
  Choice.roll_order = sort == "type" ? RollBookOrder::kAllTypes : RollBookOrder::kNone;
  if (!sort.starts_with(kTypes)) return;
  Choice.sort = TypeSort::kSomeTypes;
  Choice.roll_order = RollBookOrder::kSomeTypes;
  std::string_view rest = std::string_view(sort).substr(kTypes.size());
  while (!rest.empty()) {
    const std::size_t comma = rest.find(',');
    Choice.types.emplace_back(Trim(rest.substr(0, comma)));
    rest.remove_prefix(comma == std::string_view::npos ? rest.size() : comma + 1);
  }
}

std::string TakeChoice(const ReportOptions& options, const Report& report) {
  // Only what the class says of itself stands without students.
  if (Current().NumStudents == 0 && report.code != kClassInformation) return kNoStudents;
  Choice = ReportChoice();
  Choice.attendance1 = options.attendance;
  Choice.comment1 = options.comments;
  Choice.parentsig = options.parent_signature;
  Choice.school = options.school;
  Choice.teacher = options.teacher;
  Choice.printcode = options.code_details;
  Choice.rank = options.rank == "high"  ? Rank::kHighToLow
                : options.rank == "low" ? Rank::kLowToHigh
                                        : Rank::kNone;
  Choice.shown = NameMode == 57 ? Shown::kName : NameMode == 73 ? Shown::kId : Shown::kNameAndId;
  Choice.grade = options.grade;
  Choice.summary = options.summary;
  TakeTypes(options.sort);
  if (report.tab == kAveragesTab && !HasAverages())
    return "the class has no averages: it needs grades, and weights or points for them";
  if (report.code == 8) return TakeMonths(options);
  if (report.code == 10 && (options.grade < 1 || options.grade > GradeCount(Current())))
    return "--grade must be a grade of the class, from 1";
  if (report.code == 9 && (options.summary < 1 || options.summary > Current().NumSummaries))
    return "--summary must be a summary of the class, from 1";
  return report.one_student ? TakeStudents(options.students, Choice.students) : std::string();
}

std::string FormatOf(const ReportOptions& options) {
  if (!options.format.empty()) return options.format;
  const std::string extension = LowerCase(std::filesystem::path(options.out).extension().string());
  if (extension == ".htm" || extension == ".html") return "html";
  return extension == ".pdf" ? "pdf" : "text";
}

// The title by which a reader of PDF names the document.
std::string DocumentTitle(const ReportOptions& options) {
  if (!Job.PrintTitle.empty()) return Job.PrintTitle;
  return PathForDisplay(std::filesystem::path(options.file).filename().string());
}

CommandResult MakePdf(const ReportOptions& options, const CommandLineSurroundings& surroundings) {
  if (options.out.empty()) return Refused(options.file, "a PDF needs --out");
  const std::string reason = WhyNotOver(options.out);
  if (!reason.empty()) return Refused(options.out, reason);
  const PdfOutcome outcome = WritePdf(options.out, DocumentTitle(options));
  if (!outcome.refusal.empty()) return Refused(options.file, outcome.refusal);
  if (outcome.error != 0) return Refused(options.out, FileErrorText(outcome.error));
  if (Job.PrintFlag == kPrintCancelled) return Refused(options.file, surroundings.Refusal());
  CommandResult result = Done();
  if (!Job.Notice.empty()) result.note = ReasonLine(options.out, Utf8FromCodePage(Job.Notice));
  return result;
}

CommandResult MakeReport(const ReportOptions& options) {
  const Report* report = FindReport(options.code);
  if (!report) return Refused(options.file, "there is no report of this code");
  NameMode = options.name_mode;
  std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  CommandLineSurroundings surroundings(std::nullopt, DateOrderOfOption(options.opening.date_order));
  if (!options.today.empty())
    surroundings.today = *DateFromText(options.today, DateOrder::kYearFirst);
  SortStudents();
  reason = TakeChoice(options, *report);
  if (!reason.empty()) return Refused(options.file, reason);
  Job = PrintJob();
  Job.PrintFlag = kPrintRuns;
  Job.PrintTab = report->tab;
  Job.ReportCode = static_cast<i16>(report->code);
  const auto title = CodePageFromUtf8(options.title);
  if (!title) return Refused(options.file, "the title has characters that a class cannot hold");
  Job.PrintTitle = *title;
  if (const std::string nothing = NothingToReport(); !nothing.empty())
    return Refused(options.file, nothing);
  const std::string format = FormatOf(options);
  if (format == "pdf") return MakePdf(options, surroundings);
  const std::string bytes = format == "html" ? ReportHtml() : ReportText();
  if (Job.PrintFlag == kPrintCancelled) return Refused(options.file, surroundings.Refusal());
  if (bytes.empty()) return Refused(options.file, "there is nothing to report");
  if (options.out.empty()) return Done(Utf8FromCodePage(bytes));
  const bool html = format == "html";
  reason =
      WriteFileTo(options.out, html ? bytes : EncodedText(bytes, kEncodings.at(options.encoding)));
  return reason.empty() ? Done() : Refused(options.out, reason);
}

std::string CheckDate(const std::string& text) {
  return DateFromText(text, DateOrder::kYearFirst) ? "" : "must be a date, YYYY-MM-DD";
}

std::string CheckSort(const std::string& text) {
  const bool known = text == "none" || text == "type" || text.starts_with("types=");
  return known ? "" : "must be none, type or types=A,B";
}

}  // namespace

void AddReportCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("report", "Writes a report as text, HTML or PDF");
  const auto options = std::make_shared<ReportOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  command.AddOption("--code", options->code, "the report's code, 1 to 25").Required();
  command.AddOption("--out", options->out, "the file to write: .txt, .htm or .pdf");
  command.AddOption("--format", options->format, "whatever the file's name says")
      .OneOf({"text", "html", "pdf"});
  command
      .AddOption("--encoding", options->encoding,
                 "of a text file: windows-1252, or utf-8 with its mark")
      .OneOf(NamesOf(kEncodings));
  AddStudents(command, options->students);
  command.AddFlag("--attendance", options->attendance, "with attendance summaries");
  command.AddFlag("--comments", options->comments, "with comments");
  command.AddFlag("--parent-signature", options->parent_signature, "with a line to sign");
  command.AddFlag("--school", options->school, "headed by the school");
  command.AddFlag("--teacher", options->teacher, "headed by the teacher");
  command.AddFlag("--code-details", options->code_details, "with a table of the codes");
  command.AddOption("--sort", options->sort, "none, type, or types=Q,T").Check(CheckSort);
  command.AddOption("--rank", options->rank, "of the report on one grade")
      .OneOf({"none", "high", "low"});
  command.AddOption("--title", options->title, "a title of your own");
  command.AddOption("--grade", options->grade, "the grade's number, for code 10");
  command.AddOption("--summary", options->summary, "the summary's number, for code 9");
  command.AddOption("--months", options->months, "YYYY-MM..YYYY-MM, for code 8");
  command.AddOption("--today", options->today, "the date in the head, YYYY-MM-DD").Check(CheckDate);
  AddNameMode(command, options->name_mode);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return MakeReport(*options); }; });
}

}  // namespace tallyroll
