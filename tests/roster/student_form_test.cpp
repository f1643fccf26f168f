// SPDX-License-Identifier: GPL-3.0-or-later
#include "roster/student_form.h"

#include <gtest/gtest.h>

namespace tallyroll {
namespace {

TextBox BoxWith(const std::string& text) {
  TextBox box;
  box.Text = text;
  return box;
}

TEST(LimitNames, EachNameTakesWhatTheOtherLeavesOf30Characters) {
  TextBox lastname = BoxWith("Abernathy");
  TextBox firstname = BoxWith("Zoe");
  LimitNames(lastname, firstname);
  EXPECT_EQ(firstname.MaxLength, 21);
  EXPECT_EQ(lastname.MaxLength, 27);
}

TEST(LimitNames, ALastNameOf30CharactersLeavesTheFirstNameNothing) {
  TextBox lastname = BoxWith(std::string(30, 'x'));
  TextBox firstname;
  LimitNames(lastname, firstname);
  EXPECT_EQ(firstname.MaxLength, -1);  // 0 would be no limit
  EXPECT_EQ(lastname.MaxLength, 30);
}

TEST(LimitNames, BlanksAroundANameDoNotCount) {
  TextBox lastname = BoxWith(" Ng  ");
  TextBox firstname;
  LimitNames(lastname, firstname);
  EXPECT_EQ(firstname.MaxLength, 28);
}

TEST(LimitNames, NamesThatAreAlreadyLongerAreNotCut) {
  TextBox lastname = BoxWith(std::string(28, 'x'));
  TextBox firstname = BoxWith("Benjamin");
  LimitNames(lastname, firstname);
  EXPECT_EQ(firstname.MaxLength, 8);
  EXPECT_EQ(lastname.MaxLength, 28);
}

}  // namespace
}  // namespace tallyroll
