// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/class_json.h"

#include <cmath>
#include <span>

#include "base/code_page.h"
#include "base/number_text.h"
#include "cli/basics/hex_text.h"
#include "store/fields.h"

namespace tallyroll {
namespace {

Json ToJson(i16 value) {
  return value;
}
Json ToJson(std::string_view text) {
  return Utf8FromCodePage(text);
}
Json ToJson(Currency value) {
  return PlainNumberText(value);
}
Json ToJson(const Bytes8& bytes) {
  return HexText(bytes);
}

// JSON has no numbers beyond the finite ones, so their bytes stand for them.
Json ToJson(double value) {
  if (!std::isfinite(value)) return HexText(BytesOf(value));
  return value;
}

// The shortest text of a Single is shorter than that of the double of the same value.
Json ToJson(float value) {
  if (!std::isfinite(value)) return HexText(BytesOf(value));
  const double shortest = WholeNumberText(ShortestNumberText(value)).value_or(value);
  return static_cast<float>(shortest) == value && shortest != 0 ? shortest : double{value};
}

template <typename T, std::size_t N>
Json ToJson(const std::array<T, N>& items) {
  Json json = Json::array();
  for (const T& item : items) json.push_back(ToJson(item));
  return json;
}

// A list that was never dimensioned is kept apart from one without items.
template <typename T>
Json ToJson(const List<T>& list) {
  if (list.empty()) return nullptr;
  Json json = Json::array();
  for (const T& item : list) json.push_back(ToJson(item));
  return json;
}

template <typename Record>
Json RecordToJson(const Record& record) {
  Json json = Json::object();
  ForEachField(record, [&](const char* name, const auto& field) { json[name] = ToJson(field); });
  return json;
}

template <typename Record>
Json RecordsToJson(const List<Record>& records) {
  Json json = Json::array();
  for (int i = 1; i <= UpperBound(records); ++i) {
    json.push_back(RecordToJson(records[static_cast<std::size_t>(i)]));
  }
  return json;
}

}  // namespace

Json ClassToJson(const Class& c) {
  Json json = RecordToJson(c);
  json["Instruments"] = RecordsToJson(c.Instruments);
  json["AttendanceDays"] = RecordsToJson(c.AttendanceDays);
  json["Summaries"] = RecordsToJson(c.Summaries);
  json["Students"] = RecordsToJson(c.Students);
  return json;
}

void AddDerivedFields(const Class& c, Json& json) {
  json["Method"] = ToJson(c.Method);
  json["Weights"] = ToJson(c.Weights);
  json["InstrumentUse"] = ToJson(c.InstrumentUse);
  json["TypeWeights"] = ToJson(c.TypeWeights);
  json["TypePercents"] = ToJson(c.TypePercents);
  json["AverageFlag1"] = ToJson(c.AverageFlag1);
  json["AverageFlag2"] = ToJson(c.AverageFlag2);
  json["AverageFlag3"] = ToJson(c.AverageFlag3);
  json["AverageFlag4"] = ToJson(c.AverageFlag4);
}

}  // namespace tallyroll
