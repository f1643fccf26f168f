// SPDX-License-Identifier: GPL-3.0-or-later
// The looks that a window can have, one after another.
#pragma once

#include <QApplication>
#include <memory>

#include "desktop/style/appearance.h"

namespace tallyroll {

struct Look {
  const char* name;
  Theme theme;
  Density density;
  // Of a desktop in high contrast: its text and its ground.
  QColor text = QColor(), ground = QColor();
};

inline const Look kLooks[] = {
    {"light", Theme::kLight, Density::kNormal},
    {"dark", Theme::kDark, Density::kNormal},
    {"compact", Theme::kLight, Density::kCompact},
    {"roomy", Theme::kLight, Density::kRoomy},
    {"contrast", Theme::kSystem, Density::kNormal, Qt::black, Qt::white},
    {"contrast-dark", Theme::kSystem, Density::kNormal, Qt::white, Qt::black}};

// The palette of a desktop in high contrast.
inline QPalette ContrastPalette(const QColor& text, const QColor& ground) {
  QPalette palette(text, ground, text, text, text, text, text, ground, ground);
  palette.setColor(QPalette::Button, ground);
  const bool dark = ground.lightnessF() < 0.5;
  palette.setColor(QPalette::Highlight, dark ? QColor(0x1AEBFF) : QColor(0x37006E));
  palette.setColor(QPalette::HighlightedText, ground);
  palette.setColor(QPalette::ToolTipBase, ground);
  palette.setColor(QPalette::ToolTipText, text);
  return palette;
}

// The program has that look for as long as this lives.
class WornLook {
 public:
  explicit WornLook(const Look& look) {
    if (look.text.isValid()) {
      QApplication::setPalette(ContrastPalette(look.text, look.ground));
      desktop_ = std::make_unique<Appearance>(*qApp);
    }
    Appearance& worn = desktop_ ? *desktop_ : *Appearance::Instance();
    worn.SetTheme(look.theme);
    worn.SetDensity(look.density);
  }
  ~WornLook() {
    desktop_.reset();
    Appearance::Instance()->SetTheme(Theme::kSystem);
    Appearance::Instance()->SetDensity(Density::kNormal);
  }
  WornLook(const WornLook&) = delete;
  WornLook& operator=(const WornLook&) = delete;

 private:
  std::unique_ptr<Appearance> desktop_;
};

}  // namespace tallyroll
