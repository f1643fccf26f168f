// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include <cstdlib>
#include <nlohmann/json.hpp>

#include "exchange/formats/zip_file.h"
#include "tests/cli/run_cli.h"
#include "tests/support/sanitized.h"

namespace tallyroll {
namespace {

using nlohmann::json;
using ::testing::HasSubstr;

constexpr const char* kEssay = R"({"description": "Algebra",
  "Instruments": [{"title": "Essay", "mvalue": 20}],
  "Students": [{"lastname": "Abel", "firstname": "Bo", "id": "7", "Marks": ["", "18"]},
               {"lastname": "Muñoz", "firstname": "Zoé", "id": "8", "Marks": ["", "EXC"]}]})";
constexpr const char* kCanvasFile =
    "Student,ID,SIS User ID,Section,Essay (4711)\n    Points Possible,,,,25\n"
    "\"Abel, Bo\",1,7,A,17\n\"Stranger, A\",2,99,A,3\n";

class ExchangeCommandTest : public CliTest {};

TEST_F(ExchangeCommandTest, ThePreviewSaysWhatWouldHappenAndWritesNothing) {
  const std::string file = Build(kEssay);
  const CliRun run = RunCli({"exchange", "in", file, Put("c.csv", kCanvasFile), "--preview"});
  EXPECT_EQ(run.status, 0) << run.err;
  const json preview = json::parse(run.out);
  EXPECT_EQ(preview["format"], "canvas");
  EXPECT_EQ(preview["blocked"], true);
  ASSERT_EQ(preview["changes"].size(), 3u);
  EXPECT_EQ(preview["changes"][0]["kind"], "maximum differs");
  EXPECT_EQ(preview["changes"][0]["ticked"], false);
  EXPECT_EQ(preview["changes"][1]["place"], "E3");
  EXPECT_EQ(preview["changes"][1]["before"], "18");
  EXPECT_EQ(preview["changes"][1]["after"], "17");
  EXPECT_EQ(preview["changes"][2]["kind"], "unknown student");
}

TEST_F(ExchangeCommandTest, WhatCannotBeUsedRefusesTheWholeUnlessItIsLeftOut) {
  const std::string file = Build(kEssay);
  const std::string canvas = Put("c.csv", kCanvasFile);
  ExpectRefused(RunCli({"exchange", "in", file, canvas, "--out", Path("new.TYR")}),
                canvas +
                    ": cannot be taken as it is (--leave-out takes the rest); line 4: unknown "
                    "student Stranger, A");
  const CliRun run =
      RunCli({"exchange", "in", file, canvas, "--out", Path("new.TYR"), "--leave-out"});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(run.out, "0 grades, 1 marks, 0 maximum scores\n");
  const json dump = json::parse(RunCli({"dump", Path("new.TYR")}).out);
  EXPECT_EQ(dump["Students"][0]["Marks"][1], "17");
  EXPECT_EQ(dump["Instruments"][0]["mvalue"], 20);
  EXPECT_EQ(json::parse(RunCli({"dump", file}).out)["Students"][0]["Marks"][1], "18");
}

TEST_F(ExchangeCommandTest, IdentifiersOfEarlierFilesGoAlongToTheNewClass) {
  const std::string file = Build(kEssay);
  const std::string canvas = Put("c.csv", kCanvasFile);
  RunCli({"exchange", "in", file, canvas, "--out", Path("one.TYR"), "--leave-out"});
  RunCli({"exchange", "in", Path("one.TYR"),
          Put("d.csv",
              "Student,ID,SIS User ID,Section,Oral (5)\n    Points Possible,,,,9\n"
              "\"Mu\xC3\xB1oz, Zo\xC3\xA9\",3,8,A,4\n"),
          "--out", Path("two.TYR")});
  const CliRun run =
      RunCli({"exchange", "out", Path("two.TYR"), "--format", "canvas", "--out", Path("out.csv")});
  EXPECT_EQ(run.status, 0) << run.err;
  EXPECT_EQ(Get(Path("out.csv")),
            "Student,ID,SIS User ID,SIS Login ID,Section,Essay (4711),Oral (5)\r\n"
            "    Points Possible,,,,,20,9\r\n"
            "\"Abel, Bo\",1,7,,Algebra,17,\r\n"
            "\"Mu\xC3\xB1oz, Zo\xC3\xA9\",3,8,,Algebra,EX,4\r\n");
}

TEST_F(ExchangeCommandTest, WarningsAreToldAndMendedUnlessItIsToStay) {
  std::string text = kEssay;
  text.replace(text.find("Essay"), 5, "Final Score");
  const std::string file = Build(text);
  const CliRun preview = RunCli({"exchange", "out", file, "--format", "canvas", "--preview"});
  EXPECT_EQ(json::parse(preview.out)["warnings"][0]["remedy"], "Write \"Final-Score\".");
  const CliRun run =
      RunCli({"exchange", "out", file, "--format", "canvas", "--out", Path("a.csv")});
  EXPECT_EQ(run.status, 0);
  EXPECT_THAT(run.err, HasSubstr("is taken for one of its totals"));
  EXPECT_THAT(Get(Path("a.csv")), HasSubstr("Final-Score"));
  RunCli({"exchange", "out", file, "--format", "canvas", "--out", Path("b.csv"), "--as-it-is"});
  EXPECT_THAT(Get(Path("b.csv")), HasSubstr("Final Score"));
}

// The sanitizers take more memory for themselves than is allowed here.
#ifndef TALLYROLL_ADDRESS_SANITIZED
TEST_F(ExchangeCommandTest, AnArchiveOfZerosIsRefusedInLittleMemory) {
  const std::string file = Build(kEssay);
  const ZipBytes zip = Zip({{"results.csv", std::string(std::size_t{300} << 20, '0')}});
  const std::string bomb = Put("bomb.zip", zip.bytes);
  const std::string command = "bash -c 'ulimit -v 100000; " + std::string(TALLYROLL_CLI) +
                              " exchange in " + file + " " + bomb + " --preview 2>" + Path("err") +
                              "'";
  EXPECT_NE(std::system(command.c_str()), 0);
  EXPECT_EQ(Get(Path("err")), bomb + ": unpacks to too much\n");
}
#endif

TEST_F(ExchangeCommandTest, AWrongCommandLineIsTold) {
  EXPECT_EQ(RunCli({"exchange"}).status, 2);
  EXPECT_EQ(RunCli({"exchange", "out", "a", "--format", "abacus"}).status, 2);
  EXPECT_EQ(RunCli({"exchange", "out", "a", "--format", "sakai", "--signs", "ABS=two"}).status, 2);
  const std::string file = Build(kEssay);
  ExpectRefused(RunCli({"exchange", "in", file, Put("x", "a,b\n1,2\n"), "--out", Path("n.TYR")}),
                Path("x") + ": is of no known format (--format names one)");
  ExpectRefused(RunCli({"exchange", "out", file, "--format", "sakai"}),
                file + ": needs --out, where the file is written");
}

}  // namespace
}  // namespace tallyroll
