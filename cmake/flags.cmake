# SPDX-License-Identifier: GPL-3.0-or-later
# The compiler's options, linked by every target of the project.
add_library(tallyroll_flags INTERFACE)
target_compile_options(tallyroll_flags INTERFACE -Wall -Wextra -Wpedantic -Wconversion -Wno-sign-conversion)
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # GCC 12 sees overlaps in std::string that are not there.
  target_compile_options(tallyroll_flags INTERFACE -Wshadow=local -Wno-restrict)
endif()
target_compile_definitions(tallyroll_flags INTERFACE
  TALLYROLL_VERSION="${PROJECT_VERSION}" $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
if(TALLYROLL_LLD)
  find_program(TALLYROLL_LLD_PROGRAM ld.lld)
  mark_as_advanced(TALLYROLL_LLD_PROGRAM)
  if(TALLYROLL_LLD_PROGRAM)
    target_link_options(tallyroll_flags INTERFACE -fuse-ld=lld)
  endif()
endif()
if(TALLYROLL_WERROR)
  target_compile_options(tallyroll_flags INTERFACE -Werror)
endif()
if(TALLYROLL_SANITIZE)
  target_compile_options(tallyroll_flags INTERFACE
    -fsanitize=${TALLYROLL_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=undefined)
  target_link_options(tallyroll_flags INTERFACE -fsanitize=${TALLYROLL_SANITIZE})
  # At a fixed place a program of this size starts in three quarters of the time; Qt wants none.
  if(NOT TALLYROLL_DESKTOP)
    target_link_options(tallyroll_flags INTERFACE -no-pie)
  endif()
endif()
if(TALLYROLL_COVERAGE)
  target_compile_options(tallyroll_flags INTERFACE --coverage -O0 -fprofile-update=atomic)
  target_link_options(tallyroll_flags INTERFACE --coverage)
endif()
