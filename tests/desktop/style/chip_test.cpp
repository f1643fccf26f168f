// SPDX-License-Identifier: GPL-3.0-or-later
// Small buttons for what most press by its key, and words in the middle of their button.
#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QImage>
#include <QPushButton>

#include "desktop/portal/form_labels.h"
#include "desktop/style/program_style.h"
#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

class Chip : public testing::Test {
 protected:
  template <typename B>
  B& Button(const QString& text) {
    auto* button = new B(text, &window_);
    button->setStyle(&style_);
    return *button;
  }

 private:
  ProgramStyle style_;
  QWidget window_;
};

TEST_F(Chip, IsSmallerThanAButtonAndHoldsItsWordsWhole) {
  const QString words = QStringLiteral("Paste Marks [Ctrl+V]");
  const auto& usual = Button<QPushButton>(words);
  const auto& chip = Button<KeyChip>(words);
  EXPECT_LT(chip.sizeHint().width(), usual.sizeHint().width());
  EXPECT_LT(chip.sizeHint().height(), usual.sizeHint().height());
  const QFontMetrics small(FontFor(chip.font(), TextUse::kSmall));
  EXPECT_GT(chip.sizeHint().width(), small.horizontalAdvance(words));
  EXPECT_GE(chip.sizeHint().height(), small.height());
}

TEST_F(Chip, BlanksBeforeAWordDoNotPushItOutOfTheMiddle) {
  auto& plain = Button<QPushButton>(QStringLiteral("ABS [F6]"));
  auto& blank = Button<QPushButton>(QStringLiteral(" ABS [F6]"));
  for (QPushButton* each : {&plain, &blank}) each->resize(120, 30);
  EXPECT_EQ(plain.grab().toImage(), blank.grab().toImage());
}

}  // namespace
}  // namespace tallyroll
