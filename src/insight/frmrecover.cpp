// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/frmrecover.h"

#include <array>

#include "base/code_page.h"
#include "base/date_serial.h"
#include "companion/class_snapshots.h"
#include "companion/save_time.h"
#include "insight/kept_work.h"
#include "insight/told_change.h"
#include "platform/surroundings.h"

namespace tallyroll {
namespace {

struct RecoverColumn {
  std::string_view head;
  int width;
};
constexpr std::array kRecoverColumns = {
    RecoverColumn{"Student", 2600}, RecoverColumn{"Grade", 2200}, RecoverColumn{"What", 1400},
    RecoverColumn{"In the file", 2000}, RecoverColumn{"Worked on", 2000}};

std::string FoundText() {
  const FoundWork& work = WorkFound;
  if (work.class_path.empty()) return "No work was found that is not saved.";
  const std::string file = work.class_path.substr(work.class_path.rfind('/') + 1);
  return "The program ended before " + PathForDisplay(file) + " was saved. Work of " +
         DateText(DayOfSaveTime(work.time), Platform().ShortDateOrder()) + ", " +
         work.time.substr(work.time.find(' ') + 1) +
         ", was found: " + WordsOfChanges(work.changes) +
         ". Keep puts it into the class, as a step that Undo takes back; the file on the disk "
         "stays "
         "as it is until you save.";
}

}  // namespace

frmrecover::frmrecover() : Portal("frmrecover") {
  Caption = "Recovered Work Portal";
  HelpContext = 870;
  keep.Caption = "&Keep";
  discard.Caption = "&Discard";
}

void frmrecover::Declare(ControlTable& table) {
  table.Add("found", found);
  table.Add("Grid1", Grid1);
  table.Add("discard", discard).Click([this] { Unload(); });
  table.Add("keep", keep).Click([this] { keep_Click(); });
}

void frmrecover::Load() {
  const std::vector<NamedChange>& changes = WorkFound.changes;
  found.Caption = FoundText();
  Grid1.FixedCols = Grid1.LeftCol = 0;
  Grid1.SetRedraw(false);
  Grid1.SetSize(1 + static_cast<int>(changes.size()), static_cast<int>(kRecoverColumns.size()));
  for (std::size_t i = 0; i < kRecoverColumns.size(); ++i) {
    Grid1.SetTextMatrix(0, static_cast<int>(i), kRecoverColumns[i].head);
    Grid1.SetColWidth(static_cast<int>(i), kRecoverColumns[i].width);
  }
  int row = 0;
  for (const NamedChange& change : changes) {
    ++row;
    const std::array<std::string_view, kRecoverColumns.size()> cells = {
        change.name, change.grade, WordsOfField(change.field), change.before, change.after};
    for (std::size_t i = 0; i < cells.size(); ++i)
      Grid1.SetTextMatrix(row, static_cast<int>(i), cells[i]);
  }
  Grid1.Row = changes.empty() ? 0 : 1;
  Grid1.Col = 0;
  Grid1.SetRedraw(true);
  SetFocus(keep);
}

void frmrecover::keep_Click() {
  WorkFound.taken = true;
  Unload();
}

// Who closes the window without an answer loses nothing.
void frmrecover::QueryUnload() {
  keep_Click();
}

}  // namespace tallyroll
