// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/frmSendMany.h"

#include "letters/mail/mail_batch.h"
#include "letters/mail/student_report.h"
#include "platform/table_printer.h"
#include "store/safe_file.h"
#include "tests/letters/mail/played_server.h"
#include "tests/printing/small_class.h"

namespace tallyroll {
namespace {

PrintedTable printed;

class FrmSendManyTest : public SmallClassTest {
 protected:
  FrmSendManyTest() {
    PlayedServers::server = &server;
    MakeMailSender = PlayedServers::Make;
    Current().FileName = Path("MATH.TYR");
    Current().Students[1].email = "ada@home.org";
    Current().Students[2].email = "bo@home.org";
    Current().Students[3].email = "";
    Job.ReportCode = 13;
    Batch.sender = "teacher@school.org";
    Batch.subject = "Marks";
    Batch.students = {1, 2, 3};
    Batch.text_of = TextOfStudent;
  }
  ~FrmSendManyTest() override {
    for (const std::string& complaint : driver->Complaints()) ADD_FAILURE() << complaint;
    MakeMailSender = nullptr;
  }
  void Open() {
    portal = std::make_unique<frmSendMany>();
    portal->Load();
    driver.emplace(*portal);
  }
  Rows Column(int col) const {
    Rows texts;
    for (int row = 1; row < portal->Grid1.Rows(); ++row)
      texts.emplace_back(portal->Grid1.TextMatrix(row, col).substr(0, 9));
    return texts;
  }
  void Send(const std::string& question, const std::string& end) {
    screen.ExpectBox(question, BoxAnswer::kYes);
    screen.ExpectBox(end);
    driver->Press("cmdStart");
  }

