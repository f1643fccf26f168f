// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/portal/code_key.h"

#include <QPainter>
#include <array>

#include "desktop/grid/cell_font.h"
#include "desktop/grid/grid_colors.h"

namespace tallyroll {
namespace {

struct CodeWord {
  const char* code;
  const char* word;
  CellMark mark;
};

constexpr std::array kCodeWords = {
    CodeWord{"A", "Absent", CellMark::kAlarm}, CodeWord{"C", "Cut", CellMark::kAlarm},
    CodeWord{"E", "Excused", CellMark::kSoft}, CodeWord{"S", "Special", CellMark::kSoft},
    CodeWord{"N", "Note", CellMark::kSoft},    CodeWord{"L", "Late", CellMark::kWarning}};

constexpr double kChipSide = 8;  // beside the letter, together
constexpr double kToWord = 5;    // from a chip
constexpr double kBetweenCodes = 12;

// Where each code begins, and behind the last the whole width.
std::array<int, kCodeWords.size() + 1> PlacesOf(const GridFonts& fonts) {
  std::array<int, kCodeWords.size() + 1> places{};
  for (std::size_t i = 0; i < kCodeWords.size(); ++i) {
    const int chip = fonts.chip.WidthOf("M") + fonts.Px(kChipSide);
    places[i + 1] = places[i] + chip + fonts.Px(kToWord) + fonts.small.WidthOf(kCodeWords[i].word) +
                    fonts.Px(kBetweenCodes);
  }
  return places;
}

}  // namespace

CodeKey::CodeKey(QWidget* parent) : QWidget(parent), SpokenAs(QAccessible::Graphic) {
  // It takes what its row leaves free, and stands at the end of it.
  setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
  QStringList words;
  for (const CodeWord& each : kCodeWords)
    words << QStringLiteral("%1 %2").arg(QLatin1String(each.code), QLatin1String(each.word));
  setAccessibleName(words.join(QLatin1String(", ")));
}

QSize CodeKey::sizeHint() const {
  const GridFonts fonts(font());
  return {PlacesOf(fonts).back() - fonts.Px(kBetweenCodes), fonts.chip.Height() + 4};
}

void CodeKey::paintEvent(QPaintEvent*) {
  const GridFonts fonts(font());
  const GridColors colors(palette());
  const auto places = PlacesOf(fonts);
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const int side = fonts.chip.WidthOf("M") + fonts.Px(kChipSide);
  const int left = width() - sizeHint().width();
  const int baseline = (height() - fonts.chip.Height()) / 2 + fonts.chip.Ascent();
  for (std::size_t i = 0; i < kCodeWords.size(); ++i) {
    const ChipLook look = colors.ChipOf(kCodeWords[i].mark);
    const QRect chip(left + places[i], 1, side, height() - 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.ground);
    painter.drawRoundedRect(chip, fonts.Px(4), fonts.Px(4));
    painter.setFont(fonts.chip.font());
    painter.setPen(look.text);
    painter.drawText(chip, Qt::AlignCenter, QLatin1String(kCodeWords[i].code));
    painter.setFont(fonts.small.font());
    painter.setPen(colors.tokens().muted);
    painter.drawText(chip.right() + fonts.Px(kToWord), baseline, QLatin1String(kCodeWords[i].word));
  }
}

}  // namespace tallyroll
