// SPDX-License-Identifier: GPL-3.0-or-later
// Portal: a modal dialog as a plain struct; its screen is data.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/controls.h"
#include "platform/grid.h"

namespace tallyroll {

using ControlPointer =
    std::variant<Label*, TextBox*, CommandButton*, CheckBox*, OptionButton*, ListBox*, ComboBox*,
                 struct Frame*, Pages*, TabStrip*, DTPicker*, PictureBox*, ProgressBar*, Grid*,
                 struct Graph*, struct RichTextBox*>;

// Keys that a Portal asks for by name; characters come by KeyPress.
enum class Key {
  kUp,
  kDown,
  kLeft,
  kRight,
  kPageUp,
  kPageDown,
  kHome,
  kEnd,
  kTab,
  kBackTab,
  kEnter,
  kDelete,
  kInsert,
  kF1,
  kF2,
  kF3,
  kF4,
  kF5,
  kF6,
  kF7,
  kF8,
  kF9,
  kF10,
  kF11,
  kF12
};

// One line of a Portal's table: a control by its name, and what happens to it.
// Every event is raised by what the user did, never by what the program set.
struct ControlRow {
  std::string name;
  ControlPointer control;

  std::function<void()> change;  // text edited, item chosen, box ticked, date picked, tab picked
  std::function<void()> click;   // button pressed, list item or grid cell clicked
  std::function<void()> dbl_click;
  std::function<void()> got_focus;
  std::function<void()>
      lost_focus;  // comes before the click of a button pressed by mnemonic or Enter
  std::function<bool(Key)> key_down;  // true: the key is used up
  std::function<bool(unsigned char)>
      key_press;  // a typed character of the code page, 8 is Backspace
  // What was dragged from the control of that name is dropped here: the chosen line of a list, or
  // the current cell of a grid. On a grid, MouseRow and MouseCol are the cell under the pointer.
  std::function<void(std::string_view source)> drag_drop;

  ControlRow& Change(std::function<void()> f) {
    change = std::move(f);
    return *this;
  }
  ControlRow& Click(std::function<void()> f) {
    click = std::move(f);
    return *this;
  }
  ControlRow& DblClick(std::function<void()> f) {
    dbl_click = std::move(f);
    return *this;
  }
  ControlRow& GotFocus(std::function<void()> f) {
    got_focus = std::move(f);
    return *this;
  }
  ControlRow& LostFocus(std::function<void()> f) {
    lost_focus = std::move(f);
    return *this;
  }
  ControlRow& DragDrop(std::function<void(std::string_view)> f) {
    drag_drop = std::move(f);
    return *this;
  }
  ControlRow& KeyDown(std::function<bool(Key)> f) {
    key_down = std::move(f);
    return *this;
  }
  ControlRow& KeyPress(std::function<bool(unsigned char)> f) {
    key_press = std::move(f);
    return *this;
  }
};

// The table in which a Portal declares its controls and events by name, once.
class ControlTable {
 public:
  template <typename C>
  ControlRow& Add(std::string_view name, C& control) {
    rows_.push_back(std::make_unique<ControlRow>());
    rows_.back()->name = name;
    rows_.back()->control = &control;
    return *rows_.back();
  }
  const std::vector<std::unique_ptr<ControlRow>>& rows() const { return rows_; }
  ControlRow* Find(std::string_view name) const;
  // The row of a control by its address; null when it is not declared.
  ControlRow* Find(const Control& control) const;

 private:
  std::vector<std::unique_ptr<ControlRow>> rows_;
};

class Portal {
 public:
  explicit Portal(std::string_view name) : name_(name) {}
  virtual ~Portal() = default;
  Portal(const Portal&) = delete;
  Portal& operator=(const Portal&) = delete;

  // "frmAdd": the name of its form file and its entry in the list.
  const std::string& Name() const { return name_; }

  // Declares each control and its handlers, in tab order.
  virtual void Declare(ControlTable& table) = 0;
  // Fills the controls; runs once, before the Portal shows. May Unload() at once.
  virtual void Load() {}
  // The user closes the Portal's window, or presses Escape. Unload() lets it go.
  virtual void QueryUnload() { Unload(); }

  // Ends the Portal; ShowPortal returns when the running handler is done.
  void Unload() { unloaded_ = true; }
  bool Unloaded() const { return unloaded_; }

  // Ends the Portal and hands over to another one, which shows when this one is gone.
  void UnloadAndShow(std::string_view next) {
    next_ = next;
    Unload();
  }
  const std::string& Next() const { return next_; }

  // Asks for the focus; a screen gives it when the running handler is done, and takes the request.
  void SetFocus(const Control& control) { focus_ = &control; }
  // The same, with the text selected: the field that is to be mended.
  void SetFocusAndSelect(TextBox& box);
  const Control* TakeFocusRequest();

  std::string Caption;  // of the window
  int HelpContext = 0;  // topic shown by F1

 private:
  friend void ShowPortalBeside(Portal& portal);

  std::string name_;
  std::string next_;
  bool unloaded_ = false;
  const Control* focus_ = nullptr;
};

// The list of Portals by name, handed over by the shell.
using PortalMaker = std::unique_ptr<Portal> (*)(std::string_view name);
extern PortalMaker MakePortal;

// Creates the Portal of that name, shows it modally, and destroys it when it is left; then the same
// with the one that it hands over to.
// A Portal that is not in the list says so on the status bar and does nothing.
void ShowPortal(std::string_view name);

// Shows a loaded Portal beside the modal one in front, without waiting: both take the user's work.
// It stays its keeper's, who may show it again after the user closed it.
void ShowPortalBeside(Portal& portal);
// Takes its window away.
void HidePortalBeside(Portal& portal);

// A small Portal that another one keeps beside itself.
template <typename P>
class Beside {
 public:
  Beside() = default;
  ~Beside() { Close(); }
  Beside(const Beside&) = delete;
  Beside& operator=(const Beside&) = delete;

  // Null while it is closed.
  P* get() const { return portal_.get(); }
  // Makes and loads it without a window, afresh. It may have unloaded itself: then it is closed.
  P* Open() {
    Close();
    portal_ = std::make_unique<P>();
    portal_->Load();
    if (portal_->Unloaded()) portal_.reset();
    return get();
  }
  void Show() {
    if (portal_ || Open()) ShowPortalBeside(*portal_);
  }
  // Takes the window away; what was entered stays.
  void Hide() {
    if (portal_) HidePortalBeside(*portal_);
  }
  void Close() {
    Hide();
    portal_.reset();
  }

 private:
  std::unique_ptr<P> portal_;
};

}  // namespace tallyroll
