// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/frmexchange.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/text.h"
#include "exchange/exchange_texts.h"
#include "exchange/kept_ids.h"
#include "platform/class_window.h"
#include "platform/surroundings.h"
#include "store/program_state.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

constexpr int kInPage = 0, kOutPage = 1;
constexpr std::array<std::string_view, 7> kChangeTitles = {"Take",  "Where", "What", "Student",
                                                           "Grade", "Now",   "Then"};
constexpr std::array<int, 7> kChangeWidths = {700, 900, 1700, 2600, 2400, 900, 3400};

}  // namespace

frmexchange::frmexchange() : Portal("frmexchange") {
  Caption = "School Systems Portal";
  HelpContext = 165;
  takein.Caption = "&Take marks in";
  giveout.Caption = "&Give marks out";
  choose.Caption = "&File...";
  inframe.Caption = "What Would Happen";
  leaveout.Caption = "&Leave out what cannot be used";
  tickall.Caption = "Tick &All";
  ticknone.Caption = "Tick &None";
  outframe.Caption = "Special Marks and Warnings";
  okbt.Caption = "&OK";
  cancelbt.Caption = "&Cancel";
  changes.Notes.Of = [this](int row, int col) {
    const bool blocks = changes.Style(row, col) == CellStyle::kFailing;
    return blocks ? CellNote{CellMark::kNone, "cannot be carried out as it stands"} : CellNote();
  };
}

void frmexchange::Declare(ControlTable& table) {
  table.Add("takein", takein).Click([this] { way_Click(); });
  table.Add("giveout", giveout).Click([this] { way_Click(); });
  table.Add("system", system).Change([this] { system_Change(); });
  table.Add("choose", choose).Click([this] { choose_Click(); });
  table.Add("told", told);
  table.Add("ways", ways);
  table.Add("inframe", inframe);
  table.Add("show", show).Change([this] { show_Change(); });
  table.Add("changes", changes)
      .Change([this] { changes_Change(); })
      .Click([this] { changes_Click(); })
      .KeyPress([this](unsigned char key) { return changes_KeyPress(key); });
  table.Add("who", who).Change([this] { who_Change(); });
  table.Add("leaveout", leaveout);
  table.Add("tickall", tickall).Click([this] { TickShown(true); });
  table.Add("ticknone", ticknone).Click([this] { TickShown(false); });
  table.Add("outframe", outframe);
  for (std::size_t i = 0; i < sign.size(); ++i)
    table.Add("sign_" + std::string(kOutMarks[i]), sign[i]).Change([this] { sign_Change(); });
  table.Add("warnings", warnings)
      .Click([this] { warnings_Click(); })
      .KeyPress([this](unsigned char key) { return warnings_KeyPress(key); });
  table.Add("okbt", okbt).Click([this] { okbt_Click(); });
  table.Add("cancelbt", cancelbt).Click([this] { Unload(); });
}

void frmexchange::Load() {
  takein.Value = true;
  for (const ExchangeFormatRow& row : ExchangeFormats()) system.List.emplace_back(row.caption);
  system.ListIndex = 0;
  show.List = {"everything"};
  for (const ChangeKind kind : kChangeKinds) show.List.emplace_back(ChangeKindText(kind));
  show.ListIndex = 0;
  SetGridTitles(changes, kChangeTitles, kChangeWidths);
  LoadOut();
  way_Click();
  SetFocus(takein);
}

ExchangeFormat frmexchange::Format() const {
  return ExchangeFormats()[static_cast<std::size_t>(std::max(system.ListIndex, 0))].format;
}

void frmexchange::way_Click() {
  ways.Current = GivesOut() ? kOutPage : kInPage;
  choose.Enabled = !GivesOut();
  inframe.Visible = !GivesOut();
  outframe.Visible = GivesOut();
  if (GivesOut()) {
    FillSigns();
    return MakeOut();
  }
  ShowChanges();
}

// ---- In ----

void frmexchange::ShowChanges() {
  shown_.clear();
  for (std::size_t i = 0; i < preview_.changes.size(); ++i)
    if (show.ListIndex <= 0 ||
        preview_.changes[i].kind == kChangeKinds[static_cast<std::size_t>(show.ListIndex - 1)])
      shown_.push_back(i);
  changes.SetRedraw(false);
  changes.SetSize(static_cast<int>(shown_.size()) + 1, static_cast<int>(kChangeTitles.size()));
  for (int row = 1; row < changes.Rows(); ++row) ShowChange(row);
  changes.Row = std::clamp(changes.Row, 1, std::max(changes.Rows() - 1, 1));
  changes.SetRedraw(true);
  ShowWho();
  ShowCounts();
}

