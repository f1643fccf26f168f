// SPDX-License-Identifier: GPL-3.0-or-later
#include <nlohmann/json.hpp>

#include "tests/cli/run_cli.h"

namespace tallyroll {
namespace {

using Json = nlohmann::ordered_json;

constexpr const char* kExportedClass = R"({"Instruments": [{"title": "Rivers", "code": "RIV"}],
  "Students": [
    {"lastname": "Ng", "firstname": "Zoé", "id": "7", "city": "Köln", "Marks": ["", "A-"]},
    {"lastname": "Abel", "firstname": "Bo", "id": "512", "Marks": ["", "91"]}]})";

class TextCommandTest : public CliTest {
 protected:
  Json Import(const std::string& text, const std::string& layout) {
    std::filesystem::remove(Path("out.TYR"));
    const CliRun run = RunCli({"import", Put("in.txt", text), Path("out.TYR"), "--layout", layout});
    EXPECT_EQ(run.status, 0) << run.err;
    import_told = run.out;
    const CliRun dump = RunCli({"dump", Path("out.TYR")});
    EXPECT_EQ(dump.status, 0) << dump.err;
    return Json::parse(dump.out);
  }
  std::string import_told;  // what the last import put out

  std::string Exported(const std::string& what, const std::string& layout) {
    const CliRun run = RunCli({"export", Build(kExportedClass), "--what", what, "--layout", layout,
                               "--out", Path("out.txt")});
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_EQ(run.out, "");
    return Get(Path("out.txt"));
  }
};

TEST_F(TextCommandTest, ImportMakesAClassInEachLayout) {
  const std::pair<const char*, const char*> texts[] = {
      {"columns", "7            Ng, Ada\r\n512          Abel, Bo\r\n"},
      {"single", "7'Ng, Ada\n512'Abel, Bo"},
      {"double", "\"7\",\"Ng, Ada\"\n\"512\",\"Abel, Bo\"\n"},
      {"tabs", "7\tNg, Ada\n512\tAbel, Bo\n"},
      {"comma", "7,Ng Ada\n512,Abel Bo\n"},
      {"csv", "Student ID;Surname;First name\r\n7;Ng;Ada\r\n512;Abel;Bo\r\n"}};
  for (const auto& [layout, text] : texts) {
    const Json c = Import(text, layout);
    EXPECT_EQ(c["NumStudents"], 2) << layout;
    EXPECT_EQ(c["Students"][0]["lastname"], "Abel") << layout;
    EXPECT_EQ(c["Students"][1]["firstname"], "Ada") << layout;
    EXPECT_EQ(c["Students"][1]["id"], "7") << layout;
    EXPECT_EQ(c["LastNameWidth"], 4) << layout;
  }
}

TEST_F(TextCommandTest, AnImportedClassIsANewOne) {
  const Json c = Import("7,Ng Ada\n", "comma");
  EXPECT_EQ(c["Magic"], "ty8");
  EXPECT_EQ(c["Reserved488"], "12");
  EXPECT_EQ(c["RoundMode"], 2);
  EXPECT_EQ(c["LetterValues"][1], "99");
  EXPECT_EQ(c["RoundTable"][0][0], 99.5);
  EXPECT_EQ(c["NumInstruments"], 0);
  EXPECT_EQ(RunCli({"check", Path("out.TYR")}).status, 0);
}

TEST_F(TextCommandTest, ASecondStudentWithAnIdGetsAnother) {
  const Json c = Import("7,Ng Ada\n7,Ng Bo\n7,Ng Cy\n", "comma");
  std::set<std::string> ids;
  for (const Json& student : c["Students"]) ids.insert(student["id"]);
  EXPECT_EQ(ids.size(), 3u);
  EXPECT_TRUE(ids.contains("7"));
}

TEST_F(TextCommandTest, ImportTellsWhoWasGivenAnId) {
  Import("7,Ng Ada\n8,Orr Cy\n", "comma");
  EXPECT_EQ(import_told, "");
  const Json c = Import("7,Ng Zo\xC3\xA9\n7,Orr Cy\n,Poe Di\n", "comma");
  EXPECT_EQ(import_told,
            "New IDs were given to 2 students: 1 whose ID was taken already, 1 "
            "without an ID.\nOrr, Cy: " +
                c["Students"][1]["id"].get<std::string>() +
                " instead of 7\nPoe, Di: " + c["Students"][2]["id"].get<std::string>() + "\n");
}

