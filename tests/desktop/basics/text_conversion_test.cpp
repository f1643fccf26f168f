// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/basics/text_conversion.h"

#include <gtest/gtest.h>

namespace tallyroll {
namespace {

TEST(TextConversion, EveryByteComesBack) {
  std::string every;
  for (int i = 0; i < 256; ++i) every.push_back(static_cast<char>(i));
  EXPECT_EQ(ToText(FromText(every)), every);
}

TEST(TextConversion, CharactersOfTheCodePage) {
  EXPECT_EQ(FromText("\x80 \x8A\xFC"), QStringLiteral(u"\u20AC \u0160\u00FC"));
  EXPECT_EQ(ToText(QStringLiteral(u"\u2013")), "\x96");
}

TEST(TextConversion, ALackingCharacterGivesNoTextAndIsNamed) {
  EXPECT_EQ(ToText(QStringLiteral(u"a\u0141b")), std::nullopt);
  EXPECT_EQ(LackingCharacter(QStringLiteral(u"a\u0141b")), QStringLiteral(u"\u0141"));
  EXPECT_EQ(LackingCharacter(QStringLiteral("abc")), QString());
}

TEST(TextConversion, ACharacterOfTwoHalvesIsLackingAsAWhole) {
  const QString face = QString::fromUcs4(U"\U0001F600");
  EXPECT_EQ(ToText(face), std::nullopt);
  EXPECT_EQ(LackingCharacter(QStringLiteral("x") + face), face);
}

TEST(TextConversion, LinesEndWithTwoBytesInTheLogic) {
  EXPECT_EQ(LinesFromText("a\r\nb"), QStringLiteral("a\nb"));
  EXPECT_EQ(ToTextLines(QStringLiteral("a\nb")), "a\r\nb");
}

TEST(TextConversion, APathIsBytesOfTheFileSystem) {
  EXPECT_EQ(FromPath("/tmp/Zo\xC3\xAB.TYR"), QStringLiteral(u"/tmp/Zo\u00EB.TYR"));
  EXPECT_EQ(ToPath(QStringLiteral(u"/tmp/\u4E2D.TYR")), "/tmp/\xE4\xB8\xAD.TYR");
}

}  // namespace
}  // namespace tallyroll
