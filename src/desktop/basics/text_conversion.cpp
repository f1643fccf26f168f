// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/basics/text_conversion.h"

#include <QFile>

#include "base/code_page.h"

namespace tallyroll {
namespace {

std::array<char16_t, 256> MakeCharacters() {
  std::array<char16_t, 256> characters{};
  for (std::size_t i = 0; i < characters.size(); ++i)
    characters[i] = static_cast<char16_t>(UnicodeOf(static_cast<unsigned char>(i)));
  return characters;
}

}  // namespace

const std::array<char16_t, 256>& CodePageCharacters() {
  static const std::array<char16_t, 256> characters = MakeCharacters();
  return characters;
}

QString FromText(std::string_view text) {
  const auto& characters = CodePageCharacters();
  QString result(static_cast<qsizetype>(text.size()), Qt::Uninitialized);
  QChar* out = result.data();
  for (const char c : text) *out++ = characters[static_cast<unsigned char>(c)];
  return result;
}

std::optional<std::string> ToText(const QString& text) {
  std::string result;
  result.reserve(static_cast<std::size_t>(text.size()));
  // The code page has nothing beyond 16 bits, so half of a surrogate pair is lacking like the
  // whole.
  for (const QChar c : text) {
    const std::optional<unsigned char> byte = CodePageOf(c.unicode());
    if (!byte) return std::nullopt;
    result.push_back(static_cast<char>(*byte));
  }
  return result;
}

QString LackingCharacter(const QString& text) {
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (!CodePageOf(text[i].unicode())) return text.mid(i, text[i].isHighSurrogate() ? 2 : 1);
  }
  return {};
}

QString LinesFromText(std::string_view text) {
  QString lines = FromText(text);
  lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  return lines;
}

std::optional<std::string> ToTextLines(const QString& text) {
  QString lines = text;
  lines.replace(QLatin1Char('\n'), QLatin1String("\r\n"));
  return ToText(lines);
}

QString FromPath(std::string_view path) {
  return QFile::decodeName(QByteArray(path.data(), static_cast<qsizetype>(path.size())));
}

std::string ToPath(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

}  // namespace tallyroll
