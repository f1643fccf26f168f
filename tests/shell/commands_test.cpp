// SPDX-License-Identifier: GPL-3.0-or-later
// What menu entries, buttons and double clicks hand to the Portal that they open.
#include "shell/class_menu.h"
#include "shell/portal_list.h"
#include "store/settings.h"
#include "tests/shell/shell_test.h"

namespace tallyroll {
namespace {

struct Opening {
  std::string portal;
  int open_state;
  int student;
  int method;
};

std::vector<Opening> openings;
int answer = 0;              // what the next Portals leave in OpenState
int chosen_instrument = -1;  // what they leave in CurrentStudent, -1 nothing

// Stands for any Portal: notes what it was handed, and is left at once.
class NotingPortal : public Portal {
 public:
  explicit NotingPortal(std::string_view name) : Portal(name) {}
  void Declare(ControlTable&) override {}
  void Load() override {
    openings.push_back({Name(), OpenState, CurrentStudent, DefaultMethod});
    if (answer != 0) OpenState = answer;
    if (chosen_instrument >= 0) CurrentStudent = static_cast<i16>(chosen_instrument);
    Unload();
  }
};

class CommandsTest : public ShellTest {
 protected:
  CommandsTest() {
    openings.clear();
    answer = 0;
    chosen_instrument = -1;
    Class c = Sample(3, 2);
    c.NumDays = 1;
    ReDim(c.AttendanceDays, 1);
    c.NumSummaries = 1;
    ReDim(c.Summaries, 1);
    for (int i = 1; i <= 3; ++i) {
      Student& student = c.Students[static_cast<std::size_t>(i)];
      ReDim(student.DailyMarks, 1);
      ReDim(student.SummaryAbsent, 1, FixedText<5>("0"));
      ReDim(student.SummaryLate, 1, ShortText("0"));
      ReDim(student.SummaryDetail, 1, ShortText(" 0/ 0/ 0/ 0/"));
    }
    window = &Open("A.TYR", c);
    MakePortal = [](std::string_view name) -> std::unique_ptr<Portal> {
      return std::make_unique<NotingPortal>(name);
    };
  }

  // The one Portal that the click opened.
  Opening Click(std::string_view entry) {
    openings.clear();
    window->ClickMenu(entry);
    EXPECT_EQ(openings.size(), 1u) << entry;
    return openings.empty() ? Opening{} : openings.front();
  }

