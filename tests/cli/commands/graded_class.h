// SPDX-License-Identifier: GPL-3.0-or-later
// Random graded classes, and the lines on averages that reports on them must hold.
#pragma once

#include <cmath>
#include <nlohmann/json.hpp>
#include <random>
#include <string>
#include <vector>

#include "tests/cli/run_cli.h"

namespace tallyroll {

class GradedClass {
 public:
  explicit GradedClass(unsigned seed) : random_(seed) {}

  // The JSON of a class of 1 to 12 grades and students that is averaged by this method.
  std::string Make(int method) {
    constexpr const char* kTypes[] = {"Q ", "T ", "HW", "E ", "X "};
    nlohmann::json c;
    c["RoundMode"] = UpTo(1);
    c["LetterValues"] = {"100", "99", "95", "90", "88", "85", "80",
                         "78",  "75", "70", "68", "65", "60", "55"};
    std::string settings = std::to_string(method);
    for (int flag = 0; flag < 4; ++flag) settings += UpTo(2) == 0 ? ",1" : ",0";
    for (int t = 1; t <= 26; ++t) settings += UpTo(1) == 0 ? ",2" : ",0";
    c["AverageSettings"] = settings;
    std::string percents;
    for (int t = 1; t <= 26; ++t) percents += std::to_string(UpTo(40)) + (t < 26 ? "\r" : "");
    c["PercentsText"] = percents;
    const int grades = 1 + UpTo(11);
    for (int i = 0; i < grades; ++i)
      c["Instruments"].push_back({{"title", "Grade " + std::to_string(i)},
                                  {"code", "g" + std::to_string(i)},
                                  {"typecode", kTypes[UpTo(4)]},
                                  {"mvalue", 5 * (1 + UpTo(39))},
                                  {"weight", std::to_string(UpTo(30))},
                                  {"dropyn", UpTo(1) == 0 ? "Y" : "N"},
                                  {"countflag", UpTo(3) == 0 ? "N" : "Y"}});
    const int students = 1 + UpTo(11);
    for (int s = 0; s < students; ++s) {
      nlohmann::json marks = {""};
      for (int i = 0; i < grades; ++i) marks.push_back(AnyMark());
      c["Students"].push_back({{"lastname", "Last" + std::to_string(100 - s)},
                               {"firstname", "Jo"},
                               {"id", std::to_string(500 + s)},
                               {"Marks", marks}});
    }
    return c.dump();
  }

 private:
  int UpTo(int most) { return std::uniform_int_distribution<int>(0, most)(random_); }
  std::string AnyMark() {
    constexpr const char* kWords[] = {"NEW", "ABS", "EXC", "CUT", "NON", "B+", "A-"};
    if (UpTo(4) == 0) return kWords[UpTo(6)];
    return std::to_string(UpTo(200)) + (UpTo(1) == 0 ? ".5" : "");
  }

  std::mt19937 random_;
};

// "12.5" as "12.50". Marks have one decimal at most, but weighted points have four: they are
// rounded.
inline std::string WithTwoDecimals(const std::string& number) {
  const bool negative = number.starts_with('-');
  const std::size_t point = std::min(number.find('.'), number.size());
  std::string decimals = point < number.size() ? number.substr(point + 1) : "";
  decimals.resize(4, '0');
  long scaled = std::stol(number.substr(negative ? 1 : 0, point - (negative ? 1 : 0))) * 10000 +
                std::stol(decimals);
  scaled = (scaled + 50) / 100;
  std::string cents = std::to_string(scaled % 100);
  if (cents.size() < 2) cents.insert(0, "0");
  return (negative && scaled != 0 ? "-" : "") + std::to_string(scaled / 100) + "." + cents;
}

// What the command `averages` gives, as the two lines that reports print for each student.
inline std::vector<std::string> LinesOnAverages(const std::string& file) {
  std::vector<std::string> lines;
  for (const auto& student : nlohmann::json::parse(RunCli({"averages", "--json", file}).out)) {
    const auto text = [&](const char* field) { return student[field].get<std::string>(); };
    lines.push_back(student["possible"].is_null()
                        ? "AVERAGE IS: " + text("ExactAverage")
                        : "TOTAL POINTS: " + WithTwoDecimals(text("earned")) + "/" +
                              text("possible") + "  AVERAGE = " + text("ExactAverage"));
    lines.push_back("ROUNDED AVERAGE/GRADE: " + text("FinalGrade"));
  }
  return lines;
}

// The lines of a text that tell averages.
inline std::vector<std::string> LinesWithAverages(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.ends_with('\r')) line.pop_back();
    if (line.starts_with("AVERAGE IS: ") || line.starts_with("TOTAL POINTS: ") ||
        line.starts_with("ROUNDED AVERAGE/GRADE: "))
      lines.push_back(line);
  }
  return lines;
}

}  // namespace tallyroll
