// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/check_class.h"

#include "base/number_text.h"
#include "store/class_format.h"
#include "store/fields.h"

namespace tallyroll {
namespace {

constexpr i16 kMostSummaries = 20;

std::string Text(std::size_t number) {
  return PlainNumberText(static_cast<std::int64_t>(number));
}

std::string Indexed(const std::string& name, std::size_t index) {
  return name + "[" + Text(index) + "]";
}

class Checker {
 public:
  explicit Checker(const Class& c) : c_(c) {}

  std::vector<std::string> Run() {
    CheckHeader();
    CheckRecords("Instruments", c_.Instruments, c_.NumInstruments, "NumInstruments");
    CheckRecords("AttendanceDays", c_.AttendanceDays, c_.NumDays, "NumDays");
    CheckRecords("Summaries", c_.Summaries, c_.NumSummaries, "NumSummaries");
    CheckRecords("Students", c_.Students, c_.NumStudents, "NumStudents");
    for (std::size_t i = 1; i < c_.Students.size(); ++i) CheckStudentLists(i);
    return std::move(lines_);
  }

 private:
  void Say(const std::string& line) { lines_.push_back(line); }

  void CheckHeader() {
    if (c_.Magic != "ty8" && c_.Magic != "ty7" && c_.Magic != "ty5") {
      Say("Magic is \"" + std::string(c_.Magic.view()) + "\", known are ty8, ty7 and ty5");
    }
    if (c_.NumCharts < 0) Say("NumCharts is " + PlainNumberText(c_.NumCharts));
    if (c_.NumSummaries > kMostSummaries) {
      Say("NumSummaries is " + PlainNumberText(c_.NumSummaries) + ", at most " +
          PlainNumberText(kMostSummaries) + " are allowed");
    }
    CheckList("ChartRows", c_.ChartRows, c_.NumCharts, "NumCharts");
    CheckList("ChartColumns", c_.ChartColumns, c_.NumCharts, "NumCharts");
    CheckTexts("", c_);
  }

  // A list of records: its length, and the texts of each record.
  template <typename Record>
  void CheckRecords(const char* name, const List<Record>& list, i16 count, const char* count_name) {
    if (count < 0) {
      std::string line(count_name);
      line += " is ";
      Say(line += PlainNumberText(count));
    }
    CheckList(name, list, count, count_name);
    for (std::size_t i = 1; i < list.size(); ++i) {
      std::string at = Indexed(name, i);
      at += '.';
      CheckTexts(at, list[i]);
    }
  }

  void CheckStudentLists(std::size_t index) {
    const Student& s = c_.Students[index];
    const std::string at = Indexed("Students", index) + ".";
    CheckList(at + "Marks", s.Marks, c_.NumInstruments, "NumInstruments");
    CheckSummaries(at + "SummaryAbsent", s.SummaryAbsent);
    CheckSummaries(at + "SummaryDetail", s.SummaryDetail);
    CheckSummaries(at + "SummaryLate", s.SummaryLate);
    if (!s.DailyMarks.empty()) CheckList(at + "DailyMarks", s.DailyMarks, c_.NumDays, "NumDays");
    CheckSeats(at + "SeatRow", s.SeatRow);
    CheckSeats(at + "SeatColumn", s.SeatColumn);
  }

  // Deleting a summary leaves its place at the end, where the next one will stand.
  template <typename T>
  void CheckSummaries(const std::string& path, const List<T>& list) {
    if (UpperBound(list) < c_.NumSummaries) CheckList(path, list, c_.NumSummaries, "NumSummaries");
  }

  // The Add Student Portal makes lists of one seat even while there is no chart.
  void CheckSeats(const std::string& path, const List<i16>& seats) {
    if (c_.NumCharts == 0 && UpperBound(seats) == 1) return;
    CheckList(path, seats, c_.NumCharts, "NumCharts");
  }

  template <typename T>
  void CheckList(const std::string& path, const List<T>& list, i16 count, const char* count_name) {
    if (UpperBound(list) == count || count < 0) return;
    Say(path + " has " + PlainNumberText(UpperBound(list)) + " items, " + count_name + " is " +
        PlainNumberText(count));
  }

  template <typename Record>
  void CheckTexts(const std::string& at, const Record& record) {
    ForEachField(record, [&](const char* name, const auto& field) {
      CheckLength([&] { return at + name; }, field);
    });
  }

  // The path is a function, since it is needed once in a thousand times.
  template <typename Path, typename T>
  void CheckLength(const Path& /*path*/, const T& /*has no text*/) {}
  template <typename Path>
  void CheckLength(const Path& path, const std::string& text) {
    if (text.size() <= kLongestText) return;
    Say(path() + " has " + Text(text.size()) + " characters, at most " + Text(kLongestText) +
        " fit into a class file");
  }
  template <typename Path>
  void CheckLength(const Path& path, const ShortText& text) {
    if (text.size() > kLongestText) CheckLength(path, text.str());
  }
  template <typename Path, typename T, std::size_t N>
  void CheckLength(const Path& path, const std::array<T, N>& items) {
    CheckItems(path, items);
  }
  template <typename Path, typename T>
  void CheckLength(const Path& path, const List<T>& items) {
    CheckItems(path, items);
  }
  template <typename Path, typename Items>
  void CheckItems(const Path& path, const Items& items) {
    for (std::size_t i = 0; i < items.size(); ++i) {
      CheckLength([&] { return Indexed(path(), i); }, items[i]);
    }
  }

  const Class& c_;
  std::vector<std::string> lines_;
};

}  // namespace

std::vector<std::string> BrokenInvariants(const Class& c) {
  return Checker(c).Run();
}

}  // namespace tallyroll
