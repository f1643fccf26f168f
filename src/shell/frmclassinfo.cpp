// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frmclassinfo.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "base/text.h"
#include "platform/surroundings.h"
#include "store/class_file.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

struct Edits {
  TextBox frmclassinfo::*box;
  std::string Class::*field;
};

constexpr std::array kFields = {
    Edits{&frmclassinfo::description, &Class::description},
    Edits{&frmclassinfo::school, &Class::school},
    Edits{&frmclassinfo::room, &Class::room},
    Edits{&frmclassinfo::teacher, &Class::teacher},
    Edits{&frmclassinfo::timed, &Class::timed},
    Edits{&frmclassinfo::tempstart, &Class::termstart},
    Edits{&frmclassinfo::tempend, &Class::termend},
};

}  // namespace

void FollowText(DTPicker& picker, const TextBox& text) {
  const double today = std::floor(Platform().Now());
  picker.Value = DateFromText(Trim(text.Text), Platform().ShortDateOrder()).value_or(today);
}

frmclassinfo::frmclassinfo() : Portal("frmclassinfo") {
  Caption = "Class Information Portal";
  HelpContext = 240;
  exit.Caption = "E&xit";
  cancel.Caption = "&Cancel";
}

void frmclassinfo::Declare(ControlTable& table) {
  const auto edited = [this] { Dirty = true; };
  table.Add("description", description).Change(edited);
  table.Add("school", school).Change(edited);
  table.Add("room", room).Change(edited);
  table.Add("teacher", teacher).Change(edited);
  table.Add("timed", timed).Change(edited);
  table.Add("tempstart", tempstart).Change([this] {
    Dirty = true;
    FollowText(termstart, tempstart);
  });
  table.Add("termstart", termstart).Change([this] { termstart_Change(); });
  table.Add("tempend", tempend).Change([this] {
    Dirty = true;
    FollowText(termend, tempend);
  });
  table.Add("termend", termend).Change([this] { termend_Change(); });
  table.Add("exit", exit).Click([this] { exit_Click(); });
  table.Add("cancel", cancel).Click([this] { cancel_Click(); });
}

void frmclassinfo::Load() {
  for (const Edits& e : kFields) {
    TextBox& box = this->*e.box;
    box.Text = Trim(Current().*e.field);
    box.MaxLength = kLongestText;
  }
  // A file may hold a longer one; it is shown whole.
  description.MaxLength = std::max(kLongestDescription, static_cast<int>(description.Text.size()));
  FollowText(termstart, tempstart);
  FollowText(termend, tempend);
  SetFocus(description);
}

void frmclassinfo::termstart_Change() {
  tempstart.Text = DateText(termstart.Value, Platform().ShortDateOrder());
  Dirty = true;
}

void frmclassinfo::termend_Change() {
  tempend.Text = DateText(termend.Value, Platform().ShortDateOrder());
  Dirty = true;
}

void frmclassinfo::exit_Click() {
  for (const Edits& e : kFields) Current().*e.field = Trim((this->*e.box).Text);
  Current().Changed = kTrue;
  Unload();
}

void frmclassinfo::cancel_Click() {
  if (Dirty && Ask("Data has been entered. Are you sure you want to CANCEL?", BoxButtons::kYesNo,
                   BoxIcon::kQuestion, "CANCEL") != BoxAnswer::kYes)
    return;
  Unload();
}

}  // namespace tallyroll
