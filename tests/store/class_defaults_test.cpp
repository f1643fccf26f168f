// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/class_defaults.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "platform/class_window.h"
#include "store/class_file.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

Currency Whole(int units) {
  return Currency::FromWhole(units);
}

class ClassDefaultsTest : public ::testing::Test {
 protected:
  void SetUp() override { ResetStore(); }
  void TearDown() override { ResetStore(); }
};

TEST_F(ClassDefaultsTest, AFreshClassHasNoMethodAndNoLists) {
  Class& c = Current();
  c.NumStudents = 2;
  ReDim(c.Students, 2);
  c.Method = 1;
  c.FileName = "/x.TYR";
  c.Changed = kTrue;
  FileErrorCode = 70;
  DefaultMethod = 2;
  ResetClassSlot();
  EXPECT_EQ(c.Method, 5);
  EXPECT_EQ(DefaultMethod, 5);
  EXPECT_EQ(c.RoundMode, 2);
  EXPECT_EQ(c.RoundScale, 0);
  EXPECT_EQ(c.Reserved488, "12");
  EXPECT_EQ(c.Reserved496, "21");
  EXPECT_EQ(c.NumStudents, 0);
  EXPECT_TRUE(c.Students.empty());
  EXPECT_TRUE(c.Instruments.empty());
  EXPECT_TRUE(c.Summaries.empty());
  EXPECT_TRUE(c.AttendanceDays.empty());
  EXPECT_TRUE(c.Weights.empty());
  EXPECT_EQ(c.FileName, "");
  EXPECT_EQ(c.Changed, kFalse);
  EXPECT_EQ(FileErrorCode, 0);
}

TEST_F(ClassDefaultsTest, ResettingClearsTheFiguresAndTexts) {
  Class& c = Current();
  c.school = c.teacher = c.termstart = c.termend = c.timed = c.room = "x";
  c.Password = c.PercentsText = c.description = c.AverageSettings = "x";
  c.PasswordSet = 1;
  c.LastNameWidth = c.FirstNameWidth = 9;
  c.AverageFlag1 = c.AverageFlag2 = c.AverageFlag3 = c.AverageFlag4 = kTrue;
  c.AverageWork1 = c.AverageWork2 = 2;
  c.TypePercents.fill(Whole(3));
  c.TypeWeights.fill(Whole(2));
  c.LetterValues.fill(Whole(50));
  c.RoundTable[3][13] = 7;
  c.FinalGradeForm = 3;
  ResetClassSlot();
  EXPECT_EQ(c.school + c.teacher + c.termstart + c.termend + c.timed + c.room, "");
  EXPECT_EQ(c.Password + c.PercentsText + c.description + c.AverageSettings, "");
  EXPECT_EQ(c.PasswordSet, 0);
  EXPECT_EQ(c.LastNameWidth, 0);
  EXPECT_EQ(c.FirstNameWidth, 0);
  EXPECT_EQ(c.AverageFlag1 | c.AverageFlag2 | c.AverageFlag3 | c.AverageFlag4, 0);
  EXPECT_EQ(c.AverageWork1 | c.AverageWork2, 0);
  EXPECT_EQ(c.TypePercents[26], Currency());
  EXPECT_EQ(c.TypeWeights[26], Currency());
  EXPECT_EQ(c.LetterValues[13], Currency());
  EXPECT_EQ(c.RoundTable[3][13], 0.0f);
  EXPECT_EQ(c.FinalGradeForm, 0);
}

TEST_F(ClassDefaultsTest, ResettingLeavesChartsCategoriesMagicAndSlotState) {
  Class& c = Current();
  c.ChartRows = {0, 5};
  c.ChartColumns = {0, 6};
  c.Categories[2] = "Labs";
  c.Magic = "ty7";
  c.SlotState = 10;
  ResetClassSlot();
  EXPECT_EQ(c.ChartRows, (List<i16>{0, 5}));
  EXPECT_EQ(c.ChartColumns, (List<i16>{0, 6}));
  EXPECT_EQ(c.Categories[2], "Labs");
  EXPECT_EQ(c.Magic, "ty7");
  EXPECT_EQ(c.SlotState, 10);
}

