// SPDX-License-Identifier: GPL-3.0-or-later
// FoldingText: an explanation that folds to its first sentence once it was read; a click, the blank
// or Enter unfolds it and folds it again.
#pragma once

#include <QLabel>

namespace tallyroll {

class FoldingText : public QLabel {
  Q_OBJECT

 public:
  explicit FoldingText(QWidget* parent = nullptr);

  bool IsFolded() const { return folded_; }
  void SetFolded(bool folded);
  // As it was left: who has seen it once has read it. Its window asks before it takes its room.
  void FoldAsKept();
  // What stands there now.
  QString ShownText() const;

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  QString SettingsKey() const;
  QFont TextFont() const;
  int WordsWidth(int width) const;
  QRect TextRect(int width) const;

  bool folded_ = false;
};

}  // namespace tallyroll