  PlayedServer server;
  std::unique_ptr<frmSendMany> portal;
  std::optional<PortalDriver> driver;
  const std::string ask_two =
      "Send 2 messages, one to each address? 1 get none: they have no address.";
};

TEST_F(FrmSendManyTest, TheTableSaysWhoGetsWhat) {
  Open();
  EXPECT_EQ(portal->Grid1.FixedCols, 1);  // the names stay in view
  EXPECT_EQ(Column(0), (Rows{"Ng, Ada", "O'Hara, B", "Quist, Cy"}));
  EXPECT_EQ(Column(1), (Rows{"ada@home.", "bo@home.o", ""}));
  EXPECT_EQ(Column(2), (Rows{"Marks", "Marks", "Marks"}));
  EXPECT_EQ(Column(4), (Rows{"waiting", "waiting", "no addres"}));
  EXPECT_EQ(portal->status.Caption, "2 to be sent, 0 sent");
}

TEST_F(FrmSendManyTest, EachGetsTheirOwnReport) {
  Open();
  Send(ask_two, "0 to be sent, 2 sent.");
  ASSERT_EQ(server.arrived.size(), 2u);
  EXPECT_EQ(server.arrived[0].to, "ada@home.org");
  EXPECT_NE(server.arrived[0].bytes.find("Ng, Ada"), std::string::npos);
  EXPECT_EQ(server.arrived[0].bytes.find("O'Hara"), std::string::npos);
  EXPECT_EQ(server.arrived[0].bytes.find("bo@home.org"), std::string::npos);
  EXPECT_NE(server.arrived[1].bytes.find("O'Hara, Bo"), std::string::npos);
  EXPECT_EQ(Column(4), (Rows{"sent 2026", "sent 2026", "no addres"}));
  screen.ExpectBox("There is nothing to be sent.");
  driver->Press("cmdStart");
}

TEST_F(FrmSendManyTest, TheQuestionMayBeDeclined) {
  Open();
  screen.ExpectBox(ask_two, BoxAnswer::kNo);
  driver->Press("cmdStart");
  EXPECT_TRUE(server.tried.empty());
  EXPECT_FALSE(PathExists(Path("MATH.tyx")));
}

TEST_F(FrmSendManyTest, ARunThatStoppedGoesOnWhenItIsOpenedAgain) {
  server.conducts["bo@home.org"] = {MailOutcome::kStopped, "421 busy", false};
  Open();
  Send(ask_two, "The run has stopped: 421 busy\r\n1 to be sent, 1 sent.");
  server.conducts.clear();
  server.tried.clear();
  Open();
  EXPECT_EQ(Column(4), (Rows{"sent 2026", "waiting: ", "no addres"}));
  Send("Send 1 messages, one to each address? 1 get none: they have no address.",
       "0 to be sent, 2 sent.");
  EXPECT_EQ(server.tried, Rows{"bo@home.org"});
}

TEST_F(FrmSendManyTest, AnUncertainOneIsShownAndLeft) {
  server.conducts["ada@home.org"] = {MailOutcome::kUncertain, "lost", true};
  Open();
  Send(ask_two, "The run has stopped: lost\r\n1 to be sent, 0 sent, 1 uncertain.");
  server.conducts.clear();
  server.tried.clear();
  Open();
  EXPECT_EQ(Column(4)[0], "uncertain");
  EXPECT_EQ(portal->Grid1.Style(1, 4), CellStyle::kFailing);
  EXPECT_EQ(NoteOf(portal->Grid1.Notes, 1, 4).words, "to be looked at");
  Send("Send 1 messages, one to each address? 1 get none: they have no address.",
       "0 to be sent, 1 sent, 1 uncertain.");
  EXPECT_EQ(server.tried, Rows{"bo@home.org"});
}

TEST_F(FrmSendManyTest, BeginningAnewIsAskedFor) {
  Open();
  Send(ask_two, "0 to be sent, 2 sent.");
  driver->Tick("again");
  EXPECT_EQ(Column(4), (Rows{"waiting", "waiting", "no addres"}));
  Send(ask_two, "0 to be sent, 2 sent.");
  EXPECT_EQ(server.arrived.size(), 4u);
  EXPECT_FALSE(portal->again.Value);
}

TEST_F(FrmSendManyTest, AnAddressOfTwoIsStopped) {
  Current().Students[3].email = "ada@home.org";
  Open();
  screen.ExpectBox(
      "The address ada@home.org stands for several students. Mend it in the class, or tick that "
      "this is right.");
  driver->Press("cmdStart");
  EXPECT_EQ(driver->Focused(), "shared");
  EXPECT_TRUE(server.tried.empty());
  driver->Tick("shared");
  Send("Send 3 messages, one to each address?", "0 to be sent, 3 sent.");
  EXPECT_EQ(server.tried, (Rows{"ada@home.org", "bo@home.org", "ada@home.org"}));
}

TEST_F(FrmSendManyTest, AClassThatWasNeverSavedSendsNothing) {
  Current().FileName.clear();
  Open();
  screen.ExpectBox(ask_two, BoxAnswer::kYes);
  screen.ExpectBox(
      "Nothing was sent, since it can't be noted what went to whom: the class was not saved yet.");
  driver->Press("cmdStart");
  EXPECT_TRUE(server.tried.empty());
}

TEST_F(FrmSendManyTest, ALetterWithoutATextIsNotSent) {
  Batch.text_of = [](i16 student) { return std::string(student == 2 ? "" : "Dear parents"); };
  Open();
  screen.ExpectBox(ask_two, BoxAnswer::kYes);
  screen.ExpectBox("There is no message for O'Hara, Bo. Nothing was sent.");
  driver->Press("cmdStart");
  EXPECT_TRUE(server.tried.empty());
}

TEST_F(FrmSendManyTest, NumbersAreNumbers) {
  Open();
  for (const char* wrong : {"x", "-1", "3601", "1.5"}) {
    driver->Type("pause", wrong);
    screen.ExpectBox("The pause must be a number of seconds from 0 to 3600.");
    driver->Press("cmdStart");
  }
  driver->Type("pause", "");
  driver->Type("a_day", "many");
  screen.ExpectBox("The limit must be a number of messages, or nothing.");
  driver->Press("cmdStart");
  driver->Type("a_day", " 1 ");
  Send(ask_two,
       "The run has stopped: The limit of 1 messages a day is reached. Go on tomorrow.\r\n1 to be "
       "sent, 1 sent.");
}

TEST_F(FrmSendManyTest, TheListIsSavedAndPrinted) {
  Open();
  screen.ExpectBox("Nothing was sent yet.");
  driver->Press("cmdCsv");
  Send(ask_two, "0 to be sent, 2 sent.");
  screen.encoding_answer = TextEncoding::kWindows1252;
  screen.ExpectFileDialog(Path("list.csv"));
  driver->Press("cmdCsv");
  const std::string csv = ReadWholeFile(Path("list.csv")).bytes;
  EXPECT_TRUE(
      csv.starts_with("run,student,name,address,subject,attachment,state,changed\r\n"
                      "1,17,\"Ng, Ada\",ada@home.org,Marks,,sent "))
      << csv;
  EXPECT_NE(csv.find("1,42,\"Quist, Cy\",,Marks,,waiting,\r\n"), std::string::npos) << csv;
  const TablePrinter before = PrintTable;
  PrintTable = [](const PrintedTable& table) { printed = table; };
  driver->Press("cmdPrint");
  PrintTable = before;
  EXPECT_EQ(printed.title, "Mail: Marks");
  EXPECT_EQ(printed.rows[2], (Rows{"Quist, Cy", "", "no address"}));
}

}  // namespace
}  // namespace tallyroll
