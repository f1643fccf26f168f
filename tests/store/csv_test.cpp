// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/csv.h"

#include <gtest/gtest.h>

namespace tallyroll {
namespace {

std::vector<std::vector<std::string>> Texts(std::string_view text) {
  std::vector<std::vector<std::string>> texts;
  for (const CsvRecord& record : ParseCsv(text).records) {
    texts.emplace_back();
    for (const CsvCell& cell : record.cells) texts.back().push_back(cell.text);
  }
  return texts;
}

using Rows = std::vector<std::vector<std::string>>;

TEST(Csv, QuotedCellsHoldSeparatorsQuotesAndLineEnds) {
  EXPECT_EQ(Texts("a,\"b, c\",\"d \"\"e\"\"\",\"f\r\ng\"\r\nh,,i,\r\n"),
            (Rows{{"a", "b, c", "d \"e\"", "f\r\ng"}, {"h", "", "i", ""}}));
}

TEST(Csv, TheLastRecordNeedsNoLineEnd) {
  EXPECT_EQ(Texts("a,b\nc,d"), (Rows{{"a", "b"}, {"c", "d"}}));
  EXPECT_EQ(Texts("a,b\nc,"), (Rows{{"a", "b"}, {"c", ""}}));
}

TEST(Csv, RecordsInWhichNothingStandsArePassedOver) {
  EXPECT_EQ(Texts("a,b\n\n,,\n \nc,d\n,\n"), (Rows{{"a", "b"}, {"c", "d"}}));
}

TEST(Csv, AQuoteInsideAPlainCellIsAQuote) {
  EXPECT_EQ(Texts("5\" disk,x\"y\"\n"), (Rows{{"5\" disk", "x\"y\""}}));
}

TEST(Csv, BlanksBeforeAQuoteArePassedOver) {
  EXPECT_EQ(Texts("1, \"Ng, Ada\"\n"), (Rows{{"1", "Ng, Ada"}}));
}

TEST(Csv, WhatFollowsAClosingQuoteStays) {
  EXPECT_EQ(Texts("\"a\"b,c\n"), (Rows{{"ab", "c"}}));
}

TEST(Csv, RecordsKnowTheirLine) {
  const CsvTable table = ParseCsv("a\n\"b\nc\"\n\nd\r\n\"e\r\nf\"\rg");
  ASSERT_EQ(table.records.size(), 5u);
  EXPECT_EQ(table.records[1].line, 2);
  EXPECT_EQ(table.records[2].line, 5);
  EXPECT_EQ(table.records[3].line, 6);
  EXPECT_EQ(table.records[4].line, 8);
}

TEST(Csv, ALineEndOfEitherKindInsideQuotesIsALine) {
  const CsvTable table = ParseCsv("\"a\rb\nc\r\nd\"\ne,\"\r");
  ASSERT_EQ(table.records.size(), 2u);
  EXPECT_EQ(table.records[1].line, 5);
  EXPECT_EQ(table.unclosed_line, 5);
}

TEST(Csv, AQuoteThatIsNeverClosedIsTold) {
  EXPECT_EQ(FaultOf(ParseCsv("\"a,b\n")), "has a quotation mark in line 1 that is never closed");
  EXPECT_EQ(ParseCsv("a,b\nc,\"d\ne").unclosed_line, 2);
  EXPECT_EQ(ParseCsv("a,\"b\"").unclosed_line, 0);
}

TEST(Csv, CellsBehindTheThousandthAreLeft) {
  const CsvTable table = ParseCsv("a" + std::string(5000, ',') + "b\nc,d\n");
  ASSERT_EQ(table.records.size(), 2u);
  EXPECT_EQ(table.records[0].cells.size(), 1000u);
  EXPECT_EQ(table.records[1].cells[1].text, "d");
}

TEST(Csv, TooManyLinesAreTold) {
  std::string lines;
  for (int i = 0; i < 500'000; ++i) lines += "a\n";
  EXPECT_EQ(FaultOf(ParseCsv(lines + "\n\n")), "");
  EXPECT_EQ(FaultOf(ParseCsv(lines + "a")), "has more than 500000 lines");
}

// A small file could otherwise fill the memory of the machine.
TEST(Csv, TooManyCellsAreTold) {
  const std::string thousand = "a" + std::string(999, ',') + "\n";
  std::string lines;
  for (int i = 0; i < 5'000; ++i) lines += thousand;
  EXPECT_EQ(FaultOf(ParseCsv(lines)), "");
  EXPECT_EQ(FaultOf(ParseCsv(lines + "a")), "has more than 5000000 cells");
}

TEST(FindSeparator, IsTheOneOfTheFirstLines) {
  EXPECT_EQ(FindSeparator("a,b\nc,d\n"), ',');
  EXPECT_EQ(FindSeparator("a;b\nc;d\n"), ';');
  EXPECT_EQ(FindSeparator("a\tb\nc\td\n"), '\t');
  EXPECT_EQ(FindSeparator("a\nb\n"), ',');
  EXPECT_EQ(FindSeparator(""), ',');
}

TEST(FindSeparator, LooksAtEveryLineAndNotIntoQuotes) {
  EXPECT_EQ(FindSeparator("Name;ID\nNg, Ada;1\n"), ';');
  EXPECT_EQ(FindSeparator("1,\"a;b;c\"\n2,\"d;e;f\"\n"), ',');
  EXPECT_EQ(FindSeparator("1,2,a;b\n1,2,c;d\n"), ',');
}

TEST(FindSeparator, ALineEndInsideQuotesClosesNoRecord) {
  EXPECT_EQ(FindSeparator("1;Ng;\"12 Main St\nApt 4\"\n2;Le;\n"), ';');
  EXPECT_EQ(FindSeparator("1;\"a \"\"b, c, d\"\" e\n\"\n2;f\n"), ';');
}

TEST(FindSeparator, AQuoteInsideAPlainCellHidesNothing) {
  EXPECT_EQ(FindSeparator("5\" disk;a\n6\" disk;b\n"), ';');
}

TEST(FindSeparator, AQuoteThatOpensTheLineHidesWhatStandsInIt) {
  // One comma, and a semicolon that is text. On equal terms it would be the semicolon.
  EXPECT_EQ(FindSeparator("\"a;b\",c\n"), ',');
  EXPECT_EQ(FindSeparator("1, \"a;b\"\n"), ',');
}

TEST(FindSeparator, AQuoteBehindAWordHidesNothing) {
  // A comma and a semicolon stand on equal terms.
  EXPECT_EQ(FindSeparator("a \"b;c\",d\n"), ';');
}

TEST(FindSeparator, AQuotedCellEndsAtItsOwnQuote) {
  EXPECT_EQ(FindSeparator("\"\";a\n"), ';');
  EXPECT_EQ(FindSeparator("\"a\"\"\";b\n"), ';');
}

TEST(FindSeparator, ALineOfOneLetterHasNone) {
  EXPECT_EQ(FindSeparator("b;c\nd;e\na"), ',');
}

TEST(FindSeparator, TheFirst20LinesTellIt) {
  std::string lines;
  for (int i = 0; i < 19; ++i) lines += "a;b\n";
  EXPECT_EQ(FindSeparator(lines + "a,b\n"), ',');
  EXPECT_EQ(FindSeparator(lines + "a;b\na,b\n"), ';');
}

TEST(FindSeparator, ALineEndOrAQuoteIsNone) {
  EXPECT_EQ(FindSeparator("sep="), ',');
  EXPECT_EQ(Texts("sep=\na,b\n"), (Rows{{"sep="}, {"a", "b"}}));
  EXPECT_EQ(FindSeparator("sep=\"\na;b\n"), ',');
}

TEST(FindSeparator, ALineOfItsOwnSettlesIt) {
  EXPECT_EQ(FindSeparator("sep=;\na,b,c\n"), ';');
  EXPECT_EQ(Texts("sep=;\na,b;c\n"), (Rows{{"a,b", "c"}}));
}

TEST(CsvField, IsQuotedOnlyWhereItMust) {
  EXPECT_EQ(CsvField("Ng Ada"), "Ng Ada");
  EXPECT_EQ(CsvField("Ng, Ada"), "\"Ng, Ada\"");
  EXPECT_EQ(CsvField("a;b"), "a;b");
  EXPECT_EQ(CsvField("a;b", ';'), "\"a;b\"");
  EXPECT_EQ(CsvField("a \"b\""), "\"a \"\"b\"\"\"");
  EXPECT_EQ(CsvField("a\nb"), "\"a\nb\"");
}

TEST(CsvTextField, IsNeverAFormulaAndComesBack) {
  EXPECT_EQ(CsvTextField("=HYPERLINK(\"x\")"), "\"'=HYPERLINK(\"\"x\"\")\"");
  EXPECT_EQ(CsvTextField("+cmd|' /C calc'!A0"), "'+cmd|' /C calc'!A0");
  EXPECT_EQ(CsvTextField("@SUM(1)"), "'@SUM(1)");
  EXPECT_EQ(CsvTextField("-2+3"), "'-2+3");
  EXPECT_EQ(CsvTextField("\t=1"), "'\t=1");
  for (const char* text :
       {"=HYPERLINK(1)", "+1-2", "@x", "-Ng", "plain", "'quoted'", "'=1+1", "''=1+1", "-"})
    EXPECT_EQ(ParseCsv(CsvTextField(text)).records.at(0).cells.at(0).text, text);
}

TEST(CsvTextField, LeavesNumbersAndSingleSignsAlone) {
  EXPECT_EQ(CsvTextField("-5"), "-5");
  EXPECT_EQ(CsvTextField("+2.5"), "+2.5");
  EXPECT_EQ(CsvTextField("-"), "-");
  EXPECT_EQ(CsvTextField("Ng, Ada"), "\"Ng, Ada\"");
}

}  // namespace
}  // namespace tallyroll
