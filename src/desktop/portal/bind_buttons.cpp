// SPDX-License-Identifier: GPL-3.0-or-later
// Buttons, check boxes and options; each may also be a menu entry.
#include <QAbstractButton>
#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "desktop/basics/text_conversion.h"
#include "desktop/portal/control_binding.h"

namespace tallyroll {
namespace {

template <typename C, typename W>
class CaptionedBinding : public Binding<C, W> {
 public:
  using Binding<C, W>::Binding;
  void TakeCaption() override {
    if (this->control_.Caption.empty())
      this->control_.Caption = ToText(this->widget_.text()).value_or("");
  }

 protected:
  void ShowValue() override {
    const QString text = FromText(this->control_.Caption);
    if (this->widget_.text() != text) this->widget_.setText(text);
  }
};

// "1 (empty)" says nothing without the caption of its frame.
void NameWithFrame(QWidget& button, const QString& caption) {
  const auto* frame = qobject_cast<const QGroupBox*>(button.parentWidget());
  const QString words = QString(caption).remove(QLatin1Char('&'));
  if (!frame || words.isEmpty() || !words.front().isDigit()) return;
  const QString name = frame->title() + QLatin1Char(' ') + words;
  if (button.accessibleName() != name) button.setAccessibleName(name);
}

template <typename W>
class PressBinding : public CaptionedBinding<CommandButton, W> {
 public:
  PressBinding(CommandButton& control, ControlRow& row, W& widget, BindingOwner& owner)
      : CaptionedBinding<CommandButton, W>(control, row, widget, owner) {
    const auto pressed = [this] { this->UserPressed({&ControlRow::click}); };
    if constexpr (std::is_same_v<W, QAction>)
      QObject::connect(&widget, &QAction::triggered, this, pressed);
    else
      QObject::connect(&widget, &W::clicked, this, pressed);
  }

 protected:
  void ShowValue() override {
    CaptionedBinding<CommandButton, W>::ShowValue();
    if constexpr (std::is_same_v<W, QPushButton>)
      NameWithFrame(this->widget_, this->widget_.text());
  }
};

// A button of its group that is on cannot be switched off while it is exclusive.
void SetChecked(QRadioButton& button, bool on) {
  const bool exclusive = button.autoExclusive();
  QButtonGroup* group = button.group();
  if (!on && group) group->setExclusive(false);
  if (!on) button.setAutoExclusive(false);
  button.setChecked(on);
  button.setAutoExclusive(exclusive);
  if (!on && group) group->setExclusive(true);
}

void SetChecked(QCheckBox& box, bool on) {
  box.setChecked(on);
}
void SetChecked(QAction& entry, bool on) {
  entry.setChecked(on);
}
void SetChecked(QToolButton& button, bool on) {
  button.setChecked(on);
}

template <typename C, typename W>
class TickBinding : public CaptionedBinding<C, W> {
 public:
  TickBinding(C& control, ControlRow& row, W& widget, BindingOwner& owner)
      : CaptionedBinding<C, W>(control, row, widget, owner) {
    const auto ticked = [this] {
      // An option that is on already stays on: nothing happened.
      if (this->widget_.isChecked() == this->control_.Value) return;
      this->UserPressed({&ControlRow::change, &ControlRow::click});
    };
    if constexpr (std::is_same_v<W, QAction>) {
      widget.setCheckable(true);
      QObject::connect(&widget, &QAction::triggered, this, ticked);
    } else {
      QObject::connect(&widget, &W::clicked, this, ticked);
    }
  }

  void Read() override { this->control_.Value = this->widget_.isChecked(); }

 protected:
  void ShowValue() override {
    CaptionedBinding<C, W>::ShowValue();
    if (this->widget_.isChecked() != this->control_.Value)
      SetChecked(this->widget_, this->control_.Value);
  }
};

}  // namespace

BoundControl BindControl(CommandButton& control, ControlRow& row, QObject& target,
                         BindingOwner& owner) {
  if (auto entry = BindAs<PressBinding<QAction>, QAction>(control, row, target, owner))
    return entry;
  if (auto tool = BindAs<PressBinding<QToolButton>, QToolButton>(control, row, target, owner))
    return tool;
  return BindAs<PressBinding<QPushButton>, QPushButton>(control, row, target, owner);
}

BoundControl BindControl(CheckBox& control, ControlRow& row, QObject& target, BindingOwner& owner) {
  if (auto entry = BindAs<TickBinding<CheckBox, QAction>, QAction>(control, row, target, owner))
    return entry;
  if (auto tool =
          BindAs<TickBinding<CheckBox, QToolButton>, QToolButton>(control, row, target, owner))
    return tool;
  return BindAs<TickBinding<CheckBox, QCheckBox>, QCheckBox>(control, row, target, owner);
}

BoundControl BindControl(OptionButton& control, ControlRow& row, QObject& target,
                         BindingOwner& owner) {
  return BindAs<TickBinding<OptionButton, QRadioButton>, QRadioButton>(control, row, target, owner);
}

}  // namespace tallyroll