  Form1* window = nullptr;
};

TEST_F(CommandsTest, EntriesOpenTheirPortalInItsMode) {
  const std::tuple<const char*, const char*, int> entries[] = {
      {"mnupassenter", "frmpassword", 17},
      {"mnuclassinfo", "frmclassinfo", 0},
      {"mnuimportnames", "frmtxt", 501},
      {"mnugradesid", "frmtxt", 511},
      {"mnugradesname", "frmtxt", 521},
      {"mnuNametext", "frmtxt", 451},
      {"mnuBio", "frmtxt", 441},
      {"mnutestingInst", "frmtxt", 541},
      {"mnutestingInstwithout", "frmtxt", 561},
      {"mnuSchoolSystems", "frmexchange", 0},
      {"mnuAdd", "frmAdd", 0},
      {"mmucomment", "frmEdit", 27},
      {"mnuDelete", "frmdelete", 0},
      {"mnuEdit", "frmEdit", 25},
      {"mnuMarks", "frmMarks", 0},
      {"mnuAttend", "frmAtt", 15},
      {"mnuattsumm", "frmAtsum", 0},
      {"mnuTransfergrade", "frmdGrade", 157},
      {"mnuEMarksT", "frmEmarks", 0},
      {"mnuEMarksS", "frmEMarksS", 0},
      {"mnucat", "frmcategories", 0},
      {"mnuLetter", "frmletter", 0},
      {"mnureorder", "frmdGrade", 269},
      {"mnuedaily", "frmAtt", 25},
      {"mnuEAttend", "frmEatt", 0},
      {"mnuDAttend", "frmDatt", 0},
      {"mnuDMarks", "frmdGrade", 121},
      {"mnuonegrade", "frmsingles", 0},
      {"mnuVScreen", "frminfo", 0},
      {"mnuRollBook", "FRMROLLBOOK", 0},
      {"mnuattscreen", "frmAtt", 112},
      {"mnuMGrades", "frmMgrade", 0},
      {"mnuView", "frmprintall", 1},
      {"mnuVPrinter", "frmprintall", 2},
      {"mnuroster", "frmprintall", 3},
      {"mnuwordproc", "frmwrdproc", 0},
      {"mnuSeating", "frmseating", 0},
      {"mnuStatistic", "frmstatistic", 0},
  };
  for (const auto& [entry, portal, open_state] : entries) {
    const Opening opening = Click(entry);
    EXPECT_EQ(opening.portal, portal) << entry;
    EXPECT_EQ(opening.open_state, open_state) << entry;
    EXPECT_EQ(OpenState, 0) << entry;
  }
}

TEST_F(CommandsTest, TwentySummariesOfAttendanceAreTheMost) {
  Current().NumSummaries = 19;
  EXPECT_EQ(Click("mnuattsumm").portal, "frmAtsum");
  Current().NumSummaries = 20;
  openings.clear();
  screen.ExpectBox(
      "You have entered the maximum number of summary attendance periods allowed for this class.");
  window->ClickMenu("mnuattsumm");
  EXPECT_TRUE(openings.empty());
  EXPECT_EQ(screen.boxes.back().title, "Note to the Teacher");
}

TEST_F(CommandsTest, WeightsEntriesHandOverTheMethod) {
  const std::tuple<const char*, const char*, int> entries[] = {{"mnuindweights", "frmweights", 0},
                                                               {"mnupercent", "frmpercents", 1},
                                                               {"mnupoints", "frmpoints", 2},
                                                               {"mnuPointsType", "frmpoints", 3}};
  for (const auto& [entry, portal, method] : entries) {
    const Opening opening = Click(entry);
    EXPECT_EQ(opening.portal, portal);
    EXPECT_EQ(opening.method, method) << entry;
  }
}

TEST_F(CommandsTest, AveragesInForceAreShownOrPrintedOnceAMethodIsKnown) {
  openings.clear();
  window->ClickMenu("mnuoptions");
  EXPECT_TRUE(openings.empty());
  Current().AverageSettings = "1,0,0,0,0" + std::string(26, ',');
  ParseAverageSettings();
  EXPECT_EQ(Click("mnuoptions").open_state, 82);
  EXPECT_EQ(Click("mnuprtgrade").open_state, 69);
}

TEST_F(CommandsTest, AverageButtonOpensThePortalOfTheMethod) {
  const std::pair<int, const char*> portals[] = {
      {0, "frmweights"}, {1, "frmpercents"}, {2, "frmpoints"}, {3, "frmpoints"}, {5, "frmweights"}};
  for (const auto& [method, portal] : portals) {
    Current().Method = static_cast<i16>(method);
    openings.clear();
    window->ClickTool("Average");
    ASSERT_EQ(openings.size(), 1u);
    EXPECT_EQ(openings[0].portal, portal) << method;
  }
  EXPECT_EQ(openings[0].method, 0);  // no method yet: individual weights
}

TEST_F(CommandsTest, ButtonsRunTheirEntries) {
  const std::tuple<const char*, const char*, int> buttons[] = {
      {"Student", "frmAdd", 0},    {"Roster", "frmEdit", 25},    {"Grades", "frmMarks", 0},
      {"Cgrades", "frmEmarks", 0}, {"Attendance", "frmAtt", 15}, {"Eatt", "frmAtt", 25},
      {"View", "frminfo", 0},      {"Graph", "frmstatistic", 0}};
  for (const auto& [key, portal, open_state] : buttons) {
    openings.clear();
    window->ClickTool(key);
    ASSERT_EQ(openings.size(), 1u) << key;
    EXPECT_EQ(openings[0].portal, portal) << key;
    EXPECT_EQ(openings[0].open_state, open_state) << key;
  }
}

TEST_F(CommandsTest, PrintButtonDropsDownThePrinterMenu) {
  window->ClickTool("Print");
  EXPECT_EQ(frame_screen.calls.back(), "menu mnuPrint");
  EXPECT_NE(window->menu.Find("mnuPrint"), nullptr);
}

TEST_F(CommandsTest, DisabledButtonDoesNothing) {
  window->Toolbar2[4].enabled = false;
  window->ClickTool("Student");
  EXPECT_TRUE(openings.empty());
}

TEST_F(CommandsTest, EditStartsWithoutAStudent) {
  CurrentStudent = 2;
  EXPECT_EQ(Click("mnuEdit").student, 0);
  CurrentStudent = 2;
  EXPECT_EQ(Click("mmucomment").student, 0);
  CurrentStudent = 2;
  EXPECT_EQ(Click("mnuEMarksT").student, 0);
}

TEST_F(CommandsTest, GraphFollowsTheStatisticsOfAChosenGrade) {
  chosen_instrument = 2;
  window->ClickMenu("mnuStatistic");
  ASSERT_EQ(openings.size(), 2u);
  EXPECT_EQ(openings[1].portal, "frmgraph");
  EXPECT_EQ(openings[1].student, 2);
  chosen_instrument = 0;
  EXPECT_EQ(Click("mnuStatistic").portal, "frmstatistic");
}

TEST_F(CommandsTest, PasswordThatWasSetIsSavedAtOnce) {
  Current().Changed = kTrue;
  Current().PasswordSet = 1;
  answer = 50;
  window->ClickMenu("mnupassenter");
  EXPECT_EQ(Current().Changed, kFalse);
  EXPECT_EQ(window->StatusText, "A.TYR saved. It opens with its password from now on.");
}

TEST_F(CommandsTest, ADeletedPasswordIsConfirmed) {
  Current().PasswordSet = 1;
  window->EnableClassMenus(true);
  Current().PasswordSet = 0;
  answer = 50;
  window->ClickMenu("mnupassdelete");
  EXPECT_EQ(window->StatusText, "A.TYR saved. It opens without a password from now on.");
}

TEST_F(CommandsTest, APasswordThatCouldNotBeSavedIsNotConfirmed) {
  Current().FileName = Path("gone/A.TYR");
  Current().Changed = kTrue;
  answer = 50;
  screen.ExpectBox("File Error: 76");
  window->ClickMenu("mnupassenter");
  EXPECT_EQ(window->StatusText, "");
}

TEST_F(CommandsTest, PasswordThatWasCancelledSavesNothing) {
  Current().Changed = kTrue;
  Click("mnupassenter");
  EXPECT_EQ(Current().Changed, kTrue);
}

TEST_F(CommandsTest, PrinterEntriesAskForFontPaperAndMargins) {
  screen.font_answer = {"Arial", 12.0f};
  window->ClickMenu("mnuFont");
  EXPECT_EQ(PrinterFontName, "Arial");
  EXPECT_EQ(PrinterFontSize, 12);
  window->ClickMenu("mnuPrinterSetUp");
  EXPECT_EQ(screen.printer_set_ups, 1);
  EXPECT_EQ(Click("mnumargins").portal, "frmmargins");
}

TEST_F(CommandsTest, ACancelledFontDialogKeepsTheFont) {
  window->ClickMenu("mnuFont");
  EXPECT_EQ(PrinterFontName, "Times New Roman");
  EXPECT_EQ(PrinterFontSize, 10);
}

TEST_F(CommandsTest, WindowAndHelpEntriesAskTheScreen) {
  frame_screen.calls.clear();
  for (const char* entry : {"mnucascade", "mnhorizontal", "mnuvertical", "mnuAbout"})
    window->ClickMenu(entry);
  EXPECT_EQ(frame_screen.calls,
            (std::vector<std::string>{"cascade", "horizontal", "vertical", "about"}));
  window->ClickTool("Help");
  EXPECT_EQ(screen.help_shown, 0);
}

TEST_F(CommandsTest, DoubleClickOpensWhatStandsUnderThePointer) {
  const std::tuple<int, int, const char*, int, int> clicks[] = {
      {0, 0, "frmAdd", 0, -1},    {0, 1, "frmAdd", 0, -1},   {0, 2, "frmMarks", 0, -1},
      {0, 10, "frmMarks", 0, -1}, {2, 0, "frmEdit", 25, 1},  {4, 1, "frmEdit", 25, 3},
      {5, 0, "frmEdit", 25, 0},   {27, 0, "frmEdit", 25, 0}, {1, 2, "frmEmarks", 0, 1},
      {3, 3, "frmEmarks", 2, 2},  {3, 4, "frmEmarks", 2, 0}, {20, 3, "frmEmarks", 0, 2}};
  for (const auto& [row, col, portal, open_state, student] : clicks) {
    openings.clear();
    window->Grid1.MouseRow = row;
    window->Grid1.MouseCol = col;
    window->Grid1_DblClick();
    ASSERT_EQ(openings.size(), 1u) << row << "," << col;
    EXPECT_EQ(openings[0].portal, portal) << row << "," << col;
    EXPECT_EQ(openings[0].open_state, open_state) << row << "," << col;
    if (student >= 0) {
      EXPECT_EQ(openings[0].student, student) << row << "," << col;
    }
  }
}

TEST_F(CommandsTest, DoubleClickBesideTheCellsDoesNothing) {
  for (const auto& [row, col] : {std::pair{1, 0}, std::pair{1, 1}, std::pair{-1, -1}}) {
    window->Grid1.MouseRow = row;
    window->Grid1.MouseCol = col;
    window->Grid1_DblClick();
  }
  EXPECT_TRUE(openings.empty());
}

TEST_F(CommandsTest, GridIsFilledAgainAfterADoubleClick) {
  Current().Students[1].lastname = "Changed";
  window->Grid1.MouseRow = 2;
  window->Grid1.MouseCol = 0;
  window->Grid1_DblClick();
  EXPECT_EQ(window->Grid1.TextMatrix(2, 0), " 1 Changed, First01");
}

TEST_F(CommandsTest, GridIsFilledAgainAfterAPortalThatChangesGrades) {
  int round = 0;
  for (const char* entry :
       {"mnuMarks", "mnuEMarksT", "mnuEMarksS", "mnuDMarks", "mnuTransfergrade", "mnureorder"}) {
    const std::string mark = PlainNumberText(++round);
    Current().Students[1].Marks[1] = mark;
    EXPECT_NE(window->Grid1.TextMatrix(2, 2), mark) << entry;
    Click(entry);
    EXPECT_EQ(window->Grid1.TextMatrix(2, 2), mark) << entry;
  }
}

TEST_F(CommandsTest, GridIsFilledAgainAsMissingGradesAreLeft) {
  MakePortal = &MakePortalByName;
  screen.ExpectPortal("frmMgrade", [](PortalDriver& driver) {
    Current().Students[1].Marks[1] = "12";
    driver.Press("mnuexit");
  });
  window->ClickMenu("mnuMGrades");
  EXPECT_EQ(window->Grid1.TextMatrix(2, 2), "12");
}

TEST_F(CommandsTest, AMessageStandsBeforeTheHintsUntilItsMomentIsOver) {
  window->ShowStatus("Told.");
  window->Grid1.MouseRow = window->Grid1.MouseCol = 2;
  window->Grid1_MouseMove();
  EXPECT_EQ(window->StatusText, "Told.");
  window->EndStatus();
  EXPECT_EQ(window->StatusText, "");
  window->Grid1_MouseMove();
  EXPECT_EQ(window->StatusText, "Double Click on a Grade to Edit");
}

TEST_F(CommandsTest, StatusBarTellsWhatADoubleClickWouldDo) {
  const auto over = [&](int row, int col) {
    window->Grid1.MouseRow = row;
    window->Grid1.MouseCol = col;
    window->Grid1_MouseMove();
    return window->StatusText;
  };
  const std::string name = "Double Click on a Name to Edit a Name, ID or Supplementary Info";
  const std::string id = "Double Click on an ID to Edit a Name, ID or Supplementary Info";
  EXPECT_EQ(over(0, 0), "Double Click to Enter a New Student");
  EXPECT_EQ(over(0, 1), "Double Click - Enter a New Student");
  EXPECT_EQ(over(0, 5), "Double Click to Enter a New Grade");
  EXPECT_EQ(over(1, 2), "Double Click on a Grade to Edit");
  EXPECT_EQ(over(2, 3), "Double Click on a Grade to Edit");
  EXPECT_EQ(over(2, 0), name);
  EXPECT_EQ(over(2, 1), id);
  EXPECT_EQ(over(1, 0), "");
  NameMode = 82;
  EXPECT_EQ(over(2, 0), id);
  EXPECT_EQ(over(2, 1), name);
}

}  // namespace
}  // namespace tallyroll
