// SPDX-License-Identifier: GPL-3.0-or-later
#include "desktop/paper/pdf_target.h"

#include <QFile>
#include <QPageLayout>
#include <cerrno>

#include "base/code_page.h"
#include "base/run_time_error.h"

namespace tallyroll {
namespace {

constexpr int kTwipsPerInch = 1440;

// What refused: the disk, the last call of the system, or where that does not say, the device.
int ErrorOf(const QSaveFile& file) {
  if (file.error() == QFileDevice::ResourceError) return kErrorDiskFull;
  return errno != 0 ? RunTimeErrorOf(errno) : kErrorDevice;
}

}  // namespace

PdfTarget::PdfTarget(const std::string& path, const Sheet& sheet, bool landscape)
    : PagedTarget(landscape ? Turned(sheet) : sheet),
      file_(QFile::decodeName(path.c_str())),
      writer_(&file_) {
  writer_.setResolution(kTwipsPerInch);
  writer_.setPageLayout(QPageLayout(
      PageSizeOf(sheet), landscape ? QPageLayout::Landscape : QPageLayout::Portrait, QMarginsF()));
  writer_.setCreator(QStringLiteral("Tallyroll"));
}

std::unique_ptr<PdfTarget> PdfTarget::Open(const std::string& path, const Sheet& sheet,
                                           bool landscape, std::string_view title, int& error) {
  std::unique_ptr<PdfTarget> target(new PdfTarget(path, sheet, landscape));
  target->writer_.setTitle(QString::fromStdString(Utf8FromCodePage(title)));
  errno = 0;
  if (target->file_.open(QIODevice::WriteOnly) && target->Begin(target->writer_)) return target;
  error = ErrorOf(target->file_);
  return nullptr;
}

// What is left in the buffer is written before: its failure goes unnoticed by the commit.
int PdfTarget::Finish(bool keep) {
  errno = 0;
  int error = keep && !file_.flush() ? ErrorOf(file_) : 0;
  if (!keep || error != 0) file_.cancelWriting();
  if (!file_.commit() && keep && error == 0) error = ErrorOf(file_);
  return error;
}

}  // namespace tallyroll
