// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/text/letter_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "base/run_time_error.h"
#include "store/safe_file.h"
#include "tests/letters/letter_texts.h"
#include "tests/support/portal_test.h"
#include "tests/support/refusing_disk.h"

namespace tallyroll {
namespace {

class LetterFileTest : public PortalTest {
 protected:
  void Put(const std::string& name, std::string_view bytes) {
    ASSERT_EQ(ReplaceFile(Path(name), bytes, OldTail::kDrop), 0);
  }
};

TEST_F(LetterFileTest, TheExtensionTellsWhatALetterIs) {
  EXPECT_TRUE(IsRichTextFile("/a/Letter.RTF"));
  EXPECT_TRUE(IsRichTextFile("letter.rtf"));
  EXPECT_FALSE(IsRichTextFile("letter.txt"));
  EXPECT_FALSE(IsRichTextFile("rtf"));
}

TEST_F(LetterFileTest, APlainTextIsSetInCourier) {
  Put("a.txt", "Dear <First Name>\r\nM\xFCller\r\n");
  const LetterReading reading = ReadLetter(Path("a.txt"));
  EXPECT_EQ(reading.reason, "");
  EXPECT_EQ(WordsOf(reading.text), "Dear <First Name>\nMüller\n");
  EXPECT_EQ(reading.text.paragraphs[0].runs[0].style.font, "Courier New");
  EXPECT_EQ(reading.text.paragraphs[2].mark.font, "Courier New");
}

TEST_F(LetterFileTest, APlainTextComesBackByteForByte) {
  for (const std::string bytes : {"", "a", "a\r\n", "a\r\n\r\nb", "M\xFCller \x80",
                                  "\xEF\xBB\xBF\xCE\xB1", "a\tb", "a\r\n\fb\r\n\f\r\n\f"}) {
    Put("a.txt", bytes);
    EXPECT_EQ(PlainTextFile(ReadLetter(Path("a.txt")).text), bytes);
  }
}

TEST_F(LetterFileTest, Utf8IsKnownWithoutItsMark) {
  Put("a.txt", "M\xC3\xBCller");
  EXPECT_EQ(WordsOf(ReadLetter(Path("a.txt")).text), "Müller");
}

// Two letters of the code page that stand as one in UTF-8.
TEST_F(LetterFileTest, WhatWouldBeTakenForUtf8IsWrittenAsSuch) {
  const RichText letter = RichTextOf(u"\u00C3\u00BC");
  EXPECT_EQ(PlainTextFile(letter), "\xEF\xBB\xBF\xC3\x83\xC2\xBC");
}

TEST_F(LetterFileTest, ALetterIsWrittenByItsExtension) {
  const RichText letter = RichTextOf(u"Dear \u03B1");
  ASSERT_EQ(WriteLetter(Path("a.rtf"), letter), 0);
  EXPECT_TRUE(ReadLetter(Path("a.rtf")).text == letter);
  ASSERT_EQ(WriteLetter(Path("a.txt"), letter), 0);
  EXPECT_EQ(ReadWholeFile(Path("a.txt")).bytes,
            "\xEF\xBB\xBF"
            "Dear \xCE\xB1");
}

TEST_F(LetterFileTest, AFileThatCannotBeReadIsAnError) {
  EXPECT_EQ(ReadLetter(Path("none.rtf")).error, kErrorFileNotFound);
  EXPECT_NE(ReadLetter(Path("none.rtf")).reason, "");
  Put("bad.rtf", "{\\rtf1 cut");
  EXPECT_EQ(ReadLetter(Path("bad.rtf")).reason, "it ends before its last group does");
}

TEST_F(LetterFileTest, TheOldLetterStaysWholeWhereTheNewOneCannotBeWritten) {
  Put("a.txt", "old");
  ASSERT_EQ(chmod(Path("a.txt").c_str(), 0444), 0);
  EXPECT_EQ(WriteLetter(Path("a.txt"), RichTextOf(u"new")), kErrorPermission);
  EXPECT_EQ(ReadWholeFile(Path("a.txt")).bytes, "old");
  EXPECT_EQ(WriteLetter(Path("gone/a.txt"), RichTextOf(u"new")), kErrorPathNotFound);
}

TEST_F(LetterFileTest, AFullDiskKeepsTheOldLetter) {
  Put("a.rtf", "{\\rtf1 old}");
  {
    const SmallFiles disk(100);
    EXPECT_EQ(WriteLetter(Path("a.rtf"), RichTextOf(std::u16string(500, u'x'))), kErrorDiskFull);
  }
  EXPECT_EQ(ReadWholeFile(Path("a.rtf")).bytes, "{\\rtf1 old}");
}

TEST_F(LetterFileTest, AFolderThatMayNotBeWrittenKeepsTheOldLetter) {
  Put("a.rtf", "{\\rtf1 old}");
  {
    const ReadOnlyFolder locked(folder);
    if (!locked.Refuses()) GTEST_SKIP() << "nobody is refused here";
    EXPECT_NE(WriteLetter(Path("a.rtf"), RichTextOf(u"new")), 0);
  }
  EXPECT_EQ(ReadWholeFile(Path("a.rtf")).bytes, "{\\rtf1 old}");
}

}  // namespace
}  // namespace tallyroll
