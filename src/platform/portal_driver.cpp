// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal_driver.h"

#include <type_traits>

namespace tallyroll {
namespace {

const Control& BaseOf(const ControlRow& row) {
  return *std::visit([](auto* c) -> const Control* { return c; }, row.control);
}

void Raise(const std::function<void()>& event) {
  if (event) event();
}

}  // namespace

PortalDriver::PortalDriver(Portal& portal) : portal_(portal) {
  portal_.Declare(table_);
  Settle();
}

ControlRow* PortalDriver::Reach(std::string_view name, std::string_view act) {
  ControlRow* row = table_.Find(name);
  std::string why;
  if (portal_.Unloaded())
    why = "the portal is gone";
  else if (!row)
    why = "there is no such control";
  else if (!BaseOf(*row).Visible)
    why = "it is hidden";
  else if (!BaseOf(*row).Enabled)
    why = "it is disabled";
  if (why.empty()) return row;
  complaints_.push_back(std::string(act) + " " + std::string(name) + ": " + why);
  return nullptr;
}

template <typename C>
C* PortalDriver::As(std::string_view name, std::string_view act) {
  ControlRow* row = Reach(name, act);
  if (!row) return nullptr;
  if (C** control = std::get_if<C*>(&row->control)) {
    MoveFocus(*row);
    return portal_.Unloaded() ? nullptr : *control;
  }
  complaints_.push_back(std::string(act) + " " + std::string(name) +
                        ": it is another kind of control");
  return nullptr;
}

void PortalDriver::MoveFocus(const ControlRow& row) {
  if (focused_ == row.name) return;
  const std::string left = focused_;
  focused_ = row.name;
  if (ControlRow* before = table_.Find(left)) Raise(before->lost_focus);
  if (focused_ != row.name || portal_.Unloaded()) return;
  Raise(row.got_focus);
  Settle();
}

// A handler that asked for the focus gets it once it is done.
void PortalDriver::Settle() {
  const Control* wanted = portal_.TakeFocusRequest();
  if (!wanted || portal_.Unloaded()) return;
  ControlRow* row = table_.Find(*wanted);
  if (!row || row->name == focused_) return;
  const std::string left = focused_;
  focused_ = row->name;
  if (ControlRow* before = table_.Find(left)) Raise(before->lost_focus);
  Raise(row->got_focus);
  Settle();
}

void PortalDriver::Type(std::string_view box, std::string_view text) {
  TextBox* control = As<TextBox>(box, "type into");
  if (!control) {
    return;
  }
  ControlRow* row = table_.Find(box);
  if (!control->Text.empty()) {
    control->Text.clear();
    control->SelStart = control->SelLength = 0;
    Raise(row->change);
  }
  for (const char character : text) {
    const auto length = static_cast<int>(control->Text.size());
    if (control->MaxLength < 0 || (control->MaxLength > 0 && length >= control->MaxLength)) {
      complaints_.push_back("type into " + std::string(box) + ": it takes no more than " +
                            control->Text);
      break;
    }
    if (row->key_press && row->key_press(static_cast<unsigned char>(character))) continue;
    control->Text += character;
    control->SelStart = length + 1;
    Raise(row->change);
    Settle();
    if (portal_.Unloaded()) return;
  }
}

void PortalDriver::Press(std::string_view button) {
  ControlRow* row = Reach(button, "press");
  if (!row) return;
  MoveFocus(*row);
  if (portal_.Unloaded()) return;
  Raise(row->click);
  Settle();
}

void PortalDriver::DoubleClick(std::string_view control) {
  ControlRow* row = Reach(control, "double click");
  if (!row) return;
  MoveFocus(*row);
  Raise(row->dbl_click);
  Settle();
}

void PortalDriver::Tick(std::string_view box, bool on) {
  ControlRow* row = Reach(box, "tick");
  if (!row) return;
  const bool changed = std::visit(
      [&](auto* control) {
        using C = std::remove_pointer_t<decltype(control)>;
        if constexpr (std::is_same_v<C, CheckBox> || std::is_same_v<C, OptionButton>) {
          if (control->Value == on) return false;
          control->Value = on;
          return true;
        } else {
          complaints_.push_back("tick " + std::string(box) + ": it is another kind of control");
          return false;
        }
      },
      row->control);
  if (!changed) return;
  MoveFocus(*row);
  Raise(row->change);
  Raise(row->click);
  Settle();
}

void PortalDriver::Choose(std::string_view list, int index) {
  ControlRow* row = Reach(list, "choose in");
  if (!row) return;
  MoveFocus(*row);
  if (auto* box = std::get_if<ListBox*>(&row->control)) (*box)->ListIndex = index;
  if (auto* combo = std::get_if<ComboBox*>(&row->control)) {
    (*combo)->ListIndex = index;
    (*combo)->Text = (*combo)->List.at(static_cast<std::size_t>(index));
  }
  Raise(row->change);
  Raise(row->click);
  Settle();
}

void PortalDriver::PickTab(std::string_view strip, int index) {
  if (TabStrip* control = As<TabStrip>(strip, "pick a tab of")) {
    control->Selected = index;
    Raise(table_.Find(strip)->change);
    Settle();
  }
}

void PortalDriver::PickDate(std::string_view picker, double serial) {
  if (DTPicker* control = As<DTPicker>(picker, "pick a date in")) {
    control->Value = serial;
    Raise(table_.Find(picker)->change);
    Settle();
  }
}

void PortalDriver::PickCell(std::string_view grid, int row, int col) {
  if (Grid* control = As<Grid>(grid, "pick a cell of")) {
    control->Row = control->MouseRow = row;
    control->Col = control->MouseCol = col;
    Raise(table_.Find(grid)->click);
    Settle();
  }
}

void PortalDriver::PressKey(std::string_view control, Key key) {
  ControlRow* row = Reach(control, "press a key in");
  if (!row) return;
  MoveFocus(*row);
  if (row->key_down) row->key_down(key);
  Settle();
}

void PortalDriver::TypeKeys(std::string_view control, std::string_view characters) {
  for (const char character : characters) {
    ControlRow* row = Reach(control, "type keys into");
    if (!row) return;
    MoveFocus(*row);
    if (row->key_press) row->key_press(static_cast<unsigned char>(character));
    Settle();
  }
}

void PortalDriver::Focus(std::string_view control) {
  if (ControlRow* row = Reach(control, "move the focus to")) MoveFocus(*row);
}

void PortalDriver::CloseWindow() {
  portal_.QueryUnload();
  Settle();
}

std::string PortalDriver::Text(std::string_view control) const {
  const ControlRow* row = table_.Find(control);
  if (!row) return "(no control " + std::string(control) + ")";
  return std::visit(
      [](auto* c) -> std::string {
        if constexpr (requires { c->Text; })
          return c->Text;
        else if constexpr (requires { c->Caption; })
          return c->Caption;
        else
          return "";
      },
      row->control);
}

bool PortalDriver::Enabled(std::string_view control) const {
  const ControlRow* row = table_.Find(control);
  return row && BaseOf(*row).Enabled;
}

bool PortalDriver::Visible(std::string_view control) const {
  const ControlRow* row = table_.Find(control);
  return row && BaseOf(*row).Visible;
}

}  // namespace tallyroll