TEST_F(TextCommandTest, ImportReplacesAClassByForceAloneAndKeepsTheOldOne) {
  const std::string old = Get(Build(kExportedClass, "out.TYR"));
  const std::string text = Put("in.txt", "8,Orr Cy\n");
  ExpectRefused(RunCli({"import", text, Path("out.TYR"), "--layout", "comma"}),
                Path("out.TYR") + ": exists already (--force replaces it and keeps a backup)");
  EXPECT_EQ(Get(Path("out.TYR")), old);
  EXPECT_FALSE(std::filesystem::exists(Path("out.old")));
  EXPECT_EQ(RunCli({"import", text, Path("out.TYR"), "--layout", "comma", "--force"}).status, 0);
  EXPECT_EQ(Get(Path("out.old")), old);
  const std::string second = Get(Path("out.TYR"));
  EXPECT_NE(second, old);
  EXPECT_EQ(RunCli({"import", text, Path("out.TYR"), "--layout", "comma", "--force"}).status, 0);
  EXPECT_EQ(Get(Path("out.old")), old);
  EXPECT_EQ(Get(Path("out.ol6")), second);
}

TEST_F(TextCommandTest, ExportNeverGoesOverAnotherClassFile) {
  const std::string other = Build("{}", "other.TYR");
  const std::string before = Get(other);
  ExpectRefused(RunCli({"export", Build(kExportedClass), "--what", "names", "--layout", "tabs",
                        "--out", other}),
                other + ": is a class file, which is left as it is");
  EXPECT_EQ(Get(other), before);
}

TEST_F(TextCommandTest, ExportOfAClassWithoutStudentsIsRefused) {
  const std::string file = Build("{}");
  for (const char* what : {"names", "info", "grades", "grades-plain"})
    ExpectRefused(
        RunCli({"export", file, "--what", what, "--layout", "csv", "--out", Path("out.txt")}),
        file + ": the class has no students");
  EXPECT_FALSE(std::filesystem::exists(Path("out.txt")));
}

TEST_F(TextCommandTest, ImportRefusesWhatIsNoText) {
  const std::string text = Put("in.txt", std::string("a\0b", 3));
  ExpectRefused(RunCli({"import", text, Path("out.TYR"), "--layout", "comma"}),
                text + ": is not a text file");
  EXPECT_FALSE(std::filesystem::exists(Path("out.TYR")));
  ExpectRefused(RunCli({"import", Path("none"), Path("out.TYR"), "--layout", "comma"}),
                Path("none") + ": File Error: 53 (there is no such file)");
  ExpectRefused(RunCli({"import", text, text, "--layout", "comma"}),
                text + ": is the text file itself, which is left as it is");
}

TEST_F(TextCommandTest, ImportListsWhatAClassFileCannotHold) {
  const std::string text = Put("in.csv", "ID,Name\n7,Łu Ka\n8,Ng Ada\n");
  ExpectRefused(RunCli({"import", text, Path("out.TYR"), "--layout", "csv"}),
                text +
                    ": holds what a class file cannot hold (--leave-out leaves it empty); "
                    "Line 2, Full name: <U+0141>u Ka");
  EXPECT_EQ(RunCli({"import", text, Path("out.TYR"), "--layout", "csv", "--leave-out"}).status, 0);
  const Json c = Json::parse(RunCli({"dump", Path("out.TYR")}).out);
  EXPECT_EQ(c["NumStudents"], 2);
}

TEST_F(TextCommandTest, TheLayoutIsNeededAndKnown) {
  const std::string text = Put("in.txt", "7,Ng Ada\n");
  EXPECT_EQ(RunCli({"import", text, Path("out.TYR")}).status, 2);
  EXPECT_EQ(RunCli({"import", text, Path("out.TYR"), "--layout", "pipes"}).status, 2);
  EXPECT_EQ(RunCli({"export", Build(kExportedClass), "--what", "all", "--layout", "tabs", "--out",
                    Path("out.txt")})
                .status,
            2);
}

