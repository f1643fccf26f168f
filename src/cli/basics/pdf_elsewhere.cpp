// SPDX-License-Identifier: GPL-3.0-or-later
// PDF needs Qt, whose forty libraries take ten times as long to load as the rest of the program to
// run. So tallyroll-cli is linked without them, and hands a command line that asks for PDF to
// tallyroll-pdf: the same program with Qt, which stands beside it or in the folder of the package.
#include <unistd.h>

#include <filesystem>
#include <vector>

#include "cli/basics/pdf.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

constexpr const char* kWithQt = "tallyroll-pdf";

// The arguments of this process, each ended by a zero byte.
std::vector<char*> ArgumentsIn(std::string& bytes) {
  std::vector<char*> arguments;
  for (std::size_t at = 0; at < bytes.size(); at = bytes.find('\0', at) + 1)
    arguments.push_back(bytes.data() + at);
  arguments.push_back(nullptr);
  return arguments;
}

// Comes back only when there is no such program.
void RunAgainWith(const std::filesystem::path& program) {
  FileContents line = ReadWholeFile("/proc/self/cmdline");
  if (line.error == 0) execv(program.c_str(), ArgumentsIn(line.bytes).data());
}

// Comes back only when there is none.
void RunWithQt() {
  std::error_code error;
  const std::filesystem::path folder =
      std::filesystem::read_symlink("/proc/self/exe", error).parent_path();
  RunAgainWith(folder / kWithQt);
  RunAgainWith(folder / TALLYROLL_LIBEXEC / kWithQt);
}

}  // namespace

PdfOutcome WritePdf(const std::string& /*path*/, const std::string& /*title*/) {
  RunWithQt();
  return {"PDF is not available here"};
}

PdfOutcome WritePdfJob(const std::string& path, const std::string& title,
                       const std::function<void(PrintTarget&)>& /*print*/) {
  return WritePdf(path, title);
}

PdfOutcome WritePdfPage(const std::string& path, const std::string& title,
                        const std::function<void(PrintTarget&)>& /*draw*/, bool /*landscape*/) {
  return WritePdf(path, title);
}

std::string PngOf(double /*width*/, double /*height*/, int /*dots_per_inch*/,
                  const std::function<void(PrintTarget&)>& /*draw*/) {
  RunWithQt();
  return {};
}

std::unique_ptr<PrintTarget> MakePaperBox(bool /*landscape*/) {
  return nullptr;
}

}  // namespace tallyroll
