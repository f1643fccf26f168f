// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/side_files.h"

#include "base/run_time_error.h"
#include "base/text.h"
#include "platform/surroundings.h"
#include "store/class_defaults.h"
#include "store/class_file.h"
#include "store/program_state.h"
#include "store/record_bytes.h"

namespace tallyroll {
namespace {

constexpr std::size_t kLetterLength = 3;   // of the letter that stands before each value
constexpr std::size_t kLegendLength = 16;  // of the legend that stands behind each rounding value

// Any text says yes but an empty one and "0".
bool SaysYes(std::string_view setting) {
  const std::string_view text = Trim(setting);
  return !text.empty() && text != "0";
}

FileContents SideFile(std::string_view name) {
  const std::string& path = Current().FileName;
  return ReadWholeFile(path.substr(0, path.rfind('/') + 1).append(name), 1 << 16);
}

bool IsAbsent(const FileContents& file) {
  return file.error == kErrorFileNotFound || file.error == kErrorPathNotFound;
}

void TakeLetterFile() {
  const FileContents file = SideFile("LetterVl.Let");
  if (IsAbsent(file)) return SetDefaultLetterValues();
  const int error = file.error != 0 ? file.error : ParseLetterFile(file.bytes, Current());
  if (error != 0) ReportReadError(error);
}

void TakeRoundFile() {
  const FileContents file = SideFile("Roundoff.rnd");
  if (IsAbsent(file)) return SetDefaultRoundScale();
  const int error = file.error != 0 ? file.error : ParseRoundFile(file.bytes, Current());
  if (error != 0) ReportReadError(error);
}

}  // namespace

int ParseLetterFile(std::string_view bytes, Class& c) {
  FieldReader in(bytes);
  try {
    for (std::size_t k = 1; k <= 13; ++k) {
      in.Take(kLetterLength);
      in.Read(c.LetterValues[k]);
    }
  } catch (const RunTimeError& fault) {
    return fault.number;
  }
  return 0;
}

int ParseRoundFile(std::string_view bytes, Class& c) {
  FieldReader in(bytes);
  c.RoundTable[1][0] = 100;
  try {
    for (std::size_t k = 1; k <= 12; ++k) {
      Currency value;
      in.Read(value);
      c.RoundTable[1][k] = static_cast<float>(value.ToDouble());
      in.Take(kLegendLength);
    }
    c.RoundScale = 1;
  } catch (const RunTimeError& fault) {
    return fault.number;
  }
  return 0;
}

void ReadSideFiles() {
  const char* application = Current().Magic == "ty7" ? "TALLYRLP7" : "TALLYRLW6";
  if (SaysYes(Platform().ReadSetting(application, "startup", "LETTER", ""))) TakeLetterFile();
  if (SaysYes(Platform().ReadSetting(application, "Startup", "ROUND", ""))) TakeRoundFile();
}

}  // namespace tallyroll
