// SPDX-License-Identifier: GPL-3.0-or-later
// Text boxes, of one line and of several.
#include <QLineEdit>
#include <QTextCursor>
#include <algorithm>

#include "desktop/basics/text_conversion.h"
#include "desktop/portal/code_page_text_edit.h"
#include "desktop/portal/control_binding.h"
#include "desktop/portal/field_validator.h"

namespace tallyroll {
namespace {

struct Selection {
  int start = 0;
  int length = 0;
  friend bool operator==(const Selection&, const Selection&) = default;
};

// What the two kinds of field have in common: a text is written only when the control's differs
// from what was last shown or typed, so one that nobody edited keeps every byte.
template <typename W>
class TextBinding : public Binding<TextBox, W> {
 public:
  using Binding<TextBox, W>::Binding;

  void Read() override {
    if (edited_) {
      if (const std::optional<std::string> text = Typed()) this->control_.Text = known_ = *text;
      edited_ = false;
    }
    known_selection_ = Selected();
    this->control_.SelStart = known_selection_.start;
    this->control_.SelLength = known_selection_.length;
  }

  void ShowSelection() override {
    known_selection_ = {this->control_.SelStart, this->control_.SelLength};
    Select(known_selection_);
  }

 protected:
  virtual std::optional<std::string> Typed() const = 0;
  virtual Selection Selected() const = 0;
  virtual void Select(Selection selection) = 0;
  virtual void Write(std::string_view text) = 0;
  virtual void Limit(int max_length) = 0;

  // What the field holds, as the control will have it.
  std::string Held() const { return edited_ ? Typed().value_or(known_) : known_; }

  void UserEdited() {
    edited_ = true;
    this->UserDid({&ControlRow::change});
  }

  void ShowValue() override {
    Limit(this->control_.MaxLength);
    if (!shown_ || this->control_.Text != known_) {
      const Selection before = Selected();
      shown_ = true;
      known_ = this->control_.Text;
      Write(known_);
      Select(before);
    }
    if (Selection{this->control_.SelStart, this->control_.SelLength} != known_selection_)
      ShowSelection();
  }

 private:
  bool shown_ = false;
  bool edited_ = false;
  std::string known_;
  Selection known_selection_;
};

class LineBinding : public TextBinding<QLineEdit> {
 public:
  LineBinding(TextBox& control, ControlRow& row, QLineEdit& edit, BindingOwner& owner)
      : TextBinding(control, row, edit, owner), validator_(new FieldValidator(edit)) {
    QObject::connect(&edit, &QLineEdit::textEdited, this, [this] { UserEdited(); });
  }

 protected:
  std::optional<std::string> Typed() const override { return ToText(widget_.text()); }
  Selection Selected() const override {
    if (widget_.hasSelectedText()) return {widget_.selectionStart(), widget_.selectionLength()};
    return {widget_.cursorPosition(), 0};
  }
  void Select(Selection selection) override {
    if (selection.length > 0)
      widget_.setSelection(selection.start, selection.length);
    else
      widget_.setCursorPosition(selection.start);
  }
  void Write(std::string_view text) override {
    // What the program sets is shown whole, whatever the user could type.
    validator_->SetKnownText(FromText(text));
    widget_.setText(FromText(text));
  }
  void Limit(int max_length) override { validator_->SetMaxLength(max_length); }

 private:
  FieldValidator* validator_;  // the field's
};

// Positions of the logic count a line end by its characters in the text: two once the user typed,
// and one for the bare ends of a text from elsewhere.
class LinesBinding : public TextBinding<CodePageTextEdit> {
 public:
  LinesBinding(TextBox& control, ControlRow& row, CodePageTextEdit& edit, BindingOwner& owner)
      : TextBinding(control, row, edit, owner) {
    QObject::connect(&edit, &QPlainTextEdit::textChanged, this, [this] {
      if (!writing_) UserEdited();
    });
  }

 protected:
  std::optional<std::string> Typed() const override { return ToTextLines(widget_.toPlainText()); }
  Selection Selected() const override {
    const QTextCursor cursor = widget_.textCursor();
    const int start = InLogic(cursor.selectionStart());
    return {start, InLogic(cursor.selectionEnd()) - start};
  }
  void Select(Selection selection) override {
    QTextCursor cursor = widget_.textCursor();
    cursor.setPosition(InWidget(selection.start));
    cursor.setPosition(InWidget(selection.start + selection.length), QTextCursor::KeepAnchor);
    widget_.setTextCursor(cursor);
  }
  void Write(std::string_view text) override {
    writing_ = true;
    widget_.setPlainText(LinesFromText(text));
    writing_ = false;
  }
  void Limit(int max_length) override { widget_.SetMaxLength(max_length); }

 private:
  static std::size_t Step(std::string_view rest) { return rest.starts_with("\r\n") ? 2 : 1; }

  int InLogic(int position) const {
    const std::string text = Held();
    std::size_t place = 0;
    for (; position > 0 && place < text.size(); --position)
      place += Step(std::string_view(text).substr(place));
    return static_cast<int>(place);
  }
  int InWidget(int position) const {
    const std::string text = Held();
    const std::size_t end = std::min(static_cast<std::size_t>(std::max(position, 0)), text.size());
    int passed = 0;
    for (std::size_t place = 0; place < end; ++passed)
      place += Step(std::string_view(text).substr(place));
    return passed;
  }

  bool writing_ = false;
};

}  // namespace

BoundControl BindControl(TextBox& control, ControlRow& row, QObject& target, BindingOwner& owner) {
  if (auto lines = BindAs<LinesBinding, CodePageTextEdit>(control, row, target, owner))
    return lines;
  return BindAs<LineBinding, QLineEdit>(control, row, target, owner);
}

}  // namespace tallyroll
