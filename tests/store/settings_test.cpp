// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/settings.h"

#include "store/program_state.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

// Taken before any test runs.
const float kSizeAtStart = PrinterFontSize;

class SettingsTest : public PortalTest {
 protected:
  void Set(const std::string& key, const std::string& value) {
    screen.settings["TALLYRLG8/startup/" + key] = value;
  }
};

TEST_F(SettingsTest, WithoutSettingsTheDefaultsStand) {
  PrinterFontName = "x";
  NameMode = 82;
  RecentFiles[4] = "x";
  LoadProgramSettings();
  EXPECT_EQ(DataFolder, "");
  EXPECT_EQ(PrinterFontName, "Times New Roman");
  EXPECT_EQ(PrinterFontSize, 10.0f);
  EXPECT_EQ(SenderAddress + MailServer, "");
  EXPECT_EQ(NameMode, 68);
  EXPECT_EQ(MarginTop + MarginLeft + MarginBottom + MarginRight, "-500-500-500-500");
  EXPECT_EQ(RecentFiles[4], "");
}

TEST_F(SettingsTest, WhatIsSavedIsLoadedAgain) {
  RememberedFolder = "/classes";
  PrinterFontName = "Courier";
  PrinterFontSize = 9.5f;
  SenderAddress = "a@b.c";
  MailServer = "mail.b.c";
  NameMode = 73;
  MarginTop = "1";
  MarginLeft = "2";
  MarginBottom = "3";
  MarginRight = "4";
  SavedTextEncoding = TextEncoding::kWindows1252;
  RecentFiles = {"/a.TYR", "/b.TYR", "", "", "/e.TYR"};
  SaveProgramSettings();
  SaveTextEncoding();
  EXPECT_EQ(screen.settings["TALLYRLG8/startup/VERSION"], "8");
  EXPECT_EQ(screen.settings["TALLYRLG8/startup/SIZE"], "9.5");
  EXPECT_EQ(screen.settings["TALLYRLG8/startup/NAMEID"], "73");
  EXPECT_EQ(screen.settings["TALLYRLG8/fileused/File4"], "/e.TYR");
  ResetStore();
  EXPECT_EQ(PrinterFontName, "Times New Roman");
  EXPECT_EQ(SavedTextEncoding, TextEncoding::kUtf8);
  LoadProgramSettings();
  EXPECT_EQ(SavedTextEncoding, TextEncoding::kWindows1252);
  EXPECT_EQ(DataFolder + PrinterFontName + SenderAddress + MailServer,
            "/classesCouriera@b.cmail.b.c");
  EXPECT_EQ(PrinterFontSize, 9.5f);
  EXPECT_EQ(NameMode, 73);
  EXPECT_EQ(MarginTop + MarginLeft + MarginBottom + MarginRight, "1234");
  EXPECT_EQ(RecentFiles[1], "/b.TYR");
  EXPECT_EQ(RecentFiles[4], "/e.TYR");
}

// Notes which keys are written, in order.
class NotingSurroundings : public HeadlessSurroundings {
 public:
  void WriteSetting(std::string_view, std::string_view, std::string_view key,
                    std::string_view) override {
    written += std::string(key) + " ";
  }
  std::string written;
};

TEST_F(SettingsTest, SavingGoesInAFixedOrder) {
  NotingSurroundings noting;
  SetPlatform(&noting);
  SaveProgramSettings();
  SetPlatform(&screen);
  EXPECT_EQ(noting.written,
            "File0 File1 File2 File3 File4 DIRFILE FONT SIZE VERSION MARGINTOP MARGINLEFT "
            "MARGINBOTTOM MARGINRIGHT EMAIL POP NAMEID ");
}

TEST_F(SettingsTest, TheFontHasTenPointsUntilASizeIsChosen) {
  EXPECT_EQ(kSizeAtStart, 10.0f);
  PrinterFontSize = 12;
  ResetSettings();
  EXPECT_EQ(PrinterFontSize, 10.0f);
  Set("SIZE", "1e99");
  LoadProgramSettings();
  EXPECT_EQ(PrinterFontSize, 10.0f);
}

TEST_F(SettingsTest, EachDisplayModeIsLoaded) {
  for (const int mode : {57, 82, 73, 68}) {
    Set("NAMEID", std::to_string(mode));
    LoadProgramSettings();
    EXPECT_EQ(NameMode, mode);
  }
  for (const int none : {56, 58, 81, 83, 72, 74, 67, 69}) {
    Set("NAMEID", std::to_string(none));
    LoadProgramSettings();
    EXPECT_EQ(NameMode, 68) << none;
  }
}

