// SPDX-License-Identifier: GPL-3.0-or-later
// The form letters that lie beside the sample class.
#include <gtest/gtest.h>

#include "letters/merge/merge.h"
#include "letters/text/letter_file.h"
#include "tests/support/source_dir.h"

namespace tallyroll {
namespace {

class SampleLettersTest : public testing::TestWithParam<const char*> {};

TEST_P(SampleLettersTest, OpensWholeAndKnowsItsCodes) {
  const LetterReading reading =
      ReadLetter(std::string(SourceDir()) + "/sample/letters/" + GetParam());
  EXPECT_EQ(reading.reason, "");
  EXPECT_EQ(reading.left_out, std::vector<std::string>{});
  EXPECT_EQ(UnknownCodes(reading.text), std::vector<std::string>{});
  EXPECT_NE(PlainText(reading.text).find(u"<Teacher>"), std::u16string::npos);
  for (const Paragraph& paragraph : reading.text.paragraphs) EXPECT_FALSE(paragraph.runs.empty());
}

INSTANTIATE_TEST_SUITE_P(Sample, SampleLettersTest,
                         testing::Values("Progress.rtf", "MissingWork.rtf", "Invitation.rtf"));

}  // namespace
}  // namespace tallyroll
