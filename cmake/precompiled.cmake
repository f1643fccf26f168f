# SPDX-License-Identifier: GPL-3.0-or-later
# precompile(TARGET logic|tests|desktop|desktop_tests): with TALLYROLL_PCH, what nearly every file of the
# target includes is read once. A file still includes what it uses: other presets build without this.
# Headers are named in angles, by the include folders, so that the cache knows no folder of a checkout.
set(precompiled_logic <algorithm> <array> <cmath> <functional> <memory> <optional> <string> <string_view>
    <utility> <vector> <platform/portal.h> <platform/surroundings.h> <store/program_state.h>)
set(precompiled_tests ${precompiled_logic} <gtest/gtest.h>)
set(precompiled_desktop ${precompiled_logic} <QAction> <QApplication> <QBoxLayout> <QCloseEvent> <QDialog>
    <QKeyEvent> <QLabel> <QLineEdit> <QMenu> <QPainter> <QPushButton> <QScrollBar> <QString> <QStringList>)
set(precompiled_desktop_tests ${precompiled_desktop} <gtest/gtest.h> <QTest> <QTimer>)

function(precompile target kind)
  if(NOT TALLYROLL_PCH)
    return()
  endif()
  target_precompile_headers(${target} PRIVATE ${precompiled_${kind}})
  # Without this the compiler cache refuses what is compiled with such a header.
  target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endfunction()
