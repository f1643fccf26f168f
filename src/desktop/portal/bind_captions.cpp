// SPDX-License-Identifier: GPL-3.0-or-later
// Labels, frames, progress bars: what is only looked at.
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>

#include "desktop/basics/text_conversion.h"
#include "desktop/portal/control_binding.h"
#include "desktop/portal/telling_label.h"
#include "desktop/portal/total_figure.h"

namespace tallyroll {
namespace {

class LabelBinding : public Binding<Label, QLabel> {
 public:
  using Binding::Binding;
  void TakeCaption() override {
    // What stands in a class file is never markup.
    widget_.setTextFormat(Qt::PlainText);
    if (control_.Caption.empty()) control_.Caption = ToTextLines(widget_.text()).value_or("");
  }

 protected:
  void ShowValue() override {
    const QString text = LinesFromText(control_.Caption);
    if (auto* total = qobject_cast<TotalFigure*>(&widget_)) return total->Show(text);
    if (widget_.text() == text) return;
    if (auto* telling = qobject_cast<TellingLabel*>(&widget_))
      telling->Tell(text);
    else
      widget_.setText(text);
  }
  bool TakesRoom() const override {
    return !control_.Caption.empty() || !widget_.property("hideWhileEmpty").toBool();
  }
};

class GroupBinding : public Binding<Frame, QGroupBox> {
 public:
  using Binding::Binding;
  void TakeCaption() override {
    if (control_.Caption.empty()) control_.Caption = ToText(widget_.title()).value_or("");
  }

 protected:
  void ShowValue() override {
    const QString text = FromText(control_.Caption);
    if (widget_.title() != text) widget_.setTitle(text);
  }
};

class ProgressBinding : public Binding<ProgressBar, QProgressBar> {
 public:
  using Binding::Binding;

 protected:
  void ShowValue() override {
    widget_.setMaximum(control_.Maximum);
    widget_.setValue(control_.Value);
  }
};

// A frame without a caption is any widget that holds others.
using PlainFrameBinding = Binding<Frame, QWidget>;

}  // namespace

BoundControl BindControl(Label& control, ControlRow& row, QObject& target, BindingOwner& owner) {
  return BindAs<LabelBinding, QLabel>(control, row, target, owner);
}

BoundControl BindControl(Frame& control, ControlRow& row, QObject& target, BindingOwner& owner) {
  if (auto group = BindAs<GroupBinding, QGroupBox>(control, row, target, owner)) return group;
  if (IsInput(target) || qobject_cast<QLabel*>(&target)) return nullptr;
  return BindAs<PlainFrameBinding, QWidget>(control, row, target, owner);
}

BoundControl BindControl(ProgressBar& control, ControlRow& row, QObject& target,
                         BindingOwner& owner) {
  return BindAs<ProgressBinding, QProgressBar>(control, row, target, owner);
}

}  // namespace tallyroll
