// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/frmcategories.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "base/text.h"
#include "grades/marks.h"
#include "platform/surroundings.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr int kLongestDescription = 15;
constexpr int kLongestTypeCode = 2;
constexpr std::string_view kNoteWithPoint = "Note to the Teacher.";
constexpr std::string_view kSmallNote = "Note to the teacher";

std::string& CategoryOf(std::size_t type) {
  return Current().Categories[type - kExtraCreditType];
}

struct CodeChange {
  std::string before, after;
};

// Each grade with a code of the list, blanks behind it aside, gets the new one. A grade changes
// once: a code that is freed by one change may be given by another.
void Recode(const std::vector<CodeChange>& changes) {
  Class& c = Current();
  for (int i = 1; i <= GradeCount(c); ++i) {
    std::string& typecode = c.Instruments[static_cast<std::size_t>(i)].typecode;
    const auto change = std::ranges::find_if(changes, [&](const CodeChange& each) {
      return TrimRight(typecode) == TrimRight(each.before);
    });
    if (change != changes.end()) typecode = change->after;
  }
}

// A code of one character leaves the tilde before it among the last two: its grades keep it.
std::string_view LastTwo(std::string_view text) {
  return text.substr(text.size() < 2 ? 0 : text.size() - 2);
}

void ResetCategories() {
  std::vector<CodeChange> changes;
  for (std::size_t t = kFirstModifiableType; t <= kNoType; ++t) {
    std::string& category = CategoryOf(t);
    const std::string_view usual = DefaultTypeLabel(t);
    if (category == usual) continue;
    Current().Changed = kTrue;
    const std::string_view text = Trim(category);
    if (!text.empty()) changes.push_back({std::string(LastTwo(text)), std::string(Left(usual, 2))});
    category = usual;
  }
  Recode(changes);
}

}  // namespace

frmcategories::frmcategories() : Portal("frmcategories") {
  Caption = "Modify Grade Type Categories Portal";
  HelpContext = 340;
  olddesc.Enabled = oldcode.Enabled = false;
  catdesc.MaxLength = kLongestDescription;
  catcode.MaxLength = kLongestTypeCode;
  defaults.Caption = "&Defaults";
  another.Caption = "&Another";
  exit.Caption = "E&xit";
  cancel.Caption = "&Cancel";
}

void frmcategories::Declare(ControlTable& table) {
  table.Add("listbasic", listbasic);
  table.Add("listcat", listcat)
      .Change([this] { listcat_Change(); })
      .Click([this] { listcat_Click(); })
      .KeyDown([this](Key key) { return listcat_KeyDown(key); });
  table.Add("olddesc", olddesc);
  table.Add("oldcode", oldcode);
  table.Add("catdesc", catdesc).Change([this] { TypeInBox(); }).GotFocus([this] { EnterBox(); });
  table.Add("catcode", catcode).Change([this] { TypeInBox(); }).GotFocus([this] { EnterBox(); });
  table.Add("defaults", defaults).Click([this] { defaults_Click(); });
  table.Add("another", another).Click([this] { another_Click(); });
  table.Add("exit", exit).Click([this] { exit_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
}

void frmcategories::Load() {
  ReloadTypes();
  SetFocus(listcat);
}

void frmcategories::ReloadTypes() {
  TypeTexts labels;
  MakeTypeCodes(codes_);
  MakeTypeNames(names_);
  MakeTypeLabels(labels);
  listbasic.List.assign(labels.begin() + 1, labels.begin() + kFirstModifiableType);
  listcat.List.assign(labels.begin() + kFirstModifiableType, labels.begin() + kNoType);
}

// The lists anew, nothing chosen and nothing typed.
void frmcategories::StartOver() {
  ReloadTypes();
  for (TextBox* box : {&olddesc, &oldcode, &catdesc, &catcode}) box->Text.clear();
  Pending = false;
  listcat.ListIndex = -1;
  listcat.Enabled = true;
  SetFocus(listcat);
}

std::size_t frmcategories::Chosen() const {
  if (listcat.ListIndex < 0) return 0;
  return static_cast<std::size_t>(listcat.ListIndex) + kFirstModifiableType;
}

// The arrow keys walk through the types; Return takes the one they come to.
bool frmcategories::listcat_KeyDown(Key key) {
  const bool takes = key == Key::kEnter && Chosen() > 0;
  if (takes) SetFocus(catdesc);
  return takes;
}

void frmcategories::listcat_Change() {
  if (Chosen() == 0) return;
  olddesc.Text = Trim(names_[Chosen()]);
  oldcode.Text = Trim(codes_[Chosen()]);
}

void frmcategories::listcat_Click() {
  if (Chosen() > 0) SetFocus(catdesc);
}

void frmcategories::EnterBox() {
  if (Chosen() > 0) {
    listcat.Enabled = false;
    return;
  }
  ShowMessage("You must first select a Modifiable Grade Type Category to change.", BoxIcon::kNone,
              kSmallNote);
  catdesc.Text.clear();
  SetFocus(listcat);
}

void frmcategories::TypeInBox() {
  if (Chosen() == 0) {
    catcode.Text.clear();
    return EnterBox();
  }
  listcat.Enabled = false;
  Pending = true;
}

bool frmcategories::CodeTaken() const {
  const std::string wanted = UpperCase(Trim(catcode.Text));
  for (std::size_t k = 1; k < kNoType; ++k)
    if (k != Chosen() && UpperCase(Trim(codes_[k])) == wanted) return true;
  return false;
}

// Writes the change into the class. False: refused.
bool frmcategories::Apply() {
  const std::string_view description = Trim(catdesc.Text);
  if (description.empty() || Trim(catcode.Text).empty()) {
    ShowMessage("You must enter a description and code for the type.", BoxIcon::kNone,
                kNoteWithPoint);
    SetFocusAndSelect(description.empty() ? catdesc : catcode);
    return false;
  }
  if (CodeTaken()) {
    ShowMessage("You can't use a letter code already assigned to a another category.");
    SetFocusAndSelect(catcode);
    return false;
  }
  // A tilde parts the two where they are kept.
  if ((catdesc.Text + catcode.Text).find('~') != std::string::npos) {
    ShowMessage("You can't use the character ~ in a description or code.");
    SetFocusAndSelect(catdesc.Text.find('~') != std::string::npos ? catdesc : catcode);
    return false;
  }
  catcode.Text = UpperCase(Trim(catcode.Text));
  CategoryOf(Chosen()) = std::string(description) + "~" + catcode.Text;
  Recode({{std::string(codes_[Chosen()].view()), catcode.Text}});
  Current().Changed = kTrue;
  Pending = false;
  return true;
}

void frmcategories::another_Click() {
  if (Pending && !Apply()) return;
  StartOver();
  ShowMessage("Please select a Modifiable Grade Type Category to change.", BoxIcon::kNone,
              kSmallNote);
}

void frmcategories::exit_Click() {
  if (Pending && !Apply()) return;
  Unload();
}

void frmcategories::cancel_Click() {
  if (Pending && Ask("Data has been changed. Are you sure you want to CANCEL?", BoxButtons::kYesNo,
                     BoxIcon::kQuestion, "CANCEL") != BoxAnswer::kYes)
    return;
  Unload();
}

void frmcategories::defaults_Click() {
  const BoxAnswer answer =
      Ask("This will reset ALL values to the original defaults. You will lose ANY changes you have "
          "made. Continue?",
          BoxButtons::kYesNo, BoxIcon::kCritical, kNoteWithPoint);
  if (answer != BoxAnswer::kYes) return;
  ResetCategories();
  StartOver();
}

}  // namespace tallyroll
