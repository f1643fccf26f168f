// SPDX-License-Identifier: GPL-3.0-or-later
// JSON as text: read strictly, written for people to read and edit.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

namespace tallyroll {

// Fields stay in the order of the class file.
using Json = nlohmann::ordered_json;

// Why a text was refused: the path of the value at fault (`Students[3].Marks`), empty when it is
// the text as a whole, and the reason.
struct JsonRefusal {
  std::string path;
  std::string reason;

  std::string Text() const { return path.empty() ? reason : path + " " + reason; }
};

// Parses a whole text. Throws JsonRefusal for broken JSON, a key that stands twice in one object,
// and nesting or objects larger than any class needs.
Json ParseJson(std::string_view text);

// A list of plain values stands on one line, and so does a short object.
std::string JsonText(const Json& value);

}  // namespace tallyroll
