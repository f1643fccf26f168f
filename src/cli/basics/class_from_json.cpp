// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/class_from_json.h"

#include <algorithm>
#include <limits>
#include <vector>

#include "base/code_page.h"
#include "base/number_text.h"
#include "cli/basics/json_values.h"
#include "store/check_class.h"
#include "store/class_defaults.h"
#include "store/fields.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

constexpr std::size_t kMostGivenItems = std::size_t{1} << 22;

constexpr const char* kTopLevelLists[] = {"Instruments", "AttendanceDays", "Summaries", "Students"};

bool Has(const Json& json, const char* field) {
  return json.contains(field);
}

void NeedObject(const Json& json, const JsonPlace& at) {
  if (!json.is_object()) at.Refuse("must be an object");
}

template <typename Record>
bool IsField(const Record& record, const std::string& key) {
  bool found = false;
  ForEachField(record, [&](const char* name, const auto&) { found = found || key == name; });
  return found;
}

void RefuseUnknown(const JsonPlace& at, const std::string& key) {
  at.Field(key.c_str()).Refuse("is an unknown field");
}

template <typename Record>
void ReadFields(const Json& json, const JsonPlace& at, Record& record) {
  ForEachField(record, [&](const char* name, auto& field) {
    const auto found = json.find(name);
    if (found != json.end()) ReadValue(*found, at.Field(name), field);
  });
}

template <typename Record>
void ReadRecord(const Json& json, const JsonPlace& at, Record& record) {
  NeedObject(json, at);
  for (const auto& [key, value] : json.items()) {
    if (!IsField(record, key)) RefuseUnknown(at, key);
  }
  ReadFields(json, at, record);
}

// The items of a top-level list; none when it is missing. Refuses more than a count can name.
const Json& TopLevelList(const Json& json, const JsonPlace& at, const char* name) {
  static const Json none = Json::array();
  const auto found = json.find(name);
  if (found == json.end()) return none;
  const JsonPlace place = at.Field(name);
  if (!found->is_array()) place.Refuse("must be an array");
  if (found->size() > std::size_t{std::numeric_limits<i16>::max()}) {
    place.Refuse("has " + ItemsText(found->size()) + ", it may have 32767");
  }
  return *found;
}

template <typename Record>
void ReadRecords(const Json& json, const JsonPlace& at, const char* name, List<Record>& records) {
  const Json& items = TopLevelList(json, at, name);
  const JsonPlace list = at.Field(name);
  ReDim(records, static_cast<int>(items.size()));
  for (std::size_t i = 1; i <= items.size(); ++i) {
    ReadRecord(items[i - 1], list.Item(i), records[i]);
  }
}

// A missing count is taken from its list. One that contradicts it is refused at once: the lists of
// new students are sized by it.
void SettleCount(const Json& json, const JsonPlace& at, const char* count_name,
                 const char* list_name, std::size_t items, i16& count) {
  if (!Has(json, count_name)) count = static_cast<i16>(items);
  if (count >= 0 && static_cast<std::size_t>(count) == items) return;
  at.Field(list_name).Refuse("has " + ItemsText(items) + ", " + count_name + " is " +
                             PlainNumberText(int{count}));
}

void ReadHeader(const Json& json, const JsonPlace& at, Class& c) {
  NeedObject(json, at);
  for (const auto& [key, value] : json.items()) {
    if (!IsField(c, key) && std::ranges::find(kTopLevelLists, key) == std::end(kTopLevelLists)) {
      RefuseUnknown(at, key);
    }
  }
  ReadFields(json, at, c);
  if (c.Magic != "ty8")
    at.Field("Magic").Refuse("must be \"ty8\": only the current format is written");
  const auto charts = static_cast<std::size_t>(UpperBound(c.ChartRows));
  if (charts > std::size_t{std::numeric_limits<i16>::max()}) {
    at.Field("ChartRows").Refuse("has " + ItemsText(charts) + ", it may have 32767");
  }
  SettleCount(json, at, "NumCharts", "ChartRows", charts, c.NumCharts);
  const auto items = [&](const char* name) { return TopLevelList(json, at, name).size(); };
  SettleCount(json, at, "NumInstruments", "Instruments", items("Instruments"), c.NumInstruments);
  SettleCount(json, at, "NumDays", "AttendanceDays", items("AttendanceDays"), c.NumDays);
  SettleCount(json, at, "NumSummaries", "Summaries", items("Summaries"), c.NumSummaries);
  SettleCount(json, at, "NumStudents", "Students", items("Students"), c.NumStudents);
}

bool HasEveryList(const Json& student) {
  bool all = true;
  for (const char* list : {"SeatRow", "SeatColumn", "SummaryAbsent", "SummaryDetail", "Marks",
                           "SummaryLate", "DailyMarks"}) {
    all = all && Has(student, list);
  }
  return all;
}

// Reads the students. One whose lists are not all given starts with those of a new student; a
// short text must not ask for gigabytes of them.
void ReadStudents(const Json& json, const JsonPlace& at, Class& c) {
  const Json& items = TopLevelList(json, at, "Students");
  const JsonPlace list = at.Field("Students");
  const std::size_t lists_of_one = static_cast<std::size_t>(c.NumInstruments) + c.NumDays +
                                   3 * std::size_t(c.NumSummaries) + 2 * std::size_t(c.NumCharts);
  std::size_t given = 0;
  for (std::size_t i = 1; i <= items.size(); ++i) {
    const JsonPlace place = list.Item(i);
    NeedObject(items[i - 1], place);
    c.NumStudents = static_cast<i16>(i);
    ReDimPreserve(c.Students, c.NumStudents);
    if (!HasEveryList(items[i - 1])) {
      given += lists_of_one;
      if (given > kMostGivenItems) place.Refuse("leaves out lists that would be too large");
      AddStudentDefaults();
      if (c.NumDays > 0) ReDim(c.Students[i].DailyMarks, c.NumDays);
    }
    ReadRecord(items[i - 1], place, c.Students[i]);
  }
}

void StartNewClass(Class& c) {
  c = Class();
  ResetClassSlot();
  SetDefaultRoundScale();
  SetDefaultLetterValues();
  c.Magic = "ty8";
}

void ReadClass(std::string_view text, Class& c) {
  const Json json = ParseJson(text);
  const JsonPlace root;
  ReadHeader(json, root, c);
  ReadRecords(json, root, "Instruments", c.Instruments);
  ReadRecords(json, root, "AttendanceDays", c.AttendanceDays);
  ReadRecords(json, root, "Summaries", c.Summaries);
  ReDim(c.Students, 0);
  ReadStudents(json, root, c);
}

}  // namespace

std::string ReadClassFromJson(std::string_view text) {
  Class& c = Current();
  StartNewClass(c);
  try {
    ReadClass(text, c);
  } catch (const JsonRefusal& refusal) {
    return refusal.Text();
  }
  const std::vector<std::string> broken = BrokenInvariants(c);
  return broken.empty() ? "" : Utf8FromCodePage(broken.front());
}

}  // namespace tallyroll
