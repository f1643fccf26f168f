// SPDX-License-Identifier: GPL-3.0-or-later
// The difference of two states of a class brings either back, byte for byte.
#include "store/change/class_change.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "store/class_format.h"
#include "tests/support/random_class.h"

namespace tallyroll {
namespace {

std::string BytesOf(const Class& c) {
  std::string bytes;
  EXPECT_EQ(SerializeClass(c, bytes), 0);
  return bytes;
}

ClassImage ImageOf(const Class& c) {
  ClassImage image;
  EXPECT_TRUE(MakeImage(c, image));
  return image;
}

class ClassChangeTest : public testing::Test {
 protected:
  std::mt19937 random{7};
};

TEST_F(ClassChangeTest, AnImageBringsTheClassBackByteForByte) {
  for (int i = 0; i < 100; ++i) {
    SCOPED_TRACE(i);
    const Class c = RandomClass(random);
    Class back;
    back.Magic = "ty8";
    ASSERT_TRUE(PutImage(ImageOf(c), back));
    EXPECT_EQ(BytesOf(back), BytesOf(c));
    EXPECT_EQ(back.Weights, c.Weights);
    EXPECT_EQ(back.TypeWeights, c.TypeWeights);
    EXPECT_EQ(back.Method, c.Method);
  }
}

TEST_F(ClassChangeTest, AnyClassBecomesAnyOtherAndComesBack) {
  for (int i = 0; i < 100; ++i) {
    SCOPED_TRACE(i);
    const ClassImage before = ImageOf(RandomClass(random));
    const ClassImage after = ImageOf(RandomClass(random));
    const ClassChange change = DifferenceOf(before, after);
    ClassImage image = before;
    Redo(change, image);
    EXPECT_EQ(image, after);
    Undo(change, image);
    EXPECT_EQ(image, before);
  }
}

TEST_F(ClassChangeTest, BlocksThatGrowShrinkAndMoveComeBack) {
  const auto any = [&](int most) { return std::uniform_int_distribution<int>(0, most)(random); };
  for (int i = 0; i < 2000; ++i) {
    SCOPED_TRACE(i);
    ClassImage before;
    auto& blocks = before.blocks[ClassImage::kStudents];
    for (int n = any(6); n > 0; --n) {
      std::string block;
      for (int k = any(120); k > 0; --k) block += static_cast<char>('a' + any(2));
      blocks.push_back(std::move(block));
    }
    ClassImage after = before;
    auto& changed = after.blocks[ClassImage::kStudents];
    for (int edits = any(4); edits > 0; --edits) {
      if (!changed.empty() && any(3) == 0)
        changed.erase(changed.begin() + any(static_cast<int>(changed.size()) - 1));
      if (any(3) == 0)
        changed.insert(changed.begin() + any(static_cast<int>(changed.size())), "new");
      if (any(3) == 0) std::shuffle(changed.begin(), changed.end(), random);
      if (changed.empty()) continue;
      std::string& block =
          changed[static_cast<std::size_t>(any(static_cast<int>(changed.size()) - 1))];
      const auto at = static_cast<std::size_t>(any(static_cast<int>(block.size())));
      block.replace(at, static_cast<std::size_t>(any(5)),
                    std::string(static_cast<std::size_t>(any(5)), 'z'));
    }
    const ClassChange change = DifferenceOf(before, after);
    ClassImage image = before;
    Redo(change, image);
    ASSERT_EQ(image, after);
    Undo(change, image);
    ASSERT_EQ(image, before);
  }
}

TEST_F(ClassChangeTest, AListThatGrewCostsItsCountAndItsEnd) {
  ClassImage before, after;
  before.blocks[ClassImage::kStudents] = {"\x05" + std::string(400, 'm') + "tail of the record"};
  after.blocks[ClassImage::kStudents] = {"\x06" + std::string(400, 'm') + "99" +
                                         "tail of the record"};
  const ClassChange change = DifferenceOf(before, after);
  const auto& splices = change.sections[ClassImage::kStudents].splices;
  ASSERT_EQ(splices.size(), 2U);
  EXPECT_EQ(splices[0].added, "\x06");
  EXPECT_EQ(splices[1].added, "99");
  EXPECT_EQ(splices[1].removed, "");
}

TEST_F(ClassChangeTest, WhatLookingAtAveragesMovesIsTheSameWork) {
  Class c = RandomClass(random);
  while (c.NumStudents < 2 || c.Students[1].Marks.empty()) c = RandomClass(random);
  const ClassImage before = ImageOf(c);
  c.Students[1].Marks[0] = "-";
  const ClassImage looked = ImageOf(c);
  EXPECT_TRUE(looked.IsSameWork(before));
  EXPECT_NE(looked, before);
  std::swap(c.Students[1], c.Students[2]);
  EXPECT_TRUE(ImageOf(c).IsSameWork(before));
  c.Students[1].lastname += "x";
  EXPECT_FALSE(ImageOf(c).IsSameWork(before));
}

TEST_F(ClassChangeTest, DropFlagsAreALookOnlyWhereOneIsDroppedInAll) {
  Class c = RandomClass(random);
  c.AverageFlag2 = kTrue;
  c.TypeWeights[3] = Currency();
  ClassImage before = ImageOf(c);
  c.TypeWeights[3] = Currency::FromWhole(2);
  EXPECT_TRUE(ImageOf(c).IsSameWork(before));
  c.AverageFlag2 = kFalse;
  before = ImageOf(c);
  c.TypeWeights[3] = Currency::FromWhole(1);
  EXPECT_FALSE(ImageOf(c).IsSameWork(before));
}

}  // namespace
}  // namespace tallyroll
