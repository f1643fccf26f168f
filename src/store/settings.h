// SPDX-License-Identifier: GPL-3.0-or-later
// Settings that outlive a class, and the side files of older versions.
#pragma once

#include <array>
#include <string>

namespace tallyroll {

inline constexpr const char* kApplicationKey = "TALLYRLG8";

extern std::array<std::string, 5> RecentFiles;  // full paths, most recent first
extern std::string PrinterFontName;
extern float PrinterFontSize;
extern std::string SenderAddress;   // e-mail address of the sender
extern std::string MailServer;      // outgoing mail server
extern std::string MarginTop;       // margins as text, "-500" when never set
extern std::string MarginLeft;
extern std::string MarginBottom;
extern std::string MarginRight;

void LoadProgramSettings();
void SaveProgramSettings();
// Fills LetterValues of the current class from the teacher's setting for new classes, if there is one.
void LoadLetterString();

void ResetSettings();

}  // namespace tallyroll
