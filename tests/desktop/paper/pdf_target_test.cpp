// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/pdf_target.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "base/run_time_error.h"
#include "tests/support/pdf_words.h"
#include "tests/support/refusing_disk.h"

namespace tallyroll {
namespace {

class PdfTargetTest : public testing::Test {
 protected:
  std::unique_ptr<PdfTarget> Open(bool landscape = false) {
    return PdfTarget::Open(path, WholeSheet(QPageSize(QPageSize::Letter)), landscape,
                           "Caf\xE9 report", error);
  }
  QStringList Files() const { return QDir(folder.path()).entryList(QDir::Files | QDir::Hidden); }
  void Put(const char* text) {
    QFile file(QString::fromStdString(path));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
  }
  QByteArray Get() const {
    QFile file(QString::fromStdString(path));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QTemporaryDir folder;
  std::string path = folder.path().toStdString() + "/report.pdf";
  int error = 0;
};

TEST_F(PdfTargetTest, EachSheetIsAPage) {
  const auto pdf = Open();
  ASSERT_NE(pdf, nullptr);
  EXPECT_TRUE(pdf->IsPrinter());
  pdf->Print("first sheet");
  pdf->NewPage();
  EXPECT_EQ(pdf->CurrentY, 0);
  pdf->Print("second sheet");
  pdf->EndDoc();
  EXPECT_EQ(pdf->Error(), 0);
  EXPECT_EQ(PdfInfo(path, "Pages"), "2");
  EXPECT_EQ(WordsOf(PdfText(path, 1)), (std::vector<std::string>{"first", "sheet"}));
  EXPECT_EQ(WordsOf(PdfText(path, 2)), (std::vector<std::string>{"second", "sheet"}));
  EXPECT_EQ(PdfInfo(path, "Title"), "Café report");
  EXPECT_EQ(PdfInfo(path, "Creator"), "Tallyroll");
}

TEST_F(PdfTargetTest, LandscapeIsAsWideAsTheSheetIsHigh) {
  const auto pdf = Open(true);
  EXPECT_EQ(pdf->Width, 15840);
  EXPECT_EQ(pdf->Height, 12240);
  pdf->EndDoc();
  EXPECT_TRUE(PdfInfo(path, "Page size").starts_with("792 x 612 pts"));
}

TEST_F(PdfTargetTest, TheFileIsAbsentUntilTheJobEnds) {
  const auto pdf = Open();
  pdf->Print("text");
  EXPECT_FALSE(QFile::exists(QString::fromStdString(path)));
  pdf->EndDoc();
  EXPECT_EQ(Files(), QStringList(QStringLiteral("report.pdf")));
}

TEST_F(PdfTargetTest, AKilledJobLeavesNothing) {
  const auto pdf = Open();
  pdf->Print("text");
  pdf->KillDoc();
  EXPECT_EQ(Files(), QStringList());
  pdf->EndDoc();
  pdf->NewPage();
  pdf->Print("later");
  EXPECT_EQ(Files(), QStringList());
  EXPECT_EQ(pdf->Error(), 0);
}

TEST_F(PdfTargetTest, AKilledJobLeavesTheOldFile) {
  Put("old");
  Open()->KillDoc();
  EXPECT_EQ(Get(), "old");
}

TEST_F(PdfTargetTest, AJobThatIsForgottenLeavesNothing) {
  Open()->Print("text");
  EXPECT_EQ(Files(), QStringList());
}

TEST_F(PdfTargetTest, AFolderThatIsNotThereIsRefused) {
  path = folder.path().toStdString() + "/none/report.pdf";
  EXPECT_EQ(Open(), nullptr);
  EXPECT_NE(error, 0);
}

TEST_F(PdfTargetTest, AReadOnlyFolderIsRefusedAndStaysAsItIs) {
  Put("old");
  {
    const ReadOnlyFolder locked(folder.path().toStdString());
    ASSERT_TRUE(locked.Refuses());
    EXPECT_EQ(Open(), nullptr);
    EXPECT_NE(error, 0);
  }
  EXPECT_EQ(Get(), "old");
  EXPECT_EQ(Files(), QStringList(QStringLiteral("report.pdf")));
}

TEST_F(PdfTargetTest, ADiskThatFillsUpIsToldAndLeavesTheOldFile) {
  Put("old");
  {
    const SmallFiles small(2000);
    const auto pdf = Open();
    ASSERT_NE(pdf, nullptr);
    for (int page = 0; page < 50; ++page) {
      pdf->Print("text on a page");
      pdf->NewPage();
    }
    pdf->EndDoc();
    EXPECT_NE(pdf->Error(), 0);
  }
  EXPECT_EQ(Get(), "old");
  EXPECT_EQ(Files(), QStringList(QStringLiteral("report.pdf")));
}

}  // namespace
}  // namespace tallyroll
