// SPDX-License-Identifier: GPL-3.0-or-later
#include "grades/grade_types.h"

#include <gtest/gtest.h>

#include "base/number_text.h"
#include "grades/type_totals.h"
#include "store/class_defaults.h"
#include "store/program_state.h"

namespace tallyroll {
namespace {

class GradeTypesTest : public ::testing::Test {
 protected:
  void SetUp() override { ResetStore(); }
  void TearDown() override { ResetStore(); }

  static std::string Code(std::size_t t) {
    TypeCodes codes;
    MakeTypeCodes(codes);
    return std::string(codes[t].view());
  }
  static std::string Name(std::size_t t) {
    TypeTexts names;
    MakeTypeNames(names);
    return names[t];
  }
  static std::string Label(std::size_t t) {
    TypeTexts labels;
    MakeTypeLabels(labels);
    return labels[t];
  }
  static std::vector<std::size_t> TypesOf(std::string_view typecode) {
    TypeCodes codes;
    MakeTypeCodes(codes);
    std::vector<std::size_t> types;
    for (const std::size_t t : TypesByCode(codes).Of(typecode)) types.push_back(t);
    return types;
  }
};

using Types = std::vector<std::size_t>;

TEST_F(GradeTypesTest, CodesOfAClassWithoutModifications) {
  const char* const codes[] = {"A ", "CA", "CP", "E ", "FE", "HW", "L ", "ME", "P ",
                               "Q ", "R ", "T ", "X ", "M1", "M2", "M3", "S1", "S2",
                               "S3", "S4", "S5", "S6", "S7", "S8", "S9", "  "};
  for (std::size_t t = 1; t <= 26; ++t) EXPECT_EQ(Code(t), codes[t - 1]);
}

TEST_F(GradeTypesTest, NamesAndLabelsOfAClassWithoutModifications) {
  const struct {
    const char *name, *label;
  } types[] = {{"Averaged Grade", "A    -  Averaged Grade"},
               {"Class Activitiy", "CA  -  Class Activitiy"},
               {"Class Participation", "CP  -  Class Participation"},
               {"Essay/Composition", "E    -  Essay/Composition"},
               {"Final Exam", "FE  -  Final Exam"},
               {"Homework", "HW  - Homework"},
               {"Lab", "L    -  Lab"},
               {"Midterm Exam", "ME  -  Midterm Exam"},
               {"Project", "P    -  Project"},
               {"Quiz", "Q    -  Quiz"},
               {"Report/Paper", "R    -  Report/Paper"},
               {"Test", "T    -  Test"},
               {"Extra Credit", "X    -  Extra Credit"},
               {"Miscellaneous", "M1  -  Miscellaneous"},
               {"Miscellaneous", "M2  -  Miscellaneous"},
               {"Miscellaneous", "M3  -  Miscellaneous"},
               {"Subject 1", "S1  -  Subject 1"},
               {"Subject 2", "S2  -  Subject 2"},
               {"Subject 3", "S3  -  Subject 3"},
               {"Subject 4", "S4  -  Subject 4"},
               {"Subject 5", "S5  -  Subject 5"},
               {"Subject 6", "S6  -  Subject 6"},
               {"Subject 7", "S7  -  Subject 7"},
               {"Subject 8", "S8  -  Subject 8"},
               {"Subject 9", "S9  -  Subject 9"},
               {"(None)", "       (None)      "}};
  ASSERT_EQ(std::size(types), 26u);
  for (std::size_t t = 1; t <= 26; ++t) {
    EXPECT_EQ(Name(t), types[t - 1].name);
    EXPECT_EQ(Label(t), types[t - 1].label);
  }
}

TEST_F(GradeTypesTest, AModificationGivesCodeNameAndLabel) {
  Current().Categories[1] = " Band~BD ";
  EXPECT_EQ(Code(14), "BD");
  EXPECT_EQ(Name(14), "Band");
  EXPECT_EQ(Label(14), "BD    -  Band");
  EXPECT_EQ(Code(15), "M2");
}

TEST_F(GradeTypesTest, ACodeOfOneCharacter) {
  Current().Categories[12] = "Band~B";
  EXPECT_EQ(Code(25), "B ");
  EXPECT_EQ(Label(25), "B    -  Band");
  EXPECT_EQ(TypesOf("B"), Types{25});
}

TEST_F(GradeTypesTest, AfterAResetTheDefaultLabelsStandForNoModification) {
  for (std::size_t j = 1; j <= 13; ++j) Current().Categories[j] = DefaultTypeLabel(j + 13);
  for (std::size_t t = 14; t <= 26; ++t) EXPECT_EQ(Label(t), DefaultTypeLabel(t));
  EXPECT_EQ(Code(14), "M1");
  EXPECT_EQ(Name(14), "Miscellaneous");
  EXPECT_EQ(Code(26), "  ");
}

TEST_F(GradeTypesTest, WithoutATildeTheFirstTwoCharactersAreTheCode) {
  Current().Categories[3] = "Band";
  EXPECT_EQ(Code(16), "Ba");
  EXPECT_EQ(Name(16), "Miscellaneous");
}

TEST_F(GradeTypesTest, TheFirstTildeParts) {
  Current().Categories[3] = "Band~BDX~Q";
  EXPECT_EQ(Code(16), "BD");
  EXPECT_EQ(Name(16), "Band");
}

TEST_F(GradeTypesTest, ATypecodeFindsItsTypeWhateverTheBlanks) {
  EXPECT_EQ(TypesOf("Q"), Types{10});
  EXPECT_EQ(TypesOf("Q "), Types{10});
  EXPECT_EQ(TypesOf(" HW "), Types{6});
  EXPECT_EQ(TypesOf(""), Types{26});
}

TEST_F(GradeTypesTest, ATypecodeThatIsNoneFindsNothing) {
  for (const char* code : {"q", "HWX", "H", "W", "ZZ", "1M"}) EXPECT_EQ(TypesOf(code), Types{});
}

TEST_F(GradeTypesTest, TwoTypesOfOneCodeAreBothFound) {
  Current().Categories[2] = "Second tests~T";
  EXPECT_EQ(TypesOf("T"), (Types{12, 15}));
}

class TypeTotalsTest : public GradeTypesTest {
 protected:
  void SetUp() override {
    GradeTypesTest::SetUp();
    SetDefaultLetterValues();
    Class& c = Current();
    c.NumInstruments = 5;
    ReDim(c.Instruments, 5);
    const char* const codes[] = {"Q ", "Q", "T", "ZZ", "Q"};
    for (std::size_t i = 1; i <= 5; ++i) {
      c.Instruments[i].typecode = codes[i - 1];
      c.Instruments[i].mvalue = static_cast<i16>(10 * i);
    }
    c.NumStudents = 1;
    ReDim(c.Students, 1);
    CurrentStudent = 1;
  }
  int Totals(List<ShortText> marks) {
    Current().Students[1].Marks = std::move(marks);
    return StudentTotalsByType(counts, earned, maxes);
  }
  TypeCounts counts;
  TypeSums earned;
  TypeSums maxes;
};

TEST_F(TypeTotalsTest, OfTheClass) {
  counts.fill(7);
  earned.fill(Currency::FromWhole(7));
  maxes.fill(Currency::FromWhole(7));
  ClassTotalsByType(counts, earned, maxes);
  EXPECT_EQ(counts[10], 3);
  EXPECT_EQ(maxes[10], Currency::FromWhole(80));
  EXPECT_EQ(counts[12], 1);
  EXPECT_EQ(counts[1] + counts[26], 0);
  EXPECT_EQ(earned, TypeSums{});
}

TEST_F(TypeTotalsTest, OfAStudentWithoutTheMarksThatAreLeftOut) {
  EXPECT_EQ(Totals({"", "8", "EXC ", "A-", "9", "CUT"}), 0);
  EXPECT_EQ(counts[10], 2);
  EXPECT_EQ(earned[10], Currency::FromWhole(8));
  EXPECT_EQ(maxes[10], Currency::FromWhole(60));
  EXPECT_EQ(earned[12], Currency::FromWhole(90));
}

TEST_F(TypeTotalsTest, OfAStudentWithoutMarks) {
  EXPECT_EQ(Totals({}), 0);
  EXPECT_EQ(counts, TypeCounts{});
}

TEST_F(TypeTotalsTest, AMarkBeyondCurrencyIsAnError) {
  EXPECT_EQ(Totals({"", "8", "9", "9e99", "9", "1"}), 6);
  EXPECT_EQ(counts, TypeCounts{});
  EXPECT_EQ(maxes, TypeSums{});
}

}  // namespace
}  // namespace tallyroll
