// SPDX-License-Identifier: GPL-3.0-or-later
#include "store/text/saved_text.h"

#include "base/code_page.h"
#include "store/settings.h"

namespace tallyroll {

std::optional<std::string> AskForText(FileDialogRequest request) {
  request.encoding = &SavedTextEncoding;
  std::optional<std::string> path = Platform().FileDialog(request);
  if (path) SaveTextEncoding();
  return path;
}

std::string EncodedText(std::string_view text, TextEncoding encoding) {
  constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
  if (encoding == TextEncoding::kWindows1252) return std::string(text);
  return std::string(kUtf8Mark) + Utf8FromCodePage(text);
}

}  // namespace tallyroll