TEST_F(SettingsTest, AnUnknownDisplayModeIsTheDefault) {
  for (const char* mode : {"", "0", "69", "abc", "1e99"}) {
    Set("NAMEID", mode);
    LoadProgramSettings();
    EXPECT_EQ(NameMode, 68) << mode;
  }
  Set("NAMEID", "57");
  LoadProgramSettings();
  EXPECT_EQ(NameMode, 57);
}

TEST_F(SettingsTest, ARecentFileLosesItsMenuNumber) {
  EXPECT_EQ(RecentFileOf("1. C:\\MATH.TYR"), "C:\\MATH.TYR");
  EXPECT_EQ(RecentFileOf("0. /a.TYR"), "/a.TYR");
  EXPECT_EQ(RecentFileOf("9. /a.TYR"), "/a.TYR");
  EXPECT_EQ(RecentFileOf("/. /a.TYR"), "/. /a.TYR");
  EXPECT_EQ(RecentFileOf(":. /a.TYR"), ":. /a.TYR");
  EXPECT_EQ(RecentFileOf("/home/MATH.TYR"), "/home/MATH.TYR");
  EXPECT_EQ(RecentFileOf("1."), "");
  EXPECT_EQ(RecentFileOf("5.y"), "");
  EXPECT_EQ(RecentFileOf("/.classes/MATH.TYR"), "/.classes/MATH.TYR");
  EXPECT_EQ(RecentFileOf("x"), "x");
  EXPECT_EQ(RecentFileOf(""), "");
}

TEST_F(SettingsTest, RecentFilesAreCutAtLoading) {
  screen.settings["TALLYRLG8/fileused/File0"] = "1. /a.TYR";
  screen.settings["TALLYRLG8/fileused/File2"] = "3. /c.TYR";
  LoadProgramSettings();
  EXPECT_EQ(RecentFiles[0], "/a.TYR");
  EXPECT_EQ(RecentFiles[2], "/c.TYR");
}

TEST_F(SettingsTest, AnEarlierVersionsFolderServesAtTheFirstRun) {
  screen.settings["TALLYRLW6/startup/VERSION"] = "6";
  screen.settings["TALLYRLW6/startup/DIRFILE"] = "/six";
  screen.settings["TALLYRLW/startup/VERSION"] = "5";
  screen.settings["TALLYRLW/startup/DIRFILE"] = "/five";
  LoadProgramSettings();
  EXPECT_EQ(DataFolder, "/six");
  screen.settings["TALLYRLP7/startup/VERSION"] = "7";
  screen.settings["TALLYRLP7/startup/DIRFILE"] = "/seven";
  LoadProgramSettings();
  EXPECT_EQ(DataFolder, "/seven");
  Set("VERSION", "8");
  LoadProgramSettings();
  EXPECT_EQ(DataFolder, "");
}

TEST_F(SettingsTest, TheLetterStringFillsTheLetterValues) {
  Set("LetterString", "343'99.5'95'90'88'85'80'78'75'70'68'65'60'55'7'");
  LoadLetterString();
  EXPECT_EQ(Current().LetterValues[0], Currency::FromWhole(343));
  EXPECT_EQ(Current().LetterValues[1].scaled(), 995000);
  EXPECT_EQ(Current().LetterValues[13], Currency::FromWhole(55));
}

TEST_F(SettingsTest, AnEmptyLetterStringChangesNothing) {
  Current().LetterValues.fill(Currency::FromWhole(7));
  LoadLetterString();
  EXPECT_EQ(Current().LetterValues[0], Currency::FromWhole(7));
}

TEST_F(SettingsTest, ALetterStringEndsAtItsLastQuote) {
  Class c;
  ParseLetterString("1'2'3", c);
  EXPECT_EQ(c.LetterValues[1], Currency::FromWhole(2));
  EXPECT_EQ(c.LetterValues[2], Currency());
  ParseLetterString("5'1e30'6'", c);
  EXPECT_EQ(c.LetterValues[0], Currency::FromWhole(5));
  EXPECT_EQ(c.LetterValues[1], Currency::FromWhole(2));
}

}  // namespace
}  // namespace tallyroll
