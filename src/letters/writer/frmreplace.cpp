// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/writer/frmreplace.h"

#include "platform/surroundings.h"

namespace tallyroll {
namespace {

constexpr int kReplaceTopic = 710;

}  // namespace

frmreplace::frmreplace() : Portal("frmreplace") {
  Caption = "Find and Replace Portal";
  HelpContext = kReplaceTopic;
  Check1.Caption = "&Case sensitive";
  Check2.Caption = "W&hole word only";
  FindNext.Caption = "&Find Next";
  ReplaceWord.Caption = "&Replace";
  ReplaceAll.Caption = "Replace &All";
  exit.Caption = "E&xit";
}

void frmreplace::Declare(ControlTable& table) {
  // Another search begins anew.
  const auto anew = [this] { AllowReplacing(false); };
  table.Add("Text1", Text1).Change(anew);
  table.Add("Text2", Text2);
  table.Add("Check1", Check1).Click(anew);
  table.Add("Check2", Check2).Click(anew);
  table.Add("FindNext", FindNext).Click([this] { FindNext_Click(); });
  table.Add("ReplaceWord", ReplaceWord).Click([this] { ReplaceWord_Click(); });
  table.Add("ReplaceAll", ReplaceAll).Click([this] { ReplaceAll_Click(); });
  table.Add("exit", exit).Click([this] { Unload(); });
}

void frmreplace::Load() {
  AllowReplacing(false);
  SetFocusAndSelect(Text1);
}

void frmreplace::AllowReplacing(bool on) {
  ReplaceWord.Enabled = ReplaceAll.Enabled = on;
}

TextSearch frmreplace::Search() const {
  return {.match_case = Check1.Value, .whole_word = Check2.Value};
}

bool frmreplace::IsFound() const {
  const std::u16string what = Utf16FromCodePage(Text1.Text);
  const auto at = static_cast<std::size_t>(letter->SelStart);
  return !what.empty() && static_cast<std::size_t>(letter->SelLength) == what.size() &&
         FindText(letter->Document, what, at, Search()) == at;
}

void frmreplace::FindNext_Click() {
  if (!letter) return;
  const std::u16string what = Utf16FromCodePage(Text1.Text);
  const auto from =
      static_cast<std::size_t>(letter->SelStart) + static_cast<std::size_t>(letter->SelLength);
  const std::size_t at = what.empty() ? kNoPlace : FindText(letter->Document, what, from, Search());
  AllowReplacing(at != kNoPlace);
  if (at != kNoPlace) return letter->Select(at, what.size());
  ShowMessage("String not found");
  SetFocusAndSelect(Text1);
}

// What was selected otherwise meanwhile is not what was looked for, and stays.
void frmreplace::ReplaceWord_Click() {
  if (!letter) return;
  if (IsFound()) {
    letter->ReplaceSelection(Utf16FromCodePage(Text2.Text));
    if (edited) edited();
  }
  FindNext_Click();
}

// Each search goes on behind what was put in, so that a word within its own replacement is found
// but once.
void frmreplace::ReplaceAll_Click() {
  if (!letter) return;
  const std::u16string what = Utf16FromCodePage(Text1.Text);
  const std::u16string by = Utf16FromCodePage(Text2.Text);
  std::size_t from = 0;
  bool any = false;
  while (!what.empty()) {
    const std::size_t at = FindText(letter->Document, what, from, Search());
    if (at == kNoPlace) break;
    ReplaceText(letter->Document, at, what.size(), by);
    from = at + by.size();
    any = true;
  }
  if (any) {
    letter->Select(from, 0);
    ++letter->Revision;
    if (edited) edited();
  }
  AllowReplacing(false);
  ShowMessage("          Replacing Completed");
}

}  // namespace tallyroll
