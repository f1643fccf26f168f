// SPDX-License-Identifier: GPL-3.0-or-later
// Every kind of move of the range, as pictures of before and after.
#include "tests/attendance/frmatset_test.h"

namespace tallyroll {
namespace {

struct Move {
  const char* name;
  TermMonth first, last;
  std::vector<std::pair<CivilDate, const char*>> marks;
  int start, end;  // months that the buttons are pressed
  std::vector<std::string> questions;
  int days;
  const char* after;
  int moved, lost;  // marks under other dates, and gone
};

// September 2026 to June 2027, with marks at both edges of every month that a move touches.
const std::vector<std::pair<CivilDate, const char*>> kTerm = {{{2026, 9, 1}, "A"},
                                                              {{2026, 9, 30}, "C"},
                                                              {{2026, 10, 1}, "E"},
                                                              {{2027, 5, 31}, "S"},
                                                              {{2027, 6, 30}, "L"}};
// The same over two years.
const std::vector<std::pair<CivilDate, const char*>> kTwoYears = {
    {{2026, 9, 1}, "A"}, {{2027, 6, 30}, "L"}, {{2027, 9, 1}, "C"}, {{2028, 6, 30}, "S"}};

const Move kMoves[] = {
    {"start one month later",
     {9, 2026},
     {6, 2027},
     kTerm,
     1,
     0,
     {kStartsLater},
     273,
     "10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     2},
    {"start later, into the next year",
     {9, 2026},
     {6, 2027},
     kTerm,
     4,
     0,
     {kStartsLater},
     181,
     "5/31/2027 S, 6/30/2027 L",
     0,
     3},
    {"start one month earlier",
     {9, 2026},
     {6, 2027},
     kTerm,
     -1,
     0,
     {},
     334,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     0},
    {"start earlier, into the year before",
     {9, 2026},
     {6, 2027},
     kTerm,
     -9,
     0,
     {},
     577,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     0},
    {"start a year earlier: nobody asks, marks stay in place",
     {9, 2026},
     {6, 2027},
     kTerm,
     -12,
     0,
     {},
     668,
     "9/1/2025 A, 9/30/2025 C, 10/1/2025 E, 5/31/2026 S, 6/30/2026 L",
     5,
     0},
    {"start a year later: nobody asks, marks stay in place",
     {9, 2026},
     {6, 2028},
     kTwoYears,
     12,
     0,
     {},
     304,
     "9/1/2027 A, 6/29/2028 L",
     2,
     2},
    {"start thirteen months later: nobody asks, marks stay in place",
     {9, 2026},
     {6, 2028},
     kTwoYears,
     13,
     0,
     {},
     274,
     "10/1/2027 A",
     1,
     3},
    {"start thirteen months later and end earlier: the higher month takes that question along",
     {9, 2026},
     {6, 2028},
     kTwoYears,
     13,
     -1,
     {},
     244,
     "10/1/2027 A",
     1,
     3},
    {"start thirteen months earlier: nobody asks, marks stay in place",
     {9, 2026},
     {6, 2027},
     kTerm,
     -13,
     0,
     {},
     699,
     "8/1/2025 A, 8/30/2025 C, 8/31/2025 E, 4/30/2026 S, 5/30/2026 L",
     5,
     0},
    {"start earlier and end a year earlier: nobody asks",
     {9, 2026},
     {6, 2028},
     kTwoYears,
     -1,
     -12,
     {},
     334,
     "9/1/2026 A, 6/30/2027 L",
     0,
     2},
    {"start earlier, into the year before, and end a year and a month earlier: nobody asks",
     {9, 2026},
     {6, 2028},
     kTwoYears,
     -9,
     -13,
     {},
     547,
     "9/1/2026 A",
     0,
     3},
    {"both before the old start, the end by two years: nothing of the old range is left",
     {9, 2026},
     {6, 2028},
     kTwoYears,
     -9,
     -24,
     {},
     212,
     "",
     0,
     4},
    {"end one month earlier",
     {9, 2026},
     {6, 2027},
     kTerm,
     0,
     -1,
     {kEndsEarlier},
     273,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S",
     0,
     1},
    {"end earlier, into the year before",
     {9, 2026},
     {6, 2027},
     kTerm,
     0,
     -7,
     {kEndsEarlier},
     91,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E",
     0,
     2},
    {"end earlier, in a December",
     {9, 2026},
     {6, 2027},
     kTerm,
     0,
     -6,
     {kEndsEarlier},
     122,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E",
     0,
     2},
    {"end a year earlier: nobody asks",
     {9, 2026},
     {6, 2028},
     kTwoYears,
     0,
     -12,
     {},
     303,
     "9/1/2026 A, 6/30/2027 L",
     0,
     2},
    {"end one month later",
     {9, 2026},
     {6, 2027},
     kTerm,
     0,
     1,
     {},
     334,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     0},
    {"end later, into the next year",
     {9, 2026},
     {6, 2027},
     kTerm,
     0,
     7,
     {},
     518,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     0},
    {"start later and end earlier: one question",
     {9, 2026},
     {6, 2027},
     kTerm,
     1,
     -1,
     {kStartsLater},
     243,
     "10/1/2026 E, 5/31/2027 S",
     0,
     3},
    {"start in a later year and end earlier: two questions",
     {9, 2026},
     {6, 2027},
     kTerm,
     4,
     -1,
     {kStartsLater, kEndsEarlier},
     151,
     "5/31/2027 S",
     0,
     4},
    {"start earlier and end earlier",
     {9, 2026},
     {6, 2027},
     kTerm,
     -1,
     -1,
     {kEndsEarlier},
     304,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S",
     0,
     1},
    {"start earlier and end later",
     {9, 2026},
     {6, 2027},
     kTerm,
     -1,
     1,
     {},
     365,
     "9/1/2026 A, 9/30/2026 C, 10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     0},
    {"start later and end later",
     {9, 2026},
     {6, 2027},
     kTerm,
     1,
     1,
     {kStartsLater},
     304,
     "10/1/2026 E, 5/31/2027 S, 6/30/2027 L",
     0,
     2},
    {"both a year later: nobody asks, marks stay in place",
     {9, 2026},
     {6, 2027},
     kTerm,
     12,
     12,
     {},
     304,
     "9/1/2027 A, 9/30/2027 C, 10/1/2027 E, 5/30/2028 S, 6/29/2028 L",
     5,
     0},
    {"behind the old end, where nothing of the old range is left",
     {9, 2026},
     {9, 2026},
     {{{2026, 9, 1}, "A"}, {{2026, 9, 30}, "C"}},
     3,
     3,
     {kStartsLater},
     31,
     "",
     0,
     2},
    {"behind the old end by less than its length: the last days come along",
     {9, 2026},
     {10, 2026},
     {{{2026, 9, 1}, "A"}, {{2026, 10, 1}, "E"}, {{2026, 10, 31}, "S"}},
     3,
     2,
     {kStartsLater},
     31,
     "12/30/2026 S",
     1,
     2},
};

class RangeMoveTest : public FrmatsetTest, public testing::WithParamInterface<Move> {
 protected:
  void Press() {
    LoadTermGrid();
    frmatset portal;
    Open(portal);
    StepStart(GetParam().start);
    StepEnd(GetParam().end);
    for (const std::string& question : GetParam().questions) screen.ExpectBox(question);
    driver->Press("OKButton");
    EXPECT_TRUE(portal.Unloaded());
    EXPECT_EQ(screen.boxes.size(), GetParam().questions.size());
    EXPECT_EQ(Current().NumDays, GetParam().days);
    EXPECT_EQ(Grid2.Days(), GetParam().days);
  }
};

TEST_P(RangeMoveTest, PutsTheMarksWhereThePictureHasThem) {
  const Move& move = GetParam();
  SetRange(move.first, move.last);
  for (const auto& [date, code] : move.marks) Mark(1, DateSerial(date), code);
  const int before = static_cast<int>(move.marks.size());
  Press();
  EXPECT_EQ(Grid2.MarksUnderOtherDates(), move.moved);
  EXPECT_EQ(before - Grid2.MarkCount(), move.lost);
  StoreDailyMarks();
  EXPECT_EQ(Picture(1), move.after);
}

TEST_P(RangeMoveTest, MovesNothingWithoutMarks) {
  SetRange(GetParam().first, GetParam().last);
  Press();
  StoreDailyMarks();
  EXPECT_EQ(Picture(1), "");
}

INSTANTIATE_TEST_SUITE_P(Moves, RangeMoveTest, testing::ValuesIn(kMoves),
                         [](const testing::TestParamInfo<Move>& move) {
                           std::string name(move.param.name);
                           std::erase_if(name, [](char c) { return !std::isalpha(c); });
                           return name;
                         });

TEST_F(FrmatsetTest, TheOldMonthsSetAgainBringTheMarksBackUnderTheirDates) {
  SetRange({9, 2026}, {6, 2027});
  for (const auto& [date, code] : kTerm) Mark(1, DateSerial(date), code);
  const std::string before = Picture(1);
  for (const int months : {12, -12}) {
    LoadTermGrid();
    frmatset portal;
    Open(portal);
    StepStart(months);
    StepEnd(months);
    driver->Press("OKButton");
    StoreDailyMarks();
  }
  EXPECT_EQ(Picture(1), before);
}

}  // namespace
}  // namespace tallyroll
