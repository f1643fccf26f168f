// SPDX-License-Identifier: GPL-3.0-or-later
// ControlBinding: joins one declared control of a Portal to its widget.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <initializer_list>
#include <memory>
#include <string_view>

#include "platform/chart.h"
#include "platform/portal.h"
#include "platform/rich_text_box.h"

class QWidget;

namespace tallyroll {

class ControlBinding;

// What a binding tells the dialog it stands in.
class BindingOwner {
 public:
  virtual ~BindingOwner() = default;
  using Event = std::function<void()> ControlRow::*;
  // The user did something with this control; its events are raised in this order.
  virtual void UserDid(ControlBinding& binding, std::initializer_list<Event> events) = 0;
  // The same for a press that may have come by mnemonic or Enter: the field that has the focus is
  // left first, which may stop the press.
  virtual void UserPressed(ControlBinding& binding, std::initializer_list<Event> events) = 0;
  // Something was dragged here from the control of that name.
  virtual void UserDropped(ControlBinding& binding, std::string_view source) = 0;
};

class ControlBinding : public QObject {
 public:
  ControlBinding(ControlRow& row, QObject& target, BindingOwner& owner)
      : row_(row), target_(&target), owner_(owner) {}

  ControlRow& row() const { return row_; }
  // The widget; null when the control is a menu entry.
  QWidget* widget() const;

  // Writes into the widget what differs from the control, and nothing else.
  void Show();
  // Copies into the control what the user left in the widget.
  virtual void Read() {}
  // A caption that the control does not set is the form's.
  virtual void TakeCaption() {}
  // Shows the selection that the control asks for, as it gets the focus.
  virtual void ShowSelection() {}

 protected:
  virtual void ShowValue() {}
  // Whether it takes room; what shows nothing may leave its own to others.
  virtual bool TakesRoom() const { return true; }
  virtual const Control& control() const = 0;
  QObject& target() const { return *target_; }

  void UserDropped(std::string_view source) { owner_.UserDropped(*this, source); }

  void UserDid(std::initializer_list<BindingOwner::Event> events) { owner_.UserDid(*this, events); }
  void UserPressed(std::initializer_list<BindingOwner::Event> events) {
    owner_.UserPressed(*this, events);
  }

 private:
  ControlRow& row_;
  QObject* target_;
  BindingOwner& owner_;
};

// The binding of a declared control to the object of that name in the form; null when the object
// is of no kind that can show it.
std::unique_ptr<ControlBinding> Bind(ControlRow& row, QObject& target, BindingOwner& owner);

// Whether the user can do something with it, so that it must be declared.
bool IsInput(const QObject& object);

// One function a kind of control, each in the file that is named after what it binds.
using BoundControl = std::unique_ptr<ControlBinding>;
BoundControl BindControl(Label&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(TextBox&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(CommandButton&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(CheckBox&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(OptionButton&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(ListBox&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(ComboBox&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(Frame&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(Pages&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(TabStrip&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(DTPicker&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(PictureBox&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(ProgressBar&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(Grid&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(Graph&, ControlRow&, QObject&, BindingOwner&);
BoundControl BindControl(RichTextBox&, ControlRow&, QObject&, BindingOwner&);

// A binding that knows the classes of its control and its widget.
template <typename C, typename W>
class Binding : public ControlBinding {
 public:
  Binding(C& control, ControlRow& row, W& widget, BindingOwner& owner)
      : ControlBinding(row, widget, owner), control_(control), widget_(widget) {}

 protected:
  const Control& control() const override { return control_; }

  C& control_;
  W& widget_;
};

// Makes binding B when the object is of the class that it shows itself in.
template <typename B, typename W, typename C>
BoundControl BindAs(C& control, ControlRow& row, QObject& target, BindingOwner& owner) {
  auto* widget = qobject_cast<W*>(&target);
  return widget ? std::make_unique<B>(control, row, *widget, owner) : nullptr;
}

}  // namespace tallyroll
