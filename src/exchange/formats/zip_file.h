// SPDX-License-Identifier: GPL-3.0-or-later
// ZIP archives in memory. The library is loaded when the first archive is met, so that a program
// that meets none starts without it; where it is missing every call says so.
#pragma once

#include <map>
#include <string>
#include <string_view>

namespace tallyroll {

// What an archive may unpack to, whatever it says of itself: twice what three hundred marks of a
// thousand students take.
inline constexpr std::size_t kMostUnpacked = std::size_t{128} << 20;

struct ZipFiles {
  std::string refusal;  // why nothing can be taken, as the end of a sentence
  std::map<std::string, std::string, std::less<>> files;  // by name
};

// All files of an archive. One that lies about its sizes, names another folder or unpacks to more
// than a grade file ever holds is refused.
ZipFiles Unzip(std::string_view bytes);

struct ZipBytes {
  std::string refusal;
  std::string bytes;
};
ZipBytes Zip(const std::map<std::string, std::string, std::less<>>& files);

}  // namespace tallyroll
