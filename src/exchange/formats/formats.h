// SPDX-License-Identifier: GPL-3.0-or-later
// The formats of other school systems: one list, each with a reader and a writer.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/formats/csv_source.h"
#include "exchange/formats/foreign_table.h"

namespace tallyroll {

enum class ExchangeFormat { kCanvas, kMoodle, kSakai, kOneRoster, kEdx };

// How a special mark of a class goes out.
enum class SignOut {
  kOwn,      // by the other system's own sign
  kNothing,  // as an empty cell
  kZero,
};

struct ExchangeFormatRow {
  ExchangeFormat format;
  std::string_view name;       // "canvas", on the command line
  std::string_view caption;    // "Canvas"
  std::string_view extension;  // of a file, without the point
  std::string_view excused;    // its own sign for an excused mark; empty where it has none
  int most_decimals;           // of a mark
  bool comments;               // a mark may have a comment
};

std::span<const ExchangeFormatRow> ExchangeFormats();
const ExchangeFormatRow& RowOfFormat(ExchangeFormat format);
std::optional<ExchangeFormat> FormatOfName(std::string_view name);

// By the head of the file; nothing when it is none of them.
std::optional<ExchangeFormat> RecognisedFormat(std::string_view bytes);
ForeignTable ReadForeign(ExchangeFormat format, std::string_view bytes);

// A file for the other system. Why not, as the end of a sentence, when there is none.
struct ForeignFile {
  std::string refusal;
  std::string bytes;
};
ForeignFile WriteForeign(ExchangeFormat format, const ForeignTable& table);

// Each format's own: by its titles, in and out.
bool LooksLikeCanvas(const CsvSource& source);
bool LooksLikeMoodle(const CsvSource& source);
bool LooksLikeSakai(const CsvSource& source);
bool LooksLikeEdx(const CsvSource& source);
bool LooksLikeOneRoster(std::string_view bytes);
ForeignTable ReadCanvas(const CsvSource& source);
ForeignTable ReadMoodle(const CsvSource& source);
ForeignTable ReadSakai(const CsvSource& source);
ForeignTable ReadEdx(const CsvSource& source);
ForeignTable ReadOneRoster(std::string_view bytes);
std::string WriteCanvas(const ForeignTable& table);
std::string WriteMoodle(const ForeignTable& table);
std::string WriteSakai(const ForeignTable& table);
ForeignFile WriteEdx(const ForeignTable& table);
ForeignFile WriteOneRoster(const ForeignTable& table);

// Titles that Canvas takes for a total and drops, and that it reads as an identifier.
bool IsCanvasTotal(std::string_view title);
bool EndsAsCanvasKey(std::string_view title);

}  // namespace tallyroll
