// SPDX-License-Identifier: GPL-3.0-or-later
// A field of several lines that lets in only what a class file can hold.
#pragma once

#include <QPlainTextEdit>

namespace tallyroll {

class CodePageTextEdit : public QPlainTextEdit {
  Q_OBJECT

 public:
  explicit CodePageTextEdit(QWidget* parent = nullptr);

  // As TextBox::MaxLength. A line end counts as two characters, as it does in the logic.
  void SetMaxLength(int length) { max_length_ = length; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  bool Admits(const QString& text);
  int Room() const;

  int max_length_ = 0;
};

}  // namespace tallyroll
