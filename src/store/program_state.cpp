// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/program_state.h"

#include "store/class_defaults.h"
#include "store/class_file.h"
#include "store/csv_columns.h"
#include "store/settings.h"
#include "store/text_layout.h"

namespace tallyroll {

std::array<Class, kClassSlots> Classes;
i16 MaxClassSlots = 6;
i16 CurrentClass = 1;
i16 CurrentStudent = 0;
i16 DefaultMethod = 5;
int OpenState = 0;
int FileErrorCode = 0;
i16 NameMode = 68;
std::string DataFolder;
std::string ProgramFolder;
std::string LastFolder;
i16 TextMode = kColumnsText;
std::string ImportFile;

Class& Current() {
  return Classes[static_cast<std::size_t>(CurrentClass)];
}

void ResetStore() {
  for (Class& each : Classes) each = Class();
  ClassFiles.fill(ClassFile());
  SkippedScale.fill(0);
  MaxClassSlots = 6;
  CurrentClass = 1;
  CurrentStudent = 0;
  DefaultMethod = 5;
  OpenState = 0;
  FileErrorCode = 0;
  NameMode = 68;
  DataFolder.clear();
  ProgramFolder.clear();
  LastFolder.clear();
  TextMode = kColumnsText;
  ImportFile.clear();
  ImportColumns = CsvColumns();
  ResetSettings();
}

}  // namespace tallyroll
