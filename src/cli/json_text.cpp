// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/json_text.h"

#include <cmath>
#include <functional>
#include <set>
#include <vector>

#include "base/number_text.h"

namespace tallyroll {
namespace {

constexpr std::size_t kDeepest = 8;        // a class needs 4: lists of students with lists
constexpr std::size_t kMostFields = 100;   // no record has half as many
constexpr std::size_t kWidestObject = 96;  // columns of an object that stands on one line

// Follows the parser through the text, to know the path of what it sees.
class StrictWatch {
 public:
  bool operator()(int /*depth*/, Json::parse_event_t event, const Json& parsed) {
    switch (event) {
      case Json::parse_event_t::object_start:
        Open(false);
        break;
      case Json::parse_event_t::array_start:
        Open(true);
        break;
      case Json::parse_event_t::object_end:
      case Json::parse_event_t::array_end:
        open_.pop_back();
        break;
      case Json::parse_event_t::key:
        Key(parsed.get_ref<const std::string&>());
        break;
      case Json::parse_event_t::value:
        NextItem();
        break;
    }
    return true;
  }

 private:
  struct Level {
    bool is_array = false;
    std::size_t items = 0;
    std::string key;
    std::set<std::string> keys;
  };

  void NextItem() {
    if (!open_.empty() && open_.back().is_array) ++open_.back().items;
  }

  void Open(bool is_array) {
    NextItem();
    if (open_.size() == kDeepest) throw JsonRefusal{Path(), "is nested too deeply"};
    open_.push_back({});
    open_.back().is_array = is_array;
  }

  void Key(const std::string& key) {
    Level& level = open_.back();
    level.key = key;
    if (!level.keys.insert(key).second) throw JsonRefusal{Path(), "stands twice"};
    if (level.keys.size() > kMostFields) throw JsonRefusal{Path(), "is an unknown field"};
  }

  // Items of the top-level lists count from 1, those of lists in records from 0.
  std::string Path() const {
    std::string path;
    for (std::size_t i = 0; i < open_.size(); ++i) {
      const Level& level = open_[i];
      if (level.is_array) {
        const std::size_t first = i == 1 && LevelHoldsRecords(i) ? 1 : 0;
        const std::size_t index = level.items + first - (level.items == 0 ? 0 : 1);
        path += "[" + PlainNumberText(static_cast<std::int64_t>(index)) + "]";
      } else if (!level.key.empty()) {
        path += (path.empty() ? "" : ".") + level.key;
      }
    }
    return path;
  }

  bool LevelHoldsRecords(std::size_t i) const {
    const std::string& list = open_[i - 1].key;
    return list == "Instruments" || list == "AttendanceDays" || list == "Summaries" ||
           list == "Students";
  }

  std::vector<Level> open_;
};

// "line 3, column 5" out of the parser's own words, which are long and name the library.
std::string PlaceOf(std::string_view what) {
  constexpr std::string_view kBefore = "parse error at ";
  const std::size_t start = what.find(kBefore);
  if (start == std::string_view::npos) return {};
  const std::size_t from = start + kBefore.size();
  return " at " + std::string(what.substr(from, what.find(':', from) - from));
}

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
  StrictWatch watch;
  try {
    return Json::parse(text.begin(), text.end(), std::ref(watch));
  } catch (const Json::exception& e) {
    throw JsonRefusal{"", "is no valid JSON" + PlaceOf(e.what())};
  }
}

std::string JsonText(const Json& value) {
  std::string text;
  Write(value, "", text);
  return text + "\n";
}

}  // namespace tallyroll
