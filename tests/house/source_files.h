// SPDX-License-Identifier: GPL-3.0-or-later
// The program's own source, read by the tests of the house's rules.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tallyroll {

struct SourceFile {
  std::string path;  // from the folder asked for on: "base/text.cpp"
  std::string text;
};

// Every .h and .cpp file under a folder of the checkout, by path.
std::vector<SourceFile> SourceFiles(std::string_view below = "src");

// The room of a file, its whole way below src: "printing/page"; empty for a file in src itself.
std::string_view FolderOf(std::string_view path);

// The text with blanks for every comment, and where asked for what stands between quotes as well.
// Line ends stay, so that lines keep their numbers.
enum class Quoted { kKept, kBlanked };
std::string WithoutComments(std::string_view text, Quoted quoted);

std::vector<std::string_view> LinesOf(std::string_view text);

}  // namespace tallyroll
