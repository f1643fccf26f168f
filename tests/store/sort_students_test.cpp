// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/sort_students.h"

#include <gtest/gtest.h>

#include <random>

#include "store/program_state.h"

namespace tallyroll {
namespace {

struct Name {
  std::string lastname, firstname, id;
};

class SortStudentsTest : public ::testing::Test {
 protected:
  void SetUp() override { ResetStore(); }
  void TearDown() override { ResetStore(); }

  void Enrol(const std::vector<Name>& names) {
    Class& c = Current();
    c.NumStudents = static_cast<i16>(names.size());
    ReDim(c.Students, c.NumStudents);
    for (std::size_t i = 0; i < names.size(); ++i) {
      Student& s = c.Students[i + 1];
      s.lastname = names[i].lastname;
      s.firstname = names[i].firstname;
      s.id = names[i].id;
      s.comments = names[i].id;
    }
  }
  // The comments, which travel with their students.
  std::string Order() {
    std::string order;
    for (int i = 1; i <= Current().NumStudents; ++i) {
      order += Current().Students[static_cast<std::size_t>(i)].comments + " ";
    }
    return order;
  }
};

TEST_F(SortStudentsTest, ByNameBelowMode73) {
  for (const int mode : {68, 57, 72}) {
    Enrol({{"Cole", "A", "1"}, {"Adams", "B", "3"}, {"Adams", "A", "2"}});
    NameMode = static_cast<i16>(mode);
    SortStudents();
    EXPECT_EQ(Order(), "2 3 1 ") << mode;
  }
}

TEST_F(SortStudentsTest, ByIdFromMode73) {
  for (const int mode : {73, 82}) {
    Enrol({{"Adams", "A", "9"}, {"Baker", "B", "10"}, {"Cole", "C", "1"}});
    NameMode = static_cast<i16>(mode);
    SortStudents();
    EXPECT_EQ(Order(), "1 10 9 ") << mode;
  }
}

TEST_F(SortStudentsTest, NamesAreComparedAsOneText) {
  // "LeeAnn" against "LeeaBob": "A" comes before "a", though "Lee" is the shorter lastname.
  Enrol({{"Leea", "Bob", "1"}, {"Lee", "Ann", "2"}, {"LeeA", "", "3"}});
  SortStudents();
  EXPECT_EQ(Order(), "3 2 1 ");
}

TEST_F(SortStudentsTest, RawBytesUntrimmedAndUnsigned) {
  Enrol({{"\xC9mile", "", "1"}, {"Zoe", "", "2"}, {"adams", "", "3"}, {" Young", "", "4"}});
  SortStudents();
  EXPECT_EQ(Order(), "4 2 3 1 ");
}

TEST_F(SortStudentsTest, AShorterKeyComesFirstEvenBeforeAZeroByte) {
  Enrol({{std::string("Ab\0", 3), "", "1"}, {"Ab", "", "2"}, {"", "", "3"}});
  SortStudents();
  EXPECT_EQ(Order(), "3 2 1 ");
}

TEST_F(SortStudentsTest, AKeyThatGoesOnBehindEightLettersComesBehind) {
  Enrol({{"Abcdefghi", "", "2"}, {"Abcdefgh", "", "1"}, {"Abcdefgha", "", "0"}});
  SortStudents();
  EXPECT_EQ(Order(), "1 0 2 ");
}

TEST_F(SortStudentsTest, NoStudentsAndOne) {
  Enrol({});
  SortStudents();
  EXPECT_EQ(Order(), "");
  Current().Students.clear();
  SortStudents();
  Enrol({{"A", "B", "1"}});
  SortStudents();
  EXPECT_EQ(Order(), "1 ");
}

// With four students the gaps are 2 and 1.
TEST_F(SortStudentsTest, EqualKeysEndWhereTheGapsCarryThem) {
  Enrol({{"B", "", "1"}, {"B", "", "2"}, {"A", "", "3"}, {"B", "", "4"}});
  SortStudents();
  // Gap 2: (1,3) swap gives 3 2 1 4; (2,4) equal stay. Gap 1: no earlier is greater.
  EXPECT_EQ(Order(), "3 2 1 4 ");
}

// The sort in its plainest form, on whole records.
void PlainShellSort(std::vector<Name>& names) {
  const auto half = [](int n) { return n % 4 == 3 ? n / 2 + 1 : n / 2; };
  const auto key = [](const Name& n) { return n.lastname + n.firstname; };
  const int count = static_cast<int>(names.size());
  for (int gap = half(count + 1); gap > 0; gap = half(gap)) {
    for (int i = gap; i < count; ++i) {
      for (int j = i - gap; j >= 0; j -= gap) {
        Name& earlier = names[static_cast<std::size_t>(j)];
        Name& later = names[static_cast<std::size_t>(j + gap)];
        if (key(earlier) <= key(later)) break;
        std::swap(earlier, later);
      }
    }
  }
}

TEST_F(SortStudentsTest, SameOrderAsSwappingWholeRecords) {
  std::mt19937 random(5);
  for (int count = 0; count < 120; ++count) {
    std::vector<Name> names;
    for (int i = 0; i < count; ++i) {
      // Few different names, so that many keys are equal, some of them long.
      const std::string long_part(random() % 2 * 9, 'x');
      names.push_back({long_part + static_cast<char>('A' + random() % 5),
                       std::string(1, static_cast<char>('a' + random() % 2)), std::to_string(i)});
    }
    Enrol(names);
    SortStudents();
    PlainShellSort(names);
    std::string expected;
    for (const Name& name : names) expected += name.id + " ";
    ASSERT_EQ(Order(), expected) << count;
  }
}

}  // namespace
}  // namespace tallyroll
