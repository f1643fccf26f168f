// SPDX-License-Identifier: GPL-3.0-or-later
#include <istream>
#include <iterator>
#include <memory>

#include "cli/basics/class_from_json.h"
#include "cli/basics/class_in_file.h"
#include "cli/commands/commands.h"
#include "store/program_state.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

struct BuildOptions {
  std::string json;
  std::string file;
  bool force = false;
};

// The JSON text; `reason` says why there is none.
std::string ReadJson(const std::string& path, std::istream& in, std::string& reason) {
  if (path == "-") return std::string(std::istreambuf_iterator<char>(in), {});
  FileContents contents = ReadWholeFile(path);
  if (contents.error != 0) reason = FileErrorText(contents.error);
  return std::move(contents.bytes);
}

CommandResult Build(const BuildOptions& options, std::istream& in) {
  if (IsSameFile(options.json, options.file)) {
    return Refused(options.file, "is the JSON file itself");
  }
  std::string reason;
  const std::string text = ReadJson(options.json, in, reason);
  if (reason.empty()) reason = ReadClassFromJson(text);
  if (!reason.empty()) return Refused(options.json, reason);
  reason = WriteClassTo(options.file, Current(), options.force);
  return reason.empty() ? Done() : Refused(options.file, reason);
}

}  // namespace

void AddBuildCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("build", "Writes the class file that a JSON text describes");
  const auto options = std::make_shared<BuildOptions>();
  command.AddOption("JSON", options->json, "the JSON file, - for standard input").Required();
  command.AddOption("FILE", options->file, "the class file to write").Required();
  AddForce(command, options->force);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream& in) { return Build(*options, in); }; });
}

}  // namespace tallyroll
