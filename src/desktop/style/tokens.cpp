// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/style/tokens.h"

#include <algorithm>
#include <cmath>

namespace tallyroll {
namespace {

Tokens MakeLight() {
  Tokens t;
  t.window = QColor(0xF3F5F8);
  t.surface = QColor(0xFFFFFF);
  t.raised = QColor(0xFFFFFF);
  t.header = QColor(0xEEF1F5);
  t.zebra = QColor(0xF8FAFC);
  t.total = QColor(0xF0F3F7);
  t.text = QColor(0x18212B);
  t.muted = QColor(0x556170);
  t.off = QColor(0x848D99);
  t.line = QColor(0xDCE1E8);
  t.grid_line = QColor(0xE7EBF0);
  t.strong_line = QColor(0xC3CCD6);
  t.border = QColor(0x7F8B99);
  t.accent = QColor(0x1A5F9E);
  t.accent_hover = QColor(0x154F84);
  t.accent_pressed = QColor(0x10406B);
  t.on_accent = QColor(0xFFFFFF);
  t.focus = QColor(0x1A5F9E);
  t.accent_soft = QColor(0xE3EEF8);
  t.selection = QColor(0xD3E5F6);
  t.hover = QColor(0xE6EBF1);
  t.pressed = QColor(0xD8DFE8);
  t.danger = QColor(0xB3261E);
  t.danger_soft = QColor(0xFCEBE9);
  t.warning = QColor(0x7F5300);
  t.warning_soft = QColor(0xFDF1D3);
  t.success = QColor(0x1B7040);
  t.success_soft = QColor(0xE2F3E8);
  t.tooltip = QColor(0x25303C);
  t.on_tooltip = QColor(0xF4F6F8);
  t.desk = QColor(0xD5DCE4);
  return t;
}

Tokens MakeDark() {
  Tokens t;
  t.dark = true;
  t.window = QColor(0x1F242A);
  t.surface = QColor(0x171B20);
  t.raised = QColor(0x2A3138);
  t.header = QColor(0x242A31);
  t.zebra = QColor(0x1A1F25);
  t.total = QColor(0x20262D);
  t.text = QColor(0xE6EAEF);
  t.muted = QColor(0xA5B0BD);
  t.off = QColor(0x7D8691);
  t.line = QColor(0x363F49);
  t.grid_line = QColor(0x29303A);
  t.strong_line = QColor(0x465261);
  t.border = QColor(0x7A8694);
  t.accent = QColor(0x2C70B3);
  t.accent_hover = QColor(0x3579BD);
  t.accent_pressed = QColor(0x245D96);
  t.on_accent = QColor(0xFFFFFF);
  t.focus = QColor(0x82BDF3);
  t.accent_soft = QColor(0x20364D);
  t.selection = QColor(0x214465);
  t.hover = QColor(0x2C343D);
  t.pressed = QColor(0x37414C);
  t.danger = QColor(0xFF9A8F);
  t.danger_soft = QColor(0x3D2324);
  t.warning = QColor(0xEEC25E);
  t.warning_soft = QColor(0x372D17);
  t.success = QColor(0x7FD3A0);
  t.success_soft = QColor(0x1B3327);
  t.tooltip = QColor(0x39424D);
  t.on_tooltip = QColor(0xF4F6F8);
  t.desk = QColor(0x111418);
  return t;
}

double LinearChannel(double channel) {
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double LuminanceOf(const QColor& color) {
  return 0.2126 * LinearChannel(color.redF()) + 0.7152 * LinearChannel(color.greenF()) +
         0.0722 * LinearChannel(color.blueF());
}

// The wanted colour, moved towards the text until it can be told from the ground.
QColor Told(const QColor& wanted, const QColor& ground, const QColor& text, double contrast) {
  QColor told = wanted;
  for (int step = 1; step <= 10 && Contrast(told, ground) < contrast; ++step)
    told = Mix(wanted, text, step / 10.0);
  return told;
}

// The colours that say what must be acted on are the table's, brought to the desktop's contrast.
void DeriveSigns(Tokens& t, const Tokens& table) {
  constexpr double kEnough = 4.5;
  constexpr double kSoft = 0.14;
  const auto sign = [&](const QColor& wanted, QColor& word, QColor& ground) {
    ground = Mix(t.surface, wanted, kSoft);
    word = Told(wanted, ground, t.text, kEnough);
  };
  sign(table.danger, t.danger, t.danger_soft);
  sign(table.warning, t.warning, t.warning_soft);
  sign(table.success, t.success, t.success_soft);
}

QColor TextOn(const QColor& ground) {
  return Contrast(Qt::white, ground) >= Contrast(Qt::black, ground) ? QColor(Qt::white)
                                                                    : QColor(Qt::black);
}

bool StandsFor(const QPalette& palette, const Tokens& tokens) {
  return palette.color(QPalette::Active, QPalette::Light).rgb() == tokens.raised.rgb() &&
         palette.color(QPalette::Active, QPalette::Midlight).rgb() == tokens.hover.rgb() &&
         palette.color(QPalette::Active, QPalette::Mid).rgb() == tokens.line.rgb();
}

// A list's palette has a Highlight of its own, in which its lines are chosen: once a palette was
// made from such a table, the accent is told by another colour.
QColor AccentOf(const QPalette& palette, const Tokens& derived) {
  const bool made_here = StandsFor(palette, derived);
  return palette.color(QPalette::Active, made_here ? QPalette::LinkVisited : QPalette::Highlight);
}

Tokens Derived(const QPalette& palette) {
  constexpr auto kGroup = QPalette::Active;
  Tokens t;
  t.surface = palette.color(kGroup, QPalette::Base);
  t.text = palette.color(kGroup, QPalette::Text);
  t.window = palette.color(kGroup, QPalette::Window);
  t.raised = palette.color(kGroup, QPalette::Button);
  t.dark = LuminanceOf(t.surface) < LuminanceOf(t.text);
  t.header = Mix(t.surface, t.text, 0.08);
  t.zebra = Mix(t.surface, t.text, 0.03);
  t.total = Mix(t.surface, t.text, 0.07);
  t.muted = Told(Mix(t.surface, t.text, 0.7), t.header, t.text, 4.5);
  t.off = Mix(t.surface, t.text, 0.5);
  t.line = Mix(t.surface, t.text, 0.3);
  t.grid_line = Mix(t.surface, t.text, 0.2);
  t.strong_line = Mix(t.surface, t.text, 0.45);
  t.border = Told(Mix(t.surface, t.text, 0.7), t.header, t.text, 3);
  t.hover = Mix(t.surface, t.text, 0.1);
  t.pressed = Mix(t.surface, t.text, 0.18);
  t.accent = AccentOf(palette, t);
  t.on_accent = TextOn(t.accent);
  t.accent_hover = Mix(t.accent, t.on_accent == QColor(Qt::white) ? Qt::black : Qt::white, 0.15);
  t.accent_pressed = Mix(t.accent, t.on_accent == QColor(Qt::white) ? Qt::black : Qt::white, 0.3);
  t.accent_soft = Mix(t.surface, t.accent, 0.14);
  t.selection = Mix(t.surface, t.accent, 0.25);
  t.focus = Told(t.accent, t.selection, t.text, 3);
  DeriveSigns(t, t.dark ? DarkTokens() : LightTokens());
  t.tooltip = palette.color(kGroup, QPalette::ToolTipBase);
  t.on_tooltip = TextOn(t.tooltip);
  t.desk = Mix(t.window, t.dark ? Qt::black : t.text, 0.2);
  return t;
}

void SetGroup(QPalette& palette, QPalette::ColorGroup group, const Tokens& t) {
  const bool off = group == QPalette::Disabled;
  const auto set = [&](QPalette::ColorRole role, const QColor& color) {
    palette.setColor(group, role, color);
  };
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    set(role, off ? t.off : t.text);
  set(QPalette::Window, t.window);
  set(QPalette::Base, off ? t.window : t.surface);
  set(QPalette::AlternateBase, t.zebra);
  set(QPalette::Button, off ? t.window : t.raised);
  set(QPalette::BrightText, t.on_accent);
  // These three are no ground or text of ours: they tell the table by its palette.
  set(QPalette::Light, t.raised);
  set(QPalette::Midlight, t.hover);
  set(QPalette::Mid, t.line);
  set(QPalette::Dark, t.desk);
  set(QPalette::Shadow, t.strong_line);
  set(QPalette::Highlight, off ? t.pressed : t.accent);
  set(QPalette::HighlightedText, off ? t.off : t.on_accent);
  set(QPalette::Link, t.focus);
  set(QPalette::LinkVisited, t.accent);  // tells the table by its palette, as those three do
  set(QPalette::ToolTipBase, t.tooltip);
  set(QPalette::ToolTipText, t.on_tooltip);
  set(QPalette::PlaceholderText, t.muted);
}

}  // namespace

const Tokens& LightTokens() {
  static const Tokens tokens = MakeLight();
  return tokens;
}

const Tokens& DarkTokens() {
  static const Tokens tokens = MakeDark();
  return tokens;
}

Tokens TokensOf(const QPalette& palette) {
  for (const Tokens* ours : {&LightTokens(), &DarkTokens()})
    if (StandsFor(palette, *ours)) return *ours;
  return Derived(palette);
}

QPalette PaletteOf(const Tokens& tokens) {
  QPalette palette;
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
    SetGroup(palette, group, tokens);
  return palette;
}

double Contrast(const QColor& one, const QColor& other) {
  const double a = LuminanceOf(one) + 0.05;
  const double b = LuminanceOf(other) + 0.05;
  return std::max(a, b) / std::min(a, b);
}

QColor Mix(const QColor& one, const QColor& other, double share) {
  const auto mix = [share](float a, float b) { return static_cast<float>(a + (b - a) * share); };
  return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                          mix(one.blueF(), other.blueF()));
}

QFont FontFor(const QFont& usual, TextUse use) {
  struct Type {
    double factor;
    bool strong;
  };
  const auto type = [use]() -> Type {
    switch (use) {
      case TextUse::kDisplay:
        return {2.15, true};
      case TextUse::kTitle:
        return {1.30, true};
      case TextUse::kName:
        return {1.20, true};
      case TextUse::kHeading:
        return {1.00, true};
      case TextUse::kCell:
        return {0.923, false};
      case TextUse::kSmall:
        return {0.88, false};
      case TextUse::kChip:
        return {0.88, true};
      case TextUse::kText:
        break;
    }
    return {1.00, false};
  }();
  QFont font(usual);
  if (usual.pointSizeF() > 0) font.setPointSizeF(usual.pointSizeF() * type.factor);
  font.setWeight(type.strong ? QFont::DemiBold : QFont::Normal);
  return font;
}

}  // namespace tallyroll
