// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/program_state.h"

#include <gtest/gtest.h>

#include "store/class_file.h"
#include "store/csv_columns.h"
#include "store/text_layout.h"

namespace tallyroll {
namespace {

// Taken before any test runs.
const i16 kSlotsAtStart = MaxClassSlots;
const i16 kClassAtStart = CurrentClass;
const i16 kStudentAtStart = CurrentStudent;
const i16 kMethodAtStart = DefaultMethod;
const int kStateAtStart = OpenState;
const int kErrorAtStart = FileErrorCode;
const i16 kNamesAtStart = NameMode;
const i16 kTextAtStart = TextMode;

TEST(ProgramStateTest, TheProgramStartsWithTheFirstSlotAndNoMethod) {
  EXPECT_EQ(kSlotsAtStart, 6);
  EXPECT_EQ(kClassAtStart, 1);
  EXPECT_EQ(kStudentAtStart, 0);
  EXPECT_EQ(kMethodAtStart, 5);
  EXPECT_EQ(kStateAtStart, 0);
  EXPECT_EQ(kErrorAtStart, 0);
  EXPECT_EQ(kNamesAtStart, 68);
  EXPECT_EQ(kTextAtStart, 40);
}

TEST(ProgramStateTest, ResettingPutsEverythingToItsStart) {
  MaxClassSlots = 3;
  CurrentClass = 2;
  CurrentStudent = 7;
  DefaultMethod = 1;
  OpenState = 20;
  FileErrorCode = 61;
  NameMode = 57;
  TextMode = 70;
  DataFolder = ProgramFolder = LastFolder = ImportFile = "/x";
  ImportColumns.heading = true;
  Classes[6].room = "B 12";
  ClassFiles[6].path = "/x.TYR";
  ResetStore();
  EXPECT_EQ(MaxClassSlots, 6);
  EXPECT_EQ(CurrentClass, 1);
  EXPECT_EQ(CurrentStudent, 0);
  EXPECT_EQ(DefaultMethod, 5);
  EXPECT_EQ(OpenState, 0);
  EXPECT_EQ(FileErrorCode, 0);
  EXPECT_EQ(NameMode, 68);
  EXPECT_EQ(TextMode, 40);
  EXPECT_EQ(DataFolder + ProgramFolder + LastFolder + ImportFile, "");
  EXPECT_FALSE(ImportColumns.heading);
  EXPECT_EQ(Classes[6].room, "");
  EXPECT_EQ(ClassFiles[6].path, "");
}

}  // namespace
}  // namespace tallyroll
