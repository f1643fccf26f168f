// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/mark_history.h"

#include <gtest/gtest.h>

namespace tallyroll {
namespace {

TEST(MarkHistory, KeysThatGoOnWithACellAreOneStep) {
  MarkHistory history;
  history.StartOver({"", "70", ""});
  history.Note({"", "8", ""}, false);
  history.Note({"", "85", ""}, true);
  const MarkHistory::Step& step = history.Undo();
  ASSERT_EQ(step.size(), 1u);
  EXPECT_EQ(step[0].row, 1);
  EXPECT_EQ(step[0].before, "70");
  EXPECT_EQ(step[0].after, "85");
  EXPECT_FALSE(history.CanUndo());
}

TEST(MarkHistory, AKeyInAnotherRowIsAStepOfItsOwn) {
  MarkHistory history;
  history.StartOver({"", ""});
  history.Note({"8", ""}, false);
  history.Note({"8", "9"}, true);
  EXPECT_EQ(history.Undo()[0].row, 1);
  EXPECT_EQ(history.Undo()[0].row, 0);
}

TEST(MarkHistory, WhatIsTypedBackLeavesNoStep) {
  MarkHistory history;
  history.StartOver({""});
  history.Note({"8"}, false);
  history.Note({""}, true);
  EXPECT_FALSE(history.CanUndo());
  EXPECT_FALSE(history.CanRedo());
}

TEST(MarkHistory, AnEventThatChangesNothingIsNoStep) {
  MarkHistory history;
  history.StartOver({"1"});
  history.Note({"1"}, false);
  EXPECT_FALSE(history.CanUndo());
}

TEST(MarkHistory, ManyCellsAtOnceAreOneStepBackAndForth) {
  MarkHistory history;
  history.StartOver({"1", "2", "3"});
  history.Note({"ABS", "2", "ABS"}, false);
  EXPECT_EQ(history.Undo().size(), 2u);
  ASSERT_TRUE(history.CanRedo());
  EXPECT_EQ(history.Redo()[1].row, 2);
  EXPECT_FALSE(history.CanRedo());
}

TEST(MarkHistory, ANewStepForgetsWhatWasTakenBack) {
  MarkHistory history;
  history.StartOver({""});
  history.Note({"8"}, false);
  history.Undo();
  history.Note({"9"}, false);
  EXPECT_FALSE(history.CanRedo());
  EXPECT_EQ(history.Undo()[0].after, "9");
}

// After a step back the last step stands under another key than the one that began it.
TEST(MarkHistory, AKeyAfterAStepBackDoesNotGoOnWithAStepThatWasTakenBack) {
  MarkHistory history;
  history.StartOver({"", ""});
  history.Note({"8", ""}, false);
  history.Note({"8", "9"}, false);
  history.Undo();
  history.Note({"85", ""}, true);
  EXPECT_EQ(history.Undo()[0].before, "");
  EXPECT_FALSE(history.CanUndo());
}

}  // namespace
}  // namespace tallyroll
