// SPDX-License-Identifier: GPL-3.0-or-later
// Printing from the desktop, where no printer is found: to a PDF, and to the file that the print
// dialog names.
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFontDialog>
#include <QLocale>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPrintDialog>
#include <QTemporaryDir>
#include <QTimer>

#include "desktop/paper/sheet.h"
#include "desktop/platform/print_dialogs.h"
#include "desktop/platform/printer_target.h"
#include "desktop/platform/qt_surroundings.h"
#include "tests/desktop/next_window.h"
#include "tests/support/pdf_words.h"
#include "tests/support/refusing_disk.h"

namespace tallyroll {
namespace {

class PrintingTest : public testing::Test {
 protected:
  std::string Path(const char* name) const { return folder.path().toStdString() + "/" + name; }

  QTemporaryDir folder;
  QtSurroundings surroundings;
};

TEST_F(PrintingTest, WithoutAPrinterTheSheetIsThatOfTheCountry) {
  const auto box = surroundings.MakePrintBox(false);
  ASSERT_NE(box, nullptr);
  const Sheet usual = WholeSheet(UsualPageSize());
  EXPECT_NEAR(box->Width, usual.width, 1);
  EXPECT_NEAR(box->Height, usual.height, 1);
  EXPECT_FALSE(box->IsPrinter());
}

TEST_F(PrintingTest, LandscapeTurnsTheSheet) {
  const auto upright = surroundings.MakePrintBox(false);
  const auto across = surroundings.MakePrintBox(true);
  EXPECT_EQ(across->Width, upright->Height);
  EXPECT_EQ(across->ScaleWidth, upright->ScaleHeight);
}

TEST_F(PrintingTest, APdfIsLaidOutAsTheHiddenBoxIs) {
  for (const bool landscape : {false, true}) {
    const auto box = surroundings.MakePrintBox(landscape);
    const auto pdf = surroundings.OpenPdf(Path("a.pdf"), landscape, "Title");
    ASSERT_NE(pdf, nullptr);
    EXPECT_EQ(pdf->ScaleWidth, box->ScaleWidth);
    EXPECT_EQ(pdf->ScaleHeight, box->ScaleHeight);
    EXPECT_EQ(pdf->TextWidth("Smith, John"), box->TextWidth("Smith, John"));
    EXPECT_EQ(pdf->TextHeight("A"), box->TextHeight("A"));
    EXPECT_EQ(pdf->AverageCharWidth(), box->AverageCharWidth());
  }
}

TEST_F(PrintingTest, APdfThatCannotBeOpenedIsNone) {
  EXPECT_EQ(surroundings.OpenPdf(Path("none/a.pdf"), false, "Title"), nullptr);
}

TEST_F(PrintingTest, APdfThatDoesNotReachTheDiskIsTold) {
  SetPlatform(&surroundings);
  bool told = false;
  WithNextWindow<QMessageBox>([&told](QMessageBox& box) {
    EXPECT_EQ(box.text(), QStringLiteral("File Error"));
    EXPECT_EQ(box.windowTitle(), QStringLiteral("Note to the Teacher"));
    told = true;
    box.accept();
  });
  {
    const SmallFiles small(2000);
    const auto pdf = surroundings.OpenPdf(Path("a.pdf"), false, "Title");
    ASSERT_NE(pdf, nullptr);
    for (int page = 0; page < 50; ++page) {
      pdf->Print("text on a page");
      pdf->NewPage();
    }
    pdf->EndDoc();
  }
  SetPlatform(nullptr);
  EXPECT_TRUE(told);
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

TEST_F(PrintingTest, APrinterThatPrintsToNoFileIsNone) {
  QPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  EXPECT_EQ(PrinterTarget::Open(printer, false, "Title"), nullptr);
}

class PrinterTargetTest : public PrintingTest {
 protected:
  PrinterTargetTest() : printer(MakePrinter()) {
    printer->setOutputFormat(QPrinter::PdfFormat);
    printer->setPageSize(QPageSize(QPageSize::Letter));
    printer->setOutputFileName(QString::fromStdString(Path("out.pdf")));
  }
  std::unique_ptr<QPrinter> printer;
};

TEST_F(PrinterTargetTest, PrintsSheetAfterSheetUnderItsTitle) {
  const auto job = PrinterTarget::Open(*printer, false, "Term 1");
  ASSERT_NE(job, nullptr);
  EXPECT_TRUE(job->IsPrinter());
  EXPECT_NEAR(job->Width, 12240, 1);
  job->Print("one");
  job->NewPage();
  job->Print("two");
  job->EndDoc();
  EXPECT_EQ(job->Error(), 0);
  EXPECT_EQ(PdfInfo(Path("out.pdf"), "Pages"), "2");
  EXPECT_EQ(PdfInfo(Path("out.pdf"), "Title"), "Term 1");
  EXPECT_EQ(WordsOf(PdfText(Path("out.pdf"), 2)), std::vector<std::string>{"two"});
}

TEST_F(PrinterTargetTest, TheSamePrinterPrintsAcrossAndUprightAgain) {
  PrinterTarget::Open(*printer, true, "across")->EndDoc();
  EXPECT_TRUE(PdfInfo(Path("out.pdf"), "Page size").starts_with("792 x 612 pts"));
  PrinterTarget::Open(*printer, false, "upright")->EndDoc();
  EXPECT_TRUE(PdfInfo(Path("out.pdf"), "Page size").starts_with("612 x 792 pts"));
}

TEST_F(PrinterTargetTest, AJobLeavesThePrinterAsItWasSetUp) {
  for (const auto set_up : {QPageLayout::Portrait, QPageLayout::Landscape})
    for (const bool landscape : {false, true}) {
      printer->setPageOrientation(set_up);
      PrinterTarget::Open(*printer, landscape, "a report")->EndDoc();
      EXPECT_EQ(printer->pageLayout().orientation(), set_up);
      PrinterTarget::Open(*printer, landscape, "a dropped one")->KillDoc();
      EXPECT_EQ(printer->pageLayout().orientation(), set_up);
    }
}

TEST_F(PrintingTest, ThePrinterSetUpAcrossTurnsEveryReport) {
  const auto upright = surroundings.MakePrintBox(false);
  WithNextWindow<QPageSetupDialog>([](QPageSetupDialog& dialog) {
    dialog.printer()->setPageOrientation(QPageLayout::Landscape);
    dialog.reject();
  });
  surroundings.PrinterSetUpDialog();
  for (const bool landscape : {false, true}) {
    EXPECT_EQ(surroundings.MakePrintBox(landscape)->Width, upright->Height) << landscape;
    const auto pdf = surroundings.OpenPdf(Path("a.pdf"), landscape, "Title");
    EXPECT_EQ(pdf->ScaleWidth, upright->ScaleHeight) << landscape;
  }
}

TEST_F(PrinterTargetTest, WhatIsDrawnLiesAtItsTwips) {
  const auto job = PrinterTarget::Open(*printer, false, "Places");
  job->ScaleLeft = -500;
  job->ScaleTop = -500;
  job->CurrentX = 940;
  job->CurrentY = 220;
  job->PrintOpen("here");
  job->EndDoc();
  // 1440 twips from the left and 720 from above are 72 and 36 points.
  const std::string box = OutputOf("pdftotext -bbox '" + Path("out.pdf") + "' -");
  const double left = std::stod(box.substr(box.find("xMin=\"") + 6));
  const double top = std::stod(box.substr(box.find("yMin=\"") + 6));
  const Sheet sheet = SheetOf(*printer);
  EXPECT_NEAR(left, 72 + (sheet.width - sheet.printable_width) / 40, 0.5);
  EXPECT_NEAR(top, 36 + (sheet.height - sheet.printable_height) / 40, 1.5);
}

TEST_F(PrinterTargetTest, ThePrintDialogOffersAllPagesAndAnswersTheChosen) {
  WithNextWindow<QPrintDialog>([](QPrintDialog& dialog) {
    EXPECT_EQ(dialog.minPage(), 1);
    EXPECT_EQ(dialog.maxPage(), 7);
    EXPECT_EQ(dialog.printRange(), QAbstractPrintDialog::AllPages);
    dialog.setPrintRange(QAbstractPrintDialog::PageRange);
    dialog.setFromTo(2, 3);
    dialog.printer()->setCopyCount(4);
    dialog.done(QDialog::Accepted);
  });
  PrintRange offered;
  offered.to_page = 7;
  const auto range = ShowPrintDialog(*printer, offered, nullptr);
  ASSERT_TRUE(range.has_value());
  EXPECT_EQ(range->from_page, 2);
  EXPECT_EQ(range->to_page, 3);
  // Drawn copy by copy: the printer itself must not repeat them.
  EXPECT_EQ(printer->copyCount(), 1);
}

TEST_F(PrinterTargetTest, ACancelledPrintDialogAnswersNothing) {
  WithNextWindow<QPrintDialog>([](QPrintDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(ShowPrintDialog(*printer, PrintRange(), nullptr), std::nullopt);
}

TEST_F(PrinterTargetTest, TheSetUpDialogComesUp) {
  bool shown = false;
  WithNextWindow<QPageSetupDialog>([&shown](QPageSetupDialog& dialog) {
    shown = !dialog.findChildren<QComboBox*>().isEmpty();  // the paper, among others
    dialog.reject();
  });
  ShowPrinterSetUpDialog(*printer, nullptr);
  EXPECT_TRUE(shown);
}

TEST_F(PrintingTest, TheFontDialogAnswersNameAndPoints) {
  std::string name = "Liberation Serif";
  float points = 10;
  WithNextWindow<QFontDialog>([](QFontDialog& dialog) {
    EXPECT_EQ(dialog.currentFont().family(), QStringLiteral("Liberation Serif"));
    EXPECT_EQ(dialog.currentFont().pointSizeF(), 10);
    dialog.setCurrentFont(QFont(QStringLiteral("Liberation Mono"), 12));
    dialog.accept();
  });
  EXPECT_TRUE(surroundings.FontDialog(name, points));
  EXPECT_EQ(name, "Liberation Mono");
  EXPECT_EQ(points, 12);
}

TEST_F(PrintingTest, ACancelledFontDialogChangesNothing) {
  std::string name = "Arial";
  float points = 11;
  WithNextWindow<QFontDialog>([](QFontDialog& dialog) { dialog.reject(); });
  EXPECT_FALSE(surroundings.FontDialog(name, points));
  EXPECT_EQ(name, "Arial");
  EXPECT_EQ(points, 11);
}

}  // namespace
}  // namespace tallyroll
