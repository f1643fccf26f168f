// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>

#include "base/number_text.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/text_layouts.h"
#include "cli/commands/commands.h"
#include "store/program_state.h"
#include "store/text/text_export.h"

namespace tallyroll {
namespace {

const std::map<std::string, int> kWhats = {{"names", kExportNames},
                                           {"info", kExportInfo},
                                           {"grades", kExportGrades},
                                           {"grades-plain", kExportGradesPlain}};

struct ExportOptions {
  std::string file;
  std::string out;
  std::string what;
  std::string layout;
  std::string encoding;  // empty: the layout's usual one
  i16 name_mode = 68;
  OpenOptions opening;
};

CommandResult Export(const ExportOptions& options) {
  if (IsSameFile(options.file, options.out))
    return Refused(options.out, "is the class file itself, which is left as it is");
  NameMode = options.name_mode;
  std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  if (Current().NumStudents == 0) return Refused(options.file, kNoStudents);
  const int what = kWhats.at(options.what);
  const i16 layout = kTextLayouts.at(options.layout);
  const TextOfClass text = options.encoding.empty() ? ExportText(Current(), what, layout)
                                                    : ExportText(Current(), what, layout,
                                                                 kEncodings.at(options.encoding));
  reason = WriteFileTo(options.out, text.bytes);
  if (!reason.empty()) return Refused(options.out, reason);
  if (text.changed == 0) return Done();
  return Done("values changed to fit the layout: " + PlainNumberText(text.changed) + "\n");
}

}  // namespace

void AddExportCommand(Command& app, ChosenCommand& chosen) {
  Command command = app.AddCommand("export", "Writes the students of a class to a text file");
  const auto options = std::make_shared<ExportOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  command.AddOption("--what", options->what, "what is written of each student")
      .Required()
      .OneOf(NamesOf(kWhats));
  command.AddOption("--layout", options->layout, "how the fields of a line are parted")
      .Required()
      .OneOf(NamesOf(kTextLayouts));
  command.AddOption("--out", options->out, "the text file to write").Required();
  command
      .AddOption("--encoding", options->encoding,
                 "utf-8 with its mark, or windows-1252; otherwise utf-8 for csv alone")
      .OneOf(NamesOf(kEncodings));
  command
      .AddOption("--name-mode", options->name_mode,
                 "the order of the students: by name 68 or 57, by ID 82 or 73")
      .OneOf({68, 57, 82, 73});
  AddOpenOptions(command, options->opening);
  command.WhenChosen(
      [&chosen, options] { chosen = [options](std::istream&) { return Export(*options); }; });
}

}  // namespace tallyroll
