// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/class_format.h"

#include <gtest/gtest.h>

#include "base/run_time_error.h"
#include "store/fields.h"
#include "tests/support/file_bytes.h"
#include "tests/support/random_class.h"

namespace tallyroll {
namespace {

// One of everything, written by hand in the order of the file.
std::string WholeFileByHand() {
  FileBytes f;
  f.Raw("ty8");
  for (int k = 0; k < 14; ++k) f.Money(10000 * k + 5);
  for (int k = 0; k < 70; ++k) f.Single(static_cast<float>(k) + 0.5f);
  f.I16(1).I16(3).I16(-428).I16(0).Text("10\r20");
  f.List(1).Raw("\1\2\3\4\5\6\7\10").Raw("ABCDEFGH");
  f.Text("0,1,0,0,0");
  f.I16(2).I16(1).I16(2).I16(1).I16(1);
  f.List(1).I16(0).I16(5);
  f.List(1).I16(0).I16(6);
  f.Text("North School").I16(1).Text("Ms A").Text("9/1/2026").Text("6/30/2027").Text("3rd");
  f.Text("12").Text("\x9c\x8a").Text("21").Text("Algebra").Text("B 12");
  for (int k = 0; k < 14; ++k) f.Text(k == 3 ? "Homework" : "");
  f.I16(8).I16(7).List(1).Text("").Text("kept").Text("reserved");
  // One instrument.
  f.Text("Quiz 1").Text("Q1").Money(405000).I16(100).Text("Y").Text("9/9/2026").Text("60");
  f.Text("r32").Text("Q").Text("r40").Text("N").Text("r48").NoList().Text("rt");
  // Two days.
  f.Date(46266).Raw(" ").Text("").Date(46267).Raw("x").Text("note");
  // One summary period.
  f.Text("Term 1").Text("T1").I16(2).I16(-7).Text("9/1/2026").Text("9/30/2026");
  // Two students.
  for (const char* name : {"Adams", "Baker"}) {
    f.List(1).I16(0).I16(2).List(1).I16(0).I16(-1).Text("Town").Text("NY").Text("10001");
    f.List(1).Fixed("", 5).Fixed("3", 5).Text("Ann").List(1).Text("").Text(" 0/ 1/ 0/ 0/");
    f.List(1).Text("A+").Text("95").Text("work").Text(name).Text("id7").Text("parent").Text(
        "phone");
    f.List(1).Text("").Text("4").Text("1 Elm St").Text("1/1/2010");
    f.List(2).Raw(" ").Raw("A").Raw("L").Text("comment").Text("a@b.c").NoList().Text("rt2");
    for (int k = 0; k < 26; ++k) f.Text(k == 25 ? "last" : "");
  }
  return f.bytes;
}

TEST(ClassFormatTest, EveryFieldStandsWhereTheFormatSays) {
  Class c;
  const std::string bytes = WholeFileByHand();
  const ParseOutcome outcome = ParseClass(bytes, c);
  ASSERT_EQ(outcome.error, 0);
  EXPECT_EQ(outcome.consumed, bytes.size());
  EXPECT_EQ(c.LetterValues[13].scaled(), 130005);
  EXPECT_EQ(c.RoundTable[0][13], 13.5f);
  EXPECT_EQ(c.RoundTable[1][0], 14.5f);
  EXPECT_EQ(c.RoundTable[4][13], 69.5f);
  EXPECT_EQ(c.RoundScale, 1);
  EXPECT_EQ(c.FinalGradeForm, 3);
  EXPECT_EQ(c.Reserved428, -428);
  EXPECT_EQ(c.RoundMode, 0);
  EXPECT_EQ(c.PercentsText, "10\r20");
  EXPECT_EQ(c.Reserved8,
            (List<Bytes8>{{1, 2, 3, 4, 5, 6, 7, 8}, {'A', 'B', 'C', 'D', 'E', 'F', 'G', 'H'}}));
  EXPECT_EQ(c.AverageSettings, "0,1,0,0,0");
  EXPECT_EQ(c.NumStudents, 2);
  EXPECT_EQ(c.NumInstruments, 1);
  EXPECT_EQ(c.NumDays, 2);
  EXPECT_EQ(c.NumSummaries, 1);
  EXPECT_EQ(c.NumCharts, 1);
  EXPECT_EQ(c.ChartRows, (List<i16>{0, 5}));
  EXPECT_EQ(c.ChartColumns, (List<i16>{0, 6}));
  EXPECT_EQ(c.school, "North School");
  EXPECT_EQ(c.PasswordSet, 1);
  EXPECT_EQ(c.teacher, "Ms A");
  EXPECT_EQ(c.termstart, "9/1/2026");
  EXPECT_EQ(c.termend, "6/30/2027");
  EXPECT_EQ(c.timed, "3rd");
  EXPECT_EQ(c.Reserved488, "12");
  EXPECT_EQ(c.Password, "\x9c\x8a");
  EXPECT_EQ(c.Reserved496, "21");
  EXPECT_EQ(c.description, "Algebra");
  EXPECT_EQ(c.room, "B 12");
  EXPECT_EQ(c.Categories[3], "Homework");
  EXPECT_EQ(c.LastNameWidth, 8);
  EXPECT_EQ(c.FirstNameWidth, 7);
  EXPECT_EQ(c.ReservedList, (List<ShortText>{"", "kept"}));
  EXPECT_EQ(c.ReservedText, "reserved");
  const Instrument& i = c.Instruments[1];
  EXPECT_EQ(i.title + "|" + i.code, "Quiz 1|Q1");
  EXPECT_EQ(i.weight.scaled(), 405000);
  EXPECT_EQ(i.mvalue, 100);
  EXPECT_EQ(i.dropyn + "|" + i.testdate + "|" + i.lowpass + "|" + i.Reserved32,
            "Y|9/9/2026|60|r32");
  EXPECT_EQ(i.typecode + "|" + i.Reserved40 + "|" + i.countflag + "|" + i.Reserved48,
            "Q|r40|N|r48");
  EXPECT_TRUE(i.ReservedList.empty());
  EXPECT_EQ(i.ReservedText, "rt");
  EXPECT_EQ(c.AttendanceDays[2].date, 46267);
  EXPECT_EQ(c.AttendanceDays[2].dayflag, "x");
  EXPECT_EQ(c.AttendanceDays[2].daynote, "note");
  const AttendanceSummary& period = c.Summaries[1];
  EXPECT_EQ(period.title + "|" + period.code, "Term 1|T1");
  EXPECT_EQ(period.kind, 2);
  EXPECT_EQ(period.rangenumber, -7);
  EXPECT_EQ(period.startdate + "|" + period.enddate, "9/1/2026|9/30/2026");
  const Student& s = c.Students[2];
  EXPECT_EQ(s.SeatRow, (List<i16>{0, 2}));
  EXPECT_EQ(s.SeatColumn, (List<i16>{0, -1}));
  EXPECT_EQ(s.city + "|" + s.state + "|" + s.zip, "Town|NY|10001");
  EXPECT_EQ(s.SummaryAbsent, (List<FixedText<5>>{"", "3    "}));
  EXPECT_EQ(s.firstname + "|" + s.lastname + "|" + s.id, "Ann|Baker|id7");
  EXPECT_EQ(s.SummaryDetail[1], " 0/ 1/ 0/ 0/");
  EXPECT_EQ(s.Marks, (List<ShortText>{"A+", "95"}));
  EXPECT_EQ(s.work + "|" + s.parent + "|" + s.phone, "work|parent|phone");
  EXPECT_EQ(s.SummaryLate[1], "4");
  EXPECT_EQ(s.address + "|" + s.birth, "1 Elm St|1/1/2010");
  EXPECT_EQ(s.DailyMarks, (List<FixedText<1>>{" ", "A", "L"}));
  EXPECT_EQ(s.comments + "|" + s.email + "|" + s.ReservedText, "comment|a@b.c|rt2");
  EXPECT_EQ(s.ReservedFields[25], "last");
}

TEST(ClassFormatTest, WhatWasReadIsWrittenBackByteForByte) {
  Class c;
  const std::string bytes = WholeFileByHand();
  ASSERT_EQ(ParseClass(bytes, c).error, 0);
  std::string written;
  ASSERT_EQ(SerializeClass(c, written), 0);
  EXPECT_EQ(written, bytes);
}

TEST(ClassFormatTest, FixedOffsetsOfTheHeader) {
  Class c;
  c.Magic = "ty8";
  c.RoundScale = 0x1111;
  c.FinalGradeForm = 0x2222;
  c.Reserved428 = 0x3333;
  c.RoundMode = 0x4444;
  c.PercentsText = "P";
  std::string bytes;
  ASSERT_EQ(SerializeClass(c, bytes), 0);
  EXPECT_EQ(bytes.substr(0, 3), "ty8");
  EXPECT_EQ(bytes.substr(395, 2), "\x11\x11");
  EXPECT_EQ(bytes.substr(397, 2), "\x22\x22");
  EXPECT_EQ(bytes.substr(399, 2), "\x33\x33");
  EXPECT_EQ(bytes.substr(401, 2), "\x44\x44");
  EXPECT_EQ(bytes.substr(403, 3), std::string("\1\0P", 3));
}

TEST(ClassFormatTest, AClassWithoutGradesDaysAndSummariesIsHeaderAndStudents) {
  Class c;
  const std::string bytes = HeaderBytes(1, 0, 0, 0) + StudentBytes("Adams", "Ann");
  ASSERT_EQ(ParseClass(bytes, c).error, 0);
  EXPECT_EQ(c.Students[1].lastname, "Adams");
  EXPECT_TRUE(c.Instruments.empty());
  std::string written;
  ASSERT_EQ(SerializeClass(c, written), 0);
  EXPECT_EQ(written, bytes);
}

TEST(ClassFormatTest, StudentsAreDimensionedEvenWithoutAny) {
  Class c;
  ASSERT_EQ(ParseClass(HeaderBytes(0, 0, 0, 0), c).error, 0);
  EXPECT_EQ(c.Students.size(), 1u);
}

TEST(ClassFormatTest, BytesBehindTheLastStudentAreNoFault) {
  Class c;
  const std::string bytes = HeaderBytes(1, 0, 0, 0) + StudentBytes("Adams", "Ann");
  const ParseOutcome outcome = ParseClass(bytes + "old tail", c);
  EXPECT_EQ(outcome.error, 0);
  EXPECT_EQ(outcome.consumed, bytes.size());
}

TEST(ClassFormatTest, AnotherMarkIsRefused) {
  Class c;
  std::string bytes = HeaderBytes(0, 0, 0, 0);
  bytes[2] = '7';
  EXPECT_EQ(ParseClass(bytes, c).error, kErrorDevice);
}

TEST(ClassFormatTest, WhatTheSlotHeldBeforeIsGone) {
  std::mt19937 random(4);
  Class c = RandomClass(random);
  c.ChartRows = c.ChartColumns = {0, 5};
  EXPECT_EQ(ParseClass("ty8", c).error, kErrorPastEnd);
  EXPECT_EQ(c.NumStudents + c.NumInstruments + c.NumDays + c.NumSummaries + c.NumCharts, 0);
  EXPECT_EQ(c.Students.size(), 1u);
  EXPECT_TRUE(c.ChartRows.empty());
}

// Every count fits its list, whatever was read.
void ExpectCountsFit(const Class& c) {
  EXPECT_EQ(UpperBound(c.Instruments), c.NumInstruments);
  EXPECT_EQ(UpperBound(c.AttendanceDays), c.NumDays);
  EXPECT_EQ(UpperBound(c.Summaries), c.NumSummaries);
  EXPECT_EQ(UpperBound(c.Students), c.NumStudents);
  EXPECT_GE(c.NumCharts, 0);
}

TEST(ClassFormatTest, CutAtAnyByteTheFileIsPastItsEnd) {
  const std::string bytes = WholeFileByHand();
  for (std::size_t length = 0; length < bytes.size(); ++length) {
    Class c;
    const ParseOutcome outcome = ParseClass(std::string_view(bytes).substr(0, length), c);
    ASSERT_EQ(outcome.error, kErrorPastEnd) << length;
    ASSERT_LE(outcome.consumed, length);
    ExpectCountsFit(c);
  }
}

TEST(ClassFormatTest, AStudentIsKeptOnceTheLastnameWasRead) {
  const std::string first = HeaderBytes(2, 0, 0, 0) + StudentBytes("Adams", "Ann");
  const std::string second = StudentBytes("Baker", "Bob");
  const std::size_t behind_lastname = second.find("Baker") + 5;
  Class c;
  EXPECT_EQ(ParseClass(first + second.substr(0, behind_lastname - 1), c).error, kErrorPastEnd);
  EXPECT_EQ(c.NumStudents, 1);
  EXPECT_EQ(ParseClass(first + second.substr(0, behind_lastname), c).error, kErrorPastEnd);
  EXPECT_EQ(c.NumStudents, 2);
  EXPECT_EQ(c.Students[2].lastname, "Baker");
  EXPECT_EQ(c.Students[2].firstname, "Bob");
}

TEST(ClassFormatTest, AnInstrumentThatWasCutIsDroppedWithAllThatFollows) {
  const std::string bytes = WholeFileByHand();
  Class c;
  EXPECT_EQ(ParseClass(bytes.substr(0, bytes.find("Quiz 1") + 20), c).error, kErrorPastEnd);
  EXPECT_EQ(c.NumInstruments, 0);
  EXPECT_EQ(c.NumStudents, 0);
  EXPECT_EQ(c.school, "North School");
}

std::string WithListOfMarks(const FileBytes& descriptor) {
  FileBytes f;
  f.Raw(HeaderBytes(1, 0, 0, 0));
  f.NoList().NoList().Texts(3).NoList().Text("").NoList().Raw(descriptor.bytes);
  return f.Raw(std::string(500, '\0')).bytes;
}

int ErrorOfDescriptor(int dimensions, std::int64_t count, std::int64_t lower_bound) {
  Class c;
  const FileBytes descriptor = FileBytes().I16(dimensions).I32(count).I32(lower_bound);
  return ParseClass(WithListOfMarks(descriptor), c).error;
}

TEST(ClassFormatTest, AListDescriptorThatContradictsItselfIsADeviceError) {
  EXPECT_EQ(ErrorOfDescriptor(1, 1, 0), 0);
  EXPECT_EQ(ErrorOfDescriptor(2, 1, 0), kErrorDevice);
  EXPECT_EQ(ErrorOfDescriptor(-1, 1, 0), kErrorDevice);
  EXPECT_EQ(ErrorOfDescriptor(32767, 1, 0), kErrorDevice);
  EXPECT_EQ(ErrorOfDescriptor(-32768, 1, 0), kErrorDevice);
  EXPECT_EQ(ErrorOfDescriptor(1, 0, 0), kErrorDevice);
  EXPECT_EQ(ErrorOfDescriptor(1, -1, 0), kErrorDevice);
  EXPECT_EQ(ErrorOfDescriptor(1, INT32_MIN, 0), kErrorDevice);
  EXPECT_EQ(ErrorOfDescriptor(1, 1, 1), kErrorDevice);
  EXPECT_EQ(ErrorOfDescriptor(1, 1, -1), kErrorDevice);
}

TEST(ClassFormatTest, AnElementCountBeyondTheBytesIsPastTheEndAndSizesNothing) {
  EXPECT_EQ(ErrorOfDescriptor(1, INT32_MAX, 0), kErrorPastEnd);
  EXPECT_EQ(ErrorOfDescriptor(1, 251, 0), kErrorPastEnd);
  EXPECT_EQ(ErrorOfDescriptor(1, 200, 0), 0);
}

TEST(ClassFormatTest, NegativeCountsAreADeviceError) {
  for (int which = 0; which < 5; ++which) {
    for (const int value : {-1, -32768}) {
      int counts[5] = {};
      counts[which] = value;
      Class c;
      const std::string bytes = HeaderBytes(counts[0], counts[1], counts[2], counts[3], counts[4]);
      EXPECT_EQ(ParseClass(bytes, c).error, kErrorDevice) << which;
      ExpectCountsFit(c);
    }
  }
}

TEST(ClassFormatTest, ACountBeyondTheRecordsIsPastTheEnd) {
  for (int which = 0; which < 4; ++which) {
    int counts[5] = {};
    counts[which] = 32767;
    Class c;
    const std::string bytes = HeaderBytes(counts[0], counts[1], counts[2], counts[3], counts[4]);
    EXPECT_EQ(ParseClass(bytes, c).error, kErrorPastEnd) << which;
    ExpectCountsFit(c);
  }
}

// Puts an extreme number over every pair of bytes of a small file, one after the other.
TEST(ClassFormatTest, NoSixteenBitNumberBreaksTheReader) {
  const std::string bytes = WholeFileByHand();
  for (const int value : {-32768, -1, 0, 1, 32767}) {
    const std::string pair = FileBytes().I16(value).bytes;
    for (std::size_t at = 3; at + 2 <= bytes.size(); ++at) {
      std::string broken = bytes;
      broken.replace(at, 2, pair);
      Class c;
      const int error = ParseClass(broken, c).error;
      ASSERT_TRUE(error == 0 || error == kErrorPastEnd || error == kErrorDevice) << error;
      ExpectCountsFit(c);
    }
  }
}

TEST(ClassFormatTest, TheLongestTextFitsAndOneMoreOverflows) {
  Class c;
  c.Magic = "ty8";
  c.room = std::string(65535, 'x');
  std::string bytes;
  ASSERT_EQ(SerializeClass(c, bytes), 0);
  Class read;
  ASSERT_EQ(ParseClass(bytes, read).error, 0);
  EXPECT_EQ(read.room, c.room);
  c.room += 'x';
  EXPECT_EQ(SerializeClass(c, bytes), kErrorOverflow);
  EXPECT_EQ(bytes, "");
}

TEST(ClassFormatTest, AMarkBeyondTheLongestTextOverflows) {
  Class c;
  c.NumStudents = 1;
  ReDim(c.Students, 1);
  c.Students[1].Marks = {"", std::string(65536, '9')};
  std::string bytes;
  EXPECT_EQ(SerializeClass(c, bytes), kErrorOverflow);
}

// The size that is guessed ahead is no fault where a class has much of one thing and none of
// others.
TEST(ClassFormatTest, AClassOfAnyShapeIsWritten) {
  struct Shape {
    int students, grades, days;
  };
  for (const Shape& shape : {Shape{0, 100, 0}, {0, 0, 1000}, {100, 0, 1000}, {100, 300, 0}}) {
    Class c;
    c.Magic = "ty8";
    c.NumStudents = static_cast<i16>(shape.students);
    ReDim(c.Students, shape.students);
    c.NumInstruments = static_cast<i16>(shape.grades);
    ReDim(c.Instruments, shape.grades);
    c.NumDays = static_cast<i16>(shape.days);
    ReDim(c.AttendanceDays, shape.days);
    std::string bytes;
    ASSERT_EQ(SerializeClass(c, bytes), 0);
    Class read;
    EXPECT_EQ(ParseClass(bytes, read).error, 0);
    EXPECT_TRUE(SameOnDisk(c, read)) << shape.students << " " << shape.grades << " " << shape.days;
  }
}

TEST(ClassFormatTest, ACountBeyondItsListIsNotWritten) {
  Class c;
  c.NumStudents = 1;
  std::string bytes;
  EXPECT_EQ(SerializeClass(c, bytes), kErrorOverflow);
}

TEST(ClassFormatTest, AnyClassComesBackTheSame) {
  std::mt19937 random(20260901);
  for (int round = 0; round < 2500; ++round) {
    const Class c = RandomClass(random);
    std::string first;
    ASSERT_EQ(SerializeClass(c, first), 0);
    Class read;
    const ParseOutcome outcome = ParseClass(first, read);
    ASSERT_EQ(outcome.error, 0) << round;
    ASSERT_EQ(outcome.consumed, first.size()) << round;
    ASSERT_TRUE(SameOnDisk(c, read)) << round;
    std::string second;
    ASSERT_EQ(SerializeClass(read, second), 0);
    ASSERT_EQ(first, second) << round;
  }
}

TEST(RandomClassTest, ADifferenceInAnyRecordIsSeen) {
  std::mt19937 random(7);
  Class c = RandomClass(random);
  while (c.NumStudents == 0 || c.NumInstruments == 0) c = RandomClass(random);
  Class other = c;
  EXPECT_TRUE(SameOnDisk(c, other));
  other.Students[1].ReservedFields[25] = "another";
  EXPECT_FALSE(SameOnDisk(c, other));
  other = c;
  other.RoundTable[4][13] += 1;
  EXPECT_FALSE(SameOnDisk(c, other));
  other = c;
  other.Instruments[1].mvalue ^= 1;
  EXPECT_FALSE(SameOnDisk(c, other));
}

}  // namespace
}  // namespace tallyroll
