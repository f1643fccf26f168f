// SPDX-License-Identifier: GPL-3.0-or-later
// A build without the library's declarations: no archive is opened or made, and says so.
#include "exchange/formats/zip_file.h"

namespace tallyroll {
namespace {

constexpr const char* kBuiltWithoutZip =
    "cannot be used: this version of the program was built without ZIP archives";

}  // namespace

ZipFiles Unzip(std::string_view /*bytes*/) {
  return {kBuiltWithoutZip, {}};
}

ZipBytes Zip(const std::map<std::string, std::string, std::less<>>& /*files*/) {
  return {kBuiltWithoutZip, ""};
}

}  // namespace tallyroll