TEST_F(TextCommandTest, ExportWritesEachContent) {
  EXPECT_EQ(Exported("names", "tabs"), "512\tAbel, Bo\r\n7\tNg, Zo\xE9\r\n");
  EXPECT_EQ(Exported("info", "comma"), "512,Abel Bo,,,,,,,,,\r\n7,Ng Zo\xE9,,K\xF6ln,,,,,,,\r\n");
  EXPECT_EQ(Exported("grades", "double"),
            "\"ID\",\"NAME\",\"Rivers\"\r\n\"\",\"\",\"RIV\"\r\n"
            "\"512\",\"Abel, Bo\",\"91\"\r\n\"7\",\"Ng, Zo\xE9\",\"A-\"\r\n");
  EXPECT_EQ(Exported("grades-plain", "single"), "512'Abel, Bo'91\r\n7'Ng, Zo\xE9'A-\r\n");
  EXPECT_EQ(Exported("names", "columns"), "512          Abel, Bo\r\n7            Ng, Zo\xE9\r\n");
  EXPECT_EQ(Exported("names", "csv"),
            "\xEF\xBB\xBFID,Last name,First name\r\n512,Abel,Bo\r\n7,Ng,Zoé\r\n");
}

TEST_F(TextCommandTest, ExportWritesTheEncodingAskedFor) {
  const auto exported = [&](const std::string& layout, const std::string& encoding) {
    EXPECT_EQ(RunCli({"export", Build(kExportedClass), "--what", "names", "--layout", layout,
                      "--encoding", encoding, "--out", Path("out.txt")})
                  .status,
              0);
    return Get(Path("out.txt"));
  };
  EXPECT_EQ(exported("comma", "utf-8"),
            "\xEF\xBB\xBF"
            "512,Abel Bo\r\n7,Ng Zo\xC3\xA9\r\n");
  EXPECT_EQ(exported("comma", "windows-1252"), "512,Abel Bo\r\n7,Ng Zo\xE9\r\n");
  EXPECT_EQ(exported("csv", "windows-1252"),
            "ID,Last name,First name\r\n512,Abel,Bo\r\n7,Ng,Zo\xE9\r\n");
}

TEST_F(TextCommandTest, ExportByIdSortsById) {
  const std::string file = Build(R"({"Students": [
      {"lastname": "Ng", "firstname": "Ada", "id": "100"},
      {"lastname": "Abel", "firstname": "Bo", "id": "512"}]})");
  const std::pair<const char*, const char*> orders[] = {{"68", "512,Abel Bo\r\n100,Ng Ada\r\n"},
                                                        {"57", "512,Abel Bo\r\n100,Ng Ada\r\n"},
                                                        {"82", "100,Ng Ada\r\n512,Abel Bo\r\n"},
                                                        {"73", "100,Ng Ada\r\n512,Abel Bo\r\n"}};
  for (const auto& [mode, text] : orders) {
    RunCli({"export", file, "--what", "names", "--layout", "comma", "--out", Path("out.txt"),
            "--name-mode", mode});
    EXPECT_EQ(Get(Path("out.txt")), text) << mode;
  }
}

TEST_F(TextCommandTest, ExportTellsWhatTheLayoutCouldNotCarry) {
  const std::string file =
      Build(R"({"Students": [{"lastname": "O'Hara", "firstname": "Bo", "id": "7"}]})");
  const CliRun run =
      RunCli({"export", file, "--what", "names", "--layout", "single", "--out", Path("out.txt")});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "values changed to fit the layout: 1\n");
}

TEST_F(TextCommandTest, ExportLeavesTheClassFileAlone) {
  const std::string file = Build(kExportedClass);
  const std::string before = Get(file);
  ExpectRefused(RunCli({"export", file, "--what", "names", "--layout", "tabs", "--out", file}),
                file + ": is the class file itself, which is left as it is");
  EXPECT_EQ(Get(file), before);
  EXPECT_EQ(RunCli({"export", file, "--what", "names", "--layout", "tabs", "--out",
                    Path("no folder/out.txt")})
                .status,
            1);
}

TEST_F(TextCommandTest, AnExportComesBack) {
  for (const char* layout : {"columns", "single", "double", "tabs", "comma", "csv"}) {
    const std::string text = Exported("info", layout);
    const Json c = Import(text, layout);
    EXPECT_EQ(c["Students"][1]["firstname"], "Zoé") << layout;
    EXPECT_EQ(c["Students"][1]["city"], "Köln") << layout;
  }
}

}  // namespace
}  // namespace tallyroll