void frmexchange::ShowChange(int row) {
  const Change& change = preview_.changes[shown_[static_cast<std::size_t>(row - 1)]];
  const std::string then =
      change.after.str() + (change.reason.empty() || change.after.empty() ? "" : ": ") +
      change.reason + (change.comment.empty() ? "" : " \"" + change.comment + "\"");
  const std::array<std::string, 7> cells = {std::string(change.ticked ? kTicked : ""),
                                            CellName(change.line, change.column),
                                            std::string(ChangeKindText(change.kind)),
                                            StudentNameOf(preview_, change),
                                            GradeTitleOf(preview_, change),
                                            change.before.str(),
                                            then};
  for (int col = 0; col < changes.Cols(); ++col) {
    changes.SetTextMatrix(row, col, cells[static_cast<std::size_t>(col)]);
    changes.SetStyle(row, col, Blocks(change.kind) ? CellStyle::kFailing : CellStyle::kPlain);
  }
}

const Change* frmexchange::CurrentChange() const {
  const auto row = static_cast<std::size_t>(changes.Row);
  if (row < 1 || row > shown_.size()) return nullptr;
  return &preview_.changes[shown_[row - 1]];
}

void frmexchange::ShowWho() {
  const Change* change = CurrentChange();
  who.Enabled = change && change->kind == ChangeKind::kUnknownStudent;
  who.List.clear();
  who.ListIndex = -1;
  if (!who.Enabled) return;
  who.List.emplace_back("(nobody of this class)");
  const Class& c = Current();
  for (const StudentGuess& guess : change->guesses)
    who.List.push_back(PlainName(c.Students[static_cast<std::size_t>(guess.student)]) + " (by " +
                       std::string(guess.by) + ")");
  who.ListIndex = 0;
}

void frmexchange::ShowCounts() {
  okbt.Caption = GivesOut() ? "&Save..." : "Ta&ke";
  if (GivesOut()) return;
  okbt.Enabled = !preview_.changes.empty();
  if (path_.empty()) {
    told.Caption = "Choose the file that the other system has written.";
  } else if (!preview_.refusal.empty()) {
    told.Caption = NameInFolder(PathForDisplay(path_)) + " " + preview_.refusal + ".";
  } else {
    const auto ticked = std::ranges::count(preview_.changes, true, &Change::ticked);
    const auto blocked = std::ranges::count_if(
        preview_.changes, [](const Change& change) { return Blocks(change.kind); });
    told.Caption = NameInFolder(PathForDisplay(path_)) + ": " + Counted(ticked, "line") +
                   " ticked, " + Counted(blocked, "problem") + ", " +
                   PlainNumberText(preview_.Count(ChangeKind::kSame)) + " with nothing to do";
  }
}

void frmexchange::show_Change() {
  changes.Row = 1;
  ShowChanges();
}

void frmexchange::changes_Change() {
  ShowWho();
}

void frmexchange::changes_Click() {
  if (changes.MouseCol == 0 && changes.MouseRow > 0) ToggleChange();
}

bool frmexchange::changes_KeyPress(unsigned char key) {
  if (key != ' ') return false;
  ToggleChange();
  return true;
}

void frmexchange::ToggleChange() {
  const auto row = static_cast<std::size_t>(changes.Row);
  if (row < 1 || row > shown_.size()) return;
  Change& change = preview_.changes[shown_[row - 1]];
  if (!CanTick(change)) return Platform().Beep();
  change.ticked = !change.ticked;
  ShowChange(changes.Row);
  ShowCounts();
}

void frmexchange::TickShown(bool on) {
  for (const std::size_t i : shown_)
    if (Change& change = preview_.changes[i]; CanTick(change)) change.ticked = on;
  for (int row = 1; row < changes.Rows(); ++row) ShowChange(row);
  ShowCounts();
}

void frmexchange::Take() {
  if (preview_.Blocked() && !leaveout.Value) {
    ShowMessage(
        "Some lines cannot be used. Say whom an unknown line is about, mend the file, or tick "
        "that they are left out.",
        BoxIcon::kExclamation);
    return SetFocus(leaveout);
  }
  const TakenChanges taken = TakeTicked(preview_);
  if (!taken.refusal.empty()) return (void)ShowMessage(taken.refusal, BoxIcon::kCritical);
  const std::string fault = KeepIdsOf(Format(), preview_);
  ClassWindow().showform3();
  ClassWindow().ShowStatus(
      Counted(taken.grades, "grade") + " and " + Counted(taken.marks, "mark") + " taken from " +
      NameInFolder(PathForDisplay(path_)) + "." +
      (fault.empty() ? "" : " Identifiers and comments are not kept: " + fault));
  Unload();
}

void frmexchange::okbt_Click() {
  if (GivesOut())
    GiveOut();
  else
    Take();
}

}  // namespace tallyroll
