// SPDX-License-Identifier: GPL-3.0-or-later
// The reader that the tests of the house's rules stand on.
#include "tests/house/source_files.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tallyroll {
namespace {

std::string Code(std::string_view text) {
  return WithoutComments(text, Quoted::kBlanked);
}

TEST(SourceFiles, FindsTheProgram) {
  const std::vector<SourceFile> files = SourceFiles();
  const auto is_text = [](const SourceFile& file) { return file.path == "base/text.cpp"; };
  const auto found = std::find_if(files.begin(), files.end(), is_text);
  ASSERT_NE(found, files.end());
  EXPECT_NE(found->text.find("namespace tallyroll"), std::string::npos);
}

TEST(FolderOf, IsTheWholeWayToTheFile) {
  EXPECT_EQ(FolderOf("averages/engine/engine.cpp"), "averages/engine");
  EXPECT_EQ(FolderOf("averages/rounding.h"), "averages");
  EXPECT_EQ(FolderOf("desktop/paper_tray.h"), "desktop");
  EXPECT_EQ(FolderOf("main.cpp"), "");
}

TEST(WithoutComments, BlanksBothKinds) {
  EXPECT_EQ(Code("a // b\nc"), "a     \nc");
  EXPECT_EQ(Code("a /* b\nc */ d"), "a     \n     d");
  EXPECT_EQ(Code("a / b"), "a / b");
}

TEST(WithoutComments, BlanksAnUnendedComment) {
  EXPECT_EQ(Code("a // b"), "a     ");
  EXPECT_EQ(Code("a /* b"), "a     ");
  EXPECT_EQ(Code("a /*"), "a   ");
}

TEST(WithoutComments, BlanksQuotedTextWhenAsked) {
  EXPECT_EQ(Code("f(\"a\\\"b\") g"), "f(      ) g");
  EXPECT_EQ(Code("f('\"') g"), "f(   ) g");
  EXPECT_EQ(Code("f(R\"x(a\"b)x\") g"), "f(          ) g");
  EXPECT_EQ(WithoutComments("f(\"a\") // b", Quoted::kKept), "f(\"a\")     ");
}

TEST(WithoutComments, FindsNoCommentWithinQuotes) {
  EXPECT_EQ(Code("f(\"//\"); g"), "f(    ); g");
  EXPECT_EQ(WithoutComments("f(\"//\"); g", Quoted::kKept), "f(\"//\"); g");
}

TEST(WithoutComments, KnowsDigitsPartedByMarks) {
  EXPECT_EQ(Code("x = 1'000'000; // y"), "x = 1'000'000;     ");
}

TEST(LinesOf, KeepsEmptyLines) {
  EXPECT_EQ(LinesOf("a\n\nb\n"), (std::vector<std::string_view>{"a", "", "b"}));
  EXPECT_TRUE(LinesOf("").empty());
}

}  // namespace
}  // namespace tallyroll
