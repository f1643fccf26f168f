// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/side_files.h"

#include <fstream>

#include "base/run_time_error.h"
#include "store/program_state.h"
#include "tests/support/file_bytes.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

std::string Letters(int records) {
  FileBytes f;
  for (int k = 1; k <= records; ++k) f.Fixed("A", 3).Money(10000 * k + 5000);
  return f.bytes;
}

std::string Scale(int records) {
  FileBytes f;
  for (int k = 1; k <= records; ++k) f.Money(10000 * k + 5000).Fixed("(A+/EX/4.0)", 16);
  return f.bytes;
}

class SideFilesTest : public PortalTest {
 protected:
  SideFilesTest() {
    Current().FileName = Path("math.TYR");
    Current().Magic = "ty7";
  }
  void Put(std::string_view name, const std::string& bytes) {
    std::ofstream(Path(name), std::ios::binary) << bytes;
  }
};

TEST_F(SideFilesTest, ThirteenLetterRecords) {
  Class c;
  EXPECT_EQ(ParseLetterFile(Letters(13), c), 0);
  EXPECT_EQ(c.LetterValues[0], Currency());
  EXPECT_EQ(c.LetterValues[1].scaled(), 15000);
  EXPECT_EQ(c.LetterValues[13].scaled(), 135000);
}

TEST_F(SideFilesTest, AShortLetterFileGivesWhatItHas) {
  Class c;
  EXPECT_EQ(ParseLetterFile(Letters(2) + "A", c), kErrorPastEnd);
  EXPECT_EQ(c.LetterValues[2].scaled(), 25000);
  EXPECT_EQ(c.LetterValues[3], Currency());
}

TEST_F(SideFilesTest, TwelveScaleRecordsBecomeScaleOne) {
  Class c;
  EXPECT_EQ(ParseRoundFile(Scale(12), c), 0);
  EXPECT_EQ(c.RoundScale, 1);
  EXPECT_EQ(c.RoundTable[1][0], 100.0f);
  EXPECT_EQ(c.RoundTable[1][1], 1.5f);
  EXPECT_EQ(c.RoundTable[1][12], 12.5f);
  EXPECT_EQ(ParseRoundFile(Scale(11), c), kErrorPastEnd);
}

TEST_F(SideFilesTest, WithoutTheSettingsTheFilesAreNotRead) {
  Put("LetterVl.Let", Letters(13));
  Put("Roundoff.rnd", Scale(12));
  for (const char* no : {"", " ", "0", " 0 "}) {
    screen.settings["TALLYRLP7/startup/LETTER"] = no;
    screen.settings["TALLYRLP7/startup/ROUND"] = no;
    ReadSideFiles();
    EXPECT_EQ(Current().LetterValues[1], Currency());
    EXPECT_EQ(Current().RoundScale, 0);
  }
}

TEST_F(SideFilesTest, EachSettingSteersItsFile) {
  Put("LetterVl.Let", Letters(13));
  Put("Roundoff.rnd", Scale(12));
  screen.settings["TALLYRLP7/startup/ROUND"] = "1";
  ReadSideFiles();
  EXPECT_EQ(Current().RoundScale, 1);
  EXPECT_EQ(Current().LetterValues[1], Currency());
  screen.settings["TALLYRLP7/startup/LETTER"] = "yes";
  ReadSideFiles();
  EXPECT_EQ(Current().LetterValues[1].scaled(), 15000);
}

TEST_F(SideFilesTest, TheOldestFormatAsksTheOldestSettings) {
  Put("Roundoff.rnd", Scale(12));
  screen.settings["TALLYRLP7/startup/ROUND"] = "1";
  Current().Magic = "ty5";
  ReadSideFiles();
  EXPECT_EQ(Current().RoundScale, 0);
  screen.settings["TALLYRLW6/startup/ROUND"] = "1";
  ReadSideFiles();
  EXPECT_EQ(Current().RoundScale, 1);
}

TEST_F(SideFilesTest, AnAbsentFileMeansTheDefaults) {
  screen.settings["TALLYRLP7/startup/ROUND"] = "1";
  screen.settings["TALLYRLP7/startup/LETTER"] = "1";
  ReadSideFiles();
  EXPECT_EQ(Current().LetterValues[1], Currency::FromWhole(99));
  EXPECT_EQ(Current().RoundTable[0][0], 99.5f);
  EXPECT_EQ(Current().RoundScale, 0);
}

TEST_F(SideFilesTest, AFileLongerThan65536BytesIsReportedAndNotRead) {
  screen.settings["TALLYRLP7/startup/ROUND"] = "1";
  std::string bytes = Scale(12);
  bytes.resize(65536);
  Put("Roundoff.rnd", bytes);
  ReadSideFiles();
  EXPECT_EQ(Current().RoundScale, 1);
  Current().RoundScale = 0;
  Put("Roundoff.rnd", bytes + "x");
  screen.ExpectBox("File Error: 57");
  ReadSideFiles();
  EXPECT_EQ(Current().RoundScale, 0);
}

TEST_F(SideFilesTest, AShortFileIsReported) {
  Put("Roundoff.rnd", Scale(3));
  screen.settings["TALLYRLP7/startup/ROUND"] = "1";
  screen.ExpectBox("File Error: 62");
  ReadSideFiles();
  EXPECT_EQ(Current().RoundScale, 0);
}

}  // namespace
}  // namespace tallyroll
