// SPDX-License-Identifier: GPL-3.0-or-later
#include <memory>

#include "base/code_page.h"
#include "base/number_text.h"
#include "cli/basics/class_in_file.h"
#include "cli/basics/json_text.h"
#include "cli/basics/table_text.h"
#include "cli/commands/commands.h"
#include "companion/class_snapshots.h"
#include "store/change/earlier_state.h"

namespace tallyroll {
namespace {

struct SnapshotsOptions {
  std::string file, out;
  int number = 0;
  bool json = false, force = false;
  OpenOptions opening;
};

std::string SnapshotsAsJson(const std::vector<Snapshot>& snapshots) {
  Json list = Json::array();
  for (const Snapshot& each : snapshots)
    list.push_back(
        {{"number", each.number}, {"time", each.time}, {"changed", Utf8FromCodePage(each.told)}});
  return JsonText(list);
}

std::string SnapshotsAsText(const std::vector<Snapshot>& snapshots) {
  if (snapshots.empty()) return "No snapshot is kept.\n";
  Table table = {{"NUMBER", "TIME", "CHANGED"}};
  for (const Snapshot& each : snapshots)
    table.push_back({PlainNumberText(each.number), each.time, CellText(each.told)});
  return Utf8FromCodePage(AlignedText(table));
}

// The class of then goes into a file of its own, never into that of today.
CommandResult WriteSnapshot(const SnapshotsOptions& options) {
  if (IsSameFile(options.file, options.out))
    return Refused(options.out, "is the class file itself, which is left as it is");
  const SnapshotBytes kept = BytesOfSnapshot(options.file, options.number);
  if (!kept.fault.empty()) return Refused(options.file, Utf8FromCodePage(kept.fault));
  Class then;
  if (const int error = ReadState(kept.bytes, then); error != 0)
    return Refused(options.file, FileErrorText(error));
  const std::string reason = WriteClassTo(options.out, then, options.force);
  return reason.empty() ? Done() : Refused(options.out, reason);
}

CommandResult TellSnapshots(const SnapshotsOptions& options) {
  const std::string reason = OpenClassFile(options.file, options.opening);
  if (!reason.empty()) return Refused(options.file, reason);
  if (options.number != 0) return WriteSnapshot(options);
  const KeptSnapshots kept = SnapshotsOf(options.file);
  if (!kept.fault.empty()) return Refused(options.file, Utf8FromCodePage(kept.fault));
  return Done(options.json ? SnapshotsAsJson(kept.snapshots) : SnapshotsAsText(kept.snapshots));
}

}  // namespace

void AddSnapshotsCommand(Command& app, ChosenCommand& chosen) {
  Command command =
      app.AddCommand("snapshots", "Lists the class as it was at its saves, or writes one of them");
  const auto options = std::make_shared<SnapshotsOptions>();
  command.AddOption("FILE", options->file, "the class file").Required();
  command.AddFlag("--json", options->json, "as JSON");
  auto number = command.AddOption("--number", options->number, "the snapshot to write");
  auto out = command.AddOption("--out", options->out, "the class file to write it to");
  number.Needs(out);
  out.Needs(number);
  AddOpenOptions(command, options->opening);
  AddForce(command, options->force);
  command.WhenChosen([&chosen, options] {
    chosen = [options](std::istream&) { return TellSnapshots(*options); };
  });
}

}  // namespace tallyroll
