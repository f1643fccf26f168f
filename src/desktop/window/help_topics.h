// SPDX-License-Identifier: GPL-3.0-or-later
// The topics of the help by their context numbers.
#pragma once

#include <QString>
#include <QUrl>
#include <span>

namespace tallyroll {

// Every context that has a page; 0 is the contents.
std::span<const int> HelpContexts();

// What the page of a context is headed with.
QString HelpTitle(int context);

// The page of that context. One without a page of its own leads to the contents.
QUrl HelpPage(int context);

}  // namespace tallyroll
