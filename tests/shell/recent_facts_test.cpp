// SPDX-License-Identifier: GPL-3.0-or-later
// What the start page tells of a class file without opening it.
#include "shell/recent_facts.h"

#include <fstream>

#include "base/date_serial.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

class RecentFactsTest : public ShellTest {
 protected:
  static Class Described() {
    Class c = Sample(28);
    c.description = "Mathematics 8  ";
    return c;
  }
  std::string WithoutDay(const std::string& path) {
    RecentFacts facts = FactsOfFile(path);
    EXPECT_GT(facts.saved, DateSerial({2020, 1, 1}));
    facts.saved = 0;
    return TextOfFacts(facts);
  }
};

TEST_F(RecentFactsTest, DescriptionAndNumberOfStudents) {
  EXPECT_EQ(WithoutDay(MakeFile("A.TYR", Described())), "Mathematics 8, 28 students");
  EXPECT_EQ(WithoutDay(MakeFile("B.TYR", Sample(1))), "1 student");
  EXPECT_TRUE(screen.boxes.empty());
}

TEST_F(RecentFactsTest, TheDayOfTheLastSaveStandsInTheTeachersOrder) {
  RecentFacts facts = FactsOfFile(MakeFile("A.TYR", Described()));
  facts.saved = DateSerial({2026, 9, 18});
  EXPECT_EQ(TextOfFacts(facts), "Mathematics 8, 28 students, 9/18/2026");
}

TEST_F(RecentFactsTest, AClassWithAPasswordTellsNothingOfItself) {
  Class c = Described();
  c.PasswordSet = 1;
  EXPECT_EQ(WithoutDay(MakeFile("A.TYR", c)), "With a password");
}

TEST_F(RecentFactsTest, AFileThatIsNoClassTellsItsDayAlone) {
  const std::string path = Path("X.TYR");
  std::ofstream(path) << "a letter";
  EXPECT_EQ(WithoutDay(path), "");
  std::ofstream(Path("EMPTY.TYR"));
  EXPECT_EQ(WithoutDay(Path("EMPTY.TYR")), "");
}

TEST_F(RecentFactsTest, AFileThatIsGoneIsTold) {
  EXPECT_EQ(TextOfFacts(FactsOfFile(Path("GONE.TYR"))), "Not found");
  EXPECT_EQ(TextOfFacts(FactsOfFile("")), "Not found");
}

}  // namespace
}  // namespace tallyroll