TEST_F(ClassDefaultsTest, ResettingForgetsTheFileOfTheSlot) {
  CurrentClassFile().path = "/x.TYR";
  CurrentClassFile().read_failed = true;
  ResetClassSlot();
  EXPECT_EQ(CurrentClassFile().path, "");
  EXPECT_FALSE(CurrentClassFile().read_failed);
}

TEST_F(ClassDefaultsTest, DefaultLetterValues) {
  SetDefaultLetterValues();
  const int expected[] = {100, 99, 95, 90, 88, 85, 80, 78, 75, 70, 68, 65, 60, 55};
  for (std::size_t k = 0; k < 14; ++k)
    EXPECT_EQ(Current().LetterValues[k], Whole(expected[k])) << k;
}

TEST_F(ClassDefaultsTest, DefaultRoundScaleIsColumnZero) {
  Current().RoundTable[0][13] = 1;
  Current().RoundTable[1][0] = 2;
  SetDefaultRoundScale();
  const float expected[] = {99.5f, 97.0f, 92.5f, 89.0f, 86.5f, 82.5f, 78.5f,
                            76.5f, 72.5f, 68.5f, 66.5f, 62.5f, 58.5f};
  for (std::size_t k = 0; k < 13; ++k) EXPECT_EQ(Current().RoundTable[0][k], expected[k]) << k;
  EXPECT_EQ(Current().RoundTable[0][13], 1.0f);
  EXPECT_EQ(Current().RoundTable[1][0], 2.0f);
}

TEST_F(ClassDefaultsTest, LetterValuesBecomeScaleFour) {
  Class& c = Current();
  SetDefaultLetterValues();
  c.LetterValues[0] = Whole(343);
  c.LetterValues[13] = Currency::FromScaled(505000);
  UseLetterValuesAsScale();
  EXPECT_EQ(c.RoundScale, 4);
  EXPECT_EQ(c.RoundTable[4][0], 100.0f);
  EXPECT_EQ(c.RoundTable[4][1], 99.0f);
  EXPECT_EQ(c.RoundTable[4][13], 50.5f);
}

TEST_F(ClassDefaultsTest, ANewStudentGetsListsByTheCounts) {
  Class& c = Current();
  c.NumInstruments = 2;
  c.NumSummaries = 1;
  c.NumCharts = 1;
  c.NumDays = 3;
  c.NumStudents = 1;
  ReDim(c.Students, 1);
  AddStudentDefaults();
  const Student& s = c.Students[1];
  EXPECT_EQ(s.Marks, (List<ShortText>{"", "NEW", "NEW"}));
  EXPECT_EQ(s.SummaryAbsent, (List<FixedText<5>>{"", "0"}));
  EXPECT_EQ(s.SummaryLate, (List<ShortText>{"", "0"}));
  EXPECT_EQ(s.SummaryDetail, (List<ShortText>{"", " 0/ 0/ 0/ 0/"}));
  EXPECT_EQ(s.SeatRow, (List<i16>{0, -1}));
  EXPECT_EQ(s.SeatColumn, (List<i16>{0, -1}));
  EXPECT_TRUE(s.DailyMarks.empty());
}

TEST_F(ClassDefaultsTest, ANewStudentOfAnEmptyClassHasMarksDimensionedToNothing) {
  Class& c = Current();
  c.NumStudents = 1;
  AddStudentDefaults();
  const Student& s = c.Students[1];
  EXPECT_EQ(s.Marks.size(), 1u);
  EXPECT_TRUE(s.SummaryAbsent.empty());
  EXPECT_TRUE(s.SummaryLate.empty());
  EXPECT_TRUE(s.SummaryDetail.empty());
  EXPECT_TRUE(s.SeatRow.empty());
}

std::string TypeNumbers(std::string_view parted_by) {
  std::string text;
  for (int type = 1; type <= 26; ++type) {
    text += type == 1 ? "2" : type == 26 ? "1.5" : "0";
    if (type < 26) text += parted_by;
  }
  return text;
}

