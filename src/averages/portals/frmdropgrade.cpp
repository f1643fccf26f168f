// SPDX-License-Identifier: GPL-3.0-or-later
#include "averages/portals/frmdropgrade.h"

#include <algorithm>

#include "averages/engine/lowest.h"
#include "averages/portals/type_grid.h"
#include "base/number_text.h"
#include "base/text.h"
#include "grades/marks.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kDropColumn = 3;

bool MayBeDropped(const Instrument& instrument) {
  return Trim(instrument.dropyn) == "Y";
}

std::vector<std::size_t> DroppableTypes() {
  const Class& c = Current();
  TypeCodes codes;
  MakeTypeCodes(codes);
  const TypesByCode types(codes);
  std::array<bool, kGradeTypes + 1> droppable{};
  for (int i = 1; i <= GradeCount(c); ++i) {
    const Instrument& instrument = c.Instruments[static_cast<std::size_t>(i)];
    if (!MayBeDropped(instrument)) continue;
    for (const std::size_t t : types.Of(instrument.typecode)) droppable[t] = true;
  }
  std::vector<std::size_t> found;
  for (std::size_t t = 1; t <= kGradeTypes; ++t)
    if (droppable[t]) found.push_back(t);
  return found;
}

}  // namespace

bool AnyGradeMayBeDropped() {
  const Class& c = Current();
  for (int i = 1; i <= GradeCount(c); ++i)
    if (MayBeDropped(c.Instruments[static_cast<std::size_t>(i)])) return true;
  return false;
}

bool AnyTypeMayBeDropped() {
  return !DroppableTypes().empty();
}

void TellNoGradeMayBeDropped() {
  ShowMessage(
      "You haven't specified any grades which could be 'dropped' when making up the final average. "
      "This may be done at the 'Edit Grades by Title' Portal.");
}

frmdropgrade::frmdropgrade() : Portal("frmdropgrade") {
  Caption = "Drop Lowest Grade Portal";
  HelpContext = 500;
  exit.Caption = "&Close";
}

void frmdropgrade::Declare(ControlTable& table) {
  table.Add("grdgrade", grdgrade)
      .KeyDown([this](Key key) { return key == Key::kEnter && GoToNextRow(grdgrade); })
      .KeyPress([this](unsigned char) { return grdgrade_KeyPress(); });
  table.Add("exit", exit).Click([this] { Unload(); });
}

// What was chosen last is offered again; under another way of dropping the flags say nothing.
void frmdropgrade::Load() {
  const std::vector<std::size_t> droppable = DroppableTypes();
  if (droppable.empty()) {
    TellNoGradeMayBeDropped();
    return Unload();
  }
  types_.insert(types_.end(), droppable.begin(), droppable.end());
  TypeCounts counts;
  TypeSums none, maxes;
  ClassTotalsByType(counts, none, maxes);
  grdgrade.SetSize(static_cast<int>(types_.size()), 4);
  grdgrade.FixedCols = grdgrade.Col = kDropColumn;
  HeadColumns(grdgrade, {"NAME of TYPE", "Type", "#", "Drop"});
  grdgrade.SetColAlignment(kDropColumn, ColumnAlign::kCenter);
  const TypeNames names;
  for (std::size_t row = 1; row < types_.size(); ++row) {
    const std::size_t t = types_[row];
    const bool chosen = Current().AverageFlag4 && Current().TypeWeights[t] == kMayDrop;
    names.Show(grdgrade, static_cast<int>(row), t);
    grdgrade.SetTextMatrix(static_cast<int>(row), 2, PlainNumberText(counts[t]));
    grdgrade.SetTextMatrix(static_cast<int>(row), kDropColumn, chosen ? "Y" : "N");
  }
}

bool frmdropgrade::grdgrade_KeyPress() {
  const bool chosen = grdgrade.TextMatrix(grdgrade.Row, kDropColumn) == "Y";
  grdgrade.SetTextMatrix(grdgrade.Row, kDropColumn, chosen ? "N" : "Y");
  return true;
}

bool frmdropgrade::TakeChoice(TypeSums& drops) const {
  bool any = false;
  for (std::size_t row = 1; row < types_.size(); ++row) {
    if (grdgrade.TextMatrix(static_cast<int>(row), kDropColumn) != "Y") continue;
    drops[types_[row]] = kMayDrop;
    any = true;
  }
  return any;
}

}  // namespace tallyroll
