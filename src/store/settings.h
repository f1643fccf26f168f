// SPDX-License-Identifier: GPL-3.0-or-later
// Settings that outlive a class.
#pragma once

#include <array>
#include <string>
#include <string_view>

#include "platform/surroundings.h"
#include "store/records.h"

namespace tallyroll {

inline constexpr const char* kApplicationKey = "TALLYRLG8";

extern std::array<std::string, 5> RecentFiles;  // full paths, most recent first
extern std::string
    RememberedFolder;  // DataFolder as the settings hold it, also while that folder is away
extern std::string PrinterFontName;
extern float PrinterFontSize;
extern std::string SenderAddress;  // e-mail address of the sender
extern std::string MailServer;     // outgoing mail server
extern std::string MarginTop;      // margins as text, "-500" when never set
extern std::string MarginLeft;
extern std::string MarginBottom;
extern std::string MarginRight;
extern TextEncoding SavedTextEncoding;  // set and stored by the dialogs that save a text

// Fills the globals above, DataFolder and NameMode. An earlier version's folder serves while this
// one has written no settings of its own. The shell fills the menu with the recent files itself.
void LoadProgramSettings();
void SaveProgramSettings();
void SaveTextEncoding();
// Fills LetterValues of the current class from the teacher's setting for new classes, if there is
// one.
void LoadLetterString();

// The numbers of a LetterString, each closed by a single quote, into the letter values from [0] on:
// as many as there are, at most 14. A number out of range ends it.
void ParseLetterString(std::string_view text, Class& c);
// A recent file as it is stored. Older versions put the menu number before it: "1. C:\A.TYR".
std::string RecentFileOf(std::string_view stored);

void ResetSettings();

}  // namespace tallyroll
