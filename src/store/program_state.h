// SPDX-License-Identifier: GPL-3.0-or-later
// The program's state that classes, Portals and reports share. One user, one thread.
#pragma once

#include <array>
#include <string>

#include "store/records.h"

namespace tallyroll {

inline constexpr int kClassSlots = 7;

extern std::array<Class, kClassSlots>
    Classes;  // a class lives in its slot from open to close; 0 and 6 are never handed out
extern i16
    MaxClassSlots;        // exclusive upper bound of the slots in use, 6: at most five classes open
extern i16 CurrentClass;  // the slot in work; a class window sets it when it comes to the front
extern i16 CurrentStudent;  // the Students index a Portal works on; the Instrument's in statistics;
                            // 0 is none
extern i16 DefaultMethod;   // the method of a new average; set by ResetClassSlot and by opening
extern int OpenState;       // the mode a menu hands to a Portal, and the Portal's answer
extern int FileErrorCode;   // the last save's error number, 0 when it went well
extern i16
    NameMode;  // display and sort order: 68, 57, 82, 73; set by the Display menu and the settings
extern std::string DataFolder;     // the folder of class files; set by the settings
extern std::string ProgramFolder;  // the program's own folder; set at start-up
extern std::string LastFolder;     // where the last file dialog ended
extern i16 TextMode;               // how a text file parts its fields; set by frmtxt
extern std::string ImportFile;     // the text file that is read; set by the file dialog

// The class in work.
Class& Current();

// Puts everything above to its start value. The whole program's is ResetProgram.
void ResetStore();

}  // namespace tallyroll
