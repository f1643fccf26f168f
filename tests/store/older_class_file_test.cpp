// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/older_class_file.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "store/check_class.h"
#include "store/mend_class.h"
#include "tests/support/file_bytes.h"

namespace tallyroll {
namespace {

void AddHeader(FileBytes& f, bool ty7) {
  f.Raw(ty7 ? "ty7" : "ty5").Fixed("pw", 10).I16(1).I16(1).I16(2).I16(1).I16(1);
  f.List(1).I16(0).I16(4).List(1).I16(0).I16(6).I16(1);
  f.Fixed("Mr B", 20).Fixed("9/1/1999", 15).Fixed("6/30/2000", 15).Fixed("3rd", 15);
  f.Fixed("Algebra", 30).Fixed("B 12", 6).Text("10\r20");
  if (ty7) f.List(1).Raw("\1\2\3\4\5\6\7\10").Raw("ABCDEFGH").Text("0,1,0,0,0,");
}

void AddStudent(FileBytes& f, bool ty7) {
  f.Fixed("Adams", 12).Fixed("Ann", 10).Fixed("17", 9).Fixed("Mr A", 30).Fixed("555-1", 14);
  f.Fixed("555-2", 14).Fixed("1 Elm St", 50).Fixed("Town", 15).Fixed("NY", 2).Fixed("10001", 10);
  f.Fixed("1/1/1985", 14);
  const std::size_t mark_width = ty7 ? 5 : 3;
  f.List(1).Fixed("", mark_width).Fixed("95", mark_width);
  f.List(2).Raw(" AL").List(1).Fixed("", 5).Fixed("3", 5);
  f.List(1).I16(0).I16(2).List(1).I16(0).I16(-1).Text("comment").Text("a@b.c");
  if (ty7) f.Text("unused").Text("unused too");
}

void AddTheRest(FileBytes& f) {
  f.Fixed("Quiz 1", 50).Fixed("Q1", 5).Money(405000).I16(100).Fixed("Y", 1).Fixed("9/9/1999", 10);
  f.Fixed("60", 4).Text("?").Fixed("Q", 2).Fixed("??", 2).Fixed("????????", 8).Text("?");
  f.Date(36404).Raw(" ").Text("").Date(36405).Raw("x").Text("note");
  f.Fixed("Term 1", 50).Fixed("T1", 5).I16(2).I16(-7).Fixed("9/1/1999", 10).Fixed("9/2/1999", 10);
}

std::string OldFile(bool ty7) {
  FileBytes f;
  AddHeader(f, ty7);
  AddStudent(f, ty7);
  AddTheRest(f);
  return f.bytes;
}

void ExpectWhatBothFormatsHold(const Class& c) {
  EXPECT_EQ(c.Password, "pw");
  EXPECT_EQ(c.PasswordSet, 1);
  EXPECT_EQ(c.ChartRows, (List<i16>{0, 4}));
  EXPECT_EQ(c.ChartColumns, (List<i16>{0, 6}));
  EXPECT_EQ(c.teacher + "|" + c.termstart + "|" + c.termend, "Mr B|9/1/1999|6/30/2000");
  EXPECT_EQ(c.timed + "|" + c.description + "|" + c.room, "3rd|Algebra|B 12");
  EXPECT_EQ(c.PercentsText, "10\r20");
  const Student& s = c.Students[1];
  EXPECT_EQ(s.lastname + "|" + s.firstname + "|" + s.id + "|" + s.parent, "Adams|Ann|17|Mr A");
  EXPECT_EQ(s.phone + "|" + s.work + "|" + s.address, "555-1|555-2|1 Elm St");
  EXPECT_EQ(s.city + "|" + s.state + "|" + s.zip + "|" + s.birth, "Town|NY|10001|1/1/1985");
  EXPECT_EQ(s.Marks, (List<ShortText>{"", "95"}));
  EXPECT_EQ(s.DailyMarks, (List<FixedText<1>>{" ", "A", "L"}));
  EXPECT_EQ(s.SummaryAbsent, (List<FixedText<5>>{"", "3"}));
  EXPECT_EQ(s.SeatRow, (List<i16>{0, 2}));
  EXPECT_EQ(s.SeatColumn, (List<i16>{0, -1}));
  EXPECT_EQ(s.comments + "|" + s.email, "comment|a@b.c");
  const Instrument& i = c.Instruments[1];
  EXPECT_EQ(i.title + "|" + i.code + "|" + i.dropyn, "Quiz 1|Q1|Y");
  EXPECT_EQ(i.weight.scaled(), 405000);
  EXPECT_EQ(i.mvalue, 100);
  EXPECT_EQ(i.testdate + "|" + i.lowpass + "|" + i.typecode, "9/9/1999|60|Q");
  EXPECT_EQ(c.AttendanceDays[2].date, 36405);
  EXPECT_EQ(c.AttendanceDays[2].daynote, "note");
  const AttendanceSummary& period = c.Summaries[1];
  EXPECT_EQ(period.title + "|" + period.code, "Term 1|T1");
  EXPECT_EQ(period.kind, 2);
  EXPECT_EQ(period.rangenumber, -7);
  EXPECT_EQ(period.startdate + "|" + period.enddate, "9/1/1999|9/2/1999");
}

TEST(OlderClassFileTest, Ty7HasAverageSettingsAndMarksOfFive) {
  const std::string bytes = OldFile(true);
  Class c;
  const ParseOutcome outcome = ParseOldClass(bytes, c);
  ASSERT_EQ(outcome.error, 0);
  EXPECT_EQ(outcome.consumed, bytes.size());
  EXPECT_EQ(c.Magic, "ty7");
  EXPECT_EQ(c.Reserved8.size(), 2u);
  EXPECT_EQ(c.AverageSettings, "0,1,0,0,0,");
  ExpectWhatBothFormatsHold(c);
}

TEST(OlderClassFileTest, Ty5HasNeitherAndMarksOfThree) {
  const std::string bytes = OldFile(false);
  Class c;
  const ParseOutcome outcome = ParseOldClass(bytes, c);
  ASSERT_EQ(outcome.error, 0);
  EXPECT_EQ(outcome.consumed, bytes.size());
  EXPECT_EQ(c.Magic, "ty5");
  EXPECT_TRUE(c.Reserved8.empty());
  EXPECT_EQ(c.AverageSettings, "");
  ExpectWhatBothFormatsHold(c);
}

TEST(OlderClassFileTest, WhatTheOldFormatsLackIsFresh) {
  Class c;
  c.school = c.Categories[3] = c.Reserved488 = c.ReservedText = "of the class before";
  c.RoundMode = 1;
  c.FileName = "/a.TYR";
  c.SlotState = 10;
  ASSERT_EQ(ParseOldClass(OldFile(true), c).error, 0);
  EXPECT_EQ(c.school + c.Categories[3] + c.ReservedText, "");
  EXPECT_EQ(c.Reserved488 + c.Reserved496, "1221");
  EXPECT_EQ(c.RoundMode, 2);
  EXPECT_EQ(c.LetterValues[1], Currency::FromWhole(99));
  EXPECT_EQ(c.RoundTable[0][0], 99.5f);
  EXPECT_EQ(c.FileName, "/a.TYR");
  EXPECT_EQ(c.SlotState, 10);
}

TEST(OlderClassFileTest, MendingGivesTheSummaryListsThatTheOldFormatsLack) {
  Class c;
  const std::string bytes = OldFile(false);
  ASSERT_EQ(ParseOldClass(bytes, c).error, 0);
  MendClass(c, bytes.size());
  EXPECT_EQ(c.Students[1].SummaryDetail, (List<ShortText>{"", " 0/ 0/ 0/ 0/"}));
  EXPECT_EQ(c.Students[1].SummaryLate, (List<ShortText>{"", "0"}));
  EXPECT_TRUE(BrokenInvariants(c).empty());
}

TEST(OlderClassFileTest, CutAtAnyByteTheFileIsPastItsEnd) {
  for (const bool ty7 : {true, false}) {
    const std::string bytes = OldFile(ty7);
    for (std::size_t length = 0; length < bytes.size(); ++length) {
      Class c;
      ASSERT_EQ(ParseOldClass(std::string_view(bytes).substr(0, length), c).error, kErrorPastEnd)
          << length;
      ASSERT_EQ(UpperBound(c.Students), c.NumStudents);
      ASSERT_EQ(UpperBound(c.Instruments), c.NumInstruments);
    }
  }
}

TEST(OlderClassFileTest, NoSixteenBitNumberBreaksTheReader) {
  for (const bool ty7 : {true, false}) {
    const std::string bytes = OldFile(ty7);
    for (const int value : {-32768, -1, 0, 1, 32767}) {
      for (std::size_t at = 3; at + 2 <= bytes.size(); ++at) {
        std::string broken = bytes;
        broken.replace(at, 2, FileBytes().I16(value).bytes);
        Class c;
        const int error = ParseOldClass(broken, c).error;
        ASSERT_TRUE(error == 0 || error == kErrorPastEnd || error == kErrorDevice) << error;
        ASSERT_EQ(UpperBound(c.Students), c.NumStudents);
      }
    }
  }
}

TEST(OlderClassFileTest, NegativeCountsAndOtherMarksAreDeviceErrors) {
  std::string bytes = OldFile(true);
  bytes.replace(13, 2, "\xff\xff");
  Class c;
  EXPECT_EQ(ParseOldClass(bytes, c).error, kErrorDevice);
  EXPECT_EQ(c.NumStudents, 0);
  bytes.replace(0, 3, "ty8");
  EXPECT_EQ(ParseOldClass(bytes, c).error, kErrorDevice);
}

TEST(OlderClassFileTest, AConvertedClassIsWrittenInTheCurrentFormat) {
  Class c;
  ASSERT_EQ(ParseOldClass(OldFile(true), c).error, 0);
  c.Magic = "ty8";
  std::string bytes;
  ASSERT_EQ(SerializeClass(c, bytes), 0);
  Class again;
  ASSERT_EQ(ParseClass(bytes, again).error, 0);
  ExpectWhatBothFormatsHold(again);
}

}  // namespace
}  // namespace tallyroll
