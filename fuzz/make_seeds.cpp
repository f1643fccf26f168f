// SPDX-License-Identifier: GPL-3.0-or-later
// Writes small files for the fuzzers to begin with: make_seeds fuzz/corpus
#include <filesystem>
#include <fstream>

#include "store/class_defaults.h"
#include "store/class_format.h"
#include "tests/support/file_bytes.h"

namespace tallyroll {
namespace {

void Put(const std::filesystem::path& path, const std::string& bytes) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << bytes;
}

Class SmallClass() {
  Class c;
  ResetRecord(c);
  c.Magic = "ty8";
  c.AverageSettings = "0,1,0,0,0,2,";
  c.NumInstruments = c.NumSummaries = c.NumStudents = c.NumCharts = 1;
  c.NumDays = 2;
  ReDim(c.Instruments, 1);
  ReDim(c.Summaries, 1);
  ReDim(c.AttendanceDays, 2);
  ReDim(c.Students, 1);
  ReDim(c.ChartRows, 1);
  ReDim(c.ChartColumns, 1);
  Student& s = c.Students[1];
  s.lastname = "Adams";
  ReDim(s.Marks, 1, ShortText("A+"));
  ReDim(s.SummaryAbsent, 1);
  ReDim(s.SummaryDetail, 1, ShortText(kNewSummaryDetail));
  ReDim(s.SummaryLate, 1);
  ReDim(s.DailyMarks, 2);
  ReDim(s.SeatRow, 1);
  ReDim(s.SeatColumn, 1);
  return c;
}

std::string OldClass(bool ty7) {
  FileBytes f;
  f.Raw(ty7 ? "ty7" : "ty5").Fixed("", 10).I16(1).I16(1).I16(1).I16(1).I16(0).NoList().NoList();
  f.I16(0).Fixed("Mr B", 20).Fixed("", 45).Fixed("Algebra", 30).Fixed("", 6).Text("1\r2");
  if (ty7) f.NoList().Text("0,1,0,0,0,");
  f.Fixed("Adams", 12).Fixed("Ann", 10).Fixed("", 158).List(1).Fixed("", ty7 ? 10 : 6);
  f.List(1).Fixed("", 2).List(1).Fixed("", 10).NoList().NoList().Texts(ty7 ? 4 : 2);
  f.Fixed("Quiz", 50)
      .Fixed("Q1", 5)
      .Money(10000)
      .I16(100)
      .Fixed("", 15)
      .Text("")
      .Fixed("Q", 12)
      .Text("");
  f.Date(46266).Raw(" ").Text("");
  f.Fixed("Term", 50).Fixed("T", 5).I16(2).I16(0).Fixed("", 20);
  return f.bytes;
}

int Run(const std::filesystem::path& corpus) {
  std::string bytes;
  SerializeClass(SmallClass(), bytes);
  Put(corpus / "class_file/one_of_each", bytes);
  Put(corpus / "class_file/empty", HeaderBytes(0, 0, 0, 0));
  Put(corpus / "class_file/two_students",
      HeaderBytes(2, 0, 0, 0) + StudentBytes("Adams", "Ann") + StudentBytes("Baker", "Bob"));
  Put(corpus / "ty7/one_of_each", OldClass(true));
  Put(corpus / "ty5/one_of_each", OldClass(false));
  FileBytes letters, scale;
  for (int k = 1; k <= 13; ++k) letters.Fixed("A+", 3).Money(990000);
  for (int k = 1; k <= 12; ++k) scale.Money(995000).Fixed("(A+/EX/4.0)", 16);
  Put(corpus / "side_files/letters", letters.bytes);
  Put(corpus / "side_files/scale", scale.bytes);
  Put(corpus / "settings/letter_string", "343'99'95'90'88'85'80'78'75'70'68'65'60'55'");
  Put(corpus / "settings/average_settings", "3,1,0,1,1,2,0,0,-1.5,1e3,922337203685477.5807,");
  Put(corpus / "settings/percents", "10\r20\r.5\r\r40");
  Put(corpus / "text_import/columns",
      "\x06"
      "1001         Ng, Ada\r\n1002         Le, Bo\r\n");
  Put(corpus / "text_import/single",
      "\x01"
      "1'Ng, Ada'12 Main St\n1'Le, Bo'85");
  Put(corpus / "text_import/double", "\x02\"1\",\"Ng, Ada\"\n\"2\",\"Le, Bo\",\"85\"\n");
  Put(corpus / "text_import/tabs",
      "\x03"
      "ID\tNAME\tRivers\n\t\tRIV\n1\tNg, Ada\t91\n");
  Put(corpus / "text_import/comma",
      "\x04"
      "1,Ng Ada,91\r2,Le Bo,A-\r");
  Put(corpus / "text_import/csv",
      "\x05\xEF\xBB\xBFID;Name;Town\r\n1;\"Ng, \"\"Ada\"\"\";K\xC3\xB6ln\r\n2;\xC5\x81u Ka;\n");
  Put(corpus / "student_clipboard/student",
      "3z\rNg\rAda\r7\r=\r555\r=\r=\r=\rOslo\r=\r=\r=\rone\r\ntwo<END FIELD>\r1\r1\r1\r95\rT\r"
      "3    \r12\r 1/ 2/ 0/ 0/\r");
  Put(corpus / "grade_clipboard/grade",
      "8z\rRivers\rRIV\r50\r32.5\r9/10/2026\rN\rHW\r3\r7,41\r7,8,5\r,,B+\r");
  Put(corpus / "settings/recent", "1. C:\\CLASSES\\MATH.TYR");
  return 0;
}

}  // namespace
}  // namespace tallyroll

int main(int argc, char** argv) {
  return argc == 2 ? tallyroll::Run(argv[1]) : 2;
}
