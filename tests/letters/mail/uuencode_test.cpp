// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/uuencode.h"

#include <cstdlib>
#include <fstream>
#include <random>

#include "store/safe_file.h"
#include "tests/support/portal_test.h"

namespace tallyroll {
namespace {

const std::string kFoot = "`\r\nend\r\n";

// A full line of 45 letters A: 41 41 41 are the sextets 16 20 5 1.
std::string FullLine() {
  std::string line = "M";
  for (int i = 0; i < 15; ++i) line += "04%!";
  return line + "\r\n";
}

TEST(Uuencode, TheLastLineTakesWhatIsLeft) {
  EXPECT_EQ(Uuencode("a.txt", ""), "begin 664 a.txt\r\n \r\n" + kFoot);
  // 41 20 20: the sextets 16 18 0 32; 0 is written as a grave accent.
  EXPECT_EQ(Uuencode("a", "A"), "begin 664 a\r\n!02`@\r\n" + kFoot);
  EXPECT_EQ(Uuencode("a", "AA"), "begin 664 a\r\n\"04$@\r\n" + kFoot);
  EXPECT_EQ(Uuencode("a", std::string(3, 'A')), "begin 664 a\r\n#04%!\r\n" + kFoot);
}

TEST(Uuencode, AFullLineIsFollowedByAnEmptyOne) {
  EXPECT_EQ(Uuencode("a", std::string(45, 'A')), "begin 664 a\r\n" + FullLine() + " \r\n" + kFoot);
  EXPECT_EQ(Uuencode("a", std::string(90, 'A')),
            "begin 664 a\r\n" + FullLine() + FullLine() + " \r\n" + kFoot);
}

TEST(Uuencode, OneByteLessAndOneMore) {
  std::string less = "L";  // 44 bytes
  for (int i = 0; i < 14; ++i) less += "04%!";
  EXPECT_EQ(Uuencode("a", std::string(44, 'A')), "begin 664 a\r\n" + less + "04$@\r\n" + kFoot);
  EXPECT_EQ(Uuencode("a", std::string(46, 'A')),
            "begin 664 a\r\n" + FullLine() + "!02`@\r\n" + kFoot);
}

TEST(Uuencode, ANameNeverMakesALine) {
  EXPECT_EQ(Uuencode("a\r\nQUIT\r\n.txt", ""), "begin 664 a  QUIT  .txt\r\n \r\n" + kFoot);
}

class UuencodeFileTest : public PortalTest {};

TEST_F(UuencodeFileTest, TheNameGoesWithoutItsFolder) {
  std::ofstream(Path("report.txt")) << "AAA";
  const UuencodedText coded = UuencodeFile(Path("report.txt"));
  EXPECT_EQ(coded.error, 0);
  EXPECT_EQ(coded.text, "begin 664 report.txt\r\n#04%!\r\n" + kFoot);
}

TEST_F(UuencodeFileTest, AFileThatIsNotThereIsTold) {
  EXPECT_EQ(UuencodeFile(Path("none.txt")).error, 53);
  EXPECT_EQ(UuencodeFile(folder).error, 75);
}

// The other side is Python's.
TEST_F(UuencodeFileTest, AnotherProgramGetsEveryByteBack) {
  std::mt19937 random(7);
  for (const std::size_t length : {0u, 1u, 44u, 45u, 46u, 90u, 1000u, 4096u}) {
    std::string bytes(length, 0);
    for (char& c : bytes) c = static_cast<char>(random());
    std::ofstream(Path("given.bin"), std::ios::binary) << bytes;
    std::ofstream(Path("coded.txt"), std::ios::binary) << UuencodeFile(Path("given.bin")).text;
    const std::string decode = "python3 -W ignore -c \"import uu; uu.decode('" + Path("coded.txt") +
                               "', '" + Path("back.bin") + "', quiet=True)\"";
    std::filesystem::remove(Path("back.bin"));
    ASSERT_EQ(std::system(decode.c_str()), 0);
    EXPECT_EQ(ReadWholeFile(Path("back.bin")).bytes, bytes) << length;
  }
}

}  // namespace
}  // namespace tallyroll
