// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/random_class.h"

#include <bit>
#include <type_traits>
#include <vector>

#include "store/class_format.h"
#include "store/fields.h"

namespace tallyroll {
namespace {

class Maker {
 public:
  explicit Maker(std::mt19937& random) : random_(random) {}

  // From 0 to most, both included.
  int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }
  bool OneIn(int n) { return UpTo(n - 1) == 0; }
  i16 AnyI16() { return static_cast<i16>(UpTo(65535) - 32768); }

  std::string AnyText(int longest = 20) {
    std::string text(static_cast<std::size_t>(UpTo(longest)), ' ');
    for (char& c : text) c = static_cast<char>(UpTo(255));
    return text;
  }
  std::string FieldText() {
    if (OneIn(3000)) return std::string(kLongestText, static_cast<char>(UpTo(255)));
    return OneIn(4) ? std::string() : AnyText();
  }

  void Fill(i16& v) { v = AnyI16(); }
  void Fill(float& v) { v = std::uniform_real_distribution<float>(-1e6f, 1e6f)(random_); }
  void Fill(double& v) { v = UpTo(60000); }
  void Fill(unsigned char& v) { v = static_cast<unsigned char>(UpTo(255)); }
  void Fill(Currency& v) {
    v = Currency::FromScaled(std::uniform_int_distribution<std::int64_t>()(random_) *
                             (OneIn(2) ? 1 : -1));
  }
  void Fill(std::string& v) { v = FieldText(); }
  void Fill(ShortText& v) { v = FieldText(); }
  template <std::size_t N>
  void Fill(FixedText<N>& v) {
    v = FixedText<N>(AnyText(static_cast<int>(N)));
  }
  template <typename T, std::size_t N>
  void Fill(std::array<T, N>& items) {
    for (T& item : items) Fill(item);
  }
  // A list that no count governs.
  template <typename T>
  void Fill(List<T>& list) {
    list.clear();
    if (!OneIn(3)) FillTo(list, UpTo(3));
  }
  template <typename T>
  void FillTo(List<T>& list, int n) {
    ReDim(list, n);
    for (T& item : list) Fill(item);
  }
  // A list that its count governs: of no items it may have been dimensioned or not.
  template <typename T>
  void FillCounted(List<T>& list, int n) {
    list.clear();
    if (n > 0 || OneIn(2)) FillTo(list, n);
  }

  template <typename Record>
  void FillRecords(List<Record>& list, i16& count, int most) {
    count = static_cast<i16>(UpTo(most));
    list.clear();
    if (count > 0) ReDim(list, count);
    for (std::size_t i = 1; i < list.size(); ++i) FillFields(list[i]);
  }
  template <typename Record>
  void FillFields(Record& record) {
    ForEachField(record, [this](const char* /*name*/, auto& field) { this->Fill(field); });
  }

  void FillStudentLists(Student& s, const Class& c) {
    FillCounted(s.Marks, c.NumInstruments);
    FillCounted(s.SummaryAbsent, c.NumSummaries);
    FillCounted(s.SummaryDetail, c.NumSummaries);
    FillCounted(s.SummaryLate, c.NumSummaries);
    FillCounted(s.SeatRow, c.NumCharts);
    FillCounted(s.SeatColumn, c.NumCharts);
    if (OneIn(5)) {
      s.DailyMarks.clear();
    } else {
      FillCounted(s.DailyMarks, c.NumDays);
    }
  }

 private:
  std::mt19937& random_;
};

}  // namespace

Class RandomClass(std::mt19937& random) {
  Maker make(random);
  Class c;
  make.FillFields(c);
  c.Magic = "ty8";
  make.FillRecords(c.Instruments, c.NumInstruments, 6);
  make.FillRecords(c.AttendanceDays, c.NumDays, 9);
  make.FillRecords(c.Summaries, c.NumSummaries, 4);
  c.NumCharts = static_cast<i16>(make.UpTo(2));
  make.FillCounted(c.ChartRows, c.NumCharts);
  make.FillCounted(c.ChartColumns, c.NumCharts);
  make.FillRecords(c.Students, c.NumStudents, 7);
  for (std::size_t i = 1; i < c.Students.size(); ++i) make.FillStudentLists(c.Students[i], c);
  return c;
}

namespace {

template <typename T>
bool SameField(const T& a, const T& b) {
  return a == b;
}
bool SameField(float a, float b) {
  return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}
bool SameField(double a, double b) {
  return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}
template <typename T, std::size_t N>
bool SameField(const std::array<T, N>& a, const std::array<T, N>& b) {
  for (std::size_t i = 0; i < N; ++i) {
    if (!SameField(a[i], b[i])) return false;
  }
  return true;
}

// Walks over the fields of one record with the other's beside it.
template <typename Record>
bool SameFields(const Record& a, const Record& b) {
  std::vector<const void*> fields_of_b;
  ForEachField(b, [&](const char*, const auto& field) { fields_of_b.push_back(&field); });
  bool same = true;
  std::size_t next = 0;
  ForEachField(a, [&](const char*, const auto& field) {
    using Field = std::remove_cvref_t<decltype(field)>;
    same = SameField(field, *static_cast<const Field*>(fields_of_b[next++])) && same;
  });
  return same;
}

template <typename Record>
bool SameRecords(const List<Record>& a, const List<Record>& b) {
  if (UpperBound(a) != UpperBound(b)) return false;
  for (std::size_t i = 1; i < a.size(); ++i) {
    if (!SameFields(a[i], b[i])) return false;
  }
  return true;
}

}  // namespace

bool SameOnDisk(const Class& a, const Class& b) {
  return SameFields(a, b) && SameRecords(a.Instruments, b.Instruments) &&
         SameRecords(a.AttendanceDays, b.AttendanceDays) && SameRecords(a.Summaries, b.Summaries) &&
         SameRecords(a.Students, b.Students);
}

}  // namespace tallyroll
