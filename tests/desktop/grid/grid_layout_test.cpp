// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/grid/grid_layout.h"

#include <gtest/gtest.h>

namespace tallyroll {
namespace {

// Two fixed rows of 10, then rows of 20, 30, 0 (hidden), 40, 50.
GridAxis Sample() {
  return GridAxis({10, 10, 20, 30, 0, 40, 50}, 2);
}

TEST(GridAxis, FixedOnesStandAtTheStartAndTheOthersBehindThem) {
  const GridAxis axis = Sample();
  EXPECT_EQ(axis.Start(1, 3), 10);
  EXPECT_EQ(axis.Start(3, 3), 20);
  EXPECT_EQ(axis.Start(5, 3), 50);
}

TEST(GridAxis, FindsWhatStandsAtAPlace) {
  const GridAxis axis = Sample();
  EXPECT_EQ(axis.At(0, 2), 0);
  EXPECT_EQ(axis.At(19, 5), 1);
  EXPECT_EQ(axis.At(20, 2), 2);
  EXPECT_EQ(axis.At(20, 5), 5);
  EXPECT_EQ(axis.At(69, 2), 3);
  EXPECT_EQ(axis.At(70, 2), 5);
  EXPECT_EQ(axis.At(159, 2), 6);
  EXPECT_EQ(axis.At(160, 2), -1);
  EXPECT_EQ(axis.At(-1, 2), -1);
}

TEST(GridAxis, HiddenOnesAreNotInView) {
  std::vector<int> seen;
  for (const Band& band : Sample().Visible(3, 100)) seen.push_back(band.index);
  EXPECT_EQ(seen, (std::vector<int>{0, 1, 3, 5, 6}));
}

TEST(GridAxis, TheLastThatShowsTakesTheRoomLeft) {
  const GridAxis axis = Sample().Filling(200);  // 160 and 40 more
  EXPECT_EQ(axis.SizeOf(6), 90);
  EXPECT_EQ(axis.SizeOf(5), 40);
  EXPECT_EQ(Sample().Filling(160), Sample());
  EXPECT_EQ(Sample().Filling(100), Sample());
  EXPECT_EQ(GridAxis({10, 20, 0}, 1).Filling(50).SizeOf(1), 40) << "the last one is hidden";
}

TEST(GridAxis, TheNextOneIsNeitherHiddenNorFixed) {
  const GridAxis axis = Sample();
  EXPECT_EQ(axis.Next(3, 1), 5);
  EXPECT_EQ(axis.Next(5, -1), 3);
  EXPECT_EQ(axis.Next(2, -1), 2);
  EXPECT_EQ(axis.Next(6, 1), 6);
}

TEST(GridAxis, TheLastViewEndsWithTheLastOne) {
  const GridAxis axis = Sample();
  EXPECT_EQ(axis.LastFirst(110), 4);  // 20 fixed, 90 for the two last
  EXPECT_EQ(axis.LastFirst(109), 6);  // 89 would cut the one before
  EXPECT_EQ(axis.LastFirst(1000), 2);
  EXPECT_EQ(axis.LastFirst(5), 6);
}

TEST(GridAxis, MovesAsLittleAsPossibleToShowOne) {
  const GridAxis axis = Sample();
  EXPECT_EQ(axis.FirstToShow(3, 2, 100), 2);
  EXPECT_EQ(axis.FirstToShow(6, 2, 110), 4);
  EXPECT_EQ(axis.FirstToShow(3, 5, 100), 3);
  EXPECT_EQ(axis.FirstToShow(0, 5, 100), 5);
  EXPECT_EQ(axis.FirstToShow(6, 2, 30), 6);
}

TEST(GridScale, TwipsGrowWithTheScreenAndTheFont) {
  EXPECT_EQ(PixelsOfTwips(1440, 96, 8.25), 96);
  EXPECT_EQ(PixelsOfTwips(1440, 144, 8.25), 144);
  EXPECT_EQ(PixelsOfTwips(1440, 96, 16.5), 192);
  EXPECT_EQ(PixelsOfTwips(0, 96, 8.25), 0);
}

TEST(GridScale, ARowIsNeverLowerThanItsTextUnlessHidden) {
  Grid grid;
  grid.SetSize(3, 1);
  grid.SetRowHeight(1, 600);
  grid.SetRowHeight(2, 0);
  const GridAxis rows = RowsOf(grid, 96, 8.25, 30);
  EXPECT_EQ(rows.SizeOf(0), 34);  // 300 twips are 20 pixels, too low for a text of 30
  EXPECT_EQ(rows.SizeOf(1), 40);
  EXPECT_EQ(rows.SizeOf(2), 0);
}

}  // namespace
}  // namespace tallyroll
