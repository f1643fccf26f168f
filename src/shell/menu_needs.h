// SPDX-License-Identifier: GPL-3.0-or-later
// What the commands of a class window need of the class: who enables them and who tells why not
// read the same lists.
#pragma once

#include <array>
#include <string_view>

namespace tallyroll {

inline constexpr std::array<std::string_view, 15> kWithClass = {
    "mnuclose",   "mnucloseall", "mnusaveas",   "mnudisplay",  "mnuDelete",
    "mmucomment", "mnuEdit",     "mnuText",     "mnuTransfer", "mnuEMarksS",
    "mnucat",     "mnuroster",   "mnuwordproc", "mnuSeating",  "mnuInsight"};
inline constexpr std::array<std::string_view, 18> kWithGrades = {
    "mnuTransfergrade", "mnuEMarks",  "mnucat",       "mnureorder",   "mnuEMarksT",
    "mnuRollBook",      "mnuDMarks",  "mnuVScreen",   "mnuView",      "mnuVPrinter",
    "mnuMGrades",       "mnuequalW",  "mnupoints",    "mnuStatistic", "mnuonegrade",
    "mnuexplain",       "mnuunusual", "mnugradegraph"};
inline constexpr std::array<std::string_view, 5> kWithSummaries = {
    "mnuEAttend", "mnuDAttend", "mnuVScreen", "mnuVPrinter", "mnuView"};
inline constexpr std::array<std::string_view, 4> kWithDays = {"mnuattscreen", "mnuedaily",
                                                              "mnuVPrinter", "mnuView"};
inline constexpr std::array<std::string_view, 2> kWithMethod = {"mnuoptions", "mnuprtgrade"};

}  // namespace tallyroll