class SeenEntries : public ClassWindowCalls {
 public:
  SeenEntries() { SetClassWindow(this); }
  ~SeenEntries() override { SetClassWindow(nullptr); }
  void EnableEntry(std::string_view entry, bool on) override {
    seen += std::string(entry) + (on ? "+" : "-");
  }
  std::string seen;
};

TEST_F(ClassDefaultsTest, AverageSettingsGiveMethodFlagsAndTypeWeights) {
  Class& c = Current();
  SeenEntries window;
  c.AverageSettings = "3,1,0,1,1," + TypeNumbers(",");
  EXPECT_EQ(ParseAverageSettings(), 0);
  EXPECT_EQ(c.Method, 3);
  EXPECT_EQ(DefaultMethod, 3);
  EXPECT_EQ(c.AverageFlag1, kTrue);
  EXPECT_EQ(c.AverageFlag2, kFalse);
  EXPECT_EQ(c.AverageFlag3, kTrue);
  EXPECT_EQ(c.AverageFlag4, kTrue);
  EXPECT_EQ(c.TypeWeights[1], Whole(2));
  EXPECT_EQ(c.TypeWeights[2], Currency());
  EXPECT_EQ(c.TypeWeights[26], Currency::FromScaled(15000));
  EXPECT_EQ(window.seen, "mnuprtgrade+mnuoptions+");
}

TEST_F(ClassDefaultsTest, AFlagIsTrueOnlyAtOne) {
  Class& c = Current();
  c.AverageFlag3 = c.AverageFlag4 = kTrue;
  c.AverageSettings = "0,2,-1, 1,x," + TypeNumbers(",");
  EXPECT_EQ(ParseAverageSettings(), 0);
  EXPECT_EQ(c.AverageFlag1, kFalse);
  EXPECT_EQ(c.AverageFlag2, kFalse);
  EXPECT_EQ(c.AverageFlag3, kTrue);
  EXPECT_EQ(c.AverageFlag4, kFalse);
}

TEST_F(ClassDefaultsTest, BlankAverageSettingsChangeNothing) {
  Class& c = Current();
  SeenEntries window;
  c.AverageSettings = "   ";
  EXPECT_EQ(ParseAverageSettings(), 0);
  EXPECT_EQ(c.Method, 5);
  EXPECT_EQ(window.seen, "");
}

TEST_F(ClassDefaultsTest, AShortTextLeavesTheRestAtNothing) {
  Class& c = Current();
  c.AverageSettings = "2";
  EXPECT_EQ(ParseAverageSettings(), 0);
  EXPECT_EQ(c.Method, 2);
  EXPECT_EQ(c.AverageFlag1, kFalse);
  EXPECT_EQ(c.TypeWeights[26], Currency());
}

TEST_F(ClassDefaultsTest, ANumberOutOfRangeIsAnOverflow) {
  Class& c = Current();
  c.AverageSettings = "40000,1,1,1,1," + TypeNumbers(",");
  EXPECT_EQ(ParseAverageSettings(), kErrorOverflow);
  EXPECT_EQ(c.Method, 5);
  c.AverageSettings = "1,1,1,1,1,1e30,2";
  EXPECT_EQ(ParseAverageSettings(), kErrorOverflow);
  EXPECT_EQ(c.Method, 1);
}

void MakeInstruments(Class& c) {
  c.NumInstruments = 2;
  ReDim(c.Instruments, 2);
  c.Instruments[1].weight = Whole(40);
  c.Instruments[1].countflag = " N ";
  c.Instruments[2].weight = Whole(60);
  c.Instruments[2].countflag = "n";
}

TEST_F(ClassDefaultsTest, MethodZeroTakesTheInstrumentsOwnWeights) {
  Class& c = Current();
  MakeInstruments(c);
  c.Method = 0;
  EXPECT_EQ(PrepareWeights(), 0);
  EXPECT_EQ(c.Weights, (List<Currency>{Whole(0), Whole(40), Whole(60)}));
  EXPECT_EQ(c.InstrumentUse, (List<Currency>(3)));
}

