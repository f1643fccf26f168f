// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/change/earlier_state.h"

#include "base/text.h"
#include "store/derived_values.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class EarlierStateTest : public ShellTest {
 protected:
  using Texts = std::vector<std::string>;

  // Three students and three grades; each mark is its student's number and its grade's.
  static Class Then() {
    Class c = Sample(3, 3);
    constexpr const char* kTitles[] = {"", "Quiz", "Test", "Essay"};
    for (std::size_t g = 1; g <= 3; ++g) {
      c.Instruments[g].title = kTitles[g];
      c.Instruments[g].typecode = "Q";
      for (std::size_t s = 1; s <= 3; ++s)
        c.Students[s].Marks[g] = PlainNumberText(static_cast<std::int64_t>(10 * s + g));
    }
    ReDim(c.Weights, 3);
    ReDim(c.InstrumentUse, 3);
    return c;
  }
  static Texts MarksOf(const Class& c, std::size_t student) {
    Texts marks;
    for (std::size_t g = 1; g < c.Students[student].Marks.size(); ++g)
      marks.emplace_back(Trim(c.Students[student].Marks[g]));
    return marks;
  }
  static std::string BytesOf(const Class& c) {
    std::string bytes;
    EXPECT_EQ(SerializeClass(c, bytes), 0);
    return bytes;
  }
};

TEST_F(EarlierStateTest, AStudentComesBackWithAllMarksAndTheOthersStay) {
  const Class then = Then();
  Class now = then;
  now.Students[2].Marks = {"", "1", "2", "3"};
  now.Students[2].phone = "555";
  now.Students[3].Marks[1] = "99";
  EXPECT_EQ(TakeBackStudent(then, 2, now), "");
  EXPECT_EQ(MarksOf(now, 2), (Texts{"21", "22", "23"}));
  EXPECT_EQ(now.Students[2].phone, "");
  EXPECT_EQ(MarksOf(now, 3), (Texts{"99", "32", "33"}));
  EXPECT_EQ(now.Changed, kTrue);
}

TEST_F(EarlierStateTest, AMarkOfAGradeThatIsNewStays) {
  const Class then = Then();
  Class now = then;
  now.NumInstruments = 4;
  ReDimPreserve(now.Instruments, 4);
  now.Instruments[4].title = "Late";
  for (std::size_t s = 1; s <= 3; ++s) {
    now.Students[s].Marks[1] = "0";
    now.Students[s].Marks.emplace_back("77");
  }
  EXPECT_EQ(TakeBackStudent(then, 1, now), "");
  EXPECT_EQ(MarksOf(now, 1), (Texts{"11", "12", "13", "77"}));
}

TEST_F(EarlierStateTest, ADeletedStudentComesBackToHisPlaceWithoutASeat) {
  Class then = Then();
  then.NumCharts = 1;
  for (std::size_t s = 1; s <= 3; ++s) {
    then.Students[s].SeatRow = {0, 2};
    then.Students[s].SeatColumn = {0, static_cast<i16>(s)};
  }
  Class now = then;
  now.Students.erase(now.Students.begin() + 2);
  now.NumStudents = 2;
  EXPECT_EQ(TakeBackStudent(then, 2, now), "");
  ASSERT_EQ(now.NumStudents, 3);
  ASSERT_EQ(now.Students.size(), 4U);
  EXPECT_EQ(now.Students[2].lastname, "Last02");
  EXPECT_EQ(MarksOf(now, 2), (Texts{"21", "22", "23"}));
  EXPECT_EQ(now.Students[2].SeatRow, (List<i16>{0, kNotSeated}));
}

TEST_F(EarlierStateTest, AnIdThatSomebodyElseHasNowIsNotGivenTwice) {
  const Class then = Then();
  Class now = then;
  now.Students[1].id = "102";
  now.Students[2].id = "202";
  now.Students[2].Marks[1] = "0";
  now.Students[3].id = "102";
  EXPECT_EQ(TakeBackStudent(then, 2, now), "Last01, First01 has the ID of that student now.");
  EXPECT_EQ(now.Students[2].Marks[1], "0");
}

