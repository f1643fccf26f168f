// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/cell_font.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <algorithm>
#include <cmath>

#include "desktop/basics/text_conversion.h"
#include "desktop/style/tokens.h"

namespace tallyroll {
namespace {

constexpr std::size_t kLongestFigures = 16;
constexpr double kPlannedPixels = 12;  // of a cell's font in the plan

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

// Digits and the signs around them; a letter makes it a text.
bool IsFigures(std::string_view text) {
  if (text.size() > kLongestFigures) return false;
  const auto is_sign = [](char c) { return c > 0 && c < 'A'; };
  return std::any_of(text.begin(), text.end(), IsDigit) &&
         std::all_of(text.begin(), text.end(), is_sign);
}

// The painter takes QString; this one stands on the stack for any usual cell.
class StackText {
 public:
  explicit StackText(std::string_view text) {
    if (text.size() > buffer_.size()) {
      text_ = FromText(text);
      return;
    }
    const auto& characters = CodePageCharacters();
    for (std::size_t i = 0; i < text.size(); ++i)
      buffer_[i] = QChar(characters[static_cast<unsigned char>(text[i])]);
    text_ = QString::fromRawData(buffer_.data(), static_cast<qsizetype>(text.size()));
  }
  const QString& text() const { return text_; }

 private:
  std::array<QChar, 64> buffer_;
  QString text_;
};

}  // namespace

CellFont::CellFont(const QFont& font) : font_(font) {
  const QFontMetricsF metrics(font);
  widths_.fill(kNotMeasured);
  ascent_ = static_cast<int>(std::lround(metrics.ascent()));
  height_ = static_cast<int>(std::lround(metrics.height()));
}

float CellFont::WidthOf(unsigned char character) const {
  float& width = widths_[character];
  if (width == kNotMeasured) {
    const QChar shown(CodePageCharacters()[character]);
    width = static_cast<float>(QFontMetricsF(font_).horizontalAdvance(shown));
  }
  return width;
}

float CellFont::DigitWidth() const {
  if (digit_width_ != kNotMeasured) return digit_width_;
  float narrowest = WidthOf(static_cast<unsigned char>('0'));
  digit_width_ = narrowest;
  for (unsigned char digit = '1'; digit <= '9'; ++digit) {
    digit_width_ = std::max(digit_width_, WidthOf(digit));
    narrowest = std::min(narrowest, WidthOf(digit));
  }
  own_digits_ = narrowest < digit_width_;
  return digit_width_;
}

int CellFont::WidthOf(std::string_view text) const {
  const bool figures = IsFigures(text);
  float width = 0;
  for (const char c : text)
    width += figures && IsDigit(c) ? DigitWidth() : WidthOf(static_cast<unsigned char>(c));
  return static_cast<int>(std::ceil(width));
}

QString CellFont::Elided(std::string_view text, int width) const {
  return QFontMetrics(font_).elidedText(FromText(text), Qt::ElideRight, width);
}

// Nothing to set right where all digits are equally wide, or where the font lacks one of them.
bool CellFont::HasOwnDigits() const {
  DigitWidth();
  if (!own_digits_) return false;
  if (!raw_.isValid()) {
    raw_ = QRawFont::fromFont(font_);
    for (std::size_t c = ' '; c < glyphs_.size(); ++c) {
      const QList<quint32> glyphs = raw_.glyphIndexesForString(QChar(static_cast<char16_t>(c)));
      glyphs_[c] = glyphs.isEmpty() ? 0 : glyphs.front();
    }
  }
  return std::all_of(glyphs_.begin() + ' ', glyphs_.begin() + 'A',
                     [](quint32 g) { return g != 0; });
}

void CellFont::DrawFigures(QPainter& painter, const QPointF& at, std::string_view text) const {
  std::array<quint32, kLongestFigures> glyphs{};
  std::array<QPointF, kLongestFigures> places;
  double x = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto character = static_cast<unsigned char>(text[i]);
    const double own = WidthOf(character);
    const double given = IsDigit(text[i]) ? DigitWidth() : own;
    glyphs[i] = glyphs_[character];
    places[i] = QPointF(x + (given - own) / 2, 0);
    x += given;
  }
  QGlyphRun run;
  run.setRawFont(raw_);
  run.setRawData(glyphs.data(), places.data(), static_cast<int>(text.size()));
  painter.drawGlyphRun(at, run);
}

void CellFont::Draw(QPainter& painter, const QPointF& at, std::string_view text) const {
  if (IsFigures(text) && HasOwnDigits()) return DrawFigures(painter, at, text);
  painter.setFont(font_);
  painter.drawText(at, StackText(text).text());
}

GridFonts::GridFonts(const QFont& usual, double zoom) {
  const auto of = [&](TextUse use) {
    QFont font = FontFor(usual, use);
    if (font.pointSizeF() > 0) font.setPointSizeF(font.pointSizeF() * zoom);
    return font;
  };
  const auto strong = [](QFont font) {
    font.setWeight(QFont::DemiBold);
    return font;
  };
  plain = CellFont(of(TextUse::kCell));
  bold = CellFont(strong(of(TextUse::kCell)));
  small = CellFont(of(TextUse::kSmall));
  chip = CellFont(of(TextUse::kChip));
  const QFontInfo info(plain.font());
  points = info.pointSizeF();
  unit = info.pixelSize() / kPlannedPixels;
}

}  // namespace tallyroll
