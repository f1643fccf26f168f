// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/box_list.h"

#include <gtest/gtest.h>

namespace tallyroll {
namespace {

TEST(BoxList, TenLinesStandInABox) {
  std::vector<std::string> lines;
  std::string text = "\n";
  EXPECT_EQ(BoxList(lines), text);
  for (const char* line : {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"}) {
    lines.emplace_back(line);
    text += "\n" + lines.back();
    EXPECT_EQ(BoxList(lines), text);
  }
  lines.emplace_back("k");
  EXPECT_EQ(BoxList(lines), text + "\n... and 1 more");
  lines.emplace_back("l");
  EXPECT_EQ(BoxList(lines), text + "\n... and 2 more");
}

}  // namespace
}  // namespace tallyroll
