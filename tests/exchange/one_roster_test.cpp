// SPDX-License-Identifier: GPL-3.0-or-later
#include <gmock/gmock.h>

#include "exchange/formats/zip_file.h"
#include "exchange/out_table.h"
#include "tests/exchange/exchange_test.h"

namespace tallyroll {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

using Files = std::map<std::string, std::string, std::less<>>;

class OneRosterTest : public ExchangeTest {
 protected:
  static Files School() {
    return {
        {"manifest.csv",
         "propertyName,value\nmanifest.version,1.0\noneroster.version,1.2\nfile.users,bulk\n"},
        {"classes.csv", "sourcedId,status,dateLastModified,title\nc1,,,Geometry\nc2,,,Algebra\n"},
        {"enrollments.csv",
         "sourcedId,status,dateLastModified,classSourcedId,schoolSourcedId,userSourcedId,role\n"
         "e1,,,c2,s,u1,student\ne2,,,c2,s,u2,student\ne3,,,c2,s,u9,teacher\ne4,,,c1,s,u3,"
         "student\n"},
        {"users.csv",
         "sourcedId,status,dateLastModified,enabledUser,username,userIds,givenName,familyName,"
         "middleName,identifier,email\n"
         "u1,,,true,bo,,Bo,Abel,,7,\nu2,,,true,zoe,,Zo\xC3\xA9,Mu\xC3\xB1oz,,8,\n"
         "u3,,,true,x,,X,Else,,3,\nu9,,,true,t,,T,Teacher,,1,\n"},
        {"lineItems.csv",
         "sourcedId,status,dateLastModified,title,classSourcedId,resultValueMin,resultValueMax\n"
         "l1,,,Essay,c2,0,20\nl2,,,Proof,c1,0,20\nl3,,,Oral,c2,0,10\n"},
        {"results.csv",
         "sourcedId,status,dateLastModified,lineItemSourcedId,studentSourcedId,scoreStatus,score,"
         "scoreDate,comment,textScore\n"
         "r1,,,l1,u1,fully graded,17.5,2026-01-01,Fine,\nr2,,,l1,u2,exempt,,2026-01-01,,\n"
         "r3,,,l3,u1,fully graded,,2026-01-01,,B+\nr4,,,l3,u2,not submitted,,2026-01-01,,\n"
         "r5,,,l2,u3,fully graded,9,2026-01-01,,\n"}};
  }

  static ExchangePreview Preview(const Files& files) {
    const ZipBytes zip = Zip(files);
    EXPECT_EQ(zip.refusal, "");
    EXPECT_EQ(RecognisedFormat(zip.bytes), ExchangeFormat::kOneRoster);
    return PreviewOfFile(ExchangeFormat::kOneRoster, zip.bytes);
  }
};

TEST_F(OneRosterTest, TheClassOfThisNameIsTakenWithItsStudents) {
  const ExchangePreview preview = Preview(School());
  EXPECT_EQ(preview.refusal, "");
  EXPECT_THAT(Lines(preview),
              ElementsAre("+line 4 new grade | Oral | >10",
                          "+line 2 changed mark | Abel, Bo | Essay | 18>17.5",
                          "+line 3 changed mark | Mu\xF1oz, Zo\xE9 | Essay | ABS>EXC",
                          "+line 4 new mark | Abel, Bo | Oral | NEW>B+"));
}

TEST_F(OneRosterTest, WhatIsMissingIsToldByItsName) {
  Files files = School();
  files.erase("manifest.csv");
  EXPECT_EQ(Preview(files).refusal, "has no manifest.csv");
  files = School();
  files.erase("users.csv");
  EXPECT_EQ(Preview(files).refusal, "has no users.csv");
  files = School();
  files["users.csv"] = "sourcedIds,givenName\n";
  EXPECT_EQ(Preview(files).refusal,
            "holds a users.csv that has no column \"sourcedId\", \"familyName\"");
  files = School();
  files["manifest.csv"] = "propertyName,value\noneroster.version,2.0\n";
  EXPECT_EQ(Preview(files).refusal, "is of version 2.0, not of 1.2");
  Current().description = "Music";
  EXPECT_EQ(Preview(School()).refusal,
            "holds several classes, and none is called as this one: Geometry, Algebra");
}

TEST_F(OneRosterTest, AResultOfNobodyAndARepeatedOneAreToldWithTheirFile) {
  Files files = School();
  files["results.csv"] +=
      "r6,,,l1,u7,fully graded,1,,,\nr7,,,l9,u1,fully graded,1,,,\nr8,,,l1,u1,fully graded,1,,,\n";
  const std::vector<std::string> lines = Lines(Preview(files));
  EXPECT_THAT(lines, Contains(HasSubstr("E7 cannot be used [\"u7\" is no student of the file "
                                        "(results.csv)]")));
  EXPECT_THAT(lines, Contains(HasSubstr("D8 cannot be used [\"l9\" is no grade of the file")));
  EXPECT_THAT(lines, Contains(HasSubstr("E9 cannot be used [\"u1\" has this grade on an earlier")));
}

TEST_F(OneRosterTest, AnArchiveThatUnpacksToTooMuchIsRefused) {
  Files files = School();
  files["results.csv"] = std::string(kMostUnpacked + 1, '0');
  EXPECT_EQ(Preview(files).refusal, "unpacks to too much");
  EXPECT_TRUE(Unzip(Zip(files).bytes).files.empty());
}

// Three hundred marks of a thousand students, each a line as long as those that go out.
TEST_F(OneRosterTest, AnArchiveOfABigClassIsUnpacked) {
  const ZipFiles small = Unzip(
      OutFile(ExchangeFormat::kOneRoster, MakeOutTable(ExchangeFormat::kOneRoster, {})).bytes);
  const std::string& results = small.files.at("results.csv");
  const std::size_t line = results.find('\n', results.find('\n') + 1) - results.find('\n');
  EXPECT_GT(line, 150u);
  const ZipBytes big = Zip({{"results.csv", std::string(300'000 * line, '0')}});
  EXPECT_EQ(Unzip(big.bytes).refusal, "");
}

TEST_F(OneRosterTest, AnArchiveThatLiesAboutItsSizesIsRefused) {
  const std::string honest = Zip(School()).bytes;
  // The unpacked size of the first entry, in its local header and in the directory at the end.
  for (const std::size_t at : {std::size_t{22}, honest.find("PK\x01\x02") + 24}) {
    for (const char size : {'\x01', '\x7F'}) {
      std::string lies = honest;
      lies[at] = size;
      const ZipFiles unpacked = Unzip(lies);
      EXPECT_NE(unpacked.refusal, "") << at;
      EXPECT_TRUE(unpacked.files.empty());
    }
  }
}

TEST_F(OneRosterTest, AnEntryOfAnotherFolderIsRefused) {
  for (const char* name : {"../users.csv", "/etc/users.csv", "a/users.csv", "..\\users.csv"}) {
    Files files = School();
    files[name] = "x";
    EXPECT_EQ(Preview(files).refusal, "holds a file of another folder") << name;
  }
}

TEST_F(OneRosterTest, ACutArchiveIsRefused) {
  const std::string whole = Zip(School()).bytes;
  for (std::size_t size = 0; size < whole.size(); size += 37)
    EXPECT_NE(Unzip(whole.substr(0, size)).refusal, "") << size;
}

}  // namespace
}  // namespace tallyroll
