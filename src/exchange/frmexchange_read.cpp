// SPDX-License-Identifier: GPL-3.0-or-later
// How the School Systems Portal reads a file, and reads it again for another system or student. A
// Cancel leaves the list as it was.
#include <algorithm>
#include <map>
#include <tuple>
#include <utility>

#include "base/code_page.h"
#include "exchange/exchange_texts.h"
#include "exchange/frmexchange.h"
#include "platform/long_work.h"
#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/text/text_import.h"
#include "store/text_layout.h"

namespace tallyroll {

void frmexchange::system_Change() {
  const StudentsByRow before = std::exchange(chosen_, {});
  if (GivesOut()) {
    FillSigns();
    MakeOut();
  } else if (!path_.empty() && !Read()) {
    chosen_ = before;
    system.ListIndex = read_system_;
  }
}

void frmexchange::choose_Click() {
  FileDialogRequest dialog;
  dialog.folder = LastFolder;
  dialog.filter = "School Systems (*.csv *.zip)|*.CSV;*.ZIP;*.TXT";
  dialog.file_must_exist = true;
  dialog.help_context = HelpContext;
  const std::optional<std::string> path = Platform().FileDialog(dialog);
  if (!path || path->empty()) return;
  LongWork work("Reading the file", 2);
  const FileContents file = ReadWholeFile(*path, kLargestTextFile);
  if (file.error != 0) return ShowTextFileError(file.error);
  const auto before = std::tuple(path_, bytes_, chosen_, system.ListIndex);
  LastFolder = FolderOfFile(*path);
  const std::optional<ExchangeFormat> format = RecognisedFormat(file.bytes);
  if (!format) {
    ShowMessage(PathForDisplay(*path) +
                    " is of none of these systems as far as its head tells. "
                    "Choose the system yourself.",
                BoxIcon::kExclamation);
  } else {
    const auto rows = ExchangeFormats();
    system.ListIndex = static_cast<int>(
        std::ranges::find(rows, *format, &ExchangeFormatRow::format) - rows.begin());
  }
  path_ = *path;
  bytes_ = file.bytes;
  chosen_.clear();
  work.Step();
  if (!Read()) std::tie(path_, bytes_, chosen_, system.ListIndex) = before;
  SetFocus(changes);
}

// Ticks that the teacher changed are kept where a chosen student made the list anew. False where it
// was cancelled: the list stays as it was.
bool frmexchange::Read() {
  LongWork work("Reading the file", 1);
  ExchangePreview read = PreviewOfFile(Format(), bytes_, chosen_);
  if (work.Cancelled()) return false;
  read_system_ = system.ListIndex;
  std::map<std::tuple<ChangeKind, int, int>, bool> ticks;
  if (!chosen_.empty())
    for (const Change& change : preview_.changes)
      ticks[{change.kind, change.row, change.grade}] = change.ticked;
  preview_ = std::move(read);
  if (!ticks.empty())
    for (Change& change : preview_.changes)
      if (const auto kept = ticks.find({change.kind, change.row, change.grade});
          kept != ticks.end())
        change.ticked = kept->second;
  ShowChanges();
  return true;
}

void frmexchange::who_Change() {
  const Change* change = CurrentChange();
  if (!change || change->kind != ChangeKind::kUnknownStudent || who.ListIndex < 1) return;
  const StudentsByRow before = chosen_;
  chosen_[change->row] = change->guesses[static_cast<std::size_t>(who.ListIndex - 1)].student;
  if (!Read()) {
    chosen_ = before;
    ShowWho();
  }
  SetFocus(changes);
}

}  // namespace tallyroll
