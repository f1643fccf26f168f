// SPDX-License-Identifier: GPL-3.0-or-later
#include "letters/mail/student_report.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <utility>

#include "base/code_page.h"
#include "base/text.h"
#include "letters/mail/mail_limits.h"
#include "letters/mail/one_line.h"
#include "platform/surroundings.h"
#include "printing/page/report_choice.h"
#include "printing/print_run.h"
#include "printing/reports/reports.h"
#include "store/program_state.h"
#include "store/safe_file.h"
#include "store/student_names.h"

namespace tallyroll {
namespace {

// Chooses one student as long as it lives; what the preview shows is as before afterwards.
class OneStudent {
 public:
  explicit OneStudent(i16 student) : job_(Job), choice_(Choice), student_(CurrentStudent) {
    CurrentStudent = student;
    if (IsOnSingleStudents()) Choice.students = {student};
    Job.PrintFlag = kPrintRuns;
  }
  ~OneStudent() {
    Job = job_;
    Choice = choice_;
    CurrentStudent = student_;
  }
  OneStudent(const OneStudent&) = delete;
  OneStudent& operator=(const OneStudent&) = delete;

 private:
  PrintJob job_;
  ReportChoice choice_;
  i16 student_;
};

// A folder that nobody else can look into.
class OwnFolder {
 public:
  OwnFolder() {
    std::error_code failed;
    std::string name = (std::filesystem::temp_directory_path(failed) / "tallyroll-XXXXXX").string();
    if (mkdtemp(name.data())) path_ = name;
  }
  ~OwnFolder() {
    std::error_code ignored;
    if (!path_.empty()) std::filesystem::remove_all(path_, ignored);
  }
  OwnFolder(const OwnFolder&) = delete;
  OwnFolder& operator=(const OwnFolder&) = delete;
  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

// Each page that was laid out is this student's.
bool EveryPageIsOf(i16 student) {
  return Job.PageCount > 0 && std::all_of(Job.PageStudent.begin() + 1, Job.PageStudent.end(),
                                          [student](i16 each) { return each == student; });
}

}  // namespace

bool WritePdfPages(const std::string& path) {
  if (!LayOutReport()) return false;
  const auto pdf = Platform().OpenPdf(path, PrintsLandscape(), Job.PrintTitle);
  if (!pdf) return false;
  PrepareTarget(*pdf);
  const PrintRange all = {.from_page = 1, .to_page = Job.PageCount, .copies = 1};
  return PrintPages(*pdf, all, [](int) {});
}

bool IsOnSingleStudents() {
  const Report* report = FindReport(Job.ReportCode);
  return report && report->one_student;
}

std::string TextOfStudent(i16 student) {
  const OneStudent alone(student);
  std::string text = ReportText();
  const bool done = Job.PrintFlag != kPrintCancelled;
  CurrentStudent = student;
  const bool named = text.find(TrimRight(StudentLabel())) != std::string::npos;
  return done && named ? text : std::string();
}

std::string PdfOfStudent(i16 student, const PdfWriter& write) {
  const OneStudent alone(student);
  const OwnFolder folder;
  const std::string path = folder.path() + "/report.pdf";
  if (folder.path().empty() || !write(path)) return {};
  if (IsOnSingleStudents() && !EveryPageIsOf(student)) return {};
  return ReadWholeFile(path, kLargestAttachment).bytes;
}

std::string ReportFileName(i16 student) {
  const Student& named = Current().Students[static_cast<std::size_t>(student)];
  std::string name = OneLine(Utf8FromCodePage(Trim(PlainName(named))));
  std::ranges::replace(name, '/', '-');
  return name + ".pdf";
}

}  // namespace tallyroll
