// SPDX-License-Identifier: GPL-3.0-or-later
// The logic knows no locale. The desktop's library sets the C locale and the command line does
// not, so a number read or written by it would differ between the two.
#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/house/source_files.h"

namespace tallyroll {
namespace {

using Words = std::set<std::string, std::less<>>;

const Words kForbidden = {
    // text to number
    "atof", "atoi", "atol", "atoll", "strtod", "strtof", "strtold", "strtol", "strtoll", "strtoul",
    "strtoull", "stoi", "stol", "stoll", "stoul", "stoull", "stof", "stod", "stold",
    // number to text
    "to_string", "printf", "fprintf", "sprintf", "snprintf", "vprintf", "vfprintf", "vsprintf",
    "vsnprintf", "dprintf", "asprintf", "scanf", "fscanf", "sscanf", "strftime", "put_time",
    "get_time",
    // streams that format
    "stringstream", "ostringstream", "istringstream", "sstream", "iomanip", "iostream",
    // characters by locale
    "cctype", "isalpha", "isalnum", "isdigit", "isxdigit", "isspace", "isblank", "isupper",
    "islower", "ispunct", "isprint", "isgraph", "iscntrl", "toupper", "tolower", "strcoll",
    "strcasecmp", "strncasecmp",
    // the locale itself
    "setlocale", "localeconv", "clocale"};

// The desktop and the command line speak with libraries that have their own ways.
const Words kOutside = {"desktop", "cli"};

// Every forbidden word of a file, as "file:line: word".
std::vector<std::string> FindingsIn(const SourceFile& file) {
  static const std::regex kWord("[A-Za-z_][A-Za-z0-9_]*");
  std::vector<std::string> findings;
  if (kOutside.contains(file.path.substr(0, file.path.find('/')))) return findings;
  const std::string code = WithoutComments(file.text, Quoted::kBlanked);
  const std::vector<std::string_view> lines = LinesOf(code);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const std::string line(lines[i]);
    for (std::sregex_iterator word(line.begin(), line.end(), kWord), end; word != end; ++word) {
      if (!kForbidden.contains(word->str())) continue;
      findings.push_back(file.path + ":" + std::to_string(i + 1) + ": " + word->str());
    }
  }
  return findings;
}

using Findings = std::vector<std::string>;

Findings FindingsInLine(const std::string& line) {
  return FindingsIn(SourceFile{"store/a.cpp", line});
}

TEST(LocaleLint, TheLogicKnowsNoLocale) {
  Findings all;
  for (const SourceFile& file : SourceFiles()) {
    const Findings findings = FindingsIn(file);
    all.insert(all.end(), findings.begin(), findings.end());
  }
  EXPECT_EQ(all, Findings{});
}

TEST(LocaleLint, TellsTheFileAndTheLine) {
  EXPECT_EQ(FindingsIn(SourceFile{"grades/a.cpp", "int a;\n/* b\n*/\nc = strtod(d, nullptr);\n"}),
            Findings{"grades/a.cpp:4: strtod"});
}

TEST(LocaleLint, FindsEveryKind) {
  EXPECT_EQ(FindingsInLine("a = std::to_string(1);"), Findings{"store/a.cpp:1: to_string"});
  EXPECT_EQ(FindingsInLine("a = std::stod(b);"), Findings{"store/a.cpp:1: stod"});
  EXPECT_EQ(FindingsInLine("a = atoi(b);"), Findings{"store/a.cpp:1: atoi"});
  EXPECT_EQ(FindingsInLine("std::snprintf(a, 9, \"%f\", b);"), Findings{"store/a.cpp:1: snprintf"});
  EXPECT_EQ(FindingsInLine("std::ostringstream a;"), Findings{"store/a.cpp:1: ostringstream"});
  EXPECT_EQ(FindingsInLine("c = toupper(c);"), Findings{"store/a.cpp:1: toupper"});
  EXPECT_EQ(FindingsInLine("#include <cctype>"), Findings{"store/a.cpp:1: cctype"});
  EXPECT_EQ(FindingsInLine("setlocale(LC_ALL, \"\");"), Findings{"store/a.cpp:1: setlocale"});
}

TEST(LocaleLint, FindsEachOfTwoInALine) {
  EXPECT_EQ(FindingsInLine("atof(a) + atof(b)"),
            (Findings{"store/a.cpp:1: atof", "store/a.cpp:1: atof"}));
}

TEST(LocaleLint, OverlooksCommentsQuotedTextAndLongerWords) {
  EXPECT_EQ(FindingsInLine("// not strtod, which knows a locale"), Findings{});
  EXPECT_EQ(FindingsInLine("/* printf */ a = \"printf\";"), Findings{});
  EXPECT_EQ(FindingsInLine("sprintf_like(my_atoi);"), Findings{});
}

TEST(LocaleLint, LeavesTheDesktopAndTheCommandLineAlone) {
  EXPECT_EQ(FindingsIn(SourceFile{"desktop/a.cpp", "printf(a);"}), Findings{});
  EXPECT_EQ(FindingsIn(SourceFile{"cli/a.cpp", "std::to_string(a);"}), Findings{});
}

}  // namespace
}  // namespace tallyroll
