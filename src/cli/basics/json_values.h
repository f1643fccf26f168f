// SPDX-License-Identifier: GPL-3.0-or-later
// Single values of a class from JSON, each refused by its path when it does not fit.
#pragma once

#include <string>

#include "cli/basics/json_text.h"
#include "store/records.h"

namespace tallyroll {

// Where in the JSON a value stands: a chain of places on the stack, made text only for a refusal.
struct JsonPlace {
  const JsonPlace* parent = nullptr;
  const char* field = nullptr;  // a field's name, or else
  std::size_t index = 0;        // an item's number

  JsonPlace Field(const char* name) const { return {this, name, 0}; }
  JsonPlace Item(std::size_t number) const { return {this, nullptr, number}; }
  std::string Path() const;
  [[noreturn]] void Refuse(std::string reason) const;
};

// "3 items", and "1 items" as everywhere a list is checked.
std::string ItemsText(std::size_t count);

void ReadValue(const Json& json, const JsonPlace& at, i16& value);
void ReadValue(const Json& json, const JsonPlace& at, double& value);
void ReadValue(const Json& json, const JsonPlace& at, float& value);
void ReadValue(const Json& json, const JsonPlace& at, Currency& value);
void ReadValue(const Json& json, const JsonPlace& at, Bytes8& value);
void ReadValue(const Json& json, const JsonPlace& at, std::string& value);
void ReadValue(const Json& json, const JsonPlace& at, ShortText& value);
// A text of exactly `length` characters: fixed strings are written with their padding.
std::string ReadFixedText(const Json& json, const JsonPlace& at, std::size_t length);

template <std::size_t N>
void ReadValue(const Json& json, const JsonPlace& at, FixedText<N>& value) {
  value = FixedText<N>(ReadFixedText(json, at, N));
}

template <typename T, std::size_t N>
void ReadValue(const Json& json, const JsonPlace& at, std::array<T, N>& items) {
  if (!json.is_array()) at.Refuse("must be an array");
  if (json.size() != N)
    at.Refuse("has " + ItemsText(json.size()) + ", it must have " + ItemsText(N));
  for (std::size_t i = 0; i < N; ++i) ReadValue(json[i], at.Item(i), items[i]);
}

template <typename T>
void ReadValue(const Json& json, const JsonPlace& at, List<T>& list) {
  list.clear();
  if (json.is_null()) return;
  if (!json.is_array()) at.Refuse("must be an array or null");
  if (json.empty()) at.Refuse("lacks its element 0 (null is a list never dimensioned)");
  list.resize(json.size());
  for (std::size_t i = 0; i < json.size(); ++i) ReadValue(json[i], at.Item(i), list[i]);
}

}  // namespace tallyroll
