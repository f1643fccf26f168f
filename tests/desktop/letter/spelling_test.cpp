// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/letter/spelling.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

namespace tallyroll {
namespace {

QStringList Checked(const char* text) {
  const QString all = QString::fromUtf8(text);
  QStringList words;
  for (const SpelledWord& word : WordsToCheck(all)) words << all.mid(word.start, word.length);
  return words;
}

TEST(WordsToCheck, AreWordsOfTwoLettersAndMore) {
  EXPECT_EQ(
      Checked("I see a caf\xc3\xa9, don't I?"),
      (QStringList{QStringLiteral("see"), QStringLiteral("caf\u00e9"), QStringLiteral("don't")}));
}

TEST(WordsToCheck, LeaveOutCodesAddressesAndFigures) {
  EXPECT_EQ(Checked("<First Nmae> is at xq@zzz.org, http://zzq.org/qq, www.qqq.org, 3rd B2B USA"),
            (QStringList{QStringLiteral("is"), QStringLiteral("at")}));
}

class SpellingTest : public testing::Test {
 protected:
  // A dictionary of three words.
  void SetUp() override {
    Put("en_US.aff", "SET UTF-8\nTRY esianrtolcdugmphbyfvkwz\n");
    Put("en_US.dic", "3\nhello\nworld\ncaf\xc3\xa9\n");
  }
  void Put(const char* name, const char* text) {
    QFile file(folder.filePath(QLatin1String(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
  std::unique_ptr<Spelling> Make() {
    return OpenSpelling(folder.filePath(QStringLiteral("en_US")),
                        folder.filePath(QStringLiteral("words.txt")));
  }
  QTemporaryDir folder;
};

TEST_F(SpellingTest, KnowsItsWordsAndSuggestsForOthers) {
  const auto spelling = Make();
  if (!spelling) GTEST_SKIP() << "no spelling library here";
  EXPECT_TRUE(spelling->Knows(QStringLiteral("hello")));
  EXPECT_TRUE(spelling->Knows(QStringLiteral("caf\u00e9")));
  EXPECT_FALSE(spelling->Knows(QStringLiteral("helo")));
  EXPECT_TRUE(spelling->Suggestions(QStringLiteral("helo")).contains(QStringLiteral("hello")));
}

TEST_F(SpellingTest, AWordOnceLearntStaysKnown) {
  auto spelling = Make();
  if (!spelling) GTEST_SKIP() << "no spelling library here";
  EXPECT_FALSE(spelling->Knows(QStringLiteral("Zo\u00eb")));
  EXPECT_TRUE(spelling->Learn(QStringLiteral("Zo\u00eb")));
  EXPECT_TRUE(spelling->Knows(QStringLiteral("Zo\u00eb")));
  spelling = Make();
  EXPECT_TRUE(spelling->Knows(QStringLiteral("Zo\u00eb")));
}

TEST_F(SpellingTest, WithoutADictionaryThereIsNone) {
  EXPECT_EQ(OpenSpelling({}, {}), nullptr);
  EXPECT_EQ(DictionaryFor(QStringLiteral("fr_FR"), {folder.path()}), QString());
}

TEST_F(SpellingTest, TheDictionaryIsOfTheLanguageOrElseOfAnotherCountry) {
  Put("de_AT.aff", "");
  Put("de_AT.dic", "0\n");
  Put("fr_FR.aff", "");  // without its words
  EXPECT_EQ(DictionaryFor(QStringLiteral("en_US"), {folder.path()}),
            folder.filePath(QStringLiteral("en_US")));
  EXPECT_EQ(DictionaryFor(QStringLiteral("de_DE"), {folder.path()}),
            folder.filePath(QStringLiteral("de_AT")));
  EXPECT_EQ(DictionaryFor(QStringLiteral("fr_FR"), {folder.path()}), QString());
}

}  // namespace
}  // namespace tallyroll
