// SPDX-License-Identifier: GPL-3.0-or-later
// Lets into a field of one line only what a class file can hold, and no more than it takes.
#pragma once

#include <QLineEdit>
#include <QValidator>

namespace tallyroll {

// A limit of the widget's own would empty undo and move the cursor each time it is set, and cut
// a text that is longer already. So the limit is kept here.
class FieldValidator : public QValidator {
  Q_OBJECT

 public:
  // Watches the field and stays with it.
  explicit FieldValidator(QLineEdit& field);

  // As TextBox::MaxLength.
  void SetMaxLength(int length) { max_length_ = length; }
  // The program set the text.
  void SetKnownText(const QString& text) { known_ = text; }

  State validate(QString& text, int& cursor) const override;

 private:
  QLineEdit& field_;
  int max_length_ = 0;
  QString known_;  // the text before the edit that is being judged
  mutable QString lacking_;
};

}  // namespace tallyroll
