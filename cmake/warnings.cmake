# SPDX-FileCopyrightText: 2026 The Melvado authors
# SPDX-License-Identifier: Apache-2.0

# Link to `warnings` for what every target of ours is compiled with.
add_library(warnings INTERFACE)
target_compile_options(
  warnings
  INTERFACE -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual
            -Wimplicit-fallthrough -Wswitch $<$<BOOL:${VMOD17_WERROR}>:-Werror>)
# GCC 12 sees overlaps in std::string's operator+ that are not there (its bug 105651).
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(warnings INTERFACE -Wno-restrict)
endif()
