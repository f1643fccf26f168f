// SPDX-License-Identifier: GPL-3.0-or-later
// The half of the School Systems Portal that gives marks out.
#include <algorithm>

#include "base/code_page.h"
#include "exchange/exchange_texts.h"
#include "exchange/frmexchange.h"
#include "platform/class_window.h"
#include "platform/long_work.h"
#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/settings.h"
#include "store/text/text_import.h"

namespace tallyroll {
namespace {

constexpr std::array<std::string_view, 3> kSignCaptions = {"its own sign", "nothing", "0"};

}  // namespace

void frmexchange::LoadOut() {
  for (ComboBox& each : sign)
    for (const std::string_view caption : kSignCaptions) each.List.emplace_back(caption);
  constexpr std::array<std::string_view, 3> kTitles = {"Mend", "What the other system would do",
                                                       "Remedy"};
  constexpr std::array<int, 3> kWidths = {700, 6800, 4600};
  SetGridTitles(warnings, kTitles, kWidths);
}

OutSigns frmexchange::ChosenSigns() const {
  OutSigns signs;
  for (std::size_t i = 0; i < sign.size(); ++i)
    signs.by_mark[i] = static_cast<SignOut>(std::clamp(sign[i].ListIndex, 0, 2));
  return signs;
}

void frmexchange::FillSigns() {
  const OutSigns signs = RememberedSigns(Format());
  for (std::size_t i = 0; i < sign.size(); ++i)
    sign[i].ListIndex = static_cast<int>(signs.by_mark[i]);
}

void frmexchange::MakeOut() {
  out_ = MakeOutTable(Format(), ChosenSigns());
  warnings.SetSize(static_cast<int>(out_.warnings.size()) + 1, 3);
  for (int row = 1; row < warnings.Rows(); ++row) ShowWarning(row);
  warnings.Row = std::clamp(warnings.Row, 1, std::max(warnings.Rows() - 1, 1));
  okbt.Enabled = out_.refusal.empty();
  told.Caption = out_.refusal.empty()
                     ? Counted(static_cast<int>(out_.table.marks.size()), "mark") + " of " +
                           Counted(static_cast<int>(out_.table.grades.size()), "grade") + ", " +
                           Counted(static_cast<int>(out_.warnings.size()), "warning")
                     : "The class " + out_.refusal + ".";
  ShowCounts();
}

void frmexchange::ShowWarning(int row) {
  const OutWarning& warning = out_.warnings[static_cast<std::size_t>(row - 1)];
  warnings.SetTextMatrix(row, 0, warning.mended ? kTicked : "");
  warnings.SetTextMatrix(row, 1, warning.text);
  warnings.SetTextMatrix(row, 2, warning.remedy);
}

void frmexchange::sign_Change() {
  MakeOut();
}

void frmexchange::warnings_Click() {
  if (warnings.MouseCol == 0 && warnings.MouseRow > 0) ToggleWarning();
}

bool frmexchange::warnings_KeyPress(unsigned char key) {
  if (key != ' ') return false;
  ToggleWarning();
  return true;
}

void frmexchange::ToggleWarning() {
  const auto row = static_cast<std::size_t>(warnings.Row);
  if (row < 1 || row > out_.warnings.size()) return;
  OutWarning& warning = out_.warnings[row - 1];
  if (warning.remedy.empty()) return Platform().Beep();
  warning.mended = !warning.mended;
  ShowWarning(warnings.Row);
}

void frmexchange::GiveOut() {
  FileDialogRequest dialog;
  dialog.save = true;
  dialog.folder = LastFolder;
  const bool zip = RowOfFormat(Format()).extension == "zip";
  dialog.filter = zip ? "ZIP Files (*.zip)|*.ZIP" : "CSV Files (*.csv)|*.CSV";
  dialog.default_extension = zip ? "ZIP" : "CSV";
  dialog.overwrite_prompt = true;
  dialog.help_context = HelpContext;
  const std::optional<std::string> path = Platform().FileDialog(dialog);
  if (!path || path->empty()) return;
  LongWork work("Writing the file", 1);
  const ForeignFile file = OutFile(Format(), out_);
  if (work.Cancelled()) return;
  if (!file.refusal.empty())
    return (void)ShowMessage("The class " + file.refusal + ".", BoxIcon::kExclamation);
  if (const int error = ReplaceFile(*path, file.bytes, OldTail::kDrop))
    return ShowTextFileError(error);
  LastFolder = FolderOfFile(*path);
  RememberSigns(Format(), ChosenSigns());
  ClassWindow().ShowStatus(NameInFolder(PathForDisplay(*path)) + " written for " +
                           std::string(RowOfFormat(Format()).caption) + ".");
  Unload();
}

}  // namespace tallyroll
