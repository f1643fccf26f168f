// SPDX-License-Identifier: GPL-3.0-or-later
// What stands in a PDF, as another program reads it.
#pragma once

#include <array>
#include <cstdio>
#include <sstream>
#include <string>
#include <vector>

namespace tallyroll {

inline std::string OutputOf(const std::string& command) {
  std::string output;
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) return output;
  std::array<char, 4096> some{};
  for (std::size_t n = 0; (n = fread(some.data(), 1, some.size(), pipe)) > 0;)
    output.append(some.data(), n);
  pclose(pipe);
  return output;
}

// The text of a page, or of all pages where it is 0, in UTF-8, in the order in which it was drawn.
inline std::string PdfText(const std::string& path, int page = 0) {
  std::ostringstream command;
  command << "pdftotext -raw -enc UTF-8 ";
  if (page > 0) command << "-f " << page << " -l " << page << ' ';
  command << '\'' << path << "' -";
  return OutputOf(command.str());
}

inline std::vector<std::string> WordsOf(const std::string& text) {
  std::istringstream stream(text);
  std::vector<std::string> words;
  for (std::string word; stream >> word;) words.push_back(word);
  return words;
}

// A line of what pdfinfo tells: "Pages", "Title".
inline std::string PdfInfo(const std::string& path, const std::string& key) {
  std::istringstream lines(OutputOf("pdfinfo '" + path + "'"));
  for (std::string line; std::getline(lines, line);)
    if (line.starts_with(key + ":"))
      return line.substr(line.find_first_not_of(' ', key.size() + 1));
  return {};
}

}  // namespace tallyroll
