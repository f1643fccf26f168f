// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes of class files put together by hand, without the program's own writer.
#pragma once

#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace tallyroll {

class FileBytes {
 public:
  FileBytes& I16(int value) { return Number(static_cast<std::int16_t>(value)); }
  FileBytes& I32(std::int64_t value) { return Number(static_cast<std::int32_t>(value)); }
  FileBytes& Single(float value) { return Number(value); }
  FileBytes& Date(double value) { return Number(value); }
  // In ten-thousandths.
  FileBytes& Money(std::int64_t scaled) { return Number(scaled); }
  FileBytes& Text(std::string_view text) {
    I16(static_cast<std::uint16_t>(text.size()));
    return Raw(text);
  }
  FileBytes& Texts(int count, std::string_view text = {}) {
    for (int i = 0; i < count; ++i) Text(text);
    return *this;
  }
  FileBytes& Fixed(std::string_view text, std::size_t width) {
    std::string padded(text);
    padded.resize(width, ' ');
    return Raw(padded);
  }
  // The descriptor of a list from 0 to last; its elements follow.
  FileBytes& List(int last) { return I16(1).I32(last + 1).I32(0); }
  FileBytes& NoList() { return I16(0); }
  FileBytes& Raw(std::string_view text) {
    bytes.append(text);
    return *this;
  }

  std::string bytes;

 private:
  template <typename T>
  FileBytes& Number(T value) {
    char raw[sizeof value];
    std::memcpy(raw, &value, sizeof value);
    return Raw({raw, sizeof value});
  }
};

// The smallest whole header of the current format, with these five counts.
inline std::string HeaderBytes(int students, int instruments, int days, int summaries,
                               int charts = 0) {
  FileBytes f;
  f.Raw("ty8");
  for (int k = 0; k < 14; ++k) f.Money(0);
  for (int k = 0; k < 70; ++k) f.Single(0);
  f.I16(0).I16(0).I16(0).I16(2).Text("").NoList().Text("");
  f.I16(students).I16(instruments).I16(days).I16(summaries).I16(charts);
  f.NoList().NoList().Text("").I16(0).Texts(9);
  f.Texts(14).I16(0).I16(0).NoList().Text("");
  return f.bytes;
}

// A student with names and nothing else.
inline std::string StudentBytes(std::string_view lastname, std::string_view firstname) {
  FileBytes f;
  f.NoList().NoList().Texts(3).NoList().Text(firstname).NoList().NoList();
  f.Text("").Text(lastname).Texts(3).NoList().Texts(2).NoList().Texts(2).NoList().Text("").Texts(
      26);
  return f.bytes;
}

}  // namespace tallyroll
