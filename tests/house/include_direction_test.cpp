// SPDX-License-Identifier: GPL-3.0-or-later
// The arrows between the folders of src run one way: a folder includes only what stands below it.
// Without this, a computation would come to need a window and could no longer run without one.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <regex>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tests/house/source_files.h"

namespace tallyroll {
namespace {

using Folders = std::set<std::string, std::less<>>;

// What each room stands on; what those stand on is allowed as well. A room knows the folder that it
// stands in no more than any other: "printing" is built of its rooms, or a room of it.
const std::map<std::string, Folders, std::less<>> kStandsOn = {
    {"base", {}},
    {"platform", {"base"}},
    {"store", {"platform"}},
    {"store/text", {"store"}},
    {"store/change", {"store"}},
    {"companion", {"store/change"}},
    {"roster", {"store/text"}},
    {"attendance", {"store/text"}},
    {"grades", {"store/text"}},
    {"averages/engine", {"grades", "attendance"}},
    {"averages", {"averages/engine"}},
    {"averages/explained", {"averages"}},
    {"averages/portals", {"averages/explained", "store/text"}},
    {"printing/page", {"averages", "store/text"}},
    {"printing/reports", {"printing/page", "averages/explained"}},
    {"printing", {"printing/reports", "find"}},
    {"analysis", {"printing", "averages/portals", "roster"}},
    {"letters/mail", {"printing", "roster", "companion"}},
    {"letters/text", {"store/text"}},
    {"letters/merge", {"letters/text", "averages"}},
    {"letters/page", {"letters/text", "printing/page"}},
    {"letters", {"letters/merge", "letters/page", "letters/mail"}},
    {"letters/writer", {"letters/merge", "letters/page", "letters/mail"}},
    {"insight", {"analysis", "companion"}},
    {"seating", {"printing", "roster", "companion"}},
    {"exchange/formats", {"grades"}},
    {"exchange", {"exchange/formats", "printing", "roster", "companion"}},
    {"find", {"store"}},
    {"shell",
     {"averages/portals", "analysis", "insight", "letters", "letters/writer", "seating", "find",
      "exchange", "store/change"}},
    {"post", {"platform"}},
    {"desktop/paper", {"platform"}},
    {"cli/basics", {"shell", "desktop/paper", "post"}},
    {"cli/rows", {"cli/basics"}},
    {"cli/commands", {"cli/rows"}},
    {"cli", {"cli/commands"}},
    {"desktop/style", {}},
    {"desktop/basics", {"shell", "desktop/style"}},
    {"desktop/grid", {"desktop/basics"}},
    {"desktop/letter", {"desktop/basics"}},
    {"desktop/portal", {"desktop/grid", "desktop/letter", "desktop/paper"}},
    {"desktop/panel", {"desktop/grid"}},
    {"desktop/window", {"desktop/grid", "desktop/panel"}},
    {"desktop/platform", {"desktop/portal", "desktop/paper", "post"}},
    {"desktop", {"desktop/window", "desktop/platform"}},
};

// The command line writes reports as PDF with Qt, but shows no window.
bool MayUseQt(std::string_view folder) {
  return folder == "cli/basics" || folder == "desktop" || folder.starts_with("desktop/");
}

// Mail over encrypted connections is another library's work.
bool MayUseLibraries(std::string_view folder) {
  return MayUseQt(folder) || folder == "post";
}

// Breaches that are known and stay for now, as "file includes file". This list only shrinks.
const std::set<std::string> kTolerated;

Folders AllowedFor(const std::string& folder) {
  Folders allowed = {folder};
  for (const std::string& lower : kStandsOn.at(folder)) allowed.merge(AllowedFor(lower));
  return allowed;
}

struct Include {
  bool quoted;
  std::string path;
};

std::optional<Include> IncludeOf(std::string_view line) {
  if (line.find('#') == std::string_view::npos)
    return std::nullopt;  // most lines: the expression is slow
  static const std::regex kInclude(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
  std::match_results<std::string_view::const_iterator> match;
  if (!std::regex_search(line.begin(), line.end(), match, kInclude)) return std::nullopt;
  return Include{match.str(1) == "\"", match.str(2)};
}

bool IsQt(const Include& include) {
  return !include.quoted && include.path.size() > 1 && include.path[0] == 'Q' &&
         (include.path.starts_with("Qt") || (include.path[1] >= 'A' && include.path[1] <= 'Z'));
}

// Headers of the standard library and of the system have no folder but "sys".
bool IsForeign(const Include& include) {
  const std::string_view folder = FolderOf(include.path);
  return !include.quoted && !folder.empty() && folder != "sys";
}

// What the build makes for the desktop's classes and forms stands in no folder.
bool IsGenerated(const Include& include) {
  return include.quoted && (include.path.ends_with(".moc") || include.path.starts_with("ui_"));
}

bool IsAllowed(std::string_view folder, const Include& include) {
  const bool may_use_qt = MayUseQt(folder);
  if (IsQt(include) || IsGenerated(include)) return may_use_qt;
  if (IsForeign(include)) return MayUseLibraries(folder);
  if (!include.quoted) return true;
  return AllowedFor(std::string(folder)).contains(FolderOf(include.path));
}

// Every include of a file that its folder does not allow, as "file includes file".
std::set<std::string> BreachesIn(const SourceFile& file) {
  const std::string_view folder = FolderOf(file.path);
  if (!kStandsOn.contains(folder)) return {file.path + " stands in no known folder"};
  std::set<std::string> breaches;
  const std::string code = WithoutComments(file.text, Quoted::kKept);
  for (const std::string_view line : LinesOf(code)) {
    const std::optional<Include> include = IncludeOf(line);
    if (include && !IsAllowed(folder, *include)) {
      breaches.insert(file.path + " includes " + include->path);
    }
  }
  return breaches;
}

std::set<std::string> BreachesIn(const std::vector<SourceFile>& files) {
  std::set<std::string> breaches;
  for (const SourceFile& file : files) breaches.merge(BreachesIn(file));
  return breaches;
}

using Breaches = std::set<std::string>;

Breaches Difference(const Breaches& all, const Breaches& without) {
  Breaches rest;
  std::set_difference(all.begin(), all.end(), without.begin(), without.end(),
                      std::inserter(rest, rest.begin()));
  return rest;
}

struct Verdict {
  Breaches untolerated;
  Breaches gone;  // tolerated, but no longer there
};

Verdict Judge(const std::vector<SourceFile>& files, const Breaches& tolerated) {
  const Breaches breaches = BreachesIn(files);
  return {Difference(breaches, tolerated), Difference(tolerated, breaches)};
}

TEST(IncludeDirection, NoFolderIncludesWhatStandsAboveIt) {
  EXPECT_EQ(Judge(SourceFiles(), kTolerated).untolerated, Breaches{});
}

TEST(IncludeDirection, EveryToleratedBreachStillExists) {
  EXPECT_EQ(Judge(SourceFiles(), kTolerated).gone, Breaches{});
}

TEST(IncludeDirection, ToleratesAListedBreachOnlyWhileItExists) {
  const std::vector<SourceFile> files = {{"store/a.cpp", "#include \"shell/b.h\"\n"}};
  const Breaches here = {"store/a.cpp includes shell/b.h"};
  const Breaches gone = {"store/a.cpp includes roster/c.h"};
  EXPECT_EQ(Judge(files, here).untolerated, Breaches{});
  EXPECT_EQ(Judge(files, here).gone, Breaches{});
  EXPECT_EQ(Judge(files, gone).untolerated, here);
  EXPECT_EQ(Judge(files, gone).gone, gone);
}

TEST(IncludeDirection, FindsAFolderAbove) {
  EXPECT_EQ(BreachesIn(SourceFile{"store/a.cpp", "#include \"shell/b.h\"\n"}),
            Breaches{"store/a.cpp includes shell/b.h"});
  EXPECT_EQ(BreachesIn(SourceFile{"base/a.h", " #  include \"platform/b.h\"  // why\n"}),
            Breaches{"base/a.h includes platform/b.h"});
}

TEST(IncludeDirection, FindsASibling) {
  EXPECT_EQ(BreachesIn(SourceFile{"roster/a.cpp", "#include \"grades/b.h\"\n"}),
            Breaches{"roster/a.cpp includes grades/b.h"});
  EXPECT_EQ(BreachesIn(SourceFile{"letters/a.cpp", "#include \"seating/b.h\"\n"}),
            Breaches{"letters/a.cpp includes seating/b.h"});
  EXPECT_EQ(BreachesIn(SourceFile{"cli/a.cpp", "#include \"desktop/b.h\"\n"}),
            Breaches{"cli/a.cpp includes desktop/b.h"});
}

TEST(IncludeDirection, FindsAFolderThatTheTableDoesNotGive) {
  EXPECT_EQ(BreachesIn(SourceFile{"averages/a.cpp", "#include \"roster/b.h\"\n"}),
            Breaches{"averages/a.cpp includes roster/b.h"});
}

TEST(IncludeDirection, FindsARoomAboveInTheSameFolder) {
  EXPECT_EQ(BreachesIn(SourceFile{"printing/page/a.cpp", "#include \"printing/reports/b.h\"\n"}),
            Breaches{"printing/page/a.cpp includes printing/reports/b.h"});
  EXPECT_EQ(BreachesIn(SourceFile{"printing/reports/a.cpp", "#include \"printing/b.h\"\n"}),
            Breaches{"printing/reports/a.cpp includes printing/b.h"});
  EXPECT_EQ(BreachesIn(SourceFile{"averages/a.cpp", "#include \"averages/portals/b.h\"\n"}),
            Breaches{"averages/a.cpp includes averages/portals/b.h"});
  EXPECT_EQ(BreachesIn(SourceFile{"desktop/grid/a.cpp", "#include \"desktop/window/b.h\"\n"}),
            Breaches{"desktop/grid/a.cpp includes desktop/window/b.h"});
  EXPECT_EQ(BreachesIn(SourceFile{"printing/reports/a.cpp", "#include \"printing/page/b.h\"\n"}),
            Breaches{});
}

// Each room of the table stands below itself: otherwise two rooms would need each other.
TEST(IncludeDirection, NoRoomStandsOnItselfByAWayAround) {
  for (const auto& [room, lower] : kStandsOn)
    for (const std::string& below : lower) EXPECT_FALSE(AllowedFor(below).contains(room)) << room;
}

TEST(IncludeDirection, FindsAnUnknownFolder) {
  EXPECT_EQ(BreachesIn(SourceFile{"printing/attic/a.cpp", ""}),
            Breaches{"printing/attic/a.cpp stands in no known folder"});
  EXPECT_EQ(BreachesIn(SourceFile{"store/a.cpp", "#include \"elsewhere/b.h\"\n"}),
            Breaches{"store/a.cpp includes elsewhere/b.h"});
  EXPECT_EQ(BreachesIn(SourceFile{"store/a.cpp", "#include \"b.h\"\n"}),
            Breaches{"store/a.cpp includes b.h"});
  EXPECT_EQ(BreachesIn(SourceFile{"elsewhere/a.cpp", ""}),
            Breaches{"elsewhere/a.cpp stands in no known folder"});
}

TEST(IncludeDirection, FindsWindowsAndOtherLibrariesInTheLogic) {
  for (const char* include : {"<QString>", "<QtGlobal>", "<QtWidgets/QLabel>", "<x/json.hpp>"}) {
    const std::string line = std::string("#include ") + include + "\n";
    EXPECT_EQ(BreachesIn(SourceFile{"printing/a.cpp", line}).size(), 1u) << include;
    EXPECT_EQ(BreachesIn(SourceFile{"desktop/a.cpp", line}), Breaches{}) << include;
  }
}

TEST(IncludeDirection, LetsPassWhatStandsBelow) {
  EXPECT_EQ(BreachesIn(SourceFile{"shell/a.cpp",
                                  "#include \"shell/b.h\"\n#include \"base/text.h\"\n"
                                  "#include \"letters/c.h\"\n#include \"attendance/d.h\"\n"}),
            Breaches{});
  EXPECT_EQ(BreachesIn(SourceFile{"store/a.cpp", "#include <vector>\n#include <sys/stat.h>\n"}),
            Breaches{});
  EXPECT_EQ(BreachesIn(SourceFile{"desktop/a.cpp", "#include \"a.moc\"\n"}), Breaches{});
}

TEST(IncludeDirection, OverlooksComments) {
  EXPECT_EQ(BreachesIn(SourceFile{"base/a.h",
                                  "// #include \"shell/b.h\"\n/*\n#include \"shell/b.h\"\n*/\n"}),
            Breaches{});
}

}  // namespace
}  // namespace tallyroll
