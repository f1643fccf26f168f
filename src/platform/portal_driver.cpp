// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/portal_driver.h"

#include <type_traits>
#include <utility>

#include "platform/chart.h"
#include "platform/rich_text_box.h"
#include "platform/rich_text_style.h"
#include "platform/surroundings.h"

namespace tallyroll {
namespace {

const Control& BaseOf(const ControlRow& row) {
  return *std::visit([](auto* c) -> const Control* { return c; }, row.control);
}

void MarkLines(ListBox& list, std::initializer_list<int> lines) {
  list.Selected.assign(list.List.size(), false);
  for (const int line : lines) list.Selected.at(static_cast<std::size_t>(line)) = true;
  if (lines.size() > 0) list.ListIndex = *(lines.end() - 1);
}

}  // namespace

PortalDriver::PortalDriver(Portal& portal) : portal_(portal) {
  portal_.Declare(table_);
  const Control* wanted = portal_.TakeFocusRequest();
  if (const ControlRow* row = wanted ? table_.Find(*wanted) : nullptr) focused_ = row->name;
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
  if (C** control = std::get_if<C*>(&row->control)) return *control;
  complaints_.push_back(std::string(act) + " " + std::string(name) +
                        ": it is another kind of control");
  return nullptr;
}

void PortalDriver::Raise(const ControlRow& row, std::initializer_list<Event> events) {
  for (const Event event : events) {
    if (portal_.Unloaded()) return;
    if (row.*event) (row.*event)();
    Settle();
  }
}

bool PortalDriver::MoveFocus(const ControlRow& row) {
  if (focused_ == row.name) return true;
  const int shown = Platform().WindowsShown();
  const ControlRow* left = table_.Find(std::exchange(focused_, row.name));
  if (left) Raise(*left, {&ControlRow::lost_focus});
  const bool stays = focused_ != row.name || portal_.Unloaded();
  const bool stopped = stays || Platform().WindowsShown() != shown;
  if (!stays) Raise(row, {&ControlRow::got_focus});
  return !stopped;
}

// A handler that asked for the focus gets it once it is done; what cannot have it does not.
void PortalDriver::Settle() {
  const Control* wanted = portal_.TakeFocusRequest();
  if (!wanted || portal_.Unloaded() || !wanted->Enabled || !wanted->Visible) return;
  if (const ControlRow* row = table_.Find(*wanted)) MoveFocus(*row);
}

void PortalDriver::Type(std::string_view box, std::string_view text) {
  TextBox* control = As<TextBox>(box, "type into");
  if (!control) return;
  const ControlRow& row = *table_.Find(box);
  MoveFocus(row);
  if (focused_ != row.name || portal_.Unloaded()) return;
  if (!control->Text.empty()) {
    control->Text.clear();
    control->SelStart = control->SelLength = 0;
    Raise(row, {&ControlRow::change});
  }
  for (const char character : text) {
    const auto length = static_cast<int>(control->Text.size());
    if (control->MaxLength < 0 || (control->MaxLength > 0 && length >= control->MaxLength)) {
      complaints_.push_back("type into " + std::string(box) + ": it takes no more than " +
                            control->Text);
      break;
    }
    if (row.key_press && row.key_press(static_cast<unsigned char>(character))) continue;
    control->Text += character;
    control->SelStart = length + 1;
    Raise(row, {&ControlRow::change});
    if (portal_.Unloaded()) return;
  }
}

void PortalDriver::Write(std::string_view rich_text, std::string_view text) {
  RichTextBox* box = As<RichTextBox>(rich_text, "write into");
  if (!box) return;
  if (box->Locked) complaints_.push_back("write into " + std::string(rich_text) + ": it is locked");
  if (box->Locked || !MoveFocus(*table_.Find(rich_text))) return;
  const unsigned revision = box->Revision;
  const auto at = static_cast<std::size_t>(box->SelStart);
  const std::u16string typed = Utf16FromCodePage(text);
  box->ReplaceSelection(typed);
  box->Revision = revision;  // the user's doing
  Restyle(box->Document, at, typed.size(), [&](TextStyle& style) { style = box->SelStyle; });
  Raise(*table_.Find(rich_text), {&ControlRow::change, &ControlRow::click});
}

void PortalDriver::SelectIn(std::string_view rich_text, int start, int length) {
  RichTextBox* box = As<RichTextBox>(rich_text, "select in");
  if (!box || !MoveFocus(*table_.Find(rich_text))) return;
  box->SelStart = start;
  box->SelLength = length;
  const auto at = static_cast<std::size_t>(start);
  box->SelStyle = StylesIn(box->Document, at, static_cast<std::size_t>(length)).front();
  box->SelAlign = AlignAt(box->Document, at);
  Raise(*table_.Find(rich_text), {&ControlRow::click});
}

void PortalDriver::Press(std::string_view button) {
  const ControlRow* row = Reach(button, "press");
  if (row && MoveFocus(*row)) Raise(*row, {&ControlRow::click});
}

void PortalDriver::DoubleClick(std::string_view control) {
  const ControlRow* row = Reach(control, "double click");
  if (row && MoveFocus(*row)) Raise(*row, {&ControlRow::click, &ControlRow::dbl_click});
}

void PortalDriver::Tick(std::string_view box, bool on) {
  const ControlRow* row = Reach(box, "tick");
  if (!row) return;
  bool* value = std::visit(
      [](auto* control) -> bool* {
        using C = std::remove_pointer_t<decltype(control)>;
        if constexpr (std::is_same_v<C, CheckBox> || std::is_same_v<C, OptionButton>)
          return &control->Value;
        else
          return nullptr;
      },
      row->control);
  if (!value) complaints_.push_back("tick " + std::string(box) + ": it is another kind of control");
  if (!value || *value == on || !MoveFocus(*row)) return;
  *value = on;
  Raise(*row, {&ControlRow::change, &ControlRow::click});
}

void PortalDriver::Choose(std::string_view list, int index) {
  const ControlRow* row = Reach(list, "choose in");
  if (!row || !MoveFocus(*row)) return;
  if (auto* box = std::get_if<ListBox*>(&row->control)) {
    const bool same = (*box)->ListIndex == index;
    (*box)->ListIndex = index;
    if ((*box)->MultiSelect) MarkLines(**box, {index});
    // A click on the line that is chosen already changes nothing.
    if (same) return Raise(*row, {&ControlRow::click});
  }
  if (auto* combo = std::get_if<ComboBox*>(&row->control)) {
    (*combo)->ListIndex = index;
    (*combo)->Text = (*combo)->List.at(static_cast<std::size_t>(index));
  }
  Raise(*row, {&ControlRow::change, &ControlRow::click});
}

void PortalDriver::Mark(std::string_view list, std::initializer_list<int> lines) {
  ListBox* control = As<ListBox>(list, "mark lines of");
  if (!control || !control->MultiSelect || !MoveFocus(*table_.Find(list))) return;
  MarkLines(*control, lines);
  Raise(*table_.Find(list), {&ControlRow::change});
}

void PortalDriver::Check(std::string_view list, int index, bool on) {
  ListBox* control = As<ListBox>(list, "tick a line of");
  if (!control || !control->Checks || !MoveFocus(*table_.Find(list))) return;
  const auto line = static_cast<std::size_t>(index);
  if (control->Checked.at(line) == on) return;
  control->Checked[line] = on;
  Raise(*table_.Find(list), {&ControlRow::change});
}

void PortalDriver::PickTab(std::string_view strip, int index) {
  TabStrip* control = As<TabStrip>(strip, "pick a tab of");
  if (!control || control->Selected == index) return;
  const ControlRow& row = *table_.Find(strip);
  if (!MoveFocus(row)) return;
  control->Selected = index;
  Raise(row, {&ControlRow::change, &ControlRow::click});
}

void PortalDriver::PickDate(std::string_view picker, double serial) {
  DTPicker* control = As<DTPicker>(picker, "pick a date in");
  if (!control || !MoveFocus(*table_.Find(picker))) return;
  if (control->MaxDate > 0 && (serial < control->MinDate || serial > control->MaxDate)) {
    complaints_.push_back("pick a date in " + std::string(picker) + ": it is out of bounds");
    return;
  }
  control->Value = serial;
  Raise(*table_.Find(picker), {&ControlRow::change});
}

void PortalDriver::PickCell(std::string_view grid, int row, int col) {
  Grid* control = As<Grid>(grid, "pick a cell of");
  if (!control) return;
  const ControlRow& events = *table_.Find(grid);
  if (!MoveFocus(events)) return;
  control->MouseRow = row;
  control->MouseCol = col;
  const bool fixed = row < control->FixedRows || col < control->FixedCols;
  if (!fixed && (control->Row != row || control->Col != col)) {
    control->Row = row;
    control->Col = col;
    Raise(events, {&ControlRow::change});
  }
  Raise(events, {&ControlRow::click});
}

void PortalDriver::Drag(std::string_view source, std::string_view target, int row, int col) {
  const ControlRow* from = Reach(source, "drag from");
  const ControlRow* onto = Reach(target, "drop on");
  if (!from || !onto || !MoveFocus(*from)) return;
  if (auto* grid = std::get_if<Grid*>(&onto->control)) {
    (*grid)->MouseRow = row;
    (*grid)->MouseCol = col;
  }
  if (onto->drag_drop) onto->drag_drop(source);
  Settle();
}

void PortalDriver::PressKey(std::string_view control, Key key) {
  const ControlRow* row = Reach(control, "press a key in");
  if (!row) return;
  MoveFocus(*row);
  if (focused_ != row->name || portal_.Unloaded()) return;
  if (row->key_down) row->key_down(key);
  Settle();
}

void PortalDriver::TypeKeys(std::string_view control, std::string_view characters) {
  for (const char character : characters) {
    const ControlRow* row = Reach(control, "type keys into");
    if (!row) return;
    MoveFocus(*row);
    if (focused_ != row->name || portal_.Unloaded()) return;
    if (row->key_press) row->key_press(static_cast<unsigned char>(character));
    Settle();
  }
}

void PortalDriver::Focus(std::string_view control) {
  if (const ControlRow* row = Reach(control, "move the focus to")) MoveFocus(*row);
}

void PortalDriver::CloseWindow() {
  if (portal_.Unloaded()) return;
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
        else if constexpr (requires { c->Document; })
          return Utf8FromUtf16(PlainText(c->Document));
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
