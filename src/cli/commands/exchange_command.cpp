// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>

#include "base/code_page.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/command_line_surroundings.h"
#include "cli/basics/date_order.h"
#include "cli/basics/json_text.h"
#include "cli/commands/commands.h"
#include "companion/foreign_ids.h"
#include "exchange/kept_ids.h"
#include "exchange/out_table.h"
#include "exchange/take.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/student_names.h"
#include "store/text_layout.h"

namespace tallyroll {
namespace {

constexpr const char* kExchangePreviewHelp = "show as JSON what would happen, and do nothing";

struct ExchangeOptions {
  std::string file;
  std::string foreign;
  std::string format;
  std::string out;
  std::string signs;
  bool preview = false;
  bool leave_out = false;
  bool maximums = false;
  bool as_it_is = false;
  bool force = false;
  OpenOptions opening;
};

std::vector<std::string> FormatNames() {
  std::vector<std::string> names;
  for (const ExchangeFormatRow& row : ExchangeFormats()) names.emplace_back(row.name);
  return names;
}

Json Utf8(std::string_view code_page) {
  return Utf8FromCodePage(code_page);
}

// ---- In ----

Json ChangeJson(const ExchangePreview& preview, const Change& change) {
  Json json;
  json["kind"] = ChangeKindText(change.kind);
  json["place"] = CellName(change.line, change.column);
  json["grade"] = Utf8(GradeTitleOf(preview, change));
  json["student"] = Utf8(StudentNameOf(preview, change));
  json["before"] = Utf8(change.before);
  json["after"] = Utf8(change.after);
  json["comment"] = Utf8(change.comment);
  json["reason"] = Utf8(change.reason);
  json["ticked"] = change.ticked;
  json["guesses"] = Json::array();
  for (const StudentGuess& guess : change.guesses) {
    const Student& student = Current().Students[static_cast<std::size_t>(guess.student)];
    json["guesses"].push_back(
        {{"id", Utf8(student.id)}, {"name", Utf8(PlainName(student))}, {"by", guess.by}});
  }
  return json;
}

std::string PreviewJson(ExchangeFormat format, const ExchangePreview& preview) {
  Json json;
  json["format"] = RowOfFormat(format).name;
  json["blocked"] = preview.Blocked();
  json["changes"] = Json::array();
  for (const Change& change : preview.changes)
    json["changes"].push_back(ChangeJson(preview, change));
  json["notes"] = Json::array();
  for (const std::string& note : preview.table.notes) json["notes"].push_back(Utf8(note));
  return JsonText(json);
}

std::string BlockingLines(const ExchangePreview& preview) {
  std::string lines = "cannot be taken as it is (--leave-out takes the rest)";
  for (const Change& change : preview.changes) {
    if (!Blocks(change.kind)) continue;
    lines += "; " + CellName(change.line, change.column) + ": " +
             std::string(ChangeKindText(change.kind));
    if (const std::string name = StudentNameOf(preview, change); !name.empty()) lines += " " + name;
    if (!change.reason.empty()) lines += ", " + change.reason;
  }
  return Utf8FromCodePage(lines);
}

// The class with what was taken, and the identifiers of this and of earlier files beside it.
std::string WriteTaken(const ExchangeOptions& options, ExchangeFormat format,
                       const ExchangePreview& preview, std::string& note) {
  std::string reason = WriteClassTo(options.out, Current(), options.force);
  if (!reason.empty()) return reason;
  const std::string system(RowOfFormat(format).name);
  const KeptForeignIds earlier = ForeignIds(options.file, system);
  const KeptMarkComments comments = MarkComments(options.file, system);
  Current().FileName = options.out;
  if (!earlier.ids.empty()) KeepForeignIds(options.out, system, earlier.ids);
  if (!comments.comments.empty()) KeepMarkComments(options.out, system, comments.comments);
  if (const std::string fault = KeepIdsOf(format, preview); !fault.empty())
    note = ReasonLine(options.out, "identifiers and comments are not kept: " + fault);
  return {};
}

std::string TakenText(const TakenChanges& taken) {
  return std::to_string(taken.grades) + " grades, " + std::to_string(taken.marks) + " marks, " +
         std::to_string(taken.maximums) + " maximum scores\n";
}

CommandResult ExchangeIn(const ExchangeOptions& options) {
  std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  const FileContents file = ReadWholeFile(options.foreign, kLargestTextFile);
  if (file.error != 0) return Refused(options.foreign, FileErrorText(file.error));
  const std::optional<ExchangeFormat> format =
      options.format.empty() ? RecognisedFormat(file.bytes) : FormatOfName(options.format);
  if (!format) return Refused(options.foreign, "is of no known format (--format names one)");

  CommandLineSurroundings surroundings({}, DateOrderOfOption(options.opening.date_order));
  ExchangePreview preview = PreviewOfFile(*format, file.bytes);
  if (!preview.refusal.empty()) return Refused(options.foreign, Utf8FromCodePage(preview.refusal));
  for (Change& change : preview.changes)
    if (change.kind == ChangeKind::kMaximum && options.maximums) change.ticked = CanTick(change);
  if (options.preview) return Done(PreviewJson(*format, preview));
  if (options.out.empty())
    return Refused(options.foreign, "needs --out, where the class is written");
  if (preview.Blocked() && !options.leave_out)
    return Refused(options.foreign, BlockingLines(preview));
  const TakenChanges taken = TakeTicked(preview);
  if (!taken.refusal.empty()) return Refused(options.foreign, taken.refusal);
  CommandResult result;
  reason = WriteTaken(options, *format, preview, result.note);
  if (!reason.empty()) return Refused(options.out, reason);
  result.text = TakenText(taken);
  return result;
}

// ---- Out ----

std::string WarningsJson(ExchangeFormat format, const OutTable& out) {
  Json json;
  json["format"] = RowOfFormat(format).name;
  json["students"] = out.table.students.size();
  json["grades"] = out.table.grades.size();
  json["marks"] = out.table.marks.size();
  json["warnings"] = Json::array();
  for (const OutWarning& warning : out.warnings)
    json["warnings"].push_back({{"text", Utf8(warning.text)}, {"remedy", Utf8(warning.remedy)}});
  return JsonText(json);
}

CommandResult ExchangeOut(const ExchangeOptions& options) {
  std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  const CommandLineSurroundings surroundings({}, DateOrderOfOption(options.opening.date_order));
  OutSigns signs;
  TakeSigns(options.signs, signs);
  const ExchangeFormat format = *FormatOfName(options.format);
  OutTable out = MakeOutTable(format, signs);
  if (!out.refusal.empty()) return Refused(options.file, out.refusal);
  if (options.preview) return Done(WarningsJson(format, out));
  if (options.out.empty()) return Refused(options.file, "needs --out, where the file is written");
  CommandResult result;
  for (OutWarning& warning : out.warnings) {
    warning.mended = warning.mended && !options.as_it_is;
    result.note += Utf8FromCodePage(warning.text) + "\n";
  }
  const ForeignFile file = OutFile(format, out);
  if (!file.refusal.empty()) return Refused(options.file, file.refusal);
  reason = WriteFileTo(options.out, file.bytes);
  return reason.empty() ? result : Refused(options.out, reason);
}

void AddInCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("in", "Takes the marks of another system's file into a class");
  const auto options = std::make_shared<ExchangeOptions>();
  command.AddOption("FILE", options->file, "the class file, which is left as it is").Required();
  command.AddOption("FOREIGN", options->foreign, "the other system's file").Required();
  command.AddOption("--format", options->format, "which system (otherwise by the head of the file)")
      .OneOf(FormatNames());
  command.AddOption("--out", options->out, "the class file to write");
  command.AddFlag("--preview", options->preview, kExchangePreviewHelp);
  command.AddFlag("--leave-out", options->leave_out,
                  "leave out what cannot be used, and take the rest");
  command.AddFlag("--maximums", options->maximums, "take other maximum scores too");
  AddForce(command, options->force);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return ExchangeIn(*options); }; });
}

void AddOutCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("out", "Writes a class as another system's file");
  const auto options = std::make_shared<ExchangeOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  command.AddOption("--format", options->format, "which system").Required().OneOf(FormatNames());
  command.AddOption("--out", options->out, "the file to write");
  command.AddFlag("--preview", options->preview, "show the warnings as JSON, and write nothing");
  command.AddFlag("--as-it-is", options->as_it_is, "mend nothing of what the warnings are about");
  command.AddOption("--signs", options->signs, "how special marks go out: ABS=nothing,CUT=zero,...")
      .Check([](const std::string& text) {
        OutSigns signs;
        return TakeSigns(text, signs);
      });
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return ExchangeOut(*options); }; });
}

}  // namespace

void AddExchangeCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("exchange", "Marks from and to other school systems");
  command.RequireCommand();
  AddInCommand(command, chosen);
  AddOutCommand(command, chosen);
}

}  // namespace tallyroll
