// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/basics/date_order.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace tallyroll {
namespace {

TEST(DateOrderTest, TheFirstFieldOfAFormatTells) {
  for (const char* format : {"%m/%d/%Y", "%m/%d/%y", "%D", "%b %d %Y", "%-m/%-d/%Y"}) {
    EXPECT_EQ(DateOrderOfFormat(format), DateOrder::kMonthFirst) << format;
  }
  for (const char* format : {"%d.%m.%Y", "%d/%m/%y", "%e. %B %Y", "%-d. %-m. %Y", "%Od/%Om/%Oy"}) {
    EXPECT_EQ(DateOrderOfFormat(format), DateOrder::kDayFirst) << format;
  }
  for (const char* format : {"%Y-%m-%d", "%y.%m.%d", "%F", "%Ey/%m/%d"}) {
    EXPECT_EQ(DateOrderOfFormat(format), DateOrder::kYearFirst) << format;
  }
}

TEST(DateOrderTest, WordsAroundTheFieldsTellNothing) {
  EXPECT_EQ(DateOrderOfFormat("dei %Y-%m-%d"), DateOrder::kYearFirst);
}

TEST(DateOrderTest, AFormatWithoutFieldsIsMonthFirst) {
  for (const char* format : {"", "%", "none", "%-"}) {
    EXPECT_EQ(DateOrderOfFormat(format), DateOrder::kMonthFirst) << format;
  }
}

TEST(DateOrderTest, AnOptionGoesBeforeTheSystem) {
  setenv("LC_ALL", "C", 1);
  EXPECT_EQ(DateOrderOfOption("dmy"), DateOrder::kDayFirst);
  EXPECT_EQ(DateOrderOfOption("ymd"), DateOrder::kYearFirst);
  EXPECT_EQ(DateOrderOfOption("mdy"), DateOrder::kMonthFirst);
  EXPECT_EQ(DateOrderOfOption(""), DateOrder::kMonthFirst) << "that of the C locale";
}

TEST(DateOrderTest, ALocaleThatIsNotThereIsMonthFirst) {
  setenv("LC_ALL", "xx_XX.nowhere", 1);
  EXPECT_EQ(SystemDateOrder(), DateOrder::kMonthFirst);
  setenv("LC_ALL", "C", 1);
}

}  // namespace
}  // namespace tallyroll
