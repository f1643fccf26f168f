// SPDX-License-Identifier: GPL-3.0-or-later
// The dialogs that ask for a printer, its pages and the font of printed pages.
#pragma once

#include <optional>
#include <string>

#include "platform/surroundings.h"

class QPrinter;
class QWidget;

namespace tallyroll {

// The printer takes what was chosen, but for the pages and copies, which are answered.
std::optional<PrintRange> ShowPrintDialog(QPrinter& printer, const PrintRange& offered,
                                          QWidget* parent);
void ShowPrinterSetUpDialog(QPrinter& printer, QWidget* parent);
// False when it was cancelled, or the font's name cannot be kept.
bool ShowFontDialog(std::string& name, float& points, QWidget* parent);

}  // namespace tallyroll
