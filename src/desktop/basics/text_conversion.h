// SPDX-License-Identifier: GPL-3.0-or-later
// The text of the logic (bytes of code page 1252) to the text of widgets and back.
#pragma once

#include <QString>
#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tallyroll {

// The character of each byte, for painters that convert without allocating.
const std::array<char16_t, 256>& CodePageCharacters();

QString FromText(std::string_view text);
// Nothing when a character is lacking in the code page.
std::optional<std::string> ToText(const QString& text);
// The first character that the code page lacks; empty when there is none.
QString LackingCharacter(const QString& text);

// A text of several lines: the logic ends a line with CR LF, widgets with LF.
QString LinesFromText(std::string_view text);
std::optional<std::string> ToTextLines(const QString& text);

// A path: bytes of the file system in the logic.
QString FromPath(std::string_view path);
std::string ToPath(const QString& path);

}  // namespace tallyroll
