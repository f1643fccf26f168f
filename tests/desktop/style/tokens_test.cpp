// SPDX-License-Identifier: GPL-3.0-or-later
// Text can be read and controls can be told, in every table.
#include "desktop/style/tokens.h"

#include <gtest/gtest.h>

#include <QPalette>

namespace tallyroll {
namespace {

constexpr double kText = 4.5, kControl = 3;

QPalette HighContrast(const QColor& ground, const QColor& text, const QColor& highlight) {
  QPalette palette(text, ground);
  for (const auto role :
       {QPalette::Base, QPalette::Window, QPalette::Button, QPalette::ToolTipBase})
    palette.setColor(role, ground);
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
    palette.setColor(role, text);
  palette.setColor(QPalette::Highlight, highlight);
  return palette;
}

class EachTable : public testing::TestWithParam<const char*> {
 protected:
  Tokens t = [] {
    const std::string name = GetParam();
    if (name == "light") return LightTokens();
    if (name == "dark") return DarkTokens();
    if (name == "white on black")
      return TokensOf(HighContrast(Qt::black, Qt::white, QColor(0x00, 0xFF, 0xFF)));
    return TokensOf(HighContrast(Qt::white, Qt::black, QColor(0x00, 0x00, 0x90)));
  }();
};

INSTANTIATE_TEST_SUITE_P(Tables, EachTable,
                         testing::Values("light", "dark", "white on black", "black on white"));

TEST_P(EachTable, TextCanBeReadOnEveryGroundThatItStandsOn) {
  for (const QColor& ground : {t.window, t.surface, t.raised, t.header, t.zebra, t.total, t.hover,
                               t.pressed, t.selection, t.accent_soft})
    EXPECT_GE(Contrast(t.text, ground), kText) << ground.name().toStdString();
  for (const QColor& ground : {t.window, t.surface, t.raised, t.header, t.zebra, t.total})
    EXPECT_GE(Contrast(t.muted, ground), kText) << ground.name().toStdString();
}

TEST_P(EachTable, TheMainActionCanBeReadInEachState) {
  for (const QColor& ground : {t.accent, t.accent_hover, t.accent_pressed})
    EXPECT_GE(Contrast(t.on_accent, ground), 4.45) << ground.name().toStdString();
}

TEST_P(EachTable, ASignCanBeReadOnItsChipAndOnACell) {
  EXPECT_GE(Contrast(t.danger, t.danger_soft), kText);
  EXPECT_GE(Contrast(t.warning, t.warning_soft), kText);
  EXPECT_GE(Contrast(t.success, t.success_soft), kText);
  EXPECT_GE(Contrast(t.danger, t.surface), kText);
  EXPECT_GE(Contrast(t.danger, t.raised), kText);
  EXPECT_GE(Contrast(t.on_tooltip, t.tooltip), kText);
}

TEST_P(EachTable, ControlsAndTheFocusCanBeTold) {
  for (const QColor& ground : {t.window, t.surface, t.header}) {
    EXPECT_GE(Contrast(t.border, ground), kControl) << ground.name().toStdString();
    EXPECT_GE(Contrast(t.focus, ground), kControl) << ground.name().toStdString();
  }
  EXPECT_GE(Contrast(t.focus, t.selection), kControl);
  EXPECT_GE(Contrast(t.accent, t.window), kControl);
}

TEST(Tokens, ContrastIsThatOfTheTwoLuminances) {
  EXPECT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.001);
  EXPECT_NEAR(Contrast(Qt::white, Qt::white), 1, 0.001);
  // Mid grey has a luminance of 0.2159: (1 + 0.05) / (0.2159 + 0.05).
  EXPECT_NEAR(Contrast(QColor(0x80, 0x80, 0x80), Qt::white), 3.949, 0.001);
}

TEST(Tokens, APaletteGivesItsTableBack) {
  EXPECT_EQ(TokensOf(PaletteOf(LightTokens())).danger, LightTokens().danger);
  EXPECT_EQ(TokensOf(PaletteOf(DarkTokens())).danger, DarkTokens().danger);
  EXPECT_TRUE(TokensOf(PaletteOf(DarkTokens())).dark);
  // One with a selection of its own, as lists have.
  QPalette list = PaletteOf(LightTokens());
  list.setColor(QPalette::Highlight, LightTokens().selection);
  EXPECT_EQ(TokensOf(list).accent, LightTokens().accent);
}

TEST(Tokens, ADesktopsOwnPaletteStaysWhatItIs) {
  const QPalette palette = HighContrast(Qt::black, Qt::white, Qt::yellow);
  const Tokens t = TokensOf(palette);
  EXPECT_EQ(t.surface, QColor(Qt::black));
  EXPECT_EQ(t.text, QColor(Qt::white));
  EXPECT_EQ(t.accent, QColor(Qt::yellow));
  EXPECT_TRUE(t.dark);
}

TEST(Tokens, AListInHighContrastHasTheColoursOfItsWindow) {
  const Tokens t = TokensOf(HighContrast(Qt::black, Qt::white, Qt::yellow));
  QPalette list = PaletteOf(t);
  list.setColor(QPalette::Highlight, t.selection);
  list.setColor(QPalette::HighlightedText, t.text);
  EXPECT_EQ(TokensOf(list).selection.rgb(), t.selection.rgb());
  EXPECT_EQ(TokensOf(list).focus.rgb(), t.focus.rgb());
  EXPECT_EQ(TokensOf(list).accent.rgb(), t.accent.rgb());
}

TEST(Tokens, ThePaletteIsCompleteInAllThreeGroups) {
  const Tokens& t = DarkTokens();
  const QPalette palette = PaletteOf(t);
  for (const auto group : {QPalette::Active, QPalette::Inactive}) {
    EXPECT_EQ(palette.color(group, QPalette::Window), t.window);
    EXPECT_EQ(palette.color(group, QPalette::Text), t.text);
    EXPECT_EQ(palette.color(group, QPalette::AlternateBase), t.zebra);
  }
  EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Text), t.off);
  EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Base), t.window);
}

TEST(Tokens, SizesAreSharesOfTheUsualFont) {
  QFont usual;
  usual.setPointSizeF(10);
  EXPECT_NEAR(FontFor(usual, TextUse::kDisplay).pointSizeF(), 21.5, 0.01);
  EXPECT_NEAR(FontFor(usual, TextUse::kSmall).pointSizeF(), 8.8, 0.01);
  EXPECT_EQ(FontFor(usual, TextUse::kHeading).weight(), QFont::DemiBold);
}

}  // namespace
}  // namespace tallyroll
