// SPDX-License-Identifier: GPL-3.0-or-later
// Opening a class file of an older format, from its first byte to the enabled menus.
#include <gtest/gtest.h>

#include <fstream>

#include "platform/class_window.h"
#include "store/class_defaults.h"
#include "store/class_file.h"
#include "tests/support/file_bytes.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

constexpr const char* kConvertingBox =
    "This file is being CONVERTED to the new Tallyroll format. When you save, the file will be "
    "written in the new format, which CAN NOT be read by versions of Tallyroll prior to version 8. "
    "(Upon saving of the converted file, a backup of the pre-converted file will be saved with the "
    "extension of '.OLD'.)";

class ConvertedWindow : public ClassWindowCalls {
 public:
  void EnableClassMenus(bool on) override { seen += on ? "menus+ " : "menus- "; }
  void EnableEntry(std::string_view entry, bool on) override {
    seen += std::string(entry) + (on ? "+ " : "- ");
  }
  std::string seen;
};

void AddOldStudent(FileBytes& f, bool seven, const char* last, const char* id, const char* mark) {
  f.Fixed(last, 12).Fixed("X", 10).Fixed(id, 9).Fixed("", 30).Fixed("", 14).Fixed("", 14);
  f.Fixed("", 50).Fixed("", 15).Fixed("", 2).Fixed("", 10).Fixed("", 14);
  const std::size_t width = seven ? 5 : 3;
  f.List(1).Fixed("", width).Fixed(mark, width);
  f.NoList().NoList().NoList().NoList().Texts(seven ? 4 : 2);
}

// Two students out of order and one grade of weight 40; a "ty7" has settings of an average too.
std::string FileOfFormat(bool seven, const char* settings) {
  FileBytes f;
  f.Raw(seven ? "ty7" : "ty5").Fixed("", 10).I16(2).I16(1).I16(0).I16(0).I16(0);
  f.NoList().NoList().I16(0).Fixed("Mr B", 20).Fixed("", 15).Fixed("", 15).Fixed("", 15);
  f.Fixed("Algebra", 30).Fixed("7", 6).Text("");
  if (seven) f.NoList().Text(settings);
  AddOldStudent(f, seven, "Young", "11", "85");
  AddOldStudent(f, seven, "Abe", "22", "ABS");
  f.Fixed("Quiz", 50).Fixed("Q1", 5).Money(400000).I16(20).Fixed("Y", 1).Fixed("", 10);
  f.Fixed("", 4).Text("").Fixed("Q", 2).Fixed("", 2).Fixed("", 8).Text("");
  return f.bytes;
}

class ConvertClassTest : public PortalTest, public testing::WithParamInterface<bool> {
 protected:
  ConvertClassTest() {
    SetClassWindow(&window);
    Current().FileName = Path("math.TYR");
  }
  void Put(std::string_view name, const std::string& bytes) {
    std::ofstream(Path(name), std::ios::binary) << bytes;
  }
  void Open(const char* settings = "") {
    Put("math.TYR", FileOfFormat(GetParam(), settings));
    screen.ExpectBox(kConvertingBox);
    ReadClassFile();
  }
  // The program whose settings steer the side files of this format.
  std::string Application() const { return GetParam() ? "TALLYRLP7" : "TALLYRLW6"; }

  ConvertedWindow window;
};

INSTANTIATE_TEST_SUITE_P(BothMarks, ConvertClassTest, testing::Bool(),
                         [](const auto& test) { return test.param ? "ty7" : "ty5"; });

TEST_P(ConvertClassTest, TheClassIsOpenSortedAndUnchanged) {
  Current().Changed = kTrue;
  Open();
  const Class& c = Current();
  EXPECT_EQ(screen.boxes[0].icon, BoxIcon::kInformation);
  EXPECT_EQ(screen.boxes[0].title, "Note to the Teacher");
  EXPECT_EQ(c.FileName, Path("math.TYR"));
  EXPECT_EQ(c.Magic, GetParam() ? "ty7" : "ty5");
  ASSERT_EQ(c.NumStudents, 2);
  EXPECT_EQ(c.Students[1].lastname, "Abe");
  EXPECT_EQ(c.Students[1].Marks[1], "ABS");
  EXPECT_EQ(c.Students[2].lastname, "Young");
  EXPECT_EQ(c.Changed, kFalse);
  EXPECT_EQ(window.seen, "menus+ ");
  EXPECT_FALSE(screen.wait_cursor);
}

TEST_P(ConvertClassTest, TheModeInForceSortsByIdToo) {
  NameMode = 73;
  Open();
  EXPECT_EQ(Current().Students[1].id, "11");
}

TEST_P(ConvertClassTest, WithoutSettingsNoMethodIsChosen) {
  Open();
  EXPECT_EQ(Current().Method, 5);
  EXPECT_EQ(Current().Weights, List<Currency>(2));
  EXPECT_EQ(Current().InstrumentUse[1], Currency::FromWhole(1)) << "no countflag says N";
}

TEST_P(ConvertClassTest, OnlyTheLaterFormatHasSettingsOfAnAverage) {
  Open("0,0,1,0,0,2,,,,,,,,,,,,,,,,,,,,,,,,,2");
  const Class& c = Current();
  if (!GetParam()) {
    EXPECT_EQ(c.Method, 5);
    return;
  }
  EXPECT_EQ(c.Method, 0);
  EXPECT_EQ(DefaultMethod, 0);
  EXPECT_EQ(c.AverageFlag1, kFalse);
  EXPECT_EQ(c.AverageFlag2, kTrue);
  EXPECT_EQ(c.TypeWeights[1], Currency::FromWhole(2));
  EXPECT_EQ(c.TypeWeights[2], Currency());
  EXPECT_EQ(c.TypeWeights[26], Currency::FromWhole(2));
  EXPECT_EQ(c.Weights[1], Currency::FromWhole(40));
  EXPECT_EQ(window.seen, "menus+ mnuprtgrade+ mnuoptions+ ");
}

TEST_P(ConvertClassTest, TheOldRoundingScaleIsTakenWhenItsSettingSaysSo) {
  FileBytes scale;
  for (int k = 1; k <= 12; ++k) scale.Money(990000 - 25000 * k).Fixed("(A/EX/4.0)", 16);
  Put("Roundoff.rnd", scale.bytes);
  screen.settings[Application() + "/startup/ROUND"] = "1";
  Open();
  const Class& c = Current();
  EXPECT_EQ(c.RoundScale, 1);
  EXPECT_EQ(c.RoundTable[1][0], 100.0f);
  EXPECT_EQ(c.RoundTable[1][1], 96.5f);
  EXPECT_EQ(c.RoundTable[1][12], 69.0f);
  EXPECT_EQ(c.RoundTable[0][0], 99.5f) << "the program's own scale stands beside it";
  EXPECT_EQ(c.LetterValues[1], Currency::FromWhole(99));
}

TEST_P(ConvertClassTest, WithoutTheSettingTheOldRoundingScaleIsLeftAlone) {
  Put("Roundoff.rnd", std::string(12 * 24, 'x'));
  Open();
  EXPECT_EQ(Current().RoundScale, 0);
  EXPECT_EQ(Current().RoundTable[1][1], 0.0f);
}

TEST_P(ConvertClassTest, WithoutItsFileTheProgramsScaleStays) {
  screen.settings[Application() + "/startup/ROUND"] = "1";
  Open();
  EXPECT_EQ(Current().RoundScale, 0);
  EXPECT_EQ(Current().RoundTable[0][12], 58.5f);
}

}  // namespace
}  // namespace tallyroll
