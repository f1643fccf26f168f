// SPDX-License-Identifier: GPL-3.0-or-later
// How the program starts.
#include <filesystem>

#include "platform/portal.h"
#include "platform/surroundings.h"
#include "shell/data_folder.h"
#include "shell/mdi_form1.h"
#include "shell/shell_state.h"
#include "store/settings.h"

namespace tallyroll {
namespace {

constexpr int kRebuildingMenu = 5;

// The working directory changes before the file is opened.
std::string WholePath(std::string_view path) {
  if (path.empty()) return "";
  std::error_code failed;
  const auto whole = std::filesystem::absolute(path, failed);
  return failed ? std::string(path) : whole.lexically_normal().string();
}

void GoToDataFolder() {
  if (DataFolder.empty()) MakeDataFolder();
  if (!EnterDataFolder()) EnterDataFolder();
}

}  // namespace

void MDIForm1::Load(std::string_view command_file) {
  CurrentClass = 1;
  CommandFile = WholePath(command_file);
  ProgramFolder = Platform().ProgramFolder();
  LoadProgramSettings();
  GoToDataFolder();
  OpenState = kRebuildingMenu;
  RebuildRecentMenu();
  OpenState = 0;

  if (CommandFile.empty()) ShowPortal("frmstartup");
  Screen->ShowFrame();
  if (!CommandFile.empty()) OpenRecent(CommandFile);
}

}  // namespace tallyroll
