// SPDX-License-Identifier: GPL-3.0-or-later
#include "companion/companion_at_save.h"

#include <cstdio>
#include <filesystem>
#include <utility>

#include "base/code_page.h"
#include "base/number_text.h"
#include "companion/companion_file.h"
#include "store/safe_file.h"

namespace tallyroll {
namespace {

constexpr int kMostPutAside = 99;

std::string CompanionName(const std::string& path) {
  return PathForDisplay(path.substr(path.rfind('/') + 1));
}

std::string OffText(const std::string& class_path, const Fault& fault) {
  return "The companion file " + CompanionName(CompanionPath(class_path)) + " is off: " + fault +
         ".";
}

// "MATH.tyx.old", then "MATH.tyx.old2" and on; empty when all of them are taken.
std::string FreeNameBeside(const std::string& companion) {
  for (int i = 1; i <= kMostPutAside; ++i) {
    std::string name = companion + ".old" + (i == 1 ? "" : PlainNumberText(i));
    if (!PathExists(name)) return name;
  }
  return {};
}

// The companion of a class file that is gone from this folder and had the bytes of this one.
std::string LeftByRename(const std::string& class_path) {
  namespace fs = std::filesystem;
  std::error_code error;
  const fs::path folder = fs::path(CompanionPath(class_path)).parent_path();
  for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
       entry.increment(error)) {
    if (entry->path().extension() != ".tyx") continue;
    const auto class_of = [&](const char* ending) {
      return fs::path(entry->path()).replace_extension(ending).string();
    };
    if (PathExists(class_of(".TYR")) || PathExists(class_of(".tyr"))) continue;
    const Companion companion = OpenCompanionOfAnyClass(class_of(".TYR"));
    if (companion && KnowsFile(companion, class_path)) return entry->path().string();
  }
  return {};
}

}  // namespace

CompanionAtSave::CompanionAtSave(std::string from, std::string to)
    : from_(std::move(from)), to_(std::move(to)) {
  if (from_.empty()) return;
  const Companion companion = OpenCompanion(from_);
  ours_ = companion.database != nullptr;
  strange_ = companion.of_another_class;
}

std::string CompanionAtSave::Saved() {
  const bool moves = from_.empty() || CompanionPath(from_) != CompanionPath(to_);
  if (moves || strange_) PutAside();
  if (ours_ && moves) TakeAlong();
  if (ours_ && !off_) {
    Companion companion = OpenCompanionOfAnyClass(to_);
    TellFault(companion ? KnowClass(companion, to_) : companion.fault);
  }
  return told_;
}

void CompanionAtSave::TellFault(const Fault& fault) {
  if (fault.empty()) return;
  off_ = true;
  told_ += " " + OffText(to_, fault);
}

// Where it cannot be moved it stays, and stays off, since it knows another class.
void CompanionAtSave::PutAside() {
  const std::string companion = CompanionPath(to_);
  if (!PathExists(companion)) return;
  const std::string aside = FreeNameBeside(companion);
  if (aside.empty() || std::rename(companion.c_str(), aside.c_str()) != 0)
    return TellFault("it belongs to another class");
  told_ += " The companion file of the class that was here before is kept as " +
           CompanionName(aside) + ".";
}

void CompanionAtSave::TakeAlong() {
  const Companion companion = OpenCompanionOfAnyClass(from_);
  const std::string path = CompanionPath(to_);
  if (companion && !PathExists(path)) companion.database->Run("VACUUM INTO ?", {path});
  TellFault(companion ? companion.database->fault() : companion.fault);
}

std::string TakeUpCompanion(const std::string& class_path) {
  const std::string path = CompanionPath(class_path);
  if (!PathExists(path)) {
    const std::string left = LeftByRename(class_path);
    if (left.empty() || std::rename(left.c_str(), path.c_str()) != 0) return {};
    return "The companion file " + CompanionName(left) + " is " + CompanionName(path) +
           " now, as its class file is.";
  }
  const Companion companion = OpenCompanion(class_path);
  return companion.fault.empty() ? "" : OffText(class_path, companion.fault);
}

}  // namespace tallyroll
