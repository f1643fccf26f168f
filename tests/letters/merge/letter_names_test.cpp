// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/merge/letter_names.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "store/program_state.h"
#include "tests/support/enrol_student.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class LetterNamesTest : public PortalTest {
 protected:
  static void Enrol(const std::string& last, const std::string& id) {
    EnrolStudent(last, "Pat", id);
  }

  static std::vector<std::string> Paths(const std::string& chosen) {
    std::vector<i16> students;
    for (i16 i = 1; i <= Current().NumStudents; ++i) students.push_back(i);
    names = NamesOfStudentLetters(chosen, students);
    std::vector<std::string> paths;
    for (const StudentLetterName& name : names.letters) paths.push_back(name.path);
    return paths;
  }

  static inline StudentLetterNames names;
};

TEST_F(LetterNamesTest, TheLastNameIsAddedToTheChosenName) {
  Enrol(" Ng ", "12");
  EXPECT_THAT(Paths("/home/me/May.12.rtf"), ElementsAre("/home/me/May.12_Ng.RTF"));
  EXPECT_THAT(Paths("/home/me/letter.txt"), ElementsAre("/home/me/letter_Ng.TXT"));
  EXPECT_THAT(Paths("letter"), ElementsAre("letter_Ng.TXT"));
  EXPECT_THAT(names.notices, IsEmpty());
}

TEST_F(LetterNamesTest, OrTheIdWhereNamesAreNotShown) {
  Enrol("Ng", " 12 ");
  for (const i16 mode : {i16{73}, i16{82}}) {
    NameMode = mode;
    EXPECT_THAT(Paths("/a/l.rtf"), ElementsAre("/a/l_12.RTF"));
  }
  NameMode = 57;
  EXPECT_THAT(Paths("/a/l.rtf"), ElementsAre("/a/l_Ng.RTF"));
}

TEST_F(LetterNamesTest, TheSecondOfANameHasItsIdAdded) {
  Enrol("Ng", "12");
  Enrol("NG", "13");
  Enrol("Ng", "13");
  Enrol("Ng", "");
  EXPECT_THAT(Paths("/a/l.rtf"),
              ElementsAre("/a/l_Ng.RTF", "/a/l_NG_13.RTF", "/a/l_Ng_13_2.RTF", "/a/l_Ng_2.RTF"));
  ASSERT_EQ(names.notices.size(), 3u);
  EXPECT_EQ(names.notices[0], "There are two letters for NG: that of NG, Pat is l_NG_13.RTF");
}

TEST_F(LetterNamesTest, WhatNoFileSystemTakesIsReplaced) {
  Enrol("../O'Brien", "1");
  Enrol("a/b\\c:d*e?f\"g<h>i|j\x01", "2");
  Enrol("Jr.", "3");
  EXPECT_THAT(Paths("/a/l.rtf"),
              ElementsAre("/a/l_..-O'Brien.RTF", "/a/l_a-b-c-d-e-f-g-h-i-j-.RTF", "/a/l_Jr.RTF"));
}

TEST_F(LetterNamesTest, WithoutANameTheIdServesAndWithoutBothANumber) {
  Enrol("", "7");
  Enrol("", "");
  Enrol("...", "");
  EXPECT_THAT(Paths("/a/l.rtf"), ElementsAre("/a/l_7.RTF", "/a/l_2.RTF", "/a/l_3.RTF"));
}

TEST_F(LetterNamesTest, NamesAreUtf8AndNeverTooLong) {
  Enrol("M\xFCller", "1");
  Enrol(std::string(3000, 'x'), "2");
  const std::vector<std::string> paths = Paths("/a/l.rtf");
  EXPECT_EQ(paths[0], "/a/l_M\xC3\xBCller.RTF");
  EXPECT_EQ(paths[1], "/a/l_" + std::string(60, 'x') + ".RTF");
}

}  // namespace
}  // namespace tallyroll