TEST_F(ClassDefaultsTest, APointMethodNotesWhichInstrumentsCount) {
  Class& c = Current();
  MakeInstruments(c);
  c.Method = 2;
  EXPECT_EQ(PrepareWeights(), 0);
  EXPECT_EQ(c.Weights, (List<Currency>(3)));
  EXPECT_EQ(c.InstrumentUse, (List<Currency>{Whole(0), Whole(2), Whole(1)}));
}

TEST_F(ClassDefaultsTest, WithoutAMethodWeightsStayNothing) {
  Class& c = Current();
  MakeInstruments(c);
  EXPECT_EQ(PrepareWeights(), 0);
  EXPECT_EQ(c.Weights, (List<Currency>(3)));
}

TEST_F(ClassDefaultsTest, TypeMethodsReadThePercents) {
  for (const i16 method : {i16{1}, i16{3}}) {
    Class& c = Current();
    c.Method = method;
    c.PercentsText = TypeNumbers("\r");
    EXPECT_EQ(PrepareWeights(), 0);
    EXPECT_EQ(c.TypePercents[1], Whole(2));
    EXPECT_EQ(c.TypePercents[26], Currency::FromScaled(15000));
  }
}

TEST_F(ClassDefaultsTest, TypesWithoutPointsNoteNoInstrumentsThatCount) {
  Class& c = Current();
  MakeInstruments(c);
  c.Method = 1;
  EXPECT_EQ(PrepareWeights(), 0);
  EXPECT_EQ(c.Weights, (List<Currency>(3)));
  EXPECT_EQ(c.InstrumentUse, (List<Currency>(3)));
  c.Method = 3;
  EXPECT_EQ(PrepareWeights(), 0);
  EXPECT_EQ(c.InstrumentUse, (List<Currency>{Whole(0), Whole(2), Whole(1)}));
}

TEST_F(ClassDefaultsTest, OtherMethodsHaveNoPercents) {
  Class& c = Current();
  c.Method = 2;
  c.TypePercents.fill(Whole(9));
  c.PercentsText = TypeNumbers("\r");
  EXPECT_EQ(PrepareWeights(), 0);
  EXPECT_EQ(c.TypePercents[1], Currency());
}

TEST_F(ClassDefaultsTest, LabsNeedADropFlagUnderTypeMethods) {
  Class& c = Current();
  c.Method = 1;
  c.AverageFlag1 = kTrue;
  c.AverageFlag2 = kTrue;
  PrepareWeights();
  EXPECT_EQ(c.AverageFlag1, kTrue);
  c.AverageFlag2 = kFalse;
  c.AverageFlag4 = kTrue;
  PrepareWeights();
  EXPECT_EQ(c.AverageFlag1, kTrue);
  c.AverageFlag4 = kFalse;
  PrepareWeights();
  EXPECT_EQ(c.AverageFlag1, kFalse);
  c.Method = 2;
  c.AverageFlag1 = kTrue;
  PrepareWeights();
  EXPECT_EQ(c.AverageFlag1, kTrue);
}

TEST_F(ClassDefaultsTest, SkipRoundingPreparesItsScaleLast) {
  Class& c = Current();
  SetDefaultLetterValues();
  c.RoundMode = 0;
  PrepareWeights();
  EXPECT_EQ(c.RoundScale, 0);
  c.RoundMode = 1;
  PrepareWeights();
  EXPECT_EQ(c.RoundScale, 4);
  EXPECT_EQ(c.RoundTable[4][2], 95.0f);
}

TEST_F(ClassDefaultsTest, AHugePercentIsAnOverflow) {
  Class& c = Current();
  c.Method = 1;
  c.PercentsText = "5\r1e30\r7";
  EXPECT_EQ(PrepareWeights(), kErrorOverflow);
  EXPECT_EQ(c.TypePercents[1], Whole(5));
}

}  // namespace
}  // namespace tallyroll
