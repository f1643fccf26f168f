// SPDX-License-Identifier: GPL-3.0-or-later
// The two routines that every open and every save go through.
#include "store/class_file.h"

#include <algorithm>

#include "base/code_page.h"
#include "base/number_text.h"
#include "base/run_time_error.h"
#include "base/text.h"
#include "platform/class_window.h"
#include "platform/portal.h"
#include "platform/surroundings.h"
#include "store/class_backup.h"
#include "store/class_defaults.h"
#include "store/derived_values.h"
#include "store/mend_class.h"
#include "store/older_class_file.h"
#include "store/read_records.h"
#include "store/side_files.h"

namespace tallyroll {

std::array<ClassFile, kClassSlots> ClassFiles;

ClassFile& CurrentClassFile() {
  return ClassFiles[static_cast<std::size_t>(CurrentClass)];
}

namespace {

constexpr int kOpening = 10;
constexpr int kAwaitingPassword = 20;

void RefuseUnknownFile() {
  Current().FileName.clear();
  ShowMessage("This file is NOT in a recognized Tallyroll format", BoxIcon::kCritical);
}

bool HasPassword(const Class& c) {
  return !Trim(c.Password).empty() || c.PasswordSet == 1;
}

// The teacher gives the password, or the class stays closed.
bool MayOpen() {
  if (!HasPassword(Current())) return true;
  Platform().SetWaitCursor(false);
  OpenState = kAwaitingPassword;
  ShowPortal("frmpassword");
  return OpenState != kAwaitingPassword;
}

// The current format. Returns false when the password was refused.
bool ReadCurrentFormat(const std::string& bytes, int& error) {
  Class& c = Current();
  ClearRecords(c);
  const ParseOutcome header = ParseHeader(bytes, c);
  error = header.error;
  if (!MayOpen()) return false;
  Platform().SetWaitCursor(true);
  if (error == 0) error = ParseRecords(bytes, header.consumed, c).error;
  FitCounts(c);
  return true;
}

bool ReadOlderFormat(const std::string& bytes, int& error) {
  Platform().SetWaitCursor(false);
  ShowConversionNotice();
  error = ParseOldClass(bytes, Current()).error;
  return MayOpen();
}

// What follows the reading of any format, whole or not.
void SettleReadClass(std::size_t file_size, bool older, int error) {
  Class& c = Current();
  const int mending = MendClass(c, file_size);
  if (error == 0) error = mending;
  Platform().SetWaitCursor(false);
  CurrentClassFile().read_failed = error != 0;
  if (error != 0) ReportReadError(error);
  ClassWindow().EnableClassMenus(true);
  SetDefaultRoundScale();
  c.Changed = kFalse;
  if (c.RoundScale == 4) c.RoundScale = 0;
  if (older) ReadSideFiles();
  const int settings = ParseAverageSettings();
  const int derived = PrepareWeights();
  if (settings != 0 || derived != 0) ReportReadError(settings != 0 ? settings : derived);
  MakeDerivedValues(c);
  Platform().SetWaitCursor(false);
}

// A file that someone else wrote since is not lost without a question.
bool MaySaveOver(const std::string& path) {
  const ClassFile& known = CurrentClassFile();
  if (known.path != CanonicalPath(path) || known.stamp.size < 0) return true;
  const FileStamp now = StampOf(path);
  if (now.size < 0 || now == known.stamp) return true;
  return Ask("The class file has been changed by another program since it was opened. Save over "
             "it?",
             BoxButtons::kYesNo, BoxIcon::kExclamation) == BoxAnswer::kYes;
}

// `kept` is the name that it is kept under; empty when there was nothing to keep.
int KeepUnreadOriginal(const std::string& path, std::string& kept, Backup& backup) {
  const ClassFile& known = CurrentClassFile();
  if (!known.read_failed || known.path != CanonicalPath(path) || !PathExists(path)) return 0;
  return BackUpUnreadFile(path, kept, backup);
}

// Bytes first, backup second, the file last: a failure at any point leaves the file as it was.
int SaveCurrentClass(std::string& kept) {
  Class& c = Current();
  const FixedText<3> old_mark = c.Magic;
  const bool first_save = old_mark == "ty5" || old_mark == "ty7";
  c.Magic = "ty8";
  std::string bytes;
  Backup unread;
  Backup backup;
  int error = SerializeClass(c, bytes);
  if (error == 0) error = KeepUnreadOriginal(c.FileName, kept, unread);
  if (error == 0 && first_save) backup = BackUpConvertedFile(c.FileName);
  // The file that became the backup leaves no tail behind: it would have been moved out of the way.
  const OldTail tail = backup.stands ? OldTail::kDrop : OldTail::kKeep;
  if (error == 0) error = ReplaceFile(c.FileName, bytes, tail);
  if (error == 0) return 0;
  TakeBack(backup);
  TakeBack(unread);
  c.Magic = old_mark;
  return error;
}

void ConfirmSave(const std::string& path, const std::string& kept) {
  std::string told = SavedText(path);
  if (!kept.empty())
    told += " The file that could not be read whole is kept as " + PathForDisplay(kept);
  ClassWindow().ShowStatus(told);
}

void FailSave(int error) {
  Current().Changed = kTrue;
  FileErrorCode = error;
}

void ReportFailedSave(int error) {
  std::string text = "File Error: " + PlainNumberText(error);
  if (error == kErrorPermission) text += ". Disk may be write protected";
  ShowMessage(text, BoxIcon::kExclamation);
}

}  // namespace

std::string SavedText(std::string_view path) {
  return PathForDisplay(path.substr(path.rfind('/') + 1)) + " saved.";
}

bool IsOpenClassFile(const std::string& path) {
  return std::any_of(Classes.begin(), Classes.end(), [&](const Class& c) {
    return !c.FileName.empty() && CanonicalPath(c.FileName) == CanonicalPath(path);
  });
}

void ReportReadError(int error) {
  ShowMessage("File Error: " + PlainNumberText(error), BoxIcon::kExclamation);
  if (error == kErrorPathNotFound) DataFolder = ProgramFolder;
}

void ReadClassFile() {
  Class& c = Current();
  OpenState = kOpening;
  SetDefaultLetterValues();
  Platform().SetWaitCursor(true);
  const FileContents file = ReadWholeFile(c.FileName);
  const std::string mark = file.bytes.substr(0, 3);
  const bool older = mark == "ty5" || mark == "ty7";
  int error = file.error;
  if (error != 0 || (mark != "ty8" && !older)) {
    Platform().SetWaitCursor(false);
    if (error == 0) return RefuseUnknownFile();
    c.FileName.clear();
    return ReportReadError(error);
  }
  if (!(older ? ReadOlderFormat(file.bytes, error) : ReadCurrentFormat(file.bytes, error))) {
    c.FileName.clear();
    return;
  }
  CurrentClassFile() = {CanonicalPath(c.FileName), file.stamp, false};
  SettleReadClass(file.bytes.size(), older, error);
}

void WriteClassFile() {
  Class& c = Current();
  FileErrorCode = 0;
  if (!MaySaveOver(c.FileName)) return FailSave(kErrorPermission);
  Platform().SetWaitCursor(true);
  std::string kept;
  const int error = SaveCurrentClass(kept);
  Platform().SetWaitCursor(false);
  if (error != 0) {
    FailSave(error);
    return ReportFailedSave(error);
  }
  CurrentClassFile() = {CanonicalPath(c.FileName), StampOf(c.FileName), false};
  ClassWindow().EnableEntry("mnusave", true);
  ConfirmSave(c.FileName, kept);
}

}  // namespace tallyroll
