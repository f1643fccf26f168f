// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/json_text.h"

#include <cmath>
#include <vector>

#include "base/number_text.h"

namespace tallyroll {
namespace {

constexpr std::size_t kDeepest = 8;        // a class needs 4: lists of students with lists
constexpr std::size_t kMostFields = 100;   // no record has half as many
constexpr std::size_t kWidestObject = 96;  // columns of an object that stands on one line

// Builds the value and knows at each step where in it the parser stands. The library's own builder
// with a callback looks at every item of a list again at the end of each.
class StrictBuilder : public nlohmann::json_sax<Json> {
 public:
  StrictBuilder() : root(nullptr) {}
  StrictBuilder(const StrictBuilder&) = delete;
  StrictBuilder& operator=(const StrictBuilder&) = delete;

  Json root;

  bool null() override { return Take(nullptr); }
  bool boolean(bool value) override { return Take(value); }
  bool number_integer(std::int64_t value) override { return Take(value); }
  bool number_unsigned(std::uint64_t value) override { return Take(value); }
  bool number_float(double value, const std::string&) override { return Take(value); }
  bool string(std::string& value) override { return Take(std::move(value)); }
  bool binary(Json::binary_t&) override { return false; }  // no JSON text holds one
  bool start_object(std::size_t) override { return Open(Json::object()); }
  bool start_array(std::size_t) override { return Open(Json::array()); }
  bool end_object() override { return Close(); }
  bool end_array() override { return Close(); }

  bool key(std::string& key) override {
    Level& level = open_.back();
    level.key = std::move(key);
    if (level.value->contains(level.key)) throw JsonRefusal{Path(), "stands twice"};
    if (level.value->size() == kMostFields) throw JsonRefusal{Path(), "is an unknown field"};
    return true;
  }

  bool parse_error(std::size_t, const std::string&, const Json::exception& error) override {
    throw JsonRefusal{"", "is no valid JSON" + PlaceOf(error.what())};
  }

 private:
  struct Level {
    Json* value = nullptr;  // stays in place while it is open: nothing is added beside it
    std::string key;        // of an object
  };

  // "line 3, column 5" out of the parser's own words, which are long and name the library.
  static std::string PlaceOf(std::string_view what) {
    constexpr std::string_view kBefore = "parse error at ";
    const std::size_t start = what.find(kBefore);
    if (start == std::string_view::npos) return {};
    const std::size_t from = start + kBefore.size();
    return " at " + std::string(what.substr(from, what.find(':', from) - from));
  }

  Json& Add(Json value) {
    if (open_.empty()) return root = std::move(value);
    Json& parent = *open_.back().value;
    if (parent.is_object()) return parent[open_.back().key] = std::move(value);
    parent.push_back(std::move(value));
    return parent.back();
  }

  bool Take(Json value) {
    Add(std::move(value));
    return true;
  }

  bool Open(Json value) {
    Json& added = Add(std::move(value));
    if (open_.size() == kDeepest) throw JsonRefusal{Path(), "is nested too deeply"};
    open_.push_back({&added, {}});
    return true;
  }

  bool Close() {
    open_.pop_back();
    return true;
  }

  // Items of the top-level lists count from 1, those of lists in records from 0.
  std::string Path() const {
    std::string path;
    for (std::size_t i = 0; i < open_.size(); ++i) {
      const Level& level = open_[i];
      if (level.value->is_object()) {
        path += (path.empty() ? "" : ".") + level.key;
      } else {
        const bool of_records = i == 1 && HoldsRecords(open_[0].key);
        const std::size_t index = level.value->size() - (of_records ? 0 : 1);
        path += "[" + PlainNumberText(static_cast<std::int64_t>(index)) + "]";
      }
    }
    return path;
  }

  static bool HoldsRecords(const std::string& list) {
    return list == "Instruments" || list == "AttendanceDays" || list == "Summaries" ||
           list == "Students";
  }

  std::vector<Level> open_;
};

std::string NumberText(double value) {
  // JSON readers take "-0" for a whole number, which has no sign.
  return value == 0 && std::signbit(value) ? "-0.0" : ShortestNumberText(value);
}

std::string ScalarText(const Json& value) {
  return value.is_number_float() ? NumberText(value.get<double>()) : value.dump();
}

std::string OneLine(const Json& value) {
  if (!value.is_structured()) return ScalarText(value);
  std::string text;
  for (const auto& [key, item] : value.items()) {
    if (!text.empty()) text += ", ";
    if (value.is_object()) text += Json(key).dump() + ": ";
    text += OneLine(item);
  }
  return value.is_object() ? "{" + text + "}" : "[" + text + "]";
}

bool FitsOneLine(const Json& value, const std::string& indent) {
  if (value.is_object()) return OneLine(value).size() + indent.size() <= kWidestObject;
  for (const Json& item : value) {
    if (item.is_structured()) return false;
  }
  return true;
}

void Write(const Json& value, const std::string& indent, std::string& text) {
  if (!value.is_structured() || (!indent.empty() && FitsOneLine(value, indent)) || value.empty()) {
    text += OneLine(value);
    return;
  }
  const std::string inner = indent + "  ";
  text += value.is_object() ? "{" : "[";
  const char* separator = "\n";
  for (const auto& [key, item] : value.items()) {
    text += separator + inner;
    if (value.is_object()) text += Json(key).dump() + ": ";
    Write(item, inner, text);
    separator = ",\n";
  }
  text += "\n" + indent + (value.is_object() ? "}" : "]");
}

}  // namespace

Json ParseJson(std::string_view text) {
  StrictBuilder builder;
  Json::sax_parse(text.begin(), text.end(), &builder);
  return std::move(builder.root);
}

std::string JsonText(const Json& value) {
  std::string text;
  Write(value, "", text);
  return text + "\n";
}

}  // namespace tallyroll
