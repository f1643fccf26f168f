// SPDX-License-Identifier: GPL-3.0-or-later
#include "exchange/formats/formats.h"

#include <algorithm>
#include <array>

namespace tallyroll {
namespace {

constexpr std::array kExchangeFormats = {
    ExchangeFormatRow{ExchangeFormat::kCanvas, "canvas", "Canvas", "csv", "EX", 2, false},
    ExchangeFormatRow{ExchangeFormat::kMoodle, "moodle", "Moodle", "csv", "", 2, true},
    ExchangeFormatRow{ExchangeFormat::kSakai, "sakai", "Sakai", "csv", "", 2, true},
    ExchangeFormatRow{ExchangeFormat::kOneRoster, "oneroster", "OneRoster 1.2", "zip", "exempt", 4,
                      true},
    ExchangeFormatRow{ExchangeFormat::kEdx, "edx", "Open edX", "csv", "", 2, false},
};

}  // namespace

std::span<const ExchangeFormatRow> ExchangeFormats() {
  return kExchangeFormats;
}

const ExchangeFormatRow& RowOfFormat(ExchangeFormat format) {
  return *std::ranges::find(kExchangeFormats, format, &ExchangeFormatRow::format);
}

std::optional<ExchangeFormat> FormatOfName(std::string_view name) {
  const auto* const found = std::ranges::find(kExchangeFormats, name, &ExchangeFormatRow::name);
  return found == kExchangeFormats.end() ? std::nullopt : std::optional(found->format);
}

std::optional<ExchangeFormat> RecognisedFormat(std::string_view bytes) {
  if (LooksLikeOneRoster(bytes)) return ExchangeFormat::kOneRoster;
  const CsvSource source(bytes);
  if (!source.refusal().empty()) return std::nullopt;
  if (LooksLikeCanvas(source)) return ExchangeFormat::kCanvas;
  if (LooksLikeEdx(source)) return ExchangeFormat::kEdx;
  if (LooksLikeMoodle(source)) return ExchangeFormat::kMoodle;
  if (LooksLikeSakai(source)) return ExchangeFormat::kSakai;
  return std::nullopt;
}

ForeignTable ReadForeign(ExchangeFormat format, std::string_view bytes) {
  if (format == ExchangeFormat::kOneRoster) return ReadOneRoster(bytes);
  const CsvSource source(bytes);
  ForeignTable table;
  table.refusal = source.refusal();
  if (!table.refusal.empty()) return table;
  switch (format) {
    case ExchangeFormat::kMoodle:
      return ReadMoodle(source);
    case ExchangeFormat::kSakai:
      return ReadSakai(source);
    case ExchangeFormat::kEdx:
      return ReadEdx(source);
    default:
      return ReadCanvas(source);
  }
}

ForeignFile WriteForeign(ExchangeFormat format, const ForeignTable& table) {
  switch (format) {
    case ExchangeFormat::kMoodle:
      return {"", WriteMoodle(table)};
    case ExchangeFormat::kSakai:
      return {"", WriteSakai(table)};
    case ExchangeFormat::kEdx:
      return WriteEdx(table);
    case ExchangeFormat::kOneRoster:
      return WriteOneRoster(table);
    default:
      return {"", WriteCanvas(table)};
  }
}

}  // namespace tallyroll
