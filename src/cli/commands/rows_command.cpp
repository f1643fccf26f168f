// SPDX-License-Identifier: GPL-3.0-or-later
#include <iostream>
#include <memory>
#include <utility>
#include <vector>

#include "base/code_page.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/date_order.h"
#include "cli/commands/commands.h"
#include "cli/rows/class_rows.h"
#include "cli/rows/jobs.h"

namespace tallyroll {
namespace {

constexpr int kMostJobs = 64;
constexpr const char* kNamesFromInput = "-";

struct RowsOptions {
  std::vector<std::string> files;
  std::string table = "marks";
  bool jsonl = false;
  bool csv = false;
  int jobs = 1;
  OpenOptions opening;
};

std::vector<std::string> NamesOf(const RowsOptions& options, std::istream& in) {
  std::vector<std::string> names;
  for (const std::string& file : options.files) {
    if (file != kNamesFromInput) {
      names.push_back(file);
      continue;
    }
    for (std::string line; std::getline(in, line);) {
      if (line.ends_with('\r')) line.pop_back();
      if (!line.empty()) names.push_back(line);
    }
  }
  return names;
}

// The rows of one file, or the line that says why there are none.
bool WriteFileRows(const RowsOptions& options, const std::string& file, RowSink& sink,
                   std::ostream& err) {
  std::string reason = OpenClassFile(file, options.opening);
  const DateOrder order = DateOrderOfOption(options.opening.date_order);
  const RowForm form = options.csv ? RowForm::kCsv : RowForm::kJson;
  if (reason.empty()) reason = Utf8FromCodePage(WriteRows(options.table, form, file, order, sink));
  sink.EndFile();
  if (!reason.empty()) err << ReasonLine(file, reason) << std::endl;
  return reason.empty();
}

// A process of its own can only write to what it shares with this one.
int JobsFor(const RowsOptions& options, const std::ostream& out) {
  return out.rdbuf() == std::cout.rdbuf() ? options.jobs : 1;
}

bool StreamRows(const RowsOptions& options, const std::vector<std::string>& files,
                std::ostream& out, std::ostream& err) {
  if (options.csv) out << RowHeading(options.table) << std::flush;
  RowSink sink(out);
  return RunJobs(JobsFor(options, out), files.size(), [&](RowsJob& job, std::size_t i) {
    sink.BeginFile(job.alone() ? std::function<bool()>() : [&job] { return job.WaitForTurn(); });
    const bool whole = WriteFileRows(options, files[i], sink, err);
    job.PassOn(i);
    return whole && !sink.closed();
  });
}

CommandResult Rows(const std::shared_ptr<RowsOptions>& options, std::istream& in) {
  const std::vector<std::string> files = NamesOf(*options, in);
  CommandResult result;
  result.stream = [options, files](std::ostream& out, std::ostream& err) {
    return StreamRows(*options, files, out, err);
  };
  return result;
}

}  // namespace

void AddRowsCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("rows", "Writes many classes as flat rows, one a line");
  const auto options = std::make_shared<RowsOptions>();
  command.AddOption("FILE", options->files, "the class files; - reads their names, one a line")
      .Required();
  command.AddOption("--table", options->table, "what a row is about (otherwise marks)")
      .OneOf(RowTables());
  CommandOption csv = command.AddFlag("--csv", options->csv, "as comma-separated values");
  command.AddFlag("--jsonl", options->jsonl, "as JSON, an object a line (otherwise so too)")
      .Excludes(csv);
  command.AddOption("--jobs", options->jobs, "how many processes share the files")
      .Between(1, kMostJobs);
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream& in) { return Rows(options, in); }; });
}

}  // namespace tallyroll
