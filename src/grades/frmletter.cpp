// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmletter.h"

#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/class_defaults.h"
#include "store/program_state.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

constexpr int kValueColumn = 1;
constexpr int kLetters = static_cast<int>(LetterNames.size()) - 1;

// What the status word LetterValues[0] says.
const Currency kNeverSet = Currency::FromWhole(0);
const Currency kSavedForClass = Currency::FromWhole(243);
const Currency kEdited = Currency::FromWhole(297);
const Currency kSavedForAll = Currency::FromWhole(343);

std::optional<Currency> NumberIn(std::string_view text) {
  if (!WholeNumberText(text)) return std::nullopt;
  try {
    return LeadingCurrency(text);
  } catch (const RunTimeError&) {
    return std::nullopt;
  }
}

std::string LetterStringOf(const std::array<Currency, LetterNames.size()>& values) {
  std::string text;
  for (const Currency value : values) text += PlainNumberText(value) + "'";
  return text;
}

}  // namespace

frmletter::frmletter()
    : Portal("frmletter"), entry_(grdletter, kValueColumn, [this] { Edited(); }) {
  Caption = "Letter Values Portal";
  HelpContext = 350;
  header.Caption =
      "At this portal, you can set numeric values for the letter grades you enter as a mark (e.g., "
      "as a grade on a book report).";
  allclass.Caption = "&Use Modified Values For All New Classes";
  default_.Caption = "Use &Default Values";
  EXIT.Caption = "E&xit";
  cancel.Caption = "&Cancel";
}

void frmletter::Declare(ControlTable& table) {
  table.Add("header", header);
  entry_.Declare(table, "grdletter");
  table.Add("allclass", allclass).Click([this] { allclass_Click(); });
  table.Add("default", default_).Click([this] { default_Click(); });
  table.Add("EXIT", EXIT).Click([this] { EXIT_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
}

void frmletter::Load() {
  Class& c = Current();
  if (c.LetterValues[0] == kNeverSet) {
    SetDefaultLetterValues();
    default_.Enabled = false;
  }
  allclass.Value = c.LetterValues[0] == kSavedForAll;
  before_ = c.LetterValues;
  grdletter.SetSize(kLetters + 1, kValueColumn + 1);
  grdletter.FixedRows = 1;
  grdletter.FixedCols = kValueColumn;
  grdletter.SetColWidth(kValueColumn, 1440);
  grdletter.SetColAlignment(kValueColumn, ColumnAlign::kRight);
  grdletter.SetTextMatrix(0, 0, "Letter");
  grdletter.SetTextMatrix(0, kValueColumn, "Value");
  FillGrid();
  entry_.GoTo(1);
  SetFocus(grdletter);
}

void frmletter::FillGrid() {
  for (int k = 1; k <= kLetters; ++k) {
    const auto letter = static_cast<std::size_t>(k);
    grdletter.SetTextMatrix(k, 0, Trim(LetterNames[letter]));
    grdletter.SetTextMatrix(k, kValueColumn, PlainNumberText(Current().LetterValues[letter]));
  }
}

void frmletter::Edited() {
  default_.Enabled = true;
  DataChanged = true;
  Current().LetterValues[0] = kEdited;
}

void frmletter::default_Click() {
  const BoxAnswer answer =
      Ask("This will reset ALL values to the original defaults. You will lose ANY changes you have "
          "made. Continue?",
          BoxButtons::kYesNo, BoxIcon::kCritical, "Note to the Teacher.");
  if (answer != BoxAnswer::kYes) return;
  default_.Enabled = false;
  allclass.Value = false;
  DataChanged = true;
  SetDefaultLetterValues();
  FillGrid();
  entry_.GoTo(grdletter.Row);
  SetFocus(grdletter);
}

std::optional<frmletter::Values> frmletter::CheckedValues() {
  Values values{};
  for (int k = 1; k <= kLetters; ++k) {
    const auto number = NumberIn(grdletter.TextMatrix(k, kValueColumn));
    if (!number) {
      ShowMessage("The value of each letter must be a number.");
      entry_.GoTo(k);
      SetFocus(grdletter);
      return std::nullopt;
    }
    values[static_cast<std::size_t>(k)] = *number;
  }
  return values;
}

void frmletter::EXIT_Click() {
  Class& c = Current();
  if (DataChanged) {
    const auto values = CheckedValues();
    if (!values) return;
    c.LetterValues = *values;
    c.Changed = kTrue;
  }
  c.LetterValues[0] = allclass.Value ? kSavedForAll : kSavedForClass;
  Platform().WriteSetting(kApplicationKey, "startup", "LetterString",
                          allclass.Value ? LetterStringOf(c.LetterValues) : std::string());
  Unload();
}

void frmletter::cancel_Click() {
  if (DataChanged && Ask("Data has been changed. Are you sure you want to CANCEL?",
                         BoxButtons::kYesNo, BoxIcon::kQuestion, "CANCEL") != BoxAnswer::kYes)
    return;
  Current().LetterValues = before_;
  Unload();
}

}  // namespace tallyroll
