// SPDX-License-Identifier: GPL-3.0-or-later
// What the commands of the word processor share.
#pragma once

#include <string>
#include <string_view>

namespace tallyroll {

inline constexpr int kWriterTopic = 700;

// Asks for the name of a letter; empty when the dialog was cancelled, or an open class would be
// lost. `folder` is where the dialog starts, and follows it.
std::string AskForLetter(std::string& folder, bool save, std::string_view offered = {});

void TellSaveFailure(const std::string& path);

}  // namespace tallyroll
