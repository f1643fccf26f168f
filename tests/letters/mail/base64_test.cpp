// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/base64.h"

#include <gtest/gtest.h>

#include <random>

namespace tallyroll {
namespace {

TEST(Base64, EncodesTheRestOfAGroupWithFillers) {
  EXPECT_EQ(EncodeBase64(""), "");
  EXPECT_EQ(EncodeBase64("f"), "Zg==");
  EXPECT_EQ(EncodeBase64("fo"), "Zm8=");
  EXPECT_EQ(EncodeBase64("foo"), "Zm9v");
  EXPECT_EQ(EncodeBase64("foobar"), "Zm9vYmFy");
  EXPECT_EQ(EncodeBase64(std::string("\xFF\xEF\xBF\0", 4)), "/++/AA==");
}

TEST(Base64, DecodesWhatServersAsk) {
  EXPECT_EQ(DecodeBase64String("VXNlcm5hbWU6"), "Username:");
  EXPECT_EQ(DecodeBase64String("UGFzc3dvcmQ6"), "Password:");
  EXPECT_EQ(DecodeBase64String("/++/AA=="), std::string("\xFF\xEF\xBF\0", 4));
}

TEST(Base64, ACharacterOutsideTheAlphabetEndsTheText) {
  EXPECT_EQ(DecodeBase64String("Zm9v!mFy"), "foo");
  EXPECT_EQ(DecodeBase64String("Zm9v Zm9v"), "foo");
  EXPECT_EQ(DecodeBase64String("!"), "");
}

TEST(Base64, AFillerEndsTheGroupAlone) {
  EXPECT_EQ(DecodeBase64String("Zg==Zm9v"), "ffoo");
  EXPECT_EQ(DecodeBase64String("Zm8=Zg=="), "fof");
}

TEST(Base64, AGroupThatIsCutGivesItsWholeBytes) {
  EXPECT_EQ(DecodeBase64String("Zm9vYm"), "foob");
  EXPECT_EQ(DecodeBase64String("Z"), "");
}

TEST(Base64, WhatWasEncodedComesBack) {
  std::mt19937 random(20260901);
  for (std::size_t length = 0; length < 300; ++length) {
    std::string bytes(length, 0);
    for (char& c : bytes) c = static_cast<char>(random());
    EXPECT_EQ(DecodeBase64String(EncodeBase64(bytes)), bytes);
  }
}

}  // namespace
}  // namespace tallyroll