TEST_F(EarlierStateTest, AttendanceComesBackByItsDate) {
  Class then = Then();
  const auto set_days = [](Class& c, double first, int count) {
    c.NumDays = static_cast<i16>(count);
    ReDim(c.AttendanceDays, count);
    for (int d = 1; d <= count; ++d)
      c.AttendanceDays[static_cast<std::size_t>(d)].date = first + d - 1;
    for (std::size_t s = 1; s <= 3; ++s) ReDim(c.Students[s].DailyMarks, count);
  };
  set_days(then, 46000, 3);
  then.Students[1].DailyMarks = {FixedText<1>(), "A", "L", "E"};
  Class now = Then();
  set_days(now, 46001, 3);
  now.Students[1].DailyMarks = {FixedText<1>(), " ", " ", "C"};
  EXPECT_EQ(TakeBackStudent(then, 1, now), "");
  EXPECT_EQ(now.Students[1].DailyMarks, (List<FixedText<1>>{FixedText<1>(), "L", "E", "C"}));
}

TEST_F(EarlierStateTest, AGradeComesBackForEverybodyWhoIsThere) {
  const Class then = Then();
  Class now = then;
  now.Instruments[2].mvalue = 50;
  for (std::size_t s = 1; s <= 3; ++s) now.Students[s].Marks[2] = "0";
  EXPECT_EQ(TakeBackGrade(then, 2, now), "");
  EXPECT_EQ(now.Instruments[2].mvalue, 100);
  for (std::size_t s = 1; s <= 3; ++s)
    EXPECT_EQ(now.Students[s].Marks[2], PlainNumberText(static_cast<std::int64_t>(10 * s + 2)));
}

TEST_F(EarlierStateTest, ADeletedGradeComesBackToItsPlace) {
  const Class then = Then();
  Class now = then;
  now.NumInstruments = 2;
  now.Instruments.erase(now.Instruments.begin() + 2);
  now.Weights.pop_back();
  now.InstrumentUse.pop_back();
  for (std::size_t s = 1; s <= 3; ++s)
    now.Students[s].Marks.erase(now.Students[s].Marks.begin() + 2);
  now.NumStudents = 4;
  ReDimPreserve(now.Students, 4);
  now.Students[4].lastname = "New";
  now.Students[4].id = "900";
  now.Students[4].Marks = {"", "5", "6"};
  EXPECT_EQ(TakeBackGrade(then, 2, now), "");
  EXPECT_EQ(now.NumInstruments, 3);
  EXPECT_EQ(now.Instruments[2].title, "Test");
  EXPECT_EQ(MarksOf(now, 1), (Texts{"11", "12", "13"}));
  EXPECT_EQ(MarksOf(now, 4), (Texts{"5", "NEW", "6"}));
  EXPECT_EQ(now.Weights.size(), 4U);
  EXPECT_EQ(now.InstrumentUse.size(), 4U);
}

// As many grades as then, but another one stands in the place of the deleted one.
TEST_F(EarlierStateTest, ANewGradeInThePlaceOfADeletedOneKeepsItsMarks) {
  const Class then = Then();
  Class now = then;
  now.Instruments[2].title = "Project";
  now.Instruments[2].code = "PR";
  for (std::size_t s = 1; s <= 3; ++s) now.Students[s].Marks[2] = "55";
  EXPECT_EQ(TakeBackStudent(then, 1, now), "");
  EXPECT_EQ(MarksOf(now, 1), (Texts{"11", "55", "13"}));
  EXPECT_EQ(TakeBackGrade(then, 2, now), "");
  EXPECT_EQ(now.NumInstruments, 4);
  EXPECT_EQ(MarksOf(now, 1), (Texts{"11", "12", "55", "13"}));
  EXPECT_EQ(MarksOf(now, 2), (Texts{"21", "22", "55", "23"}));
}

TEST_F(EarlierStateTest, TheWholeClassComesBackByteForByteButForItsPassword) {
  Form1& window = Open("A.TYR", Then());
  const std::string then = BytesOf(Current());
  Current().Students.pop_back();
  Current().NumStudents = 2;
  Current().room = "12";
  const std::string file = Current().FileName;
  EXPECT_EQ(PutState(then), 0);
  EXPECT_EQ(BytesOf(Current()), then);
  EXPECT_EQ(Current().FileName, file);
  EXPECT_EQ(Current().SlotState, 10);
  EXPECT_EQ(Current().Changed, kTrue);
  Current().PasswordSet = 1;
  Current().Password = "xyz";
  EXPECT_EQ(PutState(then), 0);
  EXPECT_EQ(Current().PasswordSet, 1);
  EXPECT_EQ(Current().Password, "xyz");
  EXPECT_EQ(window.Caption, "A.TYR");
}

TEST_F(EarlierStateTest, BytesOfNoClassChangeNothing) {
  Open("A.TYR", Then());
  const std::string before = BytesOf(Current());
  EXPECT_NE(PutState(before.substr(0, before.size() / 2)), 0);
  EXPECT_EQ(BytesOf(Current()), before);
}

}  // namespace
}  // namespace tallyroll
