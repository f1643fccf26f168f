// SPDX-License-Identifier: GPL-3.0-or-later
// Labels, ticks and keys of which a form says only where they stand.
#pragma once

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

namespace tallyroll {

// A line of a class's own words, however long they are. It never widens its window, and takes no
// more than its words where the form says so; what has no room is told by a tip. One that wraps is
// a label as any other.
class ElidedLabel : public QLabel {
  Q_OBJECT

 public:
  explicit ElidedLabel(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString Words() const;
  QString Shown() const;
};

// How wide the lines of a long text may be, of whatever is written in it: the eye finds the next
// line below some 85 letters.
int ReadableLine(const QFontMetrics& metrics);

// A text that explains. Its ground is as wide as what stands above it; its lines end earlier.
class HelpText : public QLabel {
  Q_OBJECT

 public:
  explicit HelpText(QWidget* parent = nullptr);

  int heightForWidth(int width) const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int BesideWords() const;
};

// Whether a setting is on, in the words of its Portal: what is on stands out, what is off is muted.
class StateWord : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

  bool IsOn() const;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

// Says how many lines a list has. Its name is the list's with "_count" behind it, its text in the
// form the words, with %1 for the number.
class ListCount : public QLabel {
  Q_OBJECT

 public:
  using QLabel::QLabel;

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QString words_;  // empty until it was shown
};

// A box to tick whose words are a sentence. They wrap, with the box beside their first line.
class WrappingTick : public QCheckBox {
  Q_OBJECT

 public:
  explicit WrappingTick(QWidget* parent = nullptr);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  int heightForWidth(int width) const override;

 private:
  int BesideWords() const;
  QSize SizeAt(int width) const;
};

// A small button for what most press by the key that its words name.
class KeyChip : public QPushButton {
  Q_OBJECT
  Q_PROPERTY(bool chip READ IsChip CONSTANT)

 public:
  using QPushButton::QPushButton;

  bool IsChip() const { return true; }
};

}  // namespace tallyroll
