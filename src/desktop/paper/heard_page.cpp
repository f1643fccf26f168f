// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/heard_page.h"

#include <QStringList>
#include <algorithm>

#include "base/code_page.h"

namespace tallyroll {
namespace {

// Pieces of one line may have fonts of different sizes, whose base lines differ by a hair.
constexpr double kSameLine = 60;

QString HeardText(std::string_view text) {
  return QString::fromStdString(Utf8FromCodePage(text));
}

}  // namespace

void HeardPage::DrawTextAt(double x, double y, std::string_view text, double size) {
  pieces_.push_back({x, y + TextHeight(text), HeardText(text)});
  QtPrintTarget::DrawTextAt(x, y, text, size);
}

void HeardPage::DrawLetters(double x, double base, std::u16string_view text,
                            const LetterFont& font) {
  pieces_.push_back(
      {x, base, QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()))});
  QtPrintTarget::DrawLetters(x, base, text, font);
}

// A head that runs upwards is heard where it begins.
void HeardPage::PrintUpwards(std::string_view text, double x, double y) {
  pieces_.push_back({x, y, HeardText(text)});
  QtPrintTarget::PrintUpwards(text, x, y);
}

void HeardPage::Cls() {
  pieces_.clear();
  QtPrintTarget::Cls();
}

QString HeardPage::Words() const {
  std::vector<Piece> pieces = pieces_;
  std::erase_if(pieces, [](const Piece& each) { return each.text.trimmed().isEmpty(); });
  std::stable_sort(pieces.begin(), pieces.end(),
                   [](const Piece& a, const Piece& b) { return a.base < b.base; });
  QStringList lines;
  for (auto first = pieces.begin(); first != pieces.end();) {
    const auto end = std::find_if(first, pieces.end(), [&first](const Piece& each) {
      return each.base > first->base + kSameLine;
    });
    std::stable_sort(first, end, [](const Piece& a, const Piece& b) { return a.x < b.x; });
    QStringList words;
    for (; first != end; ++first) words << first->text.simplified();
    lines << words.join(QLatin1Char(' '));
  }
  return lines.join(QLatin1Char('\n'));
}

}  // namespace tallyroll
