// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/student_names.h"

#include <gtest/gtest.h>

#include "store/program_state.h"

namespace tallyroll {
namespace {

class StudentNamesTest : public testing::Test {
 protected:
  StudentNamesTest() {
    ResetStore();
    ada.lastname = " Ng ";
    ada.firstname = "Ada  ";
    ada.id = "7  ";
  }
  ~StudentNamesTest() override { ResetStore(); }

  Student ada;
};

TEST_F(StudentNamesTest, ThePlainNameIsTrimmedAndPartedByACommaAndABlank) {
  EXPECT_EQ(PlainName(ada), "Ng, Ada");
}

TEST_F(StudentNamesTest, TheNumberedNameLeadsWithTheSignColumnOfItsNumber) {
  EXPECT_EQ(NumberedName(1, ada), " 1 Ng, Ada");
  EXPECT_EQ(NumberedName(26, ada), " 26 Ng, Ada");
}

TEST_F(StudentNamesTest, WithTheNameFirstAListLineIsNameTabId) {
  NameMode = 68;
  EXPECT_EQ(StudentListLine(ada), "Ng, Ada\t7");
}

TEST_F(StudentNamesTest, WithoutIdAListLineIsTheNameAlone) {
  NameMode = 57;
  EXPECT_EQ(StudentListLine(ada), "Ng, Ada");
}

TEST_F(StudentNamesTest, WithTheIdFirstAListLineIsIdTabName) {
  NameMode = 82;
  EXPECT_EQ(StudentListLine(ada), "7\tNg, Ada");
}

TEST_F(StudentNamesTest, WithoutNameAListLineIsTheIdAlone) {
  NameMode = 73;
  EXPECT_EQ(StudentListLine(ada), "7");
}

}  // namespace
}  // namespace tallyroll
